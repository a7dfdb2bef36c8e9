// Transposing in registers. A block is as many rows as elements fit a register, and 16 bytes of each: its columns
// become whole registers. Pointers are to bytes and steps between rows are in bytes; "size" is that of an element.
#pragma once
#include "kernel/stream.h"
#include <stddef.h>
#include <stdint.h>

namespace sig5d::SIG5D_VARIANT {
namespace {

#if SIG5D_LEVEL > 0

// 32-byte registers need shuffles of the element: AVX has them for 4 bytes and more, AVX2 for all.
template <int size> constexpr int widest = SIG5D_LEVEL >= 5 || (SIG5D_LEVEL == 4 && size >= 4) ? 32 : 16;

template <int width> struct Register {
    using type = __m128i;
};
#if SIG5D_LEVEL >= 4
template <> struct Register<32> {
    using type = __m256i;
};
#endif
template <int width> using Reg = typename Register<width>::type;

inline __m128i load_part(const u8* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
inline void put(u8* p, __m128i v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }

// Elements of the lower (upper) halves of a and b in turn.
template <int size> inline __m128i low(__m128i a, __m128i b)
{
    if constexpr (size == 1) return _mm_unpacklo_epi8(a, b);
    if constexpr (size == 2) return _mm_unpacklo_epi16(a, b);
    if constexpr (size == 4) return _mm_unpacklo_epi32(a, b);
    if constexpr (size == 8) return _mm_unpacklo_epi64(a, b);
}
template <int size> inline __m128i high(__m128i a, __m128i b)
{
    if constexpr (size == 1) return _mm_unpackhi_epi8(a, b);
    if constexpr (size == 2) return _mm_unpackhi_epi16(a, b);
    if constexpr (size == 4) return _mm_unpackhi_epi32(a, b);
    if constexpr (size == 8) return _mm_unpackhi_epi64(a, b);
}

#if SIG5D_LEVEL >= 4
inline void put(u8* p, __m256i v) { _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), v); }

#if SIG5D_LEVEL >= 5 // integer forms: two shuffle ports, where the floating-point ones have one
template <int size> inline __m256i low(__m256i a, __m256i b)
{
    if constexpr (size == 1) return _mm256_unpacklo_epi8(a, b);
    if constexpr (size == 2) return _mm256_unpacklo_epi16(a, b);
    if constexpr (size == 4) return _mm256_unpacklo_epi32(a, b);
    if constexpr (size == 8) return _mm256_unpacklo_epi64(a, b);
}
template <int size> inline __m256i high(__m256i a, __m256i b)
{
    if constexpr (size == 1) return _mm256_unpackhi_epi8(a, b);
    if constexpr (size == 2) return _mm256_unpackhi_epi16(a, b);
    if constexpr (size == 4) return _mm256_unpackhi_epi32(a, b);
    if constexpr (size == 8) return _mm256_unpackhi_epi64(a, b);
}
#else
inline __m256 singles(__m256i a) { return _mm256_castsi256_ps(a); }
inline __m256d doubles(__m256i a) { return _mm256_castsi256_pd(a); }
template <int size> inline __m256i low(__m256i a, __m256i b)
{
    if constexpr (size == 4) return _mm256_castps_si256(_mm256_unpacklo_ps(singles(a), singles(b)));
    if constexpr (size == 8) return _mm256_castpd_si256(_mm256_unpacklo_pd(doubles(a), doubles(b)));
}
template <int size> inline __m256i high(__m256i a, __m256i b)
{
    if constexpr (size == 4) return _mm256_castps_si256(_mm256_unpackhi_ps(singles(a), singles(b)));
    if constexpr (size == 8) return _mm256_castpd_si256(_mm256_unpackhi_pd(doubles(a), doubles(b)));
}
#endif
#endif

// 16 bytes of a row; a wide register gets those of a second row into its upper half, without a shuffle.
template <int width> inline Reg<width> load_rows(const u8* p, [[maybe_unused]] size_t toSecond)
{
    if constexpr (width == 32)
        return _mm256_insertf128_si256(_mm256_castsi128_si256(load_part(p)), load_part(p + toSecond), 1);
    else
        return load_part(p);
}

// Inverts the sign of the imaginary parts of 16-byte elements.
template <int width> inline Reg<width> conjugate(Reg<width> x)
{
    using Words = Vec<u64, width / 8>;
    Words sign{};
    for (int k = 1; k < width / 8; k += 2) sign[k] = u64(1) << 63;
    return reinterpret_cast<Reg<width>>(reinterpret_cast<Words>(x) ^ sign);
}

// Interleaving the first half of the registers with the second, again and again, transposes squares of as many
// elements.
template <int size, int width, int n> inline void interleave(Reg<width> (&r)[n])
{
#pragma GCC unroll 4
    for (int done = 1; done < n; done *= 2) {
        Reg<width> t[n];
#pragma GCC unroll 8
        for (int k = 0; k < n / 2; ++k) {
            t[2 * k] = low<size>(r[k], r[k + n / 2]);
            t[2 * k + 1] = high<size>(r[k], r[k + n / 2]);
        }
#pragma GCC unroll 16
        for (int k = 0; k < n; ++k) r[k] = t[k];
    }
}

// Columns of a block that are made at a time: all, or half of them where there are eight registers only.
template <int size> constexpr int portion = sizeof(void*) == 4 && size == 1 ? 8 : 16 / size;

// r[k] becomes column k, or column k of the second half, of the block at a.
template <int size, int width, bool conj>
inline void load_columns(Reg<width> (&r)[portion<size>], const u8* a, size_t aStep, [[maybe_unused]] bool secondHalf)
{
    constexpr int n = 16 / size;
    if constexpr (portion<size> == n) {
#pragma GCC unroll 16
        for (int k = 0; k < n; ++k) r[k] = load_rows<width>(a + k * aStep, n * aStep);
    } else {
#pragma GCC unroll 8
        for (int k = 0; k < n / 2; ++k) {
            const auto x = load_rows<width>(a + k * aStep, n * aStep);
            const auto y = load_rows<width>(a + (k + n / 2) * aStep, n * aStep);
            r[k] = secondHalf ? high<size>(x, y) : low<size>(x, y);
        }
    }
    if constexpr (n > 1)
        interleave<size, width>(r);
    else if constexpr (conj)
        r[0] = conjugate<width>(r[0]);
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
