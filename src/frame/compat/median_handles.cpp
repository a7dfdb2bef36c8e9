// Median filters by handle, as an older interface has them: one call allocates, the handle carries the stream from call
// to call, and one call releases everything.
#include "frame/compat/filter_handle.h"
#include "frame/index.h"

namespace sig5d {
namespace {

using Handle = FilterHandle<intptr_t>; // the mask size

constexpr int typeOf64f = 19; // the size of the buffer is the same for all

template <class T> constexpr auto filterOf = ippsFilterMedian_64f;
template <> constexpr auto filterOf<Ipp32s> = ippsFilterMedian_32s;
template <> constexpr auto filterOf<Ipp16s> = ippsFilterMedian_16s;
template <> constexpr auto filterOf<Ipp8u> = ippsFilterMedian_8u;

void freeHandle(void* pHandle)
{
    if (pHandle) release(static_cast<Handle*>(pHandle));
}

// For samples of so many bytes.
[[gnu::noinline]] Status initAlloc(int maskSize, int elementBytes, void** ppHandle)
{
    *ppHandle = nullptr;
    int bytes = 0;
    const Status status = ippsFilterMedianGetBufferSize(maskSize, typeOf64f, &bytes);
    if (status < 0) return status;
    auto* h = static_cast<Handle*>(malloc(sizeof(Handle)));
    if (!h) return StsNoMemErr;
    const int length = bytes / 16, line = length * elementBytes;
    *h = {maskSize, zeros(line), zeros(line), static_cast<Ipp8u*>(allocateAligned(bytes)), length};
    if (!h->complete()) {
        release(h);
        return StsNoMemErr;
    }
    *ppHandle = h;
    return status;
}
Status alloc(int maskSize, IppsFilterMedianHandle_64f** ppHandle)
{
    return initAlloc(maskSize, 8, reinterpret_cast<void**>(ppHandle));
}
Status alloc(int maskSize, IppsFilterMedianHandle_32s** ppHandle)
{
    return initAlloc(maskSize, 4, reinterpret_cast<void**>(ppHandle));
}
Status alloc(int maskSize, IppsFilterMedianHandle_16s** ppHandle)
{
    return initAlloc(maskSize, 2, reinterpret_cast<void**>(ppHandle));
}
Status alloc(int maskSize, IppsFilterMedianHandle_8u** ppHandle)
{
    return initAlloc(maskSize, 1, reinterpret_cast<void**>(ppHandle));
}

template <class T, class H> Status filter(const T* pSrc, int srcIdx, T* pDst, int dstIdx, int len, H* pHandle)
{
    auto& h = *reinterpret_cast<Handle*>(pHandle);
    return goOn<T>(h, [&](T* in, T* out) {
        return filterOf<T>(element<sizeof(T)>(pSrc, srcIdx), element<sizeof(T)>(pDst, dstIdx), len,
                           static_cast<int>(h.first), in, out, h.buf);
    });
}

} // namespace
#include "entries/frame/compat/median_handles.inc"
} // namespace sig5d
