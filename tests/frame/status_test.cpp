#include "sig5d.h"
#include <cctype>
#include <cstring>
#include <gtest/gtest.h>
#include <set>
#include <string>

TEST(StatusText, NamesTheStatusAndFallsBackToUnknown)
{
    EXPECT_STREQ(ippGetStatusString(0), "ippStsNoErr: No errors.");
    EXPECT_STREQ(ippGetStatusString(-8), "ippStsNullPtrErr: Null pointer error.");
    EXPECT_STREQ(ippGetStatusString(-3), "ippStsSAReservedErr3: Unknown/unspecified error, -3.");
    EXPECT_STREQ(ippGetStatusString(-1), "ippStsSAReservedErr1: Unknown/unspecified error, -1.");
    EXPECT_STREQ(ippGetStatusString(-9999),
                 "ippStsNotSupportedModeErr: The requested mode is currently not supported.");
    EXPECT_STREQ(ippGetStatusString(-9702), "No shared libraries were found in the Waterfall procedure");
    EXPECT_STREQ(ippGetStatusString(-9701), "No DLLs were found in the Waterfall procedure");
    EXPECT_STREQ(ippGetStatusString(-9700), "Error at loading of %s library");
    EXPECT_STREQ(ippGetStatusString(-216), "ippStsUnknownStatusCodeErr: Unknown status code.");
    for (int unknown : {-217, 53, -165, -68, -10000, 2147483647, -2147483647 - 1})
        EXPECT_EQ(ippGetStatusString(unknown), ippGetStatusString(-216)) << unknown;
}

// Lookup finds 281 codes; each has a name and a sentence of its own.
TEST(StatusText, EveryCodeHasItsOwnSentence)
{
    std::set<std::string> names, sentences;
    int found = 0;
    for (int code = -10000; code <= 100; ++code) {
        const char* text = ippGetStatusString(code);
        if (code != -216 && text == ippGetStatusString(-216)) continue;
        ++found;
        for (const char* c = text; *c; ++c) EXPECT_TRUE(*c >= ' ' && *c <= '~') << text;
        if (code >= -9702 && code <= -9700) continue;
        const char* colon = std::strstr(text, ": ");
        ASSERT_TRUE(colon) << text;
        const std::string sentence = colon + 2;
        EXPECT_EQ(std::strncmp(text, "ippSts", 6), 0) << text;
        EXPECT_TRUE(names.insert(std::string(text, colon)).second) << text;
        EXPECT_TRUE(sentences.insert(sentence).second) << text;
        EXPECT_GE(sentence.size(), 10u) << text;
        EXPECT_EQ(sentence.back(), '.') << text;
        EXPECT_TRUE(std::isupper(static_cast<unsigned char>(sentence[0]))) << text;
    }
    EXPECT_EQ(found, 281);
}
