// Transforms of real signals by mixed radices: columns two at a time, rows four side by side (mixed_layout.h).
//
// Groups of vectors that would reach beyond the last pair of columns begin earlier and compute some pairs again; lanes
// beyond the last row repeat that one. Neither computes with anything but the signal.
#include "signal/processing/fft/butterfly.h"
#include "signal/processing/fft/mixed_tile.h"
#include "signal/processing/fft/transforms.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

using Value = Complex<Vector>;

// The work area.
struct Parts {
    f64 *lines, *tile, *second, *spare;
    Parts(const MixedPlan& plan, void* work)
        : lines(static_cast<f64*>(work)), tile(lines + lineDoubles(plan) * plan.columns),
          second(tile + rowSize * longerSide(plan)), spare(second + rowSize * longerSide(plan))
    {
    }
};

// Lanes of which only the first n have elements of their own, in memory order or, with step -1, against it: lane 0 is p
// in any case.
template <int step = 1> SIG5D_INLINE Vector getSome(const f64* p, Count n)
{
    if (n >= width) return step > 0 ? load(p) : getBackwards(p + 1 - width);
    f64 lane[width];
    for (Count i = 0; i < width; ++i) lane[i] = p[step * (i < n ? i : n - 1)];
    return load(lane);
}
template <int step = 1> SIG5D_INLINE void putSome(f64* p, Count n, Vector v)
{
    if (n >= width) return step > 0 ? store(p, v) : putBackwards(p + 1 - width, v);
    f64 lane[width];
    store(lane, v);
    for (Count i = 0; i < n; ++i) p[step * i] = lane[i];
}

// Pairs of columns that are transformed together: from c on, with the columns `apart` further.
struct Group {
    Count c, n, apart, line;
    SIG5D_INLINE Group(const MixedPlan& plan, Count at)
        : c(at + width <= plan.pairs || at == 0 ? at : plan.pairs - width),
          n(plan.pairs < width ? plan.pairs : width), apart(plan.columns / 2), line(lineDoubles(plan))
    {
    }
    template <class P> SIG5D_INLINE void lines(P* first, P** rows) const
    {
        for (Count i = 0; i < width; ++i) rows[i] = first + (c + (i < n ? i : n - 1)) * line;
    }
};
SIG5D_INLINE Value turnsOf(const MixedPlan& plan, Count k, Count c, Count n)
{
    const f64* const p = tableAt<f64>(plan, plan.turns) + 2 * k * plan.columns + c;
    return {getSome(p, n), getSome(p + plan.columns, n)};
}

// Columns of x into lines of values: transformed, taken apart, multiplied.
[[gnu::noinline]] void fromColumns(const MixedPlan& plan, const f64* x, const Parts& work)
{
    const i32* const places = tableAt<i32>(plan, plan.ofColumns.places);
    const Count a = plan.rows, b = plan.columns, kept = plan.kept;
    for (Count at = 0; at < plan.pairs; at += width) {
        const Group g(plan, at);
        const f64* p = x + g.c;
        for (Count j = 0; j < a; ++j, p += b) putRow(work.tile + j * rowSize, {getSome(p, g.n), getSome(p + g.apart, g.n)});
        transformTile(work.tile, work.spare, plan, plan.ofColumns);
        f64 *first[width], *second[width];
        g.lines(work.lines, first);
        g.lines(work.lines + g.apart * g.line, second);
        for (Count k0 = 0; k0 < kept; k0 += 4) {
            Quad<Vector> of, other;
            for (Count i = 0; i < 4; ++i) {
                const Count k = k0 + i < kept ? k0 + i : kept - 1;
                const Value z = getRow(work.tile + places[k] * rowSize);
                const Value y = getRow(work.tile + places[k ? a - k : 0] * rowSize);
                of.v[i] = Value{z.re + y.re, z.im - y.im} * turnsOf(plan, k, g.c, g.n);
                other.v[i] = Value{z.im + y.im, y.re - z.re} * turnsOf(plan, k, g.c + g.apart, g.n);
            }
            putLanes(second, other); // a column that is in both halves counts as one of the first
            putLanes(first, of);
            for (Count i = 0; i < width; ++i) {
                first[i] += rowDoubles;
                second[i] += rowDoubles;
            }
        }
    }
}
// The way back, from half of what the definition says to all of it.
[[gnu::noinline]] void toColumns(const MixedPlan& plan, f64* x, const Parts& work)
{
    const i32* const places = tableAt<i32>(plan, plan.ofColumns.places);
    const Count a = plan.rows, b = plan.columns, kept = plan.kept;
    for (Count at = 0; at < plan.pairs; at += width) {
        const Group g(plan, at);
        const f64 *first[width], *second[width];
        g.lines<const f64>(work.lines, first);
        g.lines<const f64>(work.lines + g.apart * g.line, second);
        for (Count k0 = 0; k0 < kept; k0 += 4) {
            const Quad<Vector> of = getLanes(first), other = getLanes(second);
            for (Count k = k0; k < k0 + 4 && k < kept; ++k) {
                const Value y = timesConj(of.v[k - k0], turnsOf(plan, k, g.c, g.n));
                const Value z = timesConj(other.v[k - k0], turnsOf(plan, k, g.c + g.apart, g.n));
                if (k == 0 || 2 * k == a) {
                    putRow(work.tile + k * rowSize, {z.re, y.re});
                } else {
                    putRow(work.tile + k * rowSize, exchanged(Value{y.re - z.im, y.im + z.re}));
                    putRow(work.tile + (a - k) * rowSize, exchanged(Value{y.re + z.im, z.re - y.im}));
                }
            }
            for (Count i = 0; i < width; ++i) {
                first[i] += rowDoubles;
                second[i] += rowDoubles;
            }
        }
        transformTile(work.tile, work.spare, plan, plan.ofColumns);
        f64* p = x + g.c;
        for (Count j = 0; j < a; ++j, p += b) {
            const Value v = exchanged(getRow(work.tile + places[j] * rowSize));
            putSome(p + g.apart, g.n, v.im);
            putSome(p, g.n, v.re);
        }
    }
}

// Rows k, k + 1, ... of the matrix as vectors: where they begin in a line, a spectrum or a table.
template <class F> SIG5D_INLINE void forRows(const MixedPlan& plan, F f)
{
    for (Count k = 0; k < plan.kept; k += width) f(k, k / 4 * rowDoubles + k % 4, plan.kept - k);
}
SIG5D_INLINE void rowsFromLines(const MixedPlan& plan, const Parts& work, Count place)
{
    const f64* p = work.lines + place;
    for (Count c = 0; c < plan.columns; ++c, p += lineDoubles(plan)) putRow(work.tile + c * rowSize, getBlock(p));
    transformTile(work.tile, work.spare, plan, plan.ofRows);
}
SIG5D_INLINE void linesFromRows(const MixedPlan& plan, const Parts& work, f64* tile, Count place)
{
    const i32* const places = tableAt<i32>(plan, plan.ofRows.places);
    transformTile(tile, work.spare, plan, plan.ofRows);
    f64* p = work.lines + place;
    for (Count c = 0; c < plan.columns; ++c, p += lineDoubles(plan))
        putBlock(p, exchanged(getRow(tile + places[c] * rowSize)));
}

} // namespace

void mixedForward(const void* place, const f64* x, f64* spectrum, void* buffer)
{
    const MixedPlan& plan = mixedPlanAt(place);
    const Parts work(plan, buffer);
    const i32* const places = tableAt<i32>(plan, plan.ofRows.places);
    fromColumns(plan, x, work);
    forRows(plan, [&](Count, Count first, Count) {
        rowsFromLines(plan, work, first);
        for (Count l = 0; l < plan.columns; ++l)
            putBlock(spectrum + l * lineDoubles(plan) + first, getRow(work.tile + places[l] * rowSize));
    });
}

void mixedTurned(const void* place, const f64* x, const f64* turns, f64* y, void* buffer)
{
    const MixedPlan& plan = mixedPlanAt(place);
    const Parts work(plan, buffer);
    const i32* const places = tableAt<i32>(plan, plan.ofRows.places);
    fromColumns(plan, x, work);
    forRows(plan, [&](Count k, Count first, Count n) {
        rowsFromLines(plan, work, first);
        f64 *up = y + k, *down = y + plan.points - k;
        for (Count l = 0; l < plan.columns; ++l, up += plan.rows, down -= plan.rows) {
            const Value t = getBlock(turns + l * lineDoubles(plan) + first);
            const Value v = getRow(work.tile + places[l] * rowSize);
            const Vector back = v.re * t.im - v.im * t.re;
            putSome(up, n, v.re * t.re + v.im * t.im);
            if (k || l) {
                putSome<-1>(down, n, back);
            } else { // X[0] has no partner
                f64 lane[width];
                store(lane, back);
                for (Count i = 1; i < width && i < n; ++i) down[-i] = lane[i];
            }
        }
    });
}

void mixedFromTurned(const void* place, const f64* y, const f64* turns, f64* x, void* buffer)
{
    const MixedPlan& plan = mixedPlanAt(place);
    const Parts work(plan, buffer);
    forRows(plan, [&](Count k, Count first, Count n) {
        const f64 *up = y + k, *down = y + plan.points - k;
        for (Count l = 0; l < plan.columns; ++l, up += plan.rows, down -= plan.rows) {
            const Value t = getBlock(turns + l * lineDoubles(plan) + first);
            Value v;
            if (k || l) {
                v = {getSome(up, n), getSome<-1>(down, n)};
            } else { // X[0] counts twice and has no partner
                f64 of[width], other[width];
                for (Count i = 0; i < width; ++i) {
                    const Count j = i < n ? i : n - 1;
                    of[i] = j ? up[j] : 2.0 * up[0];
                    other[i] = j ? down[-j] : 0.0;
                }
                v = {load(of), load(other)};
            }
            putRow(work.tile + l * rowSize, {v.re * t.im - v.im * t.re, v.re * t.re + v.im * t.im});
        }
        linesFromRows(plan, work, work.tile, first);
    });
    toColumns(plan, x, work);
}

void mixedConvolve(const void* place, const f64* x, const f64* h, f64* y, void* buffer)
{
    const MixedPlan& plan = mixedPlanAt(place);
    const Parts work(plan, buffer);
    const i32* const places = tableAt<i32>(plan, plan.ofRows.places);
    fromColumns(plan, x, work);
    forRows(plan, [&](Count, Count first, Count) {
        rowsFromLines(plan, work, first);
        for (Count l = 0; l < plan.columns; ++l) {
            const Value v = getRow(work.tile + places[l] * rowSize);
            putRow(work.second + l * rowSize, exchanged(v * getBlock(h + l * lineDoubles(plan) + first)));
        }
        linesFromRows(plan, work, work.second, first);
    });
    toColumns(plan, y, work);
}

} // namespace sig5d::SIG5D_VARIANT
