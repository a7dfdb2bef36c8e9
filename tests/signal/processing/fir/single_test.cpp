#include "signal/processing/fir/filters.h"
#include "signal/processing/fir/memory.h"
#include <cmath>
#include <gtest/gtest.h>

using namespace fir;
namespace {

template <class T> class SingleRate : public testing::Test
{
protected:
    std::mt19937 g{12345};
};
using Types = testing::Types<Ipp64f, Ipp64fc>;
TYPED_TEST_SUITE(SingleRate, Types);

TYPED_TEST(SingleRate, DirectFormEqualsTheDefinedOrderToTheBit)
{
    using T = TypeParam;
    for (const int taps : {1, 2, 3, 4, 5, 8, 9, 12, 31, 64, 100}) {
        for (const int n : {1, 2, 3, 4, 5, 7, 8, 9, 13, 17, 29, 30, 36, 37, 41, 63, 64, 71, 72, 73, 100, 307}) {
            const auto h = noise<T>(this->g, taps), x = noise<T>(this->g, n), old = noise<T>(this->g, taps - 1);
            const auto expected = oracle::filter(h, old, x), history = tail(old, x);
            const auto fresh = oracle::filter(h, std::vector<T>(taps - 1), x);
            for (const auto& v : support::supported()) {
                support::force(v);
                Filter<T> filter(h, 1);
                std::vector<T> y(n), d(taps - 1), inPlace = x, dly = old;
                ASSERT_EQ(filter(x.data(), y.data(), n, old.data(), d.data()), 0);
                ASSERT_EQ(difference(y, expected), -1) << v.code << " " << taps << " " << n;
                ASSERT_EQ(difference(d, history), -1) << v.code << " " << taps << " " << n;
                ASSERT_EQ(filter(inPlace.data(), inPlace.data(), n, dly.data(), dly.data()), 0);
                ASSERT_EQ(difference(inPlace, expected), -1) << v.code << " " << taps << " " << n;
                ASSERT_EQ(difference(dly, history), -1) << v.code << " " << taps << " " << n;
                ASSERT_EQ(filter(x.data(), y.data(), n, nullptr, nullptr), 0);
                ASSERT_EQ(difference(y, fresh), -1) << v.code << " " << taps << " " << n;
            }
        }
    }
}

TYPED_TEST(SingleRate, InfiniteAndNaNSamplesReachTheirOutputsOnly)
{
    using T = TypeParam;
    const auto h = noise<T>(this->g, 21), old = noise<T>(this->g, 20);
    auto x = noise<T>(this->g, 300);
    reinterpret_cast<double*>(&x[57])[0] = HUGE_VAL;
    reinterpret_cast<double*>(&x[140])[0] = std::nan("");
    x[200] = T{};
    reinterpret_cast<double*>(&x[201])[0] = -0.0;
    const auto expected = oracle::filter(h, old, x);
    for (const auto& v : support::supported()) {
        support::force(v);
        std::vector<T> y(x.size());
        Filter<T>(h, 1)(x.data(), y.data(), 300, old.data(), nullptr);
        EXPECT_EQ(difference(y, expected), -1) << v.code;
    }
}

// A stream cut anywhere, in place or not, in calls shorter and longer than the blocks of an in-place call.
TYPED_TEST(SingleRate, StreamsMayBeCutAnywhere)
{
    using T = TypeParam;
    const auto h = noise<T>(this->g, 37), x = noise<T>(this->g, 11000);
    Filter<T> filter(h, 1);
    std::vector<T> whole(x.size());
    filter(x.data(), whole.data(), static_cast<int>(x.size()), nullptr, nullptr);
    ASSERT_EQ(difference(whole, oracle::filter(h, std::vector<T>(36), x)), -1);
    const auto variants = support::supported();
    for (int partition = 0; partition < 1000; ++partition) {
        support::force(variants[partition % variants.size()]);
        const int scale = 1 << this->g() % 14, length = partition < 20 ? static_cast<int>(x.size()) : 700;
        std::vector<T> y(x.begin(), x.begin() + length), dly(36);
        for (int i = 0; i < length;) {
            const int n = std::min<int>(length - i, 1 + this->g() % scale);
            const T* src = this->g() % 2 ? x.data() + i : y.data() + i;
            ASSERT_EQ(filter(src, y.data() + i, n, dly.data(), dly.data()), 0);
            i += n;
        }
        ASSERT_EQ(difference(y, {whole.begin(), whole.begin() + length}), -1) << partition;
    }
}

TYPED_TEST(SingleRate, OutputMayReplaceTheHistory)
{
    using T = TypeParam;
    for (const int algType : {1, 2}) {
        for (const int taps : {2, 40, 130}) {
            for (const int n : {1, 39, 500}) {
                const auto h = noise<T>(this->g, taps), x = noise<T>(this->g, n), old = noise<T>(this->g, taps - 1);
                Filter<T> filter(h, algType);
                std::vector<T> expected(n), d(taps - 1), d2(taps - 1), y = old;
                y.resize(std::max(n, taps - 1));
                filter(x.data(), expected.data(), n, old.data(), d.data());
                filter(x.data(), y.data(), n, y.data(), d2.data());
                y.resize(n);
                EXPECT_EQ(difference(y, expected), -1) << taps << " " << n;
                EXPECT_EQ(difference(d2, d), -1) << taps << " " << n;
            }
        }
    }
}

double norm(const oracle::LongComplex& a) { return static_cast<double>(a.re * a.re + a.im * a.im); }
double norm(long double a) { return static_cast<double>(a * a); }
oracle::LongComplex minus(Ipp64fc a, oracle::LongComplex b) { return {a.re - b.re, a.im - b.im}; }
long double minus(double a, long double b) { return a - b; }

TYPED_TEST(SingleRate, MethodByFftIsAccurateAndTheSameEverywhere)
{
    using T = TypeParam;
    for (const int taps : {1, 2, 3, 4, 7, 8, 15, 16, 124, 500, 1023, 1024}) {
        for (const int n : {1, 5, 640, 5000}) {
            const auto h = noise<T>(this->g, taps), x = noise<T>(this->g, n), old = noise<T>(this->g, taps - 1);
            const auto exact = oracle::filter(oracle::wide(h), oracle::wide(old), oracle::wide(x));
            const auto history = tail(old, x);
            std::vector<T> first;
            for (const auto& v : support::supported()) {
                support::force(v);
                Filter<T> filter(h, 2);
                std::vector<T> y(n), d(taps - 1), inPlace = x, dly = old;
                ASSERT_EQ(filter(x.data(), y.data(), n, old.data(), d.data()), 0);
                ASSERT_EQ(difference(d, history), -1) << v.code << " " << taps << " " << n;
                ASSERT_EQ(filter(inPlace.data(), inPlace.data(), n, dly.data(), dly.data()), 0);
                ASSERT_EQ(difference(inPlace, y), -1) << v.code << " " << taps << " " << n;
                ASSERT_EQ(difference(dly, history), -1) << v.code << " " << taps << " " << n;
                if (first.empty()) first = y;
                ASSERT_EQ(difference(y, first), -1) << v.code << " " << taps << " " << n;
            }
            int size = 4;
            while (size <= 2 * taps) size *= 2;
            const int advance = size - taps + 1;
            double hh = 0;
            for (const auto& tap : oracle::wide(h)) hh += norm(tap);
            std::vector<T> all = old;
            all.insert(all.end(), x.begin(), x.end());
            for (int start = 0; start < n; start += advance) {
                double xx = 0;
                for (int i = start; i < std::min(start + size, n + taps - 1); ++i) xx += norm(oracle::wide(all[i]));
                const double bound = 8 * 0x1p-52 * std::sqrt(std::log2(size)) * std::sqrt(hh * xx);
                for (int i = start; i < std::min(start + advance, n); ++i)
                    ASSERT_LE(std::sqrt(norm(minus(first[i], exact[i]))), bound) << taps << " " << n << " " << i;
            }
        }
    }
}

TYPED_TEST(SingleRate, AutomaticMethodSwitchesAt124TapsAnd640Samples)
{
    using T = TypeParam;
    for (const int taps : {123, 124}) {
        for (const int n : {639, 640}) {
            const auto h = noise<T>(this->g, taps), x = noise<T>(this->g, n);
            std::vector<T> y[3];
            for (const int algType : {0, 1, 2}) {
                y[algType].resize(n);
                Filter<T>(h, algType)(x.data(), y[algType].data(), n, nullptr, nullptr);
            }
            ASSERT_NE(difference(y[1], y[2]), -1);
            EXPECT_EQ(difference(y[0], y[taps == 124 && n == 640 ? 2 : 1]), -1) << taps << " " << n;
        }
    }
}

TYPED_TEST(SingleRate, SpecificationMayBeReadOnlyMovedAndMadeByAnyVariant)
{
    using T = TypeParam;
    const auto h = noise<T>(this->g, 150), x = noise<T>(this->g, 700);
    for (const int algType : {0, 1}) {
        std::vector<T> expected(700);
        Filter<T>(h, algType)(x.data(), expected.data(), 700, nullptr, nullptr);
        for (const auto& maker : support::supported()) {
            support::force(maker);
            Filter<T> filter(h, algType);
            const int size = static_cast<int>(filter.block.size()), offset = static_cast<int>(this->g() % 64);
            Fenced place(size, offset);
            ASSERT_EQ(Functions<T>::init(h.data(), 150, algType,
                                         reinterpret_cast<typename Functions<T>::Spec*>(place.data())),
                      0);
            ASSERT_TRUE(place.intact());
            Pages pages(size + 640);
            unsigned char* moved = pages.data() + 512 + offset;
            std::memcpy(moved, place.data(), size);
            pages.makeReadOnly();
            for (const auto& user : support::supported()) {
                support::force(user);
                Fenced work(static_cast<int>(filter.work.size()), static_cast<int>(this->g() % 64));
                std::vector<T> y(700);
                ASSERT_EQ(Functions<T>::filter(x.data(), y.data(), 700,
                                               reinterpret_cast<const typename Functions<T>::Spec*>(moved), nullptr,
                                               nullptr, work.data()),
                          0);
                ASSERT_EQ(difference(y, expected), -1) << maker.code << " " << user.code;
                ASSERT_TRUE(work.intact());
            }
        }
    }
}

// Each call fails for several reasons; the first in the order of checks is told, and nothing is written.
TYPED_TEST(SingleRate, StatusesInTheirOrder)
{
    using T = TypeParam;
    using F = Functions<T>;
    const auto h = noise<T>(this->g, 5), x = noise<T>(this->g, 8);
    for (const auto& v : support::supported()) {
        support::force(v);
        int a = -7, b = -7;
        EXPECT_EQ(ippsFIRSRGetSize(0, 99, nullptr, &b), ippStsSizeErr);
        EXPECT_EQ(ippsFIRSRGetSize(5, 15, nullptr, &b), ippStsDataTypeErr);
        EXPECT_EQ(ippsFIRSRGetSize(0x7fffffff, 19, nullptr, &b), ippStsNullPtrErr);
        EXPECT_EQ(ippsFIRSRGetSize(5, 19, &a, nullptr), ippStsNullPtrErr);
        EXPECT_EQ(ippsFIRSRGetSize(0x7fffffff, 19, &a, &b), ippStsSizeErr);
        EXPECT_EQ(a, -7);
        EXPECT_EQ(b, -7);
        for (const int type : {13, 14, 19, 20}) EXPECT_EQ(ippsFIRSRGetSize(5, type, &a, &b), 0);

        Filter<T> filter(h, 1);
        const auto block = filter.block;
        EXPECT_EQ(F::init(nullptr, 0, 3, nullptr), ippStsSizeErr);
        EXPECT_EQ(F::init(nullptr, 5, 3, filter.spec()), ippStsNullPtrErr);
        EXPECT_EQ(F::init(h.data(), 5, 3, nullptr), ippStsNullPtrErr);
        EXPECT_EQ(F::init(h.data(), 0x7fffffff, 3, filter.spec()), ippStsAlgTypeErr);
        EXPECT_EQ(F::init(h.data(), 5, -1, filter.spec()), ippStsAlgTypeErr);
        EXPECT_EQ(F::init(h.data(), 0x7fffffff, 1, filter.spec()), ippStsSizeErr);
        EXPECT_EQ(filter.block, block);

        std::vector<T> y(8), d(4);
        const auto* spec = filter.spec();
        Ipp8u* work = filter.work.data();
        EXPECT_EQ(F::filter(x.data(), y.data(), 0, nullptr, nullptr, d.data(), work), ippStsNullPtrErr);
        EXPECT_EQ(F::filter(nullptr, y.data(), 0, spec, nullptr, d.data(), work), ippStsNullPtrErr);
        EXPECT_EQ(F::filter(x.data(), nullptr, 0, spec, nullptr, d.data(), work), ippStsNullPtrErr);
        EXPECT_EQ(F::filter(x.data(), y.data(), 0, spec, nullptr, d.data(), nullptr), ippStsNullPtrErr);
        std::memset(filter.block.data(), 0, filter.block.size());
        EXPECT_EQ(F::filter(x.data(), y.data(), 0, spec, nullptr, d.data(), work), ippStsSizeErr);
        EXPECT_EQ(F::filter(x.data(), y.data(), 8, spec, nullptr, d.data(), work), ippStsContextMatchErr);
        EXPECT_EQ(difference(y, std::vector<T>(8)), -1);
        EXPECT_EQ(difference(d, std::vector<T>(4)), -1);
    }
}

TEST(SingleRateBlocks, OfAnotherTypeAreRefused)
{
    std::mt19937 g(1);
    Filter<Ipp64f> real(noise<Ipp64f>(g, 5), 1);
    Filter<Ipp64fc> complex(noise<Ipp64fc>(g, 5), 1);
    Ipp64fc x = {1, 2}, y = {0, 0};
    for (const auto& v : support::supported()) {
        support::force(v);
        const auto* realAsComplex = reinterpret_cast<const IppsFIRSpec_64fc*>(real.spec());
        const auto* complexAsReal = reinterpret_cast<const IppsFIRSpec_64f*>(complex.spec());
        EXPECT_EQ(ippsFIRSR_64fc(&x, &y, 1, realAsComplex, nullptr, nullptr, complex.work.data()),
                  ippStsContextMatchErr);
        EXPECT_EQ(ippsFIRSR_64f(&x.re, &y.re, 1, complexAsReal, nullptr, nullptr, complex.work.data()),
                  ippStsContextMatchErr);
    }
}

#ifdef __SIZEOF_INT128__
using Wide = __int128;
Wide align64(Wide v) { return (v + 63) / 64 * 64; }

// The stated sums without the parts of the transform, which take at least nothing and at most ten times the values.
TEST(SingleRateSizes, NeverWrap)
{
    std::mt19937 g(7);
    std::vector<int> lengths = {1, 2, 0x7fffffff, 0x7ffffffe, 0x3fffffff, 0x40000000};
    for (int k = 2; k < 31; ++k)
        for (int d : {-1, 0, 1}) lengths.push_back((1 << k) + d);
    for (int i = 0; i < 100000; ++i) lengths.push_back(1 + static_cast<int>((g() & 0x7fffffff) >> (g() % 31)));
    for (const int taps : lengths) {
        if (taps < 1) continue;
        for (const int type : {13, 14, 19, 20}) {
            const Wide e = type == 13 ? 4 : type == 20 ? 16 : 8;
            Wide n = 4;
            while (n <= 2 * Wide(taps)) n *= 2;
            const Wide spec = align64(taps * e) + 127 + n * e;
            const Wide work = align64(2 * Wide(taps) * e) + 32768 + align64(2 * (taps - Wide(1)) * e) + n * e;
            int specSize = 0, workSize = 0;
            const int status = ippsFIRSRGetSize(taps, type, &specSize, &workSize);
            if (status) {
                ASSERT_EQ(status, ippStsSizeErr);
                ASSERT_GT(std::max(spec, work) + 10 * n * 16, 0x7fffffff) << taps;
            } else {
                ASSERT_TRUE(specSize >= spec && specSize <= spec + 10 * n * 16 + 4096) << taps;
                ASSERT_TRUE(workSize >= work && workSize <= work + 10 * n * 16 + 4096) << taps;
            }
        }
    }
}
#endif

} // namespace
