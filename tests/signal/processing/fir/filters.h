// FIR filters as the tests call them: one name for the real and the complex functions, and the caller's memory.
#pragma once
#include "oracle/fir.h"
#include "support/library.h"
#include "support/noise.h"
#include "support/same_bits.h"
#include <cstring>
#include <vector>

namespace fir {

template <class T> struct Functions;
template <> struct Functions<Ipp64f> {
    using Spec = IppsFIRSpec_64f;
    static constexpr int type = 19;
    static constexpr auto init = ippsFIRSRInit_64f;
    static constexpr auto filter = ippsFIRSR_64f;
    static constexpr auto multiInit = ippsFIRMRInit_64f;
    static constexpr auto multiFilter = ippsFIRMR_64f;
};
template <> struct Functions<Ipp64fc> {
    using Spec = IppsFIRSpec_64fc;
    static constexpr int type = 20;
    static constexpr auto init = ippsFIRSRInit_64fc;
    static constexpr auto filter = ippsFIRSR_64fc;
    static constexpr auto multiInit = ippsFIRMRInit_64fc;
    static constexpr auto multiFilter = ippsFIRMR_64fc;
};

// A specification and a work buffer of exactly the sizes asked for, with old bytes in them.
template <class T> struct Filter {
    using F = Functions<T>;
    std::vector<Ipp8u> block, work;
    oracle::Rates rates = {1, 0, 1, 0};
    int history = 0;
    bool multi = false;

    Filter(const std::vector<T>& taps, int algType)
    {
        const int n = static_cast<int>(taps.size());
        int specSize = 0, workSize = 0;
        ippsFIRSRGetSize(n, F::type, &specSize, &workSize);
        allocate(specSize, workSize);
        history = n - 1;
        F::init(taps.data(), n, algType, spec());
    }
    Filter(const std::vector<T>& taps, oracle::Rates r) : rates(r), multi(true)
    {
        const int n = static_cast<int>(taps.size());
        int specSize = 0, workSize = 0;
        ippsFIRMRGetSize(n, r.up, r.down, F::type, &specSize, &workSize);
        allocate(specSize, workSize);
        history = (n + r.up - 1) / r.up;
        F::multiInit(taps.data(), n, r.up, r.upPhase, r.down, r.downPhase, spec());
    }
    typename F::Spec* spec() { return reinterpret_cast<typename F::Spec*>(block.data()); }
    IppStatus operator()(const T* src, T* dst, int n, const T* dlySrc, T* dlyDst)
    {
        return (multi ? F::multiFilter : F::filter)(src, dst, n, spec(), dlySrc, dlyDst, work.data());
    }

private:
    void allocate(int specSize, int workSize)
    {
        block.assign(specSize, 0xA5);
        work.assign(workSize, 0xA5);
    }
};

using support::difference;
using support::noise;

template <class T> std::vector<T> tail(std::vector<T> history, const std::vector<T>& x)
{
    const size_t n = history.size();
    history.insert(history.end(), x.begin(), x.end());
    return {history.end() - n, history.end()};
}

} // namespace fir
