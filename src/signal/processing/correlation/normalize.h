// Sums divided by the length of a signal, or each by the number of its products.
#pragma once
#include "signal/processing/correlation/layout.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

[[gnu::noinline]] inline void scale(f64* y, ptrdiff_t n, f64 factor)
{
    for (ptrdiff_t i = 0; i < n; ++i) y[i] *= factor;
}
inline void scale(c64f* y, ptrdiff_t n, f64 factor) { scale(&y->re, 2 * n, factor); }

// y[i] / (first + i * step)
[[gnu::noinline, gnu::noclone]] inline void divide(f64* y, int n, int first, int step)
{
    for (int i = 0; i < n; ++i) y[i] /= static_cast<f64>(first + i * step);
}
[[gnu::noinline, gnu::noclone]] inline void divide(c64f* y, int n, int first, int step)
{
    for (int i = 0; i < n; ++i) {
        const f64 products = static_cast<f64>(first + i * step);
        y[i].re /= products;
        y[i].im /= products;
    }
}

template <class T> void divideByProducts(const Lags& lags, T* y)
{
    const Spans n = spansOf(lags);
    divide(y, n.rising, int(lags.row + lags.first), 1);
    divide(y + n.rising, n.whole, int(lags.row), 0);
    divide(y + n.rising + n.whole, n.falling, n.common + n.falling - 1, -1);
}

// An unknown normalisation is told when the sums are there as they are.
template <class T> Status normalize(const Lags& lags, int len, int algType, T* y)
{
    switch (algType & ~0xFF) {
    case 0:
        return StsNoErr;
    case 0x100:
        scale(y, static_cast<ptrdiff_t>(lags.count), 1.0 / static_cast<f64>(len));
        return StsNoErr;
    case 0x200:
        divideByProducts(lags, y);
        return StsNoErr;
    }
    return StsAlgTypeErr;
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
