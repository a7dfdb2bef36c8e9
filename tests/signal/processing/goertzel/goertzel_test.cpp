// Goertzel against sums whose angles are exact, in extended precision.
#include "oracle/circle.h"
#include "support/noise.h"
#include "support/wide.h"

using namespace support;

namespace {

template <class T> struct Calls;
template <> struct Calls<Ipp64f> {
    static constexpr auto one = ippsGoertz_64f;
    static constexpr auto two = ippsGoertzTwo_64f_Idx;
    static constexpr double chain = 64;
    static long double re(double x) { return x; }
    static long double im(double) { return 0; }
};
template <> struct Calls<Ipp64fc> {
    static constexpr auto one = ippsGoertz_64fc;
    static constexpr auto two = ippsGoertzTwo_64fc_Idx;
    static constexpr double chain = 32;
    static long double re(Ipp64fc x) { return x.re; }
    static long double im(Ipp64fc x) { return x.im; }
};

struct Exact {
    long double re = 0, im = 0, magnitudes = 0;
};
template <class T> Exact exactly(const std::vector<T>& x, double frequency)
{
    Exact e;
    for (size_t n = 0; n < x.size(); ++n) {
        const auto w = oracle::ofTurn(oracle::fraction(Wide(frequency) * Wide(n)));
        const long double re = Calls<T>::re(x[n]), im = Calls<T>::im(x[n]);
        e.re += re * w.cos + im * w.sin;
        e.im += im * w.cos - re * w.sin;
        e.magnitudes += std::fabs(re) + std::fabs(im);
    }
    return e;
}
double distance(Ipp64fc value, const Exact& e)
{
    return static_cast<double>(std::max(std::fabs(value.re - e.re), std::fabs(value.im - e.im)));
}
template <class T> double bound(size_t n, const Exact& e)
{
    return (static_cast<double>(n) / Calls<T>::chain + 10) * 0x1p-51 * static_cast<double>(e.magnitudes);
}

const double frequencies[] = {0,     0x1p-1074, 1e-300,  1e-12,     0.001,    0.1,        0.124999,
                              0.125, 0.25,      1.0 / 3, 0.4999999, 0.5,      0.50000001, 0.63,
                              0.75,  0.875,     0.95001, 0.9999,    1 - 1e-9, 1 - 1e-15,  0x1.fffffffffffffp-1};

template <class T> class Goertzel : public testing::Test
{
protected:
    std::mt19937 g{5};
};
using Types = testing::Types<Ipp64f, Ipp64fc>;
TYPED_TEST_SUITE(Goertzel, Types);

} // namespace

TYPED_TEST(Goertzel, IsWithinItsBoundAtEveryFrequencyAndLength)
{
    using T = TypeParam;
    std::vector<size_t> lengths;
    for (size_t n = 1; n <= 140; ++n) lengths.push_back(n);
    for (size_t n : {511, 512, 513, 1000, 1023, 1024, 1025, 1087, 1088, 1089, 2047, 4096, 5001}) lengths.push_back(n);
    double worst = 0;
    for (const size_t n : lengths) {
        const auto x = noise<T>(this->g, n);
        std::uniform_real_distribution<> anywhere(0, 1);
        for (const double f : {frequencies[n % std::size(frequencies)], anywhere(this->g), anywhere(this->g)}) {
            const Exact e = exactly(x, f);
            inEveryVariant([&] {
                Ipp64fc value;
                ASSERT_EQ(Calls<T>::one(x.data(), static_cast<int>(n), &value, f), ippStsNoErr);
                ASSERT_LE(distance(value, e), bound<T>(n, e)) << n << " " << f;
                worst = std::max(worst, distance(value, e) / bound<T>(n, e));
            });
        }
    }
    std::printf("at most %.3f of the bound\n", worst);
}

// What one chain through all samples loses, the interleaved ones lose a small part of; where the samples are turned by
// what they are weighed with, all errors add up. Near 0 and near 1 as much as elsewhere.
TYPED_TEST(Goertzel, LosesLittleInLongBlocks)
{
    using T = TypeParam;
    constexpr size_t n = 60007;
    for (const double f : {1e-9, 0.1, 1.0 / 3, 0.77, 1 - 1e-9}) {
        std::vector<T> x(n);
        for (size_t i = 0; i < n; ++i) {
            const auto w = oracle::ofTurn(oracle::fraction(Wide(f) * Wide(i)));
            if constexpr (sizeof(T) == sizeof(double))
                x[i] = static_cast<double>(w.cos);
            else
                x[i] = {static_cast<double>(w.cos), static_cast<double>(w.sin)};
        }
        const Exact e = exactly(x, f);
        Ipp64fc value, serial = {0, 0};
        const auto w = oracle::ofTurn(Wide(f));
        const double c = static_cast<double>(w.cos), s = static_cast<double>(w.sin);
        for (size_t i = n; i-- > 0;)
            serial = {serial.re * c + serial.im * s + static_cast<double>(Calls<T>::re(x[i])),
                      serial.im * c - serial.re * s + static_cast<double>(Calls<T>::im(x[i]))};
        ASSERT_EQ(Calls<T>::one(x.data(), n, &value, f), ippStsNoErr);
        const double ours = distance(value, e), plain = distance(serial, e),
                     magnitudes = static_cast<double>(e.magnitudes);
        std::printf("%g: %.3g, in one chain %.3g units of the sum of magnitudes\n", f, ours / magnitudes * 0x1p53,
                    plain / magnitudes * 0x1p53);
        EXPECT_LE(ours, bound<T>(n, e) / 8) << f;
        EXPECT_LE(ours, plain / 4 + 2 * 0x1p-53 * magnitudes) << f;
    }
}

TYPED_TEST(Goertzel, TakesTwoFrequenciesAtOnceToTheBit)
{
    using T = TypeParam;
    for (const size_t n : {1, 2, 3, 7, 8, 15, 16, 17, 100, 1024, 3000}) {
        const auto x = noise<T>(this->g, n);
        for (size_t k = 1; k < std::size(frequencies); ++k) {
            const double pair[] = {frequencies[k - 1], frequencies[k]};
            inEveryVariant([&] {
                Ipp64fc value[2], expected[2];
                const int length = static_cast<int>(n);
                for (int i = 0; i < 2; ++i) Calls<T>::one(x.data(), length, &expected[i], pair[i]);
                ASSERT_EQ(Calls<T>::two(x.data() - 7, 7, length, value, pair), ippStsNoErr);
                for (int i = 0; i < 2; ++i) ASSERT_TRUE(same(value[i], expected[i])) << n << " " << pair[i];
            });
        }
    }
}

TYPED_TEST(Goertzel, RefusesFrequenciesOutsideOneTurn)
{
    using T = TypeParam;
    const T x[3] = {};
    inEveryVariant([&] {
        Ipp64fc value[2] = {{5, 5}, {5, 5}};
        for (const double bad : {-1e-300, 1.0, 2.0, infinity, -infinity}) {
            const double second[] = {0.5, bad}, first[] = {bad, quietNaN};
            EXPECT_EQ(Calls<T>::one(x, 3, value, bad), ippStsRelFreqErr);
            EXPECT_EQ(Calls<T>::two(x, 0, 3, value, second), ippStsRelFreqErr);
            EXPECT_EQ(Calls<T>::two(x, 0, 3, value, first), ippStsRelFreqErr);
        }
        EXPECT_EQ(Calls<T>::two(x, 0, 3, value, nullptr), ippStsNullPtrErr);
        for (const Ipp64fc v : value) EXPECT_TRUE(v.re == 5 && v.im == 5);
        EXPECT_EQ(Calls<T>::one(x, 3, value, quietNaN), ippStsNoErr);
        EXPECT_TRUE(std::isnan(value[0].re) && std::isnan(value[0].im));
    });
}

TEST(GoertzelOfReals, AddsUpAtFrequencyZero)
{
    const double x[] = {1, 2, 4, 8, 16, -0.5};
    inEveryVariant([&] {
        Ipp64fc value;
        ASSERT_EQ(ippsGoertz_64f(x, 6, &value, 0), ippStsNoErr);
        EXPECT_EQ(value.re, 30.5);
        EXPECT_EQ(value.im, 0);
    });
}
