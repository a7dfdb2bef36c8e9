// Normal numbers by the polar method: points of a square, those in the circle accepted, each gives two.
//
// A round draws no more pairs than are still wanted, so that the last one that it draws is the last one that is used:
// streams may be cut anywhere.
#pragma once
#include "kernel/complex.h"
#include "kernel/log.h"
#include "signal/processing/generators/random_draws.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct Times {
    f64 factor;
    template <class V> V operator()(V x) const { return x * constant<V>(factor); }
};
struct SquaredModulus {
    template <class V> V operator()(Complex<V> z) const { return z.re * z.re + z.im * z.im; }
};

// What a point is multiplied by, from the square of its modulus.
template <class V> inline V polar_factor(const HalfLog<V>& half, V square)
{
    return square_root(constant<V>(-2.0) * whole_log(half) / square);
}

// The numbers that a point gives, the second coordinate's first.
template <class V> struct HalfNormal {
    HalfLog<V> log;
    V square;
    Complex<V> point;
};
struct NormalPair {
    f64 mean, stdDev;
    template <class V> V value(V u, V factor) const { return constant<V>(mean) + constant<V>(stdDev) * u * factor; }
    template <class V> HalfNormal<V> first(Complex<V> point, V square) const
    {
        return {half_log(square), square, point};
    }
    template <class V> Complex<V> second(const HalfNormal<V>& h) const
    {
        const V factor = polar_factor(h.log, h.square);
        return {value(h.point.im, factor), value(h.point.re, factor)};
    }
};

// Points of the square with the squares of their moduli, the accepted ones first.
struct Points {
    static constexpr size_t most = drawsAtOnce / 2;
    c64f at[most];
    f64 square[most];
};

// Moves those within the circle, without its centre, to the front; how many there are.
[[gnu::noinline]] size_t accept(Points& points, size_t n)
{
    size_t k = 0;
    for (size_t i = 0; i < n; ++i) {
        const f64 square = points.square[i];
        points.at[k] = points.at[i];
        points.square[k] = square;
        k += static_cast<size_t>(square < 1.0) & static_cast<size_t>(square > 0.0);
    }
    return k;
}

template <class T> struct Normal {
    NormalState<T>& state;
    NormalPair pair{static_cast<f64>(state.mean), static_cast<f64>(state.stdDev)};

    // The next numbers, n at most; how many, which may be none.
    size_t operator()(f64* d, size_t n)
    {
        if (!state.nothingPending) {
            d[0] = pair.value(state.u1, state.factor);
            state.nothingPending = 1;
            return 1;
        }
        u32 draws[drawsAtOnce];
        Points points;
        const size_t drawn = (n + 1) / 2 < Points::most ? (n + 1) / 2 : Points::most, pairs = n / 2;
        draw(state.core, draws, 2 * drawn);
        map<Heavy<2>>(2 * drawn, &points.at[0].re, Times{0x1p-31}, signed_numbers(draws));
        map<Heavy<2>>(drawn, points.square, SquaredModulus{}, complex(points.at));
        const size_t accepted = accept(points, drawn), whole = accepted < pairs ? accepted : pairs;
        map_overlapped(whole, complex(reinterpret_cast<c64f*>(d)), pair, complex(points.at), points.square);
        if (accepted == whole) return 2 * whole;
        // An odd number is wanted: the last point gives one now, and one to the next call.
        const f64 square = points.square[whole];
        state.u1 = points.at[whole].re;
        state.factor = polar_factor(half_log(square), square);
        state.nothingPending = 0;
        d[2 * whole] = pair.value(points.at[whole].im, state.factor);
        return 2 * whole + 1;
    }
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
