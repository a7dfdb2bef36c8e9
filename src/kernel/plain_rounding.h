// Numbers times a power of two, rounded to integers in one of three ways, within limits. Not with the processor's
// rounding mode, which belongs to the caller's thread.
#pragma once
#include "kernel/minmax.h"
#include "kernel/power_of_two.h"
#include <xmmintrin.h>

namespace sig5d::SIG5D_VARIANT {
namespace {

enum Rounding { TowardZero, NearestEven, NearestAway };

// The limits of integers of so many bits, 32 at most.
template <int bits, bool isSigned> struct Limits {
    static constexpr f64 high = static_cast<f64>((i64(1) << (bits - isSigned)) - 1), low = isSigned ? -high - 1 : 0;
};

// The plain form. A NaN becomes the lower limit.
template <class Bounds> inline i32 rounded(f64 x, Scale scale, int mode)
{
    f64 y = x * scale.first * scale.second;
    y = smaller(larger(y, Bounds::low), Bounds::high);
    asm("" : "+x"(y)); // compilers convert first and limit afterwards, which raises exceptions
    const i32 whole = static_cast<i32>(y);
    const f64 rest = __builtin_fabs(y - whole);
    const bool tie = rest == 0.5, up = mode == NearestAway   ? rest >= 0.5
                                       : mode == NearestEven ? rest > 0.5 || (tie && whole % 2 != 0)
                                                             : false;
    return up ? (y < 0 ? whole - 1 : whole + 1) : whole;
}

// The processor rounds to the nearest, ties to even.
inline bool rounds_to_nearest() { return (_mm_getcsr() & _MM_ROUND_MASK) == _MM_ROUND_NEAREST; }

} // namespace
} // namespace sig5d::SIG5D_VARIANT
