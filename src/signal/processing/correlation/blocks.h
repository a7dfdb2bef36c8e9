// Sums for many lags by Fourier transforms: of the circular convolution of a block of samples with the row those values
// are results that no wrapped product has reached (overlap-save).
#pragma once
#include "signal/processing/correlation/layout.h"
#include "signal/processing/fft/transforms.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

inline f64 conjugate(f64 x) { return x; }
inline c64f conjugate(c64f x) { return {x.re, 0.0 - x.im}; }

// Lags in the width of pointers, which all that has a place in memory fits into.
struct Range {
    ptrdiff_t row, samples, first, count;
    explicit Range(const Lags& lags)
        : row(static_cast<ptrdiff_t>(lags.row)), samples(static_cast<ptrdiff_t>(lags.samples)),
          first(static_cast<ptrdiff_t>(lags.first)), count(static_cast<ptrdiff_t>(lags.count))
    {
    }
};

template <class T> [[gnu::cold]] void copyConjugate(const T* a, T* d, ptrdiff_t n)
{
    for (ptrdiff_t i = 0; i < n; ++i) d[i] = conjugate(a[i]);
}
template <class T> [[gnu::cold]] void copyReversed(const T* a, T* d, ptrdiff_t n)
{
    for (ptrdiff_t i = 0; i < n; ++i) d[i] = a[n - 1 - i];
}

// A work buffer for one kind of transform.
template <class T> struct Transforms {
    const void* plan;
    void* work;
    ptrdiff_t points;
    T *row, *samples, *block;

    Transforms(const CorrelationWork& at, u8* buffer)
        : plan(buffer), work(buffer + at.transformWork), points(ptrdiff_t(1) << at.order),
          row(reinterpret_cast<T*>(buffer + at.row)), samples(reinterpret_cast<T*>(buffer + at.samples)),
          block(reinterpret_cast<T*>(buffer + at.block))
    {
        fftInit(buffer, isComplex<T> ? FftKind::complex : FftKind::real, FftSpectrum::unordered, at.order);
    }
};

// Samples x[from] to x[from + points - 1], zeros where there are none: where they stand, or else copied to d.
template <class T>
[[gnu::noinline]] const T* samplesOf(const Range& lags, const T* x, ptrdiff_t from, ptrdiff_t points, T* d)
{
    if (from >= 0 && lags.samples - from >= points) return x + from;
    const ptrdiff_t before = from < 0 ? -from : 0, left = lags.samples - from;
    const ptrdiff_t end = left < points ? left : points;
    zero(d, before);
    copy(x + from + before, d + before, end - before);
    zero(d + end, points - end);
    return d;
}

// Where all samples are in the block, only zeros are wrapped around, and they begin it: so that results that the first
// samples have part in need no room for zeros before.
template <class T> void sumByBlocks(const Range& lags, const Transforms<T>& t, const T* x, T* y)
{
    const ptrdiff_t end = lags.first + lags.count;
    for (ptrdiff_t lag = lags.first; lag < end;) {
        const bool whole = lags.samples - lag <= t.points;
        const ptrdiff_t from = whole && lag < 0 ? 0 : lag,
                        before = lags.row - 1 + lag - from; // values before the results
        const ptrdiff_t room = t.points - before, n = end - lag < room ? end - lag : room;
        fftConvolve(t.plan, samplesOf(lags, x, from, t.points, t.block), t.row, t.block, t.work);
        copy(t.block + before, y, n);
        y += n;
        lag += n;
    }
}

// The row in parts of half a block. Part i meets, for the results of block b, the samples of block b - i: all
// transforms are made once, and of the products' sum one goes back.
template <class T> void sumByParts(const Range& lags, const Transforms<T>& t, ptrdiff_t parts, const T* x, T* y)
{
    const ptrdiff_t part = t.points / 2;
    auto start = [&](ptrdiff_t block) { return lags.first + lags.row - 1 + (block - 1) * part; };
    auto empty = [&](ptrdiff_t block) { return start(block) >= lags.samples || start(block) + t.points <= 0; };
    auto spectrum = [&](ptrdiff_t block) {
        ptrdiff_t place = block;
        while (place < 0) place += parts;
        while (place >= parts) place -= parts;
        return t.samples + place * t.points;
    };
    ptrdiff_t next = 1 - parts; // block of samples
    ptrdiff_t done = 0;
    for (ptrdiff_t b = 0; done < lags.count; ++b) {
        for (; next <= b; ++next)
            if (!empty(next)) {
                T* const d = spectrum(next);
                fftForward(t.plan, samplesOf(lags, x, start(next), t.points, d), d, t.work);
            }
        bool first = true;
        for (ptrdiff_t i = 0; i < parts; ++i) {
            if (empty(b - i)) continue;
            const T* const h = t.row + i * t.points;
            if (first)
                fftMultiply(t.plan, h, spectrum(b - i), t.block);
            else
                fftMultiplyAdd(t.plan, h, spectrum(b - i), t.block);
            first = false;
        }
        fftInverse(t.plan, t.block, t.block, t.work);
        const ptrdiff_t n = lags.count - done < part ? lags.count - done : part;
        copy(t.block + part, y + done, n);
        done += n;
    }
}

template <class T>
void sumByTransform(const Range& lags, const CorrelationWork& work, bool convolution, const T* row, const T* x, T* y,
                    u8* buffer)
{
    const Transforms<T> t(work, buffer);
    const ptrdiff_t part = work.parts > 1 ? t.points / 2 : lags.row;
    T* spectrum = t.row;
    for (ptrdiff_t i = 0; i < lags.row; i += part, spectrum += t.points) {
        const ptrdiff_t n = lags.row - i < part ? lags.row - i : part;
        if (convolution)
            copy(row + i, t.block, n);
        else
            copyReversed(row + (lags.row - i - n), t.block, n);
        if (isComplex<T>) copyConjugate(t.block, t.block, n);
        zero(t.block + n, t.points - n);
        fftForward(t.plan, t.block, spectrum, t.work);
    }
    if (work.parts > 1)
        sumByParts(lags, t, static_cast<ptrdiff_t>(work.parts), x, y);
    else
        sumByBlocks(lags, t, x, y);
}

template <class T>
void autoCorrelateByTransform(const T* x, ptrdiff_t n, T* y, ptrdiff_t count, const CorrelationWork& work, u8* buffer)
{
    const Transforms<T> t(work, buffer);
    copy(x, t.block, n);
    zero(t.block + n, t.points - n);
    fftForward(t.plan, t.block, t.block, t.work);
    fftMultiplyConj(t.plan, t.block, t.block, t.block);
    fftInverse(t.plan, t.block, t.block, t.work);
    copy(t.block, y, count);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
