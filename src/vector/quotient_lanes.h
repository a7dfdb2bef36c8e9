// Exact integer division lane by lane, in floating point: a quotient of integers that is no integer lies further from
// the next one than rounding moves it.
#pragma once
#include "vector/two_results.h"
#if SIG5D_LEVEL > 0

namespace sig5d::SIG5D_VARIANT {
namespace {

// The lower and the upper elements of a vector (of each 16 bytes), widened; and narrowed again to the low bits.
template <class V> inline auto low_i32(V x)
{
    return as<Vec<i32, sizeof(V) / 4>>(interleaved_low(as<Unsigned<V>>(x), as<Unsigned<V>>(x))) >> 16;
}
template <class V> inline auto high_i32(V x)
{
    return as<Vec<i32, sizeof(V) / 4>>(interleaved_high(as<Unsigned<V>>(x), as<Unsigned<V>>(x))) >> 16;
}
template <class V> inline auto low_i16(V x) { return as<Vec<i16, sizeof(V) / 2>>(interleaved_low(x, V{})); }
template <class V> inline auto high_i16(V x) { return as<Vec<i16, sizeof(V) / 2>>(interleaved_high(x, V{})); }
template <class V> inline auto low_bits(V low, V high)
{
    if constexpr (sizeof(Lane<V>) == 4)
        return packed(low << 16 >> 16, high << 16 >> 16);
    else
        return packed(low, high);
}

// Quotients lie at least 1 / |y| away from an integer that they are not; |x| <= 2^31.
#if SIG5D_LEVEL >= 4

// Without the divider, which would take half as long again. The estimate r of 1 / y has a relative error e with
// |e| < 2^-11.4 (the instruction's 1.5 * 2^-12 and the rounding of y), so that with u = y r = 1 + e
//     1 / y = r / (1 + e) = r (1 - e + e^2 - ...) = r (3 + u (u - 3)), less e^3 with |e^3| < 2^-34.
// With 2^-33 more, every quotient is too large by 2^-34 to 2^-32.4 of itself (roundings do not count), at most
// 0.4 / |y|: those that are integers stay above them, the others below the next one.
inline __m128i quotient_i32(__m128i x, __m128i y, __m128 estimate)
{
    const __m256d r = _mm256_cvtps_pd(estimate), u = _mm256_cvtepi32_pd(y) * r;
    return _mm256_cvttpd_epi32(_mm256_cvtepi32_pd(x) * r * ((3.0 + 0x1p-33) + u * (u - 3.0)));
}
inline Vec<i32, 4> quotient_i32(Vec<i32, 4> x, Vec<i32, 4> y)
{
    const auto divisor = reinterpret_cast<__m128i>(y);
    return reinterpret_cast<Vec<i32, 4>>(
        quotient_i32(reinterpret_cast<__m128i>(x), divisor, _mm_rcp_ps(_mm_cvtepi32_ps(divisor))));
}
#if SIG5D_LEVEL >= 5
inline Vec<i32, 8> quotient_i32(Vec<i32, 8> x, Vec<i32, 8> y)
{
    const auto a = reinterpret_cast<__m256i>(x), b = reinterpret_cast<__m256i>(y);
    const auto high = [](__m256i v) { return _mm256_extracti128_si256(v, 1); };
    const __m256 estimate = _mm256_rcp_ps(_mm256_cvtepi32_ps(b));
    const __m128i lower =
        quotient_i32(_mm256_castsi256_si128(a), _mm256_castsi256_si128(b), _mm256_castps256_ps128(estimate));
    const __m128i upper = quotient_i32(high(a), high(b), _mm256_extractf128_ps(estimate, 1));
    return reinterpret_cast<Vec<i32, 8>>(_mm256_set_m128i(upper, lower));
}
#endif

#else

// In doubles: an error below 2^-22 / |y|.
inline Vec<i32, 4> quotient_i32(Vec<i32, 4> x, Vec<i32, 4> y)
{
    const auto upper = [](Vec<i32, 4> v) { return _mm_unpackhi_epi64(reinterpret_cast<__m128i>(v), __m128i{}); };
    const auto low = _mm_cvtepi32_pd(reinterpret_cast<__m128i>(x)) / _mm_cvtepi32_pd(reinterpret_cast<__m128i>(y));
    const auto high = _mm_cvtepi32_pd(upper(x)) / _mm_cvtepi32_pd(upper(y));
    return reinterpret_cast<Vec<i32, 4>>(_mm_unpacklo_epi64(_mm_cvttpd_epi32(low), _mm_cvttpd_epi32(high)));
}

#endif

// In single precision: |x| <= 2^15, the error is below 2^-8 / |y|.
template <class V> inline V quotient_i24(V x, V y)
{
    using F = Vec<f32, sizeof(V) / 4>;
    return __builtin_convertvector(__builtin_convertvector(x, F) / __builtin_convertvector(y, F), V);
}
template <class V> inline V quotient_i16(V x, V y)
{
    return low_bits(quotient_i24(low_i32(x), low_i32(y)), quotient_i24(high_i32(x), high_i32(y)));
}

template <class T, class V> inline V quotient(V x, V y)
{
    if constexpr (sizeof(T) == 4)
        return quotient_i32(x, y);
    else if constexpr (sizeof(T) == 2)
        return quotient_i16(x, y);
    else
        return low_bits(quotient_i16(low_i16(x), low_i16(y)), quotient_i16(high_i16(x), high_i16(y)));
}

template <class T, class V> inline Division<V> division(V x, V y)
{
    if constexpr (sizeof(T) == 1) { // products of bytes need lanes of two
        const auto low = division<i16>(low_i16(x), low_i16(y)), high = division<i16>(high_i16(x), high_i16(y));
        return {low_bits(low.quotient, high.quotient), low_bits(low.remainder, high.remainder)};
    } else {
        using U = Vec<typename UnsignedLane<T>::type, sizeof(V) / sizeof(T)>;
        const V q = quotient<T>(x, y);
        return {q, reinterpret_cast<V>(reinterpret_cast<U>(x) - reinterpret_cast<U>(q) * reinterpret_cast<U>(y))};
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
#endif
