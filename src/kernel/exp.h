// The exponential function of numbers and vectors of numbers, the same bits for both.
#pragma once
#include "kernel/polynomial.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// e^x for |x| <= 700, within 1.1 units of the last place: 2^n times e^r with |r| <= ln(2)/2. NaN gives anything.
template <class V> inline V moderate_exp(V x)
{
    // (e^r - 1 - r) / r^2, to 2^-55 of e^r
    static constexpr f64 series[] = {0x1.0000000000001p-1,  0x1.5555555555556p-3,  0x1.5555555553d68p-5,
                                     0x1.11111111109b5p-7,  0x1.6c16c17889ef9p-10, 0x1.a01a01a7c2f03p-13,
                                     0x1.a019b914985a9p-16, 0x1.71de0db2f585ep-19, 0x1.28917c8be7ad6p-22,
                                     0x1.af389ed28db09p-26};
    const V shift = constant<V>(0x1.8p52);
    const V shifted = x * constant<V>(0x1.71547652b82fep+0) + shift, n = shifted - shift;
    const V near = x - n * constant<V>(0x1.62e42fefa3800p-1); // exact: a part of ln(2) of 42 bits
    const V r = near - n * constant<V>(0x1.ef35793c76730p-45);
    const V value = constant<V>(1.0) + (r + r * r * polynomial(series, r));
    return BitsOf<V>::back(BitsOf<V>::of(value) + (BitsOf<V>::of(shifted) << 52));
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
