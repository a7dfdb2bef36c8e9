// The clock frequency over a scripted clock.
#include "frame/frequency.h"
#include <gtest/gtest.h>

using namespace sig5d;

namespace {

// A clock that ticks along a script: the counter before and after each round, and the seconds that pass.
struct Script {
    u64 ticks[6];
    i64 seconds[9];
    int tick = 0, second = 0;
} script;

int play(const Script& s)
{
    script = s;
    const int mhz = averageMhz(
        {[] { return script.ticks[script.tick++ % 6]; }, [] { return script.seconds[script.second++ % 9]; }});
    EXPECT_EQ(script.tick, 6);
    EXPECT_EQ(script.second, 9);
    return mhz;
}

} // namespace

TEST(Frequency, IsTheAverageOfTwoWholeSecondsInSinglePrecision)
{
    // Exactly 2599.9999995 MHz; each second rounds to 2.6e9 in single precision.
    EXPECT_EQ(play({{7, 8, 10, 2600000010, 2600000020, 5200000019}, {5, 5, 6, 6, 6, 7, 7, 7, 8}}), 2600);
    // The sum is rounded, too: 2599.999872 MHz becomes 2600.
    EXPECT_EQ(play({{0, 1, 0, 2599999744, 0, 2600000000}, {5, 5, 6, 6, 6, 7, 7, 7, 8}}), 2600);
    EXPECT_EQ(play({{0, 9000000000, 0, 1000000000, 0, 2000000000}, {5, 5, 6, 6, 6, 7, 7, 7, 8}}), 1500);
    EXPECT_EQ(play({{0, 1, 0, 4999000000, 0, 5000900000}, {5, 5, 6, 6, 6, 7, 7, 7, 8}}), 4999); // above 32 bits
}

TEST(Frequency, AClockThatIsSetBackEndsTheRound)
{
    EXPECT_EQ(play({{0, 1, 0, 3000000000, 0, 3000000000}, {5, 5, 6, 6, 6, 2, 2, 2, 3}}), 3000);
}
