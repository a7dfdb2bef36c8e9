// The single-rate filter, as the multi-rate filter uses it when both its factors are 1.
#pragma once
#include "signal/processing/fir/spec.h"

namespace sig5d::SIG5D_VARIANT {

// Fills the block; forMultiRate marks one that the multi-rate filter may use too.
void buildSingleRate(const f64* taps, int tapsLen, int algType, bool forMultiRate, void* block);
void buildSingleRate(const c64f* taps, int tapsLen, int algType, bool forMultiRate, void* block);

void filterSingleRate(const f64* src, f64* dst, int n, const FirSpec* spec, const f64* dlySrc, f64* dlyDst, u8* work);
void filterSingleRate(const c64f* src, c64f* dst, int n, const FirSpec* spec, const c64f* dlySrc, c64f* dlyDst,
                      u8* work);

} // namespace sig5d::SIG5D_VARIANT
