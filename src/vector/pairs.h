// Loops over complex numbers as pairs of parts, in which arrays of real numbers take part as complex ones.
#pragma once
#include "kernel/complex.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Real numbers with the imaginary part +0.0; real numbers for either part. Offsets count parts, and are even.
enum class Imaginary { zero, same };
template <Imaginary part> struct Reals {
    const f64* p;
    Reals operator+(size_t n) const { return {p + n / 2}; }
    void operator+=(size_t n) { p += n / 2; }
    c64f operator[](size_t i) const // the number, in px
    {
        f64 im = part == Imaginary::zero ? 0.0 : p[i];
        asm("" : "+x"(im)); // to subtract zero is not nothing where the thread flushes denormal numbers
        return {p[i], im};
    }
};
inline Reals<Imaginary::zero> with_zeros(const f64* a) { return {a}; }
inline Reals<Imaginary::same> twice(const f64* a) { return {a}; }

// Part by part.
struct Sum {
    template <class V> V operator()(V x, V y) const { return x + y; }
};
struct Difference {
    template <class V> V operator()(V x, V y) const { return x - y; }
};

#if SIG5D_LEVEL == 0

struct PartsProduct {
    f64 operator()(f64 x, f64 y) const { return x * y; }
    c64f operator()(c64f x, c64f y) const { return {x.re * y.re, x.im * y.im}; }
};
struct PartsQuotient {
    f64 operator()(f64 x, f64 y) const { return x / y; }
    c64f operator()(c64f x, c64f y) const { return {x.re / y.re, x.im / y.im}; }
};

#else

struct PartsProduct {
    template <class V> V operator()(V x, V y) const { return x * y; }
};
struct PartsQuotient {
    template <class V> V operator()(V x, V y) const { return x / y; }
};

template <int L, Imaginary part> inline Vec<f64, L> loadn(Reals<part> a)
{
    constexpr bool zeros = part == Imaginary::zero;
#if SIG5D_LEVEL >= 4
    if constexpr (L == 4) { // two numbers
        const __m256d both = _mm256_broadcast_pd(reinterpret_cast<const __m128d*>(a.p));
        const __m256d pairs = _mm256_permute_pd(both, 12);
        return zeros ? _mm256_blend_pd(pairs, _mm256_setzero_pd(), 10) : pairs;
    }
#endif
    if constexpr (L == 2) return zeros ? _mm_load_sd(a.p) : _mm_load1_pd(a.p);
}
template <int bytes, Imaginary part> inline Vec<f64, 2> load_part(Reals<part> a) { return loadn<2>(a); }
template <Imaginary part> inline const f64* lowest(Reals<part> a, size_t) { return a.p; }

// The address may be null, with no elements.
inline const f64* parts_of(const c64f* a) { return reinterpret_cast<const f64*>(a); }
inline f64* parts_of(c64f* d) { return reinterpret_cast<f64*>(d); }
template <class A> inline A parts_of(A a) { return a; }

#endif

// An operation on pairs: only at even offsets may it begin anew.
template <class Op> struct OnPairs : Op {
    static constexpr size_t period = 2;
};

// d[i] = op(a[i], ...) for 0 <= i < n.
template <class C, class Op, class... A> [[gnu::always_inline]] inline void map_pairs_of(size_t n, C* d, Op op, A... a)
{
#if SIG5D_LEVEL == 0
    map(n, d, op, a...);
#else
    map(2 * n, parts_of(d), OnPairs<Op>{op}, parts_of(a)...);
#endif
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
