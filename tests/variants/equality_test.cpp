// Every body equals px bit for bit, in guarded memory, wherever the arrays lie and whatever lay there before.
#include "support/stage.h"
#include <cstdlib>
#include <gtest/gtest.h>

namespace {

using registry::Arguments;
using registry::Function;
using registry::Pattern;

std::vector<long long> lengths()
{
    std::vector<long long> all;
    for (long long n = 0; n <= 67; ++n) all.push_back(n);
    for (long long n : {127, 128, 129, 130, 255, 256, 257, 1023, 1024, 1025, 4095, 4096, 4097}) all.push_back(n);
    return all;
}

int rounds(long long length)
{
    const char* factor = std::getenv("SIG5D_ROUNDS"); // more rounds before a release
    return (length <= 67 ? 32 : length < 1000 ? 8 : 2) * (factor ? std::atoi(factor) : 1);
}

constexpr uint64_t prefills[] = {0, ~uint64_t(0), 0x7FF4000000000001}; // the last is a signalling NaN

using Outputs = std::vector<std::vector<uint8_t>>;

Outputs outputsOf(const Arguments& a, const support::Stage& stage)
{
    Outputs all(static_cast<size_t>(a.f.argCount));
    for (int i = 0; i < a.f.argCount; ++i)
        if (support::isOutput(a.f.args[i]) && !a.null[i])
            all[static_cast<size_t>(i)].assign(stage.now(i), stage.now(i) + a.bytes(i));
    return all;
}

class Equality
{
public:
    explicit Equality(const Function& f) : f_(f), entry_(support::entryOf(f)), bodies_(support::bodiesOf(f)) {}

    void run()
    {
        for (long long n : lengths())
            for (int round = 0; round < rounds(n) && !::testing::Test::HasFailure(); ++round) compare(n, round);
    }
    long long calls() const { return calls_; }

private:
    void compare(long long n, int round)
    {
        const auto pattern = static_cast<Pattern>(round % static_cast<int>(Pattern::count));
        registry::Random random(static_cast<uint64_t>(n) * 1000 + static_cast<uint64_t>(round));
        Arguments a = registry::build(f_, random, n, pattern, prefills[round % 3]);
        if (!a.valid()) return; // a length that the function refuses: its status is tested elsewhere

        support::force(bodies_[0]);
        stage_.put(a, {true, 0});
        const auto expected = call(a);
        const Outputs outputs = outputsOf(a, stage_);

        for (const support::Variant& v : bodies_) {
            support::force(v);
            for (bool atEnd : {true, false}) {
                const int offset = (round * 2 + atEnd) % 64;
                Arguments again = a;
                for (int i = 0; i < f_.argCount; ++i) again.prefill(i, prefills[(round + 1) % 3]); // of no influence
                stage_.put(again, {atEnd, offset});
                check(again, v, call(again), expected, outputs, nullptr);
            }
            for (int k = 0; k < f_.inPlaceCount; ++k) {
                if (a.null[f_.inPlace[k].source] || a.null[f_.inPlace[k].destination]) continue;
                stage_.put(a, {true, round % 32}, &f_.inPlace[k]);
                check(a, v, call(a), expected, outputs, &f_.inPlace[k]);
            }
        }
    }

    registry::Answer call(Arguments& a)
    {
        ++calls_;
        return stage_.call(a, entry_);
    }

    void check(const Arguments& a, const support::Variant& v, const registry::Answer& found,
               const registry::Answer& expected, const Outputs& outputs, const registry::InPlace* shared)
    {
        SCOPED_TRACE(support::nameOf(f_) + " in " + v.code +
                     (shared ? std::string() + " in place, " + f_.args[shared->destination].name + " = " +
                                   f_.args[shared->source].name
                             : ""));
        for (int i = 0; i < f_.argCount; ++i)
            SCOPED_TRACE(std::string(f_.args[i].name) + " " + std::to_string(a.values[i].i) + " extent " +
                         std::to_string(a.extent[i]));
        ASSERT_EQ(found.status, expected.status);
        ASSERT_EQ(found.intrusion, "");
        ASSERT_EQ(stage_.strayWrite(a), "");
        if (f_.result == registry::Result::status && found.status < 0 && !shared) {
            ASSERT_EQ(stage_.changed(a), "") << "a refused call wrote";
            return;
        }
        for (int i = 0; i < f_.argCount; ++i) {
            if (outputs[static_cast<size_t>(i)].empty()) continue;
            ASSERT_EQ(support::difference(a, i, outputs[static_cast<size_t>(i)].data(), stage_.now(i)), "");
        }
    }

    const Function& f_;
    registry::Entry entry_;
    std::vector<support::Variant> bodies_;
    support::Stage stage_;
    long long calls_ = 0;
};

} // namespace

TEST(Variants, TheForcedOneIsTheOneThatRuns)
{
    for (const support::Variant& v : support::supported()) {
        support::force(v);
        EXPECT_STREQ(support::current().code, v.code);
    }
    EXPECT_GE(support::supported().size(), 2u) << "nothing to compare on this processor";
}

TEST(Variants, EqualPxBitForBit)
{
    long long calls = 0;
    for (const Function& f : registry::functions()) {
        if (!*f.bodies || !support::generallyCallable(f) || f.result == registry::Result::pointer) continue;
        Equality equality(f);
        equality.run();
        calls += equality.calls();
        if (HasFailure()) break;
    }
    std::printf("%lld guarded calls\n", calls);
}
