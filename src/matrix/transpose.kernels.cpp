// Transposes and conjugate transposes.
#include "frame/entry.h"
#include "matrix/overlap.h"
#include "matrix/transpose_square.h"
#include "matrix/transpose_tiles.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The plain order, which every other one must equal: it shows where arrays share elements.
template <bool conj, class T> inline T moved(T x)
{
    if constexpr (conj) {
        u64 im;
        __builtin_memcpy(&im, &x.im, sizeof im);
        im ^= u64(1) << 63;
        __builtin_memcpy(&x.im, &im, sizeof im);
    }
    return x;
}

template <bool conj, class T>
void transpose_in_order(const T* a, T* d, size_t rows, size_t cols, size_t aStride, size_t dStride)
{
    for (size_t i = 0; i < rows; ++i)
        for (size_t j = 0; j < cols; ++j) {
            d[j * dStride + i] = moved<conj>(a[i * aStride + j]);
            one_by_one();
        }
}

template <bool conj, class T> void transpose_square_in_order(T* a, size_t n, size_t stride)
{
    for (size_t i = 0; i < n; ++i) {
        if (conj) a[i * stride + i] = moved<conj>(a[i * stride + i]);
        for (size_t j = 0; j < i; ++j) {
            const T x = a[j * stride + i], y = a[i * stride + j];
            a[i * stride + j] = moved<conj>(x);
            a[j * stride + i] = moved<conj>(y);
            one_by_one();
        }
    }
}

// The order of moves cannot be seen: no two rows of the result share an element, and the arrays have none in common.
// They may lie in each other's gaps, when they are side by side in one larger matrix.
inline bool any_order(const void* src, const void* dst, size_t rows, size_t cols, size_t aStride, size_t dStride,
                      size_t size)
{
    if (dStride < rows && cols > 1) return false;
    if (disjoint(src, extent(rows, cols, aStride, size), dst, extent(cols, rows, dStride, size))) return true;
    if (aStride != dStride || aStride < u64(rows) + cols) return false;
    const uintptr_t a = reinterpret_cast<uintptr_t>(src), d = reinterpret_cast<uintptr_t>(dst);
    const size_t step = aStride * size, column = d >= a ? (d - a) % step : step - (a - d) % step;
    return column >= cols * size && column + rows * size <= step;
}

template <bool conj, class T>
void transposed(const T* a, T* d, size_t rows, size_t cols, size_t aStride, size_t dStride)
{
    if (!cols) return;
    if constexpr (lanes < u8 >> 1) {
        constexpr int size = sizeof(T);
        constexpr size_t few =
            25; // moved one by one in less time than it takes to see that they may be moved otherwise
        if (rows * cols > few && rows >= smallestBlock<size> && cols >= smallestBlock<size> &&
            any_order(a, d, rows, cols, aStride, dStride, size))
            return transpose_apart<size, conj>({reinterpret_cast<const u8*>(a), aStride * size},
                                               {reinterpret_cast<u8*>(d), dStride * size}, rows, cols);
    }
    transpose_in_order<conj>(a, d, rows, cols, aStride, dStride);
}

template <class T>
void transpose(const T* src, T* dst, unsigned rows, unsigned cols, unsigned srcStride, unsigned dstStride)
{
    transposed<false>(src, dst, rows, cols, srcStride, dstStride);
}
void adjungate(const c64f* src, c64f* dst, unsigned rows, unsigned cols, unsigned srcStride, unsigned dstStride)
{
    transposed<true>(src, dst, rows, cols, srcStride, dstStride);
}

template <bool conj, class T> void transposed_square(T* a, size_t n, size_t stride)
{
    if constexpr (lanes < u8 >> 1) {
        constexpr int size = sizeof(T);
        if (stride >= n && n >= smallestSquare<size>)
            return transpose_square_apart<size, conj>({reinterpret_cast<u8*>(a), stride * size}, n);
    }
    transpose_square_in_order<conj>(a, n, stride);
}

template <class T> void transpose_square(T* a, unsigned n, unsigned stride) { transposed_square<false>(a, n, stride); }
void adjungate_square(c64f* a, unsigned n, unsigned stride) { transposed_square<true>(a, n, stride); }

} // namespace
#include "entries/matrix/transpose.inc"
} // namespace sig5d::SIG5D_VARIANT
