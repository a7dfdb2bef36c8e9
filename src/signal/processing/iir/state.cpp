// Sizes of IIR states, and how a state is built in the caller's buffer. Once for all processors.
#include "signal/processing/iir/state.h"
#include "frame/entry.h"
#include "frame/index.h"

namespace sig5d {
namespace {

constexpr uintptr_t alignment = 32; // of the head
constexpr i64 headBytes = 64;       // from the head to the taps, where there is room

// What the sizes of real filters leave for alignment. A cascade with an even number of sections has none by the
// formula: the taps then start as far from the buffer as they should from the head. Heads with longer pointers need
// more room.
constexpr i64 moreRoom = sizeof(void*) == 8 ? alignment : 0;
static_assert(sizeof(IirState) + (moreRoom ? 0 : alignment - 1) <= headBytes);

struct Layout {
    i64 taps, delays; // numbers in each array
    i64 bytes;        // of the whole buffer
};

template <class T> Layout layoutOfOrder(i64 n)
{
    const i64 taps = tapsOfOrder(n), delays = delaysOfOrder(n);
    if constexpr (sizeof(T) == sizeof(f64))
        return {taps, delays, 16 * n + 144 + (8 * n + 23) / 16 * 16 + moreRoom};
    else
        return {taps, delays, headBytes + i64(alignment) + (taps + delays) * i64(sizeof(T))};
}
template <class T> Layout layoutOfSections(i64 n)
{
    const i64 taps = tapsOfSection * n, delays = delaysOfSection * n;
    if constexpr (sizeof(T) == sizeof(f64))
        return {taps, delays, (40 * n + 15) / 16 * 16 + 64 + 16 * n + moreRoom};
    else
        return {taps, delays, headBytes + i64(alignment) + (taps + delays) * i64(sizeof(T))};
}

bool fits(const Layout& at) { return at.bytes <= 0x7fffffff; }

Status store(const Layout& at, int* pBufferSize)
{
    if (!fits(at)) return StsIIROrderErr;
    *pBufferSize = static_cast<int>(at.bytes);
    return StsNoErr;
}
template <class T> Status sizeOfOrder(int order, int* pBufferSize)
{
    return store(layoutOfOrder<T>(order), pBufferSize);
}
template <class T> Status sizeOfSections(int numBq, int* pBufferSize)
{
    return store(layoutOfSections<T>(numBq), pBufferSize);
}

bool isZero(f64 x) { return x == 0.0; }
bool isZero(c64f x) { return x.re == 0.0 && x.im == 0.0; }

f64 reciprocal(f64 a) { return 1.0 / a; }
c64f reciprocal(c64f a)
{
    const f64 square = a.re * a.re + a.im * a.im;
    return {a.re / square, -a.im / square};
}

f64 product(f64 x, f64 y) { return x * y; }
c64f product(c64f x, c64f y) { return {x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re}; }

void put(f64* array, i64, i64 i, f64 x) { array[i] = x; }
void put(f64* array, i64 length, i64 i, c64f x)
{
    array[i] = x.re;
    array[length + i] = x.im;
}

// Where the delay line of a filter that is no cascade starts: its fourth delay, from which on they go in vectors, at a
// multiple of 64 or, where the buffer has no room for that, 32 bytes. At most so late.
uintptr_t delayLine(uintptr_t earliest, uintptr_t latest)
{
    constexpr uintptr_t before = 3 * sizeof(f64);
    constexpr uintptr_t units[] = {64, 32};
    for (const uintptr_t unit : units) {
        const uintptr_t at = (earliest + before + unit - 1) / unit * unit - before;
        if (at <= latest) return at;
    }
    return earliest;
}

// All but the taps: the first `delays` numbers of the delay line are the caller's, or zeros.
template <class T, class S>
IirState* begin(IirTag tag, const Layout& at, int delays, int sections, const T* pDlyLine, u8* pBuf, S** ppState)
{
    const uintptr_t start = reinterpret_cast<uintptr_t>(pBuf);
    const uintptr_t head = (start + alignment - 1) / alignment * alignment;
    const uintptr_t usual = head + headBytes;
    const uintptr_t latest = start + static_cast<uintptr_t>(at.bytes - (at.taps + at.delays) * i64(sizeof(T)));
    auto* const state = reinterpret_cast<IirState*>(head);
    *state = {};
    state->tag = tag;
    state->taps = reinterpret_cast<f64*>(usual < latest ? usual : latest);
    const uintptr_t behindTaps = reinterpret_cast<uintptr_t>(state->taps) + static_cast<uintptr_t>(at.taps) * sizeof(T);
    const uintptr_t latestDelays = start + static_cast<uintptr_t>(at.bytes - at.delays * i64(sizeof(T)));
    state->delays = reinterpret_cast<f64*>(sections ? behindTaps : delayLine(behindTaps, latestDelays));
    state->count = delays;
    state->sections = sections;
    for (i64 i = 0; i < at.delays; ++i) put(state->delays, at.delays, i, pDlyLine && i < delays ? pDlyLine[i] : T{});
    *ppState = reinterpret_cast<S*>(state);
    return state;
}

template <class T, class S> Status initOfOrder(S** ppState, const T* pTaps, int order, const T* pDlyLine, u8* pBuf)
{
    const Layout at = layoutOfOrder<T>(order);
    if (!fits(at)) return StsIIROrderErr;
    const IirTag tag = sizeof(T) == sizeof(f64) ? direct64f : direct64fc;
    const IirState* state = begin(tag, at, order, 0, pDlyLine, pBuf, ppState);
    const T a0 = pTaps[order + 1];
    if (isZero(a0)) return StsDivByZeroErr;
    const T factor = reciprocal(a0);
    for (i64 i = 0; i < at.taps; ++i) put(state->taps, at.taps, i, product(pTaps[i + (i > order)], factor));
    return StsNoErr;
}

template <class T, class S> Status initOfSections(S** ppState, const T* pTaps, int numBq, const T* pDlyLine, u8* pBuf)
{
    const Layout at = layoutOfSections<T>(numBq);
    if (!fits(at)) return StsIIROrderErr;
    const IirTag tag = sizeof(T) == sizeof(f64) ? cascade64f : cascade64fc;
    const IirState* state = begin(tag, at, 2 * numBq, numBq, pDlyLine, pBuf, ppState);
    for (i64 s = 0; s < numBq; ++s, pTaps += 6) {
        if (isZero(pTaps[3]) || isZero(pTaps[0])) return StsDivByZeroErr;
        const T factor = reciprocal(pTaps[3]);
        for (i64 i = 0; i < tapsOfSection; ++i)
            put(state->taps, at.taps, s * tapsOfSection + i, product(pTaps[i + (i > 2)], factor));
    }
    return StsNoErr;
}

} // namespace
#include "entries/signal/processing/iir/state.inc"
} // namespace sig5d
