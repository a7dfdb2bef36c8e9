// Vectors of integers divided by a set of their lanes, whose bits are the lanes of a number: those that are not in the
// set first, then those that are, both in their order.
#pragma once
#include "kernel/simd/compress.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// How many elements of so many bytes are divided at once; 1: the body divides no vectors.
template <int size> constexpr int lanesParted = 1;

#if SIG5D_LEVEL >= 3

// For each set of lanes, their numbers in that order, each as "parts" consecutive numbers.
template <int lanes, int parts> struct Parting {
    alignas(16) u8 of[1 << lanes][lanes * parts] = {};
    constexpr Parting()
    {
        for (int set = 0; set < 1 << lanes; ++set) {
            int place = 0;
            for (int member = 0; member < 2; ++member)
                for (int lane = 0; lane < lanes; ++lane)
                    if ((set >> lane & 1) == member)
                        for (int p = 0; p < parts; ++p) of[set][place++] = static_cast<u8>(lane * parts + p);
        }
    }
};
constexpr Parting<8, 1> partingOf8;

template <> constexpr int lanesParted<2> = 8;
inline Vec<i16, 8> parted(Vec<i16, 8> x, u32 set)
{
    return as<Vec<i16, 8>>(bytes_at(bits(x), two_bytes(row_of_eight(partingOf8.of[set]))));
}

#if SIG5D_LEVEL < 5

template <> constexpr int lanesParted<4> = 4;
template <> constexpr int lanesParted<8> = 2;
constexpr Parting<4, 4> partingOf4;
constexpr Parting<2, 8> partingOf2;

inline __m128i row_of_parting(const u8 (&row)[16]) { return _mm_load_si128(reinterpret_cast<const __m128i*>(row)); }
inline Vec<i32, 4> parted(Vec<i32, 4> x, u32 set)
{
    return as<Vec<i32, 4>>(bytes_at(bits(x), row_of_parting(partingOf4.of[set])));
}
inline Vec<i64, 2> parted(Vec<i64, 2> x, u32 set)
{
    return as<Vec<i64, 2>>(bytes_at(bits(x), row_of_parting(partingOf2.of[set])));
}
constexpr Parting<2, 4> partingOfLow2;

#else

template <> constexpr int lanesParted<4> = 8;
inline Vec<i32, 8> parted(Vec<i32, 8> x, u32 set)
{
    const __m256i order = _mm256_cvtepu8_epi32(row_of_eight(partingOf8.of[set]));
    return as<Vec<i32, 8>>(_mm256_permutevar8x32_epi32(bits(x), order));
}

#if SIG5D_LEVEL == 5
template <> constexpr int lanesParted<8> = 4;
constexpr Parting<4, 2> partingOf4;
inline Vec<i64, 4> parted(Vec<i64, 4> x, u32 set)
{
    const __m256i order = _mm256_cvtepu8_epi32(row_of_eight(partingOf4.of[set]));
    return as<Vec<i64, 4>>(_mm256_permutevar8x32_epi32(bits(x), order));
}
constexpr Parting<4, 4> partingOfWords;
inline Vec<i32, 4> parted(Vec<i32, 4> x, u32 set)
{
    return as<Vec<i32, 4>>(bytes_at(bits(x), _mm_load_si128(reinterpret_cast<const __m128i*>(partingOfWords.of[set]))));
}
#else
template <> constexpr int lanesParted<8> = 8;
inline Vec<i64, 8> parted(Vec<i64, 8> x, u32 set)
{
    const __m512i order = _mm512_cvtepu8_epi64(row_of_eight(partingOf8.of[set]));
    return as<Vec<i64, 8>>(_mm512_permutexvar_epi64(order, bits(x)));
}
#endif
#endif

// The same of the low n lanes.
template <int n, class V> inline V parted_low(V x, u32 set)
{
#if SIG5D_LEVEL < 5
    if constexpr (n == 2) return as<V>(bytes_at(bits(x), row_of_eight(partingOfLow2.of[set])));
#endif
    return parted(x, set);
}

// The lanes of x that are above those of y.
template <class V> inline u32 lanes_above(V x, V y)
{
#if SIG5D_LEVEL >= 6
    if constexpr (sizeof(V) == 64 && sizeof(Lane<V>) == 8) return _mm512_cmpgt_epi64_mask(bits(x), bits(y));
    if constexpr (sizeof(V) == 32 && sizeof(Lane<V>) == 4) return _mm256_cmpgt_epi32_mask(bits(x), bits(y));
    if constexpr (sizeof(V) == 16 && sizeof(Lane<V>) == 2) return _mm_cmpgt_epi16_mask(bits(x), bits(y));
#endif
    return static_cast<u32>(lanes_set(x > y));
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
