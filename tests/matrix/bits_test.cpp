// Bit packing against bits set one by one; values through pointers.
#include "support/bytes.h"
#include <cmath>
#include <cstring>

using namespace support;

namespace {

// Elements of which some are zero, and some not zero in a single bit.
template <class T> std::vector<T> elements(size_t n)
{
    std::mt19937 random(7);
    std::vector<T> a(n);
    for (T& x : a) {
        const unsigned kind = random() % 4, bits = static_cast<unsigned>(random());
        x = kind == 0 ? T(0) : kind == 1 ? static_cast<T>(1ull << bits % (8 * sizeof(T))) : static_cast<T>(bits);
    }
    return a;
}

template <class T> void packs(const std::string& suffix)
{
    const std::vector<T> a = elements<T>(1100);
    for (unsigned offset : {0u, 1u, 3u, 33u})
        for (unsigned n = 0; n <= 1000; n += n < 140 ? 1 : 37)
            for (unsigned more : {0u, 1u, 7u}) {
                std::vector<unsigned> words((n + 31) / 32 + more + 1, 0xA5A5A5A5), expected = words;
                unsigned run = 32;
                for (unsigned w = 0; w + 1 < words.size(); ++w) {
                    const unsigned start = run * w;
                    if (start + run > n) run = start < n ? n - start : 0;
                    expected[w] = 0;
                    for (unsigned i = 0; i < run; ++i)
                        if (a[offset + start + i] != 0) expected[w] |= 1u << i;
                }
                callOwn("BitPack" + suffix, (const void*)a.data(), offset, offset + n, (void*)words.data(),
                        static_cast<unsigned>(words.size() - 1));
                ASSERT_EQ(words, expected) << suffix << ' ' << offset << ' ' << n << ' ' << more;
            }
}

template <class T> void unpacks(const std::string& suffix)
{
    std::mt19937 random(9);
    std::vector<unsigned> words(40);
    for (unsigned& w : words) w = static_cast<unsigned>(random());
    const std::vector<T> before = elements<T>(1200);
    for (unsigned offset : {0u, 1u, 3u, 33u})
        for (unsigned n = 0; n <= 1000; n += n < 140 ? 1 : 37) {
            std::vector<T> d = before, expected = before;
            for (unsigned i = 0; i < n; ++i) expected[offset + i] = static_cast<T>(words[i / 32] >> i % 32 & 1);
            callOwn("BitUnpack" + suffix, (const void*)words.data(), 0xDEADu, (void*)d.data(), offset, n);
            ASSERT_EQ(d, expected) << suffix << ' ' << offset << ' ' << n;
        }
}

Ipp64u bitsOf(const double* p)
{
    Ipp64u bits;
    std::memcpy(&bits, p, sizeof bits);
    return bits;
}

} // namespace

TEST(BitPack, EveryTypeOffsetAndLength)
{
    inEveryVariant([] {
        packs<unsigned char>("_8u");
        packs<short>("_16s");
        packs<int>("_32s");
    });
}

TEST(BitPack, NothingIsReadWhenTheRunBeginsBehindItsEnd)
{
    inEveryVariant([] {
        unsigned words[3] = {7, 7, 7};
        callOwn("BitPack_32s", (const void*)nullptr, 9u, 5u, (void*)words, 2u);
        EXPECT_TRUE(words[0] == 0 && words[1] == 0 && words[2] == 7);
    });
}

TEST(BitUnpack, EveryTypeOffsetAndLength)
{
    inEveryVariant([] {
        unpacks<unsigned char>("_8u");
        unpacks<short>("_16s");
        unpacks<int>("_32s");
    });
}

TEST(PointerAccess, MovesAllBits)
{
    const Ipp64u signalling = 0xFFF4000000012345, quiet = 0x7FF8000000054321;
    double nan, d = 1;
    std::memcpy(&nan, &signalling, 8);
    GetValFromPtr(&nan, &d);
    EXPECT_EQ(bitsOf(&d), signalling);
    std::memcpy(&nan, &quiet, 8);
    d = GetValFromPtrf(&nan);
    EXPECT_EQ(bitsOf(&d), quiet);
    SetValToPtr(&d, -0.0);
    EXPECT_EQ(bitsOf(&d), Ipp64u(1) << 63);

    Ipp64fc z = {0, 3}, out;
    std::memcpy(&z.re, &signalling, 8);
    GetValcFromPtr(&z, &out);
    EXPECT_EQ(std::memcmp(&z, &out, sizeof z), 0);
    z.re = 2;
    SetValcToPtr(&out, &z);
    EXPECT_EQ(std::memcmp(&z, &out, sizeof z), 0);

    int i = 0, value = -5;
    GetValIFromPtr(&value, &i);
    EXPECT_EQ(i, -5);
    SetValIToPtr(&i, 0x7FFFFFFF);
    EXPECT_EQ(i, 0x7FFFFFFF);
}
