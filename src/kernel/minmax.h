// The larger and the smaller of two numbers as comparison and selection give them: the second if they are equal or one
// is NaN. Compilers do not make the one instruction of floating-point vectors from it that does just that.
#pragma once
#include "kernel/vec.h"
#if SIG5D_LEVEL > 0
#include <immintrin.h>
#endif

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class V> inline V larger(V x, V y) { return x > y ? x : y; }
template <class V> inline V smaller(V x, V y) { return x < y ? x : y; }

#if SIG5D_LEVEL > 0
inline __m128 larger(__m128 x, __m128 y) { return _mm_max_ps(x, y); }
inline __m128 smaller(__m128 x, __m128 y) { return _mm_min_ps(x, y); }
inline __m128d larger(__m128d x, __m128d y) { return _mm_max_pd(x, y); }
inline __m128d smaller(__m128d x, __m128d y) { return _mm_min_pd(x, y); }
#endif
#if SIG5D_LEVEL >= 4
inline __m256 larger(__m256 x, __m256 y) { return _mm256_max_ps(x, y); }
inline __m256 smaller(__m256 x, __m256 y) { return _mm256_min_ps(x, y); }
inline __m256d larger(__m256d x, __m256d y) { return _mm256_max_pd(x, y); }
inline __m256d smaller(__m256d x, __m256d y) { return _mm256_min_pd(x, y); }
#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
