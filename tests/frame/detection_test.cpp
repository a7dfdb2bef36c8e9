// Detection and selection over recorded processors; the selection rule against its literal wording.
#include "frame/features.h"
#include "frame/recorded_processors.h"
#include "frame/topology.h"
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <tuple>
#include <vector>

using namespace sig5d;

TEST(Detection, RecordedProcessorsAreToldRight)
{
    for (int i = 0; i < recordedProcessorCount; ++i) {
        const Recorded& r = recordedProcessors[i];
        SCOPED_TRACE(r.name);
        const Processor p = play(r);
        const Identity id = identify(p);
        const u64 word = readFeatures(id);
        const CacheSize cache = readCacheSize(id);
        EXPECT_EQ(word, r.word) << std::hex << word << " " << r.word;
        const Selection s = selectAgainst(word, word);
        EXPECT_EQ(s.variant, r.variant);
        EXPECT_EQ(s.enabled, r.enabled) << std::hex << s.enabled << " " << r.enabled;
        EXPECT_EQ(runsBeyondVariants(id, word), r.beyond);
        EXPECT_EQ(cache.bytes, r.cacheBytes);
        EXPECT_EQ(cache.status, r.cacheBytes > 0 ? 0 : r.identifiable ? 37 : 36);
        EXPECT_EQ(coresPerPackage(identify(play(r))), r.cores);
    }
}

TEST(Detection, EachFeatureHasItsBit)
{
    struct Bit {
        u32 leaf;
        u32 CpuidRegs::*part;
        int number;
        u64 feature;
    };
    constexpr auto b = &CpuidRegs::ebx, c = &CpuidRegs::ecx, d = &CpuidRegs::edx;
    const Bit bits[] = {{1, d, 23, 0x1},
                        {1, d, 25, 0x2},
                        {1, d, 26, 0x4},
                        {1, c, 0, 0x8},
                        {1, c, 9, 0x10},
                        {1, c, 22, 0x20},
                        {1, c, 19, 0x40},
                        {1, c, 20, 0x80},
                        {1, c, 28, 0x100},
                        {1, c, 25, 0x400},
                        {1, c, 1, 0x800},
                        {1, c, 30, 0x2000},
                        {1, c, 29, 0x4000},
                        {7, b, 5, 0x8000},
                        {7, b, 19, 0x10000},
                        {7, b, 18, 0x20000},
                        {7, b, 29, 0x80000},
                        {7, b, 16, 0x100000},
                        {7, b, 28, 0x200000},
                        {7, b, 27, 0x400000},
                        {7, b, 26, 0x800000},
                        {7, b, 30, 0x1000000},
                        {7, b, 17, 0x2000000},
                        {7, b, 31, 0x4000000},
                        {0x80000001, c, 8, 0x40000}};
    Recorded blank;
    blank.leaves = {{{0, 0}, {7, 0, 0, 0}}, {{0x80000000, 0}, {0x80000001, 0, 0, 0}}};
    for (u32 leaf : {1u, 7u, 0x80000001u})
        for (u32 CpuidRegs::*part : {&CpuidRegs::eax, b, c, d})
            for (int number = 0; number < 32; ++number) {
                Recorded r = blank;
                r.leaves[{leaf, 0}].*part = 1u << number;
                u64 expected = 0;
                for (const Bit& bit : bits)
                    if (bit.leaf == leaf && bit.part == part && bit.number == number) expected = bit.feature;
                EXPECT_EQ(readFeatures(identify(play(r))), expected) << std::hex << leaf << ", bit " << number;
            }
}

TEST(Detection, TheBodyBeyondTheVariantsNeedsAllOfItsFeaturesAndRegisters)
{
    const char* const name = "Xeon in a virtual machine, AVX-512";
    const auto runs = [](const Recorded& r) {
        const Identity id = identify(play(r));
        return runsBeyondVariants(id, readFeatures(id));
    };
    Recorded r = recorded(name);
    r.xcr0 = 0xE6; // no others are needed
    EXPECT_TRUE(runs(r));
    for (int bit : {1, 2, 5, 6, 7}) {
        r = recorded(name);
        r.xcr0 &= ~(u64(1) << bit);
        EXPECT_FALSE(runs(r)) << "registers of bit " << bit;
    }
    for (int bit = 0; bit < 32; ++bit) {
        r = recorded(name);
        r.leaves[{7, 0}].ebx &= ~(1u << bit);
        const bool needed = bit == 5 || bit == 16 || bit == 17 || bit == 28 || bit == 30 || bit == 31;
        EXPECT_EQ(runs(r), !needed) << "feature of bit " << bit;
    }
    r = recorded(name);
    r.leaves[{1, 0}].ecx &= ~(1u << 27);
    EXPECT_FALSE(runs(r)) << "nothing tells which registers are saved";
}

TEST(Detection, TheVendorDecidesOnCachesAndCoresButNeverOnTheVariant)
{
    Recorded r = recorded("Core i7-4770");
    ASSERT_EQ(r.variant, 5);
    for (u32 CpuidRegs::*part : {&CpuidRegs::ecx, &CpuidRegs::edx, &CpuidRegs::ebx}) {
        r = recorded("Core i7-4770");
        r.leaves[{0, 0}].*part ^= 0x20; // another maker: no leaf 4, no count of cores
        const Identity id = identify(play(r));
        EXPECT_EQ(readFeatures(id), r.word);
        EXPECT_EQ(readCacheSize(id).status, 37);
        EXPECT_EQ(coresPerPackage(id), 1);
    }
    r.leaves[{2, 0}] = {1, 0, 0, 0x0000FF00}; // the descriptor that points at leaf 4
    for (u32 highest : {r.leaves[{0, 0}].eax, 4u}) {
        r.leaves[{0, 0}].eax = highest;
        EXPECT_EQ(readCacheSize(identify(play(r))).bytes, r.cacheBytes);
    }
}

TEST(Detection, DescriptorsAreReadWhereARegisterHoldsSome)
{
    Recorded r = recorded("Pentium 4");
    auto size = [&r](CpuidRegs two) {
        r.leaves[{2, 0}] = two;
        return readCacheSize(identify(play(r))).bytes;
    };
    EXPECT_EQ(size({0x0A000001, 0x800000EC, 0x00000049, 0x8000004D}), 4 << 20); // registers with bit 31 hold none
    EXPECT_EQ(size({0x0A000001, 0, 0x40, 0}), 8 << 10);                         // no second level
    EXPECT_EQ(size({0x00000001, 0, 0x40, 0}), 0);
    EXPECT_EQ(size({0x00000001, 0x30060870, 0x00B3B0F0, 0}), 0); // instruction caches, buffers, prefetchers
    EXPECT_EQ(size({0x00000001, 0xEC000000, 0, 0x00DE0000}), 6 << 20);
}

TEST(Detection, TheNumberOfRoundsIsNoDescriptor)
{
    Recorded r = recorded("Pentium 4");
    r.leaves[{2, 0}] = {0x0A, 0, 0, 0}; // ten rounds, not the descriptor of 8 KB
    r.rounds.assign(9, {0x0A, 0, 0, 0});
    EXPECT_EQ(readCacheSize(identify(play(r))).bytes, 0);
}

TEST(Detection, ExtendedLeavesTellOfCachesThatAreOn)
{
    Recorded r = recorded("Phenom");
    auto size = [&r](u32 second, u32 third) {
        r.leaves[{0x80000006, 0}] = {0, 0, second, third};
        return readCacheSize(identify(play(r))).bytes;
    };
    EXPECT_EQ(size(0x02008140, 0x00300140), 512 << 10); // the third level is off
    EXPECT_EQ(size(0x60000140, 0x0030B140), 6 << 20);   // the second
    EXPECT_EQ(size(0x60000140, 0x00300140), 64 << 10);
    r.leaves[{0x80000001, 0}].ecx |= 1 << 22; // topology extensions, but no leaf for them
    EXPECT_EQ(size(0x02008140, 0x0030B140), 6 << 20);
}

TEST(Detection, CoresAreCountedByTheLeavesThatCount)
{
    Recorded r = recorded("Ryzen");
    r.leaves[{0x80000001, 0}].ecx &= ~(1u << 22); // nothing tells the threads of a core
    EXPECT_EQ(coresPerPackage(identify(play(r))), 16);
    r = recorded("Ryzen");
    r.leaves[{0x80000008, 0}].ecx = 0; // a guest with half a core
    EXPECT_EQ(coresPerPackage(identify(play(r))), 1);
    r.leaves[{0x80000000, 0}].eax = 0x80000007;
    EXPECT_EQ(coresPerPackage(identify(play(r))), 1);
}

// A leaf is used as soon as it is the highest: one more that tells nothing makes no difference.
TEST(Detection, TheHighestLeafCounts)
{
    const auto found = [](const Recorded& r) {
        const u64 word = readFeatures(identify(play(r)));
        const i32 cache = readCacheSize(identify(play(r))).bytes;
        return std::tuple(word, cache, coresPerPackage(identify(play(r))));
    };
    for (int i = 0; i < recordedProcessorCount; ++i)
        for (const auto& [place, registers] : recordedProcessors[i].leaves) {
            const u32 leaf = place.first, base = leaf & 0x80000000;
            if (leaf == base) continue;
            Recorded r = recordedProcessors[i];
            std::erase_if(r.leaves, [&](const auto& other) {
                return other.first.first > leaf && (other.first.first & 0x80000000) == base;
            });
            r.leaves[{base, 0}].eax = leaf;
            const auto expected = found(r);
            r.leaves[{base, 0}].eax = leaf + 1;
            EXPECT_EQ(found(r), expected) << r.name << ", leaf " << std::hex << leaf;
        }
}

// Each published descriptor of a data or unified cache, by size; no other says anything.
TEST(Detection, DescriptorsHaveTheirPublishedSizes)
{
    const std::map<int, std::vector<int>> kilobytes = {
        {8, {0x0A, 0x66}},
        {16, {0x0C, 0x0D, 0x10, 0x60, 0x67}},
        {24, {0x0E}},
        {32, {0x2C, 0x68}},
        {96, {0x1A}},
        {128, {0x1D, 0x39, 0x3B, 0x41, 0x79, 0x81}},
        {192, {0x3A}},
        {256, {0x21, 0x3C, 0x42, 0x7A, 0x7E, 0x82}},
        {384, {0x3D}},
        {512, {0x22, 0x3E, 0x43, 0x7B, 0x7F, 0x80, 0x83, 0x86, 0xD0}},
        {1024, {0x23, 0x24, 0x44, 0x78, 0x7C, 0x84, 0x87, 0xD1, 0xD6}},
        {1536, {0xDC}},
        {2048, {0x25, 0x45, 0x7D, 0x85, 0x88, 0xD2, 0xD7, 0xE2}},
        {3072, {0x48, 0x8D, 0xDD}},
        {4096, {0x29, 0x46, 0x49, 0x89, 0xD8, 0xE3}},
        {6144, {0x4A, 0x4E, 0xDE}},
        {8192, {0x47, 0x4B, 0x8A, 0xE4}},
        {12288, {0x4C, 0xEA}},
        {16384, {0x4D}},
        {18432, {0xEB}},
        {24576, {0xEC}},
    };
    std::vector<int> expected(256);
    for (const auto& [size, codes] : kilobytes)
        for (int code : codes) expected[static_cast<size_t>(code)] = size << 10;
    Recorded r = recorded("Pentium 4");
    for (u32 code = 0; code < 256; ++code) {
        r.leaves[{2, 0}] = {1, code, 0, 0};
        EXPECT_EQ(readCacheSize(identify(play(r))).bytes, expected[code]) << std::hex << code;
    }
}

TEST(Detection, AListSkipsInstructionCachesAndEndsAtTheLargestInteger)
{
    Recorded r = recorded("Core i7-920");
    r.leaves[{4, 1}] = {0x22, 0x03C0003F, 0xFFFFFF, 0}; // 16 GB
    EXPECT_EQ(readCacheSize(identify(play(r))).bytes, r.cacheBytes);
    r.leaves[{4, 1}].eax = 0x23;
    EXPECT_EQ(readCacheSize(identify(play(r))).bytes, 0x7FFFFFFF);
}

TEST(Detection, OnlyLeavesThatExistCount)
{
    Recorded r = recorded("Core i7-4770");
    r.leaves[{0, 0}].eax = 7;
    EXPECT_EQ(readFeatures(identify(play(r))), r.word);
    r.leaves[{0, 0}].eax = 6;
    EXPECT_EQ(readFeatures(identify(play(r))), r.word & ~FeatureAvx2);
    r.leaves[{0x80000001, 0}].ecx = 0x100;
    EXPECT_TRUE(readFeatures(identify(play(r))) & FeaturePrefetchw);
    for (u32 noMaximum : {0x80000000u, 0xFFFFFFFFu, 0x7FFFFFFFu, 0u}) {
        r.leaves[{0x80000000, 0}].eax = noMaximum;
        EXPECT_FALSE(readFeatures(identify(play(r))) & FeaturePrefetchw) << std::hex << noMaximum;
    }
    r.leaves[{0, 0}].eax = 0;
    EXPECT_EQ(readFeatures(identify(play(r))), 0u);
}

TEST(Detection, DenormalsAreZerosNeedsTheMaskBit)
{
    Recorded r = recorded("Pentium M");
    EXPECT_TRUE(hasDenormalsAreZeros(play(r)));
    r.leaves[{1, 0}].edx &= ~(1u << 24); // no FXSAVE: the mask cannot be read
    EXPECT_FALSE(hasDenormalsAreZeros(play(r)));
    EXPECT_FALSE(hasDenormalsAreZeros(play(recorded("Pentium III")))); // first processors with SSE
    EXPECT_FALSE(hasDenormalsAreZeros(play(recorded("no CPUID"))));
}

TEST(Detection, StreamingStartsBeyondTheLargestCacheWithinReason)
{
    EXPECT_EQ(streamBytes({-1, 36}), ~size_t(0));
    EXPECT_EQ(streamBytes({0, 37}), ~size_t(0));
    EXPECT_EQ(streamBytes({512 << 10, 0}), size_t(1) << 20);
    EXPECT_EQ(streamBytes({8 << 20, 0}), size_t(8) << 20);
    EXPECT_EQ(streamBytes({480 << 20, 0}), size_t(32) << 20);
}

namespace {

// The rule as it is worded, step by step.
Selection literally(u64 f, u64 c, bool compare)
{
    Status s = 0;
    if (compare) {
        if ((f & 0x78000000) || f >> 32) s = 50;
        if ((f & 0x07F08100) && !(c & 0x200)) {
            f = (f >> 32 << 32) | (f & 0xF80F7EFF);
            s = 49;
        }
        for (int bit = 0; bit < 32; ++bit)
            if ((f >> bit & 1) && !(c >> bit & 1)) {
                s = 49;
                break;
            }
    }
    int index;
    u64 required;
    Status t = 0;
    if ((f & 0x7300000) == 0x7300000)
        index = 5, required = 0x73081DF;
    else if ((f & 0xF00000) == 0xF00000)
        index = 5, required = 0xF081DF;
    else if (f & 0x8000)
        index = 5, required = 0x81DF;
    else if (f & 0x100)
        index = 4, required = 0x1DF;
    else if (f & 0x80)
        index = 3, required = 0xDF;
    else if (f & 0x40)
        index = 2, required = 0x5F;
    else if (f & 0x20)
        index = 2, required = 0x3F;
    else if (f & 0x10)
        index = 2, required = 0x1F;
    else if (f & 0x8)
        index = 1, required = 0xF;
    else if (f & 0x4)
        index = 1, required = 0x7;
    else if (f & 0x2)
        index = 0, required = 0x3;
    else
        index = 0, required = 0x1, t = 36;
    for (int bit = 0; bit < 64; ++bit)
        if ((required >> bit & 1) && !(f >> bit & 1) && t != 36) t = 51;
    return {index, f | required, s ? s : t};
}

::testing::AssertionResult agrees(u64 requested, u64 processor)
{
    const Selection a = selectAgainst(requested, processor), b = literally(requested, processor, true);
    const Selection c = select(requested), d = literally(requested, 0, false);
    auto same = [](const Selection& x, const Selection& y) {
        return x.variant == y.variant && x.enabled == y.enabled && x.status == y.status;
    };
    // The variant in use is made from the enabled word.
    const bool wordTells = select(a.enabled).variant == a.variant && select(c.enabled).variant == c.variant;
    if (same(a, b) && same(c, d) && wordTells) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << std::hex << requested << " on " << processor;
}

} // namespace

TEST(Selection, FollowsTheRuleForEveryCombinationOfDecidingBits)
{
    constexpr u64 deciding = 0x7F083FF; // every bit that the table or the operating system's bit looks at
    std::mt19937_64 random(1);
    std::vector<u64> processors = {0, ~u64(0) >> 1, 0x3FF, 0xFFFFF};
    for (int i = 0; i < recordedProcessorCount; ++i) processors.push_back(recordedProcessors[i].word);
    u64 requested = 0;
    do { // all subsets of the bits, in increasing order
        ASSERT_TRUE(agrees(requested, processors[random() % processors.size()]));
        ASSERT_TRUE(agrees(requested, random() & random()));
        requested = (requested - deciding) & deciding;
    } while (requested);
    for (int i = 0; i < 1000000; ++i) {
        u64 f = random() >> 1;
        for (u64 thin = random(); thin & 3; thin >>= 2) f &= random();
        if (i & 1) f &= 0xFFFFFFFF;
        ASSERT_TRUE(agrees(f, processors[random() % processors.size()]));
    }
}

TEST(Selection, StatedCases)
{
    const u64 avx2 = 0xEFFF;
    EXPECT_EQ(selectAgainst(0x1F, avx2).variant, 2);
    EXPECT_EQ(selectAgainst(0x1F, avx2).status, 0);
    EXPECT_EQ(selectAgainst(0x1F, avx2).enabled, 0x1Fu);
    EXPECT_EQ(selectAgainst(0x4, avx2).variant, 1);
    EXPECT_EQ(selectAgainst(0x4, avx2).status, 51);
    EXPECT_EQ(selectAgainst(0x4, avx2).enabled, 7u);
    EXPECT_EQ(selectAgainst(0, avx2).status, 36);
    EXPECT_EQ(selectAgainst(u64(1) << 32, avx2).status, 50); // unknown, not missing
    EXPECT_EQ(selectAgainst(0x8000000, avx2).status, 49);    // unknown and missing
    EXPECT_EQ(selectAgainst(0x81DF, 0xDF).status, 49);
    EXPECT_EQ(selectAgainst(0x81DF, 0xDF).variant, 3);  // no system support: AVX is taken out
    EXPECT_EQ(selectAgainst(0x81DF, 0x3DF).variant, 5); // the processor lacks AVX2, the request stands
}
