#include "sig5d.h"
#include "support/sha256.h"
#include <cctype>
#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <sstream>
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

// Every code with its name, and its text where that is settled; a list that is not made from the description.
TEST(StatusText, AgreesWithTheWitness)
{
    std::ifstream header(SIG5D_SOURCE_DIR "/include/sig5d.h");
    const std::string published((std::istreambuf_iterator<char>(header)), {});
    std::ifstream file(SIG5D_SOURCE_DIR "/tests/frame/status_texts.tsv");
    std::set<int> codes;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') continue;
        std::istringstream cells(line);
        std::string code, name, text;
        ASSERT_TRUE(std::getline(cells, code, '\t') && std::getline(cells, name, '\t') && std::getline(cells, text));
        ASSERT_TRUE(codes.insert(std::stoi(code)).second) << line;
        const std::string found = ippGetStatusString(std::stoi(code));
        if (name == "-") {
            EXPECT_EQ(found, text);
        } else if (text == "-") {
            EXPECT_EQ(found.rfind(name + ": ", 0), 0u) << found << ", not " << name;
        } else {
            EXPECT_EQ(found, name + ": " + text);
        }
        if (name != "-") {
            EXPECT_NE(published.find(" " + name + " = " + code + ","), std::string::npos) << line;
        }
    }
    EXPECT_EQ(codes.size(), 281u);
    for (int code = -10100; code <= 200; ++code)
        if (!codes.count(code)) {
            EXPECT_EQ(ippGetStatusString(code), ippGetStatusString(-216)) << code;
        }
}

// Any change of a text is made on purpose and here as well.
TEST(StatusText, HasNotChanged)
{
    support::Sha256 sum;
    for (int code = -10000; code <= 100; ++code) {
        const char* text = ippGetStatusString(code);
        sum.add(text, std::strlen(text) + 1);
    }
    EXPECT_EQ(sum.hex(), "c44456ab5696fe0e6c659d6d22ea2f301d04dd2f814c8bfac6b41fcc5eb17c25");
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
