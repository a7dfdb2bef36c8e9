// Vectors of integers of 32 bytes. Where an instruction works in pieces of 16 bytes, the function gives the order of
// the elements that its description says.
#pragma once
#include "kernel/simd/integers_128.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

inline Vec<u8, 32> add_saturated(Vec<u8, 32> x, Vec<u8, 32> y)
{
    return as<Vec<u8, 32>>(_mm256_adds_epu8(bits(x), bits(y)));
}
inline Vec<i16, 16> add_saturated(Vec<i16, 16> x, Vec<i16, 16> y)
{
    return as<Vec<i16, 16>>(_mm256_adds_epi16(bits(x), bits(y)));
}
inline Vec<u8, 32> subtract_saturated(Vec<u8, 32> x, Vec<u8, 32> y)
{
    return as<Vec<u8, 32>>(_mm256_subs_epu8(bits(x), bits(y)));
}
inline Vec<u16, 16> subtract_saturated(Vec<u16, 16> x, Vec<u16, 16> y)
{
    return as<Vec<u16, 16>>(_mm256_subs_epu16(bits(x), bits(y)));
}
inline Vec<i16, 16> subtract_saturated(Vec<i16, 16> x, Vec<i16, 16> y)
{
    return as<Vec<i16, 16>>(_mm256_subs_epi16(bits(x), bits(y)));
}

inline Vec<u8, 32> average(Vec<u8, 32> x, Vec<u8, 32> y) { return as<Vec<u8, 32>>(_mm256_avg_epu8(bits(x), bits(y))); }
inline Vec<u16, 16> average(Vec<u16, 16> x, Vec<u16, 16> y)
{
    return as<Vec<u16, 16>>(_mm256_avg_epu16(bits(x), bits(y)));
}

inline __m256i and_not(__m256i x, __m256i y) { return _mm256_andnot_si256(y, x); }

inline Vec<u16, 16> high_product(Vec<u16, 16> x, Vec<u16, 16> y)
{
    return as<Vec<u16, 16>>(_mm256_mulhi_epu16(bits(x), bits(y)));
}
inline Vec<i16, 16> high_product(Vec<i16, 16> x, Vec<i16, 16> y)
{
    return as<Vec<i16, 16>>(_mm256_mulhi_epi16(bits(x), bits(y)));
}
inline Vec<i16, 16> rounded_product(Vec<i16, 16> x, Vec<i16, 16> y)
{
    return as<Vec<i16, 16>>(_mm256_mulhrs_epi16(bits(x), bits(y)));
}

inline Vec<u32, 8> even_and_odd(Vec<u32, 8> even, Vec<u32, 8> odd)
{
    return as<Vec<u32, 8>>(_mm256_blend_epi32(bits(even), bits(odd), 0xAA));
}
inline Vec<u64, 4> even_products(Vec<u32, 8> x, Vec<u32, 8> y)
{
    return as<Vec<u64, 4>>(_mm256_mul_epu32(bits(x), bits(y)));
}
inline Vec<i64, 4> even_products(Vec<i32, 8> x, Vec<i32, 8> y)
{
    return as<Vec<i64, 4>>(_mm256_mul_epi32(bits(x), bits(y)));
}

inline Vec<i32, 8> where_negative(Vec<i32, 8> sign, Vec<i32, 8> x, Vec<i32, 8> other)
{
    return as<Vec<i32, 8>>(_mm256_blendv_ps(as<__m256>(other), as<__m256>(x), as<__m256>(sign)));
}

// Of each 16 bytes.
inline Vec<u16, 16> interleaved_low(Vec<u16, 16> x, Vec<u16, 16> y)
{
    return as<Vec<u16, 16>>(_mm256_unpacklo_epi16(bits(x), bits(y)));
}
inline Vec<u16, 16> interleaved_high(Vec<u16, 16> x, Vec<u16, 16> y)
{
    return as<Vec<u16, 16>>(_mm256_unpackhi_epi16(bits(x), bits(y)));
}
inline Vec<i16, 16> packed(Vec<i32, 8> low, Vec<i32, 8> high)
{
    return as<Vec<i16, 16>>(_mm256_packs_epi32(bits(low), bits(high)));
}

template <int n, class V>
requires(n == 16 && sizeof(V) == 16) inline Vec<i16, 16> widened_to_16(V x)
{
    return as<Vec<i16, 16>>(std::is_signed_v<Lane<V>> ? _mm256_cvtepi8_epi16(bits(x)) : _mm256_cvtepu8_epi16(bits(x)));
}
template <int n, class V>
requires(n == 8 && sizeof(V) == 16) inline Vec<i32, 8> widened_to_32(V x)
{
    constexpr bool hasSign = std::is_signed_v<Lane<V>>;
    if constexpr (sizeof(Lane<V>) == 2)
        return as<Vec<i32, 8>>(hasSign ? _mm256_cvtepi16_epi32(bits(x)) : _mm256_cvtepu16_epi32(bits(x)));
    else
        return as<Vec<i32, 8>>(hasSign ? _mm256_cvtepi8_epi32(bits(x)) : _mm256_cvtepu8_epi32(bits(x)));
}
template <int n>
requires(n == 8) inline Vec<i32, 8> widened_to_32(Vec<i32, 8> x) { return x; }

// What packing leaves: the pieces of 8 bytes, or of 4, back in the order of the elements.
inline __m256i eights_in_order(__m256i packed) { return _mm256_permute4x64_epi64(packed, 0xD8); }
inline __m256i fours_in_order(__m256i packed)
{
    return _mm256_permutevar8x32_epi32(packed, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7));
}

template <class D> inline Vec<D, 16> narrowed(Vec<i32, 8> low, Vec<i32, 8> high)
{
    const __m256i x = bits(low), y = bits(high);
    return as<Vec<D, 16>>(eights_in_order(std::is_signed_v<D> ? _mm256_packs_epi32(x, y) : _mm256_packus_epi32(x, y)));
}
template <class D> inline Vec<D, 32> narrowed(Vec<i16, 16> low, Vec<i16, 16> high)
{
    const __m256i x = bits(low), y = bits(high);
    return as<Vec<D, 32>>(eights_in_order(std::is_signed_v<D> ? _mm256_packs_epi16(x, y) : _mm256_packus_epi16(x, y)));
}
template <class D> inline Vec<D, 32> narrowed(Vec<i32, 8> x0, Vec<i32, 8> x1, Vec<i32, 8> x2, Vec<i32, 8> x3)
{
    const __m256i low = _mm256_packs_epi32(bits(x0), bits(x1)), high = _mm256_packs_epi32(bits(x2), bits(x3));
    const __m256i mixed = std::is_signed_v<D> ? _mm256_packs_epi16(low, high) : _mm256_packus_epi16(low, high);
    return as<Vec<D, 32>>(fours_in_order(mixed));
}

inline Vec<u16, 16> shifted_right(Vec<u16, 16> x, int count)
{
    return as<Vec<u16, 16>>(_mm256_srl_epi16(bits(x), _mm_cvtsi32_si128(count)));
}
inline Vec<i16, 16> shifted_right(Vec<i16, 16> x, int count)
{
    return as<Vec<i16, 16>>(_mm256_sra_epi16(bits(x), _mm_cvtsi32_si128(count)));
}

inline Vec<u8, 32> interleaved_low(Vec<u8, 32> x, Vec<u8, 32> y)
{
    return as<Vec<u8, 32>>(_mm256_unpacklo_epi8(bits(x), bits(y)));
}
inline Vec<u8, 32> interleaved_high(Vec<u8, 32> x, Vec<u8, 32> y)
{
    return as<Vec<u8, 32>>(_mm256_unpackhi_epi8(bits(x), bits(y)));
}
inline Vec<u8, 32> packed(Vec<i16, 16> low, Vec<i16, 16> high)
{
    return as<Vec<u8, 32>>(_mm256_packus_epi16(bits(low), bits(high)));
}
// Within each 16 bytes.
inline __m256i bytes_at(__m256i x, __m256i places) { return _mm256_shuffle_epi8(x, places); }
inline bool any_bit(__m256i x) { return !_mm256_testz_si256(x, x); }
inline u32 byte_signs(__m256i x) { return static_cast<u32>(_mm256_movemask_epi8(x)); }
template <class Mask>
requires(sizeof(Mask) == 32) inline auto narrowed_masks(Mask low, Mask high)
{
    if constexpr (sizeof(Lane<Mask>) == 8)
        return as<Vec<i32, 8>>(
            eights_in_order(_mm256_castps_si256(_mm256_shuffle_ps(as<__m256>(low), as<__m256>(high), 0x88))));
    else if constexpr (sizeof(Lane<Mask>) == 4)
        return narrowed<i16>(as<Vec<i32, 8>>(low), as<Vec<i32, 8>>(high));
    else
        return narrowed<i8>(as<Vec<i16, 16>>(low), as<Vec<i16, 16>>(high));
}
template <class Mask>
requires(sizeof(Mask) == 32 && sizeof(Lane<Mask>) < 4) inline u32 lanes_set(Mask mask)
{
    if constexpr (sizeof(Lane<Mask>) == 1)
        return byte_signs(bits(mask));
    else
        return byte_signs(_mm_packs_epi16(_mm256_castsi256_si128(bits(mask)), _mm256_extracti128_si256(bits(mask), 1)));
}

// Masks of eight times four lanes of 64 bits as bytes. Halves of lanes are taken within pieces of 16 bytes, so that
// each eight bytes have their elements in the order 0 1 4 5 2 3 6 7 before the last step.
template <class Mask>
inline Vec<i8, 32> bytes_of_long_masks(Mask a, Mask b, Mask c, Mask d, Mask e, Mask f, Mask g, Mask h)
{
    const auto halves = [](Mask low, Mask high) {
        return as<Vec<i32, 8>>(_mm256_shuffle_ps(as<__m256>(low), as<__m256>(high), 0x88));
    };
    const Vec<i8, 32> mixed = narrowed<i8>(halves(a, b), halves(c, d), halves(e, f), halves(g, h));
    const __m128i order = _mm_setr_epi8(0, 1, 4, 5, 2, 3, 6, 7, 8, 9, 12, 13, 10, 11, 14, 15);
    return as<Vec<i8, 32>>(bytes_at(bits(mixed), _mm256_broadcastsi128_si256(order)));
}

template <class V, int k>
requires(sizeof(V) == 32 && k == 0 && sizeof(Lane<V>) == 1) inline V bits_to_lanes(u32 word)
{
    const __m256i byte = _mm256_setr_epi64x(0, 0x0101010101010101, 0x0202020202020202, 0x0303030303030303);
    const __m256i bit = _mm256_set1_epi64x(static_cast<i64>(0x8040201008040201));
    const __m256i all = bytes_at(bits(all_lanes<Vec<u32, 8>>(word)), byte);
    return as<V>(_mm256_min_epu8(_mm256_and_si256(all, bit), _mm256_set1_epi8(1)));
}
template <class V, int k>
requires(sizeof(V) == 32 && sizeof(Lane<V>) == 2) inline V bits_to_lanes(u32 word)
{
    const __m128i bit = _mm_setr_epi16(1, 2, 4, 8, 16, 32, 64, 128);
    const __m256i byte = _mm256_setr_m128i(_mm_set1_epi16(static_cast<i16>(0x8000 + 2 * k)),
                                           _mm_set1_epi16(static_cast<i16>(0x8001 + 2 * k)));
    const __m256i all = bytes_at(bits(all_lanes<Vec<u32, 8>>(word)), byte);
    return as<V>(_mm256_min_epi16(_mm256_and_si256(all, _mm256_setr_m128i(bit, bit)), _mm256_set1_epi16(1)));
}
template <class V, int k>
requires(sizeof(V) == 32 && sizeof(Lane<V>) == 4) inline V bits_to_lanes(u32 word)
{
    constexpr Vec<u32, 8> lane = {0, 1, 2, 3, 4, 5, 6, 7};
    return as<V>(all_lanes<Vec<u32, 8>>(word) >> (lane + 8 * k) & 1);
}
template <int n>
requires(n == 4) inline Vec<i64, 4> widened_to_64(Vec<i16, 8> x)
{
    return as<Vec<i64, 4>>(_mm256_cvtepi16_epi64(bits(x)));
}

inline Vec<i32, 8> high_product(Vec<i32, 8> x, Vec<i32, 8> y)
{
    using U = Vec<u32, 8>;
    const auto odd = [](auto v) { return as<decltype(v)>(as<Vec<u64, 4>>(v) >> 32); };
    return as<Vec<i32, 8>>(even_and_odd(odd(as<U>(even_products(x, y))), as<U>(even_products(odd(x), odd(y)))));
}

inline Vec<i16, 16> magnitudes(Vec<i16, 16> x) { return as<Vec<i16, 16>>(_mm256_abs_epi16(bits(x))); }
inline Vec<i32, 8> magnitudes(Vec<i32, 8> x) { return as<Vec<i32, 8>>(_mm256_abs_epi32(bits(x))); }
inline Vec<i16, 16> with_signs(Vec<i16, 16> x, Vec<i16, 16> y)
{
    return as<Vec<i16, 16>>(_mm256_sign_epi16(bits(x), bits(y)));
}
inline Vec<i32, 8> with_signs(Vec<i32, 8> x, Vec<i32, 8> y)
{
    return as<Vec<i32, 8>>(_mm256_sign_epi32(bits(x), bits(y)));
}

inline Vec<u64, 4> sums_of_eight(Vec<u8, 32> x) { return as<Vec<u64, 4>>(_mm256_sad_epu8(bits(x), __m256i{})); }
// The sums of neighbours.
inline Vec<u16, 16> sums_of_two(Vec<u8, 32> x)
{
    return as<Vec<u16, 16>>(_mm256_maddubs_epi16(bits(x), _mm256_set1_epi8(1)));
}
inline Vec<i32, 8> sums_of_two(Vec<i16, 16> x)
{
    return as<Vec<i32, 8>>(_mm256_madd_epi16(bits(x), _mm256_set1_epi16(1)));
}

template <int bytes> inline __m256i shifted_in(__m256i before, __m256i v)
{
    const __m256i middle = _mm256_permute2x128_si256(before, v, 0x21);
    if constexpr (bytes == 16)
        return middle;
    else
        return _mm256_alignr_epi8(v, middle, 16 - bytes);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
