// The stream that a median filter works on: a block of samples and the history before it.
#pragma once
#include "kernel/simd.h"
#include <cstddef>

namespace sig5d::SIG5D_VARIANT {
namespace {

// Results are made from the last one to the first: in place no sample is overwritten before its last use.
template <class T> struct Stream {
    const T* src;
    const T* history; // oldest first; null: copies of the first sample
    ptrdiff_t delay, length;
    T first;

    T operator[](ptrdiff_t t) const { return t >= 0 ? src[t] : history ? history[delay + t] : first; }
    // The same at distances where there are no samples any more.
    T nearest(ptrdiff_t t) const { return (*this)[t < -delay ? -delay : t]; }
    // The history for the next block.
    void tail(T* d) const
    {
        for (ptrdiff_t i = 0; i < delay; ++i) d[i] = (*this)[length - delay + i];
    }
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
