// Signs of real and complex numbers, and products by them.
#include "frame/entry.h"
#include "kernel/complex.h"
#include "vector/pairs.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

inline f64 sign_of(f64 x) { return x > 0 ? 1.0 : x < 0 ? -1.0 : 0.0; }
inline f64 sign_of(Complex<f64> x) { return sign_of(x.re) != 0 ? sign_of(x.re) : sign_of(x.im); }

// Unlike the sign, 1 for NaN.
inline int direction(f64 x) { return x == 0 ? 0 : x < 0 ? -1 : 1; }
inline int direction(Complex<f64> x) { return direction(x.re) ? direction(x.re) : direction(x.im); }
inline f64 times(f64 x, int direction) { return direction == 0 ? 0.0 : direction < 0 ? -x : x; }

#if SIG5D_LEVEL > 0

// The imaginary part where the mask is set. (Not by a sum, which flushing would change.)
template <class V> inline V chosen(Complex<V> x, V mask) { return either(without(x.re, mask), both(x.im, mask)); }

template <class V> inline V sign_of(V x)
{
    return either(both(less(V{}, x), all_lanes<V>(1.0)), both(less(x, V{}), all_lanes<V>(-1.0)));
}
template <class V> inline V sign_of(Complex<V> x) { return sign_of(chosen(x, same_or_nan(x.re, V{}))); }

template <class V> struct Direction {
    V turn, zero; // the sign bit where negative; all bits where zero
};
template <class V> inline Direction<V> direction(V x) { return {both(less(x, V{}), all_lanes<V>(-0.0)), same(x, V{})}; }
template <class V> inline Direction<V> direction(Complex<V> x) { return direction(chosen(x, same(x.re, V{}))); }
template <class V> inline V times(V x, Direction<V> direction)
{
    return without(turned(x, direction.turn), direction.zero);
}

#endif

struct Sign {
    template <class X> auto operator()(X x) const { return sign_of(x); }
};
struct ComplexSign {
    template <class V> Complex<V> operator()(V x) const { return {sign_of(x), V{}}; }
    template <class V> Complex<V> operator()(Complex<V> x) const { return {sign_of(x), V{}}; }
};
struct TimesSign {
    template <class X, class V> V operator()(X x, V y) const { return times(y, direction(x)); }
    template <class X, class V> Complex<V> operator()(X x, Complex<V> y) const
    {
        const auto d = direction(x);
        return {times(y.re, d), times(y.im, d)};
    }
    c64f operator()(c64f twice, c64f y) const // of pairs, in px
    {
        return {times(y.re, direction(twice.re)), times(y.im, direction(twice.im))};
    }
};

[[gnu::noinline]] void sign(const f64* a, f64* d, u32 n) { map(n, d, Sign{}, a); }
[[gnu::noinline]] void sign(const c64f* a, f64* d, u32 n) { map<Medium>(n, d, Sign{}, complex(a)); }
[[gnu::noinline]] void sign(const f64* a, c64f* d, u32 n) { map<Medium>(n, folded(d), ComplexSign{}, FoldedReals{a}); }
[[gnu::noinline]] void sign(const c64f* a, c64f* d, u32 n) { map<Medium>(n, folded(d), ComplexSign{}, folded(a)); }

[[gnu::noinline]] void times_sign(const f64* a, f64* d, u32 n)
{
    map(n, d, TimesSign{}, a, static_cast<const f64*>(d));
}
[[gnu::noinline]] void times_sign(const c64f* a, f64* d, u32 n)
{
    map<Medium>(n, d, TimesSign{}, complex(a), static_cast<const f64*>(d));
}
[[gnu::noinline]] void times_sign(const f64* a, c64f* d, u32 n)
{
    map_pairs(n, d, TimesSign{}, twice(a), static_cast<const c64f*>(d));
}
[[gnu::noinline]] void times_sign(const c64f* a, c64f* d, u32 n)
{
    map<Medium>(n, folded(d), TimesSign{}, folded(a), folded(d));
}

} // namespace
#include "entries/vector/sign.inc"
} // namespace sig5d::SIG5D_VARIANT
