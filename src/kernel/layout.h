// Sizes and places in memory that callers give: at multiples of a cache line, in sizes that are ints.
#pragma once
#include "frame/types.h"

namespace sig5d {
namespace {

constexpr i64 maxInt = 0x7fffffff;

constexpr i64 align64(i64 bytes) { return (bytes + 63) / 64 * 64; }

template <class P> P aligned(P p)
{
    return reinterpret_cast<P>((reinterpret_cast<uintptr_t>(p) + 63) & ~uintptr_t(63));
}

} // namespace
} // namespace sig5d
