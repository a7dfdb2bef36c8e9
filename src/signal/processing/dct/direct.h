// The sum as it stands, for short transforms, over the sums and differences of elements and their mirror images. The
// outputs k and N - k go together: cos(pi (2n + 1) (N - k) / 2N) = (-1)^n sin(pi (2n + 1) k / 2N).
#pragma once
#include "signal/processing/dct/spec.h"
#include "signal/processing/fft/lanes.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

using Pair = Complex<f64>;

constexpr int longestDirect = 86;

// The angles pi (start + step i) / 2N, i = 0, 1, ..., of which the table has half a circle.
struct Angles {
    const f64* table;
    int half, at, step;
    f64 sign = 1.0;
    Angles(const DctSpec* spec, int start, int by)
        : table(dctPart<f64>(spec, spec->turns)), half(2 * spec->len), at(start), step(by)
    {
    }
    Pair next()
    {
        const Pair t = {sign * table[2 * at], sign * table[2 * at + 1]};
        at += step;
        if (at >= half) {
            at -= half;
            sign = -sign;
        }
        return t;
    }
};

[[gnu::noinline]] void forwardDirect(const DctSpec* spec, const f64* x, f64* y)
{
    const int len = spec->len, some = (len + 1) / 2;
    // For even and for odd k: what meets the cosines and the sines.
    Pair terms[2][longestDirect / 2];
    for (int n = 0; n < some; ++n) {
        const bool middle = 2 * n + 1 == len;
        const f64 a = x[n], b = x[len - 1 - n], sum = middle ? a : a + b, difference = middle ? 0.0 : a - b;
        const f64 evenPartner = len % 2 ? difference : sum, oddPartner = len % 2 ? sum : difference;
        terms[0][n] = {sum, n % 2 ? -evenPartner : evenPartner};
        terms[1][n] = {difference, n % 2 ? -oddPartner : oddPartner};
    }
    for (int k = 0; 2 * k <= len; ++k) {
        Angles angles(spec, k, 2 * k);
        Pair sum = {0.0, 0.0};
        for (int n = 0; n < some; ++n) {
            const Pair t = angles.next(), a = terms[k & 1][n];
            sum.re += a.re * t.re;
            sum.im += a.im * t.im;
        }
        const f64 scale = k ? spec->other : spec->first;
        if (k) y[len - k] = sum.im * scale;
        y[k] = sum.re * scale;
    }
}

[[gnu::noinline]] void inverseDirect(const DctSpec* spec, const f64* y, f64* x)
{
    const int len = spec->len, some = len / 2 + 1;
    Pair terms[longestDirect / 2 + 1];
    for (int k = 0; k < some; ++k) {
        const f64 scale = k ? spec->other : spec->first;
        terms[k] = {y[k] * scale, k && 2 * k < len ? y[len - k] * scale : 0.0};
    }
    for (int n = 0; 2 * n < len; ++n) {
        Pair sums[2] = {};
        Angles angles(spec, 0, 2 * n + 1);
        for (int k = 0; k < some; ++k) {
            const Pair t = angles.next(), a = terms[k];
            sums[k & 1].re += a.re * t.re;
            sums[k & 1].im += a.im * t.im;
        }
        const f64 evenSines = sums[len & 1].im, oddSines = sums[~len & 1].im;
        const f64 even = n % 2 ? sums[0].re - evenSines : sums[0].re + evenSines;
        const f64 odd = n % 2 ? sums[1].re - oddSines : sums[1].re + oddSines;
        x[len - 1 - n] = even - odd;
        x[n] = even + odd;
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
