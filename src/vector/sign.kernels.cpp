// Signs of real and complex numbers, and products by them.
#include "frame/entry.h"
#include "kernel/loops.h"
#include "vector/masks.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

#if SIG5D_LEVEL == 0

inline f64 sign_of(f64 x) { return x > 0 ? 1.0 : x < 0 ? -1.0 : 0.0; }
inline f64 sign_of(c64f x) { return sign_of(x.re) != 0 ? sign_of(x.re) : sign_of(x.im); }
struct Sign {
    template <class T> f64 operator()(T x) const { return sign_of(x); }
};
struct ComplexSign {
    template <class T> c64f operator()(T x) const { return {sign_of(x), 0.0}; }
};

// Unlike the sign, 1 for NaN.
inline int direction(f64 x) { return x == 0 ? 0 : x < 0 ? -1 : 1; }
inline int direction(c64f x) { return direction(x.re) ? direction(x.re) : direction(x.im); }
inline f64 times(f64 x, int factor) { return factor == 0 ? 0.0 : factor < 0 ? -x : x; }
inline c64f times(c64f x, int factor) { return {times(x.re, factor), times(x.im, factor)}; }
struct TimesSign {
    template <class T, class U> U operator()(T x, U y) const { return times(y, direction(x)); }
};

template <class D> inline const f64* numbers(const f64* a) { return a; }
template <class D> inline const c64f* numbers(const c64f* a) { return a; }
inline const c64f* pairs(const c64f* a) { return a; }

#else

// Real and imaginary parts side by side, each in the lanes of the destination that depend on it.
template <class V> struct Parts {
    V re, im;
};

// What map takes for a pointer: numbers of type T as a destination of type D needs them.
template <class T, class D> struct Numbers {
    const T* p;
    Numbers operator+(size_t n) const { return {p + n}; }
    void operator+=(size_t n) { p += n; }
};
struct Pairs {
    const c64f* p;
    Pairs operator+(size_t n) const { return {p + n}; }
    void operator+=(size_t n) { p += n; }
};
template <class T, class D> inline const T* lowest(Numbers<T, D> a, size_t) { return a.p; }
inline const c64f* lowest(Pairs a, size_t) { return a.p; }

template <int L> inline Vec<f64, 2 * L> loadn(Pairs a) { return loadn<2 * L>(&a.p->re); }
template <int bytes> inline Vec<f64, 2> load_part(Pairs a) { return loadn<2>(&a.p->re); }

// Complex numbers for real results: as many of each part.
template <int L> inline Parts<Vec<f64, L>> loadn(Numbers<c64f, f64> a)
{
    const auto x = loadn<L>(&a.p->re), y = loadn<L>(&a.p->re + L);
    if constexpr (L == 2)
        return {__builtin_shufflevector(x, y, 0, 2), __builtin_shufflevector(x, y, 1, 3)};
    else
        return {__builtin_shufflevector(x, y, 0, 2, 4, 6), __builtin_shufflevector(x, y, 1, 3, 5, 7)};
}
template <int bytes> inline Parts<Vec<f64, 2>> load_part(Numbers<c64f, f64> a)
{
    if constexpr (bytes == 16) return loadn<2>(a);
    const auto x = loadn<2>(&a.p->re);
    return {x, __builtin_shufflevector(x, x, 1, 1)};
}

// Numbers for complex results: in both lanes of each.
template <int L> inline Vec<f64, 2 * L> loadn(Numbers<f64, c64f> a)
{
#if SIG5D_LEVEL >= 4
    if constexpr (L == 2)
        return _mm256_permute_pd(_mm256_broadcast_pd(reinterpret_cast<const __m128d_u*>(a.p)), 0b1100);
    else
#endif
        return splatn<2>(*a.p);
}
template <int bytes> inline Vec<f64, 2> load_part(Numbers<f64, c64f> a) { return splatn<2>(*a.p); }
template <int L> inline Parts<Vec<f64, 2 * L>> loadn(Numbers<c64f, c64f> a)
{
    const auto x = loadn<2 * L>(&a.p->re);
    if constexpr (L == 1)
        return {__builtin_shufflevector(x, x, 0, 0), __builtin_shufflevector(x, x, 1, 1)};
    else
        return {_mm256_movedup_pd(x), _mm256_permute_pd(x, 0b1111)}; // the first comes with the load
}
template <int bytes> inline Parts<Vec<f64, 2>> load_part(Numbers<c64f, c64f> a) { return loadn<1>(a); }

template <class D, class T> inline auto numbers(const T* a)
{
    if constexpr (sizeof(T) == sizeof(f64) && sizeof(D) == sizeof(f64))
        return a;
    else
        return Numbers<T, D>{a};
}
inline Pairs pairs(const c64f* a) { return {a}; }

// The part that decides on the sign, and on the direction: the imaginary one where the real one does not. (Not by a
// sum, which flushing would change.)
template <class V> inline V chosen(Parts<V> x, V mask) { return either(without(x.re, mask), both(x.im, mask)); }
template <class V> inline V of_sign(V x) { return x; }
template <class V> inline V of_sign(Parts<V> x) { return chosen(x, same_or_nan(x.re, V{})); }
template <class V> inline V of_direction(V x) { return x; }
template <class V> inline V of_direction(Parts<V> x) { return chosen(x, same(x.re, V{})); }

// In lanes of 1 and -1.
template <class V> inline V sign_of(V x, V one, V minusOne)
{
    return either(both(less(V{}, x), one), both(less(x, V{}), minusOne));
}
struct Sign {
    template <class X> auto operator()(X x) const
    {
        auto s = of_sign(x);
        using V = decltype(s);
        return sign_of(s, all<V>(1.0), all<V>(-1.0));
    }
};
inline __m128d real_value(__m128d, f64 x) { return __m128d{x, 0.0}; }
#if SIG5D_LEVEL >= 4
inline __m256d real_value(__m256d, f64 x) { return __m256d{x, 0.0, x, 0.0}; }
#endif
struct ComplexSign {
    template <class X> auto operator()(X x) const
    {
        const auto s = of_sign(x);
        return sign_of(s, real_value(s, 1.0), real_value(s, -1.0));
    }
};

struct TimesSign {
    template <class X, class V> V operator()(X x, V y) const
    {
        const V s = of_direction(x);
        return without(turned(y, both(less(s, V{}), all<V>(-0.0))), same(s, V{}));
    }
};

#endif

template <class T> [[gnu::noinline]] void sign(const T* a, f64* d, u32 n) { map(n, d, Sign{}, numbers<f64>(a)); }
template <class T> [[gnu::noinline]] void sign(const T* a, c64f* d, u32 n)
{
    map(n, d, ComplexSign{}, numbers<c64f>(a));
}
template <class T> [[gnu::noinline]] void times_sign(const T* a, f64* d, u32 n)
{
    map(n, d, TimesSign{}, numbers<f64>(a), static_cast<const f64*>(d));
}
template <class T> [[gnu::noinline]] void times_sign(const T* a, c64f* d, u32 n)
{
    map(n, d, TimesSign{}, numbers<c64f>(a), pairs(d));
}

} // namespace
#include "entries/vector/sign.inc"
} // namespace sig5d::SIG5D_VARIANT
