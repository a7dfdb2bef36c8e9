// Floating-point vectors of 32 bytes.
#pragma once
#include "kernel/simd/numbers_128.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

inline Vec<f64, 4> square_root(Vec<f64, 4> x) { return _mm256_sqrt_pd(x); }
inline Vec<f32, 8> larger(Vec<f32, 8> x, Vec<f32, 8> y) { return _mm256_max_ps(x, y); }
inline Vec<f32, 8> smaller(Vec<f32, 8> x, Vec<f32, 8> y) { return _mm256_min_ps(x, y); }
inline Vec<f64, 4> larger(Vec<f64, 4> x, Vec<f64, 4> y) { return _mm256_max_pd(x, y); }
inline Vec<f64, 4> smaller(Vec<f64, 4> x, Vec<f64, 4> y) { return _mm256_min_pd(x, y); }

template <class Mask>
requires(sizeof(Mask) == 32 && sizeof(Lane<Mask>) >= 4) inline int lanes_set(Mask mask)
{
    return sizeof(Lane<Mask>) == 8 ? _mm256_movemask_pd(as<__m256d>(mask)) : _mm256_movemask_ps(as<__m256>(mask));
}

inline Vec<f32, 8> singles(Vec<i32, 8> x) { return _mm256_cvtepi32_ps(bits(x)); }
template <int n>
requires(n == 4) inline Vec<f64, 4> doubles(Vec<i32, 4> x) { return _mm256_cvtepi32_pd(bits(x)); }
template <int n>
requires(n == 4) inline Vec<f64, 4> doubles(Vec<f32, 4> x) { return _mm256_cvtps_pd(x); }

inline Vec<i32, 8> nearest(Vec<f32, 8> x) { return as<Vec<i32, 8>>(_mm256_cvtps_epi32(x)); }
inline Vec<i32, 8> truncated(Vec<f32, 8> x) { return as<Vec<i32, 8>>(_mm256_cvttps_epi32(x)); }
inline Vec<i32, 4> nearest(Vec<f64, 4> x) { return as<Vec<i32, 4>>(_mm256_cvtpd_epi32(x)); }
inline Vec<i32, 4> truncated(Vec<f64, 4> x) { return as<Vec<i32, 4>>(_mm256_cvttpd_epi32(x)); }

template <int seconds> inline Vec<f64, 4> shuffled(Vec<f64, 4> a, Vec<f64, 4> b)
{
    Vec<f64, 4> v;
    asm("vshufpd %3, %2, %1, %0" : "=x"(v) : "x"(a), "x"(b), "i"(seconds));
    return v;
}
inline Vec<f64, 4> real_lanes(Vec<f64, 4> v) { return _mm256_movedup_pd(v); }
inline Vec<f64, 4> subtract_add(Vec<f64, 4> x, Vec<f64, 4> y) { return _mm256_addsub_pd(x, y); }

// Two halves as one. (A shuffle would be made after two loads.)
inline Vec<f64, 4> joined(Vec<f64, 2> low, Vec<f64, 2> high)
{
    return _mm256_insertf128_pd(_mm256_castpd128_pd256(low), high, 1);
}
// The low halves of two vectors, and the high ones.
inline Vec<f64, 4> low_halves(Vec<f64, 4> a, Vec<f64, 4> b) { return __builtin_shufflevector(a, b, 0, 1, 4, 5); }
inline Vec<f64, 4> high_halves(Vec<f64, 4> a, Vec<f64, 4> b) { return __builtin_shufflevector(a, b, 2, 3, 6, 7); }

// Numbers in memory, each twice.
template <int n>
requires(n == 4) inline Vec<f64, 4> each_twice(const f64* p)
{
    return _mm256_permute_pd(_mm256_broadcast_pd(reinterpret_cast<const __m128d*>(p)), 0xC);
}

inline Vec<f64, 4> truncated_to_32(Vec<f64, 4> x) { return doubles<4>(truncated(x)); }
inline Vec<f64, 4> floor(Vec<f64, 4> x) { return _mm256_floor_pd(x); }
inline Vec<f64, 4> ceiling(Vec<f64, 4> x) { return _mm256_ceil_pd(x); }
inline Vec<f64, 4> nearest_whole(Vec<f64, 4> x)
{
    return _mm256_round_pd(x, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
}
inline Vec<f64, 4> without_fraction(Vec<f64, 4> x)
{
    return _mm256_round_pd(x, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
}

inline Vec<f64, 4> lower_doubles(Vec<i32, 8> x) { return _mm256_cvtepi32_pd(_mm256_castsi256_si128(bits(x))); }
inline Vec<f64, 4> upper_doubles(Vec<i32, 8> x) { return _mm256_cvtepi32_pd(_mm256_extractf128_si256(bits(x), 1)); }
inline Vec<i32, 8> nearest(Vec<f64, 4> low, Vec<f64, 4> high)
{
    return as<Vec<i32, 8>>(_mm256_set_m128i(_mm256_cvtpd_epi32(high), _mm256_cvtpd_epi32(low)));
}
inline Vec<i32, 8> truncated(Vec<f64, 4> low, Vec<f64, 4> high)
{
    return as<Vec<i32, 8>>(_mm256_set_m128i(_mm256_cvttpd_epi32(high), _mm256_cvttpd_epi32(low)));
}

inline Vec<f64, 2> lower_half(Vec<f64, 4> v) { return _mm256_castpd256_pd128(v); }
inline Vec<f64, 2> upper_half(Vec<f64, 4> v) { return _mm256_extractf128_pd(v, 1); }
template <int n>
requires(n == 4) inline Vec<f64, 4> broadcast(const f64* p) { return _mm256_broadcast_sd(p); }

inline Vec<f64, 4> less(Vec<f64, 4> x, Vec<f64, 4> y) { return _mm256_cmp_pd(x, y, _CMP_LT_OQ); }
inline Vec<f64, 4> same(Vec<f64, 4> x, Vec<f64, 4> y) { return _mm256_cmp_pd(x, y, _CMP_EQ_OQ); }
inline Vec<f64, 4> same_or_nan(Vec<f64, 4> x, Vec<f64, 4> y) { return _mm256_cmp_pd(x, y, _CMP_EQ_UQ); }
inline Vec<f64, 4> unordered(Vec<f64, 4> x, Vec<f64, 4> y) { return _mm256_cmp_pd(x, y, _CMP_UNORD_Q); }
inline Vec<f64, 4> both(Vec<f64, 4> x, Vec<f64, 4> y) { return _mm256_and_pd(x, y); }
inline Vec<f64, 4> either(Vec<f64, 4> x, Vec<f64, 4> y) { return _mm256_or_pd(x, y); }
inline Vec<f64, 4> turned(Vec<f64, 4> x, Vec<f64, 4> y) { return _mm256_xor_pd(x, y); }
inline Vec<f64, 4> without(Vec<f64, 4> x, Vec<f64, 4> mask) { return _mm256_andnot_pd(mask, x); }

inline void stream_bits(void* p, __m256i v) { _mm256_stream_si256(static_cast<__m256i*>(p), v); }

inline Vec<f32, 4> singles(Vec<f64, 4> x) { return _mm256_cvtpd_ps(x); }

inline Vec<f64, 4> pairs_shifted_in(Vec<f64, 4> before, Vec<f64, 4> v)
{
    return shuffled<5>(_mm256_permute2f128_pd(before, v, 0x21), v);
}

inline Vec<f64, 4> lanes_shifted_down(Vec<f64, 4> v, Vec<f64, 4> above)
{
    return shuffled<5>(v, _mm256_permute2f128_pd(v, above, 0x21));
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
