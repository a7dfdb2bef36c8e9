#include "frame/features.h"
#include "frame/variants.h"

namespace sig5d {

u64 readFeatures(const Identity& id)
{
    u64 word = 0;
    auto add = [&word](u32 reg, int bit, u64 feature) {
        if (reg >> bit & 1) word |= feature;
    };
    if (id.maxLeaf < 1) return word;
    const CpuidRegs one = id.leaf(1);
    add(one.edx, 23, FeatureMmx);
    add(one.edx, 25, FeatureSse);
    add(one.edx, 26, FeatureSse2);
    add(one.ecx, 0, FeatureSse3);
    add(one.ecx, 9, FeatureSsse3);
    add(one.ecx, 22, FeatureMovbe);
    add(one.ecx, 19, FeatureSse41);
    add(one.ecx, 20, FeatureSse42);
    add(one.ecx, 28, FeatureAvx);
    add(one.ecx, 25, FeatureAes);
    add(one.ecx, 1, FeaturePclmulqdq);
    add(one.ecx, 30, FeatureRdrand);
    add(one.ecx, 29, FeatureF16c);
    const bool xgetbvUsable = one.ecx >> 27 & 1;
    if (xgetbvUsable && (word & FeatureAvx) && (id.processor.xgetbv() & 6) == 6) word |= FeatureAvxOs;
    if (id.maxLeaf >= 7) {
        const u32 ebx = id.leaf(7).ebx;
        add(ebx, 5, FeatureAvx2);
        add(ebx, 19, FeatureAdx);
        add(ebx, 18, FeatureRdseed);
        add(ebx, 29, FeatureSha);
        add(ebx, 16, FeatureAvx512f);
        add(ebx, 28, FeatureAvx512cd);
        add(ebx, 27, FeatureAvx512er);
        add(ebx, 26, FeatureAvx512pf);
        add(ebx, 30, FeatureAvx512bw);
        add(ebx, 17, FeatureAvx512dq);
        add(ebx, 31, FeatureAvx512vl);
    }
    add(id.extendedFeatures, 8, FeaturePrefetchw);
    return word;
}

Selection select(u64 requested)
{
    // First match wins: all bits of "when" are asked for, and what the variant needs should be as well. No variant
    // needs MOVBE or the operating system's AVX bit, deliberately. The rules stand here and not in src/variants.txt
    // because they are the interface's: several select a variant by features that it has no use for.
    static constexpr struct {
        u32 when;
        int variant;
    } rules[] = {{0x7300000, 5}, {0xF00000, 5}, {0x8000, 5}, {0x100, 4}, {0x80, 3}, {0x40, 2},
                 {0x20, 2},      {0x10, 2},     {0x8, 1},    {0x4, 1},   {0x2, 0}};
    const u32 low = static_cast<u32>(requested);
    for (const auto& rule : rules)
        if ((low & rule.when) == rule.when) {
            const u32 needs = rule.when | variants[rule.variant].features;
            const Status status = (low & needs) == needs ? StsNoErr : StsFeaturesCombination;
            return {rule.variant, requested | needs, status};
        }
    return {0, requested | FeatureMmx, StsNotSupportedCpu};
}

Selection selectAgainst(u64 requested, u64 processor)
{
    constexpr u64 unknown = 0xFFFFFFFF78000000;
    constexpr u64 wide = 0x07F08100; // AVX, AVX2, AVX-512: of no use unless the system saves their registers
    Status early = (requested & unknown) ? StsUnknownFeature : StsNoErr;
    if ((requested & wide) && !(processor & FeatureAvxOs)) {
        requested &= ~wide;
        early = StsFeatureNotSupported;
    }
    // Only the lower half is compared: an unknown upper bit alone stays "unknown", not "not supported".
    if (static_cast<u32>(requested) & ~static_cast<u32>(processor)) early = StsFeatureNotSupported;
    Selection chosen = select(requested);
    if (early != StsNoErr) chosen.status = early;
    return chosen;
}

bool runsBeyondVariants(const Identity& id, u64 word)
{
    constexpr u64 needed = variants[beyondVariants].features;
    constexpr u64 saved = 0xE6; // registers of 16 and of 32 bytes; masks; those of 64 bytes, the lower and the upper 16
    return (word & needed) == needed && (word & FeatureAvxOs) && (id.processor.xgetbv() & saved) == saved;
}

int bodyFor(u64 enabled, bool runsBeyond)
{
    constexpr u64 needed = variants[beyondVariants].features;
    return runsBeyond && (enabled & needed) == needed ? beyondVariants : select(enabled).variant;
}

bool hasDenormalsAreZeros(const Processor& p)
{
    constexpr u32 fxsaveAndSse = 3u << 24;
    return p.identifiable() && (p.cpuid(1, 0).edx & fxsaveAndSse) == fxsaveAndSse && (p.mxcsrMask() & 0x40);
}

} // namespace sig5d
