// Phases of periodic signals: i times a frequency, without an error that grows with i.
#pragma once
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr f64 fullTurn = 6.283185307179586, turnsEach = 0.15915494309189535; // a radian

// A number less the nearest whole one, or nearly, whose low bits are in "whole": high + low, where |low| < 2^-8.
template <class V> struct Fraction {
    V high, low;
    typename BitsOf<V>::type whole;
};

// A number below 8 times whole numbers up to 2^31, exactly: in three parts of 22 bits, whose products are exact.
struct ExactMultiples {
    f64 first, second, third;
    explicit ExactMultiples(f64 x)
    {
        constexpr u64 mask = ~u64{0x7FFFFFFF};
        first = keep_bits(x, mask);
        second = keep_bits(x - first, mask);
        third = (x - first) - second;
    }

    template <class V> Fraction<V> fraction(V i) const
    {
        const V shift = constant<V>(0x1.8p52);
        const V a = i * all_lanes<V>(first), b = i * all_lanes<V>(second);
        const V aWhole = a + shift, bWhole = b + shift;
        const V aRest = a - (aWhole - shift), bRest = b - (bWhole - shift);
        const V high = aRest + bRest, part = high - aRest;
        return {high, ((aRest - (high - part)) + (bRest - part)) + i * all_lanes<V>(third),
                BitsOf<V>::of(aWhole) + BitsOf<V>::of(bWhole)};
    }
};

// The phase behind n elements: within one turn, or 0 where rounding leaves it outside.
inline f64 advanced(f64 phase, int n, f64 frequency)
{
    const f64 v = phase + n * (fullTurn * frequency), turns = v * turnsEach;
    f64 whole = (turns + 0x1p52) - 0x1p52;
    if (whole > turns) whole -= 1.0;
    const f64 left = v - whole * fullTurn;
    return left < 0 || left >= fullTurn ? 0.0 : left;
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
