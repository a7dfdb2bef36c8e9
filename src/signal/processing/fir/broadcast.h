// One number in all lanes of a vector, by one load; left to itself the compiler takes up to three shuffles.
#pragma once
#include "kernel/vec.h"
#if defined(__SSE3__) && SIG5D_LEVEL > 0
#include <immintrin.h>
#endif

namespace sig5d::SIG5D_VARIANT {
namespace {

template <int w> [[gnu::always_inline]] inline Vec<f64, w> broadcast(const f64& x)
{
#ifdef __AVX__
    if constexpr (w == 4) return _mm256_broadcast_sd(&x);
#endif
#ifdef __SSE3__
    if constexpr (w == 2) return _mm_loaddup_pd(&x);
#endif
    return splatn<w>(x);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
