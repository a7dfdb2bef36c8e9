// Thresholds of complex arrays. Magnitudes are compared by their squares: re*re + im*im with level*level.
#include "frame/entry.h"
#include "kernel/complex.h"
#include "kernel/simd.h"
#include "kernel/pairs.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct Below {
    template <class V> auto operator()(V x, V y) const { return x < y; }
};
struct Above {
    template <class V> auto operator()(V x, V y) const { return x > y; }
};

// The value instead of elements whose squared magnitude a comparison selects.
template <class Compare> struct Replace {
    f64 square;
    Operand<c64f> value;
    c64f operator()(c64f x) const // in px
    {
        return Compare{}(x.re * x.re + x.im * x.im, square) ? value.template as<c64f>() : x;
    }
#if SIG5D_LEVEL > 0
    template <class V> V operator()(V x) const
    {
        const V squares = x * x;
        return Compare{}(squares + swapped(squares), all_lanes<V>(square)) ? value.template as<V>() : x;
    }
#endif
};

template <class Compare> [[gnu::noinline]] void replace(const c64f* a, c64f* d, int n, f64 level, c64f value)
{
    map_pairs(static_cast<size_t>(n), d, Replace<Compare>{level * level, Operand(value)}, a);
}

void replace_below(const c64f* a, c64f* d, int n, f64 level, c64f value) { replace<Below>(a, d, n, level, value); }
void replace_above(const c64f* a, c64f* d, int n, f64 level, c64f value) { replace<Above>(a, d, n, level, value); }

// 2^k that brings a positive normal x into [2, 4).
template <class V> inline V to_one_digit(V x)
{
    using Bits = BitsOf<V>;
    const auto exponent = Bits::all(infinityBits);
    return Bits::back(exponent - (Bits::of(x) & exponent));
}

// x scaled by a power of two, so that its square neither overflows nor vanishes. Of an infinite element the infinite
// parts become 1 and the finite ones 0, with their signs, and the scale 0.
template <class V> struct InRange {
    V re, im, scale;
};
template <class V> inline InRange<V> brought_in_range(Complex<V> x)
{
    const V zero = all_lanes<V>(0), one = all_lanes<V>(1), infinity = all_lanes<V>(__builtin_inf());
    const V re = absolute_value(x.re), im = absolute_value(x.im);
    V most = larger(re, im);
    const auto infinite = most == infinity;
    most = larger(most, all_lanes<V>(0x1p-1022));
    const V scale = infinite ? zero : to_one_digit(most);
    const Complex<V> finite = {infinite ? zero : x.re, infinite ? zero : x.im};
    return {infinite ? with_sign(re == infinity ? one : zero, x.re) : finite.re * scale,
            infinite ? with_sign(im == infinity ? one : zero, x.im) : finite.im * scale, scale};
}

// Keeps the phase and sets the magnitude; 0 has phase 0. Parts that are not selected take no part in the computation.
template <class Compare> struct SetMagnitude {
    f64 level, square;
    template <class V> Complex<V> operator()(Complex<V> x) const
    {
        const auto selected = Compare{}(x.re * x.re + x.im * x.im, all_lanes<V>(square));
        if (!any(selected)) return x;
        const V zero = all_lanes<V>(0), l = all_lanes<V>(level);
        const auto usable = selected & ((x.re != zero) | (x.im != zero));
        const V one = all_lanes<V>(1); // whatever the level, what is not selected makes numbers with it
        const InRange<V> s = brought_in_range(Complex<V>{usable ? x.re : one, usable ? x.im : selected ? zero : one});
        const V r = square_root(s.re * s.re + s.im * s.im);
        return {selected ? s.re / r * l : x.re, selected ? s.im / r * l : x.im};
    }
};

template <class Compare> [[gnu::noinline]] void set_magnitude(const c64f* a, c64f* d, int n, f64 level)
{
    map<Heavy<1>>(static_cast<size_t>(n), folded(d), SetMagnitude<Compare>{level, level * level}, folded(a));
}
void limit_below(const c64f* a, c64f* d, int n, f64 level) { set_magnitude<Below>(a, d, n, level); }
void limit_above(const c64f* a, c64f* d, int n, f64 level) { set_magnitude<Above>(a, d, n, level); }

// relOp: 0 is "less than", 4 is "greater than".
void limit(const c64f* a, c64f* d, int n, f64 level, int relOp)
{
    relOp == 0 ? limit_below(a, d, n, level) : limit_above(a, d, n, level);
}

// 1/x is the conjugate of x divided by the square of the magnitude, that of the raised element by magnitude and level.
struct LimitedReciprocal {
    f64 square, inverse;
    bool& zeros;
    template <class V> Complex<V> operator()(Complex<V> x) const
    {
        const V zero = all_lanes<V>(0), one = all_lanes<V>(1);
        const auto below = x.re * x.re + x.im * x.im < all_lanes<V>(square);
        const auto isZero = (x.re == zero) & (x.im == zero);
        zeros |= any(isZero);
        const InRange<V> s = brought_in_range(Complex<V>{isZero ? one : x.re, x.im});
        const V norm = s.re * s.re + s.im * s.im;
        const V divisor = below ? square_root(norm) : norm, factor = below ? all_lanes<V>(inverse) : s.scale;
        return {isZero ? all_lanes<V>(inverse) : s.re / divisor * factor, isZero ? zero : -s.im / divisor * factor};
    }
};

[[gnu::noinline]] Status invert(const c64f* a, c64f* d, int n, f64 level)
{
    bool zeros = false;
    if (level == 0) level = 0; // not -0
    map<Heavy<1>>(static_cast<size_t>(n), folded(d), LimitedReciprocal{level * level, 1 / level, zeros}, folded(a));
    return zeros && level == 0 ? StsInvZero : StsNoErr;
}

} // namespace
#include "entries/signal/elementwise/threshold_complex.inc"
} // namespace sig5d::SIG5D_VARIANT
