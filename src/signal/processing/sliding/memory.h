// Copies, and the elements of filters and correlations.
#pragma once
#include "kernel/layout.h"
#include <cstddef>

namespace sig5d {
namespace {

template <class T> constexpr bool isComplex = sizeof(T) == sizeof(c64f);

// The element sizes of the data types 13, 14, 19 and 20.
constexpr int elementBytes(int dataType)
{
    return dataType == 13 ? 4 : dataType == 14 || dataType == 19 ? 8 : dataType == 20 ? 16 : 0;
}

constexpr bool isComplexType(int dataType) { return dataType == 14 || dataType == 20; }

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
