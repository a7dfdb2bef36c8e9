// A loop over complex arrays for operations of many instructions: real and imaginary parts apart from each other, so
// that one formula serves single elements (in px) and vectors, and no lane computes anything twice.
#pragma once
#include "kernel/masks.h"
#include "kernel/stream.h"
#if SIG5D_LEVEL > 0
#include <immintrin.h>
#endif

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class V> struct Parts {
    V re, im;
};

// What formulas need besides operators, for single numbers and for vectors.

#if SIG5D_LEVEL == 0

inline f64 magnitude(f64 x) { return __builtin_fabs(x); }
inline f64 square_root(f64 x) { return __builtin_sqrt(x); }
inline f64 with_sign(f64 x, f64 sign) { return __builtin_copysign(x, sign); }

// 2^k that brings a positive normal x into [2, 4).
inline f64 to_one_digit(f64 x)
{
    u64 bits;
    __builtin_memcpy(&bits, &x, sizeof bits);
    bits = (u64(2047) << 52) - (bits & u64(2047) << 52);
    __builtin_memcpy(&x, &bits, sizeof bits);
    return x;
}

// d[i] = op(a[i]) for 0 <= i < n; d may be a.
template <class Op> inline void map_complex(size_t n, const c64f* a, c64f* d, Op op)
{
    for (size_t i = 0; i < n; ++i) {
        const Parts<f64> y = op(Parts<f64>{a[i].re, a[i].im});
        d[i] = {y.re, y.im};
    }
}

#else

using Bits = Vec<u64>;
inline Bits sign_bits(Vec<f64> x) { return reinterpret_cast<Bits>(x) & splat(u64(1) << 63); }
inline Vec<f64> magnitude(Vec<f64> x)
{
    return reinterpret_cast<Vec<f64>>(reinterpret_cast<Bits>(x) & ~(u64(1) << 63));
}
inline Vec<f64> with_sign(Vec<f64> x, Vec<f64> sign)
{
    return reinterpret_cast<Vec<f64>>(reinterpret_cast<Bits>(x) | sign_bits(sign)); // x >= 0
}
inline Vec<f64> to_one_digit(Vec<f64> x)
{
    constexpr u64 exponent = u64(2047) << 52;
    return reinterpret_cast<Vec<f64>>(exponent - (reinterpret_cast<Bits>(x) & exponent));
}

#if SIG5D_LEVEL >= 4
inline Vec<f64> square_root(Vec<f64> x) { return _mm256_sqrt_pd(x); }
inline Vec<f64> even_lanes(Vec<f64> x, Vec<f64> y) { return _mm256_unpacklo_pd(x, y); }
inline Vec<f64> odd_lanes(Vec<f64> x, Vec<f64> y) { return _mm256_unpackhi_pd(x, y); }
#else
inline Vec<f64> square_root(Vec<f64> x) { return _mm_sqrt_pd(x); }
inline Vec<f64> even_lanes(Vec<f64> x, Vec<f64> y) { return _mm_unpacklo_pd(x, y); }
inline Vec<f64> odd_lanes(Vec<f64> x, Vec<f64> y) { return _mm_unpackhi_pd(x, y); }
#endif

// As many elements as a vector has lanes.
template <class Op> [[gnu::always_inline]] inline Parts<Vec<f64>> map_block(const c64f* a, Op op)
{
    const Vec<f64> low = load(&a->re), high = load(&a->re + lanes<f64>);
    return op(Parts<Vec<f64>>{even_lanes(low, high), odd_lanes(low, high)});
}
inline void store_block(c64f* d, Parts<Vec<f64>> y)
{
    store(&d->re, even_lanes(y.re, y.im)); // the same exchange of lanes leads back
    store(&d->re + lanes<f64>, odd_lanes(y.re, y.im));
}

// The last block overlaps the one before it: it is computed before anything is stored. Lanes without an element hold
// the last one.
template <class Op> [[gnu::always_inline]] inline void map_complex(size_t n, const c64f* a, c64f* d, Op op)
{
    constexpr size_t L = lanes<f64>;
    c64f some[L];
    if (n < L) {
        for (size_t i = 0; i < L; ++i) some[i] = a[i < n ? i : n - 1];
        a = some;
    }
    size_t i = 0;
    const auto tail = map_block(n < L ? a : a + (n - L), op);
    if (n < L) {
        store_block(some, tail);
        for (; i < n; ++i) d[i] = some[i];
        return;
    }
    for (; i + L < n; i += L) store_block(d + i, map_block(a + i, op));
    store_block(d + (n - L), tail);
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
