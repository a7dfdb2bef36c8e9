// Square roots, real and complex.
#include "frame/entry.h"
#include "kernel/complex.h"
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct RealRoot {
    int& negatives;
    template <class V> V operator()(V x) const
    {
        const V root = square_root(x);
        const auto none = root != root; // of NaN too
        negatives |= lanes_set(none);
        return none ? from_bits<V>(indefiniteBits) : root;
    }
};

// Complex roots. For z = x + iy let t = sqrt((|x| + |z|) / 2) and v = |y| / 2t; then sqrt(z) is (t, v) for x >= 0 and
// (v, t) for x < 0, with the sign of y given to the imaginary part.

// The part of a number whose products with its like are exact; the rest is exact with it, and short enough as well.
template <class V> inline V high_part(V x) { return keep_bits(x, ~u64{0} << 27); }

// The rounding error of x * y, for p as it was rounded (Dekker, 1971).
template <class V> inline V product_error(V p, V x, V xHigh, V y, V yHigh)
{
    const V xLow = x - xHigh, yLow = y - yHigh;
    return ((xHigh * yHigh - p) + xHigh * yLow + xLow * yHigh) + xLow * yLow;
}

// What takes two square roots, of |x| and |y|.
template <class V> struct HalfRoot {
    V x, y, modulus, t;
};
template <class V> inline HalfRoot<V> half_root(V x, V y)
{
    const V modulus = square_root(x * x + y * y);
    return {x, y, modulus, square_root((x + modulus) * constant<V>(0.5))};
}

// (t, v) for 2^-480 <= max(x, y) <= 2^500, x and y >= 0. One step of Newton's iteration for w^2 = z, with the residual
// z - w^2 computed exactly but for its last bits, makes both parts correct but for 0.001 of the last place.
template <class V> inline Complex<V> root_parts(const HalfRoot<V>& h)
{
    const V x = h.x, y = h.y, t = h.t, t2 = t + t;
    const V v = y / t2;

    const V tHigh = high_part(t), vHigh = high_part(v);
    const V tt = t * t, vv = v * v, tv = t2 * v;
    const V difference = x - tt; // and what its rounding lost, since tt is the larger
    const V lost = x - (difference + tt);
    const V re =
        (difference + vv) + ((lost - product_error(tt, t, tHigh, t, tHigh)) + product_error(vv, v, vHigh, v, vHigh));
    // So small a y leaves no room for the bits below it.
    const V im = y >= constant<V>(0x1p-900) ? (y - tv) - product_error(tv, t2, tHigh + tHigh, v, vHigh) : V{};

    const V scale = constant<V>(0.5) / h.modulus;
    return {t + (t * re + v * im) * scale, v + (t * im - v * re) * scale};
}

// The same for all other magnitudes but x = y = 0.
[[gnu::noinline, gnu::cold]] Complex<f64> unusual_root_parts(f64 x, f64 y)
{
    constexpr f64 infinity = __builtin_inf();
    const auto scaled = [=](f64 by, f64 back) {
        const Complex<f64> w = root_parts(half_root(x * by, y * by));
        return Complex<f64>{w.re * back, w.im * back};
    };
    if (y == infinity) return {y, y};
    if (x == infinity) return {x, y - y};
    if (x != x || y != y) return {x + y, x + y};
    if (x < 1 && y < 1) return scaled(0x1p600, 0x1p-300);
    if (y < x * 0x1p-200) {
        const f64 t = square_root(x);
        return {t, y / (t + t)};
    }
    return scaled(0x1p-600, 0x1p300);
}

struct ComplexRoot {
    template <class V> struct Half : HalfRoot<V> {
        Complex<V> z;
        int others; // lanes that are not usual: they are computed as if of 1
    };
    template <class V> Half<V> first(Complex<V> z) const
    {
        const V x = absolute_value(z.re), y = absolute_value(z.im), larger = x > y ? x : y;
        const auto usual = (larger >= constant<V>(0x1p-480)) & (larger <= constant<V>(0x1p500));
        const V one = constant<V>(1);
        return {half_root(usual ? x : one, usual ? y : one), z, lanes_set(usual) ^ allLanes<V>};
    }
    template <class V> Complex<V> second(const Half<V>& h) const
    {
        Complex<V> w = root_parts(h);
        if (int others = h.others; __builtin_expect(others, 0)) {
            // Runs of zeros are ordinary.
            const V x = absolute_value(h.z.re), y = absolute_value(h.z.im);
            const auto zero = (x == V{}) & (y == V{});
            w = {zero ? V{} : w.re, zero ? V{} : w.im};
            others &= ~lanes_set(zero);
            if (others) replace(w, others, x, y);
        }
        const auto negative = h.z.re < V{};
        return {negative ? w.im : w.re, with_sign(negative ? w.re : w.im, h.z.im)};
    }

    static void replace(Complex<f64>& w, int, f64 x, f64 y) { w = unusual_root_parts(x, y); }
    template <class V> static void replace(Complex<V>& w, int others, V x, V y)
    {
        constexpr int L = sizeof(V) / sizeof(f64);
        for (int i = 0; i < L; ++i) {
            if (!(others >> i & 1)) continue;
            const Complex<f64> one = unusual_root_parts(x[i], y[i]);
            w.re[i] = one.re;
            w.im[i] = one.im;
        }
    }
};

[[gnu::noinline]] Status root(const f64* a, f64* d, int n)
{
    int negatives = 0;
    map<Medium>(static_cast<size_t>(n), d, RealRoot{negatives}, a);
    return negatives ? StsSqrtNegArg : StsNoErr;
}

[[gnu::noinline]] void root(const c64f* a, c64f* d, int n)
{
    map_overlapped(static_cast<size_t>(n), folded(d), ComplexRoot{}, folded(a));
}

} // namespace
#include "entries/signal/elementwise/root.inc"
} // namespace sig5d::SIG5D_VARIANT
