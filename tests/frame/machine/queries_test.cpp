// What the exported queries answer on recorded processors, from the first call of a process on.
#include "frame/features.h"
#include "frame/topology.h"
#include "machine.h"
#include "sig5d.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <xmmintrin.h>

using namespace sig5d;

namespace {

constexpr u64 doNotCompare = u64(1) << 63;

template <class F> void onEveryMachine(F test)
{
    for (int i = 0; i < recordedProcessorCount; ++i) {
        const Recorded& r = recordedProcessors[i];
        SCOPED_TRACE(r.name);
        machine::start(r);
        test(r);
    }
}

int cacheStatus(const Recorded& r) { return !r.identifiable ? 36 : r.cacheBytes > 0 ? 0 : 37; }

void expectCache(const Recorded& r)
{
    int bytes = 12345;
    EXPECT_EQ(ippGetMaxCacheSizeB(&bytes), cacheStatus(r));
    EXPECT_EQ(bytes, r.cacheBytes);
}

void expectWord(const Recorded& r, u64 word)
{
    u64 found = 12345;
    EXPECT_EQ(ippGetCpuFeatures(&found, nullptr), r.identifiable ? 0 : 36);
    EXPECT_EQ(found, r.identifiable ? word : 12345);
}

} // namespace

TEST(Machine, QueriesTellOfItAndSelectNothing)
{
    onEveryMachine([](const Recorded& r) {
        for (int again = 0; again < 2; ++again) {
            expectCache(r);
            expectWord(r, r.word);
            EXPECT_EQ(ippGetNumCoresOnDie(), r.cores);
            EXPECT_EQ(ippGetEnabledCpuFeatures(), 3u);
            EXPECT_EQ(machine::body(), -1);
            EXPECT_EQ(ippGetCpuFeatures(nullptr, nullptr), r.identifiable ? -8 : 36);
        }
    });
}

TEST(Machine, TheFirstCallSelectsItsBestVariant)
{
    onEveryMachine([](const Recorded& r) {
        machine::firstCall();
        EXPECT_EQ(machine::body(), r.body());
        EXPECT_EQ(machine::enabled(), r.identifiable ? r.enabled : 3u);
        expectWord(r, r.word);
        EXPECT_EQ(ippSetCpuFeatures(7), r.word % 8 == 7 ? 0 : 49);
        EXPECT_EQ(machine::body(), 1);
        EXPECT_EQ(machine::enabled(), 7u);
        EXPECT_EQ(ippSetCpuFeatures(0x81DF | doNotCompare), 0);
        EXPECT_EQ(machine::body(), 5);
        EXPECT_EQ(machine::enabled(), 0x81DFu);
        expectWord(r, 7); // what was enabled when the request came
        expectCache(r);
    });
}

// The body beyond the variants runs where its features are enabled, and never where the processor or the system lacks
// something, whatever a caller says that there is.
TEST(Machine, TheBodyBeyondTheVariantsIsSelectedByAllOfItsFeatures)
{
    const u64 all = 0x73081DF;
    onEveryMachine([=](const Recorded& r) {
        const int wide = r.beyond ? 6 : 5;
        EXPECT_EQ(ippSetCpuFeatures(all | doNotCompare), 0);
        EXPECT_EQ(machine::body(), wide);
        EXPECT_EQ(machine::enabled(), all);
        for (u64 one : {0x100000, 0x200000, 0x1000000, 0x2000000, 0x4000000}) {
            EXPECT_EQ(ippSetCpuFeatures((all & ~one) | doNotCompare), 0);
            EXPECT_EQ(machine::body(), 5) << std::hex << one;
        }
        EXPECT_EQ(ippSetCpuFeatures(0x7300000 | doNotCompare), 51);
        EXPECT_EQ(machine::body(), wide);
        EXPECT_EQ(ippSetCpuFeatures(0x1DF | doNotCompare), 0);
        EXPECT_EQ(machine::body(), 4);
    });
    for (int i = 0; i < recordedProcessorCount; ++i) {
        const Recorded& r = recordedProcessors[i];
        machine::start(r); // compared with the processor
        ippSetCpuFeatures(all);
        EXPECT_EQ(machine::body(), r.beyond ? 6 : r.word & FeatureAvxOs ? 5 : 3) << r.name;
    }
}

// Each leaf takes some microseconds in a virtual machine.
TEST(Machine, ItIsAskedOnce)
{
    onEveryMachine([](const Recorded&) {
        u64 word = 0;
        int bytes = 0;
        ippGetCpuFeatures(&word, nullptr);
        const int asked = machine::leavesAsked();
        ippGetCpuFeatures(&word, nullptr);
        ippGetMaxCacheSizeB(&bytes);
        machine::firstCall();
        ippSetCpuFeatures(7);
        ippSetCpuFeatures(7 | doNotCompare);
        EXPECT_EQ(machine::leavesAsked(), asked);
    });
}

TEST(Machine, RegistersAreThoseOfTheLeafAskedFor)
{
    machine::start(recorded("Core i7-4770"));
    u64 word = 0x616F666E69746567;
    u32 regs[4] = {4, 7, 3, 7};
    EXPECT_EQ(ippGetCpuFeatures(&word, regs), 0);
    EXPECT_EQ(word, recorded("Core i7-4770").word);
    EXPECT_EQ(regs[0], 0x1C03C163u);
    EXPECT_EQ(regs[1], 0x03C0003Fu);
    EXPECT_EQ(regs[2], 0x1FFFu);
    EXPECT_EQ(regs[3], 6u);
    EXPECT_EQ(ippGetCpuFeatures(&word, regs), 0); // any other word: leaf 1
    EXPECT_EQ(regs[0], 0x306C3u);
    EXPECT_EQ(regs[1], 0x00100800u);
    EXPECT_EQ(regs[2], 0x7FFAFBBFu);
    EXPECT_EQ(regs[3], 0xBFEBFBFFu);
    machine::start(recorded("no CPUID"));
    EXPECT_EQ(ippGetCpuFeatures(&word, regs), 36);
    EXPECT_EQ(regs[0], 0x306C3u);
}

// Whatever comes first in a process, streaming starts where the largest cache ends.
TEST(Machine, StreamingStartsAfterAnyFirstSelection)
{
    const std::vector<void (*)()> selections = {machine::firstCall, [] { ippSetCpuFeatures(7); },
                                                [] { ippSetCpuFeatures(0x1F | doNotCompare); }};
    const std::vector<void (*)()> queries = {[] {},
                                             [] {
                                                 int bytes;
                                                 ippGetMaxCacheSizeB(&bytes);
                                             },
                                             [] {
                                                 u64 word = 0;
                                                 ippGetCpuFeatures(&word, nullptr);
                                             }};
    onEveryMachine([&](const Recorded& r) {
        for (const auto& select : selections)
            for (const auto& query : queries)
                for (const auto& selectAgain : selections) {
                    machine::start(r);
                    query();
                    EXPECT_EQ(machine::streamingStart(), ~size_t(0));
                    select();
                    const size_t expected =
                        r.cacheBytes > 0 ? size_t(std::clamp(r.cacheBytes, 1 << 20, 32 << 20)) : ~size_t(0);
                    EXPECT_EQ(machine::streamingStart(), expected);
                    selectAgain();
                    EXPECT_EQ(machine::streamingStart(), expected);
                    expectCache(r);
                }
    });
}

TEST(Machine, DenormalsAreZerosIsRefusedWhereItIsMissing)
{
    const unsigned before = _mm_getcsr();
    onEveryMachine([before](const Recorded& r) {
        const bool has = r.identifiable && r.mxcsrMask & 0x40;
        EXPECT_EQ(ippSetDenormAreZeros(1), has ? 0 : -9998);
        EXPECT_EQ(_mm_getcsr() & 0x40, has ? 0x40u : 0u);
        EXPECT_EQ(ippSetDenormAreZeros(0), has ? 0 : -9998);
        EXPECT_EQ(_mm_getcsr() & 0x40, 0u);
    });
    _mm_setcsr(before);
}
