// Copies, and how filters and correlations lay out the memory that they are given.
#pragma once
#include "frame/types.h"
#include <cstddef>

namespace sig5d {
namespace {

constexpr i64 align64(i64 bytes) { return (bytes + 63) / 64 * 64; }

template <class P> P aligned(P p)
{
    return reinterpret_cast<P>((reinterpret_cast<uintptr_t>(p) + 63) & ~uintptr_t(63));
}

template <class T> constexpr bool isComplex = sizeof(T) == sizeof(c64f);

// The element sizes of the data types 13, 14, 19 and 20.
constexpr int elementBytes(int dataType)
{
    return dataType == 13 ? 4 : dataType == 14 || dataType == 19 ? 8 : dataType == 20 ? 16 : 0;
}

constexpr bool isComplexType(int dataType) { return dataType == 14 || dataType == 20; }

constexpr i64 maxInt = 0x7fffffff;

// Not inlined, since each of them is called from many places and takes a few hundred bytes.
[[gnu::noinline]] inline void copy(const f64* a, f64* d, ptrdiff_t n)
{
#pragma GCC ivdep
    for (ptrdiff_t i = 0; i < n; ++i) d[i] = a[i];
}
inline void copy(const c64f* a, c64f* d, ptrdiff_t n) { copy(&a->re, &d->re, 2 * n); }

[[gnu::noinline]] inline void zero(f64* d, ptrdiff_t n)
{
    for (ptrdiff_t i = 0; i < n; ++i) d[i] = 0.0;
}
inline void zero(c64f* d, ptrdiff_t n) { zero(&d->re, 2 * n); }

} // namespace
} // namespace sig5d
