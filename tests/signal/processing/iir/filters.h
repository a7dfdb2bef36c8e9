// IIR filters as the tests call them: one name for the real and the complex functions, and the caller's memory.
#pragma once
#include "oracle/iir.h"
#include "support/library.h"
#include "support/noise.h"
#include "support/same_bits.h"
#include <vector>

namespace iir {

template <class T> struct Functions;
template <> struct Functions<Ipp64f> {
    using State = IppsIIRState_64f;
    static constexpr unsigned tag = 0x49493133, cascadeTag = 0x49493134;
    static constexpr auto size = ippsIIRGetStateSize_64f, cascadeSize = ippsIIRGetStateSize_BiQuad_64f;
    static constexpr auto init = ippsIIRInit_64f, cascadeInit = ippsIIRInit_BiQuad_64f;
    static constexpr auto filter = ippsIIR_64f;
    static constexpr auto filterInPlace = ippsIIR_64f_I;
    static constexpr auto one = ippsIIROne_64f_Idx;
};
template <> struct Functions<Ipp64fc> {
    using State = IppsIIRState_64fc;
    static constexpr unsigned tag = 0x49493135, cascadeTag = 0x49493136;
    static constexpr auto size = ippsIIRGetStateSize_64fc, cascadeSize = ippsIIRGetStateSize_BiQuad_64fc;
    static constexpr auto init = ippsIIRInit_64fc, cascadeInit = ippsIIRInit_BiQuad_64fc;
    static constexpr auto filter = ippsIIR_64fc;
    static constexpr auto filterInPlace = ippsIIR_64fc_I;
    static constexpr auto one = ippsIIROne_64fc_Idx;
};

enum Kind { ofOrder, ofSections };

// What a filter is: `count` is its order or the number of its sections.
template <class T> struct Design {
    Kind kind;
    int count;
    std::vector<T> taps, delays;
    std::vector<T> expected(std::vector<T>& d, const std::vector<T>& x) const
    {
        return kind == ofOrder ? oracle::recurrence(taps, d, x) : oracle::cascade(taps, d, x);
    }
};

// A state in a buffer of exactly the size asked for, with old bytes in it.
template <class T> struct Filter {
    using F = Functions<T>;
    std::vector<Ipp8u> buffer;
    typename F::State* state = nullptr;
    int status;

    explicit Filter(const Design<T>& f)
    {
        int bytes = 0;
        (f.kind == ofOrder ? F::size : F::cascadeSize)(f.count, &bytes);
        buffer.assign(static_cast<size_t>(bytes), 0xA5);
        status = (f.kind == ofOrder ? F::init : F::cascadeInit)(
            &state, f.taps.data(), f.count, f.delays.empty() ? nullptr : f.delays.data(), buffer.data());
    }
    int operator()(const T* src, T* dst, int n) { return F::filter(src, dst, n, state); }
};

using support::difference;
using support::noise;
inline void set(Ipp64f& x, double re, double) { x = re; }
inline void set(Ipp64fc& x, double re, double im) { x = {re, im}; }

// Noise for taps, with an a0 that keeps the filter stable.
template <class T> Design<T> draw(std::mt19937& g, Kind kind, int count)
{
    Design<T> f = {kind, count, noise<T>(g, kind == ofOrder ? 2 * count + 2 : 6 * count),
                   noise<T>(g, kind == ofOrder ? count : 2 * count)};
    if (kind == ofOrder) {
        set(f.taps[count + 1], 2.0 * count + 1, 0.5);
    } else {
        for (int s = 0; s < count; ++s) set(f.taps[6 * s + 3], 2.5 + s % 3, -0.25);
    }
    return f;
}

} // namespace iir
