// The kernel of an image filter as its sums take it.
#pragma once
#include "image/layout.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The kernel in the order of the sums: last row and last column first.
template <class T, class U> void arrange(const T* kernel, int width, int height, U* taps)
{
    for (int s = width - 1; s >= 0; --s)
        for (int t = height - 1; t >= 0; --t) *taps++ = static_cast<U>(kernel[static_cast<ptrdiff_t>(t) * width + s]);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
