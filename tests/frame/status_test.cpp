#include "sig5d.h"
#include <gtest/gtest.h>

TEST(StatusText, NamesTheStatusAndFallsBackToUnknown)
{
    EXPECT_STREQ(ippGetStatusString(0), "ippStsNoErr: No errors.");
    EXPECT_STREQ(ippGetStatusString(-8), "ippStsNullPtrErr: Null pointer error.");
    EXPECT_STREQ(ippGetStatusString(-217), "ippStsUnknownStatusCodeErr: Unknown status code.");
    EXPECT_STREQ(ippGetStatusString(53), ippGetStatusString(-216));
    EXPECT_STREQ(ippGetStatusString(-9700), "Error at loading of %s library");
}
