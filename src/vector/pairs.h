// Arrays of real numbers that take part in loops over pairs as complex ones.
#pragma once
#include "kernel/pairs.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Real numbers with the imaginary part +0.0; real numbers for either part. Offsets count parts, and are even (in px
// they count numbers).
enum class Imaginary { zero, same };
template <Imaginary part> struct Reals {
    const f64* p;
    Reals operator+(size_t n) const { return {p + n / (lanes<u8> == 1 ? 1 : 2)}; }
};
inline Reals<Imaginary::zero> with_zeros(const f64* a) { return {a}; }
inline Reals<Imaginary::same> twice(const f64* a) { return {a}; }
template <Imaginary part> inline Span span(Reals<part> a, size_t n) { return span(a.p, n / 2); }

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

template <int n, Imaginary part> inline c64f load_lanes(Reals<part> a)
{
    f64 im = part == Imaginary::zero ? 0.0 : *a.p;
    asm("" : "+x"(im)); // to subtract zero is not nothing where the thread flushes denormal numbers
    return {*a.p, im};
}

#else

struct PartsProduct {
    template <class V> V operator()(V x, V y) const { return x * y; }
};
struct PartsQuotient {
    template <class V> V operator()(V x, V y) const { return x / y; }
};

template <int L, Imaginary part> inline Vec < f64, L<2 ? 2 : L> load_lanes(Reals<part> a)
{
    constexpr bool zeros = part == Imaginary::zero;
#if SIG5D_LEVEL >= 4
    if constexpr (L == 4) { // two numbers
        const __m256d both = _mm256_broadcast_pd(reinterpret_cast<const __m128d*>(a.p));
        const __m256d pairs = _mm256_permute_pd(both, 12);
        return zeros ? _mm256_blend_pd(pairs, _mm256_setzero_pd(), 10) : pairs;
    }
#endif
    if constexpr (L <= 2) return zeros ? _mm_load_sd(a.p) : _mm_load1_pd(a.p);
    if constexpr (L > 4) return joined<L / 2>(load_lanes<L / 2>(a), load_lanes<L / 2>(a + L / 2));
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
