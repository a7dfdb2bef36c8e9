// Products with twice as many bits as their factors, in vectors.
#pragma once
#include "kernel/lane_shifts.h"
#include "kernel/saturate.h"
#if SIG5D_LEVEL > 0

namespace sig5d::SIG5D_VARIANT {
namespace {

// The upper halves of the products of 16-bit lanes.
template <class V> inline V shifted_product(V x, V y) { return as<V>(high_product(bits(x), bits(y), Lane<V>{})); }

// The even 32-bit lanes' products, each in two lanes.
inline __m128i unsigned_products(__m128i x, __m128i y) { return _mm_mul_epu32(x, y); }
#if SIG5D_LEVEL >= 3
inline __m128i signed_products(__m128i x, __m128i y) { return _mm_mul_epi32(x, y); }
inline __m128i alternate(__m128i even, __m128i odd) { return _mm_blend_epi16(even, odd, 0xCC); }
#else
inline __m128i signed_products(__m128i x, __m128i y)
{
    const __m128i excess =
        _mm_add_epi32(_mm_and_si128(_mm_srai_epi32(x, 31), y), _mm_and_si128(_mm_srai_epi32(y, 31), x));
    return _mm_sub_epi64(unsigned_products(x, y), _mm_slli_epi64(excess, 32));
}
inline __m128i alternate(__m128i even, __m128i odd)
{
    const __m128i lanes = _mm_setr_epi32(-1, 0, -1, 0);
    return _mm_or_si128(_mm_and_si128(lanes, even), _mm_andnot_si128(lanes, odd));
}
#endif
#if SIG5D_LEVEL >= 5
inline __m256i signed_products(__m256i x, __m256i y) { return _mm256_mul_epi32(x, y); }
inline __m256i alternate(__m256i even, __m256i odd) { return _mm256_blend_epi32(even, odd, 0xAA); }
#endif
template <class V> inline auto even_products(V x, V y)
{
    return as<Vec<i64, sizeof(V) / 8>>(signed_products(bits(x), bits(y)));
}

// The odd 32-bit lanes in the even ones' places.
template <class V> inline V odd(V x) { return as<V>(as<Vec<u64, sizeof(V) / 8>>(x) >> 32); }

} // namespace
} // namespace sig5d::SIG5D_VARIANT
#endif
