// Fourier transforms of 2^order points, real and complex, for the kernels that are built on them: what a plan and a
// work buffer take, and how a plan is made; the transforms themselves are in transforms.h. A plan is a flat record in
// the caller's memory: no pointers inside, read-only once made, the same bytes for every processor variant.
//
//   forward:  X[k] = sum over n of x[n] exp(-2 pi i n k / N)         inverse: divided by N
//
// A spectrum holds exactly as much as the signal: N doubles of a real one, N complex values of a complex one.
//   ordered:    natural order; a real one is packed as re[0], re[N/2], re[1], im[1], re[2], im[2], ...
//   unordered:  in the order that is fastest to make; good for fftMultiply and the way back only
#pragma once
#include "frame/types.h"

namespace sig5d {

enum class FftKind { real, complex };
enum class FftSpectrum { ordered, unordered };

constexpr int fftMaxOrder = 27; // of real transforms; complex ones go to one less

// Sizes are multiples of 64; the work buffer is only used during a call. Plan and work start at multiples of 64 bytes.
i64 fftPlanBytes(FftKind kind, FftSpectrum spectrum, int order);
i64 fftWorkBytes(FftKind kind, int order);
void fftInit(void* plan, FftKind kind, FftSpectrum spectrum, int order);

} // namespace sig5d
