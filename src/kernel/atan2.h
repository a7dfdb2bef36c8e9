// The angle of a point, for numbers and vectors of numbers, the same bits for both.
#pragma once
#include "kernel/complex.h"
#include "kernel/polynomial.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// atan2(y, x) in two halves, for loops that overlap them.
//
// For the angle t to the nearer axis, that to the positive real axis is t, pi/2 - t, pi/2 + t or pi - t: a multiple of
// pi/2 and t or its opposite. From slopes of 1/4 on t is atan(1/2) + atan(p/q) with p = shorter - longer/2 and
// q = longer + shorter/2, so that p/q is within [-2/9, 1/3].
template <class V> struct HalfAngle {
    V start, p, inverse; // angle and numerator have their signs; 1/q
    V qUpper, qLower;    // whose sum is q
    V x, y;
    int unusual; // lanes where this does not hold
};

// pi/2 and atan(1/2) are 1 + startRest times numbers of 50 bits, whose sums are exact.
constexpr f64 quarterTurn = 0x1.921fb54442290p+0, atanOfHalf = 0x1.dac670561aee0p-2, startRest = 0x1.ad20286041de0p-42;
constexpr u64 upperBits = ~u64{0} << 27;

template <class V> inline HalfAngle<V> half_angle(V x, V y)
{
    using Bits = BitsOf<V>;
    const V zero = V{}, half = constant<V>(0.5), quarter = constant<V>(quarterTurn);
    const V a = absolute_value(x), b = absolute_value(y), shorter = smaller(a, b), longer = larger(b, a);
    // Without loss of bits. The smallest divisor serves zeros, the largest keeps sums of what is not usual finite.
    const int usual = lanes_set(longer <= constant<V>(0x1p1000)) &
                      (lanes_set(shorter >= constant<V>(0x1p-900)) | lanes_set(shorter == zero));
    const V divisor = larger(constant<V>(0x1p-960), smaller(constant<V>(0x1p1000), longer)),
            halfDivisor = half * divisor;

    const auto flat = a >= b, beyond = shorter > half * halfDivisor;
    // The sign that is opposite to that of t.
    const auto away = (Bits::of(x) & Bits::all(signBit)) ^ Bits::of(flat ? constant<V>(-0.0) : zero);
    const V opposite = (beyond ? halfDivisor : zero) - shorter; // -p, exact
    const V added = half * (beyond ? shorter : zero), q = divisor + added, qUpper = keep_bits(q, upperBits);
    const V axis = quarter - (flat ? with_sign(quarter, x) : zero);
    const V start = axis - Bits::back(Bits::of(beyond ? constant<V>(atanOfHalf) : zero) ^ away);
    return {start,
            Bits::back(Bits::of(opposite) ^ away),
            constant<V>(1.0) / q,
            qUpper,
            (divisor - qUpper) + added,
            x,
            y,
            usual ^ allLanes<V>};
}

// Of what is usual.
template <class V> inline V whole_angle(const HalfAngle<V>& h)
{
    // (1 - atan(t)/t) / t^2 in z = t^2: minimax polynomial on [0, 1/9], relative error of the angle 2^-56.
    static constexpr f64 arc[] = {0x1.5555555555440p-2,  -0x1.9999999966ca6p-3, 0x1.2492490ae9dbep-3,
                                  -0x1.c71c65107a088p-4, 0x1.745b4e82a79f1p-4,  -0x1.3aecdb0538707p-4,
                                  0x1.0f048cadb969cp-4,  -0x1.bff7808b8f13fp-5, 0x1.0cdf7c4e13e24p-5};
    // p/q = upper + lower, to about 75 bits: products of upper halves are exact (Dekker, 1971).
    const V t = h.p * h.inverse, upper = keep_bits(t, upperBits);
    const V lower = ((h.p - upper * h.qUpper) - upper * h.qLower) * h.inverse;
    const V z = t * t, cubic = t * z * polynomial(arc, z);
    return with_sign(h.start + (upper + (lower + (h.start * constant<V>(startRest) - cubic))), h.y);
}

// Zeros, infinities, NaN, and what the division would lose bits of.
[[gnu::noinline, gnu::cold]] f64 unusual_angle(f64 x, f64 y)
{
    constexpr f64 infinity = __builtin_inf();
    if (x != x || y != y) return x + y;
    const f64 a = absolute_value(x), b = absolute_value(y), shorter = a < b ? a : b, longer = a < b ? b : a;
    const auto direction = [=](f64 re, f64 im) { return whole_angle(half_angle(with_sign(re, x), with_sign(im, y))); };
    if (longer == infinity) return direction(a == infinity, b == infinity);
    const f64 ratio = shorter / longer;
    if (ratio < 0x1p-60) return a > b && x > 0 ? with_sign(ratio, y) : direction(a > b, a < b);
    const f64 scale = longer < 1.0 ? 0x1p600 : 0x1p-600;
    return whole_angle(half_angle(x * scale, y * scale));
}

inline void replace_unusual(f64& angle, const HalfAngle<f64>& h) { angle = unusual_angle(h.x, h.y); }
template <class V> inline void replace_unusual(V& angle, const HalfAngle<V>& h)
{
    for (int i = 0; i < static_cast<int>(sizeof(V) / sizeof(f64)); ++i)
        if (h.unusual >> i & 1) angle[i] = unusual_angle(h.x[i], h.y[i]);
}

// atan2(y, x) in [-pi, pi], with the special values of the C standard.
template <class V> [[gnu::always_inline]] inline V angle(const HalfAngle<V>& h)
{
    V result = whole_angle(h);
    if (__builtin_expect(h.unusual, 0)) replace_unusual(result, h);
    return result;
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
