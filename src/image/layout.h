// What a border filter's specification and the work buffers of image filters consist of. The size queries, Init and the
// filters use the same layout; all sizes are computed in 64 bits and refused when they are no int.
#pragma once
#include "frame/types.h"
#include <cstddef>

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr i64 maxInt = 0x7fffffff;
constexpr i64 align64(i64 bytes) { return (bytes + 63) / 64 * 64; }
template <class P> P aligned(P p)
{
    return reinterpret_cast<P>((reinterpret_cast<uintptr_t>(p) + 63) & ~uintptr_t(63));
}
// What lies so many bytes from p.
template <class T, class P> T* at(P p, ptrdiff_t bytes)
{
    return reinterpret_cast<T*>(reinterpret_cast<uintptr_t>(p) + static_cast<uintptr_t>(bytes));
}

// Rows of pixels that are computed at once, at most, whatever the body: buffers may change hands.
constexpr int mostGroups = 4;

// A work buffer, from its first multiple of 64: addresses of rows; then what the filter wants.
struct BufferLayout {
    i64 kernelWidth, kernelHeight, width;

    // Rows of the image that a step needs, where each but the first few computes several rows of results.
    i64 window() const { return kernelHeight + mostGroups - 1; }
    i64 addresses() const { return align64(8 * window()); }

    // Without borders: the kernel in the order of the sums.
    i64 forKernel() const { return 64 + addresses() + 8 * kernelWidth * kernelHeight; }

    // With borders: rows of the image with their borders, in either precision, and rows of results in double precision.
    // An odd number of cache lines from one row to the next lets them lie beside each other in every cache.
    i64 rowBytes() const { return align64(8 * (width + kernelWidth - 1)) / 128 * 128 + 192; }
    i64 results() const { return addresses() + window() * rowBytes(); }
    i64 forBorders() const { return 64 + results() + mostGroups * rowBytes(); }

    // No product above is beyond 64 bits.
    bool bearable() const
    {
        return kernelWidth * kernelHeight <= maxInt && width + kernelWidth <= maxInt && window() <= maxInt;
    }
};

// The head of a specification, at the first multiple of 64 in the caller's block; the taps follow. It holds no address,
// so that a block may lie in read-only memory and be moved by multiples of 64 bytes.
struct BorderSpec {
    u32 mark;
    i32 width, height;
    i32 inDoubles;
};
constexpr u32 borderMark = 0x49463246;

struct SpecLayout {
    i64 taps; // so many
    i64 singles() const { return 64; }
    i64 doubles() const { return singles() + align64(4 * taps); }
    i64 bytes() const { return 63 + doubles() + 8 * taps; }
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
