// Fourier transforms by a plan (plan.h), for other kernels: the functions of the body that serves the caller's variant.
// All variants give the same bits, in place or not.
#pragma once
#include "bodies/signal/processing/fft.h" // generated from src/variants.txt: which body that is
#include "signal/processing/fft/mixed.h"
#include "signal/processing/fft/plan.h"

namespace sig5d::SIG5D_FFT_BODY {

// The arrays may be the same.
void fftForward(const void* plan, const f64* x, f64* spectrum, void* work);
void fftInverse(const void* plan, const f64* spectrum, f64* x, void* work);
void fftForward(const void* plan, const c64f* x, c64f* spectrum, void* work);
void fftInverse(const void* plan, const c64f* spectrum, c64f* x, void* work);

// d = a * b, a * conj(b) or d + a * b, value by value, of spectra of the plan's order; any of the arrays may be the
// same.
void fftMultiply(const void* plan, const f64* a, const f64* b, f64* d);
void fftMultiply(const void* plan, const c64f* a, const c64f* b, c64f* d);
void fftMultiplyConj(const void* plan, const f64* a, const f64* b, f64* d);
void fftMultiplyConj(const void* plan, const c64f* a, const c64f* b, c64f* d);
void fftMultiplyAdd(const void* plan, const f64* a, const f64* b, f64* d);
void fftMultiplyAdd(const void* plan, const c64f* a, const c64f* b, c64f* d);

// y = the circular convolution of x with the signal whose unordered spectrum is h: forward, product, inverse in one go,
// faster than one by one. Plans of unordered spectra only; y may be x.
void fftConvolve(const void* plan, const f64* x, const f64* h, f64* y, void* work);
void fftConvolve(const void* plan, const c64f* x, const c64f* h, c64f* y, void* work);

// Real signals of N points by a plan of mixed radices (mixed.h). Signals may be the same array; spectra and tables are
// aligned like plans.
void mixedForward(const void* plan, const f64* x, f64* spectrum, void* work);
// y = the circular convolution of x with the signal whose spectrum is h, N / 2 times.
void mixedConvolve(const void* plan, const f64* x, const f64* h, f64* y, void* work);
// With a number t[f] for each place of a spectrum: y[f] - i y[N - f] = X[f] conj(t[f]), y[0] = Re(X[0] conj(t[0])).
void mixedTurned(const void* plan, const f64* x, const f64* turns, f64* y, void* work);
// X[f] = t[f] (y[f] - i y[N - f]), X[0] = 2 t[0] y[0], and x[n] = half the sum over f of X[f] exp(2 pi i n f / N).
void mixedFromTurned(const void* plan, const f64* y, const f64* turns, f64* x, void* work);

} // namespace sig5d::SIG5D_FFT_BODY
