// Vectors of integers of 16 bytes: saturation, products, and lanes of one length made of lanes of another.
#pragma once
#include "kernel/simd/vector.h"
#include <immintrin.h>

namespace sig5d::SIG5D_VARIANT {
namespace {

// Sums and differences that stop at the limits of their lanes.
inline Vec<u8, 16> add_saturated(Vec<u8, 16> x, Vec<u8, 16> y)
{
    return as<Vec<u8, 16>>(_mm_adds_epu8(bits(x), bits(y)));
}
inline Vec<i16, 8> add_saturated(Vec<i16, 8> x, Vec<i16, 8> y)
{
    return as<Vec<i16, 8>>(_mm_adds_epi16(bits(x), bits(y)));
}
inline Vec<u8, 16> subtract_saturated(Vec<u8, 16> x, Vec<u8, 16> y)
{
    return as<Vec<u8, 16>>(_mm_subs_epu8(bits(x), bits(y)));
}
inline Vec<u16, 8> subtract_saturated(Vec<u16, 8> x, Vec<u16, 8> y)
{
    return as<Vec<u16, 8>>(_mm_subs_epu16(bits(x), bits(y)));
}
inline Vec<i16, 8> subtract_saturated(Vec<i16, 8> x, Vec<i16, 8> y)
{
    return as<Vec<i16, 8>>(_mm_subs_epi16(bits(x), bits(y)));
}

// (x + y + 1) / 2 of unsigned lanes.
inline Vec<u8, 16> average(Vec<u8, 16> x, Vec<u8, 16> y) { return as<Vec<u8, 16>>(_mm_avg_epu8(bits(x), bits(y))); }
inline Vec<u16, 8> average(Vec<u16, 8> x, Vec<u16, 8> y) { return as<Vec<u16, 8>>(_mm_avg_epu16(bits(x), bits(y))); }

// x & ~y, where y is made of a comparison: written like this, compilers make a slower selection of it.
inline __m128i and_not(__m128i x, __m128i y) { return _mm_andnot_si128(y, x); }

// The upper halves of the products of lanes.
inline Vec<u16, 8> high_product(Vec<u16, 8> x, Vec<u16, 8> y)
{
    return as<Vec<u16, 8>>(_mm_mulhi_epu16(bits(x), bits(y)));
}
inline Vec<i16, 8> high_product(Vec<i16, 8> x, Vec<i16, 8> y)
{
    return as<Vec<i16, 8>>(_mm_mulhi_epi16(bits(x), bits(y)));
}

// Even lanes of 32 bits from one vector, odd ones from another.
inline Vec<u32, 4> even_and_odd(Vec<u32, 4> even, Vec<u32, 4> odd)
{
#if SIG5D_LEVEL >= 3
    return as<Vec<u32, 4>>(_mm_blend_epi16(bits(even), bits(odd), 0xCC));
#else
    constexpr Vec<u32, 4> evenLanes = {~0u, 0, ~0u, 0};
    return (even & evenLanes) | (odd & ~evenLanes);
#endif
}

// The products of the even lanes of 32 bits, with all their bits.
inline Vec<u64, 2> even_products(Vec<u32, 4> x, Vec<u32, 4> y)
{
    return as<Vec<u64, 2>>(_mm_mul_epu32(bits(x), bits(y)));
}
inline Vec<i64, 2> even_products(Vec<i32, 4> x, Vec<i32, 4> y)
{
#if SIG5D_LEVEL >= 3
    return as<Vec<i64, 2>>(_mm_mul_epi32(bits(x), bits(y)));
#else // the unsigned ones, less what a sign bit counts too much there
    using U = Vec<u32, 4>;
    const U excess = as<U>(x >> 31 & y) + as<U>(y >> 31 & x);
    return as<Vec<i64, 2>>(even_products(as<U>(x), as<U>(y)) - (as<Vec<u64, 2>>(excess) << 32));
#endif
}

// x * y * 2^-15 to the nearest integer, halves up.
#if SIG5D_LEVEL >= 2
inline Vec<i16, 8> rounded_product(Vec<i16, 8> x, Vec<i16, 8> y)
{
    return as<Vec<i16, 8>>(_mm_mulhrs_epi16(bits(x), bits(y)));
}
#endif

// Where the sign is negative, x, else the other.
inline Vec<i32, 4> where_negative(Vec<i32, 4> sign, Vec<i32, 4> x, Vec<i32, 4> other)
{
#if SIG5D_LEVEL >= 3
    return as<Vec<i32, 4>>(_mm_blendv_ps(as<__m128>(other), as<__m128>(x), as<__m128>(sign)));
#else
    sign >>= 31;
    return (x & sign) | (other & ~sign);
#endif
}

// The lower and the upper lanes of two vectors in turn.
inline Vec<u16, 8> interleaved_low(Vec<u16, 8> x, Vec<u16, 8> y)
{
    return as<Vec<u16, 8>>(_mm_unpacklo_epi16(bits(x), bits(y)));
}
inline Vec<u16, 8> interleaved_high(Vec<u16, 8> x, Vec<u16, 8> y)
{
    return as<Vec<u16, 8>>(_mm_unpackhi_epi16(bits(x), bits(y)));
}
// What interleaving made of 16-bit lanes: back, with saturation.
inline Vec<i16, 8> packed(Vec<i32, 4> low, Vec<i32, 4> high)
{
    return as<Vec<i16, 8>>(_mm_packs_epi32(bits(low), bits(high)));
}

// Lanes twice as long: the low ones of a vector, with their signs if they have any.
inline Vec<i16, 8> widened_twice(Vec<i8, 16> x)
{
#if SIG5D_LEVEL >= 3
    return as<Vec<i16, 8>>(_mm_cvtepi8_epi16(bits(x)));
#else
    return as<Vec<i16, 8>>(_mm_unpacklo_epi8(bits(x), bits(x))) >> 8;
#endif
}
inline Vec<i32, 4> widened_twice(Vec<i16, 8> x)
{
#if SIG5D_LEVEL >= 3
    return as<Vec<i32, 4>>(_mm_cvtepi16_epi32(bits(x)));
#else
    return as<Vec<i32, 4>>(_mm_unpacklo_epi16(bits(x), bits(x))) >> 16;
#endif
}
inline Vec<i16, 8> widened_twice(Vec<u8, 16> x) { return as<Vec<i16, 8>>(_mm_unpacklo_epi8(bits(x), __m128i{})); }
inline Vec<i32, 4> widened_twice(Vec<u16, 8> x)
{
#if SIG5D_LEVEL >= 3
    return as<Vec<i32, 4>>(_mm_cvtepu16_epi32(bits(x)));
#else
    return as<Vec<i32, 4>>(_mm_unpacklo_epi16(bits(x), __m128i{}));
#endif
}

// The low n lanes of a vector as 16-bit or 32-bit integers.
template <int n, class V>
requires(n <= 8 && sizeof(V) == 16) inline Vec<i16, 8> widened_to_16(V x) { return widened_twice(x); }
template <int n, class V>
requires(n <= 4 && sizeof(V) == 16) inline Vec<i32, 4> widened_to_32(V x)
{
    if constexpr (sizeof(Lane<V>) == 4) {
        return x;
    } else if constexpr (sizeof(Lane<V>) == 2) {
        return widened_twice(x);
    } else {
#if SIG5D_LEVEL >= 3
        return as<Vec<i32, 4>>(std::is_signed_v<Lane<V>> ? _mm_cvtepi8_epi32(bits(x)) : _mm_cvtepu8_epi32(bits(x)));
#else
        return widened_twice(widened_twice(x));
#endif
    }
}

// Lanes half as long, with saturation: those of the first vector, then those of the second. To u16 before SSE4.1 only
// numbers from 0 to 65535.
template <class D> inline Vec<D, 8> narrowed(Vec<i32, 4> low, Vec<i32, 4> high)
{
    if constexpr (std::is_signed_v<D>) return as<Vec<D, 8>>(_mm_packs_epi32(bits(low), bits(high)));
#if SIG5D_LEVEL >= 3
    return as<Vec<D, 8>>(_mm_packus_epi32(bits(low), bits(high)));
#else
    constexpr i32 offset = 32768;
    return as<Vec<D, 8>>(narrowed<i16>(low - offset, high - offset)) ^ static_cast<D>(offset);
#endif
}
template <class D> inline Vec<D, 16> narrowed(Vec<i16, 8> low, Vec<i16, 8> high)
{
    const __m128i x = bits(low), y = bits(high);
    return as<Vec<D, 16>>(std::is_signed_v<D> ? _mm_packs_epi16(x, y) : _mm_packus_epi16(x, y));
}

// A quarter as long.
template <class D> inline Vec<D, 16> narrowed(Vec<i32, 4> x0, Vec<i32, 4> x1, Vec<i32, 4> x2, Vec<i32, 4> x3)
{
    return narrowed<D>(narrowed<i16>(x0, x1), narrowed<i16>(x2, x3));
}

// The low halves of two vectors.
inline Vec<i32, 4> low_halves(Vec<i32, 4> a, Vec<i32, 4> b)
{
    return as<Vec<i32, 4>>(_mm_unpacklo_epi64(bits(a), bits(b)));
}

// All lanes of 16 bits to the right by a count below the width, which takes two steps on many processors.
inline Vec<u16, 8> shifted_right(Vec<u16, 8> x, int count)
{
    return as<Vec<u16, 8>>(_mm_srl_epi16(bits(x), _mm_cvtsi32_si128(count)));
}
inline Vec<i16, 8> shifted_right(Vec<i16, 8> x, int count)
{
    return as<Vec<i16, 8>>(_mm_sra_epi16(bits(x), _mm_cvtsi32_si128(count)));
}

// Lanes of 32 and 64 bits by a count below the width: from AVX2 on each lane with a count of its own, in one step.
#if SIG5D_LEVEL < 5
inline Vec<u32, 4> shifted_left(Vec<u32, 4> x, int count)
{
    return as<Vec<u32, 4>>(_mm_sll_epi32(bits(x), _mm_cvtsi32_si128(count)));
}
inline Vec<u64, 2> shifted_left(Vec<u64, 2> x, int count)
{
    return as<Vec<u64, 2>>(_mm_sll_epi64(bits(x), _mm_cvtsi32_si128(count)));
}
inline Vec<i32, 4> shifted_right(Vec<i32, 4> x, int count)
{
    return as<Vec<i32, 4>>(_mm_sra_epi32(bits(x), _mm_cvtsi32_si128(count)));
}
inline Vec<u32, 4> shifted_right(Vec<u32, 4> x, int count)
{
    return as<Vec<u32, 4>>(_mm_srl_epi32(bits(x), _mm_cvtsi32_si128(count)));
}
inline Vec<u64, 2> shifted_right(Vec<u64, 2> x, int count)
{
    return as<Vec<u64, 2>>(_mm_srl_epi64(bits(x), _mm_cvtsi32_si128(count)));
}
#else
// The count for each lane, by way of 32 bits (32-bit code would put 64 together in memory), and hidden from the
// compiler, which would see that all are equal.
template <class V> inline V counts(int count)
{
    using T = Lane<V>;
    const auto low = as<Vec<T, 16 / sizeof(T)>>(Vec<i32, 4>{count});
    V all = all_lanes<V>(static_cast<T>(low[0]));
    asm("" : "+x"(all));
    return all;
}
template <class V>
requires(sizeof(Lane<V>) >= 4) inline V shifted_left(V x, int count) { return x << counts<V>(count); }
template <class V>
requires(sizeof(Lane<V>) >= 4) inline V shifted_right(V x, int count) { return x >> counts<V>(count); }
#endif

// Magnitudes, the lowest number as an unsigned one; and x with the sign of y, zero where y is.
#if SIG5D_LEVEL >= 2
inline Vec<i16, 8> magnitudes(Vec<i16, 8> x) { return as<Vec<i16, 8>>(_mm_abs_epi16(bits(x))); }
inline Vec<i32, 4> magnitudes(Vec<i32, 4> x) { return as<Vec<i32, 4>>(_mm_abs_epi32(bits(x))); }
inline Vec<i16, 8> with_signs(Vec<i16, 8> x, Vec<i16, 8> y)
{
    return as<Vec<i16, 8>>(_mm_sign_epi16(bits(x), bits(y)));
}
inline Vec<i32, 4> with_signs(Vec<i32, 4> x, Vec<i32, 4> y)
{
    return as<Vec<i32, 4>>(_mm_sign_epi32(bits(x), bits(y)));
}
#endif

// Past the caches, to an aligned address.
inline void stream_bits(void* p, __m128i v) { _mm_stream_si128(static_cast<__m128i*>(p), v); }

// The sums of eight bytes each.
inline Vec<u64, 2> sums_of_eight(Vec<u8, 16> x) { return as<Vec<u64, 2>>(_mm_sad_epu8(bits(x), __m128i{})); }

// The sums of neighbours.
inline Vec<i32, 4> sums_of_two(Vec<i16, 8> x) { return as<Vec<i32, 4>>(_mm_madd_epi16(bits(x), _mm_set1_epi16(1))); }

// The bytes of v moved up, and the last ones of the vector before it.
template <int bytes> inline __m128i shifted_in(__m128i before, __m128i v)
{
#if SIG5D_LEVEL >= 2
    return _mm_alignr_epi8(v, before, 16 - bytes);
#else
    return _mm_or_si128(_mm_srli_si128(before, 16 - bytes), _mm_slli_si128(v, bytes));
#endif
}

inline Vec<u8, 16> interleaved_low(Vec<u8, 16> x, Vec<u8, 16> y)
{
    return as<Vec<u8, 16>>(_mm_unpacklo_epi8(bits(x), bits(y)));
}
inline Vec<u8, 16> interleaved_high(Vec<u8, 16> x, Vec<u8, 16> y)
{
    return as<Vec<u8, 16>>(_mm_unpackhi_epi8(bits(x), bits(y)));
}
// Back from 16-bit lanes, with saturation.
inline Vec<u8, 16> packed(Vec<i16, 8> low, Vec<i16, 8> high)
{
    return as<Vec<u8, 16>>(_mm_packus_epi16(bits(low), bits(high)));
}

// Whether any bit is set.
inline bool any_bit(__m128i x)
{
#if SIG5D_LEVEL >= 3
    return !_mm_testz_si128(x, x);
#else
    return _mm_movemask_epi8(_mm_cmpeq_epi32(x, __m128i{})) != 0xFFFF;
#endif
}

// A bit for each byte whose highest bit is set.
inline u32 byte_signs(__m128i x) { return static_cast<u32>(_mm_movemask_epi8(x)); }

// A bit for each lane whose mask is set, here of 8 or 16 bits.
template <class Mask>
requires(sizeof(Mask) == 16 && sizeof(Lane<Mask>) < 4) inline u32 lanes_set(Mask mask)
{
    return byte_signs(sizeof(Lane<Mask>) == 1 ? bits(mask) : _mm_packs_epi16(bits(mask), __m128i{}));
}
// Masks of lanes half as long: those of the first vector, then those of the second.
template <class Mask>
requires(sizeof(Mask) == 16) inline auto narrowed_masks(Mask low, Mask high)
{
    if constexpr (sizeof(Lane<Mask>) == 8)
        return as<Vec<i32, 4>>(_mm_shuffle_ps(as<__m128>(low), as<__m128>(high), 0x88));
    else if constexpr (sizeof(Lane<Mask>) == 4)
        return narrowed<i16>(as<Vec<i32, 4>>(low), as<Vec<i32, 4>>(high));
    else
        return narrowed<i8>(as<Vec<i16, 8>>(low), as<Vec<i16, 8>>(high));
}

// The k-th group of as many bits of a word as there are lanes: 1 in a lane whose bit is set, else 0.
template <class V, int k>
requires(sizeof(V) == 16 && sizeof(Lane<V>) == 1) inline V bits_to_lanes(u32 word)
{
    const __m128i single = _mm_cvtsi32_si128(static_cast<int>(word)), twice = _mm_unpacklo_epi8(single, single);
    const __m128i fourTimes = _mm_unpacklo_epi16(twice, twice),
                  bit = _mm_set1_epi64x(static_cast<i64>(0x8040201008040201));
    return as<V>(
        _mm_min_epu8(_mm_and_si128(_mm_shuffle_epi32(fourTimes, k == 0 ? 0x50 : 0xFA), bit), _mm_set1_epi8(1)));
}
template <class V, int k>
requires(sizeof(V) == 16 && sizeof(Lane<V>) == 2) inline V bits_to_lanes(u32 word)
{
    const __m128i single = _mm_cvtsi32_si128(static_cast<int>(word)), twice = _mm_unpacklo_epi16(single, single);
    const auto all = as<Vec<u16, 8>>(_mm_shuffle_epi32(twice, k < 2 ? 0x00 : 0x55));
    // The bit of each lane to the sign, then to the lowest place.
    if constexpr (k % 2 == 0)
        return as<V>(all * Vec<u16, 8>{0x8000, 0x4000, 0x2000, 0x1000, 0x800, 0x400, 0x200, 0x100} >> 15);
    else
        return as<V>(all * Vec<u16, 8>{0x80, 0x40, 0x20, 0x10, 8, 4, 2, 1} >> 15);
}
template <class V, int k>
requires(sizeof(V) == 16 && sizeof(Lane<V>) == 4) inline V bits_to_lanes(u32 word)
{
    constexpr Vec<u32, 4> bit = Vec<u32, 4>{1, 2, 4, 8} << 4 * k;
    return as<V>(as<Vec<u32, 4>>((all_lanes<Vec<u32, 4>>(word) & bit) == bit) >> 31);
}

#if SIG5D_LEVEL >= 2
// The bytes at these places, zeros at negative ones.
inline __m128i bytes_at(__m128i x, __m128i places) { return _mm_shuffle_epi8(x, places); }
#endif
#if SIG5D_LEVEL >= 3
// The low n lanes as 64-bit integers.
template <int n>
requires(n <= 2) inline Vec<i64, 2> widened_to_64(Vec<i16, 8> x)
{
    return as<Vec<i64, 2>>(_mm_cvtepi16_epi64(bits(x)));
}
#endif

// The upper halves of the products of 32-bit lanes.
inline Vec<i32, 4> high_product(Vec<i32, 4> x, Vec<i32, 4> y)
{
    using U = Vec<u32, 4>;
    const auto odd = [](auto v) { return as<decltype(v)>(as<Vec<u64, 2>>(v) >> 32); };
#if SIG5D_LEVEL >= 3
    return as<Vec<i32, 4>>(even_and_odd(odd(as<U>(even_products(x, y))), as<U>(even_products(odd(x), odd(y)))));
#else // of the unsigned ones, less what a sign bit counts too much there
    const U a = as<U>(x), b = as<U>(y);
    const U product = even_and_odd(odd(as<U>(even_products(a, b))), as<U>(even_products(odd(a), odd(b))));
    return as<Vec<i32, 4>>(product - (as<U>(x >> 31 & y) + as<U>(y >> 31 & x)));
#endif
}

// The lower pieces, of so many bytes each, of two vectors in turn.
template <int bytes> inline __m128i interleaved_pieces(__m128i x, __m128i y)
{
    if constexpr (bytes == 8)
        return _mm_unpacklo_epi64(x, y);
    else if constexpr (bytes == 4)
        return _mm_unpacklo_epi32(x, y);
    else if constexpr (bytes == 2)
        return _mm_unpacklo_epi16(x, y);
    else
        return _mm_unpacklo_epi8(x, y);
}
// What stands from so many bytes on, at the low end.
template <int bytes> inline __m128i bytes_from(__m128i x) { return _mm_srli_si128(x, bytes); }

} // namespace
} // namespace sig5d::SIG5D_VARIANT
