// Every status of every function: the first failing check decides, and a failure leaves no trace but where the
// description says that it may.
#include "states.h"
#include "support/stage.h"
#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>

namespace {

using registry::Arguments;
using registry::Function;
using registry::Kind;

// Turns a valid set of arguments into a bad one: some pointers null, some scalars out of range.
void spoil(Arguments& a, registry::Random& random)
{
    static const long long odd[] = {0, -1, 1, 2, 3, -7, 5, 100, 1024, 2147483647, -2147483647 - 1};
    for (int i = 0; i < a.f.argCount; ++i) {
        const registry::Arg& arg = a.f.args[i];
        if (!random.oneIn(3)) continue;
        if (arg.kind == Kind::scalar && registry::isFloating(arg.element)) {
            static const double numbers[] = {-1, 0, 1, 0.25, 0.5, 7, -1e300, 1e300};
            a.values[i].re = numbers[random.below(8)];
            a.values[i].im = random.oneIn(2) ? a.values[i].re : numbers[random.below(8)]; // also zero for both
        } else if (arg.kind == Kind::scalar) {
            a.values[i].i = registry::fitting(odd[random.below(sizeof odd / sizeof *odd)], arg.element);
        } else if (arg.domainSize && random.oneIn(2)) { // a number by pointer
            static const double numbers[] = {-1, 7, 1e9, -1e9};
            registry::setNumber(a, i, numbers[random.below(4)]);
            std::memcpy(a.values[i].p, a.content[i].data(), a.content[i].size());
        } else if (arg.kind != Kind::index) {
            a.values[i].p = nullptr;
        }
    }
    registry::askAgain(a.f, a.values);
}

int firstFailing(const Arguments& a)
{
    for (int k = 0; k < a.f.checkCount; ++k)
        if (a.f.checks[k].fails(a.values.data())) return k;
    return -1;
}

// The number of calls.
int tryFunction(const Function& f, support::Stage& stage)
{
    int calls = 0;
    registry::Random random(11);
    std::vector<int> met(static_cast<size_t>(f.checkCount));
    for (int attempt = 0; attempt < 400; ++attempt) {
        Arguments a = registry::build(f, random, 16, registry::Pattern::adversarial, 0xABABABABABABABABu);
        stage.put(a, {});
        spoil(a, random);
        const int failing = firstFailing(a);
        if (failing < 0) continue;
        ++met[static_cast<size_t>(failing)];
        const auto answer = stage.call(a, support::entryOf(f));
        ++calls;
        EXPECT_EQ(answer.status, f.checks[failing].status)
            << support::nameOf(f) << ": check " << f.checks[failing].text << ", attempt " << attempt;
        EXPECT_EQ(answer.intrusion, "") << support::nameOf(f);
        if (!f.checks[failing].afterWriting) {
            EXPECT_EQ(stage.changed(a), "") << support::nameOf(f) << " wrote in spite of " << f.checks[failing].text;
        }
        if (testing::Test::HasFailure()) break;
    }
    for (int k = 0; k < f.checkCount; ++k)
        EXPECT_GT(met[static_cast<size_t>(k)], 0)
            << support::nameOf(f) << ": never first to fail: " << f.checks[k].text;
    return calls;
}

bool among(int status, const int* all, int count) { return std::find(all, all + count, status) != all + count; }

// A block that no function has initialised.
void tryBlock(const Function& f, int block, support::Stage& stage)
{
    registry::Random random(13);
    Arguments a = registry::build(f, random, 16, registry::Pattern::tame, 0xABABABABABABABABu);
    stage.put(a, {});
    stage.wipe(block);
    EXPECT_EQ(stage.call(a, support::entryOf(f)).status, ippStsContextMatchErr) << support::nameOf(f);
    EXPECT_EQ(stage.changed(a), "") << support::nameOf(f);
}

template <class Try> void forEachBody(Try tryBody)
{
    for (const Function& f : registry::functions()) {
        if (f.result != registry::Result::status || !support::generallyCallable(f)) continue;
        for (const support::Variant& v :
             f.dispatched ? support::bodiesOf(f) : std::vector<support::Variant>{support::variants[0]}) {
            support::force(v);
            tryBody(f);
            if (testing::Test::HasFailure()) return;
        }
    }
}

} // namespace

TEST(Checks, FirstFailingOneDecidesAndNothingIsWritten)
{
    support::Stage stage;
    int bodies = 0;
    long long calls = 0;
    forEachBody([&](const Function& f) {
        if (!f.checkCount) return;
        calls += tryFunction(f, stage);
        ++bodies;
    });
    std::printf("%d bodies: %lld refused calls\n", bodies, calls);
    EXPECT_GE(bodies, 600);
    EXPECT_GE(calls, bodies * 100);
}

// What the arguments do not tell, such as a size that is no int, is among the failures.
TEST(Checks, AllPassedMeansSuccessAListedWarningOrFailure)
{
    support::Stage stage;
    forEachBody([&](const Function& f) {
        registry::Random random(17);
        int successes = 0;
        for (int attempt = 0; attempt < 40; ++attempt) {
            Arguments a = registry::build(f, random, 1 + random.below(40), registry::Pattern::adversarial, 0);
            if (!a.valid()) continue;
            stage.put(a, {});
            const int status = static_cast<int>(stage.call(a, support::entryOf(f)).status);
            EXPECT_TRUE(status == 0 || among(status, f.warnings, f.warningCount) ||
                        among(status, f.failures, f.failureCount))
                << support::nameOf(f) << ": " << status;
            successes += status >= 0;
        }
        EXPECT_GT(successes, 0) << support::nameOf(f);
    });
}

TEST(Checks, NeedABlockOfTheRightKind)
{
    support::Stage stage;
    int tried = 0;
    forEachBody([&](const Function& f) {
        if (!among(ippStsContextMatchErr, f.failures, f.failureCount)) return;
        for (int i = 0; i < f.argCount; ++i)
            if (f.args[i].kind == Kind::opaque && f.args[i].isConst) tryBlock(f, i, stage), ++tried;
    });
    EXPECT_GT(tried, 0);
}
