// Complex numbers whose parts stand in vectors of their own: for formulas that compute the parts from one another, and
// for arrays of parts. An operation takes and gives real numbers as V and complex ones as Complex<V>, where V is a
// number (in px) or a vector.
#pragma once
#include "kernel/map.h"
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class V> struct Complex {
    V re, im;
};

// An array of complex numbers. "Folded" puts the numbers into lanes in another order, which saves shuffles: for loops
// from complex to complex.
template <class T, bool folds> struct ComplexArray {
    static constexpr size_t lanesOfEach = lanesOf<f64*>;
    T* p;
    ComplexArray operator+(size_t n) const { return {p + n}; }
};
template <class T> inline ComplexArray<T, false> complex(T* p) { return {p}; }
template <class T> inline ComplexArray<T, true> folded(T* p) { return {p}; }
template <class T, bool folds> inline Span span(ComplexArray<T, folds> a, size_t n) { return span(a.p, n); }
template <class T, bool folds> constexpr bool isArray<ComplexArray<T, folds>> = true;
template <bool folds> inline void pin(ComplexArray<c64f, folds>& d) { pin(d.p); }

// Real numbers in the order of lanes that "folded" gives complex ones.
struct FoldedReals {
    const f64* p;
    FoldedReals operator+(size_t n) const { return {p + n}; }
};
inline Span span(FoldedReals a, size_t n) { return span(a.p, n); }

struct Zeros {
    Zeros operator+(size_t) const { return {}; }
};
inline Span span(Zeros, size_t) { return nowhere; }

#if SIG5D_LEVEL == 0

template <int n> inline f64 load_lanes(Zeros) { return 0.0; }
template <int n> inline f64 load_lanes(FoldedReals a) { return *a.p; }
template <int n, class T, bool folds> inline Complex<f64> load_lanes(ComplexArray<T, folds> a)
{
    return {a.p->re, a.p->im};
}
template <int n, class Write, bool folds> inline void store_lanes(Write, ComplexArray<c64f, folds> d, Complex<f64> v)
{
    // Apart from one another: compilers compute a sum and a difference beside it as two sums and two differences, of
    // which the others may overflow.
    asm("" : "+x"(v.re));
    *d.p = {v.re, v.im};
}

#else

template <int n> constexpr int atLeastTwo = n < 2 ? 2 : n;

template <int n, class V> inline auto joined(Complex<V> low, Complex<V> high)
{
    using Both = decltype(joined<n>(low.re, high.re));
    return Complex<Both>{joined<n>(low.re, high.re), joined<n>(low.im, high.im)};
}
template <int n, class V> inline auto upper_lanes(Complex<V> v)
{
    using Half = decltype(upper_lanes<n>(v.re));
    return Complex<Half>{upper_lanes<n>(v.re), upper_lanes<n>(v.im)};
}

// Pairs of lanes: the first of each, the second of each. The same shuffles make pairs again.
template <class V> inline Complex<V> exchanged(V a, V b) { return {shuffled<0>(a, b), shuffled<allLanes<V>>(a, b)}; }

// So many numbers, of which every other one is read. Halves of vectors take no shuffle when they come from memory.
template <int numbers> inline Vec<f64, 2 * numbers> every_other(const f64* p)
{
    if constexpr (numbers == 1)
        return loadn<2>(p);
    else
        return joined<numbers>(every_other<numbers / 2>(p), every_other<numbers / 2>(p + 2 * numbers));
}

template <int n> inline Vec<f64, atLeastTwo<n>> load_lanes(Zeros) { return Vec<f64, atLeastTwo<n>>{}; }
template <int n, class T, bool folds> inline Complex<Vec<f64, atLeastTwo<n>>> load_lanes(ComplexArray<T, folds> a)
{
    const f64* const p = &a.p->re;
    if constexpr (n == 1)
        return exchanged(loadn<2>(p), loadn<2>(p));
    else if constexpr (n == 2 || folds)
        return exchanged(loadn<n>(p), loadn<n>(p + n));
    else
        return exchanged(every_other<n / 2>(p), every_other<n / 2>(p + 2));
}

template <class V, size_t... i> inline V in_folded_order(V v, std::index_sequence<i...>)
{
    return __builtin_shufflevector(v, v, (i / 2 + i % 2 * (sizeof...(i) / 2))...);
}
template <int n> inline Vec<f64, atLeastTwo<n>> load_lanes(FoldedReals a)
{
    if constexpr (n <= 2)
        return load_lanes<n>(a.p);
    else
        return in_folded_order(loadn<n>(a.p), std::make_index_sequence<n>{});
}

// Numbers of a and of b in turn, from the lower or the upper half of each.
template <size_t from, class V, size_t... i> inline V in_turn(V a, V b, std::index_sequence<i...>)
{
    constexpr size_t L = sizeof...(i);
    return __builtin_shufflevector(a, b, (from + i / 4 * 2 + i % 2 + i / 2 % 2 * L)...);
}
template <int n, class Write, class V, bool folds>
inline void store_lanes(Write write, ComplexArray<c64f, folds> d, Complex<V> v)
{
    using W = Vec<f64, atLeastTwo<n>>;
    f64* const p = &d.p->re;
    const auto pairs = exchanged(low_end<W>(v.re), low_end<W>(v.im));
    if constexpr (n == 1) {
        store_at(p, pairs.re);
    } else if constexpr (n == 2 || folds) {
        write(p, pairs.re);
        write(p + n, pairs.im);
    } else {
        write(p, in_turn<0>(pairs.re, pairs.im, std::make_index_sequence<n>{}));
        write(p + n, in_turn<n / 2>(pairs.re, pairs.im, std::make_index_sequence<n>{}));
    }
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
