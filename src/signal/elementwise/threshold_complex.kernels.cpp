// Thresholds of complex arrays. Magnitudes are compared by their squares: re*re + im*im with level*level.
#include "frame/entry.h"
#include "kernel/complex_loop.h"
#include "kernel/loops.h"
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct Below {
    template <class V> auto operator()(V x, V y) const { return x < y; }
};
struct Above {
    template <class V> auto operator()(V x, V y) const { return x > y; }
};

// The value instead of elements whose squared magnitude a comparison selects.
#if SIG5D_LEVEL == 0

template <class Compare> void replace(const c64f* a, c64f* d, int n, f64 level, c64f value)
{
    const f64 square = level * level;
    const auto op = [=](c64f x) { return Compare{}(x.re * x.re + x.im * x.im, square) ? value : x; };
    map(static_cast<size_t>(n), d, op, a);
}

#else

inline __m128d exchanged(__m128d x) { return _mm_shuffle_pd(x, x, 1); }
#if SIG5D_LEVEL >= 4
inline __m256d exchanged(__m256d x) { return _mm256_permute_pd(x, 5); }
#endif

template <class Compare> struct Replace {
    static constexpr size_t period = 2; // vectors begin with a real part
    f64 square;
    Vec<f64> values;
    template <class V> V operator()(V x) const
    {
        V value;
        __builtin_memcpy(&value, &values, sizeof value);
        const V squares = x * x;
        return Compare{}(squares + exchanged(squares), all_lanes<V>(square)) ? value : x;
    }
};

template <class Compare> [[gnu::noinline]] void replace(const c64f* a, c64f* d, int n, f64 level, c64f value)
{
    Vec<f64> values;
    for (int i = 0; i < lanes<f64>; ++i) values[i] = i % 2 ? value.im : value.re;
    asm("" : "+x"(values)); // or it would be put together again for every vector
    map(2 * static_cast<size_t>(n), &d->re, Replace<Compare>{level * level, values}, &a->re);
}

#endif

void replace_below(const c64f* a, c64f* d, int n, f64 level, c64f value) { replace<Below>(a, d, n, level, value); }
void replace_above(const c64f* a, c64f* d, int n, f64 level, c64f value) { replace<Above>(a, d, n, level, value); }

// x scaled by a power of two, so that its square neither overflows nor vanishes. Of an infinite element the infinite
// parts become 1 and the finite ones 0, with their signs, and the scale 0.
template <class V> struct Scaled {
    V re, im, scale;
};
template <class V> inline Scaled<V> scaled(Parts<V> x)
{
    const V zero = all_lanes<V>(0), one = all_lanes<V>(1), infinity = all_lanes<V>(__builtin_inf());
    const V re = absolute_value(x.re), im = absolute_value(x.im);
    V most = larger(re, im);
    const auto infinite = most == infinity;
    most = larger(most, all_lanes<V>(0x1p-1022));
    const V scale = infinite ? zero : to_one_digit(most);
    const Parts<V> finite = {infinite ? zero : x.re, infinite ? zero : x.im};
    return {infinite ? with_sign(re == infinity ? one : zero, x.re) : finite.re * scale,
            infinite ? with_sign(im == infinity ? one : zero, x.im) : finite.im * scale, scale};
}

// Keeps the phase and sets the magnitude; 0 has phase 0. Parts that are not selected take no part in the computation.
template <class Compare> struct SetMagnitude {
    f64 level, square;
    template <class V> Parts<V> operator()(Parts<V> x) const
    {
        const auto selected = Compare{}(x.re * x.re + x.im * x.im, all_lanes<V>(square));
        if (!any(selected)) return x;
        const V zero = all_lanes<V>(0), l = all_lanes<V>(level);
        const auto usable = selected & ((x.re != zero) | (x.im != zero));
        const V one = all_lanes<V>(1); // whatever the level, what is not selected makes numbers with it
        const Scaled<V> s = scaled(Parts<V>{usable ? x.re : one, usable ? x.im : selected ? zero : one});
        const V r = square_root(s.re * s.re + s.im * s.im);
        return {selected ? s.re / r * l : x.re, selected ? s.im / r * l : x.im};
    }
};

template <class Compare> [[gnu::noinline]] void set_magnitude(const c64f* a, c64f* d, int n, f64 level)
{
    map_complex(static_cast<size_t>(n), a, d, SetMagnitude<Compare>{level, level * level});
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
    template <class V> Parts<V> operator()(Parts<V> x) const
    {
        const V zero = all_lanes<V>(0), one = all_lanes<V>(1);
        const auto below = x.re * x.re + x.im * x.im < all_lanes<V>(square);
        const auto isZero = (x.re == zero) & (x.im == zero);
        zeros |= any(isZero);
        const Scaled<V> s = scaled(Parts<V>{isZero ? one : x.re, x.im});
        const V norm = s.re * s.re + s.im * s.im;
        const V divisor = below ? square_root(norm) : norm, factor = below ? all_lanes<V>(inverse) : s.scale;
        return {isZero ? all_lanes<V>(inverse) : s.re / divisor * factor, isZero ? zero : -s.im / divisor * factor};
    }
};

[[gnu::noinline]] Status invert(const c64f* a, c64f* d, int n, f64 level)
{
    bool zeros = false;
    if (level == 0) level = 0; // not -0
    map_complex(static_cast<size_t>(n), a, d, LimitedReciprocal{level * level, 1 / level, zeros});
    return zeros && level == 0 ? StsInvZero : StsNoErr;
}

} // namespace
#include "entries/signal/elementwise/threshold_complex.inc"
} // namespace sig5d::SIG5D_VARIANT
