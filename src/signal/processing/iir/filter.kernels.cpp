// IIR filters: what the state is, the filter of its order or the cascade of its sections.
#include "frame/entry.h"
#include "signal/processing/iir/cascade.h"
#include "signal/processing/iir/direct.h"
#include "signal/processing/iir/state.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> constexpr u32 directTag = partsOf<T> == 1 ? direct64f : direct64fc;
template <class T> constexpr u32 cascadeTag = partsOf<T> == 1 ? cascade64f : cascade64fc;

template <class T> Direct<T> directOf(const IirState& state)
{
    const int order = state.count;
    const Row<T> taps(state.taps, tapsOfOrder(order));
    Row<T> a = taps;
    a.moveOn(order); // a[1] stands behind b[order]
    return {order, taps, a, Row<T>(state.delays, delaysOfOrder(order))};
}

template <class T> Cascade<T> cascadeOf(const IirState& state)
{
    return {state.sections, Row<T>(state.taps, tapsOfSection * state.sections), Row<T>(state.delays, state.count)};
}

template <class T> Status iir(const T* pSrc, T* pDst, int len, void* pState)
{
    const IirState& state = *static_cast<const IirState*>(pState);
    if (state.tag == directTag<T>)
        filter(pSrc, pDst, len, directOf<T>(state));
    else if (state.tag == cascadeTag<T>)
        filter(pSrc, pDst, len, cascadeOf<T>(state));
    else
        return StsContextMatchErr;
    return StsNoErr;
}

} // namespace
#include "entries/signal/processing/iir/filter.inc"
} // namespace sig5d::SIG5D_VARIANT
