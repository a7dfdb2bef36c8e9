// Complex values in vectors of the variant's width, and the ways they come from memory: as halves of blocks, transposed
// (lanes from different blocks), and interleaved as users hold them.
#pragma once
#include "kernel/vec.h"
#include "signal/processing/fft/layout.h"
#if SIG5D_LEVEL >= 4
#include <immintrin.h>
#endif

namespace sig5d::SIG5D_VARIANT {
namespace {

using Vector = Vec<f64>;
constexpr int width = lanes<f64>;
#define SIG5D_INLINE [[gnu::always_inline]] inline

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

// The compiler would load neighbours together and shuffle them; shuffles are what these kernels have to spare least.
SIG5D_INLINE Vector broadcast(const f64* p)
{
#if SIG5D_LEVEL >= 4
    return _mm256_broadcast_sd(p);
#else
    return splat(*p);
#endif
}

// Four vectors, of which number j holds element j of each of `width` rows.
struct Four {
    Vector v[4];
};

#if SIG5D_LEVEL == 0

SIG5D_INLINE Four getTransposed(const f64* const* rows) { return {{rows[0][0], rows[0][1], rows[0][2], rows[0][3]}}; }
SIG5D_INLINE void putTransposed(f64* const* rows, const Four& a, const Four& b)
{
    for (int j = 0; j < 4; ++j) {
        rows[0][j] = a.v[j];
        rows[0][j + 4] = b.v[j];
    }
}
template <int> SIG5D_INLINE Complex<Vector> getInterleaved(const f64* p) { return {p[0], p[1]}; }
template <int> SIG5D_INLINE void putInterleaved(f64* p, Complex<Vector> a)
{
    p[0] = a.re;
    p[1] = a.im;
}

#else

// Two doubles from each address (SSE2: from the first only). Halves that are joined from memory and stored one by one
// need no shuffle unit; the compiler's own shuffles do.
SIG5D_INLINE Vector getHalves(const f64* first, [[maybe_unused]] const f64* second)
{
#if SIG5D_LEVEL >= 4
    return _mm256_insertf128_pd(_mm256_castpd128_pd256(_mm_loadu_pd(first)), _mm_loadu_pd(second), 1);
#else
    return load(first);
#endif
}
SIG5D_INLINE void putLowHalf(f64* p, Vector a)
{
#if SIG5D_LEVEL >= 4
    _mm_storeu_pd(p, _mm256_castpd256_pd128(a));
#else
    store(p, a);
#endif
}
SIG5D_INLINE void putHighHalf([[maybe_unused]] f64* p, [[maybe_unused]] Vector a)
{
#if SIG5D_LEVEL >= 4
    _mm_storeu_pd(p, _mm256_extractf128_pd(a, 1));
#endif
}
// Of each half the first elements, and the second ones.
SIG5D_INLINE Vector firsts(Vector a, Vector b)
{
#if SIG5D_LEVEL >= 4
    return __builtin_shufflevector(a, b, 0, 4, 2, 6);
#else
    return __builtin_shufflevector(a, b, 0, 2);
#endif
}
SIG5D_INLINE Vector seconds(Vector a, Vector b)
{
#if SIG5D_LEVEL >= 4
    return __builtin_shufflevector(a, b, 1, 5, 3, 7);
#else
    return __builtin_shufflevector(a, b, 1, 3);
#endif
}

constexpr int across = width == 4 ? 2 : 0; // rows 0 and `across` share a vector of four
SIG5D_INLINE Four getTransposed(const f64* const* rows)
{
    const Vector a = getHalves(rows[0], rows[across]), b = getHalves(rows[1], rows[across + 1]);
    const Vector c = getHalves(rows[0] + 2, rows[across] + 2), d = getHalves(rows[1] + 2, rows[across + 1] + 2);
    return {{firsts(a, b), seconds(a, b), firsts(c, d), seconds(c, d)}};
}
// Elements 0-3 of each row from a, 4-7 from b: row by row, so that a cache line is written at once.
SIG5D_INLINE void putTransposed(f64* const* rows, const Four& a, const Four& b)
{
    const Vector *const v = a.v, *const w = b.v;
    const Vector even[] = {firsts(v[0], v[1]), firsts(v[2], v[3]), firsts(w[0], w[1]), firsts(w[2], w[3])};
    const Vector odd[] = {seconds(v[0], v[1]), seconds(v[2], v[3]), seconds(w[0], w[1]), seconds(w[2], w[3])};
    for (int i = 0; i < 4; ++i) putLowHalf(rows[0] + 2 * i, even[i]);
    if (across > 0)
        for (int i = 0; i < 4; ++i) putHighHalf(rows[across] + 2 * i, even[i]);
    for (int i = 0; i < 4; ++i) putLowHalf(rows[1] + 2 * i, odd[i]);
    if (across > 0)
        for (int i = 0; i < 4; ++i) putHighHalf(rows[across + 1] + 2 * i, odd[i]);
}

// Interleaved complex values in memory order or, with step -1, lane 0 from the last of them.
template <int step> SIG5D_INLINE Complex<Vector> getInterleaved(const f64* p)
{
    const f64* const q = step > 0 ? p : p + 2 * (width - 1);
    const Vector a = getHalves(q, q + 4 * step), b = getHalves(q + 2 * step, q + 6 * step);
    return {firsts(a, b), seconds(a, b)};
}
template <int step> SIG5D_INLINE void putInterleaved(f64* p, Complex<Vector> a)
{
    f64* const q = step > 0 ? p : p + 2 * (width - 1);
    const Vector even = firsts(a.re, a.im), odd = seconds(a.re, a.im);
    putLowHalf(q, even);
    putLowHalf(q + 2 * step, odd);
    putHighHalf(q + 4 * step, even);
    putHighHalf(q + 6 * step, odd);
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
