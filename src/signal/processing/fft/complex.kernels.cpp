// Transforms of complex signals: node 0 of N / 4 blocks, modulo y^L - 1, is quartered without any factors on the way
// from the user's array; its quarters are nodes like all others.
#include "signal/processing/fft/butterfly.h"
#include "signal/processing/fft/passes.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

void quarterSignal(const f64* x, f64* work, Count blocks)
{
    const Count apart = blocks / 4 * blockSize;
    for (Count c = 0; c < apart; c += blockSize)
        for (int h = 0; h < 4; h += width) {
            Quad<Vector> a;
            for (int j = 0; j < 4; ++j) a.v[j] = getInterleaved<1>(x + j * apart + c + 2 * h);
            putBlocks(work + c + h, apart, sums<false>(a));
        }
}
void uniteSignal(const f64* work, f64* x, Count blocks)
{
    const Count apart = blocks / 4 * blockSize;
    const f64 scale = 0.25 / static_cast<f64>(blocks);
    const Vector factor = broadcast<width>(&scale);
    for (Count c = 0; c < apart; c += blockSize)
        for (int h = 0; h < 4; h += width) {
            const Quad<Vector> a = parts<false>(getBlocks(work + c + h, apart));
            for (int j = 0; j < 4; ++j)
                putInterleaved<1>(x + j * apart + c + 2 * h, {a.v[j].re * factor, a.v[j].im * factor});
        }
}

// Column k becomes X[k + L j], L = blocks.
void acrossOrdered(const f64* work, const FftPlan& plan, Count blocks, f64* spectrum)
{
    const f64* table = columnTable(plan);
    const i32* column = columnPlaces(plan);
    for (Count i = 0; i < blocks; i += 4, table += groupSize)
        for (int h = 0; h < 4; h += width, column += width, spectrum += 2 * width) {
            const f64* rows[width];
            findColumns(work, column, rows);
            const Quad<Vector> a = evaluate<false>(getLanes(rows), powersOfGroup(table + h));
            putInterleaved<1>(spectrum, a.v[0]);
            putInterleaved<1>(spectrum + 2 * blocks, a.v[2]);
            putInterleaved<1>(spectrum + 4 * blocks, a.v[1]);
            putInterleaved<1>(spectrum + 6 * blocks, a.v[3]);
        }
}
void fromOrdered(const f64* spectrum, const FftPlan& plan, Count blocks, f64* work)
{
    const f64* table = columnTable(plan);
    const i32* column = columnPlaces(plan);
    for (Count i = 0; i < blocks; i += 4, table += groupSize)
        for (int h = 0; h < 4; h += width, column += width, spectrum += 2 * width) {
            f64* rows[width];
            findColumns(work, column, rows);
            const Quad<Vector> a = {{getInterleaved<1>(spectrum), getInterleaved<1>(spectrum + 4 * blocks),
                                     getInterleaved<1>(spectrum + 2 * blocks),
                                     getInterleaved<1>(spectrum + 6 * blocks)}};
            putLanes(rows, interpolate<false>(a, powersOfGroup(table + h)));
        }
}

} // namespace

void fftForward(const void* place, const c64f* x, c64f* spectrum, void* buffer)
{
    const FftPlan& plan = planAt(place);
    if (plan.small) return forwardSmall(plan, x, spectrum);
    const Count blocks = pointsOf(plan) / 4;
    f64* const work = static_cast<f64*>(buffer);
    quarterSignal(&x->re, work, blocks);
    forwardNodes(work, nodeTable(plan), 0, 4, blocks / 4, false);
    if (isOrdered(plan))
        acrossOrdered(work, plan, blocks, &spectrum->re);
    else
        acrossForward(work, nodeTable(plan), blocks, &spectrum->re);
}

void fftInverse(const void* place, const c64f* spectrum, c64f* x, void* buffer)
{
    const FftPlan& plan = planAt(place);
    if (plan.small) return inverseSmall(plan, spectrum, x);
    const Count blocks = pointsOf(plan) / 4;
    f64* const work = static_cast<f64*>(buffer);
    if (isOrdered(plan))
        fromOrdered(&spectrum->re, plan, blocks, work);
    else
        acrossInverse(&spectrum->re, nodeTable(plan), blocks, work);
    inverseNodes(work, nodeTable(plan), 0, 4, blocks / 4, false);
    uniteSignal(work, &x->re, blocks);
}

void fftConvolve(const void* place, const c64f* x, const c64f* h, c64f* y, void* buffer)
{
    const FftPlan& plan = planAt(place);
    if (plan.small) {
        c64f spectrum[smallPoints / 2];
        forwardSmall(plan, x, spectrum);
        fftMultiply(place, spectrum, h, spectrum);
        inverseSmall(plan, spectrum, y);
        return;
    }
    const Count blocks = pointsOf(plan) / 4;
    f64* const work = static_cast<f64*>(buffer);
    quarterSignal(&x->re, work, blocks);
    convolveNodes(work, nodeTable(plan), &h->re, 0, 4, blocks / 4);
    uniteSignal(work, &y->re, blocks);
}

} // namespace sig5d::SIG5D_VARIANT
