// The exponential function of numbers and vectors of numbers, the same bits for both.
#pragma once
#include "kernel/polynomial.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// e^x for |x| <= 700, within 0.8 units of the last place: 2^n times e^r with |r| <= ln(2)/2. NaN gives anything.
template <class V> inline V moderate_exp(V x)
{
    // (e^r - 1 - r) / r^2, to 2^-61 of e^r
    static constexpr f64 series[] = {0x1.0000000000000p-1,  0x1.5555555555557p-3,  0x1.5555555555556p-5,
                                     0x1.11111111100dfp-7,  0x1.6c16c16c162d6p-10, 0x1.a01a01abe62e4p-13,
                                     0x1.a01a01a6d780cp-16, 0x1.71de023754ddep-19, 0x1.27e4db67b358ep-22,
                                     0x1.af4ddd87988f4p-26, 0x1.1f72fc74cb69cp-29};
    const V shift = constant<V>(0x1.8p52);
    const V shifted = x * constant<V>(0x1.71547652b82fep+0) + shift, n = shifted - shift;
    const V near = x - n * constant<V>(0x1.62e42fefa3800p-1); // exact: a part of ln(2) of 42 bits
    const V tail = n * constant<V>(0x1.ef35793c76730p-45), r = near - tail, lost = (near - r) - tail;
    const V value = constant<V>(1.0) + (r + (r * r * polynomial(series, r) + lost));
    return BitsOf<V>::back(BitsOf<V>::of(value) + (BitsOf<V>::of(shifted) << 52));
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
