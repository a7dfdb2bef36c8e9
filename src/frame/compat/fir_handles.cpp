// FIR filters by handle, as an older interface has them: one call allocates and initialises, the handle carries the
// stream from call to call, and one call releases everything.
#include "frame/compat/filter_handle.h"
#include "frame/index.h"

namespace sig5d {
namespace {

using Handle = FilterHandle<void*>; // the specification

// What is called for a type.
template <class T> struct Functions;
template <> struct Functions<Ipp64f> {
    using Spec = IppsFIRSpec_64f;
    static constexpr int type = 19;
    static constexpr auto singleInit = ippsFIRSRInit_64f;
    static constexpr auto single = ippsFIRSR_64f;
    static constexpr auto multiInit = ippsFIRMRInit_64f;
    static constexpr auto multi = ippsFIRMR_64f;
};
template <> struct Functions<Ipp64fc> {
    using Spec = IppsFIRSpec_64fc;
    static constexpr int type = 20;
    static constexpr auto singleInit = ippsFIRSRInit_64fc;
    static constexpr auto single = ippsFIRSR_64fc;
    static constexpr auto multiInit = ippsFIRMRInit_64fc;
    static constexpr auto multi = ippsFIRMR_64fc;
};

void freeHandle(void* pHandle)
{
    if (pHandle) release(static_cast<Handle*>(pHandle));
}

// sizes(&specSize, &bufSize) and init(taps, spec) are the filter's own functions. The status is that of init, and
// NoMemErr when the heap has no room; after a failure nothing stays allocated and the handle is null.
template <class T, class H, class Sizes, class Init>
Status initAlloc(const T* pTaps, int tapsIdx, int tapsLen, H** ppHandle, Sizes sizes, Init init)
{
    *ppHandle = nullptr;
    const T* taps = element_or_null<sizeof(T)>(pTaps, tapsIdx);
    int specSize = 0, bufSize = 0;
    if (const Status refused = sizes(&specSize, &bufSize)) {
        // For the status alone: what has no size is refused there as well, before the block is touched.
        const Status status = init(taps, reinterpret_cast<typename Functions<T>::Spec*>(ppHandle));
        return status ? status : refused;
    }
    auto* h = static_cast<Handle*>(malloc(sizeof(Handle)));
    if (!h) return StsNoMemErr;
    // Below 2^31 bytes each: the block, whose size was accepted, is larger than a delay line.
    const int line = tapsLen * static_cast<int>(sizeof(T));
    *h = {allocateAligned(specSize), zeros(line), zeros(line), static_cast<Ipp8u*>(allocateAligned(bufSize)), tapsLen};
    const bool complete = h->first && h->complete();
    const Status status = complete ? init(taps, static_cast<typename Functions<T>::Spec*>(h->first)) : StsNoMemErr;
    if (status) {
        release(h);
    } else {
        *ppHandle = reinterpret_cast<H*>(h);
    }
    return status;
}

template <class T, class H> Status singleInitAlloc(const T* pTaps, int tapsIdx, int tapsLen, int algType, H** ppHandle)
{
    using F = Functions<T>;
    return initAlloc(
        pTaps, tapsIdx, tapsLen, ppHandle,
        [=](int* specSize, int* bufSize) { return ippsFIRSRGetSize(tapsLen, F::type, specSize, bufSize); },
        [=](const T* taps, typename F::Spec* spec) { return F::singleInit(taps, tapsLen, algType, spec); });
}

template <class T, class H>
Status multiInitAlloc(const T* pTaps, int tapsIdx, int tapsLen, int up, int upPhase, int down, int downPhase,
                      H** ppHandle)
{
    using F = Functions<T>;
    return initAlloc(
        pTaps, tapsIdx, tapsLen, ppHandle,
        [=](int* specSize, int* bufSize) { return ippsFIRMRGetSize(tapsLen, up, down, F::type, specSize, bufSize); },
        [=](const T* taps, typename F::Spec* spec) {
            return F::multiInit(taps, tapsLen, up, upPhase, down, downPhase, spec);
        });
}

template <auto filter, class T, class H> Status next(const T* src, T* dst, int numIters, H* pHandle)
{
    auto& h = *reinterpret_cast<Handle*>(pHandle);
    return goOn<T>(h, [&](T* in, T* out) {
        return filter(src, dst, numIters, static_cast<typename Functions<T>::Spec*>(h.first), in, out, h.buf);
    });
}

template <class T, class H> Status single(const T* pSrc, int srcIdx, T* pDst, int dstIdx, int numIters, H* pHandle)
{
    return next<Functions<T>::single>(element<sizeof(T)>(pSrc, srcIdx), element<sizeof(T)>(pDst, dstIdx), numIters,
                                      pHandle);
}
template <class T, class H> Status multi(const T* pSrc, int srcIdx, T* pDst, int dstIdx, int numIters, H* pHandle)
{
    return next<Functions<T>::multi>(element<sizeof(T)>(pSrc, srcIdx), element<sizeof(T)>(pDst, dstIdx), numIters,
                                     pHandle);
}

// One sample; unlike in the other index forms, a delay line that is null stays null whatever its index.
template <class T, class Spec>
Status one(T src, T* pDstVal, const Spec* pSpec, const T* pDlySrc, int dlySrcIdx, T* pDlyDst, int dlyDstIdx,
           Ipp8u* pBuf, int bufIdx)
{
    return Functions<T>::single(&src, pDstVal, 1, pSpec, element_or_null<sizeof(T)>(pDlySrc, dlySrcIdx),
                                element_or_null<sizeof(T)>(pDlyDst, dlyDstIdx), element_or_null<1>(pBuf, bufIdx));
}

} // namespace
#include "entries/frame/compat/fir_handles.inc"
} // namespace sig5d
