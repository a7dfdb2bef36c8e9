// 32 elements and the word of their bits: bit i of the word is a[i] != 0.
#pragma once
#include "kernel/map.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The first m bits; the others are 0.
template <class T> inline u32 pack_word(const T* a, u32 m)
{
    u32 word = 0;
    for (u32 i = 0; i < m; ++i) word |= u32(a[i] != 0) << i;
    return word;
}
template <class T> inline void unpack_word(u32 word, T* d, u32 m)
{
    for (u32 i = 0; i < m; ++i) d[i] = static_cast<T>(word >> i & 1);
}

#if SIG5D_LEVEL == 0

template <class T> inline u32 pack_word(const T* a) { return pack_word(a, 32); }
template <class T> inline void unpack_word(u32 word, T* d) { unpack_word(word, d, 32); }

#else

// Lanes that are zero become -1. Wider ones are narrowed to bytes with saturation, which keeps 0 and -1, so that a word
// is the complement of the bytes' signs.
template <class T> inline auto zero_lanes(const T* a, int k)
{
    return reinterpret_cast<Vec<long long>>(load(a + k * lanes<T>) == 0);
}

#if SIG5D_LEVEL >= 5

inline __m256i zero_bytes(const u8* a) { return zero_lanes(a, 0); }
inline __m256i zero_bytes(const i16* a)
{
    const __m256i x = _mm256_packs_epi16(zero_lanes(a, 0), zero_lanes(a, 1));
    return _mm256_permute4x64_epi64(x, 0xD8); // packing works in 16-byte halves
}
inline __m256i zero_bytes(const i32* a)
{
    const __m256i x = _mm256_packs_epi32(zero_lanes(a, 0), zero_lanes(a, 1));
    const __m256i y = _mm256_packs_epi32(zero_lanes(a, 2), zero_lanes(a, 3));
    const __m256i order = _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7);
    return _mm256_permutevar8x32_epi32(_mm256_packs_epi16(x, y), order);
}
template <class T> inline u32 pack_word(const T* a) { return ~static_cast<u32>(_mm256_movemask_epi8(zero_bytes(a))); }

// Each byte of the word in eight lanes, of which each keeps a bit of its own.
inline void unpack_word(u32 word, u8* d)
{
    const __m256i byte = _mm256_setr_epi64x(0, 0x0101010101010101, 0x0202020202020202, 0x0303030303030303);
    const __m256i bit = _mm256_set1_epi64x(static_cast<long long>(0x8040201008040201));
    const __m256i x = _mm256_and_si256(_mm256_shuffle_epi8(_mm256_set1_epi32(static_cast<int>(word)), byte), bit);
    store_at(d, _mm256_min_epu8(x, _mm256_set1_epi8(1)));
}
inline void unpack_word(u32 word, i16* d)
{
    const __m128i bit = _mm_setr_epi16(1, 2, 4, 8, 16, 32, 64, 128);
    for (int k = 0; k < 2; ++k) {
        const __m256i byte = _mm256_setr_m128i(_mm_set1_epi16(static_cast<short>(0x8000 + 2 * k)),
                                               _mm_set1_epi16(static_cast<short>(0x8001 + 2 * k)));
        const __m256i x = _mm256_shuffle_epi8(_mm256_set1_epi32(static_cast<int>(word)), byte);
        store_at(d + 16 * k, _mm256_min_epi16(_mm256_and_si256(x, _mm256_setr_m128i(bit, bit)), _mm256_set1_epi16(1)));
    }
}
inline void unpack_word(u32 word, i32* d)
{
    const Vec<u32> lane = {0, 1, 2, 3, 4, 5, 6, 7};
    for (u32 k = 0; k < 4; ++k) store_at(d + 8 * k, splat(word) >> (lane + 8 * k) & 1);
}

#else

inline __m128i zero_bytes(const u8* a) { return zero_lanes(a, 0); }
inline __m128i zero_bytes(const i16* a) { return _mm_packs_epi16(zero_lanes(a, 0), zero_lanes(a, 1)); }
inline __m128i zero_bytes(const i32* a)
{
    return _mm_packs_epi16(_mm_packs_epi32(zero_lanes(a, 0), zero_lanes(a, 1)),
                           _mm_packs_epi32(zero_lanes(a, 2), zero_lanes(a, 3)));
}
template <class T> inline u32 pack_word(const T* a)
{
    const int low = _mm_movemask_epi8(zero_bytes(a)), high = _mm_movemask_epi8(zero_bytes(a + 16));
    return ~(static_cast<u32>(high) << 16 | static_cast<u32>(low));
}

inline void unpack_word(u32 word, u8* d)
{
    const __m128i bit = _mm_set1_epi64x(static_cast<long long>(0x8040201008040201)), one = _mm_set1_epi8(1);
    __m128i x = _mm_cvtsi32_si128(static_cast<int>(word));
    x = _mm_unpacklo_epi8(x, x);
    x = _mm_unpacklo_epi16(x, x); // each byte four times
    store_at(d, _mm_min_epu8(_mm_and_si128(_mm_shuffle_epi32(x, 0x50), bit), one));
    store_at(d + 16, _mm_min_epu8(_mm_and_si128(_mm_shuffle_epi32(x, 0xFA), bit), one));
}
inline void unpack_word(u32 word, i16* d)
{
    const __m128i all = _mm_cvtsi32_si128(static_cast<int>(word)), twice = _mm_unpacklo_epi16(all, all);
    const auto half = [&](i16* to, __m128i x) { // shifts to the sign the bit of each lane, then to the lowest
        const __m128i low = _mm_setr_epi16(-32768, 16384, 8192, 4096, 2048, 1024, 512, 256);
        const __m128i high = _mm_setr_epi16(128, 64, 32, 16, 8, 4, 2, 1);
        store_at(to, _mm_srli_epi16(_mm_mullo_epi16(x, low), 15));
        store_at(to + 8, _mm_srli_epi16(_mm_mullo_epi16(x, high), 15));
    };
    half(d, _mm_shuffle_epi32(twice, 0x00));
    half(d + 16, _mm_shuffle_epi32(twice, 0x55));
}
inline void unpack_word(u32 word, i32* d)
{
    const __m128i all = _mm_set1_epi32(static_cast<int>(word));
    __m128i bit = _mm_setr_epi32(1, 2, 4, 8);
    for (int k = 0; k < 8; ++k) {
        store_at(d + 4 * k, _mm_srli_epi32(_mm_cmpeq_epi32(_mm_and_si128(all, bit), bit), 31));
        bit = _mm_slli_epi32(bit, 4);
    }
}

#endif
#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
