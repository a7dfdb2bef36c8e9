// What comes before image filters: sizes, and specifications of filters with borders.
#include "frame/entry.h"
#include "image/kernel_order.h"
#include "image/layout.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

Status bufferSize(int kernelWidth, int kernelHeight, int roiWidth, int* pSize)
{
    const BufferLayout buffer(kernelWidth, kernelHeight, roiWidth, false);
    if (!buffer.fits()) return StsSizeErr;
    *pSize = static_cast<int>(buffer.bytes);
    return StsNoErr;
}

// In a specification, from its head; so many taps as a buffer has room for are not too many for 64 bits.
struct SpecLayout {
    i64 doubles, bytes;
    explicit SpecLayout(i64 taps) : doubles(headBytes + align64(4 * taps)), bytes(63 + doubles + 8 * taps) {}
};

Status borderSize(int kernelWidth, int kernelHeight, int width, int, int, int, int, int* pSpecSize, int* pBufferSize)
{
    const BufferLayout buffer(kernelWidth, kernelHeight, width, true);
    if (!buffer.fits()) return StsSizeErr;
    const SpecLayout spec(i64(kernelWidth) * kernelHeight);
    if (spec.bytes > maxInt) return StsSizeErr;
    *pSpecSize = static_cast<int>(spec.bytes);
    *pBufferSize = static_cast<int>(buffer.bytes);
    return StsNoErr;
}

Status borderInit(const f32* pKernel, int kernelWidth, int kernelHeight, int, int, int, void* pSpec)
{
    int specSize, bufferSize;
    if (borderSize(kernelWidth, kernelHeight, 1, 1, 0, 0, 0, &specSize, &bufferSize)) return StsSizeErr;
    const auto doubles = static_cast<int>(SpecLayout(i64(kernelWidth) * kernelHeight).doubles);
    auto* spec = aligned(static_cast<BorderSpec*>(pSpec));
    *spec = {borderMark, kernelWidth, kernelHeight, doubles, 0};
    arrange(pKernel, kernelWidth, kernelHeight, at<f32>(spec, headBytes));
    arrange(pKernel, kernelWidth, kernelHeight, at<f64>(spec, doubles));
    return StsNoErr;
}

Status borderMode(int hint, int, void* pSpec)
{
    auto* spec = aligned(static_cast<BorderSpec*>(pSpec));
    if (spec->mark != borderMark) return StsContextMatchErr;
    spec->inDoubles = hint == 2;
    return StsNoErr;
}

} // namespace

#include "entries/image/setup.inc"
} // namespace sig5d::SIG5D_VARIANT
