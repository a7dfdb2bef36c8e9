// What filters by handle share: the words of a handle, memory for them, and the stream that goes on from call to call.
#pragma once
#include "sig5d.h"
#include "frame/memory.h"
#include "frame/types.h"
#include <stdlib.h>

namespace sig5d {
namespace {

// The words of a handle. The first one says what the filter is: its specification, or a number. Both delay arrays hold
// a sample more than a filter reads: hosts know the order of the words and rely on that length.
template <class First> struct FilterHandle {
    First first;
    void* dlySrc;
    void* dlyDst;
    Ipp8u* buf;
    intptr_t length; // of the delay arrays

    bool complete() const { return dlySrc && dlyDst && buf; }
};

inline void releaseFirst(void* spec) { freeAligned(spec); }
inline void releaseFirst(intptr_t) {}

template <class First> void release(FilterHandle<First>* h)
{
    freeAligned(h->dlySrc);
    freeAligned(h->dlyDst);
    freeAligned(h->buf);
    releaseFirst(h->first);
    free(h);
}

inline void* zeros(int bytes)
{
    auto* block = static_cast<Ipp8u*>(allocateAligned(bytes));
    for (int i = 0; block && i < bytes; ++i) block[i] = 0;
    return block;
}

// The next stretch of a handle's stream, by filter(history before, history behind): that which the last call left
// behind becomes that before this one.
template <class T, class First, class Filter> Status goOn(FilterHandle<First>& h, Filter filter)
{
    ippsCopy_8u(static_cast<Ipp8u*>(h.dlyDst), static_cast<Ipp8u*>(h.dlySrc), static_cast<int>(h.length * sizeof(T)));
    return filter(static_cast<T*>(h.dlySrc), static_cast<T*>(h.dlyDst));
}

} // namespace
} // namespace sig5d
