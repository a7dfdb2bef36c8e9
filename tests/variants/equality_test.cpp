// Every body equals px bit for bit.
#include "variants/equality.h"
#include <gtest/gtest.h>
#include <set>

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
    const variants::Tally tally = variants::compareBodies({});
    if (variants::restricted()) return;
    EXPECT_GE(tally.functions, 500);
    EXPECT_GE(tally.inPlace, tally.calls / 10);
}

TEST(Variants, EqualPxForASpecialValueAtEveryPosition)
{
    variants::Pass pass;
    pass.specialValues = true;
    const variants::Tally tally = variants::compareBodies(pass);
    EXPECT_TRUE(tally.functions >= 500 || variants::restricted()) << tally.functions;
}

// What the placements promise: whatever a body does wrong with memory, it meets the place that shows it.
TEST(Variants, MeetEveryPlacement)
{
    for (int arguments = 1; arguments <= 9; ++arguments)
        for (int i = 0; i < arguments; ++i) {
            std::set<int> offsets[2], apart;
            for (long long n = 0; n <= 67; ++n) {
                int flush[2] = {}, flushAlone[2] = {};
                for (int round = 0; round < 32; ++round)
                    for (int side : {0, 1}) {
                        const support::Places p = variants::placesOf(arguments, n, round, side);
                        const support::Place& mine = p[static_cast<size_t>(i)];
                        const support::Place& next = p[static_cast<size_t>((i + 1) % arguments)];
                        offsets[mine.atEnd].insert(mine.offset);
                        apart.insert((mine.offset - next.offset + 64) % 64);
                        flush[mine.atEnd] += mine.offset == 0;
                        flushAlone[mine.atEnd] += mine.offset == 0 && (arguments == 1 || next.offset != 0);
                    }
                for (int end : {0, 1}) ASSERT_TRUE(flush[end] >= 4 && flushAlone[end] >= 1) << n << ' ' << i;
            }
            EXPECT_EQ(offsets[0].size(), 64u);
            EXPECT_EQ(offsets[1].size(), 64u);
            if (arguments > 1) {
                EXPECT_EQ(apart.size(), 64u);
            }
        }
}
