// Median filters against sorted windows: every method, every kind of data, streams in pieces.
#include "oracle/median.h"
#include "signal/processing/median/calls.h"
#include "support/wide.h"
#include <xmmintrin.h>

using namespace median;

namespace {

template <class T> class Medians : public testing::Test
{
protected:
    std::mt19937 g{31};
};
using Types = testing::Types<Ipp64f, Ipp32s, Ipp16s, Ipp8u>;
TYPED_TEST_SUITE(Medians, Types);

template <class T> testing::AssertionResult equal(const std::vector<T>& a, const std::vector<T>& b)
{
    for (size_t i = 0; i < a.size(); ++i)
        if (std::memcmp(&a[i], &b[i], sizeof a[i]) != 0)
            return testing::AssertionFailure() << "at " << i << ": " << +a[i] << " instead of " << +b[i];
    return testing::AssertionSuccess();
}

// The stream x, of which the first mask - 1 samples are history, in one call.
template <class T> void check(const std::vector<T>& x, int mask)
{
    const auto expected = oracle::medians(x, static_cast<size_t>(mask));
    const int delay = mask - 1, n = static_cast<int>(x.size()) - delay;
    support::inEveryVariant([&] {
        Work work(mask);
        std::vector<T> y(static_cast<size_t>(n)), next(static_cast<size_t>(delay) + 1),
            line(x.begin(), x.begin() + delay);
        line.resize(static_cast<size_t>(delay) + 1);
        ASSERT_EQ(Calls<T>::filter(x.data() + delay, y.data(), n, mask, line.data(), next.data(), work.buffer()),
                  ippStsNoErr);
        ASSERT_TRUE(equal(y, expected)) << "mask " << mask << ", length " << n;
        next.pop_back();
        ASSERT_TRUE(equal(next, std::vector<T>(x.end() - delay, x.end()))) << "mask " << mask << ", length " << n;
        // In place, one array for both delay lines.
        std::vector<T> z(x.begin() + delay, x.end());
        ASSERT_EQ(Calls<T>::inPlace(z.data(), n, mask, line.data(), line.data(), work.buffer()), ippStsNoErr);
        ASSERT_TRUE(equal(z, expected)) << "in place, mask " << mask << ", length " << n;
        line.pop_back();
        ASSERT_TRUE(equal(line, next)) << "in place, mask " << mask << ", length " << n;
    });
}

const int masks[] = {1,  3,  5,  7,  9,  11, 13, 15, 17,  21,  27,  29,  31,
                     33, 37, 47, 61, 63, 65, 67, 99, 127, 129, 255, 257, 1025};

} // namespace

TYPED_TEST(Medians, EqualSortedWindows)
{
    using T = TypeParam;
    for (const int mask : masks)
        for (const int n : {1, 2, 3, 4, 7, 16, 31, 63, 64, 65, 130, 300, 777}) {
            if (mask > 300 && n > 130) continue;
            for (int kind = 0; kind < kinds; ++kind)
                check(data<T>(this->g, static_cast<size_t>(n + mask - 1), kind), mask);
        }
}

TYPED_TEST(Medians, LongMasks)
{
    using T = TypeParam;
    for (const int mask : {4095, 4097, 20001})
        for (const int kind : {0, 2, 3}) check(data<T>(this->g, static_cast<size_t>(40 + mask), kind), mask);
}

TYPED_TEST(Medians, StreamsMayBeCutAnywhere)
{
    using T = TypeParam;
    for (const int mask : {3, 5, 7, 15, 31, 62, 64, 101}) {
        const int m = (mask - 1) | 1;
        const size_t delay = static_cast<size_t>(m - 1);
        for (int partition = 0; partition < 30; ++partition) {
            const auto x = data<T>(this->g, 600 + delay, partition % kinds);
            const auto expected = oracle::medians(x, static_cast<size_t>(m));
            std::vector<T> line(x.begin(), x.begin() + m - 1), other(delay), y(x.begin() + m - 1, x.end());
            Work work(mask);
            const auto variants = support::supported();
            for (int i = 0; i < 600;) {
                support::force(variants[this->g() % variants.size()]);
                const int n = std::min<int>(600 - i, 1 + static_cast<int>(this->g() % (1u << this->g() % 9)));
                const T* const from = x.data() + delay + i;
                const int status = m == mask ? ippStsNoErr : ippStsEvenMedianMaskSize;
                if (this->g() % 2) {
                    ASSERT_EQ(Calls<T>::inPlace(y.data() + i, n, mask, line.data(), line.data(), work.buffer()),
                              status);
                } else {
                    ASSERT_EQ(Calls<T>::filter(from, y.data() + i, n, mask, line.data(), other.data(), work.buffer()),
                              status);
                    line.swap(other);
                }
                i += n;
            }
            ASSERT_TRUE(equal(y, expected)) << mask;
        }
    }
}

TYPED_TEST(Medians, WithoutHistoryBeginWithTheFirstSample)
{
    using T = TypeParam;
    for (const int mask : {1, 2, 3, 4, 5, 6, 7, 8, 30, 63, 65, 200}) {
        const int m = (mask - 1) | 1;
        const auto x = data<T>(this->g, 50, 0);
        std::vector<T> stream(static_cast<size_t>(m - 1), x[0]);
        stream.insert(stream.end(), x.begin(), x.end());
        const auto expected = oracle::medians(stream, static_cast<size_t>(m));
        support::inEveryVariant([&] {
            Work work(mask);
            std::vector<T> y = x;
            const int status = m == mask ? ippStsNoErr : ippStsEvenMedianMaskSize;
            ASSERT_EQ(Calls<T>::inPlace(y.data(), 50, mask, nullptr, nullptr, work.buffer()), status);
            ASSERT_TRUE(equal(y, expected)) << mask;
        });
    }
}

TEST(MedianBuffers, AreSixteenBytesForEachElement)
{
    int bytes = -1;
    for (const int type : {1, 7, 11, 13, 19}) {
        EXPECT_EQ(ippsFilterMedianGetBufferSize(5, type, &bytes), ippStsNoErr);
        EXPECT_EQ(bytes, 80);
        EXPECT_EQ(ippsFilterMedianGetBufferSize(134217728, type, &bytes), ippStsEvenMedianMaskSize);
        EXPECT_EQ(bytes, 16 * 134217727);
        EXPECT_EQ(ippsFilterMedianGetBufferSize(134217729, type, &bytes), ippStsMaskSizeErr);
    }
    support::inEveryVariant([] {
        double x[] = {1, 2};
        Ipp8u buffer[16];
        for (const int mask : {134217729, 0x7FFFFFFF})
            EXPECT_EQ(ippsFilterMedian_64f_I(x, 2, mask, nullptr, nullptr, buffer), ippStsMaskSizeErr);
        EXPECT_EQ(x[1], 2);
    });
}

// Comparisons of numbers would take denormal ones for zeros here, and find NaN invalid.
TEST(MediansOfDoubles, DependOnNoFloatingPointMode)
{
    std::mt19937 g(8);
    const unsigned before = _mm_getcsr();
    for (const int mask : {3, 5, 9, 31, 65})
        for (int kind = 0; kind < kinds; ++kind) {
            const auto x = data<Ipp64f>(g, static_cast<size_t>(200 + mask), kind);
            const auto expected = oracle::medians(x, static_cast<size_t>(mask));
            support::inEveryVariant([&] {
                Work work(mask);
                std::vector<Ipp64f> y(expected.size());
                _mm_setcsr(0x1F80 | 0x8040); // denormals are zeros
                const auto status = ippsFilterMedian_64f(x.data() + mask - 1, y.data(), static_cast<int>(y.size()),
                                                         mask, x.data(), nullptr, work.buffer());
                const unsigned raised = _mm_getcsr() & (_MM_EXCEPT_INVALID | _MM_EXCEPT_OVERFLOW);
                _mm_setcsr(before);
                ASSERT_EQ(status, ippStsNoErr);
                ASSERT_EQ(raised, 0u) << mask << " " << kind;
                ASSERT_TRUE(equal(y, expected)) << mask << " " << kind;
            });
        }
}
