// Angles that are integer multiples of one fraction of the circle, known to more than a double's precision: so their
// sines and cosines are as exact at the last multiple of a billion as at the first.
#pragma once
#include "kernel/doubled.h"
#include "kernel/sincos.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// rest - below, behind so many quarters of a turn (of which the low bits count).
template <class V> struct QuarterAngle {
    V rest, below;
    typename BitsOf<V>::type quarter;
};

template <class V> inline WideCosSin<V> wide_cos_sin(const QuarterAngle<V>& a)
{
    const WideCosSin<V> first = near_zero_cos_sin(a.rest, a.below);
    return {in_quadrant(first.value, a.quarter), in_quadrant(first.left, a.quarter)};
}
template <class V> inline Complex<V> cos_sin(const QuarterAngle<V>& a)
{
    const WideCosSin<V> w = wide_cos_sin(a);
    return {w.value.re + w.left.re, w.value.im + w.left.im};
}

// The leading 22 bits of a number: the product with an integer below 2^31 is exact.
template <class V> inline V short_head(V x) { return keep_bits(x, ~u64{0x7FFFFFFF}); }

// An angle as a factor of integers.
struct AngleFactor {
    f64 head, tail;
    explicit AngleFactor(sig5d::Doubled angle) : head(short_head(angle.hi)), tail((angle.hi - head) + angle.lo) {}

    // n times the angle; |n| < 2^31.
    template <class V> QuarterAngle<V> times(V n) const
    {
        const V high = n * all_lanes<V>(head), low = n * all_lanes<V>(tail), rest = high + low;
        return {rest, (rest - high) - low, BitsOf<V>::all(0)};
    }
};

constexpr sig5d::Doubled quarterTurnInTwo = {0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54};
inline sig5d::Doubled fraction_of(sig5d::Doubled x, f64 divisor)
{
    const f64 first = x.hi / divisor;
    const sig5d::Doubled back = twoProduct(first, divisor);
    return {first, (((x.hi - back.hi) - back.lo) + x.lo) / divisor};
}

// 2 pi n / period, for whole numbers |n| <= 2^31 and 0 < period < 2^31.
struct Circle {
    f64 period, quartersEach;
    AngleFactor unit; // of which a turn has four periods

    explicit Circle(f64 steps) : period(steps), quartersEach(4.0 / steps), unit(fraction_of(quarterTurnInTwo, steps)) {}

    template <class V> QuarterAngle<V> angle(V n) const
    {
        const V shift = constant<V>(0x1.8p52), shifted = n * all_lanes<V>(quartersEach) + shift;
        const V left = n * constant<V>(4.0) - (shifted - shift) * all_lanes<V>(period); // exact
        QuarterAngle<V> a = unit.times(left);
        a.quarter = BitsOf<V>::of(shifted);
        return a;
    }
    // Less than an eighth of a turn.
    template <class V> QuarterAngle<V> small_angle(V n) const { return unit.times(n * constant<V>(4.0)); }
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
