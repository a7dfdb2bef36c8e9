// Complex powers: a^b = e^(b log a), in twice the precision where all is finite, and with the special values of C's
// cpow elsewhere. There is one body: all processors run the same code.
#include "frame/entry.h"
#include "kernel/doubled_exp.h"
#include "kernel/libm.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

using libm::operator+, libm::operator-, libm::operator*;

constexpr f64 infinity = __builtin_inf();
constexpr f64 pi = 2.0 * libm::halfPi.hi;

inline bool finite(f64 x) { return x - x == 0; }
inline bool infinite(f64 x) { return __builtin_fabs(x) == infinity; }
inline f64 with_sign(f64 size, f64 sign) { return __builtin_copysign(size, sign); }

// e^re * (cos im + i sin im) for finite arguments; far beyond the doubles too.
c64f finite_exponential(Doubled re, Doubled im)
{
    if (__builtin_fabs(re.hi) > 2000.0) re = {with_sign(2000.0, re.hi), 0.0};
    const libm::Scaled size = libm::exponential(re);
    const libm::CosSin a = libm::cosSin(im.hi), b = libm::cosSin(im.lo);
    const f64 c = a.cos * b.cos - a.sin * b.sin, s = a.sin * b.cos + a.cos * b.sin;
    const f64 m = size.value.hi, rest = size.value.lo;
    return {libm::scaled(m * c + rest * c, size.exponent), libm::scaled(m * s + rest * s, size.exponent)};
}

// What the C standard's Annex G says of the logarithm, the product and the exponential where something is not finite.

c64f standard_log(c64f z)
{
    if (infinite(z.re) || infinite(z.im)) {
        if (!infinite(z.im)) return {infinity, z.im != z.im ? z.im : with_sign(z.re < 0 ? pi : 0.0, z.im)};
        return {infinity, with_sign(infinite(z.re) ? (z.re < 0 ? 0.75 : 0.25) * pi
                                    : z.re != z.re ? z.re
                                                   : 0.5 * pi,
                                    z.im)};
    }
    if (z.re != z.re || z.im != z.im) return {__builtin_nan(""), __builtin_nan("")};
    if (z.re == 0 && z.im == 0) return {-infinity, with_sign(bitsOf(z.re) >> 63 ? pi : 0.0, z.im)};
    const libm::ComplexScaled parts = libm::normalizedParts(z.re, z.im);
    return {libm::logOfModulus(parts).hi, libm::angle(parts).hi};
}

// An infinity as a direction; a NaN beside one counts as a zero.
c64f boxed(c64f z) { return {with_sign(infinite(z.re), z.re), with_sign(infinite(z.im), z.im)}; }
c64f zeros_for_nan(c64f z)
{
    return {z.re != z.re ? with_sign(0.0, z.re) : z.re, z.im != z.im ? with_sign(0.0, z.im) : z.im};
}

// w is a logarithm: its imaginary part is finite or a NaN, so that an infinite w shows in a product already.
c64f standard_product(c64f z, c64f w)
{
    f64 ac = z.re * w.re, bd = z.im * w.im, ad = z.re * w.im, bc = z.im * w.re;
    const f64 re = ac - bd, im = ad + bc;
    if (re == re || im == im) return {re, im};
    bool recovers = false;
    if (infinite(z.re) || infinite(z.im)) {
        z = boxed(z);
        w = zeros_for_nan(w);
        recovers = true;
    }
    if (!recovers && (infinite(ac) || infinite(bd) || infinite(ad) || infinite(bc))) {
        z = zeros_for_nan(z);
        w = zeros_for_nan(w);
        recovers = true;
    }
    if (!recovers) return {re, im};
    return {infinity * (z.re * w.re - z.im * w.im), infinity * (z.re * w.im + z.im * w.re)};
}

// No imaginary part is finite here, since each factor of the product before takes part in it.
c64f standard_exponential(c64f z)
{
    if (z.re == -infinity) return {0.0, with_sign(0.0, z.im)};
    return {z.re == infinity ? infinity : __builtin_nan(""), __builtin_nan("")};
}

struct ComplexDoubled {
    Doubled re, im;
};
ComplexDoubled product(Doubled re, Doubled im, c64f b) { return {re * b.re + -(im * b.im), re * b.im + im * b.re}; }
inline bool finite(Doubled x) { return finite(x.hi) && finite(x.lo); }

c64f finite_power(c64f a, c64f b)
{
    const libm::ComplexScaled parts = libm::normalizedParts(a.re, a.im);
    const Doubled size = libm::logOfModulus(parts), turn = libm::angle(parts);
    if (__builtin_fabs(b.re) <= 0x1p960 && __builtin_fabs(b.im) <= 0x1p960) {
        const ComplexDoubled exponent = product(size, turn, b);
        return finite_exponential(exponent.re, exponent.im);
    }
    // A part beyond the doubles is taken 2^64 times too small: as a real part it is far beyond all exponents all the
    // same, and an angle that large has no direction that means anything.
    b = {b.re * 0x1p-64, b.im * 0x1p-64};
    const ComplexDoubled exponent = product(size * 0x1p64, turn * 0x1p64, b), small = product(size, turn, b);
    return finite_exponential(finite(exponent.re) ? exponent.re : small.re,
                              finite(exponent.im) ? exponent.im : small.im);
}

c64f power(c64f a, c64f b)
{
    if (finite(a.re) && finite(a.im) && finite(b.re) && finite(b.im) && (a.re != 0 || a.im != 0))
        return finite_power(a, b);
    return standard_exponential(standard_product(b, standard_log(a)));
}

// The first element is left as it is: callers rely on it.
void power(const c64f* a, const c64f* b, c64f* d, u32 n)
{
    for (u32 i = 1; i < n; ++i) d[i] = power(a[i], b[i]);
}

} // namespace
#include "entries/vector/complex_power.inc"
} // namespace sig5d::SIG5D_VARIANT
