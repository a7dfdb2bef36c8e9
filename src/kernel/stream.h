// Stores past the caches, for results that no cache would keep: they save reading the destination before it is
// overwritten. Every sequence of them ends with stream_end(), so that other cores see it before what is stored later.
#pragma once
#include "frame/cache.h"
#include "kernel/vec.h"
#if SIG5D_LEVEL > 0
#include <immintrin.h>
#endif

namespace sig5d::SIG5D_VARIANT {
namespace {

#if SIG5D_LEVEL > 0
// p: aligned to the size of the vector.
template <class V> inline void stream(void* p, V v)
{
#if SIG5D_LEVEL >= 4
    if constexpr (sizeof(V) == 32)
        _mm256_stream_si256(static_cast<__m256i*>(p), reinterpret_cast<__m256i>(v));
    else
#endif
        _mm_stream_si128(static_cast<__m128i*>(p), reinterpret_cast<__m128i>(v));
}
inline void stream_end() { _mm_sfence(); }

inline bool aligned(const void* p, uintptr_t bytes) { return reinterpret_cast<uintptr_t>(p) % bytes == 0; }
#endif

// Two arrays of so many bytes have none in common.
inline bool apart(const void* p, const void* q, size_t bytes)
{
    const uintptr_t a = reinterpret_cast<uintptr_t>(p), b = reinterpret_cast<uintptr_t>(q);
    return a - b >= bytes && b - a >= bytes;
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
