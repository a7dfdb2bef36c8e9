// Processor detection, the selection rule, and the functions that expose them. The few words that are process-wide are
// relaxed atomics: concurrent first calls each detect and store the same values.
#include "frame/features.h"

int sig5d_variant = -1;

namespace sig5d {

u64 readFeatures(const Processor& p)
{
    u64 word = 0;
    auto add = [&word](u32 reg, int bit, u64 feature) {
        if (reg >> bit & 1) word |= feature;
    };
    const u32 leaves = p.cpuid(0, 0).eax;
    const CpuidRegs one = p.cpuid(1, 0);
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
    const bool xsave = one.ecx >> 27 & 1;
    if (xsave && (word & FeatureAvx) && (p.xgetbv() & 6) == 6) word |= FeatureAvxOs;
    if (leaves >= 7) {
        const u32 ebx = p.cpuid(7, 0).ebx;
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
    if (p.cpuid(0x80000000, 0).eax >= 0x80000001) add(p.cpuid(0x80000001, 0).ecx, 8, FeaturePrefetchw);
    return word;
}

Selection select(u64 requested)
{
    // First match wins: all bits of "when" are asked for. "needs" deliberately leaves out MOVBE above s8 and the
    // operating system's AVX bit everywhere.
    static constexpr struct {
        u32 when;
        int variant;
        u32 needs;
    } rules[] = {{0x7300000, 5, 0x73081DF}, {0xF00000, 5, 0xF081DF}, {0x8000, 5, 0x81DF}, {0x100, 4, 0x1DF},
                 {0x80, 3, 0xDF},           {0x40, 2, 0x5F},         {0x20, 2, 0x3F},     {0x10, 2, 0x1F},
                 {0x8, 1, 0xF},             {0x4, 1, 0x7},           {0x2, 0, 0x3}};
    const u32 low = static_cast<u32>(requested);
    for (const auto& rule : rules)
        if ((low & rule.when) == rule.when) {
            const Status status = (low & rule.needs) == rule.needs ? StsNoErr : StsFeaturesCombination;
            return {rule.variant, requested | rule.needs, status};
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

namespace {

constexpr u64 nothingDetected = ~u64(0);
u64 detected = nothingDetected; // the feature word that requests are compared with
u64 enabled = FeatureMmx | FeatureSse;

u64 load(const u64& word) { return __atomic_load_n(&word, __ATOMIC_RELAXED); }
void store(u64& word, u64 value) { __atomic_store_n(&word, value, __ATOMIC_RELAXED); }

u64 detectedFeatures()
{
    u64 word = load(detected);
    if (word == nothingDetected) store(detected, word = readFeatures(thisProcessor));
    return word;
}

void use(const Selection& s)
{
    store(enabled, s.enabled);
    __atomic_store_n(&sig5d_variant, s.variant, __ATOMIC_RELAXED);
}

Status getFeatures(u64* features, u32* registers)
{
    constexpr u64 leafGiven = 0x616F666E69746567; // "getinfoa" in memory order
    if (!thisProcessor.identifiable()) return StsNotSupportedCpu;
    if (!features) return StsNullPtrErr;
    if (registers) {
        const bool given = *features == leafGiven;
        const CpuidRegs r = thisProcessor.cpuid(given ? registers[0] : 1, given ? registers[2] : 0);
        registers[0] = r.eax;
        registers[1] = r.ebx;
        registers[2] = r.ecx;
        registers[3] = r.edx;
    }
    *features = detectedFeatures();
    return StsNoErr;
}

Status setFeatures(u64 requested)
{
    Selection chosen;
    if (requested & DoNotCompare) {
        store(detected, load(enabled));
        chosen = select(requested & ~DoNotCompare);
    } else {
        chosen = selectAgainst(requested, detectedFeatures());
    }
    use(chosen);
    return chosen.status;
}

u64 enabledFeatures() { return load(enabled); }

} // namespace

#include "entries/frame/features.inc"
} // namespace sig5d

extern "C" void sig5d_initialise()
{
    using namespace sig5d;
    if (!thisProcessor.identifiable())
        use({0, FeatureMmx | FeatureSse, StsNoErr});
    else
        use(selectAgainst(detectedFeatures(), detectedFeatures()));
}
