// What comparisons of doubles give: a bool in px, lanes of zeros or ones in vectors.
#pragma once
#include "kernel/vec.h"
#if SIG5D_LEVEL > 0
#include <immintrin.h>
#endif

namespace sig5d::SIG5D_VARIANT {
namespace {

inline bool any(bool condition) { return condition; }

#if SIG5D_LEVEL > 0
template <class M> inline bool any(M condition)
{
#if SIG5D_LEVEL >= 4
    if constexpr (sizeof(M) == 32) return _mm256_movemask_pd(reinterpret_cast<__m256d>(condition)) != 0;
#endif
    if constexpr (sizeof(M) == 16) return _mm_movemask_pd(reinterpret_cast<__m128d>(condition)) != 0;
}
#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
