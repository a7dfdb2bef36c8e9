// Any length, by chirps (Bluestein, 1970): n k = (n^2 + k^2 - (k - n)^2) / 2, so that a transform of P points is a
// convolution with exp(i pi m^2 / P) between products with exp(-i pi n^2 / P).
#pragma once
#include "signal/processing/dct/spec.h"
#include "signal/processing/fft/lanes.h"
#include "signal/processing/fft/transforms.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

void convolveChirp(const DctSpec* spec, c64f* u)
{
    fftConvolve(dctPart<void>(spec, spec->plan), u, dctPart<c64f>(spec, spec->kernel), u, u + spec->padded);
}

// Odd lengths: of N inputs N/2 + 1 values, or backwards and the other way round.
void forwardOddChirp(const DctSpec* spec, const f64* x, f64* y, c64f* u)
{
    const Count len = spec->len, points = spec->padded;
    const c64f *const chirp = dctPart<c64f>(spec, spec->turns), *const turns = chirp + len;
    for (Count n = 0; n < len; ++n) {
        const f64 v = x[dctSource(n, len)];
        u[n] = {v * chirp[n].re, v * chirp[n].im};
    }
    for (Count n = len; n < points; ++n) u[n] = {};
    convolveChirp(spec, u);
    y[0] = u[0].re * turns[0].re;
    for (Count k = 1; 2 * k <= len; ++k) {
        y[len - k] = -(u[k].re * turns[k].im + u[k].im * turns[k].re);
        y[k] = u[k].re * turns[k].re - u[k].im * turns[k].im;
    }
}
void inverseOddChirp(const DctSpec* spec, const f64* y, f64* x, c64f* u)
{
    const Count len = spec->len, points = spec->padded;
    const c64f *const chirp = dctPart<c64f>(spec, spec->turns), *const turns = chirp + len;
    for (Count n = 1; n < points - len / 2; ++n) u[n] = {};
    u[0] = {y[0] * turns[0].re, 0.0};
    for (Count k = 1; 2 * k <= len; ++k) {
        const f64 a = y[k], b = y[len - k];
        u[points - k] = {a * turns[k].re - b * turns[k].im, a * turns[k].im + b * turns[k].re};
    }
    convolveChirp(spec, u);
    for (Count n = 0; n < len; ++n) {
        const c64f v = u[n ? points - n : 0];
        x[dctSource(n, len)] = v.re * chirp[n].re - v.im * chirp[n].im;
    }
}

using Number = Complex<f64>;
inline Number numberAt(const c64f* p) { return {p->re, p->im}; }
inline void putNumber(c64f* p, Number a) { *p = {a.re, a.im}; }

constexpr f64 rootHalf = 0x1.6a09e667f3bcdp-1;

// Even lengths: pairs of neighbours in v are M = N / 2 complex values z. The parts E and O of their spectrum Z that
// come of even and odd n, turned each by its own angle, give the four outputs k, M - k, M + k and N - k.
void transformPairs(const DctSpec* spec, c64f* u)
{
    const Count half = spec->len / 2;
    const c64f* const chirp = dctPart<c64f>(spec, spec->turns);
    for (Count n = 0; n < half; ++n) putNumber(u + n, numberAt(u + n) * numberAt(chirp + n));
    for (Count n = half; n < spec->padded; ++n) u[n] = {};
    convolveChirp(spec, u);
    for (Count k = 0; k < half; ++k) putNumber(u + k, numberAt(u + k) * numberAt(chirp + k));
}
void forwardEvenChirp(const DctSpec* spec, const f64* x, f64* y, c64f* u)
{
    const Count len = spec->len, half = len / 2;
    const c64f* turns = dctPart<c64f>(spec, spec->turns) + half;
    for (Count m = 0; m < half; ++m) u[m] = {x[dctSource(2 * m, len)], x[dctSource(2 * m + 1, len)]};
    transformPairs(spec, u);
    y[0] = (u[0].re + u[0].im) * spec->first;
    y[half] = (u[0].re - u[0].im) * spec->first;
    for (Count k = 1; 2 * k <= half; ++k) {
        const Number a = numberAt(u + k), b = numberAt(u + half - k);
        const Number even = {a.re + b.re, a.im - b.im}, odd = {a.im + b.im, b.re - a.re};
        const Number p = even * numberAt(turns + 2 * k), q = odd * numberAt(turns + 2 * k + 1);
        const Number sum = p + q, difference = p - q;
        y[half - k] = (difference.re - difference.im) * rootHalf;
        y[half + k] = (difference.re + difference.im) * rootHalf;
        y[k] = sum.re;
        y[len - k] = -sum.im;
    }
}
void inverseEvenChirp(const DctSpec* spec, const f64* y, f64* x, c64f* u)
{
    const Count len = spec->len, half = len / 2;
    const c64f* turns = dctPart<c64f>(spec, spec->turns) + half;
    // The inverse is the conjugate of the transform of conjugates.
    u[0] = {(y[0] + y[half]) * spec->first, (y[half] - y[0]) * spec->first};
    for (Count k = 1; 2 * k <= half; ++k) {
        const f64 a = y[half - k] * rootHalf, b = y[half + k] * rootHalf;
        const Number sum = {y[k], -y[len - k]}, difference = {a + b, b - a};
        const Number even = timesConj(sum + difference, numberAt(turns + 2 * k));
        const Number odd = timesConj(sum - difference, numberAt(turns + 2 * k + 1));
        u[half - k] = {even.re + odd.im, even.im - odd.re};
        u[k] = {even.re - odd.im, -(even.im + odd.re)};
    }
    transformPairs(spec, u);
    for (Count m = 0; m < half; ++m) {
        x[dctSource(2 * m, len)] = u[m].re;
        x[dctSource(2 * m + 1, len)] = -u[m].im;
    }
}

void forwardChirp(const DctSpec* spec, const f64* x, f64* y, c64f* u)
{
    spec->len % 2 ? forwardOddChirp(spec, x, y, u) : forwardEvenChirp(spec, x, y, u);
}
void inverseChirp(const DctSpec* spec, const f64* y, f64* x, c64f* u)
{
    spec->len % 2 ? inverseOddChirp(spec, y, x, u) : inverseEvenChirp(spec, y, x, u);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
