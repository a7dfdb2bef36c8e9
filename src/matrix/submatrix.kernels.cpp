// Copies of blocks between matrices of different row strides.
#include "frame/entry.h"
#include "matrix/rows.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// d(i, j) = a(i, j), in increasing order of i and, within it, of j.
template <class T> void copy_block(const T* a, T* d, size_t rows, size_t cols, size_t aStride, size_t dStride)
{
    if (!rows || !cols) return;
    constexpr size_t size = sizeof(T);
    if (aStride == cols && dStride == cols) { // no gaps: one run
        cols *= rows;
        rows = 1;
    }
    if constexpr (lanes < u8 >> 1)
        if (cols <= 2 * vectorBytes / size &&
            disjoint(a, extent(rows, cols, aStride, size), d, extent(rows, cols, dStride, size)))
            return copy_short_rows<vectorBytes>(rows, cols * size, reinterpret_cast<const u8*>(a),
                                                reinterpret_cast<u8*>(d), aStride * size, dStride * size);
    const bool pastCaches = streamingPays(u64(rows) * cols * size);
    for (size_t i = 0; i < rows; ++i) {
        copy_run(a, d, cols, pastCaches);
        a += aStride;
        d += dStride;
    }
}

template <class T>
void resize(const T* src, T* dst, unsigned rows, unsigned cols, unsigned srcStride, unsigned dstStride)
{
    copy_block(src, dst, rows, cols, srcStride, dstStride);
}

template <class T>
void copy_sub_matrix(const T* src, T* dst, unsigned srcRow, unsigned srcCol, unsigned dstRow, unsigned dstCol,
                     unsigned rows, unsigned cols, unsigned srcStride, unsigned dstStride)
{
    const size_t srcStep = srcStride, dstStep = dstStride;
    copy_block(src + (srcRow * srcStep + srcCol), dst + (dstRow * dstStep + dstCol), rows, cols, srcStep, dstStep);
}

} // namespace
#include "entries/matrix/submatrix.inc"
} // namespace sig5d::SIG5D_VARIANT
