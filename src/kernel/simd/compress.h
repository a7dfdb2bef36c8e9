// Lanes of a set moved together, and back. A set is a number whose bits are its lanes.
#pragma once
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

#if SIG5D_LEVEL >= 3
inline u32 bit_count(u32 byte) { return static_cast<u32>(_mm_popcnt_u32(byte)); }
#else
struct BitCounts {
    u8 of[256] = {};
    constexpr BitCounts()
    {
        for (int byte = 1; byte < 256; ++byte) of[byte] = static_cast<u8>(of[byte >> 1] + (byte & 1));
    }
};
constexpr BitCounts bitCounts;
inline u32 bit_count(u32 byte) { return bitCounts.of[byte]; }
#endif

// word: not 0. The compiler itself would write tzcnt, which no variant's level includes.
inline u32 lowest_bit(u32 word)
{
    u32 number;
    asm("bsf %1, %0" : "=r"(number) : "r"(word) : "cc");
    return number;
}

// Of how many lanes of so many bytes a set is moved at once; 1: one by one, in memory.
template <int size> constexpr int lanesMoved = 1;

#if SIG5D_LEVEL > 0

// For each set of lanes: their numbers in increasing order, each as "parts" consecutive numbers, the last one repeated.
template <class Unit, int lanes, int parts> struct Numbers {
    alignas(32) Unit of[1 << lanes][lanes * parts] = {};
    constexpr Numbers()
    {
        for (int set = 1; set < 1 << lanes; ++set) {
            int lane = 0, last = 0;
            for (int i = 0; i < lanes; ++i) {
                while (lane < lanes && !(set >> lane & 1)) ++lane;
                if (lane < lanes) last = lane++;
                for (int p = 0; p < parts; ++p) of[set][i * parts + p] = static_cast<Unit>(last * parts + p);
            }
        }
    }
};

// For each set of lanes: how many of the set come before each lane of it, as "parts" consecutive numbers; -128 for
// lanes outside of it.
template <class Unit, int lanes, int parts> struct Ranks {
    alignas(32) Unit of[1 << lanes][lanes * parts] = {};
    constexpr Ranks()
    {
        for (int set = 0; set < 1 << lanes; ++set) {
            int rank = 0;
            for (int i = 0; i < lanes; ++i) {
                const bool member = set >> i & 1;
                for (int p = 0; p < parts; ++p)
                    of[set][i * parts + p] = static_cast<Unit>(member ? rank * parts + p : -128);
                rank += member;
            }
        }
    }
};
constexpr Numbers<u8, 8, 1> laneNumbers;

inline __m128i row_of_eight(const u8 (&row)[8]) { return _mm_loadl_epi64(reinterpret_cast<const __m128i_u*>(row)); }
#endif

#if SIG5D_LEVEL >= 2

constexpr Ranks<u8, 8, 1> laneRanks;
template <> constexpr int lanesMoved<1> = 8;
template <> constexpr int lanesMoved<2> = 8;

// Numbers of 16-bit elements to those of their bytes; negative ones stay negative.
inline __m128i two_bytes(__m128i numbers)
{
    const __m128i twice = _mm_adds_epi8(numbers, numbers);
    return _mm_add_epi8(_mm_unpacklo_epi8(twice, twice), _mm_set1_epi16(0x100));
}
// The bytes of x in this order, and where it is negative those of the other.
inline __m128i bytes_at_or(__m128i x, __m128i order, __m128i other)
{
    const __m128i kept = _mm_and_si128(other, _mm_cmpgt_epi8(_mm_setzero_si128(), order));
    return _mm_or_si128(kept, bytes_at(x, order));
}

// compressed: the lanes of a set moved together, then any.
// expanded: the first lanes of x moved to those of a set, in order; the other lanes stand.
inline Vec<u8, 16> compressed(Vec<u8, 16> x, u32 set)
{
    return as<Vec<u8, 16>>(bytes_at(bits(x), row_of_eight(laneNumbers.of[set])));
}
inline Vec<u8, 16> expanded(Vec<u8, 16> x, u32 set, Vec<u8, 16> other)
{
    return as<Vec<u8, 16>>(bytes_at_or(bits(x), row_of_eight(laneRanks.of[set]), bits(other)));
}
inline Vec<i16, 8> compressed(Vec<i16, 8> x, u32 set)
{
    return as<Vec<i16, 8>>(bytes_at(bits(x), two_bytes(row_of_eight(laneNumbers.of[set]))));
}
inline Vec<i16, 8> expanded(Vec<i16, 8> x, u32 set, Vec<i16, 8> other)
{
    return as<Vec<i16, 8>>(bytes_at_or(bits(x), two_bytes(row_of_eight(laneRanks.of[set])), bits(other)));
}

#endif
#if SIG5D_LEVEL >= 2 && SIG5D_LEVEL < 5

template <> constexpr int lanesMoved<4> = 4;
constexpr Numbers<u8, 4, 4> numbersOf4;
constexpr Ranks<u8, 4, 4> ranksOf4;

inline __m128i row_of_16(const u8 (&row)[16]) { return _mm_load_si128(reinterpret_cast<const __m128i*>(row)); }
inline Vec<i32, 4> compressed(Vec<i32, 4> x, u32 set)
{
    return as<Vec<i32, 4>>(bytes_at(bits(x), row_of_16(numbersOf4.of[set])));
}
inline Vec<i32, 4> expanded(Vec<i32, 4> x, u32 set, Vec<i32, 4> other)
{
    return as<Vec<i32, 4>>(bytes_at_or(bits(x), row_of_16(ranksOf4.of[set]), bits(other)));
}

#elif SIG5D_LEVEL == 5

template <> constexpr int lanesMoved<4> = 8;
template <> constexpr int lanesMoved<8> = 4;
constexpr Numbers<u32, 4, 2> numbersOf4;

// By way of an offset in 32 bits, which takes fewer steps than an index: packing doubles took 0.52 instead of 0.59
// cycles an element.
inline __m256i row_of_32(const u32 (*rows)[8], u32 set)
{
    return _mm256_load_si256(reinterpret_cast<const __m256i*>(reinterpret_cast<const u8*>(rows) + set * 32));
}
inline Vec<f64, 4> compressed(Vec<f64, 4> x, u32 set)
{
    return as<Vec<f64, 4>>(_mm256_permutevar8x32_epi32(bits(x), row_of_32(numbersOf4.of, set)));
}
inline Vec<i32, 8> compressed(Vec<i32, 8> x, u32 set)
{
    const __m256i order = _mm256_cvtepu8_epi32(row_of_eight(laneNumbers.of[set]));
    return as<Vec<i32, 8>>(_mm256_permutevar8x32_epi32(bits(x), order));
}
inline Vec<i32, 8> expanded(Vec<i32, 8> x, u32 set, Vec<i32, 8> other)
{
    const __m256i order = _mm256_cvtepi8_epi32(row_of_eight(laneRanks.of[set])); // negative: the lane stands
    const __m256i moved = _mm256_permutevar8x32_epi32(bits(x), order);
    return as<Vec<i32, 8>>(_mm256_blendv_epi8(moved, bits(other), _mm256_srai_epi32(order, 31)));
}

#elif SIG5D_LEVEL > 5

template <> constexpr int lanesMoved<4> = 8;
template <> constexpr int lanesMoved<8> = 8;

inline Vec<i32, 8> compressed(Vec<i32, 8> x, u32 set)
{
    return as<Vec<i32, 8>>(_mm256_maskz_compress_epi32(static_cast<__mmask8>(set), bits(x)));
}
inline Vec<i32, 8> expanded(Vec<i32, 8> x, u32 set, Vec<i32, 8> other)
{
    return as<Vec<i32, 8>>(_mm256_mask_expand_epi32(bits(other), static_cast<__mmask8>(set), bits(x)));
}
inline Vec<f64, 8> compressed(Vec<f64, 8> x, u32 set)
{
    return _mm512_maskz_compress_pd(static_cast<__mmask8>(set), x);
}

#endif

// The numbers of the lanes in a set of eight, in increasing order, then any: n of them, from the first-th on.
template <int n, int first, class T>
requires(sizeof(T) == 4) inline Vec<T, n> lane_numbers(u32 set)
{
#if SIG5D_LEVEL >= 6
    return as<Vec<T, n>>(compressed(Vec<i32, 8>{0, 1, 2, 3, 4, 5, 6, 7}, set));
#elif SIG5D_LEVEL == 5
    return as<Vec<T, n>>(_mm256_cvtepu8_epi32(row_of_eight(laneNumbers.of[set])));
#elif SIG5D_LEVEL > 0
    const __m128i zero = _mm_setzero_si128(), words = _mm_unpacklo_epi8(row_of_eight(laneNumbers.of[set]), zero);
    return as<Vec<T, n>>(first == 0 ? _mm_unpacklo_epi16(words, zero) : _mm_unpackhi_epi16(words, zero));
#endif
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
