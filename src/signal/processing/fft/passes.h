// What the files of the transform share within a variant.
#pragma once
#include "signal/processing/fft/layout.h"
#include "signal/processing/fft/transforms.h"

namespace sig5d::SIG5D_VARIANT {

// From the coefficients of nodes to values in each of their blocks, and back (times the number of blocks): `count`
// nodes of `size` blocks from node `first` on. For real signals, odd last quarters and halves are kept conjugate if
// asked.
void forwardNodes(f64* work, const f64* table, Count first, Count count, Count size, bool conjugateOdd);
void inverseNodes(f64* work, const f64* table, Count first, Count count, Count size, bool conjugateOdd);

// The last butterfly, across the lanes of each block, to an unordered spectrum and back (times 4).
void acrossForward(const f64* work, const f64* table, Count blocks, f64* spectrum);
void acrossInverse(const f64* spectrum, const f64* table, Count blocks, f64* work);
// forwardNodes, acrossForward, product with the spectrum h, acrossInverse, inverseNodes, part by part.
void convolveNodes(f64* work, const f64* table, const f64* h, Count first, Count count, Count size);
// The middle three for `blocks` blocks from block 0 on.
void convolveBlocks(f64* work, const f64* table, const f64* h, Count blocks);

// Transforms of at most smallPoints points; spectra are ordered whatever the plan says.
constexpr int smallPoints = 16;
void forwardSmall(const FftPlan& plan, const f64* x, f64* spectrum);
void inverseSmall(const FftPlan& plan, const f64* spectrum, f64* x);
void forwardSmall(const FftPlan& plan, const c64f* x, c64f* spectrum);
void inverseSmall(const FftPlan& plan, const c64f* spectrum, c64f* x);

} // namespace sig5d::SIG5D_VARIANT
