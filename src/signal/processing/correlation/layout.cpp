#include "signal/processing/correlation/layout.h"

namespace sig5d {
namespace {

i64 least(i64 a, i64 b) { return a < b ? a : b; }
i64 most(i64 a, i64 b) { return a > b ? a : b; }

void exchange(i64& a, i64& b)
{
    const i64 c = a;
    a = b;
    b = c;
}

constexpr i64 tooMuch = maxInt + 1;
constexpr int shortestToCut = 6; // order of the shortest blocks of a row in parts

CorrelationWork directWork(i64 row, int elementBytes, bool copied)
{
    return {false, 0, 1, 0, 0, 0, 0, (copied ? row * elementBytes : 0) + 64};
}

// Without a transform of that order the sizes are no int in any case. No spectra: of an autocorrelation, in one block.
CorrelationWork transformWork(int order, i64 parts, bool spectra, int elementBytes, bool complex)
{
    const FftKind kind = complex ? FftKind::complex : FftKind::real;
    CorrelationWork work = {true, order, parts, 0, 0, 0, 0, tooMuch};
    if (order > (complex ? fftMaxOrder - 1 : fftMaxOrder)) return work;
    const i64 values = align64((i64(1) << order) * elementBytes);
    work.transformWork = fftPlanBytes(kind, FftSpectrum::unordered, order);
    work.row = work.transformWork + fftWorkBytes(kind, order);
    work.samples = work.row + (spectra ? parts * values : 0);
    work.block = work.samples + (parts > 1 ? parts * values : 0);
    work.bytes = work.block + values + 64;
    return work;
}

int orderFor(i64 points)
{
    int order = 0;
    while ((i64(1) << order) < points) ++order;
    return order;
}

// Costs in sixths of a cycle as measured of the AVX2 body, whole numbers so that no mode of arithmetic sways the
// choice. Of complex numbers a product takes four times as long as of real ones and a transform twice: its costs are
// halved.

u64 directCost(const Lags& lags, bool complex)
{
    const Spans n = spansOf(lags);
    auto series = [](i64 terms, i64 first) { // first, first + 1, ...
        return static_cast<u64>(terms) * static_cast<u64>(2 * first + terms - 1) / 2;
    };
    const u64 products = series(n.rising, lags.row + lags.first) + static_cast<u64>(n.whole * lags.row) +
                         series(n.falling, n.falling ? n.common : 0);
    return (complex ? 2 : 1) * products + 4 * static_cast<u64>(lags.count);
}

// Blocks of 2^order points that hold all results. One block suffices, too, where it holds all samples.
u64 blocksOf(const Lags& lags, int order)
{
    const i64 points = i64(1) << order, advance = points - lags.row + 1;
    const bool one = lags.samples - lags.first <= points && lags.count + lags.row - 1 + least(lags.first, 0) <= points;
    return one ? 1 : static_cast<u64>((lags.count + advance - 1) / advance);
}

// Beyond 2^12 points a block leaves the first cache.
u64 costOfPoint(int order) { return static_cast<u64>(16 + order * 6 / 5 + (order > 12 ? 15 : 0)); }
constexpr u64 tablesCost = 32, productCost = 6, fixedCost = 4200;

// Tables, the transform of the row, and there and back for each block.
u64 transformCost(const Lags& lags, int order)
{
    const u64 each = costOfPoint(order);
    return fixedCost + ((tablesCost + each / 2 + each * blocksOf(lags, order)) << order);
}

// The row in parts, half a block each: as many transforms as parts, blocks of samples and blocks of results, and a
// product of each part with each block.
u64 costInParts(const Lags& lags, int order, i64 parts)
{
    const i64 part = i64(1) << order >> 1, results = (lags.count + part - 1) / part, samples = lags.samples / part + 2;
    const u64 transforms = static_cast<u64>(parts + results + least(samples, results + parts));
    const u64 products = static_cast<u64>(parts) * static_cast<u64>(least(results, samples));
    return fixedCost + ((tablesCost + costOfPoint(order) * transforms / 2 + productCost * products) << order);
}

} // namespace

Spans spansOf(const Lags& lags)
{
    const i64 end = lags.first + lags.count, inside = lags.samples - lags.row + 1;
    const i64 whole = most(lags.first, 0), falling = most(whole, least(end, inside)); // where they start
    return {static_cast<int>(least(whole, end) - lags.first), static_cast<int>(most(least(end, falling) - whole, 0)),
            static_cast<int>(most(end - falling, 0)), static_cast<int>(lags.samples - end + 1)};
}

Lags correlationLags(i64 len1, i64 len2, i64 lowLag, i64 count)
{
    const i64 first = most(lowLag, 1 - len1), end = least(lowLag + count, len2);
    if (first >= end) return {0, 0, 0, 0, 0, 0, count, false};
    Lags lags;
    lags.zeros = first - lowLag;
    lags.count = end - first;
    lags.rowFrom = most(0, 1 - end);
    lags.samplesFrom = most(0, first);
    lags.row = least(len1, len2 - first) - lags.rowFrom;
    lags.samples = least(len2, len1 + end - 1) - lags.samplesFrom;
    lags.first = first + lags.rowFrom - lags.samplesFrom;
    lags.exchanged = lags.row > lags.samples;
    if (lags.exchanged) {
        exchange(lags.row, lags.samples);
        exchange(lags.rowFrom, lags.samplesFrom);
        lags.first = 1 - lags.first - lags.count;
    }
    return lags;
}

Lags convolutionLags(i64 len1, i64 len2)
{
    const i64 row = least(len1, len2), samples = most(len1, len2);
    return {row, samples, 1 - row, row + samples - 1, 0, 0, 0, len1 >= len2};
}

CorrelationWork correlationWork(const Lags& lags, int algorithm, int elementBytes, bool complex, bool copied)
{
    CorrelationWork direct = directWork(lags.row, elementBytes, copied);
    if (lags.count > maxInt) direct.bytes = tooMuch; // results that no index reaches
    if (!direct.fits() || algorithm == byDefinition || lags.count == 0) return direct;
    CorrelationWork best = direct;
    u64 cost = directCost(lags, complex);
    if (algorithm == byTransform) {
        best.bytes = tooMuch;
        cost = ~u64(0);
    }
    auto consider = [&](int order, i64 parts, u64 its) {
        const CorrelationWork work = transformWork(order, parts, true, elementBytes, complex);
        if (work.fits() && its < cost) {
            best = work;
            cost = its;
        }
    };
    const int uncut = orderFor(most(lags.row, 2));
    for (int order = uncut; order <= fftMaxOrder; ++order) {
        consider(order, 1, transformCost(lags, order));
        if (blocksOf(lags, order) == 1) break;
    }
    for (int order = shortestToCut; order <= uncut; ++order) {
        const i64 part = i64(1) << order >> 1, parts = (lags.row + part - 1) / part;
        if (parts > 1) consider(order, parts, costInParts(lags, order, parts));
    }
    return best;
}

CorrelationWork autoCorrelationWork(i64 len, i64 lags, int algorithm, int elementBytes, bool complex)
{
    constexpr i64 fewLags = 600; // a fixed constant of the design
    if (algorithm == byDefinition || (algorithm == 0 && least(len, lags) < fewLags))
        return directWork(len, elementBytes, complex);
    return transformWork(orderFor(2 * len), 1, false, elementBytes, complex);
}

} // namespace sig5d
