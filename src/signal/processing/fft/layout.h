// What a plan holds. The transform of N points works on vectors of four doubles and, once there are complex values, on
// blocks of eight: four real parts, four imaginary parts. Lane j of vector n is x[4 n + j], so that the signal is
//
//     sum over j of z^j S_j(z^4),     S_j a polynomial in y = z^4 with one coefficient in each vector,
//
// and everything but the last step treats the four S_j alike. They are reduced modulo y^m - root for ever smaller m
// ("nodes", of m blocks each) until each block holds the values S_j(y) at one y; a last butterfly across the four lanes
// gives the values of the signal's polynomial at the four z whose fourth power is y.
//
// Node b of m blocks lies at block b m, its quarters are the nodes 4 b ... 4 b + 3 of m / 4 blocks, its halves the
// nodes 2 b and 2 b + 1 of m / 2. The root of node b is the same for every m of a plan's recursion: the tables are
// addressed by b alone. Entry b holds t, t^2, t^3 with t^4 = root; four entries are interleaved, so that they are
// vectors too.
#pragma once
#include "signal/processing/fft/plan.h"
#include <cstddef>

namespace sig5d {

// Only data: functions of its own would become symbols that variants share.
struct FftPlan {
    i32 kind, spectrum, order, small;
    i64 nodes, across, positions, bytes; // byte offsets of the tables, and of the end
    i64 reserved[2];
};
static_assert(sizeof(FftPlan) == 64);

namespace {

using Count = std::ptrdiff_t;

constexpr int blockSize = 8;    // doubles
constexpr int groupSize = 24;   // doubles of four entries of a table: t.re[4], t.im[4], then of t^2, t^3
constexpr int columnsAhead = 8; // looked at before their turn comes; so many entries stand behind the last

inline const FftPlan& planAt(const void* place) { return *static_cast<const FftPlan*>(place); }
inline bool isOrdered(const FftPlan& plan) { return plan.spectrum == static_cast<i32>(FftSpectrum::ordered); }
inline Count pointsOf(const FftPlan& plan) { return Count(1) << plan.order; }

// Powers that belong to the nodes; in plans of ordered spectra also those of the columns in natural order, and where in
// the work array each column lies.
inline const f64* nodeTable(const FftPlan& plan)
{
    return reinterpret_cast<const f64*>(reinterpret_cast<const u8*>(&plan) + plan.nodes);
}
inline const f64* columnTable(const FftPlan& plan)
{
    return reinterpret_cast<const f64*>(reinterpret_cast<const u8*>(&plan) + plan.across);
}
inline const i32* columnPlaces(const FftPlan& plan)
{
    return reinterpret_cast<const i32*>(reinterpret_cast<const u8*>(&plan) + plan.positions);
}

// Real signals: x is reduced modulo y^(L/4) - (-i) and the like, L = N / 4 vectors, conjugate halves left out: nodes
// b >= 1, node 1 of m blocks is modulo y^m + i. Block 0 holds the values at y = 1 (its first half) and y = -1.
// Complex signals: node 0 of m blocks is modulo y^m - 1, nodes 1, 2, 3 those of the roots -1, -i, i.
inline Count fftBlocks(FftKind kind, int order) { return Count(1) << (kind == FftKind::real ? order - 3 : order - 2); }

// Transforms below one group of blocks have code of their own.
inline bool fftIsSmall(FftKind kind, int order) { return order < (kind == FftKind::real ? 5 : 4); }

} // namespace
} // namespace sig5d
