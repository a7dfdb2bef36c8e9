// Complex values in vectors of the variant's width, and the ways they come from memory: as halves of blocks, transposed
// (lanes from different blocks), and interleaved as users hold them.
#pragma once
#include "kernel/simd.h"
#include "signal/processing/fft/layout.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

using Vector = Vec<f64>;
constexpr int width = lanes<f64>; // of the four numbers that stand together
static_assert(width <= 4);
#define SIG5D_INLINE [[gnu::always_inline]] inline

// An address that the compiler knows nothing about.
template <class P> SIG5D_INLINE P* opaque(P* p)
{
    asm("" : "+r"(p));
    return p;
}

template <class T> struct Complex {
    T re, im;
};
template <class T> SIG5D_INLINE Complex<T> operator+(Complex<T> a, Complex<T> b) { return {a.re + b.re, a.im + b.im}; }
template <class T> SIG5D_INLINE Complex<T> operator-(Complex<T> a, Complex<T> b) { return {a.re - b.re, a.im - b.im}; }
template <class T> SIG5D_INLINE Complex<T> operator*(Complex<T> a, Complex<T> b)
{
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}
// a * conj(b)
template <class T> SIG5D_INLINE Complex<T> timesConj(Complex<T> a, Complex<T> b)
{
    return {a.re * b.re + a.im * b.im, a.im * b.re - a.re * b.im};
}

// Users' arrays have the alignment of their elements; work arrays and tables that of vectors, which lets SSE2 code read
// them as operands of arithmetic.
template <class T> SIG5D_INLINE T get(const f64* p)
{
    if constexpr (sizeof(T) == sizeof(f64))
        return *p;
    else
        return load(p);
}
template <class T> SIG5D_INLINE void put(f64* p, T v)
{
    if constexpr (sizeof(T) == sizeof(f64))
        *p = v;
    else
        store(p, v);
}
typedef Vector AlignedVector __attribute__((may_alias));
SIG5D_INLINE Complex<Vector> getBlock(const f64* p)
{
    return {*reinterpret_cast<const AlignedVector*>(p), *reinterpret_cast<const AlignedVector*>(p + 4)};
}
template <class T> SIG5D_INLINE void putBlock(f64* p, Complex<T> a)
{
    *reinterpret_cast<T __attribute__((may_alias))*>(p) = a.re;
    *reinterpret_cast<T __attribute__((may_alias))*>(p + 4) = a.im;
}

// Four vectors, of which number j holds element j of each of `width` rows.
template <class V> struct Four {
    V v[4];
};

// Two doubles from each address (vectors of two: from the first only). Halves that are joined from memory and stored
// one by one need no shuffle unit; the compiler's own shuffles do.
template <class V> SIG5D_INLINE V getHalves(const f64* first, [[maybe_unused]] const f64* second)
{
    if constexpr (sizeof(V) == 32)
        return joined(loadn<sizeof(V) / 16>(first), loadn<sizeof(V) / 16>(second));
    else
        return load(first);
}
template <class V> SIG5D_INLINE void putLowHalf(f64* p, V a)
{
    if constexpr (sizeof(V) == 32)
        storen<2>(p, lower_half(a));
    else
        store(p, a);
}
template <class V> SIG5D_INLINE void putHighHalf([[maybe_unused]] f64* p, [[maybe_unused]] V a)
{
    if constexpr (sizeof(V) == 32) storen<2>(p, upper_half(a));
}
// Of each half the first elements, and the second ones.
template <class V> SIG5D_INLINE V firsts(V a, V b)
{
    if constexpr (sizeof(V) == 32)
        return __builtin_shufflevector(a, b, 0, 4, 2, 6);
    else
        return __builtin_shufflevector(a, b, 0, 2);
}
template <class V> SIG5D_INLINE V seconds(V a, V b)
{
    if constexpr (sizeof(V) == 32)
        return __builtin_shufflevector(a, b, 1, 5, 3, 7);
    else
        return __builtin_shufflevector(a, b, 1, 3);
}

constexpr int across = width == 4 ? 2 : 0; // rows 0 and `across` share a vector of four
template <class V> SIG5D_INLINE Four<V> getTransposed(const f64* const* rows)
{
    if constexpr (sizeof(V) == sizeof(f64)) {
        return {{rows[0][0], rows[0][1], rows[0][2], rows[0][3]}};
    } else {
        const V a = getHalves<V>(rows[0], rows[across]), b = getHalves<V>(rows[1], rows[across + 1]);
        const V c = getHalves<V>(rows[0] + 2, rows[across] + 2), d = getHalves<V>(rows[1] + 2, rows[across + 1] + 2);
        return {{firsts(a, b), seconds(a, b), firsts(c, d), seconds(c, d)}};
    }
}
// Elements 0-3 of each row from a, 4-7 from b: row by row, so that a cache line is written at once.
template <class V> SIG5D_INLINE void putTransposed(f64* const* rows, const Four<V>& a, const Four<V>& b)
{
    const V *const v = a.v, *const w = b.v;
    if constexpr (sizeof(V) == sizeof(f64)) {
        for (int j = 0; j < 4; ++j) {
            rows[0][j] = v[j];
            rows[0][j + 4] = w[j];
        }
    } else {
        const V even[] = {firsts(v[0], v[1]), firsts(v[2], v[3]), firsts(w[0], w[1]), firsts(w[2], w[3])};
        const V odd[] = {seconds(v[0], v[1]), seconds(v[2], v[3]), seconds(w[0], w[1]), seconds(w[2], w[3])};
        for (int i = 0; i < 4; ++i) putLowHalf(rows[0] + 2 * i, even[i]);
        for (int i = 0; i < 4; ++i) putHighHalf(rows[across] + 2 * i, even[i]);
        for (int i = 0; i < 4; ++i) putLowHalf(rows[1] + 2 * i, odd[i]);
        for (int i = 0; i < 4; ++i) putHighHalf(rows[across + 1] + 2 * i, odd[i]);
    }
}

// Numbers against memory order: lane 0 from the last of them.
template <class V = Vector> SIG5D_INLINE V getBackwards(const f64* p)
{
    if constexpr (sizeof(V) == sizeof(f64)) {
        return *p;
    } else {
        const V a = getHalves<V>(p + width - 2, p + width - 4);
        return swapped(a);
    }
}
template <class V = Vector> SIG5D_INLINE void putBackwards(f64* p, V a)
{
    if constexpr (sizeof(V) == sizeof(f64)) {
        *p = a;
    } else {
        const V b = swapped(a);
        putLowHalf(p + width - 2, b);
        putHighHalf(p + width - 4, b);
    }
}

// Interleaved complex values in memory order or, with step -1, lane 0 from the last of them.
template <int step, class V = Vector> SIG5D_INLINE Complex<V> getInterleaved(const f64* p)
{
    if constexpr (sizeof(V) == sizeof(f64)) {
        return {p[0], p[1]};
    } else {
        const f64* const q = step > 0 ? p : p + 2 * (width - 1);
        const V a = getHalves<V>(q, q + 4 * step), b = getHalves<V>(q + 2 * step, q + 6 * step);
        return {firsts(a, b), seconds(a, b)};
    }
}
template <int step, class V = Vector> SIG5D_INLINE void putInterleaved(f64* p, Complex<V> a)
{
    if constexpr (sizeof(V) == sizeof(f64)) {
        p[0] = a.re;
        p[1] = a.im;
    } else {
        f64* const q = step > 0 ? p : p + 2 * (width - 1);
        const V even = firsts(a.re, a.im), odd = seconds(a.re, a.im);
        putLowHalf(q, even);
        putLowHalf(q + 2 * step, odd);
        putHighHalf(q + 4 * step, even);
        putHighHalf(q + 6 * step, odd);
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
