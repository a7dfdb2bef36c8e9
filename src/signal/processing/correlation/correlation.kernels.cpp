// Correlation and convolution. Every result is a sum of products of a row and the samples that it lies beside, the row
// moved by a lag; what differs is which signal is the row, and whether it is conjugated or reversed.
#include "frame/entry.h"
#include "signal/processing/correlation/blocks.h"
#include "signal/processing/correlation/normalize.h"
#include "signal/processing/sliding/sums.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> [[gnu::cold]] void reverseConjugate(T* d, ptrdiff_t n)
{
    for (ptrdiff_t i = 0, k = n - 1; i <= k; ++i, --k) {
        const T first = conjugate(d[i]), last = conjugate(d[k]);
        d[i] = last;
        d[k] = first;
    }
}

template <class T> void sumDirectly(const Lags& lags, const T* r, const T* x, T* y)
{
    const Spans n = spansOf(lags);
    if (n.rising) {
        r -= lags.first;
        risingSums(x, r, y, n.rising);
        slidingSums(x, r, int(lags.row + lags.first), y, n.rising, true);
        r += lags.first;
    } else {
        x += lags.first;
    }
    y += n.rising;
    if (n.whole) slidingSums(x, r, int(lags.row), y, n.whole);
    if (n.falling) {
        x += n.whole + n.common, y += n.whole;
        slidingSums(x - n.common, r, n.common, y, n.falling);
        fallingSums(x, r + n.common, y, n.falling);
    }
}

// y for all lags that have a product, from the signal that the row is of (not conjugated) and the one with the samples.
template <class T>
void sums(const Lags& lags, const CorrelationWork& work, bool convolution, const T* row, const T* x, T* y, u8* buffer)
{
    row += lags.rowFrom;
    x += lags.samplesFrom;
    if (work.byTransform) return sumByTransform(Range(lags), work, convolution, row, x, y, buffer);
    T* const own = reinterpret_cast<T*>(buffer);
    if (convolution) {
        copyReversed(row, own, lags.row);
        row = own;
    } else if (isComplex<T>) {
        copyConjugate(row, own, lags.row);
        row = own;
    }
    sumDirectly(lags, row, x, y);
}

template <class T>
Status crossCorrelate(const T* pSrc1, int src1Len, const T* pSrc2, int src2Len, T* pDst, int dstLen, int lowLag,
                      int algType, u8* pBuffer)
{
    const Lags lags = correlationLags(src1Len, src2Len, lowLag, dstLen);
    const CorrelationWork work = correlationWork(lags, algType & 0xFF, sizeof(T), isComplex<T>, isComplex<T>);
    if (!work.fits()) return StsSizeErr;
    T* const y = pDst + lags.zeros;
    zero(pDst, lags.zeros);
    zero(y + lags.count, dstLen - lags.zeros - lags.count);
    if (lags.count)
        sums(lags, work, false, lags.exchanged ? pSrc2 : pSrc1, lags.exchanged ? pSrc1 : pSrc2, y, aligned(pBuffer));
    const Status status = normalize(lags, src1Len < src2Len ? src1Len : src2Len, algType, y);
    if (lags.exchanged) reverseConjugate(y, lags.count);
    return status;
}

template <class T> Status autoCorrelate(const T* pSrc, int srcLen, T* pDst, int dstLen, int algType, u8* pBuffer)
{
    const CorrelationWork work = autoCorrelationWork(srcLen, dstLen, algType & 0xFF, sizeof(T), isComplex<T>);
    if (!work.fits()) return StsSizeErr;
    const Lags lags = correlationLags(srcLen, srcLen, 0, dstLen);
    if (work.byTransform)
        autoCorrelateByTransform(pSrc, srcLen, pDst, lags.count, work, aligned(pBuffer));
    else
        sums(lags, work, false, pSrc, pSrc, pDst, aligned(pBuffer));
    zero(pDst + lags.count, dstLen - lags.count);
    return normalize(lags, srcLen, algType, pDst);
}

template <class T>
Status convolve(const T* pSrc1, int src1Len, const T* pSrc2, int src2Len, T* pDst, int algType, u8* pBuffer)
{
    const Lags lags = convolutionLags(src1Len, src2Len);
    const CorrelationWork work = correlationWork(lags, algType, sizeof(T), isComplex<T>, true);
    if (!work.fits()) return StsSizeErr;
    sums(lags, work, true, lags.exchanged ? pSrc2 : pSrc1, lags.exchanged ? pSrc1 : pSrc2, pDst, aligned(pBuffer));
    return StsNoErr;
}

Status tell(const CorrelationWork& work, int* pBufferSize)
{
    if (!work.fits()) return StsSizeErr;
    *pBufferSize = static_cast<int>(work.bytes);
    return StsNoErr;
}

Status autoCorrelationSize(int srcLen, int dstLen, int dataType, int algType, int* pBufferSize)
{
    return tell(autoCorrelationWork(srcLen, dstLen, algType & 0xFF, elementBytes(dataType), isComplexType(dataType)),
                pBufferSize);
}
Status crossCorrelationSize(int src1Len, int src2Len, int dstLen, int lowLag, int dataType, int algType,
                            int* pBufferSize)
{
    const bool complex = isComplexType(dataType);
    const Lags lags = correlationLags(src1Len, src2Len, lowLag, dstLen);
    return tell(correlationWork(lags, algType & 0xFF, elementBytes(dataType), complex, complex), pBufferSize);
}
Status convolutionSize(int src1Len, int src2Len, int dataType, int algType, int* pBufferSize)
{
    const Lags lags = convolutionLags(src1Len, src2Len);
    return tell(correlationWork(lags, algType, elementBytes(dataType), isComplexType(dataType), true), pBufferSize);
}

} // namespace
#include "entries/signal/processing/correlation/correlation.inc"
} // namespace sig5d::SIG5D_VARIANT
