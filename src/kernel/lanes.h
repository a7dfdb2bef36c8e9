// Vectors of one element type made of vectors of another. "low" means the low end of a register of 16 bytes.
#pragma once
#include "kernel/partial.h"
#include <type_traits>
#if SIG5D_LEVEL > 0

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class V> inline __m128i bits128(V v) { return reinterpret_cast<__m128i>(v); }

// Widening integers, each twice as long as before.
#if SIG5D_LEVEL < 3
inline __m128i low_16(__m128i x, i8) { return _mm_srai_epi16(_mm_unpacklo_epi8(x, x), 8); }
inline __m128i low_16(__m128i x, u8) { return _mm_unpacklo_epi8(x, _mm_setzero_si128()); }
inline __m128i low_32(__m128i x, i16) { return _mm_srai_epi32(_mm_unpacklo_epi16(x, x), 16); }
inline __m128i low_32(__m128i x, u16) { return _mm_unpacklo_epi16(x, _mm_setzero_si128()); }
inline __m128i low_32(__m128i x, i8) { return _mm_srai_epi32(low_32(_mm_unpacklo_epi8(x, x), i16{}), 8); }
inline __m128i low_32(__m128i x, u8) { return low_32(low_16(x, u8{}), u16{}); }
#else
inline __m128i low_16(__m128i x, i8) { return _mm_cvtepi8_epi16(x); }
inline __m128i low_16(__m128i x, u8) { return _mm_cvtepu8_epi16(x); }
inline __m128i low_32(__m128i x, i16) { return _mm_cvtepi16_epi32(x); }
inline __m128i low_32(__m128i x, u16) { return _mm_cvtepu16_epi32(x); }
inline __m128i low_32(__m128i x, i8) { return _mm_cvtepi8_epi32(x); }
inline __m128i low_32(__m128i x, u8) { return _mm_cvtepu8_epi32(x); }
#endif
#if SIG5D_LEVEL >= 5
inline __m256i all_16(__m128i x, i8) { return _mm256_cvtepi8_epi16(x); }
inline __m256i all_16(__m128i x, u8) { return _mm256_cvtepu8_epi16(x); }
inline __m256i all_32(__m128i x, i16) { return _mm256_cvtepi16_epi32(x); }
inline __m256i all_32(__m128i x, u16) { return _mm256_cvtepu16_epi32(x); }
inline __m256i all_32(__m128i x, i8) { return _mm256_cvtepi8_epi32(x); }
inline __m256i all_32(__m128i x, u8) { return _mm256_cvtepu8_epi32(x); }
#endif

// n elements as 16-bit or 32-bit integers.
template <int n, class S> inline auto load_as_16(const S* p)
{
    const auto x = bits128(load_lanes<n>(p));
#if SIG5D_LEVEL >= 5
    if constexpr (n == 16)
        return reinterpret_cast<Vec<i16, 16>>(all_16(x, S{}));
    else
#endif
        return reinterpret_cast<Vec<i16, 8>>(low_16(x, S{}));
}
template <int n, class S> inline auto load_as_32(const S* p)
{
    const auto x = load_lanes<n>(p);
    if constexpr (sizeof(S) == 4) {
        return x;
    } else {
#if SIG5D_LEVEL >= 5
        if constexpr (n == 8)
            return reinterpret_cast<Vec<i32, 8>>(all_32(bits128(x), S{}));
        else
#endif
            return reinterpret_cast<Vec<i32, 4>>(low_32(bits128(x), S{}));
    }
}

// 32-bit integers as single precision numbers, or the low half of them as doubles.
inline Vec<f32, 4> singles(Vec<i32, 4> x) { return _mm_cvtepi32_ps(reinterpret_cast<__m128i>(x)); }
inline Vec<f64, 2> low_doubles(Vec<i32, 4> x) { return _mm_cvtepi32_pd(reinterpret_cast<__m128i>(x)); }
inline Vec<f64, 2> low_doubles(Vec<f32, 4> x) { return _mm_cvtps_pd(x); }
#if SIG5D_LEVEL >= 4
inline Vec<f32, 8> singles(Vec<i32, 8> x) { return _mm256_cvtepi32_ps(reinterpret_cast<__m256i>(x)); }
inline Vec<f64, 4> all_doubles(Vec<i32, 4> x) { return _mm256_cvtepi32_pd(reinterpret_cast<__m128i>(x)); }
inline Vec<f64, 4> all_doubles(Vec<f32, 4> x) { return _mm256_cvtps_pd(x); }
#endif

// 32-bit lanes as doubles: the low n of them.
template <int n, class V> inline auto doubles(V x)
{
#if SIG5D_LEVEL >= 4
    if constexpr (n == 4)
        return all_doubles(x);
    else
#endif
        return low_doubles(x);
}

// Narrowing integers with saturation, in order.
inline Vec<i16, 8> narrowed(Vec<i32, 4> low, Vec<i32, 4> high, i16)
{
    return reinterpret_cast<Vec<i16, 8>>(_mm_packs_epi32(bits128(low), bits128(high)));
}
inline Vec<u16, 8> narrowed(Vec<i32, 4> low, Vec<i32, 4> high, u16)
{
#if SIG5D_LEVEL >= 3
    return reinterpret_cast<Vec<u16, 8>>(_mm_packus_epi32(bits128(low), bits128(high)));
#else // numbers from 0 to 65535 only
    constexpr i32 offset = 32768;
    return reinterpret_cast<Vec<u16, 8>>(narrowed(low - offset, high - offset, i16{})) ^ static_cast<u16>(offset);
#endif
}
inline Vec<i8, 16> narrowed(Vec<i16, 8> low, Vec<i16, 8> high, i8)
{
    return reinterpret_cast<Vec<i8, 16>>(_mm_packs_epi16(bits128(low), bits128(high)));
}
inline Vec<u8, 16> narrowed(Vec<i16, 8> low, Vec<i16, 8> high, u8)
{
    return reinterpret_cast<Vec<u8, 16>>(_mm_packus_epi16(bits128(low), bits128(high)));
}
#if SIG5D_LEVEL >= 5
template <class V> inline __m256i bits256(V v) { return reinterpret_cast<__m256i>(v); }
inline __m256i in_order(__m256i packed) { return _mm256_permute4x64_epi64(packed, 0xD8); }
inline Vec<i16, 16> narrowed(Vec<i32, 8> low, Vec<i32, 8> high, i16)
{
    return reinterpret_cast<Vec<i16, 16>>(in_order(_mm256_packs_epi32(bits256(low), bits256(high))));
}
inline Vec<u16, 16> narrowed(Vec<i32, 8> low, Vec<i32, 8> high, u16)
{
    return reinterpret_cast<Vec<u16, 16>>(in_order(_mm256_packus_epi32(bits256(low), bits256(high))));
}
inline Vec<i8, 32> narrowed(Vec<i16, 16> low, Vec<i16, 16> high, i8)
{
    return reinterpret_cast<Vec<i8, 32>>(in_order(_mm256_packs_epi16(bits256(low), bits256(high))));
}
inline Vec<u8, 32> narrowed(Vec<i16, 16> low, Vec<i16, 16> high, u8)
{
    return reinterpret_cast<Vec<u8, 32>>(in_order(_mm256_packus_epi16(bits256(low), bits256(high))));
}
#endif

// Four times as narrow.
#if SIG5D_LEVEL >= 5
template <class D> inline auto bytes_of(Vec<i32, 8> x0, Vec<i32, 8> x1, Vec<i32, 8> x2, Vec<i32, 8> x3, D)
{
    const __m256i low = _mm256_packs_epi32(bits256(x0), bits256(x1)),
                  high = _mm256_packs_epi32(bits256(x2), bits256(x3));
    const __m256i mixed = D(-1) < D(0) ? _mm256_packs_epi16(low, high) : _mm256_packus_epi16(low, high);
    const __m256i order = _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7);
    return reinterpret_cast<Vec<D, 32>>(_mm256_permutevar8x32_epi32(mixed, order));
}
#endif

// n elements of type D, made of integers that are as long or longer: part<k>(p) gives k of those from p on.
template <class D, int n, class S, class Part> inline auto gather(const S* p, Part part)
{
    using X = std::remove_cvref_t<decltype(part.template operator()<1>(p)[0])>;
    if constexpr (sizeof(X) == sizeof(D)) {
        return part.template operator()<n>(p);
    } else {
        using Twice = std::conditional_t<sizeof(X) == 2 * sizeof(D), X, i16>;
        constexpr int half = (n * sizeof(D) > 16 ? 32 : 16) / sizeof(Twice);
#if SIG5D_LEVEL >= 5
        if constexpr (n == 32 && sizeof(X) == 4)
            return bytes_of(part.template operator()<8>(p), part.template operator()<8>(p + 8),
                            part.template operator()<8>(p + 16), part.template operator()<8>(p + 24), D{});
        else
#endif
            if constexpr (n > half) {
            return narrowed(gather<Twice, half>(p, part), gather<Twice, half>(p + half, part), D{});
        } else {
            const auto low = gather<Twice, n>(p, part);
            return narrowed(low, low, D{});
        }
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
#endif
