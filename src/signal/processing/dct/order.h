// The even elements of a signal forwards and the odd ones backwards behind them, and back; and what turns the spectrum
// of that order, packed as re[0], re[N/2], re[1], im[1], ..., into cosine coefficients.
#pragma once
#include "signal/processing/dct/spec.h"
#include "signal/processing/fft/lanes.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

void evenOdd(const f64* x, f64* v, Count len)
{
    Count n = 0;
    for (; 2 * (n + width) <= len; n += width) {
        const Complex<Vector> a = getInterleaved<1>(x + 2 * n);
        store(v + n, a.re);
        putBackwards(v + len - width - n, a.im);
    }
    for (; 2 * n + 1 < len; ++n) {
        v[n] = x[2 * n];
        v[len - 1 - n] = x[2 * n + 1];
    }
    if (len % 2) v[n] = x[len - 1];
}
void naturalOrder(const f64* v, f64* x, Count len)
{
    Count n = 0;
    for (; 2 * (n + width) <= len; n += width)
        putInterleaved<1>(x + 2 * n, {load(v + n), getBackwards(v + len - width - n)});
    for (; 2 * n + 1 < len; ++n) {
        x[2 * n] = v[n];
        x[2 * n + 1] = v[len - 1 - n];
    }
    if (len % 2) x[len - 1] = v[n];
}

// y[k] - i y[N - k] = conj(t) V[k]; groups of four, the first one number by number.
void turnForward(const DctSpec* spec, const f64* spectrum, f64* y)
{
    const Count len = spec->len;
    const f64* turns = dctPart<f64>(spec, spec->turns);
    const f64 ends[] = {spectrum[0], spectrum[1]}, middle = turns[0];
    for (Count k = 4; k < len / 2; k += width) {
        const Complex<Vector> v = getInterleaved<1>(spectrum + 2 * k), t = getBlock(turns + k / 4 * blockSize + k % 4);
        store(y + k, v.re * t.re + v.im * t.im);
        putBackwards(y + len - k + 1 - width, v.re * t.im - v.im * t.re);
    }
    for (Count k = 1; k < 4; ++k) {
        const Complex<f64> v = {spectrum[2 * k], spectrum[2 * k + 1]}, t = {turns[k], turns[k + 4]};
        y[k] = v.re * t.re + v.im * t.im;
        y[len - k] = v.re * t.im - v.im * t.re;
    }
    y[0] = ends[0] * middle;
    y[len / 2] = ends[1] * middle; // c(k) cos(pi / 4) = c(0)
}
// V[k] = t (y[k] - i y[N - k]), N / 2 times since t^2 is 2 / N.
void turnBackward(const DctSpec* spec, const f64* y, f64* spectrum)
{
    const Count len = spec->len;
    const f64* turns = dctPart<f64>(spec, spec->turns);
    const f64 half = 0.5 * static_cast<f64>(spec->len);
    const Vector factor = broadcast<width>(&half);
    for (Count k = 4; k < len / 2; k += width) {
        const Complex<Vector> t = getBlock(turns + k / 4 * blockSize + k % 4);
        const Vector a = load(y + k) * factor, b = getBackwards(y + len - k + 1 - width) * factor;
        putInterleaved<1>(spectrum + 2 * k, {a * t.re + b * t.im, a * t.im - b * t.re});
    }
    for (Count k = 1; k < 4; ++k) {
        const f64 a = y[k] * half, b = y[len - k] * half;
        spectrum[2 * k] = a * turns[k] + b * turns[k + 4];
        spectrum[2 * k + 1] = a * turns[k + 4] - b * turns[k];
    }
    spectrum[0] = y[0] * (turns[0] * (2.0 * half));
    spectrum[1] = y[len / 2] * (turns[0] * (2.0 * half));
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
