// A call is invisible to its caller: every function, form and variant, from four stack alignments.
#include "support/stage.h"
#include <gtest/gtest.h>

namespace {

using registry::Arguments;
using registry::Function;

void probe(const Function& f, support::Stage& stage)
{
    registry::Random random(7);
    for (int phase : {0, 4, 8, 12}) {
        if (sizeof(void*) == 8 && phase % 8) continue; // pushes are 8 bytes there
        for (long long length : {5, 67}) {
            Arguments a = registry::build(f, random, length, registry::Pattern::tame, 0);
            stage.put(a, {});
            const auto answer = stage.call(a, support::entryOf(f), phase);
            EXPECT_EQ(answer.intrusion, "") << support::nameOf(f) << " phase " << phase;
            for (auto& v : a.values) v.p = nullptr; // the way out through the first check
            if (f.checkCount) {
                EXPECT_EQ(stage.call(a, support::entryOf(f), phase).intrusion, "") << support::nameOf(f);
            }
        }
    }
}

} // namespace

TEST(Calls, LeaveRegistersStackAndModesAsTheyFoundThem)
{
    support::Stage stage;
    int probed = 0;
    for (const Function& f : registry::functions()) {
        if (!support::generallyCallable(f)) continue;
        const auto variants = f.dispatched ? support::supported() : std::vector<support::Variant>{support::variants[0]};
        for (const support::Variant& v : variants) {
            support::force(v);
            probe(f, stage);
            ++probed;
        }
    }
    RecordProperty("probed", probed);
    EXPECT_GT(probed, 100);
}
