// Vectors of integers of 64 bytes. Where an instruction works in pieces of 16 bytes, the function gives the order of
// the elements that its description says.
#pragma once
#include "kernel/simd/integers_256.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

inline Vec<u8, 64> add_saturated(Vec<u8, 64> x, Vec<u8, 64> y)
{
    return as<Vec<u8, 64>>(_mm512_adds_epu8(bits(x), bits(y)));
}
inline Vec<i16, 32> add_saturated(Vec<i16, 32> x, Vec<i16, 32> y)
{
    return as<Vec<i16, 32>>(_mm512_adds_epi16(bits(x), bits(y)));
}
inline Vec<u8, 64> subtract_saturated(Vec<u8, 64> x, Vec<u8, 64> y)
{
    return as<Vec<u8, 64>>(_mm512_subs_epu8(bits(x), bits(y)));
}
inline Vec<u16, 32> subtract_saturated(Vec<u16, 32> x, Vec<u16, 32> y)
{
    return as<Vec<u16, 32>>(_mm512_subs_epu16(bits(x), bits(y)));
}
inline Vec<i16, 32> subtract_saturated(Vec<i16, 32> x, Vec<i16, 32> y)
{
    return as<Vec<i16, 32>>(_mm512_subs_epi16(bits(x), bits(y)));
}

inline Vec<u8, 64> average(Vec<u8, 64> x, Vec<u8, 64> y) { return as<Vec<u8, 64>>(_mm512_avg_epu8(bits(x), bits(y))); }
inline Vec<u16, 32> average(Vec<u16, 32> x, Vec<u16, 32> y)
{
    return as<Vec<u16, 32>>(_mm512_avg_epu16(bits(x), bits(y)));
}

inline __m512i and_not(__m512i x, __m512i y) { return _mm512_andnot_si512(y, x); }

inline Vec<u16, 32> high_product(Vec<u16, 32> x, Vec<u16, 32> y)
{
    return as<Vec<u16, 32>>(_mm512_mulhi_epu16(bits(x), bits(y)));
}
inline Vec<i16, 32> high_product(Vec<i16, 32> x, Vec<i16, 32> y)
{
    return as<Vec<i16, 32>>(_mm512_mulhi_epi16(bits(x), bits(y)));
}
inline Vec<i16, 32> rounded_product(Vec<i16, 32> x, Vec<i16, 32> y)
{
    return as<Vec<i16, 32>>(_mm512_mulhrs_epi16(bits(x), bits(y)));
}

inline Vec<u32, 16> even_and_odd(Vec<u32, 16> even, Vec<u32, 16> odd)
{
    return as<Vec<u32, 16>>(_mm512_mask_mov_epi32(bits(even), 0xAAAA, bits(odd)));
}
inline Vec<u64, 8> even_products(Vec<u32, 16> x, Vec<u32, 16> y)
{
    return as<Vec<u64, 8>>(_mm512_mul_epu32(bits(x), bits(y)));
}
inline Vec<i64, 8> even_products(Vec<i32, 16> x, Vec<i32, 16> y)
{
    return as<Vec<i64, 8>>(_mm512_mul_epi32(bits(x), bits(y)));
}

inline Vec<i32, 16> where_negative(Vec<i32, 16> sign, Vec<i32, 16> x, Vec<i32, 16> other)
{
    return as<Vec<i32, 16>>(_mm512_mask_mov_epi32(bits(other), _mm512_movepi32_mask(bits(sign)), bits(x)));
}

// Of each 16 bytes.
inline Vec<u16, 32> interleaved_low(Vec<u16, 32> x, Vec<u16, 32> y)
{
    return as<Vec<u16, 32>>(_mm512_unpacklo_epi16(bits(x), bits(y)));
}
inline Vec<u16, 32> interleaved_high(Vec<u16, 32> x, Vec<u16, 32> y)
{
    return as<Vec<u16, 32>>(_mm512_unpackhi_epi16(bits(x), bits(y)));
}
inline Vec<i16, 32> packed(Vec<i32, 16> low, Vec<i32, 16> high)
{
    return as<Vec<i16, 32>>(_mm512_packs_epi32(bits(low), bits(high)));
}

template <int n, class V>
requires(n == 32 && sizeof(V) == 32) inline Vec<i16, 32> widened_to_16(V x)
{
    return as<Vec<i16, 32>>(std::is_signed_v<Lane<V>> ? _mm512_cvtepi8_epi16(bits(x)) : _mm512_cvtepu8_epi16(bits(x)));
}
template <int n, class V>
requires(n == 16) inline Vec<i32, 16> widened_to_32(V x)
{
    constexpr bool hasSign = std::is_signed_v<Lane<V>>;
    if constexpr (sizeof(Lane<V>) == 4)
        return x;
    else if constexpr (sizeof(Lane<V>) == 2)
        return as<Vec<i32, 16>>(hasSign ? _mm512_cvtepi16_epi32(bits(x)) : _mm512_cvtepu16_epi32(bits(x)));
    else
        return as<Vec<i32, 16>>(hasSign ? _mm512_cvtepi8_epi32(bits(x)) : _mm512_cvtepu8_epi32(bits(x)));
}

inline __m512i eights_in_order(__m512i packed)
{
    return _mm512_permutexvar_epi64(_mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7), packed);
}
inline __m512i fours_in_order(__m512i packed)
{
    return _mm512_permutexvar_epi32(_mm512_setr_epi32(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15), packed);
}

template <class D> inline Vec<D, 32> narrowed(Vec<i32, 16> low, Vec<i32, 16> high)
{
    const __m512i x = bits(low), y = bits(high);
    return as<Vec<D, 32>>(eights_in_order(std::is_signed_v<D> ? _mm512_packs_epi32(x, y) : _mm512_packus_epi32(x, y)));
}
template <class D> inline Vec<D, 64> narrowed(Vec<i16, 32> low, Vec<i16, 32> high)
{
    const __m512i x = bits(low), y = bits(high);
    return as<Vec<D, 64>>(eights_in_order(std::is_signed_v<D> ? _mm512_packs_epi16(x, y) : _mm512_packus_epi16(x, y)));
}
template <class D> inline Vec<D, 64> narrowed(Vec<i32, 16> x0, Vec<i32, 16> x1, Vec<i32, 16> x2, Vec<i32, 16> x3)
{
    const __m512i low = _mm512_packs_epi32(bits(x0), bits(x1)), high = _mm512_packs_epi32(bits(x2), bits(x3));
    const __m512i mixed = std::is_signed_v<D> ? _mm512_packs_epi16(low, high) : _mm512_packus_epi16(low, high);
    return as<Vec<D, 64>>(fours_in_order(mixed));
}

inline Vec<u16, 32> shifted_right(Vec<u16, 32> x, int count)
{
    return as<Vec<u16, 32>>(_mm512_srl_epi16(bits(x), _mm_cvtsi32_si128(count)));
}
inline Vec<i16, 32> shifted_right(Vec<i16, 32> x, int count)
{
    return as<Vec<i16, 32>>(_mm512_sra_epi16(bits(x), _mm_cvtsi32_si128(count)));
}

inline Vec<u8, 64> interleaved_low(Vec<u8, 64> x, Vec<u8, 64> y)
{
    return as<Vec<u8, 64>>(_mm512_unpacklo_epi8(bits(x), bits(y)));
}
inline Vec<u8, 64> interleaved_high(Vec<u8, 64> x, Vec<u8, 64> y)
{
    return as<Vec<u8, 64>>(_mm512_unpackhi_epi8(bits(x), bits(y)));
}
inline Vec<u8, 64> packed(Vec<i16, 32> low, Vec<i16, 32> high)
{
    return as<Vec<u8, 64>>(_mm512_packus_epi16(bits(low), bits(high)));
}
inline bool any_bit(__m512i x) { return _mm512_test_epi64_mask(x, x) != 0; }
inline u64 byte_signs(__m512i x) { return _mm512_movepi8_mask(x); }
template <class Mask>
requires(sizeof(Mask) == 64 && sizeof(Lane<Mask>) == 1) inline u64 lanes_set(Mask mask)
{
    return byte_signs(bits(mask));
}
template <class Mask>
requires(sizeof(Mask) == 64 && sizeof(Lane<Mask>) == 2) inline u32 lanes_set(Mask mask)
{
    return _mm512_movepi16_mask(bits(mask));
}
template <class Mask>
requires(sizeof(Mask) == 64) inline auto narrowed_masks(Mask low, Mask high)
{
    if constexpr (sizeof(Lane<Mask>) == 8) {
        const auto x = as<Vec<i32, 16>>(low), y = as<Vec<i32, 16>>(high);
        return __builtin_shufflevector(x, y, 0, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30);
    } else if constexpr (sizeof(Lane<Mask>) == 4) {
        return narrowed<i16>(as<Vec<i32, 16>>(low), as<Vec<i32, 16>>(high));
    } else {
        return narrowed<i8>(as<Vec<i16, 32>>(low), as<Vec<i16, 32>>(high));
    }
}

template <class V, int k>
requires(sizeof(V) == 64 && k == 0 && sizeof(Lane<V>) == 2) inline V bits_to_lanes(u32 word)
{
    return as<V>(_mm512_maskz_set1_epi16(word, 1));
}
template <class V, int k>
requires(sizeof(V) == 64 && sizeof(Lane<V>) == 4) inline V bits_to_lanes(u32 word)
{
    return as<V>(_mm512_maskz_set1_epi32(static_cast<__mmask16>(word >> 16 * k), 1));
}
inline __m512i bytes_at(__m512i x, __m512i places) { return _mm512_shuffle_epi8(x, places); }
template <int n>
requires(n == 8) inline Vec<i64, 8> widened_to_64(Vec<i16, 8> x)
{
    return as<Vec<i64, 8>>(_mm512_cvtepi16_epi64(bits(x)));
}

inline Vec<i32, 16> high_product(Vec<i32, 16> x, Vec<i32, 16> y)
{
    using U = Vec<u32, 16>;
    const auto odd = [](auto v) { return as<decltype(v)>(as<Vec<u64, 8>>(v) >> 32); };
    return as<Vec<i32, 16>>(even_and_odd(odd(as<U>(even_products(x, y))), as<U>(even_products(odd(x), odd(y)))));
}

inline Vec<i16, 32> magnitudes(Vec<i16, 32> x) { return as<Vec<i16, 32>>(_mm512_abs_epi16(bits(x))); }
inline Vec<i32, 16> magnitudes(Vec<i32, 16> x) { return as<Vec<i32, 16>>(_mm512_abs_epi32(bits(x))); }
inline Vec<i16, 32> with_signs(Vec<i16, 32> x, Vec<i16, 32> y) { return y < 0 ? -x : y == 0 ? y : x; }
inline Vec<i32, 16> with_signs(Vec<i32, 16> x, Vec<i32, 16> y) { return y < 0 ? -x : y == 0 ? y : x; }

inline Vec<u64, 8> sums_of_eight(Vec<u8, 64> x) { return as<Vec<u64, 8>>(_mm512_sad_epu8(bits(x), __m512i{})); }
inline Vec<u16, 32> sums_of_two(Vec<u8, 64> x)
{
    return as<Vec<u16, 32>>(_mm512_maddubs_epi16(bits(x), _mm512_set1_epi8(1)));
}
inline Vec<i32, 16> sums_of_two(Vec<i16, 32> x)
{
    return as<Vec<i32, 16>>(_mm512_madd_epi16(bits(x), _mm512_set1_epi16(1)));
}

// The first n of an array's elements, 0 < n < 64 / sizeof(T), beside other lanes; and the first n lanes as elements.
template <class T>
using LaneMask = std::conditional_t<
    sizeof(T) == 1, __mmask64,
    std::conditional_t<sizeof(T) == 2, __mmask32, std::conditional_t<sizeof(T) == 4, __mmask16, __mmask8>>>;
template <class T> inline LaneMask<T> first_lanes(size_t n) { return static_cast<LaneMask<T>>((u64{1} << n) - 1); }
template <class V> inline V load_masked(const Lane<V>* p, size_t n, V others)
{
    using T = Lane<V>;
    const LaneMask<T> mask = first_lanes<T>(n);
    if constexpr (sizeof(T) == 1)
        return as<V>(_mm512_mask_loadu_epi8(bits(others), mask, p));
    else if constexpr (sizeof(T) == 2)
        return as<V>(_mm512_mask_loadu_epi16(bits(others), mask, p));
    else if constexpr (sizeof(T) == 4)
        return as<V>(_mm512_mask_loadu_epi32(bits(others), mask, p));
    else
        return as<V>(_mm512_mask_loadu_epi64(bits(others), mask, p));
}
template <class T, class V> inline void store_masked(T* p, size_t n, V v)
{
    static_assert(sizeof v == 64);
    const LaneMask<T> mask = first_lanes<T>(n);
    if constexpr (sizeof(T) == 1)
        _mm512_mask_storeu_epi8(p, mask, bits(v));
    else if constexpr (sizeof(T) == 2)
        _mm512_mask_storeu_epi16(p, mask, bits(v));
    else if constexpr (sizeof(T) == 4)
        _mm512_mask_storeu_epi32(p, mask, bits(v));
    else
        _mm512_mask_storeu_epi64(p, mask, bits(v));
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
