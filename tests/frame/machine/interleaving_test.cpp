// Calls that meet, each interrupted at every access to what the threads share: by another call that runs from beginning
// to end there, and a third one at every access after that; or by one that is interrupted itself. Whatever the order,
// one selection stands at the end.
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
    enum { query, first, selection, unchecked } kind;
    u64 word; // that a selection enables
    void run() const;
};
const Call calls[] = {
    {"first call", Call::first, 0},
    {"selection of w7", Call::selection, 7},
    {"selection of p8", Call::selection, 0xDF},
    {"unchecked selection of s8", Call::unchecked, 0x3F},
    {"unchecked selection of px", Call::unchecked, 3}, // the word that is enabled before any selection
    {"queries", Call::query, 0}};

const Recorded* processor;

// The word that requests are compared with: the processor's, or, from an unchecked selection on, what was enabled then.
enum class Compared { processor, enabled, either };

void expectAnswers(Compared with)
{
    int bytes = 0;
    EXPECT_EQ(ippGetMaxCacheSizeB(&bytes), processor->cacheBytes > 0 ? 0 : 37);
    EXPECT_EQ(bytes, processor->cacheBytes);
    u64 word = 0;
    EXPECT_EQ(ippGetCpuFeatures(&word, nullptr), 0);
    bool wasEnabled = word == processor->enabled;
    for (const Call& c : calls) wasEnabled |= c.word == word;
    EXPECT_TRUE((with != Compared::enabled && word == processor->word) || (with != Compared::processor && wasEnabled))
        << std::hex << word;
}

void Call::run() const
{
    switch (kind) {
    case query:
        return expectAnswers(Compared::either);
    case first:
        machine::firstCall();
        EXPECT_GE(machine::body(), 0);
        return;
    case selection:
        ippSetCpuFeatures(word);
        return;
    case unchecked:
        ippSetCpuFeatures(word | doNotCompare);
        return;
    }
}

// What must hold when all of them are done.
void expectOneSelection(const std::vector<Call>& done)
{
    std::vector<u64> allowed;
    bool first = false, overridden = false;
    for (const Call& c : done) {
        if (c.word) allowed.push_back(c.word);
        first |= c.kind == Call::first;
        overridden |= c.kind == Call::unchecked;
    }
    const bool selected = first || !allowed.empty();
    // What a caller selects is not replaced by what the first call finds.
    if (allowed.empty()) allowed.push_back(first ? processor->enabled : 3);
    const u64 word = machine::enabled();
    EXPECT_TRUE(std::count(allowed.begin(), allowed.end(), word)) << std::hex << word;
    EXPECT_EQ(machine::body(), selected ? sig5d::bodyFor(word, processor->beyond) : -1);
    const bool streams = selected && processor->cacheBytes > 0;
    EXPECT_EQ(machine::streamingStart(), streams ? size_t(std::min(processor->cacheBytes, 32 << 20)) : ~size_t(0));
    expectAnswers(overridden ? Compared::enabled : Compared::processor);
}

void meet(const Call& a, const Call& b)
{
    for (int place = 1;; ++place) {
        machine::start(*processor);
        const int passed = machine::run([&] { a.run(); }, {{place, [&] { b.run(); }}});
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
            const int passed = machine::run([&] { a.run(); }, {{place, [&] { b.run(); }}, {later, [&] { c.run(); }}});
            if (place > passed) return;
            if (later > passed) break;
            SCOPED_TRACE(std::string(a.name) + ", interrupted at " + std::to_string(place) + " by " + b.name + ", at " +
                         std::to_string(later) + " by " + c.name);
            expectOneSelection({a, b, c});
            if (testing::Test::HasFailure()) return;
        }
}

// Both stopped on their way, the one that came last is the last to go on.
void cross(const Call& a, const Call& b)
{
    for (int place = 1;; ++place)
        for (int later = 1;; ++later) {
            machine::start(*processor);
            calls[5].run(); // detection is done: selecting takes few accesses
            const bool stopped = machine::cross([&] { a.run(); }, place, [&] { b.run(); }, later);
            if (!stopped && later == 1) return;
            if (!stopped) break;
            SCOPED_TRACE(std::string(a.name) + ", stopped at " + std::to_string(place) + ", " + b.name + " at " +
                         std::to_string(later));
            expectOneSelection({a, b});
            if (testing::Test::HasFailure()) return;
        }
}

class Interruption : public testing::TestWithParam<const char*>
{
    void SetUp() override { processor = &recorded(GetParam()); }
};
INSTANTIATE_TEST_SUITE_P(Machines, Interruption,
                         testing::Values("Core i7-4770", "Core i7-2600, operating system", "Pentium M",
                                         "Xeon in a virtual machine"));

} // namespace

TEST_P(Interruption, ByAnother)
{
    for (const Call& a : calls)
        for (const Call& b : calls) meet(a, b);
}

TEST_P(Interruption, ByTwoOthers)
{
    for (const Call& a : calls)
        for (const Call& b : calls)
            for (const Call& c : calls) meet(a, b, c);
}

// On one machine, because changing threads takes long.
TEST(Interleaving, OfTwoThatBothStop)
{
    processor = &recorded("Core i7-2600, operating system");
    cross(calls[0], calls[1]);
    cross(calls[1], calls[0]);
    cross(calls[1], calls[3]);
}
