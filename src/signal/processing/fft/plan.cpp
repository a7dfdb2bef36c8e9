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

// The bits of x < 2^width in reversed order. Numbers that have four neighbours for their reversed ones are one and as
// many quarters of 2^(width + 2) more as quarterOf tells.
u32 reversedBits(u32 x, int width)
{
    x = (x >> 1 & 0x55555555) | (x & 0x55555555) << 1;
    x = (x >> 2 & 0x33333333) | (x & 0x33333333) << 2;
    x = (x >> 4 & 0x0f0f0f0f) | (x & 0x0f0f0f0f) << 4;
    return static_cast<u32>(u64(__builtin_bswap32(x)) >> (32 - width));
}
constexpr u32 quarterOf[4] = {0, 2, 1, 3}; // its own inverse

// The 2^(width + 2) nodes of equal size, four at a time. Node r has t = exp(-2 pi i k / n), n = 2^(width + 2) * 4 step
// and k = 1 + step q, q the reversed r. Of the three powers only t is computed: its square is the t of a node of twice
// the size, turned by a quarter if r is odd, and its cube, since n - 3k is 1 + step q' again, the conjugate of a t
// turned.
class NodesOfOneSize
{
public:
    NodesOfOneSize(f64* table, int width, u32 step)
        : all_(table), own_(table + groupSize * (Count(1) << width)), width_(width), step_(step)
    {
    }
    void set() const
    {
        const u32 groups = 1u << width_;
        for (u32 g = 0; g < groups; ++g) setFirstPowers(g);
        for (u32 g = 0; g < groups; ++g) setSquares(g);
        for (u32 g = 0; g < groups; ++g) setCubes(g);
    }

private:
    f64* group(u32 g) const { return own_ + Count(groupSize) * g; }

    void setFirstPowers(u32 g) const
    {
        constexpr f64 quarter = 1.0 / 16; // of the numbers q, as part of a turn
        const f64 turn =
            static_cast<f64>(1 + step_ * reversedBits(g, width_)) / static_cast<f64>(16u * step_ << width_);
        f64* const place = group(g);
        for (int j = 0; j < 4; j += 2) {
            const f64 one = turn + quarter * quarterOf[j];
            const libm::CosSinPair t = libm::cosSinTurns(NumberPair{one, one + 2 * quarter});
            for (int lane = 0; lane < 2; ++lane) {
                place[j + lane] = t.cos[lane];
                place[j + lane + 4] = -t.sin[lane];
            }
        }
    }
    void setSquares(u32 g) const
    {
        const u32 number = (1u << width_) + g;
        const f64* const larger = all_ + Count(groupSize) * (number / 2) + number % 2 * 2;
        f64* const place = group(g);
        for (u32 j = 0; j < 4; ++j) {
            const f64* const t = larger + j / 2;
            place[8 + j] = j & 1 ? t[4] : t[0];
            place[12 + j] = j & 1 ? -t[0] : t[4];
        }
    }
    void setCubes(u32 g) const
    {
        // In units of a quarter of the numbers, and a rest.
        const u32 other = (16u << width_) - 3 * reversedBits(g, width_) - 4 / step_;
        const u32 quarters = other >> width_, rest = other & ((1u << width_) - 1);
        const f64* const from = group(reversedBits(rest, width_));
        f64* const place = group(g);
        for (u32 j = 0; j < 4; ++j) {
            const u32 q = quarters - 3 * quarterOf[j], turns = q >> 2 & 3;
            const f64 c = from[quarterOf[q & 3]], s = from[quarterOf[q & 3] + 4];
            const f64 re = turns & 1 ? s : c, im = turns & 1 ? c : -s;
            place[16 + j] = turns & 2 ? -re : re;
            place[20 + j] = turns & 2 ? -im : im;
        }
    }

    f64 *all_, *own_;
    int width_;
    u32 step_;
};

// Of `count` nodes of equal size, node r of a complex signal has the root exp(-2 pi i reversed(r) / count). Nodes
// count + r of a real one are the parts of a first node with the root -i.
void setNodes(f64* table, FftKind kind, i64 entries)
{
    const u32 step = kind == FftKind::real ? 4 : 2;
    setEntry(table, 0, 0, 1);
    for (i64 count = 1; count < 4 && count < entries; count *= 2)
        for (i64 r = 0; r < count; ++r) setEntry(table, count + r, 1 + step * reversed(r, count), 4 * step * count);
    for (int width = 0; (4 << width) < entries; ++width) NodesOfOneSize(table, width, step).set();
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
