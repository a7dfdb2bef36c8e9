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

CorrelationWork directWork(i64 row, int elementBytes, bool copied)
{
    return {false, 0, 0, 0, 0, (copied ? row * elementBytes : 0) + 64};
}

// Without a transform of that order the sizes are no int in any case.
CorrelationWork transformWork(int order, bool rowHasSpectrum, int elementBytes, bool complex)
{
    const FftKind kind = complex ? FftKind::complex : FftKind::real;
    CorrelationWork work = {true, order, 0, 0, 0, tooMuch};
    if (order > (complex ? fftMaxOrder - 1 : fftMaxOrder)) return work;
    const i64 values = align64((i64(1) << order) * elementBytes);
    work.transformWork = fftPlanBytes(kind, FftSpectrum::unordered, order);
    work.row = work.transformWork + fftWorkBytes(kind, order);
    work.block = work.row + (rowHasSpectrum ? values : 0);
    work.bytes = work.block + values + 64;
    return work;
}

int orderFor(i64 points)
{
    int order = 0;
    while ((i64(1) << order) < points) ++order;
    return order;
}

// Costs in sixteenths of a cycle of the AVX2 body, measured; that of SSE2 takes twice as long either way.

double productsOf(const Lags& lags)
{
    const Spans n = spansOf(lags);
    const double rising = n.rising, falling = n.falling; // arithmetic series
    return rising * (static_cast<double>(lags.row + lags.first) + (rising - 1) / 2) +
           static_cast<double>(n.whole) * static_cast<double>(lags.row) + falling * (n.common + (falling - 1) / 2);
}

double directCost(const Lags& lags, bool complex)
{
    return productsOf(lags) * (complex ? 12 : 3) + 100.0 * static_cast<double>(lags.count) / 8;
}

// Blocks of 2^order points that hold all results. One block suffices, too, where it holds all samples.
double blocksOf(const Lags& lags, int order)
{
    const i64 points = i64(1) << order, advance = points - lags.row + 1;
    const bool one = lags.samples - lags.first <= points && lags.count + lags.row - 1 + least(lags.first, 0) <= points;
    return one ? 1 : static_cast<double>((lags.count + advance - 1) / advance);
}

double transformCost(const Lags& lags, int order, bool complex)
{
    const double points = static_cast<double>(i64(1) << order) * (complex ? 2 : 1);
    return points * (150 + (10.0 + 5 * order) * (0.5 + blocksOf(lags, order)));
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
    const bool automatic = algorithm != byTransform;
    CorrelationWork best = automatic ? direct : CorrelationWork{true, 0, 0, 0, 0, tooMuch};
    double least = automatic ? directCost(lags, complex) : 0;
    for (int order = orderFor(most(lags.row, 2));; ++order) {
        const CorrelationWork work = transformWork(order, true, elementBytes, complex);
        if (!work.fits()) break;
        const double cost = transformCost(lags, order, complex);
        if (!best.fits() || cost < least) {
            best = work;
            least = cost;
        }
        if (blocksOf(lags, order) == 1) break;
    }
    return best;
}

CorrelationWork autoCorrelationWork(i64 len, i64 lags, int algorithm, int elementBytes, bool complex)
{
    constexpr i64 fewLags = 600; // a fixed constant of the design
    if (algorithm == byDefinition || (algorithm == 0 && least(len, lags) < fewLags))
        return directWork(len, elementBytes, complex);
    return transformWork(orderFor(2 * len), false, elementBytes, complex);
}

} // namespace sig5d
