// Exponential and logarithm, from their values to about 80 bits.
#include "kernel/libm_exp.h"
#include "kernel/doubled_exp.h"

namespace sig5d::libm {

f64 exp(f64 x)
{
    if (x != x) return x;
    if (x > 710.0) return __builtin_inf();
    if (x < -746.0) return 0.0;
    const Scaled e = exponential({x, 0.0});
    return scaled(e.value.hi, e.exponent);
}

f64 log(f64 x)
{
    if (x == 0) return -__builtin_inf();
    if (!(x > 0 && x <= 0x1.fffffffffffffp1023)) return x < 0 ? __builtin_nan("") : x;
    ComplexScaled z = normalizedParts(x, 0.0);
    if (z.re > rootOfTwo) {
        z.re *= 0.5;
        ++z.e;
    }
    return logarithm({z.re - 1.0, 0.0}, z.e).hi;
}

} // namespace sig5d::libm
