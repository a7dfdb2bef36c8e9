// Median filters by handle, as an older interface has them: one call allocates, the handle carries the stream from call
// to call, and one call releases everything.
#include "sig5d.h"
#include "frame/index.h"
#include "frame/memory.h"
#include "frame/types.h"
#include <stdlib.h>

namespace sig5d {
namespace {

// The words of a handle. Both delay arrays hold as many samples as the mask, one more than the filter reads. The first
// word is that of filters with a specification; hosts know the order of the others.
struct Handle {
    intptr_t maskSize;
    void* dlySrc;
    void* dlyDst;
    Ipp8u* buf;
    intptr_t length; // of the delay arrays
};

constexpr int typeOf64f = 19; // the size of the buffer is the same for all

// What is called for a type.
template <class T> struct Functions;
template <> struct Functions<Ipp64f> {
    static constexpr auto copy = ippsCopy_64f;
    static constexpr auto filter = ippsFilterMedian_64f;
};
template <> struct Functions<Ipp32s> {
    static constexpr auto copy = ippsCopy_32s;
    static constexpr auto filter = ippsFilterMedian_32s;
};
template <> struct Functions<Ipp16s> {
    static constexpr auto copy = ippsCopy_16s;
    static constexpr auto filter = ippsFilterMedian_16s;
};
template <> struct Functions<Ipp8u> {
    static constexpr auto copy = ippsCopy_8u;
    static constexpr auto filter = ippsFilterMedian_8u;
};

void release(Handle* h)
{
    freeAligned(h->dlySrc);
    freeAligned(h->dlyDst);
    freeAligned(h->buf);
    free(h);
}
void freeHandle(void* pHandle)
{
    if (pHandle) release(static_cast<Handle*>(pHandle));
}

void* zeros(int bytes)
{
    auto* block = static_cast<Ipp8u*>(allocateAligned(bytes));
    for (int i = 0; block && i < bytes; ++i) {
        block[i] = 0;
        asm volatile("" : : : "memory"); // made for size
    }
    return block;
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
    if (!h->dlySrc || !h->dlyDst || !h->buf) {
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

// The next stretch of the handle's stream. The history that the last call left becomes that of this one.
template <class T, class H> Status filter(const T* pSrc, int srcIdx, T* pDst, int dstIdx, int len, H* pHandle)
{
    using F = Functions<T>;
    auto* h = reinterpret_cast<Handle*>(pHandle);
    T *in = static_cast<T*>(h->dlySrc), *out = static_cast<T*>(h->dlyDst);
    F::copy(out, in, static_cast<int>(h->length));
    return F::filter(element<sizeof(T)>(pSrc, srcIdx), element<sizeof(T)>(pDst, dstIdx), len,
                     static_cast<int>(h->maskSize), in, out, h->buf);
}

} // namespace
#include "entries/frame/compat/median_handles.inc"
} // namespace sig5d
