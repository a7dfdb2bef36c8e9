// 32 elements and the word of their bits: bit i of the word is a[i] != 0.
#pragma once
#include "kernel/vec.h"
#include <stddef.h>
#if SIG5D_LEVEL > 0
#include <immintrin.h>
#endif

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

// Packing. A register of bytes, one for each element: -1 where the element is zero. Wider elements are compared and
// narrowed with saturation, which keeps 0 and -1.
#if SIG5D_LEVEL >= 5
using Flags = __m256i;
template <class T> inline Flags zero_lanes(const T* a, int k)
{
    return reinterpret_cast<Flags>(load(a + k * lanes<T>) == 0);
}
inline Flags zero_flags(const u8* a) { return zero_lanes(a, 0); }
inline Flags zero_flags(const i16* a)
{
    const Flags x = _mm256_packs_epi16(zero_lanes(a, 0), zero_lanes(a, 1));
    return _mm256_permute4x64_epi64(x, 0xD8); // packing works in 16-byte halves
}
inline Flags zero_flags(const i32* a)
{
    const Flags x = _mm256_packs_epi32(zero_lanes(a, 0), zero_lanes(a, 1));
    const Flags y = _mm256_packs_epi32(zero_lanes(a, 2), zero_lanes(a, 3));
    const Flags order = _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7);
    return _mm256_permutevar8x32_epi32(_mm256_packs_epi16(x, y), order);
}
template <class T> inline u32 pack_word(const T* a) { return ~static_cast<u32>(_mm256_movemask_epi8(zero_flags(a))); }
#else
using Flags = __m128i;
template <class T> inline Flags zero_lanes(const T* a, int k)
{
    return reinterpret_cast<Flags>(load(a + k * lanes<T>) == 0);
}
inline Flags zero_flags(const u8* a) { return zero_lanes(a, 0); }
inline Flags zero_flags(const i16* a) { return _mm_packs_epi16(zero_lanes(a, 0), zero_lanes(a, 1)); }
inline Flags zero_flags(const i32* a)
{
    const Flags x = _mm_packs_epi32(zero_lanes(a, 0), zero_lanes(a, 1));
    const Flags y = _mm_packs_epi32(zero_lanes(a, 2), zero_lanes(a, 3));
    return _mm_packs_epi16(x, y);
}
template <class T> inline u32 pack_word(const T* a)
{
    const int low = _mm_movemask_epi8(zero_flags(a)), high = _mm_movemask_epi8(zero_flags(a + 16));
    return ~(static_cast<u32>(high) << 16 | static_cast<u32>(low));
}
#endif

// Unpacking. Every lane gets the word, or the part of it that fits, with its bit in it; the k-th register of the word.
template <class U> inline Vec<U> lane_bits(int k)
{
    constexpr int bits = 8 * sizeof(U);
    Vec<U> v;
    for (int i = 0; i < lanes<U>; ++i) v[i] = static_cast<U>(U(1) << (k * lanes<U> + i) % bits);
    return v;
}
inline Vec<u32> spread(u32 word, int, u32) { return splat(word); }
inline Vec<u16> spread(u32 word, int k, u16) { return splat(static_cast<u16>(word >> k * lanes<u16> / 16 * 16)); }
#if SIG5D_LEVEL >= 5
inline Vec<u8> spread(u32 word, int, u8)
{
    const __m256i bytes = _mm256_setr_epi64x(0, 0x0101010101010101, 0x0202020202020202, 0x0303030303030303);
    return reinterpret_cast<Vec<u8>>(_mm256_shuffle_epi8(_mm256_set1_epi32(static_cast<int>(word)), bytes));
}
#else
inline Vec<u8> spread(u32 word, int k, u8)
{
    __m128i v = _mm_cvtsi32_si128(static_cast<int>(word));
    v = _mm_unpacklo_epi8(v, v);
    v = _mm_unpacklo_epi16(v, v); // each byte four times
    return reinterpret_cast<Vec<u8>>(k == 0 ? _mm_shuffle_epi32(v, 0x50) : _mm_shuffle_epi32(v, 0xFA));
}
#endif

template <class U> inline void unpack_lanes(u32 word, U* d)
{
#pragma GCC unroll 8
    for (int k = 0; k < 32 / lanes<U>; ++k) {
        const Vec<U> bits = lane_bits<U>(k);
        const auto isSet = (spread(word, k, U{}) & bits) == bits;
        store(d + k * lanes<U>, reinterpret_cast<Vec<U>>(isSet) & splat(U(1)));
    }
}
inline void unpack_word(u32 word, u8* d) { unpack_lanes(word, d); }
inline void unpack_word(u32 word, i16* d) { unpack_lanes(word, reinterpret_cast<u16*>(d)); }
inline void unpack_word(u32 word, i32* d) { unpack_lanes(word, reinterpret_cast<u32*>(d)); }

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
