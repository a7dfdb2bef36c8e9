#include "signal/processing/correlation/calls.h"
#include <cmath>

using namespace correlation;
namespace {

template <class T> std::vector<T> filled(size_t n)
{
    std::vector<T> v(n);
    for (T& x : v) std::memset(&x, 0x40, sizeof x);
    return v;
}

template <class T> class Correlation : public testing::Test
{
protected:
    std::mt19937 g{2024};
    int offset = 0;
    int next() { return offset = (offset + 7) % 64; }
};
using Types = testing::Types<Ipp64f, Ipp64fc>;
TYPED_TEST_SUITE(Correlation, Types);

TYPED_TEST(Correlation, ByDefinitionEqualsTheNamedOrderToTheBit)
{
    using T = TypeParam;
    struct Case {
        int a, b, lags, lowLag;
    };
    std::vector<Case> cases;
    for (const int a : {1, 2, 3, 8, 9, 17, 40, 131})
        for (const int b : {1, 2, 5, 8, 33, 130}) {
            cases.push_back({a, b, a + b + 5, -a - 2}); // all lags and some without products on both sides
            cases.push_back({a, b, 1, 0});
            cases.push_back({a, b, a, 1 - a});
            cases.push_back({a, b, (b + 1) / 2, b / 2});
            for (int i = 0; i < 4; ++i) // any window
                cases.push_back({a, b, 1 + static_cast<int>(this->g() % (a + b)),
                                 static_cast<int>(this->g() % (a + b + 4)) - a - 2});
        }
    for (const int lowLag : {-2147483647 - 1, -60, 60, 2147483647}) cases.push_back({50, 60, 10, lowLag});
    for (const Case& c : cases) {
        const auto a = noise<T>(this->g, c.a), b = noise<T>(this->g, c.b);
        const auto expected = oracle::correlation(a, b, c.lags, c.lowLag);
        for (const auto& v : support::supported()) {
            support::force(v);
            auto y = filled<T>(c.lags);
            ASSERT_EQ(crossCorrelate(a, b, y, c.lowLag, 1, this->next()), ippStsNoErr);
            ASSERT_EQ(difference(y, expected), -1)
                << v.code << " " << c.a << " and " << c.b << ", " << c.lags << " lags from " << c.lowLag;
        }
    }
    for (const int n : {1, 2, 7, 8, 9, 64, 65, 200})
        for (const int lags : {1, 2, n / 2 + 1, n, n + 3}) {
            const auto x = noise<T>(this->g, n);
            const auto expected = oracle::correlation(x, x, lags, 0);
            for (const auto& v : support::supported()) {
                support::force(v);
                auto y = filled<T>(lags);
                ASSERT_EQ(autoCorrelate(x, y, 1, this->next()), ippStsNoErr);
                ASSERT_EQ(difference(y, expected), -1) << v.code << " " << n << ", " << lags << " lags";
            }
        }
}

TYPED_TEST(Correlation, InfiniteAndNaNSamplesReachTheirLagsOnly)
{
    using T = TypeParam;
    for (const int length : {30, 90}) { // shorter or longer than the other
        auto a = noise<T>(this->g, length), b = noise<T>(this->g, 60);
        reinterpret_cast<double*>(&a[length - 1])[0] = HUGE_VAL; // meets few samples
        reinterpret_cast<double*>(&b[58])[0] = std::nan("");
        reinterpret_cast<double*>(&b[0])[0] = -HUGE_VAL;
        const auto expected = oracle::correlation(a, b, length + 62, -length - 1);
        for (const auto& v : support::supported()) {
            support::force(v);
            auto y = filled<T>(expected.size());
            ASSERT_EQ(crossCorrelate(a, b, y, -length - 1, 1), ippStsNoErr);
            EXPECT_EQ(difference(y, expected), -1) << v.code;
        }
    }
}

double magnitude(double x) { return std::abs(x); }
double magnitude(long double x) { return static_cast<double>(std::abs(x)); }
template <class C> double magnitude(C x) { return static_cast<double>(std::hypot(x.re, x.im)); }
long double apart(double x, long double y) { return x - y; }
oracle::LongComplex apart(Ipp64fc x, oracle::LongComplex y) { return {x.re - y.re, x.im - y.im}; }

template <class T> double norm(const std::vector<T>& v)
{
    double sum = 0;
    for (const T& x : v) sum += magnitude(x) * magnitude(x);
    return std::sqrt(sum);
}

// The largest error, in units of 8*eps*sqrt(log2 N) times the product of the norms. N is at least `points`.
template <class T, class W>
double error(const std::vector<T>& y, const std::vector<W>& exact, double norms, double points)
{
    double worst = 0;
    for (size_t i = 0; i < y.size(); ++i) worst = std::max(worst, magnitude(apart(y[i], exact[i])));
    return worst / (8 * 0x1p-52 * std::sqrt(std::log2(points)) * norms);
}

TYPED_TEST(Correlation, ByTransformIsWithinItsBound)
{
    using T = TypeParam;
    double worst = 0;
    struct Case {
        int a, b, lags, lowLag;
    };
    const Case cases[] = {{1, 1, 3, -1},
                          {2, 3, 8, -3},
                          {5, 900, 1000, -50},
                          {900, 5, 1000, -950},
                          {100, 100, 199, -99},
                          {64, 65, 128, -63},
                          {500, 2000, 2499, -499},
                          {2000, 500, 700, -300},
                          {37, 1500, 300, 640},
                          {300, 310, 40, 280},
                          {300, 310, 40, -320},
                          {128, 129, 256, -127},
                          {1200, 1300, 2499, -1199},
                          {4000, 4100, 30, -11},
                          {3000, 2000, 45, -1500}}; // in parts
    for (const Case& c : cases) {
        const auto a = noise<T>(this->g, c.a), b = noise<T>(this->g, c.b);
        const auto exact = oracle::correlation(oracle::wide(a), oracle::wide(b), c.lags, c.lowLag);
        std::vector<T> plain;
        for (const auto& v : support::supported()) {
            support::force(v);
            auto y = filled<T>(c.lags);
            ASSERT_EQ(crossCorrelate(a, b, y, c.lowLag, 2, this->next()), ippStsNoErr);
            const double e = error(y, exact, norm(a) * norm(b), 2.0 * std::min(c.a, c.b));
            ASSERT_LE(e, 1) << v.code << " " << c.a << " and " << c.b << ", " << c.lags << " lags from " << c.lowLag;
            worst = std::max(worst, e);
            if (plain.empty()) plain = y;
            ASSERT_EQ(difference(y, plain), -1) << v.code;
        }
    }
    for (const int n : {1, 2, 3, 15, 16, 17, 600, 1025})
        for (const int lags : {1, n / 2 + 1, n, n + 9}) {
            const auto x = noise<T>(this->g, n);
            const auto exact = oracle::correlation(oracle::wide(x), oracle::wide(x), lags, 0);
            for (const auto& v : support::supported()) {
                support::force(v);
                auto y = filled<T>(lags);
                ASSERT_EQ(autoCorrelate(x, y, 2, this->next()), ippStsNoErr);
                const double e = error(y, exact, norm(x) * norm(x), 2.0 * n);
                ASSERT_LE(e, 1) << v.code << " " << n << ", " << lags << " lags";
                worst = std::max(worst, e);
                for (int k = n; k < lags; ++k) ASSERT_EQ(magnitude(y[k]), 0);
            }
        }
    std::printf("by transform: %.3f of the bound at most\n", worst);
}

template <class T> T dividedBy(T x, double n);
template <> double dividedBy(double x, double n) { return x / n; }
template <> Ipp64fc dividedBy(Ipp64fc x, double n) { return {x.re / n, x.im / n}; }
template <class T> T times(T x, double f);
template <> double times(double x, double f) { return x * f; }
template <> Ipp64fc times(Ipp64fc x, double f) { return {x.re * f, x.im * f}; }

// On top of the sums that the same algorithm gives; lags without products stay zeros.
TYPED_TEST(Correlation, Normalisations)
{
    using T = TypeParam;
    for (const auto& [aLen, bLen] : {std::pair(50, 90), std::pair(90, 50), std::pair(60, 60), std::pair(3, 1)}) {
        const auto a = noise<T>(this->g, aLen), b = noise<T>(this->g, bLen);
        const int lags = aLen + bLen + 4, lowLag = -aLen - 1;
        for (const int algorithm : {0, 1, 2})
            for (const auto& v : support::supported()) {
                support::force(v);
                auto raw = filled<T>(lags), biased = raw, unbiased = raw, left = raw;
                ASSERT_EQ(crossCorrelate(a, b, raw, lowLag, algorithm), ippStsNoErr);
                ASSERT_EQ(crossCorrelate(a, b, biased, lowLag, algorithm + 0x100), ippStsNoErr);
                ASSERT_EQ(crossCorrelate(a, b, unbiased, lowLag, algorithm + 0x200), ippStsNoErr);
                for (int k = 0; k < lags; ++k) {
                    const auto n = oracle::Meeting(aLen, bLen, lowLag + k).products();
                    const T mean = n ? dividedBy(raw[k], static_cast<double>(n)) : T{};
                    ASSERT_TRUE(support::sameBits(biased[k], times(raw[k], 1.0 / std::min(aLen, bLen)))) << v.code << k;
                    ASSERT_TRUE(support::sameBits(unbiased[k], mean)) << v.code << " " << k;
                }
                // Unknown ones are told when the sums stand, as they are.
                for (const int unknown : {0x300, 0x400, 0x1000, 0x10000, -0x100}) {
                    ASSERT_EQ(crossCorrelate(a, b, left, lowLag, algorithm + unknown), ippStsAlgTypeErr);
                    ASSERT_EQ(difference(left, raw), -1) << v.code;
                }
            }
        const int n = static_cast<int>(a.size());
        for (const int algorithm : {1, 2})
            for (const auto& v : support::supported()) {
                support::force(v);
                auto raw = filled<T>(n + 3), biased = raw, unbiased = raw, left = raw;
                ASSERT_EQ(autoCorrelate(a, raw, algorithm), ippStsNoErr);
                ASSERT_EQ(autoCorrelate(a, biased, algorithm + 0x100), ippStsNoErr);
                ASSERT_EQ(autoCorrelate(a, unbiased, algorithm + 0x200), ippStsNoErr);
                ASSERT_EQ(autoCorrelate(a, left, algorithm + 0x300), ippStsAlgTypeErr);
                ASSERT_EQ(difference(left, raw), -1);
                for (int k = 0; k < n + 3; ++k) {
                    ASSERT_TRUE(support::sameBits(biased[k], times(raw[k], 1.0 / n)));
                    ASSERT_TRUE(support::sameBits(unbiased[k], k < n ? dividedBy(raw[k], n - k) : T{}));
                }
            }
    }
}

TYPED_TEST(Correlation, AutomaticAutocorrelationIsByTransformFrom600LagsOn)
{
    using T = TypeParam;
    const auto x = noise<T>(this->g, 700), shorter = noise<T>(this->g, 599);
    auto run = [](const std::vector<T>& v, int lags, int algType) {
        auto y = filled<T>(lags);
        EXPECT_EQ(autoCorrelate(v, y, algType), ippStsNoErr);
        return y;
    };
    EXPECT_EQ(difference(run(x, 599, 0), run(x, 599, 1)), -1);
    EXPECT_EQ(difference(run(x, 600, 0), run(x, 600, 2)), -1);
    EXPECT_NE(difference(run(x, 600, 0), run(x, 600, 1)), -1);
    EXPECT_EQ(difference(run(shorter, 800, 0), run(shorter, 800, 1)), -1); // 599 lags that have a product
}

// The automatic choice is one of the two, the same in all variants, and never needs a larger buffer than told.
TYPED_TEST(Correlation, AutomaticCrossCorrelationTakesOneOfBoth)
{
    using T = TypeParam;
    int direct = 0, byTransform = 0;
    for (int i = 0; i < 60; ++i) {
        const int aLen = 1 + static_cast<int>(this->g() % (1 << (this->g() % 12)));
        const int bLen = 1 + static_cast<int>(this->g() % (1 << (this->g() % 12)));
        const auto a = noise<T>(this->g, aLen), b = noise<T>(this->g, bLen);
        const int lags = aLen + bLen - 1;
        std::vector<T> first;
        for (const auto& v : support::supported()) {
            support::force(v);
            auto y = filled<T>(lags);
            ASSERT_EQ(crossCorrelate(a, b, y, 1 - aLen, 0, this->next()), ippStsNoErr);
            if (first.empty()) first = y;
            ASSERT_EQ(difference(y, first), -1) << v.code;
        }
        auto one = filled<T>(lags), two = one;
        crossCorrelate(a, b, one, 1 - aLen, 1);
        crossCorrelate(a, b, two, 1 - aLen, 2);
        const bool isDirect = difference(first, one) < 0, isByTransform = difference(first, two) < 0;
        EXPECT_TRUE(isDirect || isByTransform) << aLen << " and " << bLen;
        direct += isDirect && !isByTransform;
        byTransform += isByTransform && !isDirect;
    }
    EXPECT_GT(direct, 5);
    EXPECT_GT(byTransform, 5);
}

} // namespace
