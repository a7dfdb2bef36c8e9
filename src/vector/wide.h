// Arithmetic with the 53 significant bits of a double and exponents without limit: every operation rounds like one on
// doubles, and nothing overflows or underflows until the result becomes a double again.
#pragma once
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// m * 2^e with 1 <= |m| < 2; zeros, infinities and NaN stand in m alone, with e = 0.
struct Wide {
    f64 m;
    int e;
};

// The bits of a double, in the lower half of a vector register: integer registers would be reached through memory on
// i386, in two parts that have to be waited for.
using Words = Vec<u64, 2>;
inline f64 number(Words bits) { return reinterpret_cast<Vec<f64, 2>>(bits)[0]; }
inline Words words(f64 x) { return reinterpret_cast<Words>(Vec<f64, 2>{x, 0.0}); }

inline f64 power_of_two(int e) // -1022 <= e <= 1023
{
    return number(reinterpret_cast<Words>(Vec<i32, 4>{e + 1023, 0, 0, 0}) << 52);
}

// m * 2^e where m is 0, not finite, or normal.
inline Wide normalized(f64 m, int e)
{
    const Words bits = words(m);
    const int exponent = reinterpret_cast<Vec<i32, 4>>(bits >> 52)[0] & 0x7FF;
    if (exponent == 0x7FF || m == 0) return {m, 0};
    return {number((bits & ~infinityBits) | words(1.0)), e + exponent - 1023};
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
    // What is so much smaller, however much, shows at most the direction in which to round.
    const int above = a.e - b.e;
    if (above > 200) return normalized(a.m + b.m * 0x1p-200, a.e);
    if (above < -200) return normalized(a.m * 0x1p-200 + b.m, b.e);
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
