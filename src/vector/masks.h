// Comparisons and bitwise operations on vectors of doubles. Not by operators: of masks the compiler would make
// conditions again, and choose lane by lane where the processor has no selection.
#pragma once
#include "kernel/simd.h"
#if SIG5D_LEVEL > 0

namespace sig5d::SIG5D_VARIANT {
namespace {

inline __m128d less(__m128d x, __m128d y) { return _mm_cmplt_pd(x, y); }
inline __m128d same(__m128d x, __m128d y) { return _mm_cmpeq_pd(x, y); }
inline __m128d same_or_nan(__m128d x, __m128d y) { return _mm_or_pd(_mm_cmpeq_pd(x, y), _mm_cmpunord_pd(x, y)); }
inline __m128d both(__m128d x, __m128d y) { return _mm_and_pd(x, y); }
inline __m128d either(__m128d x, __m128d y) { return _mm_or_pd(x, y); }
inline __m128d turned(__m128d x, __m128d y) { return _mm_xor_pd(x, y); }
inline __m128d without(__m128d x, __m128d mask) { return _mm_andnot_pd(mask, x); }
#if SIG5D_LEVEL >= 4
inline __m256d less(__m256d x, __m256d y) { return _mm256_cmp_pd(x, y, _CMP_LT_OQ); }
inline __m256d same(__m256d x, __m256d y) { return _mm256_cmp_pd(x, y, _CMP_EQ_OQ); }
inline __m256d same_or_nan(__m256d x, __m256d y) { return _mm256_cmp_pd(x, y, _CMP_EQ_UQ); }
inline __m256d both(__m256d x, __m256d y) { return _mm256_and_pd(x, y); }
inline __m256d either(__m256d x, __m256d y) { return _mm256_or_pd(x, y); }
inline __m256d turned(__m256d x, __m256d y) { return _mm256_xor_pd(x, y); }
inline __m256d without(__m256d x, __m256d mask) { return _mm256_andnot_pd(mask, x); }
#endif

// The number in every lane of a V.
template <class V> inline V all(f64 x) { return splatn<sizeof(V) / sizeof x>(x); }

} // namespace
} // namespace sig5d::SIG5D_VARIANT
#endif
