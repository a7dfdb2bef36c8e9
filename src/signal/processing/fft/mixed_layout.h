// What a plan of mixed radices holds. A signal of N = a b points is a matrix of a rows and b columns. Its columns are
// transformed, multiplied by powers of exp(-2 pi i / N), and its rows are transformed:
//
//     X[k + a l] = sum over c of w_b^(c l) ( w_N^(c k) sum over j of x[c + b j] w_a^(j k) ),    w_n = exp(-2 pi i / n)
//
// Vectors hold neighbours: columns first, rows then, so that all transforms of a or b points work on whole vectors
// (a tile) and none of their steps moves a lane. Two real columns are the parts of a complex one; of the a rows that
// come of real columns, a/2 + 1 suffice, since the others are conjugate to them.
#pragma once
#include "signal/processing/fft/layout.h"
#include "signal/processing/fft/mixed.h"

namespace sig5d {

constexpr int maxPasses = 16, largestRadix = 97;

// The transform of a tile: the radices of its passes, in their order. Offsets are from the plan, in bytes.
struct MixedTile {
    i32 length, passes;
    u8 radix[maxPasses];
    i64 turns;  // of each pass: for p = 1, 2, ... the factors exp(-2 pi i p k / size), k = 1 ... radix - 1
    i64 circle; // of each radix above 8: exp(-2 pi i j / radix)
    i64 places; // the row of each value when all passes are through
};

// Only data: functions of its own would become symbols that variants share.
struct MixedPlan {
    i64 points, rows, columns;
    i64 kept, stride; // rows that are kept of a transformed column, and that number with some to fill groups of four
    i64 pairs;        // of columns, c and c + b / 2, at least four. If b is odd the middle column is in two of them
    MixedTile ofColumns, ofRows;
    i64 turns; // w_N^(c k) / 2: real parts of all columns, imaginary parts of all columns, for each k; zeros in the end
    i64 taken; // the rows of values k and -k in the tile of transformed columns
    i64 given; // where they are put for the way back; row a is one that nobody reads
    i64 bytes;
};

namespace {

constexpr int rowDoubles = 8; // of a tile, in the widest vectors; and of a group of four values

template <class T> inline const T* tableAt(const MixedPlan& plan, i64 offset)
{
    return reinterpret_cast<const T*>(reinterpret_cast<const u8*>(&plan) + offset);
}
inline const MixedPlan& mixedPlanAt(const void* place) { return *static_cast<const MixedPlan*>(place); }

// Between the two halves of a transform: a line of values for each column.
inline i64 lineDoubles(const MixedPlan& plan) { return 2 * plan.stride; }
inline i64 longerSide(const MixedPlan& plan) { return plan.rows > plan.columns ? plan.rows : plan.columns; }

} // namespace
} // namespace sig5d
