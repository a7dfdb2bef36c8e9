// Transforms of real signals by mixed radices: columns two at a time, rows four side by side (mixed_layout.h).
//
// Groups of vectors that would reach beyond the last pair of columns begin earlier and compute some pairs again; lanes
// beyond the last row that is kept compute with zeros.
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

// Lines of `width` columns.
template <class P> struct Lines {
    P* row[width];
    Lines(P* first, Count apart)
    {
        for (int i = 0; i < width; ++i) row[i] = first + i * apart;
    }
    SIG5D_INLINE void advance()
    {
        for (int i = 0; i < width; ++i) row[i] += rowDoubles;
    }
};

// Columns c, c + 1, ... that are transformed together with those half of the matrix further: the same for each group of
// pairs.
template <class F> SIG5D_INLINE void forPairs(const MixedPlan& plan, F f)
{
    for (Count c = 0; c < plan.pairs; c += width) f(c + width <= plan.pairs ? c : plan.pairs - width);
}
// Of row i: real parts of all columns, imaginary parts of all columns.
SIG5D_INLINE Value turnAt(const f64* turns, Count columns, int i)
{
    return {load(turns + 2 * i * columns), load(turns + (2 * i + 1) * columns)};
}

// Columns of x into lines of values: transformed, taken apart, multiplied.
[[gnu::noinline]] void fromColumns(const MixedPlan& plan, const f64* x, const Parts& work)
{
    // (Of the plan only copies are used in loops that store, since it could be what they store to.)
    const Count columns = plan.columns, apart = columns / 2, line = lineDoubles(plan), kept = plan.kept;
    forPairs(plan, [&](Count c) {
        transformRows(x + c, columns, apart, work.tile, work.spare, plan, plan.ofColumns);
        Lines<f64> first(work.lines + c * line, line), second(work.lines + (c + apart) * line, line);
        const i32* at = tableAt<i32>(plan, plan.taken);
        const f64* turns = tableAt<f64>(plan, plan.turns) + c;
        for (Count k = 0; k < kept; k += 4, at += 8, turns += 8 * columns) {
            Quad<Vector> v;
            // A column that is in both halves counts as one of the first.
#pragma GCC unroll 4
            for (int i = 0; i < 4; ++i) {
                const Value z = getRow(work.tile + at[2 * i] * rowSize),
                            y = getRow(work.tile + at[2 * i + 1] * rowSize);
                v.v[i] = Value{z.im + y.im, y.re - z.re} * turnAt(turns + apart, columns, i);
            }
            putLanes(second.row, v);
#pragma GCC unroll 4
            for (int i = 0; i < 4; ++i) {
                const Value z = getRow(work.tile + at[2 * i] * rowSize),
                            y = getRow(work.tile + at[2 * i + 1] * rowSize);
                v.v[i] = Value{z.re + y.re, z.im - y.im} * turnAt(turns, columns, i);
            }
            putLanes(first.row, v);
            first.advance();
            second.advance();
        }
    });
}
// The way back, from half of what the definition says to all of it.
[[gnu::noinline]] void toColumns(const MixedPlan& plan, f64* x, const Parts& work)
{
    const Count columns = plan.columns, apart = columns / 2, line = lineDoubles(plan), kept = plan.kept;
    const i32* const places = tableAt<i32>(plan, plan.ofColumns.places);
    forPairs(plan, [&](Count c) {
        Lines<const f64> first(work.lines + c * line, line), second(work.lines + (c + apart) * line, line);
        const i32* at = tableAt<i32>(plan, plan.given);
        const f64* turns = tableAt<f64>(plan, plan.turns) + c;
        for (Count k = 0; k < kept; k += 4, at += 8, turns += 8 * columns) {
            const Quad<Vector> of = getLanes(first.row), other = getLanes(second.row);
#pragma GCC unroll 4
            for (int i = 0; i < 4; ++i) {
                const Value y = timesConj(of.v[i], turnAt(turns, columns, i));
                const Value z = timesConj(other.v[i], turnAt(turns + apart, columns, i));
                putRow(work.tile + at[2 * i + 1] * rowSize, exchanged(Value{y.re + z.im, z.re - y.im}));
                putRow(work.tile + at[2 * i] * rowSize, exchanged(Value{y.re - z.im, y.im + z.re}));
            }
            first.advance();
            second.advance();
        }
        transformTile(work.tile, work.spare, plan, plan.ofColumns);
        f64* p = x + c;
        for (Count j = 0, rows = plan.rows; j < rows; ++j, p += columns) {
            const Value v = exchanged(getRow(work.tile + places[j] * rowSize));
            store(p + apart, v.im);
            store(p, v.re);
        }
    });
}

// Rows k, k + 1, ... of the matrix as vectors: where they begin in a line, a spectrum or a table.
template <class F> SIG5D_INLINE void forRows(const MixedPlan& plan, F f)
{
    for (Count k = 0; k < plan.kept; k += width) f(k, k / 4 * rowDoubles + k % 4);
}
SIG5D_INLINE void rowsFromLines(const MixedPlan& plan, const Parts& work, Count place)
{
    transformRows(work.lines + place, lineDoubles(plan), 4, work.tile, work.spare, plan, plan.ofRows);
}
SIG5D_INLINE void linesFromRows(const MixedPlan& plan, const Parts& work, f64* tile, Count place)
{
    const i32* const places = tableAt<i32>(plan, plan.ofRows.places);
    transformTile(tile, work.spare, plan, plan.ofRows);
    f64* p = work.lines + place;
    for (Count c = 0, columns = plan.columns, line = lineDoubles(plan); c < columns; ++c, p += line)
        putBlock(p, exchanged(getRow(tile + places[c] * rowSize)));
}

// The first n lanes, in memory order or, with step -1, against it: lane 0 is p in any case.
template <int step, class V = Vector> SIG5D_INLINE void putSome(f64* p, Count n, V v)
{
    if (n >= width) {
        step > 0 ? store(p, v) : putBackwards(p + 1 - width, v);
    } else if constexpr (width == 4) {
        const auto low = lower_half(v), high = upper_half(v);
        if (n == 1) {
            *p = low[0];
            return;
        }
        storen<2>(step > 0 ? p : p - 1, step > 0 ? low : swapped(low));
        if (n == 3) p[2 * step] = high[0];
    } else if constexpr (width == 2) {
        *p = v[0];
    }
}
template <int step, class V = Vector> SIG5D_INLINE V getSome(const f64* p, Count n)
{
    if (n >= width) return step > 0 ? load(p) : getBackwards(p + 1 - width);
    if constexpr (width == 4) {
        if (n > 1) {
            V v = step > 0 ? getHalves<V>(p, p) : swapped(getHalves<V>(p - 1, p - 1));
            if (n == 3) v[2] = v[3] = p[2 * step];
            return v;
        }
    }
    return broadcast<width>(p);
}

} // namespace

void mixedForward(const void* place, const f64* x, f64* spectrum, void* buffer)
{
    const MixedPlan& plan = mixedPlanAt(place);
    const Parts work(plan, buffer);
    const i32* const places = tableAt<i32>(plan, plan.ofRows.places);
    fromColumns(plan, x, work);
    forRows(plan, [&](Count, Count first) {
        rowsFromLines(plan, work, first);
        f64* p = spectrum + first;
        for (Count l = 0, columns = plan.columns, line = lineDoubles(plan); l < columns; ++l, p += line)
            putBlock(p, getRow(work.tile + places[l] * rowSize));
    });
}

void mixedTurned(const void* place, const f64* x, const f64* turns, f64* y, void* buffer)
{
    const MixedPlan& plan = mixedPlanAt(place);
    const Parts work(plan, buffer);
    fromColumns(plan, x, work);
    const Count a = plan.rows, columns = plan.columns, line = lineDoubles(plan), kept = plan.kept, points = plan.points;
    const i32* const places = tableAt<i32>(plan, plan.ofRows.places);
    forRows(plan, [&](Count k, Count first) {
        const Count n = kept - k;
        rowsFromLines(plan, work, first);
        const f64* t = turns + first;
        f64 *up = y + k, *down = y + points - k;
        Count l = 0;
        if (k == 0) { // X[0] has no partner
            const Value v = getRow(work.tile), r = getBlock(t);
            putSome<1>(up, n, v.re * r.re + v.im * r.im);
            f64 lane[width];
            store(lane, v.re * r.im - v.im * r.re);
            for (Count i = 1; i < width && i < n; ++i) down[-i] = lane[i];
            l = 1, t += line, up += a, down -= a;
        }
        for (; l < columns; ++l, t += line, up += a, down -= a) {
            const Value v = getRow(work.tile + places[l] * rowSize), r = getBlock(t);
            putSome<1>(up, n, v.re * r.re + v.im * r.im);
            putSome<-1>(down, n, v.re * r.im - v.im * r.re);
        }
    });
}

void mixedFromTurned(const void* place, const f64* y, const f64* turns, f64* x, void* buffer)
{
    const MixedPlan& plan = mixedPlanAt(place);
    const Parts work(plan, buffer);
    const Count a = plan.rows, columns = plan.columns, line = lineDoubles(plan), kept = plan.kept, points = plan.points;
    forRows(plan, [&](Count k, Count first) {
        // What lies beyond the rows that are kept meets factors of zero.
        const Count n = k + width <= a ? width : kept - k;
        const f64 *t = turns + first, *up = y + k, *down = y + points - k;
        f64 *row = work.tile, *const end = row + columns * rowSize;
        auto put = [&](Vector even, Vector odd) {
            const Value r = getBlock(t);
            putRow(row, {even * r.im - odd * r.re, even * r.re + odd * r.im});
            row += rowSize, t += line, up += a, down -= a;
        };
        if (k == 0) { // X[0] counts twice and has no partner
            f64 of[width], other[width];
            for (Count i = 0; i < width; ++i) {
                const Count j = i < n ? i : n - 1;
                of[i] = j ? up[j] : 2.0 * up[0];
                other[i] = j ? down[-j] : 0.0;
            }
            put(load(of), load(other));
        }
        while (row < end) put(getSome<1>(up, n), getSome<-1>(down, n));
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
    forRows(plan, [&](Count, Count first) {
        rowsFromLines(plan, work, first);
        const f64* p = h + first;
        for (Count l = 0, columns = plan.columns, line = lineDoubles(plan); l < columns; ++l, p += line)
            putRow(work.second + l * rowSize, exchanged(getRow(work.tile + places[l] * rowSize) * getBlock(p)));
        linesFromRows(plan, work, work.second, first);
    });
    toColumns(plan, y, work);
}

} // namespace sig5d::SIG5D_VARIANT
