// What a border filter's specification and the work buffers of image filters consist of. The size queries, Init and the
// filters use the same layout; all sizes are computed in 64 bits and refused when they are no int.
#pragma once
#include "kernel/layout.h"
#include <cstddef>

namespace sig5d::SIG5D_VARIANT {
namespace {

// What lies so many bytes from p.
template <class T, class P> T* at(P p, ptrdiff_t bytes)
{
    return reinterpret_cast<T*>(reinterpret_cast<uintptr_t>(p) + static_cast<uintptr_t>(bytes));
}

// Rows of pixels that are computed at once, at most, whatever the body: buffers may change hands.
constexpr int mostGroups = 4;

// A work buffer, from its first multiple of 64: addresses of the rows that a step needs. Behind them, without borders,
// the kernel in the order of the sums; with borders as many rows with their borders, in either precision, and rows of
// results in double precision.
struct BufferLayout {
    int window; // rows that a step needs, at most
    int behindAddresses, rowBytes, results = 0;
    i64 bytes = i64(maxInt) + 1; // none, unless all sizes are ints

    BufferLayout(int kernelWidth, int kernelHeight, int width, bool borders)
    {
        const i64 rows = i64(kernelHeight) + mostGroups - 1, taps = i64(kernelWidth) * kernelHeight;
        // An odd number of cache lines from one row to the next lets them lie beside each other in every cache.
        const i64 row = (8 * (i64(width) + kernelWidth) & ~i64(127)) + 192, addresses = align64(8 * rows);
        window = static_cast<int>(rows);
        behindAddresses = static_cast<int>(addresses);
        rowBytes = static_cast<int>(row);
        if (taps > maxInt || row > maxInt) return; // beyond that the sums below might have no room in 64 bits
        results = static_cast<int>(addresses + rows * row);
        bytes = 64 + addresses + (borders ? (rows + mostGroups) * row : 8 * taps);
    }
    bool fits() const { return bytes <= maxInt; }
};

// The head of a specification, at the first multiple of 64 in the caller's block. Behind its first 64 bytes are the
// taps in single precision, further on in double precision. It holds no address, so that a block may lie in read-only
// memory and be moved by multiples of 64 bytes.
struct BorderSpec {
    u32 mark;
    i32 width, height;
    i32 doubles; // where they are
    i32 inDoubles;
};
constexpr u32 borderMark = 0x49463246;
constexpr int headBytes = 64;

} // namespace
} // namespace sig5d::SIG5D_VARIANT
