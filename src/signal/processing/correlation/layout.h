// What of two signals meets at which lags, by which method their products are summed, and where everything lies in the
// work buffer. Compiled once: all of it depends on lengths alone, so that every variant chooses alike.
#pragma once
#include "signal/processing/fft/plan.h"
#include "signal/processing/sliding/memory.h"

namespace sig5d {

// y[i] = sum over n of r[n] * x[n + first + i] over all n that both signals have, i = 0..count-1: each has a product.
// The row r is the shorter one.
struct Lags {
    i64 row, samples;         // lengths: of the signals what meets at any of the lags
    i64 first, count;         // lags
    i64 rowFrom, samplesFrom; // where these parts of the signals start
    i64 zeros;                // results before the first that has a product
    bool exchanged;           // the row is of the second signal: the lags run backwards
};
// Of the lags one after the other: those at which the row begins before the samples, lies within them, ends behind
// them.
struct Spans {
    int rising, whole, falling;
    int common; // products that all of the falling ones have
};
Spans spansOf(const Lags& lags);

Lags correlationLags(i64 len1, i64 len2, i64 lowLag, i64 count);
// With the row reversed.
Lags convolutionLags(i64 len1, i64 len2);

constexpr int byDefinition = 1, byTransform = 2; // algorithms as callers name them; 0: whichever is faster

// Offsets from the first multiple of 64 in the buffer, which holds a row of its own where that is needed, and for the
// method by transforms a plan of 2^order values, its work area, the spectrum of the row, and a block. A row that is
// longer than half a block may be cut into parts of that length: there are the spectra of all parts, as many of blocks
// of samples.
struct CorrelationWork {
    bool byTransform;
    int order;
    i64 parts; // 1: the row is not cut
    i64 transformWork, row, samples, block;
    i64 bytes; // of the buffer, at any address
    bool fits() const { return bytes <= maxInt; }
};
// `copied`: the sums need the row in another form than the caller's.
CorrelationWork correlationWork(const Lags& lags, int algorithm, int elementBytes, bool complex, bool copied);
CorrelationWork autoCorrelationWork(i64 len, i64 lags, int algorithm, int elementBytes, bool complex);

} // namespace sig5d
