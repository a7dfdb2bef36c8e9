// Vectors of elements of three bytes, packed: from lanes of 32 bits and to them, and what stands beside them.
#pragma once
#include "kernel/partial.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Three vectors hold whole elements, as many as a vector has bytes.
struct Triples {
    Vec<u8> v[3];
};

#if SIG5D_LEVEL > 0

// What stands from so many bytes on, at the low end; and all, so many bytes higher.
template <int n> inline Vec<u8, 16> bytes_from(Vec<u8, 16> x) { return as<Vec<u8, 16>>(bytes_from<n>(bits(x))); }
template <int n> inline Vec<u8, 16> bytes_up(Vec<u8, 16> x)
{
    return as<Vec<u8, 16>>(_mm_slli_si128(as<__m128i>(x), n));
}

#endif
#if SIG5D_LEVEL >= 2

// n elements, each in the upper three bytes of 32 bits. Nothing behind them is read.
template <int n>
requires(n == 4) inline Vec<u32, 4> spread_triples(const u8* p)
{
    const __m128i all = _mm_unpacklo_epi64(bits(load_part<8>(p)), bits(load_part<4>(p + 8)));
    return as<Vec<u32, 4>>(bytes_at(all, _mm_setr_epi8(-1, 0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11)));
}

// The low three bytes of each 32 bits, at the low end of each 16 bytes.
inline __m128i squeezed_triples(Vec<i32, 4> x)
{
    return bytes_at(bits(x), _mm_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1));
}

inline void store_triples(u8* d, Vec<i32, 4> x)
{
    const __m128i v = squeezed_triples(x);
    store_part<8>(d, v);
    store_at(d + 8, as<Vec<i32, 4>>(v)[2]);
}

#if SIG5D_LEVEL < 5

inline Triples joined_triples(Vec<i32, 4> x0, Vec<i32, 4> x1, Vec<i32, 4> x2, Vec<i32, 4> x3)
{
    const __m128i v0 = squeezed_triples(x0), v1 = squeezed_triples(x1), v2 = squeezed_triples(x2),
                  v3 = squeezed_triples(x3);
    const auto both = [](__m128i low, __m128i high) { return as<Vec<u8, 16>>(_mm_or_si128(low, high)); };
    return {both(v0, _mm_slli_si128(v1, 12)), both(_mm_srli_si128(v1, 4), _mm_slli_si128(v2, 8)),
            both(_mm_srli_si128(v2, 8), _mm_slli_si128(v3, 4))};
}

// Beside each 16 bytes of a group those behind them at the low end, and at the upper end those before.
inline Triples neighbours_of(Vec<u8, 16> x0, Vec<u8, 16> x1, Vec<u8, 16> x2)
{
    return {x1, as<Vec<u8, 16>>(_mm_move_ss(as<__m128>(x0), as<__m128>(x2))), x1};
}

#else

template <int n>
requires(n == 8) inline Vec<u32, 8> spread_triples(const u8* p)
{
    // The second half at the upper end of what is loaded, so that nothing is read behind it.
    const __m256i both = _mm256_set_m128i(bits(loadn<16>(p + 8)), bits(loadn<16>(p)));
    return as<Vec<u32, 8>>(bytes_at(both, _mm256_setr_epi8(-1, 0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1, 4,
                                                           5, 6, -1, 7, 8, 9, -1, 10, 11, 12, -1, 13, 14, 15)));
}

inline __m256i squeezed_triples(Vec<i32, 8> x)
{
    return bytes_at(bits(x), _mm256_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1, 0, 1, 2, 4, 5, 6,
                                              8, 9, 10, 12, 13, 14, -1, -1, -1, -1));
}
template <int... i> inline __m256i moved_words(__m256i x)
{
    return _mm256_permutevar8x32_epi32(x, _mm256_setr_epi32(i...));
}

inline void store_triples(u8* d, Vec<i32, 8> x)
{
    const __m256i v = moved_words<0, 1, 2, 4, 5, 6, 3, 3>(squeezed_triples(x));
    store_at(d, _mm256_castsi256_si128(v));
    store_part<8>(d + 16, _mm256_extracti128_si256(v, 1));
}

// 3 + 1, 2 + 2 and 1 + 3 quarters of four vectors.
inline Triples joined_triples(Vec<i32, 8> x0, Vec<i32, 8> x1, Vec<i32, 8> x2, Vec<i32, 8> x3)
{
    const __m256i v0 = moved_words<0, 1, 2, 4, 5, 6, 3, 3>(squeezed_triples(x0)),
                  v1 = moved_words<2, 4, 5, 6, 3, 3, 0, 1>(squeezed_triples(x1)),
                  v2 = moved_words<5, 6, 3, 3, 0, 1, 2, 4>(squeezed_triples(x2)),
                  v3 = moved_words<3, 3, 0, 1, 2, 4, 5, 6>(squeezed_triples(x3));
    return {as<Vec<u8, 32>>(_mm256_blend_epi32(v0, v1, 0xC0)), as<Vec<u8, 32>>(_mm256_blend_epi32(v1, v2, 0xF0)),
            as<Vec<u8, 32>>(_mm256_blend_epi32(v2, v3, 0xFC))};
}

inline Triples neighbours_of(Vec<u8, 32> x0, Vec<u8, 32> x1, Vec<u8, 32> x2)
{
    const __m256i v0 = bits(x0), v1 = bits(x1), v2 = bits(x2);
    return {as<Vec<u8, 32>>(_mm256_permute4x64_epi64(_mm256_blend_epi32(v0, v1, 0x01), 0x4E)),
            as<Vec<u8, 32>>(_mm256_permute2x128_si256(v0, v2, 0x21)),
            as<Vec<u8, 32>>(_mm256_permute4x64_epi64(_mm256_blend_epi32(v2, v1, 0x80), 0x4E))};
}

#endif
#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
