// Calls that meet: one is stopped at every place where it looks at what the threads share, another runs from beginning
// to end there, and a third one at every place after that. Whatever the order, one selection stands at the end.
#include "frame/features.h"
#include "machine.h"
#include "sig5d.h"
#include <algorithm>
#include <gtest/gtest.h>

using namespace sig5d;

namespace {

constexpr u64 doNotCompare = u64(1) << 63;

struct Call {
    const char* name;
    u64 selected; // the word that it enables; 0: it is no selection
    void (*run)();
};

const Recorded* processor;

void select(u64 request)
{
    ippSetCpuFeatures(request);
    // It is done: its selection stands, or one that another call has begun since.
    EXPECT_EQ(machine::variant(), sig5d::select(machine::enabled()).variant);
}

const Call calls[] = {
    {"first call", 0,
     [] {
         machine::firstCall();
         EXPECT_GE(machine::variant(), 0);
     }},
    {"selection of w7", 7, [] { select(7); }},
    {"selection of p8", 0xDF, [] { select(0xDF); }},
    {"unchecked selection of s8", 0x3F, [] { select(0x3F | doNotCompare); }},
    {"cache size", 0,
     [] {
         int bytes = 0;
         EXPECT_EQ(ippGetMaxCacheSizeB(&bytes), processor->cacheBytes > 0 ? 0 : 37);
         EXPECT_EQ(bytes, processor->cacheBytes);
     }},
    {"features", 0,
     [] {
         u64 word = 0;
         EXPECT_EQ(ippGetCpuFeatures(&word, nullptr), 0);
         EXPECT_TRUE(word == processor->word || word == 3 || word == 7 || word == 0xDF || word == 0x3F ||
                     word == processor->enabled)
             << std::hex << word;
     }},
};

// What must hold when all of them are done.
void expectOneSelection(const std::vector<Call>& done)
{
    std::vector<u64> allowed;
    bool first = false;
    for (const Call& c : done) {
        if (c.selected) allowed.push_back(c.selected);
        first |= c.run == calls[0].run;
    }
    // What a caller selects is not replaced by what the first call finds.
    if (allowed.empty()) allowed.push_back(first ? processor->enabled : 3);
    const bool selected = first || allowed[0] != 3;
    const u64 word = machine::enabled();
    EXPECT_TRUE(std::count(allowed.begin(), allowed.end(), word)) << std::hex << word;
    EXPECT_EQ(machine::variant(), selected ? sig5d::select(word).variant : -1);
    const bool streams = selected && processor->cacheBytes > 0;
    EXPECT_EQ(machine::streamingStart(), streams ? size_t(processor->cacheBytes) : ~size_t(0));
    calls[4].run();
}

void meet(const Call& a, const Call& b)
{
    for (int place = 1;; ++place) {
        machine::start(*processor);
        const int passed = machine::run(a.run, {{place, b.run}});
        if (place > passed) return; // a was done before
        SCOPED_TRACE(std::string(a.name) + ", interrupted at " + std::to_string(place) + " by " + b.name);
        expectOneSelection({a, b});
        if (testing::Test::HasFailure()) return;
    }
}

void meet(const Call& a, const Call& b, const Call& c)
{
    for (int place = 1;; ++place)
        for (int later = place + 1;; ++later) {
            machine::start(*processor);
            const int passed = machine::run(a.run, {{place, b.run}, {later, c.run}});
            if (place > passed) return;
            if (later > passed) break;
            SCOPED_TRACE(std::string(a.name) + ", interrupted at " + std::to_string(place) + " by " + b.name + ", at " +
                         std::to_string(later) + " by " + c.name);
            expectOneSelection({a, b, c});
            if (testing::Test::HasFailure()) return;
        }
}

class Interleaving : public testing::TestWithParam<const char*>
{
    void SetUp() override { processor = &recorded(GetParam()); }
};
INSTANTIATE_TEST_SUITE_P(Machines, Interleaving,
                         testing::Values("Core i7-4770", "Core i7-2600, operating system", "Pentium M"));

} // namespace

TEST_P(Interleaving, OfTwoCalls)
{
    for (const Call& a : calls)
        for (const Call& b : calls) meet(a, b);
}

TEST_P(Interleaving, OfThreeCalls)
{
    for (const Call& a : calls)
        for (const Call& b : calls)
            for (const Call& c : calls) meet(a, b, c);
}
