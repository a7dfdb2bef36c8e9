// The transforms of one variant body, which no export shows: fft_body.cpp is compiled once per body.
#pragma once
#include "signal/processing/fft/transforms.h"

namespace support {

template <class T> struct FftFunctions {
    void (*forward)(const void* plan, const T* x, T* spectrum, void* work);
    void (*inverse)(const void* plan, const T* spectrum, T* x, void* work);
    void (*multiply)(const void* plan, const T* a, const T* b, T* d);
    void (*multiplyConj)(const void* plan, const T* a, const T* b, T* d);
    void (*convolve)(const void* plan, const T* x, const T* h, T* y, void* work);
};
struct FftBody {
    const char* name;
    FftFunctions<sig5d::f64> real;
    FftFunctions<sig5d::c64f> complex;
};

extern const FftBody fftBody_px, fftBody_w7, fftBody_g9;

} // namespace support
