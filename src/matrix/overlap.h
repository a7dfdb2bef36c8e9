// What part of the memory a matrix takes, whether two share some, and what is done then.
#pragma once
#include "frame/types.h"
#include <stddef.h>
#include <stdint.h>

namespace sig5d::SIG5D_VARIANT {
namespace {

// Bytes from the first element to the end of the last one; neither rows nor cols is 0. In 64 bits: no array exceeds
// them.
inline u64 extent(size_t rows, size_t cols, size_t stride, size_t size)
{
    return (u64(rows - 1) * stride + cols) * size;
}

inline bool disjoint(const void* p, u64 pBytes, const void* q, u64 qBytes)
{
    const u64 a = reinterpret_cast<uintptr_t>(p), b = reinterpret_cast<uintptr_t>(q);
    return a + pBytes <= b || b + qBytes <= a;
}

// After each move of a loop whose order can be seen. The compiler would make vectors of elements that it takes to
// overlap as wholes or not at all; at odd addresses they may overlap in part.
inline void one_by_one() { asm volatile("" : : : "memory"); }

} // namespace
} // namespace sig5d::SIG5D_VARIANT
