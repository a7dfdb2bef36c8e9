// A loop over complex arrays for operations of many instructions: real and imaginary parts apart from each other, so
// that one formula serves single elements (in px) and vectors, and no lane computes anything twice.
#pragma once
#include "kernel/simd.h"
#include "kernel/stream.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class V> struct Parts {
    V re, im;
};

#if SIG5D_LEVEL == 0

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

inline Vec<f64> to_one_digit(Vec<f64> x)
{
    constexpr u64 exponent = u64(2047) << 52;
    return as<Vec<f64>>(exponent - (as<Vec<u64>>(x) & exponent));
}

inline Vec<f64> even_lanes(Vec<f64> x, Vec<f64> y) { return shuffled<0>(x, y); }
inline Vec<f64> odd_lanes(Vec<f64> x, Vec<f64> y) { return shuffled<allLanes<Vec<f64>>>(x, y); }

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
