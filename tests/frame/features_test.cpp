// The exported feature functions on the processor that runs the test.
#include "sig5d.h"
#include "support/library.h"
#include <cpuid.h>
#include <gtest/gtest.h>

namespace {

constexpr Ipp64u doNotCompare = Ipp64u(1) << 63;
constexpr Ipp64u leafGiven = 0x616F666E69746567;

Ipp64u processorWord()
{
    Ipp64u word = 0;
    EXPECT_EQ(ippGetCpuFeatures(&word, nullptr), 0);
    return word;
}

} // namespace

// First in this program: later tests change what requests are compared with.
TEST(Features, TheWordTellsWhatTheCompilersOwnTestTells)
{
    __builtin_cpu_init();
    const Ipp64u word = processorWord();
    EXPECT_EQ(word & 0x7, 7u);
    EXPECT_EQ((word & 0x8) != 0, __builtin_cpu_supports("sse3") != 0);
    EXPECT_EQ((word & 0x10) != 0, __builtin_cpu_supports("ssse3") != 0);
    EXPECT_EQ((word & 0x40) != 0, __builtin_cpu_supports("sse4.1") != 0);
    EXPECT_EQ((word & 0x80) != 0, __builtin_cpu_supports("sse4.2") != 0);
    EXPECT_EQ((word & 0x300) == 0x300, __builtin_cpu_supports("avx") != 0);
    EXPECT_EQ((word & 0x8200) == 0x8200, __builtin_cpu_supports("avx2") != 0);
    EXPECT_EQ(word >> 27, 0u);
}

TEST(Features, RegistersAreThoseOfTheLeafAskedFor)
{
    unsigned a, b, c, d;
    Ipp64u word = 0;
    Ipp32u regs[6] = {1, 2, 3, 4, 0xABCD, 0xABCD};
    ASSERT_EQ(ippGetCpuFeatures(&word, regs), 0);
    __cpuid_count(1, 0, a, b, c, d);
    EXPECT_EQ(regs[0], a);
    EXPECT_EQ(regs[2], c);
    EXPECT_EQ(regs[3], d);
    EXPECT_EQ(regs[4], 0xABCDu);

    for (Ipp32u subleaf = 0; subleaf < 3; ++subleaf) {
        Ipp64u text = leafGiven;
        regs[0] = 4;
        regs[2] = subleaf;
        ASSERT_EQ(ippGetCpuFeatures(&text, regs), 0);
        __cpuid_count(4, subleaf, a, b, c, d);
        EXPECT_EQ(regs[1], b);
        EXPECT_EQ(regs[2], c);
        EXPECT_EQ(regs[3], d);
        EXPECT_EQ(text, word) << "the word replaces the text";
    }
    EXPECT_EQ(ippGetCpuFeatures(nullptr, nullptr), -8);
    EXPECT_EQ(ippGetCpuFeatures(nullptr, regs), -8);
    EXPECT_EQ(regs[3], d) << "nothing is written after an error";
}

TEST(Features, RequestsAreComparedAndAlwaysInForce)
{
    const Ipp64u word = processorWord();
    EXPECT_EQ(ippSetCpuFeatures(4), 51);
    EXPECT_EQ(ippGetEnabledCpuFeatures(), 7u);
    EXPECT_STREQ(ippsGetLibVersion()->targetCpu, "w7");
    EXPECT_EQ(ippSetCpuFeatures(7), 0);
    EXPECT_EQ(ippSetCpuFeatures(Ipp64u(1) << 32), 50);
    EXPECT_EQ(ippGetEnabledCpuFeatures(), (Ipp64u(1) << 32) + 1);
    EXPECT_EQ(ippSetCpuFeatures(0), 36);
    EXPECT_STREQ(ippsGetLibVersion()->targetCpu, "px");
    EXPECT_EQ(ippSetCpuFeatures(0x80000007), 49);
    if ((word & 0x83FF) == 0x83FF) {
        EXPECT_EQ(ippSetCpuFeatures(0x1F), 0);
        EXPECT_STREQ(ippsGetLibVersion()->targetCpu, "s8");
        EXPECT_EQ(ippSetCpuFeatures(word), 0);
        EXPECT_EQ(ippGetEnabledCpuFeatures(), word);
        EXPECT_STREQ(ippsGetLibVersion()->targetCpu, "h9");
    }
}

TEST(Features, EveryForcedVariantIsTheOneThatAnswers)
{
    const char* const names[] = {"ippSP PX (px)",     "ippSP SSE2 (w7)", "ippSP Atom (s8)",
                                 "ippSP SSE4.2 (p8)", "ippSP AVX (g9)",  "ippSP AVX2 (h9)"};
    for (const support::Variant& v : support::variants) {
        EXPECT_EQ(ippSetCpuFeatures(v.features | doNotCompare), 0);
        EXPECT_EQ(ippGetEnabledCpuFeatures(), v.features);
        const IppLibraryVersion* version = ippsGetLibVersion();
        EXPECT_EQ(version, ippsGetLibVersion_Idx());
        EXPECT_STREQ(version->targetCpu, v.answers);
        EXPECT_STREQ(version->Name, names[v.index < 5 ? v.index : 5]); // also from the body beyond h9
        EXPECT_EQ(version->major, 2017);
        EXPECT_EQ(version->minor, 0);
        EXPECT_EQ(version->majorBuild, 0);
        EXPECT_EQ(version->build, 52494);
        EXPECT_STREQ(version->Version, "2017.0.0 (r52494)");
        EXPECT_STREQ(version->BuildDate, "Jul 16 2016");
    }
}

// Bit 63 makes the word that was enabled until then the one that later requests are compared with.
TEST(Features, ForcingReplacesWhatRequestsAreComparedWith)
{
    ippSetCpuFeatures(0x1F | doNotCompare);
    ippSetCpuFeatures(0xDF | doNotCompare);
    EXPECT_EQ(processorWord(), 0x1Fu);
    EXPECT_EQ(ippSetCpuFeatures(0xDF), 49);
    EXPECT_EQ(ippSetCpuFeatures(0x81DF), 49); // and without the operating system's bit AVX is taken out
    EXPECT_EQ(ippGetEnabledCpuFeatures(), 0xDFu);
    EXPECT_EQ(ippSetCpuFeatures(0x6F | doNotCompare), 51);
    EXPECT_EQ(ippSetCpuFeatures(doNotCompare), 36);
    EXPECT_EQ(processorWord(), 0x7Fu);
}
