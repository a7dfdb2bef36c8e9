// Arithmetic with the 53 significant bits of a double and exponents without limit: every operation rounds like one on
// doubles, and nothing overflows or underflows until the result becomes a double again.
#pragma once
#include "kernel/select.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// m * 2^e with 1 <= |m| < 2; zeros, infinities and NaN stand in m alone, with e = 0.
struct Wide {
    f64 m;
    int e;
};

inline f64 power_of_two(int e) { return BitsOf<f64>::back(static_cast<u64>(e + 1023) << 52); } // -1022 <= e <= 1023

// m * 2^e where m is 0, not finite, or normal.
inline Wide normalized(f64 m, int e)
{
    const u64 bits = BitsOf<f64>::of(m);
    const int exponent = static_cast<int>(bits >> 52 & 0x7FF);
    if (exponent == 0x7FF || m == 0) return {m, 0};
    return {BitsOf<f64>::back((bits & ~infinityBits) | BitsOf<f64>::of(1.0)), e + exponent - 1023};
}
inline Wide wide(f64 x) { return __builtin_fabs(x) < 0x1p-1022 ? normalized(x * 0x1p60, -60) : normalized(x, 0); }

inline Wide operator*(Wide a, Wide b) { return normalized(a.m * b.m, a.e + b.e); }
inline Wide operator-(Wide a) { return {-a.m, a.e}; }
inline Wide reciprocal(Wide a) { return normalized(1.0 / a.m, -a.e); }
inline Wide operator+(Wide a, Wide b)
{
    const f64 sum = a.m + b.m;
    if (sum - sum != 0) return {sum, 0};
    if (a.m == 0) return b.m == 0 ? Wide{sum, 0} : b;
    if (b.m == 0) return a;
    // What is so much smaller changes nothing.
    const int above = a.e - b.e;
    if (above > 200) return a;
    if (above < -200) return b;
    return normalized(a.m * power_of_two(above) + b.m, b.e);
}

// Rounded a second time where the result is subnormal: two factors, of which the first loses nothing.
inline f64 to_double(Wide a)
{
    if (a.e > 1023) return a.m * 0x1p1023 * 2.0;
    if (a.e >= -1022) return a.m * power_of_two(a.e);
    return a.m * 0x1p-1022 * (a.e < -1122 ? 0x1p-100 : power_of_two(a.e + 1022));
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
