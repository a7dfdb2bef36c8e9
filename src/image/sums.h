// The sums of image filters: dst(x, y) = sum of taps(t, s) * row(y + t)(x + s) over the rows t, and the columns s in
// each of them. Each pixel is one running sum from 0.0 in that order, so the work goes in parallel across pixels only,
// and every width of vectors and shape of block gives the same bits.
//
// What bounds such a kernel is loads: a product needs a pixel and a tap, and most loads of pixels lie across cache
// lines. A block therefore has `groups` rows of results and `columns` vectors of each under way, for which
// groups + columns loads serve groups * columns products.
#pragma once
#include "image/layout.h"
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The kernel as the sums take it: tap (t, s) at s * height + t, so that those which meet in a pixel lie side by side.
template <class T> struct Taps {
    const T* first;
    int width, height;
};

template <int w> inline Vec<f64, w> everywhere(const f64* p) { return broadcast<w>(p); }
template <int w> inline Vec<f32, w> everywhere(const f32* p) { return splatn<w>(*p); }

// The products of one pixel of a row, in the groups lo..hi-1; `tap` is that of group 0.
template <int w, int lo, int hi, int groups, int columns, class T>
[[gnu::always_inline]] inline void add_pixel(Vec<T, w> (&sum)[groups][columns], const T* x, const T* tap)
{
    Vec<T, w> taps[groups];
#pragma GCC unroll 4
    for (int i = lo; i < hi; ++i) taps[i] = everywhere<w>(tap - i);
#pragma GCC unroll 16
    for (int j = 0; j < columns; ++j) {
        const Vec<T, w> pixels = loadn<w>(x + j * w);
#pragma GCC unroll 4
        for (int i = lo; i < hi; ++i) sum[i][j] += taps[i] * pixels;
    }
    // Pixels and taps are loaded where they are used: to carry them over to a later step takes registers that are not
    // there.
    asm volatile("" ::: "memory");
}

// AVX: two steps in one round of the loop take 10 to 15 % less time, four do no better.
constexpr int stepsAtOnce = vectorBytes < 32 ? 1 : 2;

// What one row of the image adds; `tap` is that of group 0 in the first column.
template <int w, int lo, int hi, int groups, int columns, class T>
[[gnu::always_inline]] inline void add_row(Vec<T, w> (&sum)[groups][columns], const T* x, const T* tap, int kernelWidth,
                                           ptrdiff_t kernelHeight)
{
    const T* const end = x + kernelWidth;
    if constexpr (groups == 1) {
#pragma GCC unroll 1
        for (; x < end; ++x, tap += kernelHeight) add_pixel<w, lo, hi>(sum, x, tap);
    } else {
#pragma GCC unroll stepsAtOnce
        for (; x < end; ++x, tap += kernelHeight) add_pixel<w, lo, hi>(sum, x, tap);
    }
}

// groups * columns vectors of results, from a kernel of at least groups - 1 rows. The rows' addresses are those of the
// first result's first pixel, x pixels further on.
template <int w, int groups, int columns, class T>
[[gnu::always_inline]] inline void block(const T* const* rows, int x, const Taps<T>& taps, T* dst, ptrdiff_t dstStep)
{
    static_assert(groups <= mostGroups);
    const int kw = taps.width, kh = taps.height;
    Vec<T, w> sum[groups][columns];
#pragma GCC unroll 4
    for (int i = 0; i < groups; ++i)
#pragma GCC unroll 16
        for (int j = 0; j < columns; ++j) sum[i][j] = splatn<w>(T(0));
    if constexpr (groups > 1) add_row<w, 0, 1>(sum, rows[0] + x, taps.first, kw, kh);
    if constexpr (groups > 2) add_row<w, 0, 2>(sum, rows[1] + x, taps.first + 1, kw, kh);
    if constexpr (groups > 3) add_row<w, 0, 3>(sum, rows[2] + x, taps.first + 2, kw, kh);
    for (int r = groups - 1; r < kh; ++r) add_row<w, 0, groups>(sum, rows[r] + x, taps.first + r, kw, kh);
    if constexpr (groups > 3)
        add_row<w, groups - 3, groups>(sum, rows[kh + groups - 4] + x, taps.first + kh + groups - 4, kw, kh);
    if constexpr (groups > 2)
        add_row<w, groups - 2, groups>(sum, rows[kh + groups - 3] + x, taps.first + kh + groups - 3, kw, kh);
    if constexpr (groups > 1)
        add_row<w, groups - 1, groups>(sum, rows[kh + groups - 2] + x, taps.first + kh + groups - 2, kw, kh);
#pragma GCC unroll 4
    for (int i = 0; i < groups; ++i)
#pragma GCC unroll 16
        for (int j = 0; j < columns; ++j) storen<w>(at<T>(dst, i * dstStep) + x + j * w, sum[i][j]);
}

// The shape of a block, measured: sums, taps and pixels of a step fill the registers, and there are enough sums for the
// additions of a step not to wait for those of the one before.
constexpr bool manyRegisters = sizeof(void*) == 8;
struct Shape {
    int groups, columns;
};
constexpr Shape shape = SIG5D_LEVEL == 0    ? Shape{1, 1}
                        : vectorBytes == 16 ? (manyRegisters ? Shape{2, 5} : Shape{1, 6})
                        : !manyRegisters    ? Shape{2, 2}
                        : vectorBytes == 32 ? Shape{3, 3}
                                            : Shape{4, 5};
constexpr int groupsAtOnce = shape.groups, columnsAtOnce = shape.columns;
constexpr int columnsAlone = SIG5D_LEVEL == 0 ? 1 : 6; // where a block has one row

// So many rows of results, from pixel x on: at least a block of them. The last block overlaps the one before.
template <int w, int groups, int columns, class T>
[[gnu::noinline]] void fill_rows(const T* const* rows, const Taps<T>& taps, T* dst, ptrdiff_t dstStep, int x, int width)
{
    constexpr int wide = columns * w;
    for (; x < width; x += wide)
        block<w, groups, columns>(rows, x < width - wide ? x : width - wide, taps, dst, dstStep);
}

// Several rows of results, at least as wide as a block of one vector, which does for what little is left behind whole
// blocks; blocks of two vectors overlap instead.
constexpr int narrowest = columnsAtOnce > 2 ? 1 : columnsAtOnce;
template <class T>
inline void fill_groups(const T* const* rows, const Taps<T>& taps, T* dst, ptrdiff_t dstStep, int width)
{
    constexpr int w = lanes<T>, wide = columnsAtOnce * w;
    const int rest = width % wide, whole = rest <= narrowest * w || width < wide ? width - rest : width;
    if constexpr (narrowest < columnsAtOnce) {
        fill_rows<w, groupsAtOnce, columnsAtOnce>(rows, taps, dst, dstStep, 0, whole);
        fill_rows<w, groupsAtOnce, narrowest>(rows, taps, dst, dstStep, whole, width);
    } else {
        fill_rows<w, groupsAtOnce, columnsAtOnce>(rows, taps, dst, dstStep, 0, width);
    }
}

// One row of any width.
template <class T> inline void fill_row(const T* const* rows, const Taps<T>& taps, T* dst, int width)
{
    constexpr int w = lanes<T>, small = 16 / static_cast<int>(sizeof(T));
    if (width >= columnsAlone * w) return fill_rows<w, 1, columnsAlone>(rows, taps, dst, 0, 0, width);
    if constexpr (w > 1) {
        if (width >= small) return fill_rows<small, 1, 1>(rows, taps, dst, 0, 0, width);
        fill_rows<1, 1, 1>(rows, taps, dst, 0, 0, width);
    }
}

// As many rows of results as `rows` has a window for: one, or groupsAtOnce.
template <class T>
[[gnu::noinline]] void filter_rows(const T* const* rows, const Taps<T>& taps, T* dst, ptrdiff_t dstStep, int width,
                                   int height)
{
    if constexpr (groupsAtOnce > 1)
        if (height > 1 && taps.height >= groupsAtOnce - 1 && width >= narrowest * lanes<T>)
            return fill_groups(rows, taps, dst, dstStep, width);
    for (int y = 0; y < height; ++y) fill_row(rows + y, taps, at<T>(dst, y * dstStep), width);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
