#include "signal/processing/iir/filters.h"
#include <cmath>
#include <gtest/gtest.h>
#include <xmmintrin.h>

using namespace iir;
namespace {

template <class T> class Filters : public testing::Test
{
protected:
    std::mt19937 g{4711};
};
using Types = testing::Types<Ipp64f, Ipp64fc>;
TYPED_TEST_SUITE(Filters, Types);

// Every way through the bodies: each order up to several vectors of delays, each number of sections up to several
// passes; lengths shorter than the lag of the last section and longer; two calls, so that delays are handed on.
TYPED_TEST(Filters, EqualTheLiteralRecurrenceToTheBit)
{
    using T = TypeParam;
    for (const Kind kind : {ofOrder, ofSections}) {
        for (const int count :
             {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 15, 16, 17, 18, 19, 20, 24, 31, 32, 33, 35, 50, 70}) {
            const auto f = draw<T>(this->g, kind, count);
            for (const int n : {1, 2, 3, 4, 5, 8, 13, 29, 60, 61, 129, 130, 131, 300, 417}) {
                const auto x = noise<T>(this->g, n), next = noise<T>(this->g, 7);
                auto d = f.delays;
                const auto expected = f.expected(d, x), after = f.expected(d, next);
                for (const auto& v : support::supported()) {
                    support::force(v);
                    Filter<T> filter(f), other(f);
                    ASSERT_EQ(filter.status, 0);
                    std::vector<T> y(n), z(7), inPlace = x;
                    ASSERT_EQ(filter(x.data(), y.data(), n), 0);
                    ASSERT_EQ(difference(y, expected), -1) << v.code << " " << kind << " " << count << " " << n;
                    ASSERT_EQ(filter(next.data(), z.data(), 7), 0);
                    ASSERT_EQ(difference(z, after), -1) << v.code << " " << kind << " " << count << " " << n;
                    ASSERT_EQ(Functions<T>::filterInPlace(inPlace.data(), n, other.state), 0);
                    ASSERT_EQ(difference(inPlace, expected), -1) << v.code << " " << kind << " " << count << " " << n;
                }
            }
        }
    }
}

// A stream cut anywhere, in place or not, sample by sample or not, in variants that take turns.
TYPED_TEST(Filters, StreamsMayBeCutAnywhere)
{
    using T = TypeParam;
    using F = Functions<T>;
    const auto x = noise<T>(this->g, 900);
    const auto variants = support::supported();
    for (const Kind kind : {ofOrder, ofSections}) {
        for (const int count : {1, 2, 3, 4, 6, 8, 11, 16, 37}) {
            const auto f = draw<T>(this->g, kind, count);
            auto d = f.delays;
            const auto expected = f.expected(d, x);
            for (int partition = 0; partition < 60; ++partition) {
                Filter<T> filter(f);
                std::vector<T> y = x;
                const int scale = 1 << this->g() % 10;
                for (int i = 0; i < 900;) {
                    support::force(variants[this->g() % variants.size()]);
                    const int n = std::min<int>(900 - i, 1 + this->g() % scale);
                    if (n == 1)
                        ASSERT_EQ(F::one(x[i], &y[i], filter.state), 0);
                    else
                        ASSERT_EQ(filter(this->g() % 2 ? &x[i] : &y[i], &y[i], n), 0);
                    i += n;
                }
                ASSERT_EQ(difference(y, expected), -1) << kind << " " << count << " " << partition;
            }
        }
    }
}

double distance(double a, long double b) { return static_cast<double>(std::abs(a - b)); }
double distance(Ipp64fc a, oracle::LongComplex b) { return std::max(distance(a.re, b.re), distance(a.im, b.im)); }

// The difference equation in wider arithmetic, which knows nothing of delays: both kinds of filter mean that.
TYPED_TEST(Filters, SolveTheDifferenceEquation)
{
    using T = TypeParam;
    const auto x = noise<T>(this->g, 500);
    for (const int count : {1, 2, 5, 9, 20}) {
        auto f = draw<T>(this->g, ofOrder, count);
        f.delays.clear();
        set(f.taps[count + 1], 2.0 * count + 1, 0);
        const auto exact = oracle::differenceEquation(oracle::wide(f.taps), oracle::wide(x), 2.0L * count + 1);
        std::vector<T> y(500);
        ASSERT_EQ(Filter<T>{f}(x.data(), y.data(), 500), 0);
        for (int i = 0; i < 500; ++i) ASSERT_LT(distance(y[i], exact[i]), 1e-13) << count << " " << i;
    }
    auto f = draw<T>(this->g, ofSections, 9);
    f.delays.clear();
    auto exact = oracle::wide(x);
    for (int s = 0; s < 9; ++s) {
        set(f.taps[6 * s + 3], 2.5, 0);
        const std::vector<T> taps(f.taps.begin() + 6 * s, f.taps.begin() + 6 * s + 6);
        exact = oracle::differenceEquation(oracle::wide(taps), exact, 2.5L);
    }
    std::vector<T> y(500);
    ASSERT_EQ(Filter<T>{f}(x.data(), y.data(), 500), 0);
    for (int i = 0; i < 500; ++i) ASSERT_LT(distance(y[i], exact[i]), 1e-12) << i;
}

TYPED_TEST(Filters, InfiniteAndTinyNumbersGoTheirWay)
{
    using T = TypeParam;
    for (const Kind kind : {ofOrder, ofSections}) {
        for (const int count : {1, 2, 3, 5, 8, 9, 16, 21}) {
            const auto f = draw<T>(this->g, kind, count);
            for (const double special : {HUGE_VAL, -HUGE_VAL, std::nan(""), 0.0, -0.0, 1e308, 5e-324}) {
                auto x = std::vector<T>(150);
                for (T& v : x) set(v, -0.0, -0.0);
                set(x[90], special, special == 0 ? -0.0 : 1);
                auto d = f.delays;
                const auto expected = f.expected(d, x);
                for (const auto& v : support::supported()) {
                    support::force(v);
                    std::vector<T> y(150);
                    Filter<T> filter(f);
                    filter(x.data(), y.data(), 150);
                    ASSERT_EQ(difference(y, expected), -1) << v.code << " " << kind << " " << count << " " << special;
                }
            }
        }
    }
}

// Sections that have no sample yet or none any more, and lanes without a section, raise nothing: neither with delays
// that would overflow in another sample, nor with taps that are infinite.
TYPED_TEST(Filters, LanesWithoutASampleRaiseNoExceptions)
{
    using T = TypeParam;
    constexpr unsigned watched = _MM_EXCEPT_INVALID | _MM_EXCEPT_DIV_ZERO | _MM_EXCEPT_OVERFLOW;
    constexpr int n = 200;
    const auto x = noise<T>(this->g, n);
    for (const Kind kind : {ofOrder, ofSections}) {
        for (const int count : {2, 3, 5, 8, 12, 16, 17}) {
            for (const bool infinite : {false, true}) {
                auto f = draw<T>(this->g, kind, count);
                if (infinite) {
                    set(f.taps[kind == ofOrder ? count : 6 * count - 4], HUGE_VAL, 1);
                } else {
                    set(f.delays.back(), 1e308, 0); // which one more sample of the last section could make overflow
                    set(f.delays[0], 1e308, 0);
                }
                std::vector<unsigned> raised;
                for (const auto& v : support::supported()) {
                    support::force(v);
                    Filter<T> filter(f);
                    std::vector<T> y(n);
                    _MM_SET_EXCEPTION_STATE(0);
                    filter(x.data(), y.data(), n);
                    raised.push_back(_MM_GET_EXCEPTION_STATE() & watched);
                    ASSERT_EQ(raised.back(), raised[0]) << v.code << " " << kind << " " << count << " " << infinite;
                }
            }
        }
    }
    _MM_SET_EXCEPTION_STATE(0);
}

} // namespace
