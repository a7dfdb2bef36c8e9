// Sorting by counting, for keys that lie within a range of 256.
#pragma once
#include "signal/processing/sorting/keys.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The key of counter c is (low + c) ^ flip.
template <class T> [[gnu::noinline]] void sort_by_counting(T* a, size_t n, u32 low, u32 flip)
{
    u32 counts[2][256];
    for (u32 c = 0; c < 256; ++c) counts[0][c] = counts[1][c] = 0;
    const auto counter = [=](T x) { return ((static_cast<u32>(x) ^ flip) - low) & 255; };
    size_t i = 0;
    for (; n - i >= 8; i += 8)
#pragma GCC unroll 8
        for (size_t k = 0; k < 8; ++k) ++counts[k % 2][counter(a[i + k])];
    for (; i < n; ++i) ++counts[0][counter(a[i])];
    for (u32 c = 0; c < 256; ++c) {
        const u32 count = counts[0][c] + counts[1][c];
        if (count > 0) fill(a, count, static_cast<T>((low + c) ^ flip));
        a += count;
    }
}

// The places of equal keys increase.
template <class T> [[gnu::noinline]] void sort_places_by_counting(T* a, i32* place, size_t n, u32 flip)
{
    u32 next[256];
    for (u32 c = 0; c < 256; ++c) next[c] = 0;
    const auto counter = [=](T x) { return (static_cast<u32>(x) ^ flip) & 255; };
    for (size_t i = 0; i < n; ++i) ++next[counter(a[i])];
    u32 sum = 0;
    for (u32 c = 0; c < 256; ++c) {
        const u32 count = next[c];
        next[c] = sum;
        sum += count;
    }
    for (size_t i = 0; i < n; ++i) place[next[counter(a[i])]++] = static_cast<i32>(i);
    size_t i = 0;
    for (u32 c = 0; c < 256; ++c)
        for (; i < next[c]; ++i) a[i] = static_cast<T>(c ^ flip);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
