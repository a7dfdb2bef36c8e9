// Transforms of at most 16 real or 8 complex points, in straight scalar code: the first steps of the large ones do it
// all when a vector has one element.
#include "signal/processing/fft/passes.h"
#include "signal/processing/fft/split.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Block 0 holds X[0] and X[N/2], the others X[k] where the plan says.
struct SmallBlocks {
    f64 values[8 * blockSize];
};

void split(const f64* x, Count apart, Count points, SmallBlocks& blocks)
{
    f64 rest[5]; // rows of half a block
    if (points == 16) {
        split16<true, f64>(x, Rows::apart(apart), blocks.values, Rows::apart(blockSize / 2), rest);
        x = rest;
        apart = blockSize / 2;
        points = 2;
    }
    splitLast<true, f64>(x, apart, points, blocks.values);
}

void complexSmall(const FftPlan& plan, const f64* re, const f64* im, f64* toRe, f64* toIm, f64 scale)
{
    const Count n = pointsOf(plan);
    if (n == 1) {
        const f64 x = re[0], y = im[0];
        toRe[0] = x;
        toIm[0] = y;
        return;
    }
    SmallBlocks a, b;
    split(re, 2, n, a);
    split(im, 2, n, b);
    auto put = [&](Count k, f64 x, f64 y) {
        toRe[2 * k] = x * scale;
        toIm[2 * k] = y * scale;
    };
    put(0, a.values[0], b.values[0]);
    put(n / 2, a.values[4], b.values[4]);
    for (Count k = 1; k < n / 2; ++k) {
        const f64 *const x = a.values + columnPlaces(plan)[k], *const y = b.values + columnPlaces(plan)[k];
        put(k, x[0] - y[4], x[4] + y[0]);
        put(n - k, x[0] + y[4], y[0] - x[4]);
    }
}

} // namespace

void forwardSmall(const FftPlan& plan, const f64* x, f64* spectrum)
{
    const Count n = pointsOf(plan);
    if (n == 1) {
        spectrum[0] = x[0];
        return;
    }
    SmallBlocks blocks;
    split(x, 1, n, blocks);
    spectrum[0] = blocks.values[0];
    spectrum[1] = blocks.values[4];
    for (Count k = 1; k < n / 2; ++k) {
        const f64* const value = blocks.values + columnPlaces(plan)[k];
        spectrum[2 * k] = value[0];
        spectrum[2 * k + 1] = value[4];
    }
}

void inverseSmall(const FftPlan& plan, const f64* spectrum, f64* x)
{
    const Count n = pointsOf(plan);
    if (n == 1) {
        x[0] = spectrum[0];
        return;
    }
    SmallBlocks blocks;
    blocks.values[0] = 0.5 * spectrum[0];
    blocks.values[4] = 0.5 * spectrum[1];
    for (Count k = 1; k < n / 2; ++k) {
        f64* const value = blocks.values + columnPlaces(plan)[k];
        value[0] = spectrum[2 * k];
        value[4] = spectrum[2 * k + 1];
    }
    const f64 scale = 2.0 / static_cast<f64>(n);
    if (n < 16) return joinLast<true, f64>(x, 1, n, blocks.values, scale);
    f64 rest[5];
    joinLast<true, f64>(rest, blockSize / 2, 2, blocks.values, 1.0);
    join16<true, f64>(x, Rows::apart(1), blocks.values, Rows::apart(blockSize / 2), rest, scale);
}

void forwardSmall(const FftPlan& plan, const c64f* x, c64f* spectrum)
{
    complexSmall(plan, &x->re, &x->im, &spectrum->re, &spectrum->im, 1.0);
}
// The inverse is the forward transform with real and imaginary parts exchanged.
void inverseSmall(const FftPlan& plan, const c64f* spectrum, c64f* x)
{
    complexSmall(plan, &spectrum->im, &spectrum->re, &x->im, &x->re, 1.0 / static_cast<f64>(pointsOf(plan)));
}

} // namespace sig5d::SIG5D_VARIANT
