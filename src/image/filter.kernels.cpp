// Two-dimensional convolution of images: pixels around the region are read from memory, or follow from a rule for
// borders.
#include "frame/entry.h"
#include "image/border.h"
#include "image/kernel_order.h"
#include "image/sums.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The rows of results of one step: several, or one where there are fewer left.
inline int step_rows(int left) { return left >= groupsAtOnce ? groupsAtOnce : 1; }

Status filter(const f64* pSrc, int srcStep, f64* pDst, int dstStep, int width, int height, const f64* pKernel,
              int kernelWidth, int kernelHeight, int anchorX, int anchorY, u8* pBuffer)
{
    const BufferLayout layout(kernelWidth, kernelHeight, width, false);
    if (!layout.fits()) return StsSizeErr;
    const f64** const rows = reinterpret_cast<const f64**>(aligned(pBuffer));
    f64* const taps = at<f64>(rows, layout.behindAddresses);
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

// The rows of an image that a step needs: where they are, or copies with their borders that go round in a ring.
class Window
{
public:
    Window(const BorderedImage& image, const BufferLayout& layout, u8* buffer, bool inDoubles)
        : image_(image), rows_(reinterpret_cast<const void**>(buffer)), ring_(buffer + layout.behindAddresses),
          rowBytes_(layout.rowBytes), slots_(layout.window), inDoubles_(inDoubles),
          copied_(inDoubles || !image.x.beforeInMemory || !image.x.behindInMemory)
    {
    }

    // The addresses of rows y - image.y.before and so many that follow; y never goes back.
    template <class T> const T* const* rows(int y, int count)
    {
        gather(y - image_.y.before, count);
        return reinterpret_cast<const T* const*>(rows_);
    }

private:
    [[gnu::noinline]] void gather(int first, int count)
    {
        for (; next_ < first + count; ++next_) {
            if (!inPlace(next_)) copy(next_, slot(free_));
            free_ = after(free_);
        }
        int k = free_ < count ? free_ - count + slots_ : free_ - count;
        for (int i = 0; i < count; ++i, k = after(k)) rows_[i] = inPlace(first + i) ? placeOf(first + i) : slot(k);
    }
    void copy(int i, void* d) const
    {
        if (inDoubles_) {
            image_.copy_row(i, static_cast<f64*>(d));
        } else {
            image_.copy_row(i, static_cast<f32*>(d));
        }
    }
    bool inPlace(int i) const { return !copied_ && image_.y.source(i, image_.type) != nowhere; }
    const f32* placeOf(int i) const { return image_.row(image_.y.source(i, image_.type)) - image_.x.before; }
    void* slot(int k) const { return ring_ + k * rowBytes_; }
    int after(int k) const { return k + 1 < slots_ ? k + 1 : 0; }

    const BorderedImage& image_;
    const void** rows_;
    u8* ring_;
    ptrdiff_t rowBytes_;
    int slots_, free_ = 0, next_ = -image_.y.before;
    bool inDoubles_, copied_;
};

// Sums in double precision, rounded once.
void store_rounded(const f64* results, ptrdiff_t rowBytes, f32* dst, ptrdiff_t dstStep, int width, int height)
{
    for (int i = 0; i < height; ++i) {
        const f64* const from = at<const f64>(results, i * rowBytes);
        f32* const to = at<f32>(dst, i * dstStep);
#pragma GCC ivdep
        for (int x = 0; x < width; ++x) to[x] = static_cast<f32>(from[x]);
    }
}

void filter_with_borders(const BorderedImage& image, const BorderSpec* spec, f32* dst, ptrdiff_t dstStep,
                         const BufferLayout& layout, u8* buffer)
{
    Window window(image, layout, buffer, spec->inDoubles);
    const int width = image.x.n;
    for (int y = 0, n; y < image.y.n; y += n) {
        n = step_rows(image.y.n - y);
        const int count = spec->height + n - 1;
        if (spec->inDoubles) {
            const auto* taps = at<const f64>(spec, spec->doubles);
            f64* const results = at<f64>(buffer, layout.results);
            filter_rows(window.rows<f64>(y, count), {taps, spec->width, spec->height}, results, layout.rowBytes, width,
                        n);
            store_rounded(results, layout.rowBytes, dst, dstStep, width, n);
        } else {
            const auto* taps = at<const f32>(spec, headBytes);
            filter_rows(window.rows<f32>(y, count), {taps, spec->width, spec->height}, dst, dstStep, width, n);
        }
        dst = at<f32>(dst, n * dstStep);
    }
}

Status borderFilter(const f32* pSrc, int srcStep, f32* pDst, int dstStep, int width, int height, int borderType,
                    const f32* pBorderValue, const void* pSpec, u8* pBuffer)
{
    const auto* spec = aligned(static_cast<const BorderSpec*>(pSpec));
    if (spec->mark != borderMark) return StsContextMatchErr;
    const BufferLayout layout(spec->width, spec->height, width, true);
    if (!layout.fits()) return StsSizeErr;
    const auto has = [=](int side) { return (borderType & side) != 0; };
    const auto type = static_cast<Border>(borderType & ~everySide);
    const int kw = spec->width, kh = spec->height;
    const BorderedImage image{pSrc,
                              srcStep,
                              {width, kw / 2, (kw - 1) / 2, has(inMemoryLeft), has(inMemoryRight)},
                              {height, kh / 2, (kh - 1) / 2, has(inMemoryAbove), has(inMemoryBelow)},
                              type,
                              type == Border::constant ? *pBorderValue : 0};
    filter_with_borders(image, spec, pDst, dstStep, layout, aligned(pBuffer));
    return StsNoErr;
}

} // namespace

#include "entries/image/filter.inc"
} // namespace sig5d::SIG5D_VARIANT
