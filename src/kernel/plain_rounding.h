// Numbers times a power of two, rounded to integers in one of three ways, within limits. Not with the processor's
// rounding mode, which belongs to the caller's thread.
#pragma once
#include "kernel/simd.h"
#include "kernel/power_of_two.h"
#include <xmmintrin.h>

namespace sig5d::SIG5D_VARIANT {
namespace {

enum Rounding { TowardZero, NearestEven, NearestAway };

// The limits of integers of so many bits, 32 at most.
template <int bits, bool isSigned> struct Limits {
    static constexpr f64 high = static_cast<f64>((i64(1) << (bits - isSigned)) - 1), low = isSigned ? -high - 1 : 0;
};

// x times the scale where that is within the limits of all integers, otherwise a number beyond them: none that
// overflows. A NaN stays one, or becomes one of those that are negative.
inline f64 limited_product(f64 x, f64 factor)
{
    if (!(factor > 1)) return x * factor;
    const f64 most = 0x1p80 / factor;
    return smaller(larger(x, -most), most) * factor;
}
inline f64 limited_product(f64 x, Scale scale)
{
    return limited_product(limited_product(x, scale.first), scale.second);
}

// The plain form. A NaN becomes the lower limit.
template <class Bounds> inline i32 rounded(f64 x, Scale scale, int mode)
{
    f64 y = limited_product(x, scale);
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

// The processor rounds to the nearest as long as this lives, for integer results of many operations, which are to
// depend on no mode. What is computed meanwhile stands in a function that is not inlined: the compiler does not know
// that it depends on this.
class NearestMode
{
public:
    NearestMode() : direction_(_mm_getcsr() & _MM_ROUND_MASK)
    {
        if (direction_ != _MM_ROUND_NEAREST) _mm_setcsr(_mm_getcsr() & ~static_cast<u32>(_MM_ROUND_MASK));
    }
    ~NearestMode()
    {
        if (direction_ != _MM_ROUND_NEAREST) _mm_setcsr(_mm_getcsr() | direction_);
    }

private:
    u32 direction_;
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
