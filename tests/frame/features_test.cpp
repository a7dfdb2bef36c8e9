#include "sig5d.h"
#include "support/library.h"
#include <gtest/gtest.h>

TEST(Features, EnabledWordIsThreeBeforeAnySelection) { EXPECT_EQ(ippGetEnabledCpuFeatures(), 3u); }

TEST(Features, EveryForcedVariantIsTheOneThatAnswers)
{
    for (const support::Variant& v : support::variants) {
        support::force(v);
        EXPECT_STREQ(ippsGetLibVersion()->targetCpu, v.code);
    }
}
