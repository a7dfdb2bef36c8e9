// The C library's own copies and fills.
#include "case.h"
#include <cstring>

namespace {

using bench::addPeer;
using bench::Batch;
using bench::repeated;
using bench::Setup;

// The calls go through variables, so that no compiler replaces them by code of its own.
void* (*volatile copyBytes)(void*, const void*, size_t) = std::memcpy;
void* (*volatile moveBytes)(void*, const void*, size_t) = std::memmove;
void* (*volatile setBytes)(void*, int, size_t) = std::memset;

template <class F> Batch fromTo(const Setup& s, F& f)
{
    const auto& a = s.memory().arrays();
    void* const d = a[1].data;
    const void* const x = a[0].data;
    const size_t n = a[1].bytes;
    return repeated([=, call = f] { call(d, x, n); });
}

Batch fill(const Setup& s)
{
    const bench::Array a = s.memory().arrays()[0];
    return repeated([=, call = setBytes] { call(a.data, 0, a.bytes); });
}

const bench::Cases libc([] {
    addPeer("ippsCopy_\\w+", "memcpy", [](const Setup& s) { return fromTo(s, copyBytes); });
    addPeer("ippsMove_\\w+", "memmove", [](const Setup& s) { return fromTo(s, moveBytes); });
    addPeer("ippsFlip_[0-9a-z]+", "memcpy", [](const Setup& s) { return fromTo(s, copyBytes); });
    addPeer("ipps(Zero|Set)_\\w+", "memset", fill);
});

} // namespace
