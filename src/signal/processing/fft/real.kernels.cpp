// Transforms of real signals. L = N / 4 vectors are a polynomial in y with real coefficients, reduced modulo
//
//     y^L - 1 = (y^(L/8) - 1) (y^(L/16) + i) ... seven nodes of L/16 blocks and their conjugates, which are left out;
//
// the eighth that remains is real and is split again until nothing is left but the values at y = 1 and y = -1. There is
// no pass that separates the halves of a complex transform, nor one that brings the result into order: the last
// butterfly takes its columns from where they are.
#include "signal/processing/fft/ends.h"
#include "signal/processing/fft/passes.h"
#include "signal/processing/fft/split.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// All columns of one step: column c of a block's width in x becomes block c of each node.
//
// Where the sixteen rows of x are so far apart that they compete for the same few places in the first cache, whole
// lines of them are copied through a tile, so that none is fetched twice.
constexpr Count farApart = 128;
constexpr Count tileRow = 8;

template <bool conjugateOdd> void splitColumns(const f64* x, Count size, f64* work, f64* rest)
{
    const Rows rows = Rows::apart(4 * size);
    for (Count c = 0; c < size; ++c)
        for (int h = 0; h < 4; h += width)
            split16<conjugateOdd, Vector>(x + 4 * c + h, rows, work + blockSize * c + h, rows, rest + 4 * c + h);
}
template <bool conjugateOdd> void joinColumns(f64* x, Count size, const f64* work, const f64* rest, const f64& scale)
{
    const Rows rows = Rows::apart(4 * size);
    if (size < farApart) {
        for (Count c = 0; c < size; ++c)
            for (int h = 0; h < 4; h += width)
                join16<conjugateOdd, Vector>(x + 4 * c + h, rows, work + blockSize * c + h, rows, rest + 4 * c + h,
                                             scale);
        return;
    }
    alignas(32) f64 tile[16 * tileRow];
    for (Count c = 0; c < size; c += 2) {
        for (int i = 0; i < tileRow; i += width) {
            const f64* const node = work + blockSize * (c + i / 4) + i % 4;
            join16<conjugateOdd, Vector>(tile + i, Rows::apart(tileRow), node, rows, rest + 4 * c + i, scale);
        }
        for (int r = 0; r < 16; ++r)
            for (int i = 0; i < tileRow; i += width) store(x + 4 * (c + r * size) + i, load(tile + r * tileRow + i));
    }
}

// Reduction of `vectors` vectors to blocks; what remains real on the way lies behind the blocks of the whole signal.
template <bool conjugateOdd> void toBlocks(const f64* x, Count vectors, f64* work, f64* rest, const f64* table)
{
    for (; vectors >= 16; vectors /= 8, x = rest) {
        const Count size = vectors / 16;
        if (conjugateOdd && size == 1)
            splitColumns<true>(x, 1, work, rest);
        else
            splitColumns<false>(x, size, work, rest);
        forwardNodes(work, table, 1, 7, size, conjugateOdd);
    }
    for (int h = 0; h < 4; h += width) splitLast<conjugateOdd, Vector>(x + h, 4, vectors, work + h);
}
// The signal times 2 * vectors * scale, given four times the blocks but twice block 0.
void fromBlocks(f64* x, Count vectors, f64* work, f64* rest, const f64* table, bool conjugateOdd, f64 scale)
{
    if (vectors < 16) {
        for (int h = 0; h < 4; h += width) {
            if (conjugateOdd)
                joinLast<true, Vector>(x + h, 4, vectors, work + h, scale);
            else
                joinLast<false, Vector>(x + h, 4, vectors, work + h, scale);
        }
        return;
    }
    const Count size = vectors / 16;
    fromBlocks(rest, vectors / 8, work, rest, table, conjugateOdd, 1.0);
    inverseNodes(work, table, 1, 7, size, conjugateOdd);
    if (conjugateOdd && size == 1)
        joinColumns<true>(x, size, work, rest, scale);
    else
        joinColumns<false>(x, size, work, rest, scale);
}

// Column k of four lanes becomes X[k], X[L + k], X[2 L - k] and X[L - k]. `spectrum` is packed; L = 2 * blocks.
void acrossOrdered(const f64* work, const FftPlan& plan, Count blocks, f64* spectrum)
{
    const f64* table = columnTable(plan);
    const i32* column = columnPlaces(plan);
    f64 *first = spectrum + 2, *second = spectrum + 4 * blocks + 2;
    f64 *third = spectrum + 8 * blocks, *fourth = spectrum + 4 * blocks;
    for (Count i = 0; i < blocks; i += 4, table += groupSize)
        for (int h = 0; h < 4; h += width, column += width, first += 2 * width, second += 2 * width) {
            const f64* rows[width];
            findColumns(work, column, rows);
            const Quad<Vector> a = evaluate<true>(getLanes(rows), powersOfGroup(table + h));
            putInterleaved<1>(first, a.v[0]);
            putInterleaved<1>(second, a.v[2]);
            putInterleaved<-1>(third -= 2 * width, a.v[1]);
            putInterleaved<-1>(fourth -= 2 * width, a.v[3]);
        }
    const f64 even = work[0] + work[2], odd = work[1] + work[3];
    spectrum[0] = even + odd;
    spectrum[1] = even - odd;
    spectrum[4 * blocks] = work[0] - work[2];
    spectrum[4 * blocks + 1] = work[3] - work[1];
}
void fromOrdered(const f64* spectrum, const FftPlan& plan, Count blocks, f64* work)
{
    const f64* table = columnTable(plan);
    const i32* column = columnPlaces(plan);
    const f64 *first = spectrum + 2, *second = spectrum + 4 * blocks + 2;
    const f64 *third = spectrum + 8 * blocks, *fourth = spectrum + 4 * blocks;
    for (Count i = 0; i < blocks; i += 4, table += groupSize)
        for (int h = 0; h < 4; h += width, column += width, first += 2 * width, second += 2 * width) {
            f64* rows[width];
            findColumns(work, column, rows);
            third -= 2 * width;
            fourth -= 2 * width;
            const Quad<Vector> a = {{getInterleaved<1>(first), getInterleaved<-1>(third), getInterleaved<1>(second),
                                     getInterleaved<-1>(fourth)}};
            putLanes(rows, interpolate<true>(a, powersOfGroup(table + h)));
        }
    const f64 even = 0.5 * (spectrum[0] + spectrum[1]), odd = 0.5 * (spectrum[0] - spectrum[1]);
    const f64 re = spectrum[4 * blocks], im = spectrum[4 * blocks + 1];
    work[0] = even + re;
    work[1] = odd - im;
    work[2] = even - re;
    work[3] = odd + im;
}

// Convolution: each node is finished, there and back, before the next. Blocks of the last steps share groups.
void convolveVectors(const f64* x, f64* y, Count vectors, f64* work, f64* rest, const f64* table, const f64* h,
                     f64 scale)
{
    if (vectors < 64) {
        toBlocks<false>(x, vectors, work, rest, table);
        const Ends product = multiplyEnds(endsOfBlock(work), endsOfSpectrum(h), 2.0);
        convolveBlocks(work, table, h, vectors / 2);
        putEndsOfBlock(work, product);
        fromBlocks(y, vectors, work, rest, table, false, scale);
        return;
    }
    const Count size = vectors / 16;
    splitColumns<false>(x, size, work, rest);
    convolveNodes(work, table, h, 1, 7, size);
    convolveVectors(rest, rest, vectors / 8, work, rest, table, h, 1.0);
    joinColumns<false>(y, size, work, rest, scale);
}

} // namespace

void fftForward(const void* place, const f64* x, f64* spectrum, void* buffer)
{
    const FftPlan& plan = planAt(place);
    if (plan.small) return forwardSmall(plan, x, spectrum);
    const Count points = pointsOf(plan), blocks = points / 8;
    f64 *const work = static_cast<f64*>(buffer), *const rest = work + points;
    if (isOrdered(plan)) {
        toBlocks<true>(x, points / 4, work, rest, nodeTable(plan));
        f64* const middle = work + blocks * blockSize; // the column at y = -1 by itself
        for (int j = 0; j < 4; ++j) {
            middle[j] = work[4 + j];
            middle[4 + j] = 0;
        }
        acrossOrdered(work, plan, blocks, spectrum);
    } else {
        toBlocks<false>(x, points / 4, work, rest, nodeTable(plan));
        acrossForward(work, nodeTable(plan), blocks, spectrum);
        putEndsOfSpectrum(spectrum, endsOfBlock(work));
    }
}

void fftInverse(const void* place, const f64* spectrum, f64* x, void* buffer)
{
    const FftPlan& plan = planAt(place);
    if (plan.small) return inverseSmall(plan, spectrum, x);
    const Count points = pointsOf(plan), blocks = points / 8;
    f64 *const work = static_cast<f64*>(buffer), *const rest = work + points;
    const bool ordered = isOrdered(plan);
    if (ordered) {
        fromOrdered(spectrum, plan, blocks, work);
        for (int j = 0; j < 4; ++j) work[4 + j] = 0.5 * work[blocks * blockSize + j];
    } else {
        const Ends ends = endsOfSpectrum(spectrum);
        acrossInverse(spectrum, nodeTable(plan), blocks, work);
        for (int j = 0; j < 4; ++j) {
            work[j] = 2.0 * ends.plus[j];
            work[4 + j] = 2.0 * ends.minus[j];
        }
    }
    fromBlocks(x, points / 4, work, rest, nodeTable(plan), ordered, 2.0 / static_cast<f64>(points));
}

void fftConvolve(const void* place, const f64* x, const f64* h, f64* y, void* buffer)
{
    const FftPlan& plan = planAt(place);
    if (plan.small) {
        f64 spectrum[smallPoints];
        forwardSmall(plan, x, spectrum);
        fftMultiply(place, spectrum, h, spectrum);
        inverseSmall(plan, spectrum, y);
        return;
    }
    const Count points = pointsOf(plan);
    f64* const work = static_cast<f64*>(buffer);
    convolveVectors(x, y, points / 4, work, work + points, nodeTable(plan), h, 2.0 / static_cast<f64>(points));
}

} // namespace sig5d::SIG5D_VARIANT
