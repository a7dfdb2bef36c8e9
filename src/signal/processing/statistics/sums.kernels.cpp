// Sums, means and dot products of doubles and complex numbers.
#include "frame/entry.h"
#include "signal/processing/statistics/terms.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Real numbers each twice, beside the parts of complex ones. Only even places are asked for, but in px.
struct EachTwice {
    const f64* p;
    size_t i = 0;
    EachTwice operator+(size_t n) const { return {p, i + n}; }
};
template <int n> inline auto load_lanes(EachTwice a)
{
    const f64* const p = a.p + a.i / 2;
    if constexpr (n <= 2)
        return broadcast<n>(p);
    else
        return each_twice<n>(p);
}
// Complex numbers as arrays of their parts, which stand exchanged.
struct PartsExchanged {
    const f64* p;
    size_t i = 0;
    PartsExchanged operator+(size_t n) const { return {p, i + n}; }
};
template <int n> inline auto load_lanes(PartsExchanged a)
{
    if constexpr (n == 1)
        return a.p[a.i ^ 1];
    else
        return swapped(loadn<n>(a.p + a.i));
}

template <int members> struct Products : SumTerms<members> {
    template <class V> V operator()(V x, V y) const { return x * y; }
};
// The products of the parts of two complex numbers: re with re and im with im, re with im and im with re.
struct ComplexProducts {
    static constexpr size_t lanes = 16, block = 1024;
    static constexpr int sums = 2, members = 2;
    template <class V> Terms<V, 2> operator()(V x, V y, V exchanged) const
    {
        x = in_register(x);
        return {{x * y, x * exchanged}};
    }
};

template <class T, class A> [[gnu::always_inline]] inline auto total(const T* a, int n, A source)
{
    return sum_of(count(a, n), Elements<sizeof(T) / sizeof(f64)>{}, source);
}

// The sum of numbers that are so large that it may have no place among doubles, divided by their number.
template <class T> [[gnu::noinline]] void mean_scaled(const T* a, int n, f64* mean)
{
    const auto t = total(a, n, ScaledReals{parts(a), farDown});
    for (size_t m = 0; m < sizeof(T) / sizeof(f64); ++m)
        if (!is_finite(mean[m])) mean[m] = t.of[0][m] / n * farUp;
}

template <class T> [[gnu::noinline]] void sum(const T* a, int n, T* result)
{
    const auto t = total(a, n, parts(a));
    __builtin_memcpy(result, t.of, sizeof *result);
}
template <class T> [[gnu::noinline]] void mean(const T* a, int n, T* result)
{
    const auto t = total(a, n, parts(a));
    f64 means[sizeof(T) / sizeof(f64)];
    bool finite = true;
    for (size_t m = 0; m < sizeof(T) / sizeof(f64); ++m) {
        means[m] = t.of[0][m] / n;
        finite &= is_finite(means[m]);
    }
    if (!finite) mean_scaled(a, n, means);
    __builtin_memcpy(result, means, sizeof *result);
}

[[gnu::noinline]] void dot(const f64* a, const f64* b, int n, f64* result)
{
    *result = sum_of(count(a, n), Products<1>{}, a, b).of[0][0];
}
[[gnu::noinline]] void dot(const f64* a, const c64f* b, int n, c64f* result)
{
    const auto t = sum_of(count(b, n), Products<2>{}, EachTwice{a}, parts(b));
    *result = {t.of[0][0], t.of[0][1]};
}
[[gnu::noinline]] void dot(const c64f* a, const c64f* b, int n, c64f* result)
{
    const auto t = sum_of(count(a, n), ComplexProducts{}, parts(a), parts(b), PartsExchanged{parts(b)});
    // Apart: compilers compute a difference and a sum as two of each, of which the others may be of infinities.
    const f64 re = in_register(t.of[0][0] - t.of[0][1]);
    *result = {re, t.of[1][0] + t.of[1][1]};
}

} // namespace
#include "entries/signal/processing/statistics/sums.inc"
} // namespace sig5d::SIG5D_VARIANT
