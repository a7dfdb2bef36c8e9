// Lengths with large prime factors, by convolutions of other lengths.
#pragma once
#include "signal/processing/dct/spec.h"
#include "signal/processing/fft/lanes.h"
#include "signal/processing/fft/transforms.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

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
    for (Count p = 0; p < len - 1; ++p) u[p] = x[at.sources[p]];
    const f64 sum = first + sumOfAll(u, len - 1);
    convolvePrime(spec, u);
    const Vector both = broadcast<width>(&twice);
    at.forBins([&](Count q) {
        const Vector a = load(u + q), b = load(u + q + at.half);
        const Complex<Vector> v = {both + (a + b), a - b}, t = at.turns(q);
        f64 up[width], down[width];
        store(up, v.re * t.re + v.im * t.im);
        store(down, v.re * t.im - v.im * t.re);
        for (int i = 0; i < width; ++i) {
            const Count k = at.outputs[q + i];
            y[k] = up[i];
            y[len - k] = down[i];
        }
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
        store(up, v.re + v.im);
        store(down, v.re - v.im);
        for (int i = 0; i < width; ++i) {
            u[place(q + i)] = up[i];
            u[at.half - q - i] = down[i];
        }
    });
    const f64 sum = first + sumOfAll(u, len - 1);
    convolvePrime(spec, u);
    for (Count q = 0; q < len - 1; ++q) x[at.sources[place(q)]] = first + u[q];
    x[0] = sum;
}

// Any length: n k = (n^2 + k^2 - (k - n)^2) / 2, so that the transform is a convolution with exp(i pi m^2 / N) between
// products with exp(-i pi n^2 / N). Of N inputs and N/2 + 1 outputs, or the other way round and backwards.
void forwardChirp(const DctSpec* spec, const f64* x, f64* y, c64f* u)
{
    const Count len = spec->len, points = spec->padded;
    const c64f *const chirp = dctPart<c64f>(spec, spec->turns), *const turns = chirp + len;
    for (Count n = 0; n < len; ++n) {
        const f64 v = x[dctSource(n, len)];
        u[n] = {v * chirp[n].re, v * chirp[n].im};
    }
    for (Count n = len; n < points; ++n) u[n] = {};
    fftConvolve(dctPart<void>(spec, spec->plan), u, dctPart<c64f>(spec, spec->kernel), u, u + points);
    y[0] = u[0].re * turns[0].re;
    for (Count k = 1; 2 * k <= len; ++k) {
        y[len - k] = -(u[k].re * turns[k].im + u[k].im * turns[k].re);
        y[k] = u[k].re * turns[k].re - u[k].im * turns[k].im;
    }
}
void inverseChirp(const DctSpec* spec, const f64* y, f64* x, c64f* u)
{
    const Count len = spec->len, points = spec->padded;
    const c64f *const chirp = dctPart<c64f>(spec, spec->turns), *const turns = chirp + len;
    for (Count n = 1; n < points - len / 2; ++n) u[n] = {};
    u[0] = {y[0] * turns[0].re, 0.0};
    for (Count k = 1; 2 * k <= len; ++k) {
        const f64 half = 2 * k == len ? 0.5 : 1.0, a = half * y[k], b = half * y[len - k];
        u[points - k] = {a * turns[k].re - b * turns[k].im, a * turns[k].im + b * turns[k].re};
    }
    fftConvolve(dctPart<void>(spec, spec->plan), u, dctPart<c64f>(spec, spec->kernel), u, u + points);
    for (Count n = 0; n < len; ++n) {
        const c64f v = u[n ? points - n : 0];
        x[dctSource(n, len)] = v.re * chirp[n].re - v.im * chirp[n].im;
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
