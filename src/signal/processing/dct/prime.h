// Large primes, by a convolution of one value less.
#pragma once
#include "signal/processing/dct/spec.h"
#include "signal/processing/fft/lanes.h"
#include "signal/processing/fft/transforms.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Lane by lane, with the number of the lane as a constant: without a way through memory.
template <int i, class V> SIG5D_INLINE f64 lane(V v)
{
    if constexpr (sizeof(V) == sizeof(f64))
        return v;
    else
        return v[i];
}
template <int i = 0, class F> SIG5D_INLINE void forLanes(F f)
{
    f.template operator()<i>();
    if constexpr (i + 1 < width) forLanes<i + 1>(f);
}

// A prime length N has a generator g, whose powers are all numbers from 1 to N - 1. With H[k] = sum of v[n] times cos -
// sin of 2 pi n k / N (Hartley), which is the sum of the parts of V[k] and its own inverse but for a factor,
//
//     H[g^-q] = v[0] + sum over p = 0 ... N - 2 of v[g^p] (cos - sin)(2 pi g^(p-q) / N),
//
// a circular convolution. g^-q and g^-(q + (N-1)/2) are each other's negatives.
struct PrimeTables {
    Count half;
    const i32 *sources, *outputs;
    const f64 *cosines, *sines;
    explicit PrimeTables(const DctSpec* spec)
        : half(spec->len / 2), sources(dctPart<i32>(spec, spec->places)), outputs(sources + 2 * half),
          cosines(dctPart<f64>(spec, spec->turns)), sines(cosines + half)
    {
    }
    // Groups of bins; the last overlaps the one before.
    template <class F> SIG5D_INLINE void forBins(F f) const
    {
        for (Count q = 0; q < half; q += width) f(q + width <= half ? q : half - width);
    }
    SIG5D_INLINE Complex<Vector> turns(Count q) const { return {load(cosines + q), load(sines + q)}; }
};

// Element i belongs to sum i modulo 8; the sums are joined by halves.
f64 sumOfAll(const f64* u, Count n)
{
    f64 sums[8] = {};
    Count i = 0;
    for (; i + 8 <= n; i += 8)
        for (int j = 0; j < 8; j += width) store(sums + j, load(sums + j) + load(u + i + j));
    for (int j = 0; i < n; ++i, ++j) sums[j] += u[i];
    return ((sums[0] + sums[4]) + (sums[2] + sums[6])) + ((sums[1] + sums[5]) + (sums[3] + sums[7]));
}

// u, padded with zeros, becomes its convolution.
void convolvePrime(const DctSpec* spec, f64* u)
{
    const void* const plan = dctPart<void>(spec, spec->plan);
    const f64* const kernel = dctPart<f64>(spec, spec->kernel);
    void* const work = u + dctRounded(i64(8) * spec->padded) / i64(sizeof(f64));
    for (Count i = spec->len - 1; i < spec->padded; ++i) u[i] = 0.0;
    if (spec->byMixed)
        mixedConvolve(plan, u, kernel, u, work);
    else
        fftConvolve(plan, u, kernel, u, work);
}

void forwardPrime(const DctSpec* spec, const f64* x, f64* y, f64* u)
{
    const PrimeTables at(spec);
    const Count len = spec->len;
    const f64 first = x[0], twice = 2.0 * first;
#pragma GCC unroll 8
    for (Count p = 0; p < len - 1; ++p) u[p] = x[at.sources[p]];
    const f64 sum = first + sumOfAll(u, len - 1);
    convolvePrime(spec, u);
    const Vector both = broadcast<width>(&twice);
    at.forBins([&](Count q) {
        const Vector a = load(u + q), b = load(u + q + at.half);
        const Complex<Vector> v = {both + (a + b), a - b}, t = at.turns(q);
        const Vector up = v.re * t.re + v.im * t.im, down = v.re * t.im - v.im * t.re;
        forLanes([&]<int i>() {
            const Count k = at.outputs[q + i];
            y[k] = lane<i>(up);
            y[len - k] = lane<i>(down);
        });
    });
    y[0] = sum * spec->first;
}

// The same convolution backwards: bins are where sources were, at -q.
void inversePrime(const DctSpec* spec, const f64* y, f64* x, f64* u)
{
    const PrimeTables at(spec);
    const Count len = spec->len;
    const f64 first = y[0] * spec->first;
    auto place = [&](Count q) { return q ? len - 1 - q : 0; };
    at.forBins([&](Count q) {
        f64 up[width], down[width];
        for (int i = 0; i < width; ++i) {
            const Count k = at.outputs[q + i];
            up[i] = y[k];
            down[i] = y[len - k];
        }
        const Vector a = load(up), b = load(down);
        const Complex<Vector> t = at.turns(q), v = {a * t.re + b * t.im, a * t.im - b * t.re};
        const Vector sum = v.re + v.im, difference = v.re - v.im;
        forLanes([&]<int i>() {
            u[place(q + i)] = lane<i>(sum);
            u[at.half - q - i] = lane<i>(difference);
        });
    });
    const f64 sum = first + sumOfAll(u, len - 1);
    convolvePrime(spec, u);
    x[at.sources[0]] = first + u[0];
#pragma GCC unroll 8
    for (Count q = 1; q < len - 1; ++q) x[at.sources[len - 1 - q]] = first + u[q];
    x[0] = sum;
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
