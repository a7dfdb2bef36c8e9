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

    [[gnu::always_inline]] T operator[](ptrdiff_t t) const
    {
        return t >= 0 ? src[t] : history ? history[delay + t] : first;
    }
};

// Copies for the ends of streams, and of whole ones for the mask of 1.
template <class T> [[gnu::noinline]] void copy_few(const T* a, T* d, ptrdiff_t n)
{
    for (ptrdiff_t i = 0; i < n; ++i) d[i] = a[i];
}
// n samples from the t-th on; before the history anything.
template <class T> [[gnu::noinline]] void copy_stream(const Stream<T>& x, ptrdiff_t t, T* d, ptrdiff_t n)
{
    for (; n > 0; ++t, --n) *d++ = x[t < -x.delay ? -x.delay : t];
}
// The history for the next block.
template <class T> inline void copy_tail(const Stream<T>& x, T* d) { copy_stream(x, x.length - x.delay, d, x.delay); }

} // namespace
} // namespace sig5d::SIG5D_VARIANT
