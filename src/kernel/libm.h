// The library's own scalar functions: the same bits on every platform and in every processor variant, at most 1 ulp
// from the exact value. The platforms' own differ from each other, and some are far off near multiples of pi. One file
// per group: libm_trig.cpp.
#pragma once
#include "kernel/doubled.h"

namespace sig5d::libm {

struct CosSin {
    f64 cos, sin;
};

// Sine and cosine of x radians, over the whole range of doubles. Infinities and NaN give NaN; sin(-0) is -0.
f64 sin(f64 x);
f64 cos(f64 x);
CosSin cosSin(f64 x);

// Cosine and sine of 2 pi k / n, for 0 < n <= 2^53: all symmetries of the circle hold to the bit, and what is exact (0,
// 1, the points that k/n = 1/8 gives) is exact or correctly rounded.
CosSin cosSinTurn(i64 k, i64 n);

// The same of two fractions k / n of a turn, n a power of two up to 2^27, 0 < k/n < 1/4 and not 1/8: for tables, in
// less than a fifth of the time.
struct CosSinPair {
    NumberPair cos, sin;
};
CosSinPair cosSinTurns(NumberPair turns);

} // namespace sig5d::libm
