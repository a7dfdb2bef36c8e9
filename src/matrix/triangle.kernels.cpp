// Triangles: in row i, a lower one has the columns below i (i+1 with the diagonal), an upper one those from there on.
#include "frame/entry.h"
#include "matrix/rows.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// run(row, first column, columns) for each row of the triangle.
template <class Run> inline void for_lower(size_t rows, size_t cols, int diagonal, Run run)
{
    const size_t d = diagonal != 0;
    for (size_t i = 0; i < rows; ++i) run(i, size_t(0), i + d < cols ? i + d : cols);
}
template <class Run> inline void for_upper(size_t rows, size_t cols, int diagonal, Run run)
{
    const size_t d = diagonal != 0;
    for (size_t i = 0, first = 1 - d; i < rows && first < cols; ++i, ++first) run(i, first, cols - first);
}

template <class T>
void copy_lower_triangle(const T* src, T* dst, unsigned rows, unsigned cols, unsigned srcStride, unsigned dstStride,
                         int diagonal)
{
    const bool pastCaches = streamingPays(u64(rows) * cols * sizeof(T) / 2);
    for_lower(rows, cols, diagonal, [=](size_t i, size_t first, size_t n) {
        copy_run(src + (i * srcStride + first), dst + (i * dstStride + first), n, pastCaches);
    });
}
template <class T>
void copy_upper_triangle(const T* src, T* dst, unsigned rows, unsigned cols, unsigned srcStride, unsigned dstStride,
                         int diagonal)
{
    const bool pastCaches = streamingPays(u64(rows) * cols * sizeof(T) / 2);
    for_upper(rows, cols, diagonal, [=](size_t i, size_t first, size_t n) {
        copy_run(src + (i * srcStride + first), dst + (i * dstStride + first), n, pastCaches);
    });
}
template <class T> void zero_lower_triangle(T* a, unsigned rows, unsigned cols, unsigned stride, int diagonal)
{
    for_lower(rows, cols, diagonal, [=](size_t i, size_t first, size_t n) { zero_run(a + (i * stride + first), n); });
}
template <class T> void zero_upper_triangle(T* a, unsigned rows, unsigned cols, unsigned stride, int diagonal)
{
    for_upper(rows, cols, diagonal, [=](size_t i, size_t first, size_t n) { zero_run(a + (i * stride + first), n); });
}

} // namespace
#include "entries/matrix/triangle.inc"
} // namespace sig5d::SIG5D_VARIANT
