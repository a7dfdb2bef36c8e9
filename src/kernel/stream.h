// Stores past the caches, for results that no cache would keep: they save reading the destination before it is
// overwritten. Every sequence of them ends with stream_end(), so that other cores see it before what is stored later.
#pragma once
#include "frame/cache.h"
#include "kernel/vec.h"
#if SIG5D_LEVEL >= 4
#include <immintrin.h>
#else
#include <emmintrin.h>
#endif

namespace sig5d::SIG5D_VARIANT {
namespace {

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

// An array that no cache holds is walked in three sections side by side, this many bytes of each in turn: memory
// delivers several streams faster than one.
constexpr size_t sections = 3, bytesInTurn = 512;

// Calls step(i), for pieces of `turn` elements from index i on, until fewer than three pieces are left. Returns how
// many elements that took, from the beginning on.
template <class Step> inline size_t in_sections(size_t n, size_t turn, Step step)
{
    const size_t section = n / sections / turn * turn;
    for (size_t i = 0; i < section; i += turn)
#pragma GCC unroll 1
        for (size_t k = 0; k < sections; ++k) step(i + k * section);
    return sections * section;
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
