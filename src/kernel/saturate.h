// The limits of integer element types, and arithmetic that stops at them, for single values and for vectors lane by
// lane.
#pragma once
#include "kernel/vec.h"
#include <type_traits>
#if SIG5D_LEVEL > 0
#include <immintrin.h>
#endif

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> constexpr int width = 8 * sizeof(T);
template <class T> constexpr bool isSigned = T(-1) < T(0);
template <class T> constexpr i64 highest = (i64(1) << (width<T> - isSigned<T>)) - 1;
template <class T> constexpr i64 lowest_of = isSigned<T> ? -highest<T> - 1 : 0;

template <class T> inline T saturated(i64 x)
{
    return static_cast<T>(x < lowest_of<T> ? lowest_of<T> : x > highest<T> ? highest<T> : x);
}

#if SIG5D_LEVEL > 0

template <class V> using Lane = std::remove_cvref_t<decltype(V{}[0])>;
template <class V> inline V all(Lane<V> x) { return splatn<sizeof(V) / sizeof(Lane<V>)>(x); }

// A vector as what the intrinsics take, and back.
template <class V> inline auto bits(V v) { return reinterpret_cast<Vec<long long, sizeof(V) / 8>>(v); }
template <class V, class W> inline V as(W v) { return reinterpret_cast<V>(v); }

// Lane by lane without the bits that do not fit: in signed lanes the language leaves that open.
template <class V> using Unsigned = Vec<std::make_unsigned_t<Lane<V>>, sizeof(V) / sizeof(Lane<V>)>;
template <class V> inline V sum_modulo(V x, V y) { return as<V>(as<Unsigned<V>>(x) + as<Unsigned<V>>(y)); }
template <class V> inline V difference_modulo(V x, V y) { return as<V>(as<Unsigned<V>>(x) - as<Unsigned<V>>(y)); }
template <class V> inline V product_modulo(V x, V y) { return as<V>(as<Unsigned<V>>(x) * as<Unsigned<V>>(y)); }

// Intrinsics as overloads: on the size of the register, and by an empty argument on the type of the lanes.
inline __m128i sums(__m128i x, __m128i y, u8) { return _mm_adds_epu8(x, y); }
inline __m128i sums(__m128i x, __m128i y, i16) { return _mm_adds_epi16(x, y); }
inline __m128i differences(__m128i x, __m128i y, u8) { return _mm_subs_epu8(x, y); }
inline __m128i differences(__m128i x, __m128i y, u16) { return _mm_subs_epu16(x, y); }
inline __m128i differences(__m128i x, __m128i y, i16) { return _mm_subs_epi16(x, y); }
inline __m128i averages(__m128i x, __m128i y, u8) { return _mm_avg_epu8(x, y); }
inline __m128i averages(__m128i x, __m128i y, u16) { return _mm_avg_epu16(x, y); }
inline __m128i and_not(__m128i x, __m128i y) { return _mm_andnot_si128(y, x); }
inline __m128i packed(__m128i low, __m128i high) { return _mm_packs_epi32(low, high); }
inline __m128i packed_bytes(__m128i low, __m128i high) { return _mm_packus_epi16(low, high); }
inline __m128i interleaved_low(__m128i x, __m128i y) { return _mm_unpacklo_epi16(x, y); }
inline __m128i interleaved_high(__m128i x, __m128i y) { return _mm_unpackhi_epi16(x, y); }
#if SIG5D_LEVEL >= 2
inline __m128i rounded_products(__m128i x, __m128i y) { return _mm_mulhrs_epi16(x, y); }
#endif
#if SIG5D_LEVEL >= 3
inline __m128i chosen(__m128i sign, __m128i negative, __m128i other)
{
    return _mm_castps_si128(_mm_blendv_ps(_mm_castsi128_ps(other), _mm_castsi128_ps(negative), _mm_castsi128_ps(sign)));
}
#endif
#if SIG5D_LEVEL >= 5
inline __m256i sums(__m256i x, __m256i y, u8) { return _mm256_adds_epu8(x, y); }
inline __m256i sums(__m256i x, __m256i y, i16) { return _mm256_adds_epi16(x, y); }
inline __m256i differences(__m256i x, __m256i y, u8) { return _mm256_subs_epu8(x, y); }
inline __m256i differences(__m256i x, __m256i y, u16) { return _mm256_subs_epu16(x, y); }
inline __m256i differences(__m256i x, __m256i y, i16) { return _mm256_subs_epi16(x, y); }
inline __m256i averages(__m256i x, __m256i y, u8) { return _mm256_avg_epu8(x, y); }
inline __m256i averages(__m256i x, __m256i y, u16) { return _mm256_avg_epu16(x, y); }
inline __m256i and_not(__m256i x, __m256i y) { return _mm256_andnot_si256(y, x); }
inline __m256i packed(__m256i low, __m256i high) { return _mm256_packs_epi32(low, high); }
inline __m256i packed_bytes(__m256i low, __m256i high) { return _mm256_packus_epi16(low, high); }
inline __m256i interleaved_low(__m256i x, __m256i y) { return _mm256_unpacklo_epi16(x, y); }
inline __m256i interleaved_high(__m256i x, __m256i y) { return _mm256_unpackhi_epi16(x, y); }
inline __m256i rounded_products(__m256i x, __m256i y) { return _mm256_mulhrs_epi16(x, y); }
inline __m256i chosen(__m256i sign, __m256i negative, __m256i other)
{
    return _mm256_castps_si256(
        _mm256_blendv_ps(_mm256_castsi256_ps(other), _mm256_castsi256_ps(negative), _mm256_castsi256_ps(sign)));
}
#endif

// x & ~y, where y is made of a comparison: written like this, compilers make a slower selection of it.
template <class V> inline V without(V x, V y) { return as<V>(and_not(bits(x), bits(y))); }

// (x + y + 1) / 2 of unsigned lanes.
template <class V> inline V average(V x, V y) { return as<V>(averages(bits(x), bits(y), Lane<V>{})); }

// x * y * 2^-15 of 16-bit lanes to the nearest integer, halves up. From SSSE3 on.
template <class V> inline V rounded_product(V x, V y) { return as<V>(rounded_products(bits(x), bits(y))); }

// Two vectors of 32-bit lanes that unpacking made of one of 16-bit lanes.
template <class V> inline auto pack_saturated(V low, V high)
{
    return as<Vec<i16, sizeof(V) / 2>>(packed(bits(low), bits(high)));
}

template <class V> inline V lower(V x, V y) { return x < y ? x : y; }
template <class V> inline V higher(V x, V y) { return x > y ? x : y; }

// 32-bit lanes: where the sign of the first is negative, the second, else the third.
template <class V> inline V where_negative(V sign, V x, V other)
{
#if SIG5D_LEVEL >= 3
    return as<V>(chosen(bits(sign), bits(x), bits(other)));
#else
    sign >>= 31;
    return (x & sign) | (other & ~sign);
#endif
}

// The limit on the side of a number's sign.
template <class V> inline V limit_of(V x) { return (x >> 31) ^ static_cast<i32>(highest<i32>); }

// The sum. Of 32-bit lanes: of x within what leaves room for y; bounds that the compiler computes once if y is always
// the same, or by the wrong sign that a sum beyond the limits has, where processors lack the minimum.
template <class V> inline V add_saturated(V x, V y)
{
    if constexpr (sizeof(Lane<V>) != 4) {
        return as<V>(sums(bits(x), bits(y), Lane<V>{}));
    } else if constexpr (SIG5D_LEVEL >= 3) {
        const V least = all<V>(lowest_of<i32>) - lower(y, V{}), most = all<V>(highest<i32>) - higher(y, V{});
        return lower(higher(x, least), most) + y;
    } else {
        const V sum = sum_modulo(x, y);
        return where_negative((x > sum) ^ y, limit_of(~sum), sum);
    }
}

// The difference, with bounds for x that depend on y.
template <class V> inline V subtract_saturated(V x, V y)
{
    if constexpr (sizeof(Lane<V>) != 4) {
        return as<V>(differences(bits(x), bits(y), Lane<V>{}));
    } else if constexpr (SIG5D_LEVEL >= 3) {
        const V least = all<V>(lowest_of<i32>) + higher(y, V{}), most = all<V>(highest<i32>) + lower(y, V{});
        return lower(higher(x, least), most) - y;
    } else {
        const V difference = difference_modulo(x, y);
        return where_negative((difference > x) ^ y, limit_of(~difference), difference);
    }
}

// The same with bounds for y that depend on x.
template <class V> inline V subtract_saturated_from(V x, V y)
{
    if constexpr (sizeof(Lane<V>) == 4 && SIG5D_LEVEL >= 3) {
        const V least = higher(x, all<V>(-1)) - static_cast<i32>(highest<i32>);
        const V most = lower(x, all<V>(-1)) - static_cast<i32>(lowest_of<i32>);
        return x - lower(higher(y, least), most);
    } else {
        return subtract_saturated(x, y);
    }
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
