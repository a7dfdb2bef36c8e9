// States that described functions make: what one variant has made serves every other, and calls that go on with a stream
// give the same bits in all of them. A state has just the memory that was asked for, next to an inaccessible page, at any
// address, and is read-only where a call must not change it.
#include "support/stage.h"
#include <gtest/gtest.h>
#include <set>

namespace {

using registry::Arguments;
using registry::Function;
using support::Variant;

constexpr int callsOfStream = 3;

struct Step {
    registry::Answer answer;
    std::vector<std::vector<uint8_t>> outputs;
};

class Streams
{
public:
    explicit Streams(const Function& f) : f_(f), entry_(support::entryOf(f)) {}

    void compare(int round)
    {
        registry::Random random(static_cast<uint64_t>(round));
        const auto pattern = round % 4 ? registry::Pattern::tame : registry::Pattern::adversarial;
        std::vector<Arguments> calls = {registry::build(f_, random, 1 + random.below(80), pattern, random.bits())};
        if (!calls[0].valid()) return;
        for (int k = 1; registry::updatesState(f_) && k < callsOfStream; ++k) {
            calls.push_back(calls.back());
            registry::further(calls.back(), random, pattern);
        }
        const auto& variants = support::supported();
        const std::vector<Step> expected = run(calls, variants[0], variants[0], {true, 0});
        for (const Variant& maker : variants)
            for (const Variant& user : variants) {
                const bool atEnd = random.oneIn(2);
                const int offset = random.oneIn(4) ? 0 : static_cast<int>(random.below(64));
                const auto found = run(calls, maker, user, {atEnd, offset});
                SCOPED_TRACE(support::nameOf(f_) + " made in " + maker.code + ", used in " + user.code + ", offset " +
                             std::to_string(offset) + (atEnd ? " from the end" : " from the start") + ", round " +
                             std::to_string(round));
                for (size_t k = 0; k < calls.size(); ++k) same(calls[k], expected[k], found[k], k);
                if (testing::Test::HasFailure()) return;
            }
    }
    long long calls() const { return calls_; }

private:
    std::vector<Step> run(std::vector<Arguments>& calls, const Variant& maker, const Variant& user, support::Place place)
    {
        support::force(user);
        stage_.makeStatesIn(&maker);
        std::vector<Step> steps;
        for (size_t k = 0; k < calls.size(); ++k) {
            Arguments& a = calls[k];
            if (k) {
                a.values = calls[0].values;
                stage_.refresh(a);
            } else {
                stage_.put(a, place);
            }
            Step step;
            step.answer = stage_.call(a, entry_);
            EXPECT_EQ(step.answer.intrusion, "");
            EXPECT_EQ(stage_.strayWrite(a), "");
            for (int i = 0; i < f_.argCount; ++i) {
                step.outputs.emplace_back();
                if (support::isOutput(f_.args[i]) && stage_.now(i))
                    step.outputs.back().assign(stage_.now(i), stage_.now(i) + a.bytes(i));
            }
            steps.push_back(std::move(step));
            ++calls_;
        }
        return steps;
    }

    void same(const Arguments& a, const Step& expected, const Step& found, size_t call)
    {
        ASSERT_EQ(expected.answer.status, found.answer.status) << "call " << call;
        const bool refused = f_.result == registry::Result::status && found.answer.status < 0;
        ASSERT_FALSE(refused) << "call " << call << ": " << found.answer.status;
        for (int i = 0; i < f_.argCount; ++i) {
            const auto& bytes = expected.outputs[static_cast<size_t>(i)];
            if (bytes.empty()) continue;
            ASSERT_EQ(support::difference(a, i, bytes.data(), found.outputs[static_cast<size_t>(i)].data()), "")
                << "call " << call;
        }
    }

    const Function& f_;
    registry::Entry entry_;
    support::Stage stage_;
    long long calls_ = 0;
};

} // namespace

TEST(States, ServeAllVariantsAndContinueTheirStreams)
{
    int functions = 0, updating = 0;
    long long calls = 0;
    for (const Function& f : registry::functions()) {
        if (!registry::takesState(f)) continue;
        Streams streams(f);
        for (int round = 0; round < 48 && !HasFailure(); ++round) streams.compare(round);
        EXPECT_GE(streams.calls(), 1000) << f.name << " is hardly tested";
        calls += streams.calls();
        ++functions;
        updating += registry::updatesState(f);
        if (HasFailure()) break;
    }
    std::printf("%d functions take states, %d change them: %lld calls\n", functions, updating, calls);
    EXPECT_GE(functions, 10);
    EXPECT_GE(updating, 4);
}

// What no function takes would never be looked at.
TEST(States, WhatIsMadeIsUsed)
{
    std::set<const Function*> used;
    for (const Function& f : registry::functions())
        for (int i = 0; i < f.argCount; ++i)
            for (int k = 0; k < f.args[i].makerCount; ++k) used.insert(registry::begin() + f.args[i].makers[k].function);
    for (const Function& f : registry::functions()) {
        if (f.makes.what >= 0) {
            EXPECT_TRUE(used.count(&f)) << f.name;
        }
        for (int i = 0; i < f.argCount; ++i) {
            const bool record = f.args[i].kind == registry::Kind::opaque || f.args[i].kind == registry::Kind::handle;
            EXPECT_FALSE(record && f.makes.what != i && !f.args[i].makers)
                << f.name << ": nobody knows where " << f.args[i].name << " comes from";
        }
    }
}
