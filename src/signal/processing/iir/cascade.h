// A cascade of sections of second order, each of which computes, for each sample x of the one before it,
//
//   y = b0*x + d0;  d0 = b1*x + d1 - a1*y;  d1 = b2*x - a2*y
//
// From one y to the next lead a product, a difference and a sum, and nothing shortens that. So the sections go side by
// side in lanes: each lane has a few sections that follow one another, one in each vector, and lags so many samples
// behind the lane before it that nobody waits for a value to move from lane to lane.
#pragma once
#include "signal/processing/iir/numbers.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class X> struct Section {
    X b0, b1, b2, a1, a2;
    [[gnu::always_inline]] X operator()(X x, X& d0, X& d1) const
    {
        const X y = b0 * x + d0;
        d0 = b1 * x + d1 - a1 * y;
        d1 = b2 * x - a2 * y;
        return y;
    }
};
constexpr int tapsInSection = 5, delaysInSection = 2;

template <class T> struct Cascade {
    int sections;
    Row<T> taps, d;
};

template <class T> void oneByOne(const T* src, T* dst, ptrdiff_t n, Cascade<T> c)
{
    for (; c.sections > 0; --c.sections) {
        const Section<Number<T>> section = {c.taps.get(0), c.taps.get(1), c.taps.get(2), c.taps.get(3), c.taps.get(4)};
        Number<T> d0 = c.d.get(0), d1 = c.d.get(1);
        for (ptrdiff_t i = 0; i < n; ++i) setSample(dst + i, section(sample(src + i), d0, d1));
        c.d.set(0, d0);
        c.d.set(1, d1);
        c.taps.moveOn(tapsInSection);
        c.d.moveOn(delaysInSection);
        src = dst;
    }
}

#if SIG5D_LEVEL > 0

// Vectors that go side by side. One of real sections leaves the processor idle most of the time; of complex ones, four
// products and two sums for each, it does not.
template <class T> constexpr int mostVectors = partsOf<T> == 1 ? 4 : 1;

// Masks of lanes from one on, or up to one, by where one starts to read.
struct Window {
    u64 lane[3 * lanes<f64>];
};
constexpr Window windowOf()
{
    Window w = {};
    for (int i = lanes<f64>; i < 2 * lanes<f64>; ++i) w.lane[i] = ~u64{0};
    return w;
}
constexpr Window window = windowOf();
inline Vec<f64> lanesFrom(int first) { return as<Vec<f64>>(loadn<lanes<f64>>(window.lane + lanes<f64> - first)); }
inline Vec<f64> lanesBelow(int end) { return as<Vec<f64>>(loadn<lanes<f64>>(window.lane + 2 * lanes<f64> - end)); }

// Section s is in vector s % vectors. The lanes go downwards, so that the last section is in the lowest one. Where no
// section is there are zeros, taps included. So are, in what is computed of them, the delays of lanes that have no
// sample yet or none any more: nothing that an infinite or huge sample would raise an exception with.
template <class T, int vectors> struct Skewed {
    static constexpr int w = lanes<f64>;
    static constexpr int lag =
        vectors == 1 ? 2 : 4; // of a lane: what a value takes through all vectors and to the next lane
    using V = Number<T, w>;
    using Mask = Vec<f64, w>;

    Section<V> section[vectors];
    V d0[vectors], d1[vectors];
    V left[lag] = {};          // the last vector's outputs for the last samples
    Mask entry, used[vectors]; // the lane of the first section; lanes that have a section in this vector

    // all: otherwise only the lanes that `active` sets go on, and the others keep their delays. Gives the output of the
    // cascade in the lowest lane.
    template <bool all> [[gnu::always_inline]] V step(V in, int lastVector, Mask active = Mask{})
    {
        V x = chosen(entry, in, lanes_shifted_down(left[lag - 1], V{})), out = x;
#pragma GCC unroll 4
        for (int v = 0; v < vectors; ++v) {
            if (v > 0) x = masked(x, used[v]);
            if constexpr (all) {
                x = section[v](x, d0[v], d1[v]);
            } else {
                V next0 = masked(d0[v], active), next1 = masked(d1[v], active);
                x = section[v](x, next0, next1);
                d0[v] = chosen(active, next0, d0[v]);
                d1[v] = chosen(active, next1, d1[v]);
            }
            if (v == lastVector) out = x;
        }
#pragma GCC unroll 4
        for (int k = lag - 1; k > 0; --k) left[k] = left[k - 1];
        left[0] = x;
        return out;
    }
};

// Fewer sections than vectors, or as many as the vectors have lanes, and more samples than the lanes lag behind.
template <int vectors, class T> [[gnu::noinline]] void skewed(const T* src, T* dst, ptrdiff_t n, const Cascade<T>& c)
{
    using S = Skewed<T, vectors>;
    using V = typename S::V;
    constexpr int w = S::w, rows = tapsInSection + delaysInSection;
    const int lanesUsed = (c.sections + vectors - 1) / vectors, lastVector = (c.sections - 1) % vectors;
    const auto laneOf = [&](int s) { return lanesUsed - 1 - s / vectors; };

    alignas(64) f64 memory[vectors][rows][partsOf<T> * w] = {};
    const auto row = [&](int v, int r) { return Row<T>(memory[v][r], w); };
    for (int s = 0; s < c.sections; ++s)
        for (int r = 0; r < rows; ++r)
            row(s % vectors, r)
                .set(laneOf(s), r < tapsInSection ? c.taps.get(s * tapsInSection + r)
                                                  : c.d.get(s * delaysInSection + r - tapsInSection));
    S lane;
    for (int v = 0; v < vectors; ++v) {
        const auto get = [&](int r) { return row(v, r).template get<w>(0); };
        lane.section[v] = {get(0), get(1), get(2), get(3), get(4)};
        lane.d0[v] = get(5);
        lane.d1[v] = get(6);
        lane.used[v] = lanesFrom(v > lastVector);
    }
    lane.entry = both(lanesFrom(lanesUsed - 1), lanesBelow(lanesUsed));

    const ptrdiff_t lag = S::lag * (lanesUsed - 1);
    const auto in = [](const T* p) { return inAllLanes<w>(sample(p)); };
    ptrdiff_t i = 0;
    for (; i < lag; ++i) lane.template step<false>(in(src + i), lastVector, lanesFrom(lanesUsed - 1 - i / S::lag));
    for (; i < n; ++i) setSample(dst + i - lag, lowestLane(lane.template step<true>(in(src + i), lastVector)));
    for (i = 0; i < lag; ++i) {
        const auto active = lanesBelow(lanesUsed - 1 - i / S::lag);
        setSample(dst + n + i - lag, lowestLane(lane.template step<false>(V{}, lastVector, active)));
    }

    for (int v = 0; v < vectors; ++v) {
        row(v, 5).template set<w>(0, lane.d0[v]);
        row(v, 6).template set<w>(0, lane.d1[v]);
    }
    for (int s = 0; s < c.sections; ++s)
        for (int r = 0; r < delaysInSection; ++r)
            c.d.set(s * delaysInSection + r, row(s % vectors, tapsInSection + r).get(laneOf(s)));
}

// A zero times an infinite tap raises an exception.
inline bool isFinite(f64 x) { return (BitsOf<f64>::of(x) & infinityBits) != infinityBits; }
inline bool isFinite(Complex<f64> x) { return isFinite(x.re) && isFinite(x.im); }
template <class T> bool allFinite(const Row<T>& taps, int n)
{
    for (int i = 0; i < n; ++i)
        if (!isFinite(taps.get(i))) return false;
    return true;
}

#endif

template <class T> void filter(const T* src, T* dst, ptrdiff_t n, Cascade<T> c)
{
#if SIG5D_LEVEL > 0
    constexpr int w = lanes<f64>, most = mostVectors<T> * w;
    while (c.sections > 0) {
        const int sections = c.sections < most ? c.sections : most, vectors = (sections + w - 1) / w;
        const Cascade<T> now = {sections, c.taps, c.d};
        if (sections == 1 || n < 32 || !allFinite(c.taps, sections * tapsInSection))
            oneByOne(src, dst, n, now);
        else if (vectors == 1)
            skewed<1>(src, dst, n, now);
        else if constexpr (mostVectors<T> == 4) {
            if (vectors == 2)
                skewed<2>(src, dst, n, now);
            else if (vectors == 3)
                skewed<3>(src, dst, n, now);
            else
                skewed<4>(src, dst, n, now);
        }
        c.sections -= sections;
        c.taps.moveOn(sections * tapsInSection);
        c.d.moveOn(sections * delaysInSection);
        src = dst;
    }
#else
    oneByOne(src, dst, n, c);
#endif
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
