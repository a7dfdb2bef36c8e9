// Tiles: complex vectors of independent transforms, a row for each of their points.
#pragma once
#include "signal/processing/fft/lanes.h"
#include "signal/processing/fft/mixed_layout.h"

namespace sig5d::SIG5D_VARIANT {

// Forward. Rows come from vectors of real parts `apart` doubles from each other, with imaginary parts so much further,
// or are the tile's own. Value f is in row tableAt<i32>(plan, shape.places)[f] of the tile then. `spare` has
// largestRadix rows.
void transformRows(const f64* from, Count apart, Count imaginary, f64* tile, f64* spare, const MixedPlan& plan,
                   const MixedTile& shape);

namespace {

constexpr int rowSize = 2 * width; // doubles

inline void transformTile(f64* tile, f64* spare, const MixedPlan& plan, const MixedTile& shape)
{
    transformRows(tile, rowSize, width, tile, spare, plan, shape);
}

SIG5D_INLINE Complex<Vector> getRow(const f64* p)
{
    return {*reinterpret_cast<const AlignedVector*>(p), *reinterpret_cast<const AlignedVector*>(p + width)};
}
SIG5D_INLINE void putRow(f64* p, Complex<Vector> a)
{
    *reinterpret_cast<AlignedVector*>(p) = a.re;
    *reinterpret_cast<AlignedVector*>(p + width) = a.im;
}

// The inverse is the forward transform with real and imaginary parts exchanged.
template <class T> SIG5D_INLINE Complex<T> exchanged(Complex<T> a) { return {a.im, a.re}; }

} // namespace
} // namespace sig5d::SIG5D_VARIANT
