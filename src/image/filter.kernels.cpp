// Two-dimensional convolution of images: pixels around the region are read from memory, or follow from a rule for
// borders.
#include "frame/entry.h"
#include "image/border.h"
#include "image/sums.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The kernel in the order of the sums: last row and last column first.
template <class T, class U> void arrange(const T* kernel, int width, int height, U* taps)
{
    for (int s = 0; s < width; ++s)
        for (int t = 0; t < height; ++t)
            *taps++ = static_cast<U>(kernel[static_cast<ptrdiff_t>(height - 1 - t) * width + (width - 1 - s)]);
}

// The rows of results of one step: several, or one where there are fewer left.
inline int step_rows(int left) { return left >= groupsAtOnce ? groupsAtOnce : 1; }

Status bufferSize(int kernelWidth, int kernelHeight, int roiWidth, int* pSize)
{
    const BufferLayout at{kernelWidth, kernelHeight, roiWidth};
    if (!at.bearable() || at.forKernel() > maxInt) return StsSizeErr;
    *pSize = static_cast<int>(at.forKernel());
    return StsNoErr;
}

Status filter(const f64* pSrc, int srcStep, f64* pDst, int dstStep, int width, int height, const f64* pKernel,
              int kernelWidth, int kernelHeight, int anchorX, int anchorY, u8* pBuffer)
{
    const BufferLayout layout{kernelWidth, kernelHeight, width};
    if (!layout.bearable() || layout.forKernel() > maxInt) return StsSizeErr;
    const f64** const rows = reinterpret_cast<const f64**>(aligned(pBuffer));
    f64* const taps = at<f64>(rows, static_cast<ptrdiff_t>(layout.addresses()));
    arrange(pKernel, kernelWidth, kernelHeight, taps);
    const f64* first =
        at<const f64>(pSrc, (anchorY - kernelHeight + 1) * static_cast<ptrdiff_t>(srcStep)) + anchorX - kernelWidth + 1;
    for (int y = 0, n; y < height; y += n) {
        n = step_rows(height - y);
        for (int i = 0; i < kernelHeight + n - 1; ++i)
            rows[i] = at<const f64>(first, i * static_cast<ptrdiff_t>(srcStep));
        filter_rows(rows, Taps<f64>{taps, kernelWidth, kernelHeight}, pDst, dstStep, width, n);
        first = at<const f64>(first, n * static_cast<ptrdiff_t>(srcStep));
        pDst = at<f64>(pDst, n * static_cast<ptrdiff_t>(dstStep));
    }
    return StsNoErr;
}

Status borderSize(int kernelWidth, int kernelHeight, int width, int, int, int, int, int* pSpecSize, int* pBufferSize)
{
    const BufferLayout at{kernelWidth, kernelHeight, width};
    const SpecLayout spec{at.kernelWidth * at.kernelHeight};
    if (!at.bearable() || at.forBorders() > maxInt || spec.bytes() > maxInt) return StsSizeErr;
    *pSpecSize = static_cast<int>(spec.bytes());
    *pBufferSize = static_cast<int>(at.forBorders());
    return StsNoErr;
}

Status borderInit(const f32* pKernel, int kernelWidth, int kernelHeight, int, int, int, void* pSpec)
{
    int specSize, bufferSize;
    if (borderSize(kernelWidth, kernelHeight, 1, 1, 0, 0, 0, &specSize, &bufferSize)) return StsSizeErr;
    const SpecLayout layout{static_cast<i64>(kernelWidth) * kernelHeight};
    auto* spec = aligned(static_cast<BorderSpec*>(pSpec));
    *spec = {borderMark, kernelWidth, kernelHeight, 0};
    arrange(pKernel, kernelWidth, kernelHeight, at<f32>(spec, static_cast<ptrdiff_t>(layout.singles())));
    arrange(pKernel, kernelWidth, kernelHeight, at<f64>(spec, static_cast<ptrdiff_t>(layout.doubles())));
    return StsNoErr;
}

Status borderMode(int hint, int, void* pSpec)
{
    auto* spec = aligned(static_cast<BorderSpec*>(pSpec));
    if (spec->mark != borderMark) return StsContextMatchErr;
    spec->inDoubles = hint == 2;
    return StsNoErr;
}

// The rows of an image that a step needs, as T: where they are, or copies with their borders that go round in a ring.
template <class T> class Window
{
public:
    Window(const BorderedImage& image, const BufferLayout& layout, u8* buffer)
        : image_(image), rows_(reinterpret_cast<const T**>(buffer)),
          ring_(buffer + static_cast<ptrdiff_t>(layout.addresses())),
          rowBytes_(static_cast<ptrdiff_t>(layout.rowBytes())), slots_(static_cast<int>(layout.window()))
    {
    }

    // The addresses of rows y - image.y.before and so many that follow; y never goes back.
    const T* const* at(int y, int count)
    {
        y -= image_.y.before;
        for (; next_ < y + count; ++next_) {
            image_.copy_row(next_, slot(free_));
            free_ = free_ + 1 < slots_ ? free_ + 1 : 0;
        }
        int k = free_ - count;
        if (k < 0) k += slots_;
        for (int i = 0; i < count; ++i) {
            rows_[i] = slot(k);
            k = k + 1 < slots_ ? k + 1 : 0;
        }
        return rows_;
    }

private:
    T* slot(int k) const { return sig5d::SIG5D_VARIANT::at<T>(ring_, k * rowBytes_); }

    const BorderedImage& image_;
    const T** rows_;
    u8* ring_;
    ptrdiff_t rowBytes_;
    int slots_, free_ = 0, next_ = -image_.y.before;
};

// Sums in single precision.
inline void store_rows(const f32* const* rows, const Taps<f32>& taps, f32* dst, ptrdiff_t dstStep, int width,
                       int height, f32*, ptrdiff_t)
{
    filter_rows(rows, taps, dst, dstStep, width, height);
}
// In double precision, rounded once.
inline void store_rows(const f64* const* rows, const Taps<f64>& taps, f32* dst, ptrdiff_t dstStep, int width,
                       int height, f64* results, ptrdiff_t rowBytes)
{
    filter_rows(rows, taps, results, rowBytes, width, height);
    for (int i = 0; i < height; ++i) {
        const f64* const from = at<const f64>(results, i * rowBytes);
        f32* const to = at<f32>(dst, i * dstStep);
#pragma GCC ivdep
        for (int x = 0; x < width; ++x) to[x] = static_cast<f32>(from[x]);
    }
}

template <class T>
void filter_with_borders(const BorderedImage& image, const BorderSpec* spec, ptrdiff_t taps, f32* dst,
                         ptrdiff_t dstStep, const BufferLayout& layout, u8* buffer)
{
    Window<T> window(image, layout, buffer);
    T* const results = at<T>(buffer, static_cast<ptrdiff_t>(layout.results()));
    const Taps<T> kernel{at<const T>(spec, taps), spec->width, spec->height};
    for (int y = 0, n; y < image.y.n; y += n) {
        n = step_rows(image.y.n - y);
        store_rows(window.at(y, spec->height + n - 1), kernel, dst, dstStep, image.x.n, n, results,
                   static_cast<ptrdiff_t>(layout.rowBytes()));
        dst = at<f32>(dst, n * dstStep);
    }
}

Status borderFilter(const f32* pSrc, int srcStep, f32* pDst, int dstStep, int width, int height, int borderType,
                    const f32* pBorderValue, const void* pSpec, u8* pBuffer)
{
    const auto* spec = aligned(static_cast<const BorderSpec*>(pSpec));
    if (spec->mark != borderMark) return StsContextMatchErr;
    const BufferLayout layout{spec->width, spec->height, width};
    if (!layout.bearable() || layout.forBorders() > maxInt) return StsSizeErr;
    const auto has = [=](int side) { return (borderType & side) != 0; };
    const auto type = static_cast<Border>(borderType & ~everySide);
    const int kw = spec->width, kh = spec->height;
    const BorderedImage image{pSrc,
                              srcStep,
                              {width, kw / 2, (kw - 1) / 2, has(inMemoryLeft), has(inMemoryRight)},
                              {height, kh / 2, (kh - 1) / 2, has(inMemoryAbove), has(inMemoryBelow)},
                              type,
                              type == Border::constant ? *pBorderValue : 0};
    const SpecLayout parts{static_cast<i64>(kw) * kh};
    pBuffer = aligned(pBuffer);
    if (spec->inDoubles) {
        filter_with_borders<f64>(image, spec, static_cast<ptrdiff_t>(parts.doubles()), pDst, dstStep, layout, pBuffer);
    } else {
        filter_with_borders<f32>(image, spec, static_cast<ptrdiff_t>(parts.singles()), pDst, dstStep, layout, pBuffer);
    }
    return StsNoErr;
}

} // namespace

#include "entries/image/filter.inc"
} // namespace sig5d::SIG5D_VARIANT
