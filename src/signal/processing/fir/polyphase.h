// The multi-rate filter over a stretch of contiguous inputs: how the groups of outputs are described, and their sums.
//
// Each output is one running sum that starts from 0.0 and takes the oldest input first, over the taps that meet an
// input; so every vector width and every arrangement gives the same bits. Outside an output's window the matrix has
// zeros, which add nothing to a running sum but to -0.0, which only some rounding directions give; unless an input
// there is infinite or NaN: then the output becomes NaN and is computed again from its window alone.
#pragma once
#include "kernel/simd.h"
#include "signal/processing/fir/spec.h"
#include <cstddef>

namespace sig5d::SIG5D_VARIANT {
namespace {

// Outputs side by side. Row 0 of the group's matrix belongs to the input `first`, counted from the first input of the
// period; output l has its window in the rows from[l] to to[l] - 1.
struct Group {
    i32 from[4], to[4];
    i32 first, output; // the first output, counted from the first of the period
    i32 rows;
};
static_assert(sizeof(Group) <= groupBytes);

inline i64 floorDivide(i64 a, i64 b) { return (a - (a % b < 0 ? b : 0)) / b; }

inline void putTap(f64 h, f64* row, int) { *row = h; }
// A complex product as two products of doubles and a sum: straight * x.re + crossed * x.im.
inline void putTap(c64f h, f64* row, int width)
{
    row[0] = h.re;
    row[1] = h.im;
    row[2 * width] = -h.im;
    row[2 * width + 1] = h.re;
}

// The taps of an output. Apart from the divisions of buildGroup, which are calls in 32-bit code: GCC 12 would keep a
// vector over them, where the stack has no place for one.
template <class T>
[[gnu::noinline]] void putColumn(const T* tap, i64 up, i32 from, i32 to, f64* rows, int rowDoubles, int width)
{
    for (i32 e = from; e < to; ++e) putTap(tap[-e * up], rows + e * rowDoubles, width);
}

template <class T> void buildGroup(const MultiRateLayout& at, const T* taps, i64 phase, i64 output, Group* g, f64* rows)
{
    constexpr int parts = sizeof(T) / sizeof(f64);
    const int width = static_cast<int>(at.width), rowDoubles = static_cast<int>(at.rowBytes()) / 8;
    *g = {};
    g->output = static_cast<i32>(output);
    zero(rows, at.rows * rowDoubles);
    for (int l = 0; l < width; ++l) {
        const i64 q = (output + l) * at.down + phase;
        const i64 oldest = -floorDivide(at.tapsLen - 1 - q, at.up), newest = floorDivide(q, at.up);
        if (l == 0) g->first = static_cast<i32>(oldest);
        g->from[l] = static_cast<i32>(oldest - g->first);
        g->to[l] = g->rows = static_cast<i32>(newest + 1 - g->first);
        putColumn(taps + (q - g->first * at.up), at.up, g->from[l], g->to[l], rows + l * parts, rowDoubles, width);
    }
}

// Output l of a group, from the inputs of its window alone, as far as it is NaN.
template <class T, int doubles>
[[gnu::noinline, gnu::cold]] void recompute(const Group& g, const f64* rows, const T* x, T* y, int l)
{
    constexpr int parts = sizeof(T) / sizeof(f64);
    f64* sum = reinterpret_cast<f64*>(y + l);
    for (int p = 0; p < parts; ++p) {
        if (sum[p] == sum[p]) continue;
        f64 s = 0.0;
        for (int e = g.from[l]; e < g.to[l]; ++e) {
            const f64* tap = rows + e * parts * doubles + l * parts + p;
            if constexpr (parts == 1) {
                s += *tap * x[e];
            } else {
                s += tap[0] * x[e].re + tap[doubles] * x[e].im;
            }
        }
        sum[p] = s;
    }
}

// Sums of one group in `count` periods at once: `doubles` numbers in vectors of v.
template <class T, int doubles, int count> struct Sums {
    static constexpr int v = doubles < lanes<f64> ? doubles : lanes<f64>, vectors = doubles / v;
    static constexpr int rowDoubles = doubles * static_cast<int>(sizeof(T) / sizeof(f64));
    using V = Vec<f64, v>;
    V sum[count][vectors];

    static V product(const f64* row, int k, const f64& x) { return loadn<v>(row + k * v) * broadcast<v>(&x); }
    static V product(const f64* row, int k, const c64f& x)
    {
        return loadn<v>(row + k * v) * broadcast<v>(&x.re) + loadn<v>(row + doubles + k * v) * broadcast<v>(&x.im);
    }

    [[gnu::always_inline]] void clear()
    {
#pragma GCC unroll 16
        for (int r = 0; r < count; ++r)
#pragma GCC unroll 4
            for (int k = 0; k < vectors; ++k) sum[r][k] = splatn<v>(0.0);
    }
    [[gnu::always_inline]] void add(const f64* rows, const T* x, ptrdiff_t step, int n)
    {
        for (int e = 0; e < n; ++e, rows += rowDoubles) {
#pragma GCC unroll 16
            for (int r = 0; r < count; ++r)
#pragma GCC unroll 4
                for (int k = 0; k < vectors; ++k) sum[r][k] += product(rows, k, x[e + r * step]);
            asm volatile("" ::: "memory"); // inputs are loaded where they are used
        }
    }
    [[gnu::always_inline]] bool anyNan() const
    {
        auto nan = sum[0][0] != sum[0][0];
#pragma GCC unroll 16
        for (int r = 0; r < count; ++r)
#pragma GCC unroll 4
            for (int k = 0; k < vectors; ++k) nan |= sum[r][k] != sum[r][k];
        return any(nan);
    }
    [[gnu::always_inline]] void put(T* y, ptrdiff_t step) const
    {
#pragma GCC unroll 16
        for (int r = 0; r < count; ++r)
#pragma GCC unroll 4
            for (int k = 0; k < vectors; ++k) storen<v>(reinterpret_cast<f64*>(y + r * step) + k * v, sum[r][k]);
    }
};

template <class T, int doubles, int count>
void computeGroup(const Group& g, const f64* rows, const T* x, ptrdiff_t inputs, T* y, ptrdiff_t outputs)
{
    Sums<T, doubles, count> sums;
    sums.clear();
    sums.add(rows, x, inputs, g.rows);
    sums.put(y, outputs);
    if (__builtin_expect(sums.anyNan(), false)) {
        for (int r = 0; r < count; ++r) {
            for (int l = 0; l < doubles / static_cast<int>(sizeof(T) / sizeof(f64)); ++l) {
                recompute<T, doubles>(g, rows, x + r * inputs, y + r * outputs, l);
            }
        }
    }
}

// Periods that are computed together: as many as registers hold the sums of, so that a row is loaded once for all.
template <class T, int doubles>
constexpr int together = (sizeof(void*) == 8 ? 8 : 6) / (doubles > lanes<f64> ? doubles / lanes<f64> : 1);

template <class T, int doubles, int count> void computePeriods(const FirSpec* spec, const T* x, T* y, ptrdiff_t periods)
{
    const ptrdiff_t inputs = ptrdiff_t(spec->period) * spec->downFactor;
    const ptrdiff_t outputs = ptrdiff_t(spec->period) * spec->upFactor;
    const ptrdiff_t matrix = ptrdiff_t(spec->rows) * Sums<T, doubles, 1>::rowDoubles;
    for (; periods >= count; periods -= count, x += count * inputs, y += count * outputs) {
        const u8* table = part<const u8>(spec, polyphaseTable);
        const f64* rows = reinterpret_cast<const f64*>(table + ptrdiff_t(spec->groups) * groupBytes);
        for (int i = 0; i < spec->groups; ++i, table += groupBytes, rows += matrix) {
            const Group& g = *reinterpret_cast<const Group*>(table);
            computeGroup<T, doubles, count>(g, rows, x + g.first, inputs, y + g.output, outputs);
        }
    }
    if constexpr (count > 1) {
        if (periods > 0) computePeriods<T, doubles, count - 1>(spec, x, y, periods); // the rest at once
    }
}

// Whole periods: x stands at their first input and has the history before it.
template <class T> void computePeriods(const FirSpec* spec, const T* x, T* y, ptrdiff_t periods)
{
    constexpr int parts = sizeof(T) / sizeof(f64);
    if (spec->width > 1) {
        computePeriods<T, 4, together<T, 4>>(spec, x, y, periods);
    } else {
        computePeriods<T, parts, together<T, parts>>(spec, x, y, periods);
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
