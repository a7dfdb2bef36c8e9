// The passes of a transform from nodes down to single blocks and back up. Vectors only compute several elements at
// once: each element sees the same operations in every variant.
#include "signal/processing/fft/butterfly.h"
#include "signal/processing/fft/passes.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Nodes into quarters, or quarters into nodes, all of the same size.
template <bool forward, bool conjugateOdd>
[[gnu::noinline]] void quarters(f64* work, const f64* table, Count first, Count count, Count size)
{
    const Count apart = size / 4 * blockSize;
    f64* p = work + first * size * blockSize;
    for (Count node = first; node < first + count; ++node, p += 3 * apart) {
        const Powers<Vector> t = powersOfNode(table, node);
        f64* const end = p + apart;
        do {
            for (int h = 0; h < 4; h += width) {
                const Quad<Vector> a = getBlocks(p + h, apart);
                putBlocks(p + h, apart, forward ? evaluate<conjugateOdd>(a, t) : interpolate<conjugateOdd>(a, t));
            }
            p += blockSize;
        } while (p < end);
    }
}

// Nodes of two blocks into halves, or back.
template <bool forward, bool conjugateOdd>
[[gnu::noinline]] void pairs(f64* work, const f64* table, Count first, Count count)
{
    f64* p = work + 2 * first * blockSize;
    for (Count node = first; node < first + count; ++node, p += 2 * blockSize) {
        const Complex<Vector> t = powersOfNode(table, node).t2;
        for (int h = 0; h < 4; h += width) {
            f64* const q = p + blockSize + h;
            const Complex<Vector> a = getBlock(p + h), b = forward ? getBlock(q) * t : getBlock(q);
            if constexpr (forward) {
                putBlock(p + h, a + b);
                putBlock(q, conjugateOdd ? Complex<Vector>{a.re - b.re, b.im - a.im} : a - b);
            } else {
                putBlock(p + h, conjugateOdd ? Complex<Vector>{a.re + b.re, a.im - b.im} : a + b);
                putBlock(q, timesConj(conjugateOdd ? Complex<Vector>{a.re - b.re, a.im + b.im} : a - b, t));
            }
        }
    }
}

// Nodes of eight blocks into halves and these into quarters, or back.
template <bool forward, bool conjugateOdd>
[[gnu::noinline]] void eights(f64* work, const f64* table, Count first, Count count)
{
    f64* p = work + 8 * first * blockSize;
    for (Count node = first; node < first + count; ++node, p += 8 * blockSize) {
        const Complex<Vector> t = powersOfNode(table, node).t2;
        for (int h = 0; h < 4; h += width) {
            f64 *const lower = p + h, *const upper = p + 4 * blockSize + h;
            if constexpr (forward) {
                Quad<Vector> a = getBlocks(lower, blockSize), b = getBlocks(upper, blockSize);
                for (int j = 0; j < 4; ++j) {
                    const Complex<Vector> x = a.v[j], y = b.v[j] * t;
                    a.v[j] = x + y;
                    b.v[j] = x - y;
                }
                putBlocks(lower, blockSize, evaluate<conjugateOdd>(a, powersOfNode(table, 2 * node)));
                putBlocks(upper, blockSize, evaluate<conjugateOdd>(b, powersOfNode(table, 2 * node + 1)));
            } else {
                const Quad<Vector> a =
                    interpolate<conjugateOdd>(getBlocks(lower, blockSize), powersOfNode(table, 2 * node));
                const Quad<Vector> b =
                    interpolate<conjugateOdd>(getBlocks(upper, blockSize), powersOfNode(table, 2 * node + 1));
                for (int j = 0; j < 4; ++j) {
                    putBlock(lower + j * blockSize, a.v[j] + b.v[j]);
                    putBlock(upper + j * blockSize, timesConj(a.v[j] - b.v[j], t));
                }
            }
        }
    }
}

template <bool forward, bool conjugateOdd> void last(f64* work, const f64* table, Count first, Count count, Count size)
{
    if (size == 8) eights<forward, conjugateOdd>(work, table, first, count);
    if (size == 4) quarters<forward, conjugateOdd>(work, table, first, count, size);
    if (size == 2) pairs<forward, conjugateOdd>(work, table, first, count);
}

// Parts of this many blocks are finished before the next begins: 16 kB stay in the first cache.
constexpr Count blocksAtOnce = 256;
Count nodesAtOnce(Count size) { return size < blocksAtOnce ? blocksAtOnce / size : 1; }

template <bool forward>
[[gnu::noinline]] void passes(f64* work, const f64* table, Count first, Count count, Count size, bool conjugateOdd)
{
    for (const Count some = nodesAtOnce(size); count > some; first += some, count -= some)
        passes<forward>(work, table, first, some, size, conjugateOdd);
    if (size <= 8) {
        conjugateOdd ? last<forward, true>(work, table, first, count, size)
                     : last<forward, false>(work, table, first, count, size);
        return;
    }
    if (forward) quarters<true, false>(work, table, first, count, size);
    passes<forward>(work, table, 4 * first, 4 * count, size / 4, conjugateOdd);
    if (!forward) quarters<false, false>(work, table, first, count, size);
}

} // namespace

void forwardNodes(f64* work, const f64* table, Count first, Count count, Count size, bool conjugateOdd)
{
    passes<true>(work, table, first, count, size, conjugateOdd);
}

void inverseNodes(f64* work, const f64* table, Count first, Count count, Count size, bool conjugateOdd)
{
    passes<false>(work, table, first, count, size, conjugateOdd);
}

[[gnu::noinline]] void convolveNodes(f64* work, const f64* table, const f64* h, Count first, Count count, Count size)
{
    for (const Count some = nodesAtOnce(size); count > some; first += some, count -= some)
        convolveNodes(work, table, h, first, some, size);
    if (count * size <= blocksAtOnce) {
        const Count block = first * size;
        passes<true>(work, table, first, count, size, false);
        convolveBlocks(work + block * blockSize, table + block / 4 * groupSize, h + block * blockSize, count * size);
        passes<false>(work, table, first, count, size, false);
    } else {
        quarters<true, false>(work, table, first, count, size);
        convolveNodes(work, table, h, 4 * first, 4 * count, size / 4);
        quarters<false, false>(work, table, first, count, size);
    }
}

} // namespace sig5d::SIG5D_VARIANT
