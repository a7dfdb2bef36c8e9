// Integer conversions, and statistics of bytes.
#include "support/bytes.h"
#include <algorithm>
#include <numeric>

using namespace support;

namespace {

template <class D, class S> void converts(const std::string& name, const std::vector<S>& source)
{
    std::vector<D> expected(source.size()), found(source.size());
    for (size_t i = 0; i < source.size(); ++i)
        expected[i] = static_cast<D>(sizeof(D) < sizeof(S) ? std::clamp<long>(source[i], 0, 255) : source[i]);
    for (size_t n = 0; n <= source.size(); n += n < 70 ? 1 : source.size() - n > 70 ? source.size() - 70 - n : 1) {
        std::fill(found.begin(), found.end(), D(99));
        callIndexed(name, source.data(), found.data(), static_cast<int>(n));
        ASSERT_TRUE(std::equal(found.begin(), found.begin() + static_cast<long>(n), expected.begin()))
            << name << ' ' << n;
        ASSERT_TRUE(std::all_of(found.begin() + static_cast<long>(n), found.end(), [](D x) { return x == D(99); }))
            << name;
    }
}

struct Statistics {
    Ipp8u min = 7, max = 7;
    Ipp32s minIndex = -1, maxIndex = -1, sum = -1;
    bool operator==(const Statistics& o) const
    {
        return min == o.min && max == o.max && minIndex == o.minIndex && maxIndex == o.maxIndex && sum == o.sum;
    }
};
std::ostream& operator<<(std::ostream& out, const Statistics& s)
{
    return out << +s.min << " at " << s.minIndex << ", " << +s.max << " at " << s.maxIndex << ", sum " << s.sum;
}

void check(const Bytes& a)
{
    const int n = static_cast<int>(a.size());
    Statistics expected;
    const auto low = std::min_element(a.begin(), a.end()), high = std::max_element(a.begin(), a.end());
    expected.min = n ? *low : 255;
    expected.max = n ? *high : 0;
    expected.minIndex = static_cast<Ipp32s>(low - a.begin());
    expected.maxIndex = static_cast<Ipp32s>(high - a.begin());
    expected.sum = static_cast<Ipp32s>(std::accumulate(a.begin(), a.end(), 0ull));

    const Ipp8u* p = a.data();
    Statistics all, single;
    callIndexed("MaxMinIndx_8u", p, n, &all.min, &all.minIndex, &all.max, &all.maxIndex);
    callIndexed("MinIndx_8u", p, n, &single.min, &single.minIndex);
    callIndexed("MaxIndx_8u", p, n, &single.max, &single.maxIndex);
    callIndexed("Sum_8u32s_SFS", p, n, &all.sum);
    single.sum = all.sum;
    EXPECT_EQ(all, expected) << n;
    EXPECT_EQ(single, expected) << n;
    Ipp8u min = 7, max = 7, bothMin = 7, bothMax = 7;
    callIndexed("Max_8u", p, n, &max);
    callIndexed("Min_8u", p, n, &min);
    callIndexed("MaxMin_8u", p, n, &bothMin, &bothMax);
    EXPECT_EQ(max, expected.max) << n;
    EXPECT_EQ(min, expected.min) << n;
    EXPECT_EQ(bothMax, expected.max) << n;
    EXPECT_EQ(bothMin, expected.min) << n;
}

// Few values, so that extremes come several times; or one extreme at a time in a plain.
Bytes levels(size_t n, unsigned count, unsigned seed)
{
    Bytes b = noise(n, seed);
    for (auto& x : b) x = static_cast<unsigned char>(100 + x % count);
    return b;
}

} // namespace

TEST(Convert, Integers)
{
    inEveryVariant([] {
        std::vector<Ipp8u> bytes(600);
        std::iota(bytes.begin(), bytes.end(), Ipp8u(0));
        std::vector<Ipp16s> shorts(65536);
        std::iota(shorts.begin(), shorts.end(), Ipp16s(-32768));
        std::vector<Ipp32s> words = {-5,    0,     255,   256,    2147483647, -2147483647 - 1,
                                     32768, 65535, 65536, -32769, 127,        128};
        for (Ipp32s i = -400; i < 400; ++i) words.push_back(i);
        for (Ipp32s i = 0; i < 31; ++i) words.push_back(1 << i);
        converts<Ipp8u>("Convert_32s8u", words);
        converts<Ipp8u>("Convert_16s8u", shorts);
        converts<Ipp16s>("Convert_8u16s", bytes);
        converts<Ipp32s>("Convert_8u32s", bytes);
        converts<Ipp64f>("Convert_8u64f", bytes);
        converts<Ipp64f>("Convert_16s64f", shorts);
    });
}

TEST(ByteStatistics, EveryLength)
{
    inEveryVariant([] {
        for (size_t n = 0; n < 300; ++n)
            for (unsigned count : {1u, 3u, 100u}) check(levels(n, count, static_cast<unsigned>(n)));
        for (size_t n : {1000u, 1024u, 2047u, 2048u, 2049u, 4133u, 20000u})
            for (unsigned count : {1u, 2u, 3u, 100u}) check(levels(n, count, static_cast<unsigned>(n)));
        check(Bytes(3000, 0));
        check(Bytes(3000, 255));
    });
}

TEST(ByteStatistics, ExtremesInEveryPlace)
{
    inEveryVariant([] {
        for (size_t n : {40u, 2100u, 3200u})
            for (size_t i = 0; i < n; i += n < 100 ? 1 : 37) {
                Bytes a(n, 50), twice(n, 50);
                a[i] = 255;
                a[n - 1 - i] = 0;
                check(a);
                twice[i] = twice[n - 1] = 51;
                twice[i / 2] = twice[n / 2] = 49;
                check(twice);
            }
    });
}

TEST(ByteStatistics, SumWrapsAround)
{
    inEveryVariant([] { check(Bytes(17000000, 255)); });
}
