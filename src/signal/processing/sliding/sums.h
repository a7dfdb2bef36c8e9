// Sums of products of a row of numbers and a signal that slides past it, for filters, correlation and convolution: the
// functions of the body that serves the caller's variant. All sums start from 0.0 and take their products one by one in
// increasing order of k; a complex product is (r.re*x.re - r.im*x.im, r.re*x.im + r.im*x.re), each part rounded before
// it is added. All variants give the same bits.
#pragma once
#include "bodies/signal/processing/sliding.h" // generated from src/variants.txt: which body that is
#include "signal/processing/sliding/shape.h"
#include <cstddef>

namespace sig5d::SIG5D_SLIDING_BODY {

// y[i] = sum of r[k] * x[i + k] over k = 0..count-1, i = 0..n-1; `more`: the sums go on from the y that are there. x
// holds n + count - 1 samples and does not overlap y.
void slidingSums(const f64* x, const f64* r, int count, f64* y, int n, bool more = false);
void slidingSums(const c64f* x, const c64f* r, int count, c64f* y, int n, bool more = false);

// Sums at the ends of a signal, where each has one product more than its neighbour, or one less, and the longest n - 1.
//   rising:   y[i] = sum of end[k - i] * x[k] over k = 0..i-1; samples before x are missing, `end` is behind the row
//   falling:  y[i] += sum of r[k] * x[i + k] over k = 0..n-2-i; samples from x[n - 1] on are missing
void risingSums(const f64* x, const f64* end, f64* y, int n);
void risingSums(const c64f* x, const c64f* end, c64f* y, int n);
void fallingSums(const f64* x, const f64* r, f64* y, int n);
void fallingSums(const c64f* x, const c64f* r, c64f* y, int n);

} // namespace sig5d::SIG5D_SLIDING_BODY
