// Exponential and logarithm of the library's own: the same bits on every platform, within 0.501 ulp of the exact value
// (0.76 where the exponential is below the normal numbers).
#pragma once
#include "frame/types.h"

namespace sig5d::libm {

// 0 below and infinity above the doubles.
f64 exp(f64 x);
// -infinity of a zero, NaN of negative numbers.
f64 log(f64 x);

} // namespace sig5d::libm
