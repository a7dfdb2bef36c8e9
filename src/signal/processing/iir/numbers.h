// Numbers as the recurrences take them, single ones or w side by side, real or complex. The parts of complex ones stand
// in registers of their own: no product waits for a shuffle, and each is what it is in single numbers.
#pragma once
#include "kernel/complex.h"
#include <cstddef>

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T, int w> struct NumberType {
    using type = Vec<f64, w>;
};
template <int w> struct NumberType<c64f, w> {
    using type = Complex<Vec<f64, w>>;
};
template <class T, int w = 1> using Number = typename NumberType<T, w>::type;

template <class T> constexpr int partsOf = sizeof(T) / sizeof(f64);

// The parts of single numbers are kept apart: of a sum beside a difference compilers make two sums and two differences,
// of which the others may overflow.
template <class V> inline Complex<V> withParts(V re, V im)
{
    if constexpr (sizeof(V) == sizeof(f64)) asm("" : "+x"(re));
    return {re, im};
}
template <class V> inline Complex<V> operator+(Complex<V> x, Complex<V> y)
{
    return withParts(x.re + y.re, x.im + y.im);
}
template <class V> inline Complex<V> operator-(Complex<V> x, Complex<V> y)
{
    return withParts(x.re - y.re, x.im - y.im);
}
template <class V> inline Complex<V> operator*(Complex<V> x, Complex<V> y)
{
    return withParts(x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re);
}

// Samples, as they stand in the caller's arrays.
inline f64 sample(const f64* p) { return *p; }
inline Complex<f64> sample(const c64f* p) { return {p->re, p->im}; }
inline void setSample(f64* p, f64 x) { *p = x; }
inline void setSample(c64f* p, Complex<f64> x) { *p = {x.re, x.im}; }

// An array of a state, from some place on; of complex numbers first all real parts, then all imaginary parts.
template <class T> struct Row {
    f64* p;
    Row(f64* start, ptrdiff_t) : p(start) {}
    template <int w = 1> Vec<f64, w> get(ptrdiff_t i) const { return loadn<w>(p + i); }
    template <int w = 1> void set(ptrdiff_t i, Vec<f64, w> x) const { storen<w>(p + i, x); }
    void moveOn(ptrdiff_t i) { p += i; }
};
template <> struct Row<c64f> {
    f64 *re, *im;
    Row(f64* start, ptrdiff_t length) : re(start), im(start + length) {}
    template <int w = 1> Complex<Vec<f64, w>> get(ptrdiff_t i) const { return {loadn<w>(re + i), loadn<w>(im + i)}; }
    template <int w = 1> void set(ptrdiff_t i, Complex<Vec<f64, w>> x) const
    {
        storen<w>(re + i, x.re);
        storen<w>(im + i, x.im);
    }
    void moveOn(ptrdiff_t i)
    {
        re += i;
        im += i;
    }
};

#if SIG5D_LEVEL > 0

template <int w> inline Vec<f64, w> inAllLanes(f64 x) { return splatn<w>(x); }
template <int w> inline Complex<Vec<f64, w>> inAllLanes(Complex<f64> x) { return {splatn<w>(x.re), splatn<w>(x.im)}; }

template <class V> inline f64 lowestLane(V v) { return v[0]; }
template <class V> inline Complex<f64> lowestLane(Complex<V> v) { return {v.re[0], v.im[0]}; }

template <class V> inline Complex<V> lanes_shifted_down(Complex<V> v, Complex<V> above)
{
    return {lanes_shifted_down(v.re, above.re), lanes_shifted_down(v.im, above.im)};
}

// The lanes of x that the mask sets, with zeros or the lanes of y between them.
template <class V> inline V masked(V x, V mask) { return both(x, mask); }
template <class V> inline Complex<V> masked(Complex<V> x, V mask) { return {both(x.re, mask), both(x.im, mask)}; }
template <class V> inline V chosen(V mask, V x, V y) { return either(both(x, mask), without(y, mask)); }
template <class V> inline Complex<V> chosen(V mask, Complex<V> x, Complex<V> y)
{
    return {chosen(mask, x.re, y.re), chosen(mask, x.im, y.im)};
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
