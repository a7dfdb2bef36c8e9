// The history that a FIR filter carries from call to call.
#pragma once
#include "signal/processing/sliding/memory.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The history before the first input: what the caller gives, or zeros.
template <class T> void firstHistory(const T* given, T* d, ptrdiff_t length)
{
    if (given) {
        copy(given, d, length);
    } else {
        zero(d, length);
    }
}

// Forward into an array that overlaps what is copied.
template <class T> [[gnu::noinline]] void slide(const T* a, T* d, ptrdiff_t n)
{
    for (ptrdiff_t i = 0; i < n; ++i) d[i] = a[i];
}

// The last `length` inputs in chronological order, after n new ones; d may be history.
template <class T> void nextHistory(const T* history, const T* src, ptrdiff_t n, T* d, ptrdiff_t length)
{
    if (n >= length) {
        copy(src + n - length, d, length);
    } else {
        slide(history + n, d, length - n);
        copy(src, d + length - n, n);
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
