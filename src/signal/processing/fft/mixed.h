// Fourier transforms of real signals whose length is a product of small primes, for other kernels: sizes and plans; the
// transforms are in transforms.h. A plan is a flat record in the caller's memory like those of plan.h, whose transforms
// are faster where the length is a power of two.
//
// Spectra are unordered. mixedPlace tells where a value lies, for tables that are to meet it: real part there,
// imaginary part four doubles further. Of X[f] and X[N - f], which are conjugate, at least one has a place.
#pragma once
#include "frame/types.h"

namespace sig5d {

bool mixedHas(i64 points); // whether there is such a transform and it is worth having

// Sizes are multiples of 64, and so are the addresses of plan, work and spectra to be.
i64 mixedPlanBytes(i64 points);
i64 mixedWorkBytes(i64 points);
i64 mixedSpectrumBytes(i64 points);
void mixedInit(void* plan, i64 points);

i64 mixedPlace(const void* plan, i64 f); // in doubles; -1: nowhere

} // namespace sig5d
