// Single-rate FIR filters: y[n] = sum over k of taps[k] * x[n - k].
#include "frame/entry.h"
#include "signal/processing/fft/transforms.h"
#include "signal/processing/fir/history.h"
#include "signal/processing/fir/single.h"
#include "signal/processing/sliding/sums.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> void build(const T* taps, int tapsLen, int algType, bool forMultiRate, void* block)
{
    const SingleRateLayout at(tapsLen, sizeof(T), isComplex<T>);
    auto* spec = aligned(static_cast<FirSpec*>(block));
    *spec = {};
    spec->tapsLen = tapsLen;
    spec->taps = static_cast<u32>(at.taps());
    spec->mark = singleRateMark<T>;
    spec->algType = algType;
    spec->singleRate = forMultiRate;
    T* reversed = part<T>(spec, spec->taps);
    for (int j = 0; j < tapsLen; ++j) reversed[j] = taps[tapsLen - 1 - j];
    if (algType == 1) return;
    spec->plan = static_cast<u32>(at.plan());
    spec->spectrum = static_cast<u32>(at.spectrum());
    spec->fftWork = static_cast<u32>(at.fftWork());
    spec->values = static_cast<u32>(at.values());
    void* plan = part<void>(spec, spec->plan);
    T* spectrum = part<T>(spec, spec->spectrum);
    fftInit(plan, at.kind, FftSpectrum::unordered, at.order);
    copy(taps, spectrum, tapsLen);
    zero(spectrum + tapsLen, at.n - tapsLen);
    fftForward(plan, spectrum, spectrum, part<void>(spec, static_cast<u32>(at.planWork())));
}

// `line` starts with the history and has room for a block. In place a block is taken out before it is overwritten.
template <class T> void filterDirectly(const T* src, T* dst, int n, const FirSpec* spec, T* line)
{
    const int taps = spec->tapsLen, history = taps - 1;
    const T* reversed = part<const T>(spec, spec->taps);
    constexpr int inPlaceBlock = blockBytes / static_cast<int>(sizeof(T));
    if (src == dst) {
        for (int i = 0; i < n; i += inPlaceBlock) {
            const int m = n - i < inPlaceBlock ? n - i : inPlaceBlock;
            copy(src + i, line + history, m);
            slidingSums(line, reversed, taps, dst + i, m);
            slide(line + m, line, history);
        }
        return;
    }
    // The first outputs need the history; as many as fill whole blocks, so that the others start with a full one.
    const int first = (history + outputsOfBlock<T> - 1) / outputsOfBlock<T> * outputsOfBlock<T>;
    const int p = n < first ? n : first;
    copy(src, line + history, p);
    if (p > 0) slidingSums(line, reversed, taps, dst, p);
    if (n > p) slidingSums(src + p - history, reversed, taps, dst + p, n - p);
}

// Overlap-save: of the circular convolution of N samples, the history before them first, with the taps, all but the
// first tapsLen - 1 values are outputs. `line` starts with the history.
template <class T> void filterByFft(const T* src, T* dst, ptrdiff_t n, const FirSpec* spec, T* line, u8* work)
{
    const ptrdiff_t history = spec->tapsLen - 1, size = SingleRateLayout(spec->tapsLen, sizeof(T), isComplex<T>).n;
    const ptrdiff_t advance = size - history;
    T* values = part<T>(work, spec->values);
    void* fftWork = part<void>(work, spec->fftWork);
    const void* plan = part<const void>(spec, spec->plan);
    const T* spectrum = part<const T>(spec, spec->spectrum);
    for (ptrdiff_t i = 0; i < n; i += advance) {
        const ptrdiff_t m = n - i < advance ? n - i : advance;
        const bool inLine = src == dst || i < history; // the samples before i: overwritten, or before this call
        const T* x = src + i - history;
        if (inLine || m < advance) {
            copy(inLine ? line : x, values, history);
            copy(src + i, values + history, m);
            zero(values + history + m, advance - m);
            x = values;
        }
        if (inLine) nextHistory(line, src + i, m, line, history);
        fftConvolve(plan, x, spectrum, values, fftWork);
        copy(values + history, dst + i, m);
    }
}

// Fixed constants of the design: short filters and short calls are faster in the direct form.
constexpr int fftTaps = 124, fftSamples = 640;

inline bool byFft(const FirSpec* spec, int n)
{
    return spec->algType == 2 || (spec->algType == 0 && spec->tapsLen >= fftTaps && n >= fftSamples);
}

template <class T> void filter(const T* src, T* dst, int n, const FirSpec* spec, const T* dlySrc, T* dlyDst, u8* work)
{
    const int history = spec->tapsLen - 1;
    work = aligned(work);
    T* line = reinterpret_cast<T*>(work);
    firstHistory(dlySrc, line, history);
    // Before anything is overwritten: dst may be src or dlySrc, and dlyDst may be dlySrc.
    if (dlyDst) nextHistory(line, src, n, dlyDst, history);
    if (byFft(spec, n)) {
        filterByFft(src, dst, n, spec, line, work);
    } else {
        filterDirectly(src, dst, n, spec, line);
    }
}

Status singleRateSize(int tapsLen, int tapsType, int* pSpecSize, int* pBufSize)
{
    const FirSizes sizes = SingleRateLayout(tapsLen, elementBytes(tapsType), isComplexType(tapsType)).sizes();
    if (!sizes.fit()) return StsSizeErr;
    sizes.store(pSpecSize, pBufSize);
    return StsNoErr;
}

template <class T> Status singleRateInit(const T* pTaps, int tapsLen, int algType, void* pSpec)
{
    if (!SingleRateLayout(tapsLen, sizeof(T), isComplex<T>).sizes().fit()) return StsSizeErr;
    build(pTaps, tapsLen, algType, false, pSpec);
    return StsNoErr;
}

template <class T>
Status singleRate(const T* pSrc, T* pDst, int numIters, const void* pSpec, const T* pDlySrc, T* pDlyDst, u8* pBuf)
{
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

#include "entries/signal/processing/fir/single.inc"
} // namespace sig5d::SIG5D_VARIANT
