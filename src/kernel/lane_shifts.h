// Shifts of vectors by a count that is known only when the kernel runs. The instructions that take such a count from a
// register need two steps on many processors; products, and shifts that take a count for each lane, need one.
#pragma once
#include "kernel/vec.h"
#if SIG5D_LEVEL > 0
#include <immintrin.h>

namespace sig5d::SIG5D_VARIANT {
namespace {

// V: a vector of 16 bytes (or of 32, from AVX2 on) with any lanes. Counts are below the width of the lanes shifted.

template <class V> inline V shift_left_16(V x, int count)
{
    using Lanes = Vec<u16, sizeof(V) / 2>;
    return reinterpret_cast<V>(reinterpret_cast<Lanes>(x) * splatn<sizeof(V) / 2>(static_cast<u16>(1 << count)));
}

// The upper halves of the products of 16-bit lanes.
inline __m128i high_product(__m128i x, __m128i y, u16) { return _mm_mulhi_epu16(x, y); }
inline __m128i high_product(__m128i x, __m128i y, i16) { return _mm_mulhi_epi16(x, y); }
#if SIG5D_LEVEL >= 5
inline __m256i high_product(__m256i x, __m256i y, u16) { return _mm256_mulhi_epu16(x, y); }
inline __m256i high_product(__m256i x, __m256i y, i16) { return _mm256_mulhi_epi16(x, y); }
#endif

// T = u16: logical, count > 0. T = i16: arithmetic, count > 1, since 2^15 would be negative.
template <class T, class V> inline V shift_right_16(V x, int count)
{
    const auto factor = splatn<sizeof(V) / 2>(static_cast<T>(1 << (16 - count)));
    using Register = Vec<long long, sizeof(V) / 8>; // what the intrinsics call __m128i, __m256i
    return reinterpret_cast<V>(high_product(reinterpret_cast<Register>(x), reinterpret_cast<Register>(factor), T{}));
}

// Any count below the width, at the price of the second step.
inline __m128i shifted_16(__m128i x, int count, u16) { return _mm_srl_epi16(x, _mm_cvtsi32_si128(count)); }
inline __m128i shifted_16(__m128i x, int count, i16) { return _mm_sra_epi16(x, _mm_cvtsi32_si128(count)); }
#if SIG5D_LEVEL >= 5
inline __m256i shifted_16(__m256i x, int count, u16) { return _mm256_srl_epi16(x, _mm_cvtsi32_si128(count)); }
inline __m256i shifted_16(__m256i x, int count, i16) { return _mm256_sra_epi16(x, _mm_cvtsi32_si128(count)); }
#endif
template <class T, class V> inline V shift_right_16_any(V x, int count)
{
    return reinterpret_cast<V>(shifted_16(reinterpret_cast<Vec<long long, sizeof(V) / 8>>(x), count, T{}));
}

#if SIG5D_LEVEL >= 5

// The count for each lane, by way of 32 bits (32-bit code would put 64 together in memory), and hidden from the
// compiler, which would see that all are equal.
template <class T, size_t bytes> inline auto counts(int count)
{
    const auto low = reinterpret_cast<Vec<T, 16 / sizeof(T)>>(Vec<i32, 4>{count});
    auto all = splatn<bytes / sizeof(T)>(static_cast<T>(low[0]));
    asm("" : "+x"(all));
    return all;
}

// In lanes of type T, of 32 or 64 bits; to the right arithmetic if T is signed.
template <class T, class V> inline V shift_left(V x, int count)
{
    return reinterpret_cast<V>(reinterpret_cast<Vec<T, sizeof(V) / sizeof(T)>>(x) << counts<T, sizeof(V)>(count));
}
template <class T, class V> inline V shift_right(V x, int count)
{
    return reinterpret_cast<V>(reinterpret_cast<Vec<T, sizeof(V) / sizeof(T)>>(x) >> counts<T, sizeof(V)>(count));
}

#else

inline __m128i shifted_left(__m128i x, __m128i count, u32) { return _mm_sll_epi32(x, count); }
inline __m128i shifted_left(__m128i x, __m128i count, u64) { return _mm_sll_epi64(x, count); }
inline __m128i shifted_right(__m128i x, __m128i count, i32) { return _mm_sra_epi32(x, count); }
inline __m128i shifted_right(__m128i x, __m128i count, u32) { return _mm_srl_epi32(x, count); }
inline __m128i shifted_right(__m128i x, __m128i count, u64) { return _mm_srl_epi64(x, count); }

template <class T, class V> inline V shift_left(V x, int count)
{
    return reinterpret_cast<V>(shifted_left(reinterpret_cast<__m128i>(x), _mm_cvtsi32_si128(count), T{}));
}
template <class T, class V> inline V shift_right(V x, int count)
{
    return reinterpret_cast<V>(shifted_right(reinterpret_cast<__m128i>(x), _mm_cvtsi32_si128(count), T{}));
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
#endif
