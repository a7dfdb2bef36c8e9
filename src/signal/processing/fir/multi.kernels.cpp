// Multi-rate FIR filters: up-sampling, filtering and down-sampling in one pass.
#include "frame/entry.h"
#include "signal/processing/fir/history.h"
#include "signal/processing/fir/polyphase.h"
#include "signal/processing/fir/single.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> void build(const T* taps, const MultiRateLayout& at, int phase, void* block)
{
    auto* spec = aligned(static_cast<FirSpec*>(block));
    *spec = {};
    spec->tapsLen = static_cast<i32>(at.tapsLen);
    spec->taps = static_cast<u32>(at.taps());
    spec->mark = multiRateMark<T>;
    spec->upFactor = static_cast<i32>(at.up);
    spec->downFactor = static_cast<i32>(at.down);
    spec->period = static_cast<i32>(at.period);
    spec->groups = static_cast<i32>(at.groups);
    spec->width = static_cast<i32>(at.width);
    spec->rows = static_cast<i32>(at.rows);
    copy(taps, part<T>(spec, spec->taps), at.tapsLen);
    for (i64 i = 0; i < at.groups; ++i) {
        const i64 last = at.period * at.up - at.width; // where the last group starts
        const i64 output = i * at.width < last ? i * at.width : last;
        auto* group = part<Group>(spec, static_cast<u32>(polyphaseTable + i * groupBytes));
        auto* rows = part<f64>(spec, static_cast<u32>(at.matrices() + i * at.rows * at.rowBytes()));
        buildGroup(at, taps, phase, output, group, rows);
    }
}

// A stream's work: n iterations from contiguous inputs, the history before them.
template <class T> struct Filter {
    const FirSpec* spec;
    ptrdiff_t history, up, down, period;
    T *saved, *outputs, *line;

    Filter(const FirSpec* s, u8* work)
        : spec(s), history((u32(s->tapsLen) - 1 + u32(s->upFactor)) / u32(s->upFactor)), up(s->upFactor),
          down(s->downFactor), period(s->period)
    {
        auto* base = aligned(work);
        saved = reinterpret_cast<T*>(base);
        outputs = reinterpret_cast<T*>(base + align64(history * 16));
        line = reinterpret_cast<T*>(base + align64(history * 16) + 1024);
    }

    // At least a period, from anywhere. The last period may overlap the one before.
    void run(const T* x, T* y, ptrdiff_t n) const
    {
        const ptrdiff_t whole = n / period, rest = n % period;
        computePeriods(spec, x, y, whole);
        if (rest) computePeriods(spec, x + (n - period) * down, y + (n - period) * up, ptrdiff_t(1));
    }
    // From the line, which has room for a period.
    void runLine(T* y, ptrdiff_t n) const
    {
        if (n >= period) return run(line + history, y, n);
        zero(line + history + n * down, (period - n) * down);
        computePeriods(spec, line + history, outputs, ptrdiff_t(1));
        copy(outputs, y, n * up);
    }

    void outOfPlace(const T* src, T* dst, ptrdiff_t n) const
    {
        // The first iterations need the history; what is left for src is nothing or at least a period.
        const ptrdiff_t needed = ((history + down - 1) / down + period - 1) / period * period;
        const ptrdiff_t first = n - needed < period ? n : needed;
        copy(saved, line, history);
        copy(src, line + history, first * down);
        runLine(dst, first);
        if (first < n) run(src + first * down, dst + first * up, n - first);
    }

    // In blocks whose inputs are taken out first: forward as long as outputs do not overtake inputs, else backward.
    void inPlace(T* data, ptrdiff_t n) const
    {
        const ptrdiff_t room = (65536 - 1024) / static_cast<ptrdiff_t>(sizeof(T)) / (down * period);
        const ptrdiff_t block = (room > 1 ? room : 1) * period;
        if (up <= down) {
            copy(saved, line, history);
            for (ptrdiff_t i = 0; i < n; i += block) {
                const ptrdiff_t m = n - i < block ? n - i : block;
                copy(data + i * down, line + history, m * down);
                runLine(data + i * up, m);
                slide(line + m * down, line, history);
            }
        } else {
            for (ptrdiff_t i = (n - 1) / block * block; i >= 0; i -= block) {
                const ptrdiff_t m = n - i < block ? n - i : block;
                nextHistory(saved, data, i * down, line, history);
                copy(data + i * down, line + history, m * down);
                runLine(data + i * up, m);
            }
        }
    }
};

template <class T>
Status multiRate(const T* pSrc, T* pDst, int numIters, const void* pSpec, const T* pDlySrc, T* pDlyDst, u8* pBuf)
{
    const FirSpec* spec = aligned(static_cast<const FirSpec*>(pSpec));
    if (spec->mark == singleRateMark<T> && spec->singleRate) {
        filterSingleRate(pSrc, pDst, numIters, spec, pDlySrc, pDlyDst, pBuf);
        return StsNoErr;
    }
    if (spec->mark != multiRateMark<T>) return StsContextMatchErr;
    const Filter<T> filter(spec, pBuf);
    firstHistory(pDlySrc, filter.saved, filter.history);
    // Before anything is overwritten: pDst may be pSrc or pDlySrc, and pDlyDst may be pDlySrc.
    if (pDlyDst) nextHistory(filter.saved, pSrc, numIters * filter.down, pDlyDst, filter.history);
    if (pSrc == pDst) {
        filter.inPlace(pDst, numIters);
    } else {
        filter.outOfPlace(pSrc, pDst, numIters);
    }
    return StsNoErr;
}

Status multiRateSize(int tapsLen, int upFactor, int downFactor, int tapsType, int* pSpecSize, int* pBufSize)
{
    const int e = elementBytes(tapsType);
    const bool same = upFactor == 1 && downFactor == 1, complex = isComplexType(tapsType);
    const FirSizes sizes = same ? SingleRateLayout(tapsLen, e, complex).sizes()
                                : MultiRateLayout(tapsLen, upFactor, downFactor, e, complex).sizes();
    if (!sizes.fit()) return same ? StsSizeErr : StsFIRLenErr;
    sizes.store(pSpecSize, pBufSize);
    return StsNoErr;
}

template <class T>
Status multiRateInit(const T* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, void* pSpec)
{
    if (upFactor == 1 && downFactor == 1) {
        if (!SingleRateLayout(tapsLen, sizeof(T), isComplex<T>).sizes().fit()) return StsSizeErr;
        buildSingleRate(pTaps, tapsLen, 0, true, pSpec);
        return StsNoErr;
    }
    const MultiRateLayout at(tapsLen, upFactor, downFactor, sizeof(T), isComplex<T>);
    if (!at.sizes().fit()) return StsFIRLenErr;
    build(pTaps, at, downPhase - upPhase, pSpec);
    return StsNoErr;
}

} // namespace
#include "entries/signal/processing/fir/multi.inc"
} // namespace sig5d::SIG5D_VARIANT
