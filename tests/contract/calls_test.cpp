// A call is invisible to its caller: every function, form and variant, from four stack alignments.
#include "support/stage.h"
#include <gtest/gtest.h>

namespace {

using registry::Answer;
using registry::Arguments;
using registry::Function;

struct Tally {
    int functions = 0, forms = 0;
    long long answered = 0, refused = 0;
    std::string untested;
};

class Probe
{
public:
    Probe(const Function& f, support::Stage& stage, Tally& tally) : f_(f), stage_(stage), tally_(tally)
    {
        if (f.index == registry::IndexForm::automatic) indexed_ = support::find((std::string(f.name) + "_Idx").c_str());
    }

    void run()
    {
        registry::Random random(7);
        for (int phase : {0, 4, 8, 12}) {
            if (sizeof(void*) == 8 && phase % 8) continue; // pushes are 8 bytes there
            for (long long length : {5, 67}) {
                Arguments a = registry::build(f_, random, length, registry::Pattern::tame, 0);
                bothForms(a, phase, true);
                for (auto& v : a.values) v.p = nullptr; // the way out through the first check
                if (f_.checkCount) bothForms(a, phase, false);
            }
        }
    }
    int forms() const { return indexed_ ? 2 : 1; }

private:
    void bothForms(Arguments& a, int phase, bool placed)
    {
        if (placed) stage_.put(a, {});
        judge(a, stage_.call(a, support::entryOf(f_), phase), phase);
        if (!indexed_) return;
        if (placed) stage_.put(a, {});
        const std::vector<int> zeros(static_cast<size_t>(f_.argCount));
        judge(a, stage_.callIndexed(a, indexed_, a.values.data(), zeros.data(), phase), phase);
    }

    void judge(const Arguments& a, const Answer& answer, int phase)
    {
        const bool refused = f_.result == registry::Result::status && answer.status < 0;
        EXPECT_EQ(answer.intrusion, "") << support::nameOf(f_) << " phase " << phase;
        EXPECT_TRUE(refused == !a.valid() || (refused && support::mayRefuse(f_)))
            << support::nameOf(f_) << " answers " << answer.status;
        ++(refused ? tally_.refused : tally_.answered);
    }

    const Function& f_;
    support::Stage& stage_;
    Tally& tally_;
    registry::Entry indexed_ = nullptr;
};

} // namespace

TEST(Calls, LeaveRegistersStackAndModesAsTheyFoundThem)
{
    support::Stage stage;
    Tally tally;
    for (const Function& f : registry::functions()) {
        if (!support::generallyCallable(f)) {
            tally.untested += std::string(" ") + f.name;
            continue;
        }
        const long long before = tally.answered;
        Probe probe(f, stage, tally);
        const auto variants = f.dispatched ? support::supported() : std::vector<support::Variant>{support::variants[0]};
        for (const support::Variant& v : variants) {
            support::force(v);
            probe.run();
        }
        EXPECT_GE(tally.answered - before, static_cast<long long>(variants.size()) * 2)
            << f.name << " is hardly tested";
        ++tally.functions;
        tally.forms += probe.forms();
    }
    std::printf("%d functions, %d forms: %lld calls answered, %lld refused; not tested here:%s\n", tally.functions,
                tally.forms, tally.answered, tally.refused, tally.untested.c_str());
    EXPECT_GE(tally.forms, 1000);
    EXPECT_GE(tally.answered, tally.refused / 4);
}
