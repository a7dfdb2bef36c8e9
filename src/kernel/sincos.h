// Sine and cosine of numbers and vectors of numbers, the same bits for both. Arguments up to 2^15 are reduced here;
// others go to the library's scalar functions one by one.
#pragma once
#include "kernel/libm.h"
#include "kernel/complex.h"
#include "kernel/polynomial.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// An argument x less the nearest multiple of pi/2: rest - below. The multiple is in the low bits of "quadrant".
template <class V> struct ReducedAngle {
    V rest, below, x;
    typename BitsOf<V>::type quadrant;
    int far; // lanes where x is larger than 2^15, or NaN
};

// For |x| <= 2^15 (Cody and Waite, 1980): pi/2 as two numbers of 38 bits, whose products with the multiple are exact,
// and a third, which goes below with the bits that the rest has no room for. So near to a multiple that bits would be
// missing comes no double of this size.
template <class V> inline ReducedAngle<V> moderate_angle(V x)
{
    const V shift = constant<V>(0x1.8p52);
    const V shifted = x * constant<V>(0x1.45f306dc9c883p-1) + shift, n = shifted - shift;
    const V first = x - n * constant<V>(0x1.921fb54440000p+0); // exact: both are near
    const V product = n * constant<V>(0x1.68c234c4c0000p-39), rest = first - product;
    const V below = n * constant<V>(0x1.98a2e03707345p-77) - ((first - rest) - product);
    return {rest, below, x, BitsOf<V>::of(shifted), 0};
}

// Of any x; those that are far take no part, since their products could overflow.
template <class V> inline ReducedAngle<V> reduced_angle(V x)
{
    const auto near = absolute_value(x) <= constant<V>(0x1p15);
    ReducedAngle<V> angle = moderate_angle(near ? x : V{});
    angle.x = x;
    angle.far = lanes_set(near) ^ allLanes<V>;
    return angle;
}

// Of rest - below in [-pi/4, pi/4]: the cosine is 1 - (half - cosine_rest), the sine rest - sine_rest. The rests are
// minimax polynomials in rest^2 with errors of 2^-58 (sine) and 2^-64 (cosine), and what comes of "below".
template <class V> struct NearZero {
    V half, cosine_rest, sine_rest;
};
template <class V> inline NearZero<V> near_zero(V rest, V below)
{
    static constexpr f64 sine[] = {0x1.5555555555549p-3,   -0x1.111111110f8a6p-7, 0x1.a01a019c16191p-13,
                                   -0x1.71de357b1a5cap-19, 0x1.ae5e689d17ad5p-26, -0x1.5d93a3b6fc2d0p-33};
    static constexpr f64 cosine[] = {0x1.555555555554cp-5,   -0x1.6c16c16c1521fp-10, 0x1.a01a019cbf61ep-16,
                                     -0x1.27e4f812b5515p-22, 0x1.1ee9f15162e55p-29,  -0x1.8fb13027e8b9dp-37};
    const V z = rest * rest, half = z * constant<V>(0.5);
    return {half, z * z * polynomial(cosine, z) + rest * below,
            rest * (z * polynomial(sine, z)) + below * (constant<V>(1.0) - half)};
}

// Cosine and sine, each as a double and what is left of it. The first terms of both series are added last, with what
// their rounding lost.
template <class V> struct WideCosSin {
    Complex<V> value, left;
};
template <class V> inline WideCosSin<V> near_zero_cos_sin(V rest, V below)
{
    const NearZero<V> a = near_zero(rest, below);
    const V one = constant<V>(1.0), c = one - a.half;
    return {{c, rest}, {((one - c) - a.half) + a.cosine_rest, -a.sine_rest}};
}

// (cos, sin) of an angle in the first quadrant, turned by so many of them: odd numbers exchange the two.
template <class V, class Bits> inline Complex<V> in_quadrant(Complex<V> a, Bits quadrant)
{
    using B = BitsOf<V>;
    const auto one = B::all(1), sign = B::all(signBit), cosine = B::of(a.re), sine = B::of(a.im);
    const auto exchange = (cosine ^ sine) & (B::all(0) - (quadrant & one));
    return {B::back(cosine ^ exchange ^ (((quadrant + one) << 62) & sign)),
            B::back(sine ^ exchange ^ ((quadrant << 62) & sign))};
}

// (cos, sin) of x, |x| <= 2^15. The sine of -0 is -0.
template <class V> inline Complex<V> moderate_cos_sin(const ReducedAngle<V>& angle)
{
    const WideCosSin<V> a = near_zero_cos_sin(angle.rest, angle.below);
    return in_quadrant(Complex<V>{a.value.re + a.left.re, a.value.im + a.left.im}, angle.quadrant);
}

inline void replace_far(Complex<f64>& w, int, f64 x)
{
    const libm::CosSin a = libm::cosSin(x);
    w = {a.cos, a.sin};
}
template <class V> inline void replace_far(Complex<V>& w, int far, V x)
{
    for (int i = 0; i < static_cast<int>(sizeof(V) / sizeof(f64)); ++i) {
        if (!(far >> i & 1)) continue;
        const libm::CosSin a = libm::cosSin(x[i]);
        w.re[i] = a.cos;
        w.im[i] = a.sin;
    }
}

// (cos, sin) of any x; infinities and NaN give NaN.
template <class V> [[gnu::always_inline]] inline Complex<V> cos_sin(const ReducedAngle<V>& angle)
{
    Complex<V> w = moderate_cos_sin(angle);
    if (__builtin_expect(angle.far, 0)) replace_far(w, angle.far, angle.x);
    return w;
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
