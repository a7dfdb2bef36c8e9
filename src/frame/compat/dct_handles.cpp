// Cosine transforms by handle, as an older interface has them: one call allocates and initialises, the handle carries
// specification and work buffer, and one call releases everything.
#include "sig5d.h"
#include "frame/index.h"
#include "frame/memory.h"
#include "frame/types.h"
#include <stdlib.h>

namespace sig5d {
namespace {

// The words of a handle.
struct Handle {
    void* block;
    void* spec; // in the block
    Ipp8u* buffer;
};

void release(Handle* h)
{
    freeAligned(h->buffer);
    freeAligned(h->block);
    free(h);
}

void freeHandle(void* pHandle)
{
    if (pHandle) release(static_cast<Handle*>(pHandle));
}

// What has no size needs no block either.
Ipp8u* block(int bytes) { return bytes ? static_cast<Ipp8u*>(allocateAligned(bytes)) : nullptr; }

// After a failure nothing stays allocated and the handle is null.
template <auto getSize, auto init, class Spec> Status initAlloc(int len, int hint, IppsDCTHandle_64f** ppHandle)
{
    *ppHandle = nullptr;
    int specSize = 0, initSize = 0, bufferSize = 0;
    if (const Status refused = getSize(len, hint, &specSize, &initSize, &bufferSize)) return refused;
    auto* h = static_cast<Handle*>(malloc(sizeof(Handle)));
    if (!h) return StsNoMemErr;
    Ipp8u* const space = block(specSize);
    *h = {space, nullptr, nullptr};
    Ipp8u* const setUp = block(initSize);
    Spec* spec = nullptr;
    Status status = space && (setUp || !initSize) ? init(&spec, len, hint, space, setUp) : StsNoMemErr;
    freeAligned(setUp);
    h->spec = spec;
    if (!status) {
        h->buffer = block(bufferSize);
        if (!h->buffer && bufferSize) status = StsNoMemErr;
    }
    if (status) {
        release(h);
    } else {
        *ppHandle = reinterpret_cast<IppsDCTHandle_64f*>(h);
    }
    return status;
}

Status forwardInitAlloc(int len, int hint, IppsDCTHandle_64f** ppHandle)
{
    return initAlloc<ippsDCTFwdGetSize_64f, ippsDCTFwdInit_64f, IppsDCTFwdSpec_64f>(len, hint, ppHandle);
}
Status inverseInitAlloc(int len, int hint, IppsDCTHandle_64f** ppHandle)
{
    return initAlloc<ippsDCTInvGetSize_64f, ippsDCTInvInit_64f, IppsDCTInvSpec_64f>(len, hint, ppHandle);
}

Status forward(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, const IppsDCTHandle_64f* pHandle)
{
    const auto* h = reinterpret_cast<const Handle*>(pHandle);
    return ippsDCTFwd_64f(element<8>(pSrc, srcIdx), element<8>(pDst, dstIdx),
                          static_cast<const IppsDCTFwdSpec_64f*>(h->spec), h->buffer);
}
Status inverse(const Ipp64f* pSrc, int srcIdx, Ipp64f* pDst, int dstIdx, const IppsDCTHandle_64f* pHandle)
{
    const auto* h = reinterpret_cast<const Handle*>(pHandle);
    return ippsDCTInv_64f(element<8>(pSrc, srcIdx), element<8>(pDst, dstIdx),
                          static_cast<const IppsDCTInvSpec_64f*>(h->spec), h->buffer);
}

} // namespace
#include "entries/frame/compat/dct_handles.inc"
} // namespace sig5d
