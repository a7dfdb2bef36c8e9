// Fourier transforms of 2^order points, real and complex, for the kernels that are built on them. A plan is a flat
// record in the caller's memory: no pointers inside, read-only once made, the same bytes for every processor variant.
// All variants give the same bits, in place or not.
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

#if SIG5D_LEVEL >= 4
namespace g9 {
#elif SIG5D_LEVEL >= 1
namespace w7 {
#else
namespace px {
#endif

// The arrays may be the same.
void fftForward(const void* plan, const f64* x, f64* spectrum, void* work);
void fftInverse(const void* plan, const f64* spectrum, f64* x, void* work);
void fftForward(const void* plan, const c64f* x, c64f* spectrum, void* work);
void fftInverse(const void* plan, const c64f* spectrum, c64f* x, void* work);

// d = a * b or a * conj(b), value by value, of spectra of the plan's order; any of the arrays may be the same.
void fftMultiply(const void* plan, const f64* a, const f64* b, f64* d);
void fftMultiply(const void* plan, const c64f* a, const c64f* b, c64f* d);
void fftMultiplyConj(const void* plan, const f64* a, const f64* b, f64* d);
void fftMultiplyConj(const void* plan, const c64f* a, const c64f* b, c64f* d);

// y = the circular convolution of x with the signal whose unordered spectrum is h: forward, product, inverse in one go,
// faster than one by one. Plans of unordered spectra only; y may be x.
void fftConvolve(const void* plan, const f64* x, const f64* h, f64* y, void* work);
void fftConvolve(const void* plan, const c64f* x, const c64f* h, c64f* y, void* work);

} // namespace g9, w7 or px: the bodies that exist

#if SIG5D_LEVEL == 2 || SIG5D_LEVEL == 3
namespace SIG5D_VARIANT {
using namespace w7;
}
#elif SIG5D_LEVEL == 5
namespace SIG5D_VARIANT {
using namespace g9;
}
#endif

} // namespace sig5d
