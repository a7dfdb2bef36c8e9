// The natural logarithm, for numbers and vectors of numbers, the same bits for both.
#pragma once
#include "kernel/polynomial.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// log(x) in two halves, for loops that overlap them: x = 2^k (1 + f) with sqrt(1/2) <= 1 + f < sqrt(2), and
// s = f / (2 + f), so that log(1 + f) = 2 atanh(s).
template <class V> struct HalfLog {
    V k, f, s;
};

// Of a normal positive number.
template <class V> inline HalfLog<V> half_log(V x)
{
    using Bits = BitsOf<V>;
    constexpr u64 one = 0x3FF0000000000000, rootOfHalf = 0x3FE6A09E667F3BCD, fraction = ~u64{0} >> 12;
    const auto bits = Bits::of(x) + Bits::all(one - rootOfHalf);
    // The exponent becomes the last bits of a double, since not all processors convert integers of 64 bits.
    const V k = Bits::back(bits >> 52 | Bits::all(0x4330000000000000)) - constant<V>(0x1p52 + 1023);
    const V f = Bits::back((bits & Bits::all(fraction)) + Bits::all(rootOfHalf)) - constant<V>(1.0);
    return {k, f, f / (constant<V>(2.0) + f)};
}

// Within 0.9 ulp. 2 atanh(s) = f - s (f - r) with r = s^2 times the polynomial; s f = f^2/2 - s f^2/2 then leaves the
// last rounding to a sum whose first term is exact.
template <class V> inline V whole_log(const HalfLog<V>& h)
{
    // (2 atanh(s)/s - 2) / s^2 in s^2: minimax polynomial on [0, 0.0295], times s^2 within 2^-58.
    static constexpr f64 series[] = {0x1.5555555555592p-1, 0x1.999999997fdb4p-2, 0x1.24924941f14cbp-2,
                                     0x1.c71c520941146p-3, 0x1.74663eed904e7p-3, 0x1.39a1ba3e97e2dp-3,
                                     0x1.2f0567ea08391p-3};
    // The upper part of ln 2 has 42 bits: its products with exponents are exact.
    const V upper = constant<V>(0x1.62e42fefa3800p-1), lower = constant<V>(0x1.ef35793c76730p-45);
    const V square = h.s * h.s, r = square * polynomial(series, square), half = constant<V>(0.5) * h.f * h.f;
    return h.k * upper - ((half - (h.s * (half + r) + h.k * lower)) - h.f);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
