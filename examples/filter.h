// An FIR filter of the library, single-rate or multi-rate, with the memory that its three steps need: ask for the
// sizes, initialise a specification, filter block by block with a delay line of the caller's own.
#pragma once
#include "library_loader.h"
#include <vector>

enum class Method { direct = 1, fft = 2 };

class Filter
{
public:
    Filter(const Library& library, const std::vector<double>& taps, Method method)
        : library_(library), run_(library.ippsFIRSR_64f), delayLength_(taps.size() - 1)
    {
        int specSize = 0, bufferSize = 0;
        const int length = static_cast<int>(taps.size());
        library.check(library.ippsFIRSRGetSize(length, type64f, &specSize, &bufferSize), "ippsFIRSRGetSize");
        allocate(specSize, bufferSize);
        library.check(library.ippsFIRSRInit_64f(taps.data(), length, static_cast<int>(method), spec()),
                      "ippsFIRSRInit_64f");
    }

    // Rate times up / down; the taps work at the input rate times up and need a gain of up.
    Filter(const Library& library, const std::vector<double>& taps, int up, int down)
        : up(up), down(down), library_(library), run_(library.ippsFIRMR_64f), delayLength_((taps.size() + up - 1) / up)
    {
        int specSize = 0, bufferSize = 0;
        const int length = static_cast<int>(taps.size());
        library.check(library.ippsFIRMRGetSize(length, up, down, type64f, &specSize, &bufferSize), "ippsFIRMRGetSize");
        allocate(specSize, bufferSize);
        library.check(library.ippsFIRMRInit_64f(taps.data(), length, up, 0, down, 0, spec()), "ippsFIRMRInit_64f");
    }

    // Each iteration takes `down` samples and makes `up`.
    const int up = 1, down = 1;

    // The state of one stream before its first sample. One filter serves any number of streams.
    std::vector<double> silence() const { return std::vector<double>(delayLength_); }

    void run(const double* src, double* dst, int iterations, std::vector<double>& delayLine)
    {
        library_.check(run_(src, dst, iterations, spec(), delayLine.data(), delayLine.data(), buffer_.data()),
                       up == down ? "ippsFIRSR_64f" : "ippsFIRMR_64f");
    }

private:
    static constexpr int type64f = 19; // the code of double-precision taps

    void allocate(int specSize, int bufferSize)
    {
        spec_.resize(specSize);
        buffer_.resize(bufferSize);
    }
    IppsFIRSpec_64f* spec() { return reinterpret_cast<IppsFIRSpec_64f*>(spec_.data()); }

    const Library& library_;
    decltype(Library::ippsFIRSR_64f) run_;
    std::size_t delayLength_;
    std::vector<Ipp8u> spec_, buffer_;
};
