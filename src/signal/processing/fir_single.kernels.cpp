// Single-rate FIR filters: y[n] = sum over k of taps[k] * x[n - k].
#include "frame/entry.h"
#include "signal/processing/fir_direct.h"
#include "signal/processing/fir_history.h"
#include "signal/processing/fir_single.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T>
void build(const T* taps, int tapsLen, int algType, bool forMultiRate, void* block)
{
    const SingleRateLayout at(tapsLen, sizeof(T));
    auto* spec = aligned(static_cast<FirSpec*>(block));
    *spec = {};
    spec->tapsLen = tapsLen;
    spec->taps = static_cast<u32>(at.taps());
    spec->mark = singleRateMark<T>;
    spec->algType = algType;
    spec->singleRate = forMultiRate;
    T* reversed = part<T>(spec, spec->taps);
    for (int j = 0; j < tapsLen; ++j) reversed[j] = taps[tapsLen - 1 - j];
}

// `line` starts with the history and has room for a block. In place a block is taken out before it is overwritten.
template <class T>
void filterDirectly(const T* src, T* dst, int n, const FirSpec* spec, T* line)
{
    const int taps = spec->tapsLen, history = taps - 1;
    const T* reversed = part<const T>(spec, spec->taps);
    constexpr int inPlaceBlock = blockBytes / static_cast<int>(sizeof(T));
    if (src == dst) {
        for (int i = 0; i < n; i += inPlaceBlock) {
            const int m = n - i < inPlaceBlock ? n - i : inPlaceBlock;
            copy(src + i, line + history, m);
            direct(line, reversed, taps, dst + i, m);
            copy(line + m, line, history);
        }
        return;
    }
    // The first outputs need the history; as many as fill whole blocks, so that the others start with a full one.
    const int first = (history + outputsOfBlock<T> - 1) / outputsOfBlock<T> * outputsOfBlock<T>;
    const int p = n < first ? n : first;
    copy(src, line + history, p);
    if (p > 0) direct(line, reversed, taps, dst, p);
    if (n > p) direct(src + p - history, reversed, taps, dst + p, n - p);
}

template <class T>
void filter(const T* src, T* dst, int n, const FirSpec* spec, const T* dlySrc, T* dlyDst, u8* work)
{
    const int history = spec->tapsLen - 1;
    T* line = reinterpret_cast<T*>(aligned(work));
    firstHistory(dlySrc, line, history);
    // Before anything is overwritten: dst may be src or dlySrc, and dlyDst may be dlySrc.
    if (dlyDst) nextHistory(line, src, n, dlyDst, history);
    filterDirectly(src, dst, n, spec, line);
}

Status singleRateSize(int tapsLen, int tapsType, int* pSpecSize, int* pBufSize)
{
    if (tapsLen < 1) return StsSizeErr;
    if (!tapBytes(tapsType)) return StsDataTypeErr;
    if (!pSpecSize || !pBufSize) return StsNullPtrErr;
    const FirSizes sizes = SingleRateLayout(tapsLen, tapBytes(tapsType)).sizes();
    if (!sizes.fit()) return StsSizeErr;
    sizes.store(pSpecSize, pBufSize);
    return StsNoErr;
}

template <class T>
Status singleRateInit(const T* pTaps, int tapsLen, int algType, void* pSpec)
{
    if (tapsLen < 1) return StsSizeErr;
    if (!pTaps || !pSpec) return StsNullPtrErr;
    if (algType < 0 || algType > 2) return StsAlgTypeErr;
    if (!SingleRateLayout(tapsLen, sizeof(T)).sizes().fit()) return StsSizeErr;
    build(pTaps, tapsLen, algType, false, pSpec);
    return StsNoErr;
}

template <class T>
Status singleRate(const T* pSrc, T* pDst, int numIters, const void* pSpec, const T* pDlySrc, T* pDlyDst, u8* pBuf)
{
    if (!pSpec || !pSrc || !pDst || !pBuf) return StsNullPtrErr;
    if (numIters < 1) return StsSizeErr;
    const FirSpec* spec = aligned(static_cast<const FirSpec*>(pSpec));
    if (spec->mark != singleRateMark<T>) return StsContextMatchErr;
    filter(pSrc, pDst, numIters, spec, pDlySrc, pDlyDst, pBuf);
    return StsNoErr;
}

} // namespace

void buildSingleRate(const f64* taps, int tapsLen, int algType, bool forMultiRate, void* block)
{
    build(taps, tapsLen, algType, forMultiRate, block);
}
void buildSingleRate(const c64f* taps, int tapsLen, int algType, bool forMultiRate, void* block)
{
    build(taps, tapsLen, algType, forMultiRate, block);
}
void filterSingleRate(const f64* src, f64* dst, int n, const FirSpec* spec, const f64* dlySrc, f64* dlyDst, u8* work)
{
    filter(src, dst, n, spec, dlySrc, dlyDst, work);
}
void filterSingleRate(const c64f* src, c64f* dst, int n, const FirSpec* spec, const c64f* dlySrc, c64f* dlyDst,
                      u8* work)
{
    filter(src, dst, n, spec, dlySrc, dlyDst, work);
}

#include "entries/signal/processing/fir_single.inc"
} // namespace sig5d::SIG5D_VARIANT
