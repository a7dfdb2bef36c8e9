// Correlation and convolution. Every result is a sum of products of a row and the samples that it lies beside, the row
// moved by a lag; what differs is which signal is the row, and whether it is conjugated or reversed.
#include "frame/entry.h"
#include "signal/processing/correlation/layout.h"
#include "signal/processing/correlation/normalize.h"
#include "signal/processing/fft/transforms.h"
#include "signal/processing/sliding/sums.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

f64 conjugate(f64 x) { return x; }
c64f conjugate(c64f x) { return {x.re, 0.0 - x.im}; }

template <class T> void copyConjugate(const T* a, T* d, i64 n)
{
    for (i64 i = 0; i < n; ++i) d[i] = conjugate(a[i]);
}
template <class T> void copyReversed(const T* a, T* d, i64 n)
{
    for (i64 i = 0; i < n; ++i) d[i] = a[n - 1 - i];
}
template <class T> void reverseConjugate(T* d, i64 n)
{
    for (i64 i = 0, k = n - 1; i <= k; ++i, --k) {
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

// Overlap-save: of the circular convolution of a block with the row (reversed) those values are results that no wrapped
// product has reached. h is the spectrum of the row; results are counted from the first that any sample has part in.
template <class T>
void sumByBlocks(const Lags& lags, const void* plan, i64 points, const T* h, const T* x, T* y, T* block, void* work)
{
    const i64 end = lags.first + lags.count;
    for (i64 lag = lags.first; lag < end;) {
        const i64 from = lag > 0 ? lag : 0,
                  before = lags.row - 1 + lag - from; // values of the block before the results
        // Where all samples are in the block, only zeros are wrapped around.
        const i64 room = lags.samples - lag <= points ? points - before : points - lags.row + 1;
        const i64 n = end - lag < room ? end - lag : room;
        const i64 left = lags.samples - from;
        if (left >= points && lag >= 0) {
            fftConvolve(plan, x + from, h, block, work);
        } else {
            const i64 most = points - (from - lag), have = left < most ? left : most;
            copy(x + from, block, have);
            zero(block + have, points - have);
            fftConvolve(plan, block, h, block, work);
        }
        copy(block + before, y, n);
        y += n;
        lag += n;
    }
}

// y for all lags that have a product, from the signal that the row is of (not conjugated) and the one with the samples.
template <class T>
void sums(const Lags& lags, const CorrelationWork& work, bool convolution, const T* row, const T* x, T* y, u8* buffer)
{
    row += lags.rowFrom;
    x += lags.samplesFrom;
    T* const own = reinterpret_cast<T*>(buffer + work.row);
    if (isComplex<T>) {
        copyConjugate(row, own, lags.row);
        row = own;
    }
    if (!work.byTransform) {
        if (convolution) {
            copyReversed(row, own, lags.row);
            row = own;
        }
        return sumDirectly(lags, row, x, y);
    }
    T* const block = reinterpret_cast<T*>(buffer + work.block);
    void* const transformWork = buffer + work.transformWork;
    const i64 points = i64(1) << work.order;
    fftInit(buffer, isComplex<T> ? FftKind::complex : FftKind::real, FftSpectrum::unordered, work.order);
    if (convolution)
        copy(row, block, lags.row);
    else
        copyReversed(row, block, lags.row);
    zero(block + lags.row, points - lags.row);
    fftForward(buffer, block, own, transformWork);
    sumByBlocks(lags, buffer, points, own, x, y, block, transformWork);
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

template <class T>
void autoCorrelateByTransform(const T* x, i64 len, T* y, i64 count, const CorrelationWork& work, u8* buffer)
{
    const i64 points = i64(1) << work.order;
    T* const block = reinterpret_cast<T*>(buffer + work.block);
    void* const transformWork = buffer + work.transformWork;
    fftInit(buffer, isComplex<T> ? FftKind::complex : FftKind::real, FftSpectrum::unordered, work.order);
    copy(x, block, len);
    zero(block + len, points - len);
    fftForward(buffer, block, block, transformWork);
    fftMultiplyConj(buffer, block, block, block);
    fftInverse(buffer, block, block, transformWork);
    copy(block, y, count);
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
