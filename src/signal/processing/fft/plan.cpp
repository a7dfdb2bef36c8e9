// Plans of Fourier transforms: sizes and tables. Compiled once; every variant reads the same plan.
#include "signal/processing/fft/layout.h"
#include "kernel/libm.h"

namespace sig5d {
namespace {

i64 reversed(i64 x, i64 range)
{
    i64 r = 0;
    for (i64 bit = 1; bit < range; bit *= 2, x >>= 1) r = 2 * r + (x & 1);
    return r;
}

// Entry b of a table: the powers of exp(-2 pi i k / n).
void setEntry(f64* table, i64 b, i64 k, i64 n)
{
    for (int power = 1; power <= 3; ++power) {
        const libm::CosSin t = libm::cosSinTurn(-power * k, n);
        f64* place = table + b / 4 * groupSize + (power - 1) * 8 + b % 4;
        place[0] = t.cos;
        place[4] = t.sin;
    }
}

// Of `count` nodes of equal size, node r of a complex signal has the root exp(-2 pi i reversed(r) / count). Nodes
// count + r of a real one are the parts of a first node with the root -i.
void setNodes(f64* table, FftKind kind, i64 entries)
{
    setEntry(table, 0, 0, 1);
    for (i64 count = 1; count < entries; count *= 2)
        for (i64 r = 0; r < count; ++r) {
            if (kind == FftKind::real)
                setEntry(table, count + r, 1 + 4 * reversed(r, count), 16 * count);
            else
                setEntry(table, count + r, reversed(count + r, 2 * count), 8 * count);
        }
}

// The block of column k (the values at y = exp(-2 pi i k / L)). A real signal has the columns 1..L/2; of those that no
// node holds, a node holds the conjugate. Column L/2 stands by itself behind the others.
i64 blockOfColumn(FftKind kind, i64 k, i64 blocks)
{
    if (kind == FftKind::complex) return reversed(k, blocks);
    if (k == blocks) return blocks;
    i64 size = blocks / 2; // of the node of odd columns
    for (; k % 2 == 0; k /= 2) size /= 2;
    const i64 frequency = k % 4 == 1 ? k / 4 : size - 1 - k / 4;
    return size + reversed(frequency, size);
}

FftPlan layout(FftKind kind, FftSpectrum spectrum, int order)
{
    const bool ordered = spectrum == FftSpectrum::ordered;
    FftPlan plan = {static_cast<i32>(kind), static_cast<i32>(spectrum), order, fftIsSmall(kind, order), 0, 0, 0, 0, {}};
    const i64 aligned = -64, end = sizeof(FftPlan);
    plan.nodes = plan.across = plan.positions = plan.bytes = end;
    if (plan.small) {
        plan.bytes = (end + 4 * (i64(1) << order) + 63) & aligned;
        return plan;
    }
    const i64 blocks = fftBlocks(kind, order);
    // The last nodes that are split have four blocks, in the smallest transforms two. The butterfly across the lanes of
    // unordered spectra needs the entries of all blocks.
    const i64 inner = blocks > 16 ? blocks / 4 : (blocks / 2 + 3) / 4 * 4, entries = ordered ? inner : blocks;
    plan.across = plan.nodes + entries / 4 * groupSize * i64(sizeof(f64));
    plan.positions = plan.across + (ordered ? blocks / 4 * groupSize * i64(sizeof(f64)) : 0);
    plan.bytes = (plan.positions + (ordered ? (blocks + columnsAhead) * i64(sizeof(i32)) : 0) + 63) & aligned;
    return plan;
}

} // namespace

i64 fftPlanBytes(FftKind kind, FftSpectrum spectrum, int order) { return layout(kind, spectrum, order).bytes; }

i64 fftWorkBytes(FftKind kind, int order)
{
    if (fftIsSmall(kind, order)) return 0;
    const i64 points = i64(1) << order;
    if (kind == FftKind::complex) return 16 * points;
    return 8 * (points + (points / 8 > blockSize ? points / 8 : blockSize));
}

void fftInit(void* place, FftKind kind, FftSpectrum spectrum, int order)
{
    FftPlan& plan = *static_cast<FftPlan*>(place);
    plan = layout(kind, spectrum, order);
    u8* const base = static_cast<u8*>(place);
    i32* const positions = reinterpret_cast<i32*>(base + plan.positions);
    if (plan.small) {
        for (i64 k = 1; 2 * k < pointsOf(plan); ++k)
            positions[k] = static_cast<i32>(blockSize * blockOfColumn(FftKind::real, k, pointsOf(plan) / 2));
        return;
    }
    const i64 blocks = fftBlocks(kind, order);
    setNodes(reinterpret_cast<f64*>(base + plan.nodes), kind,
             (plan.across - plan.nodes) / i64(sizeof(f64)) / groupSize * 4);
    if (spectrum == FftSpectrum::unordered) return;
    f64* const across = reinterpret_cast<f64*>(base + plan.across);
    const i64 first = kind == FftKind::real ? 1 : 0; // column 0 of a real signal is handled apart
    for (i64 i = 0; i < blocks; ++i) {
        setEntry(across, i, i + first, pointsOf(plan));
        positions[i] = static_cast<i32>(blockSize * blockOfColumn(kind, i + first, blocks));
    }
    for (i64 i = blocks; i < blocks + columnsAhead; ++i) positions[i] = 0;
}

} // namespace sig5d
