// Floating-point vectors of 64 bytes.
#pragma once
#include "kernel/simd/numbers_256.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

inline Vec<f64, 8> square_root(Vec<f64, 8> x) { return _mm512_sqrt_pd(x); }
inline Vec<f32, 16> larger(Vec<f32, 16> x, Vec<f32, 16> y) { return _mm512_max_ps(x, y); }
inline Vec<f32, 16> smaller(Vec<f32, 16> x, Vec<f32, 16> y) { return _mm512_min_ps(x, y); }
inline Vec<f64, 8> larger(Vec<f64, 8> x, Vec<f64, 8> y) { return _mm512_max_pd(x, y); }
inline Vec<f64, 8> smaller(Vec<f64, 8> x, Vec<f64, 8> y) { return _mm512_min_pd(x, y); }

template <class Mask>
requires(sizeof(Mask) == 64 && sizeof(Lane<Mask>) >= 4) inline int lanes_set(Mask mask)
{
    return sizeof(Lane<Mask>) == 8 ? _mm512_movepi64_mask(bits(mask)) : _mm512_movepi32_mask(bits(mask));
}

inline Vec<f32, 16> singles(Vec<i32, 16> x) { return _mm512_cvtepi32_ps(bits(x)); }
template <int n>
requires(n == 8) inline Vec<f64, 8> doubles(Vec<i32, 8> x) { return _mm512_cvtepi32_pd(bits(x)); }
template <int n>
requires(n == 8) inline Vec<f64, 8> doubles(Vec<f32, 8> x) { return _mm512_cvtps_pd(x); }

inline Vec<i32, 16> nearest(Vec<f32, 16> x) { return as<Vec<i32, 16>>(_mm512_cvtps_epi32(x)); }
inline Vec<i32, 16> truncated(Vec<f32, 16> x) { return as<Vec<i32, 16>>(_mm512_cvttps_epi32(x)); }
inline Vec<i32, 8> nearest(Vec<f64, 8> x) { return as<Vec<i32, 8>>(_mm512_cvtpd_epi32(x)); }
inline Vec<i32, 8> truncated(Vec<f64, 8> x) { return as<Vec<i32, 8>>(_mm512_cvttpd_epi32(x)); }

template <int seconds> inline Vec<f64, 8> shuffled(Vec<f64, 8> a, Vec<f64, 8> b)
{
    return _mm512_shuffle_pd(a, b, seconds);
}
inline Vec<f64, 8> real_lanes(Vec<f64, 8> v) { return _mm512_movedup_pd(v); }
// Neither is computed in the lanes of the other: a sum that is not wanted could raise an exception.
inline Vec<f64, 8> subtract_add(Vec<f64, 8> x, Vec<f64, 8> y)
{
    return _mm512_mask_sub_pd(_mm512_maskz_add_pd(0xAA, x, y), 0x55, x, y);
}

inline Vec<f64, 8> joined(Vec<f64, 4> low, Vec<f64, 4> high)
{
    return _mm512_insertf64x4(_mm512_castpd256_pd512(low), high, 1);
}
inline Vec<f64, 8> low_halves(Vec<f64, 8> a, Vec<f64, 8> b)
{
    return __builtin_shufflevector(a, b, 0, 1, 2, 3, 8, 9, 10, 11);
}
inline Vec<f64, 8> high_halves(Vec<f64, 8> a, Vec<f64, 8> b)
{
    return __builtin_shufflevector(a, b, 4, 5, 6, 7, 12, 13, 14, 15);
}

template <int n>
requires(n == 8) inline Vec<f64, 8> each_twice(const f64* p)
{
    const auto v = loadn<4>(p);
    return __builtin_shufflevector(v, v, 0, 0, 1, 1, 2, 2, 3, 3);
}

inline Vec<f64, 8> truncated_to_32(Vec<f64, 8> x) { return doubles<8>(truncated(x)); }
inline Vec<f64, 8> floor(Vec<f64, 8> x) { return _mm512_floor_pd(x); }
inline Vec<f64, 8> ceiling(Vec<f64, 8> x) { return _mm512_ceil_pd(x); }
inline Vec<f64, 8> nearest_whole(Vec<f64, 8> x)
{
    return _mm512_roundscale_pd(x, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
}
inline Vec<f64, 8> without_fraction(Vec<f64, 8> x)
{
    return _mm512_roundscale_pd(x, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
}

inline Vec<f64, 8> lower_doubles(Vec<i32, 16> x) { return _mm512_cvtepi32_pd(_mm512_castsi512_si256(bits(x))); }
inline Vec<f64, 8> upper_doubles(Vec<i32, 16> x) { return _mm512_cvtepi32_pd(_mm512_extracti64x4_epi64(bits(x), 1)); }
inline Vec<i32, 16> nearest(Vec<f64, 8> low, Vec<f64, 8> high)
{
    const __m512i lower = _mm512_castsi256_si512(_mm512_cvtpd_epi32(low));
    return as<Vec<i32, 16>>(_mm512_inserti64x4(lower, _mm512_cvtpd_epi32(high), 1));
}
inline Vec<i32, 16> truncated(Vec<f64, 8> low, Vec<f64, 8> high)
{
    const __m512i lower = _mm512_castsi256_si512(_mm512_cvttpd_epi32(low));
    return as<Vec<i32, 16>>(_mm512_inserti64x4(lower, _mm512_cvttpd_epi32(high), 1));
}

inline Vec<f64, 4> lower_half(Vec<f64, 8> v) { return _mm512_castpd512_pd256(v); }
inline Vec<f64, 4> upper_half(Vec<f64, 8> v) { return _mm512_extractf64x4_pd(v, 1); }
template <int n>
requires(n == 8) inline Vec<f64, 8> broadcast(const f64* p) { return _mm512_set1_pd(*p); }

inline Vec<f64, 8> less(Vec<f64, 8> x, Vec<f64, 8> y)
{
    return as<Vec<f64, 8>>(_mm512_movm_epi64(_mm512_cmp_pd_mask(x, y, _CMP_LT_OQ)));
}
inline Vec<f64, 8> same(Vec<f64, 8> x, Vec<f64, 8> y)
{
    return as<Vec<f64, 8>>(_mm512_movm_epi64(_mm512_cmp_pd_mask(x, y, _CMP_EQ_OQ)));
}
inline Vec<f64, 8> same_or_nan(Vec<f64, 8> x, Vec<f64, 8> y)
{
    return as<Vec<f64, 8>>(_mm512_movm_epi64(_mm512_cmp_pd_mask(x, y, _CMP_EQ_UQ)));
}
inline Vec<f64, 8> unordered(Vec<f64, 8> x, Vec<f64, 8> y)
{
    return as<Vec<f64, 8>>(_mm512_movm_epi64(_mm512_cmp_pd_mask(x, y, _CMP_UNORD_Q)));
}
inline Vec<f64, 8> both(Vec<f64, 8> x, Vec<f64, 8> y) { return _mm512_and_pd(x, y); }
inline Vec<f64, 8> either(Vec<f64, 8> x, Vec<f64, 8> y) { return _mm512_or_pd(x, y); }
inline Vec<f64, 8> turned(Vec<f64, 8> x, Vec<f64, 8> y) { return _mm512_xor_pd(x, y); }
inline Vec<f64, 8> without(Vec<f64, 8> x, Vec<f64, 8> mask) { return _mm512_andnot_pd(mask, x); }

inline void stream_bits(void* p, __m512i v) { _mm512_stream_si512(static_cast<__m512i*>(p), v); }

inline Vec<f32, 8> singles(Vec<f64, 8> x) { return _mm512_cvtpd_ps(x); }

inline Vec<f64, 8> lanes_shifted_down(Vec<f64, 8> v, Vec<f64, 8> above)
{
    return as<Vec<f64, 8>>(_mm512_alignr_epi64(bits(above), bits(v), 1));
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
