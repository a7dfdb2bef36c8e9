// Normal numbers by the polar method: points of a square, those in the circle accepted, each gives two.
//
// A round draws no more pairs than are still wanted, so that the last one that it draws is the last one that is used:
// streams may be cut anywhere.
#pragma once
#include "kernel/complex.h"
#include "kernel/log.h"
#include "kernel/simd/compress.h"
#include "signal/processing/generators/random_draws.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class V> struct HalfFactor {
    HalfLog<V> log;
    V square;
};

// What a point is multiplied by, from the square of its modulus.
struct PolarFactor {
    template <class V> HalfFactor<V> first(V square) const { return {half_log(square), square}; }
    template <class V> V second(const HalfFactor<V>& h) const
    {
        return square_root(constant<V>(-2.0) * whole_log(h.log) / h.square);
    }
};

// The numbers that a point gives, the second coordinate's first.
struct NormalPair {
    f64 mean, stdDev;
    template <class V> V value(V u, V factor) const { return constant<V>(mean) + constant<V>(stdDev) * u * factor; }
    template <class V> Complex<V> operator()(V re, V im, V factor) const
    {
        return {value(im, factor), value(re, factor)};
    }
};

// Points within the circle and not in its centre, and the squares of their moduli.
struct Points {
    static constexpr size_t most = 64;
    alignas(64) f64 re[most], im[most], square[most];
    size_t count = 0;

    // Those of n points that are.
    template <int L = lanes<f64>> [[gnu::noinline]] void accept(const c64f* at, int n)
    {
        int i = 0;
        if constexpr (L > 1)
            for (; i + L <= n; i += L) {
                const auto z = load_lanes<L>(complex(at + i));
                const auto s = z.re * z.re + z.im * z.im;
                const auto inside = both(less(s, splatn<L>(1.0)), less(splatn<L>(0.0), s));
                add(z.re, z.im, s, static_cast<u32>(lanes_set(inside)));
            }
        for (; i < n; ++i) {
            const f64 s = at[i].re * at[i].re + at[i].im * at[i].im;
            put(at[i].re, at[i].im, s, s < 1.0 && s > 0.0);
        }
    }

private:
    void put(f64 x, f64 y, f64 s, bool accepted)
    {
        re[count] = x;
        im[count] = y;
        square[count] = s;
        count += accepted;
    }
    // The lanes of a set; what lies behind them is not used. There is room for whole vectors, since of the points
    // before these no more are accepted than there were.
    template <class V> void add(V x, V y, V s, u32 set)
    {
        if constexpr (lanesMoved < sizeof(f64) >> 1) {
            store(re + count, compressed(x, set));
            store(im + count, compressed(y, set));
            store(square + count, compressed(s, set));
            count += bit_count(set);
        } else {
#pragma GCC unroll 4
            for (int i = 0; i < lanes<f64>; ++i) put(x[i], y[i], s[i], set >> i & 1);
        }
    }
};

template <class T> struct Normal {
    NormalState<T>& state;
    NormalPair pair{static_cast<f64>(state.mean), static_cast<f64>(state.stdDev)};

    // The next numbers, n at most; how many, which may be none. (In a frame of its own: together with a caller's
    // numbers it would have more than a page.)
    [[gnu::noinline]] size_t operator()(f64* d, size_t n)
    {
        if (!state.nothingPending) {
            d[0] = pair.value(state.u1, state.factor);
            state.nothingPending = 1;
            return 1;
        }
        c64f at[Points::most];
        Points points;
        const size_t drawn = (n + 1) / 2 < Points::most ? (n + 1) / 2 : Points::most, pairs = n / 2;
        draw_numbers(state.core, &at[0].re, 2 * drawn, {0x1p-31, 0.0});
        points.accept(at, static_cast<int>(drawn));
        const size_t whole = points.count < pairs ? points.count : pairs;
        f64 factors[Points::most]; // in a loop of their own: with the points there would not be enough registers
        map_overlapped(points.count, factors, PolarFactor{}, points.square);
        map<Medium>(whole, complex(reinterpret_cast<c64f*>(d)), pair, points.re, points.im, factors);
        if (points.count == whole) return 2 * whole;
        // An odd number is wanted: the last point gives one now, and one to the next call.
        state.u1 = points.re[whole];
        state.factor = factors[whole];
        state.nothingPending = 0;
        d[2 * whole] = pair.value(points.im[whole], state.factor);
        return 2 * whole + 1;
    }
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
