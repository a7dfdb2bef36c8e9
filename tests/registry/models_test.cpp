// The tests of described functions, themselves tested: small functions of every kind are built as they are described,
// and every fault that one of them can have is found.
#include "models.h"
#include "variants/streams.h"
#include <gtest/gtest.h>

namespace {

using registry::Arguments;
using registry::Function;

// Whatever is wrong with some calls of the function, alone and in streams; empty: nothing.
std::string wrong(const Function& f)
{
    registry::Random random(3);
    support::Stage stage;
    for (int round = 0; round < 100; ++round) {
        Arguments a = registry::build(f, random, 1 + random.below(30), registry::Pattern::tame, random.bits());
        if (!a.valid()) return "no valid arguments";
        std::vector<std::vector<uint8_t>> expected;
        for (bool atEnd : {true, false}) {
            stage.put(a, {atEnd, static_cast<int>(random.below(64))});
            const auto answer = stage.call(a, support::entryOf(f));
            if (f.result == registry::Result::status && answer.status != 0)
                return "status " + std::to_string(answer.status);
            if (!stage.strayWrite(a).empty()) return "written beside " + stage.strayWrite(a);
            for (int i = 0; i < f.argCount; ++i) {
                if (!support::isOutput(f.args[i])) continue;
                if (atEnd) {
                    expected.emplace_back(stage.now(i), stage.now(i) + a.bytes(i));
                } else if (support::difference(a, i, expected.front().data(), stage.now(i)) != "") {
                    return "another " + std::string(f.args[i].name);
                } else {
                    expected.erase(expected.begin());
                }
            }
        }
    }
    variants::Streams streams(f);
    for (int round = 0; registry::takesState(f) && round < 20; ++round) {
        const std::string how = streams.difference(round);
        if (!how.empty()) return how;
    }
    return "";
}

std::string wrongWith(Fault chosen, const char* name)
{
    fault = chosen;
    const std::string how = wrong(*registry::find(name));
    fault = Fault::none;
    return how;
}

} // namespace

TEST(Models, AreCalledAsTheyAreDescribed)
{
    for (const Function& f : registry::functions()) EXPECT_EQ(wrong(f), "") << f.name;
    EXPECT_EQ(openHandles, 0) << "each handle is released once";
}

TEST(Models, FaultsAreFound)
{
    EXPECT_NE(wrongWith(Fault::keepsTaps, "modelTaps"), "");
    EXPECT_NE(wrongWith(Fault::stateDiffers, "modelFilter").find(", call 1: pDst[0]"), std::string::npos);
    EXPECT_EQ(wrongWith(Fault::writesGap, "modelImage"), "written beside pDst");
    EXPECT_EQ(wrongWith(Fault::readsGap, "modelImage"), "another pDst");
}

TEST(Models, ARefusedCallLeavesItsState)
{
    registry::Random random(4);
    support::Stage stage;
    for (Fault chosen : {Fault::none, Fault::writesRefused}) {
        fault = chosen;
        Arguments a = registry::build(*registry::find("modelFilter"), random, 9, registry::Pattern::tame, 0);
        stage.put(a, {});
        a.values[2].i = 0;
        EXPECT_EQ(stage.call(a, support::entryOf(a.f)).status, ippStsSizeErr);
        EXPECT_EQ(stage.changed(a), chosen == Fault::none ? "" : "pState");
    }
    fault = Fault::none;
}

TEST(ModelsDeathTest, MemoryOfAStateIsGuarded)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(wrongWith(Fault::writesBehind, "modelFilter"), testing::ExitedWithCode(3), "FAULT.*modelFilter");
    EXPECT_EXIT(wrongWith(Fault::writesConst, "modelTaps"), testing::ExitedWithCode(3), "FAULT.*modelTaps");
}

// A state of each size, from each maker, with and without what may be null.
TEST(Models, ArgumentsAreOfEveryKind)
{
    registry::Random random(5);
    int made[2] = {}, without = 0, ranges = 0;
    for (int round = 0; round < 300; ++round) {
        const Arguments a = registry::build(*registry::find("modelFilter"), random, 9, registry::Pattern::tame, 0);
        const Arguments& maker = *a.made[3];
        const bool ones = std::string(maker.f.name) == "modelInitOnes";
        ++made[ones];
        const long long order = maker.values[ones ? 1 : 2].i;
        ASSERT_TRUE(ones ? order == 3 : order >= 1);
        ASSERT_EQ(a.extent[4], 16 * order);
        without += !ones && maker.null[5];
        ASSERT_FALSE(!ones && maker.null[5] && order > 2) << "a null buffer where it is needed";
        const Arguments up = registry::build(*registry::find("modelUp"), random, 9, registry::Pattern::tame, 0);
        ASSERT_EQ(up.extent[2], 9 * up.values[3].i);
        ranges |= 1 << up.values[3].i;
        const Arguments some =
            registry::build(*registry::find("modelPositive"), random, 50, registry::Pattern::tame, 0);
        ASSERT_LT(some.extent[1], 50);
    }
    EXPECT_GT(made[0], 50);
    EXPECT_GT(made[1], 50);
    EXPECT_GT(without, 0);
    EXPECT_EQ(ranges, 0x3E) << "factors from 1 to 5";
}
