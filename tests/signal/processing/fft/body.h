// The transforms of each variant body, which no export shows: body.cpp is compiled once per body.
#pragma once
#include "signal/processing/fft/plan.h"
#include "variants.h"
#include <cstring>
#include <vector>

namespace support {

template <class T> struct FftFunctions {
    void (*forward)(const void* plan, const T* x, T* spectrum, void* work);
    void (*inverse)(const void* plan, const T* spectrum, T* x, void* work);
    void (*multiply)(const void* plan, const T* a, const T* b, T* d);
    void (*multiplyConj)(const void* plan, const T* a, const T* b, T* d);
    void (*multiplyAdd)(const void* plan, const T* a, const T* b, T* d);
    void (*convolve)(const void* plan, const T* x, const T* h, T* y, void* work);
};
struct FftBody {
    const char* name;
    FftFunctions<sig5d::f64> real;
    FftFunctions<sig5d::c64f> complex;
};

// Where each body puts itself before main runs.
inline std::vector<const FftBody*>& allFftBodies()
{
    static std::vector<const FftBody*> all;
    return all;
}

// Those that this processor can run, px first.
inline std::vector<const FftBody*> fftBodies()
{
    std::vector<const FftBody*> found;
    for (const registry::Variant& v : registry::supported())
        for (const FftBody* body : allFftBodies())
            if (!std::strcmp(body->name, v.code)) found.push_back(body);
    return found;
}

} // namespace support
