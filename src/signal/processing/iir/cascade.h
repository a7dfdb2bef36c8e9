// A cascade of sections of second order, each of which computes, for each sample x of the one before it,
//
//   y = b0*x + d0;  d0 = b1*x + d1 - a1*y;  d1 = b2*x - a2*y
//
// From one y to the next lead a product, a difference and a sum, and nothing shortens that. So the sections go side by
// side, in lanes of several vectors, each so many samples behind the one before it that nobody waits for its input.
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
// products and two sums for each, it does not. Four of 64 bytes and all that belongs to them would take more than a
// page of the stack where there are eight registers.
constexpr int mostRealVectors = sizeof(void*) == 4 && vectorBytes == 64 ? 2 : 4;
template <class T> constexpr int mostVectors = partsOf<T> == 1 ? mostRealVectors : 1;

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

// Sections that follow one another go through the vectors of a lane and then to the next lane below, so that the last
// one is in the last vector's lowest lane. The first lane may have fewer. Each vector lags a sample behind the one
// before it, so that all of them can go on at once. Where no section is there are zeros, taps included. So are, in what
// is computed of them, the delays of lanes that have no sample yet or none any more: nothing that an infinite or huge
// sample would raise an exception with.
template <class T, int vectors> struct Skewed {
    static constexpr int w = lanes<f64>;
    using V = Number<T, w>;

    Section<V> section[vectors];
    V d0[vectors], d1[vectors], y[vectors] = {};
    int firstVector;
    Vec<f64> firstLane; // where the input enters

    // The next sample in each lane. `before` is what the last vector gave for those that come to the next lane now.
    // Only the lanes that active(v) sets go on, unless all do; the others keep their delays.
    template <bool all, class Active> [[gnu::always_inline]] V step(V in, V before, Active active)
    {
#pragma GCC unroll 4
        for (int v = vectors - 1; v >= 0; --v) {
            V x = v > 0 ? y[v > 0 ? v - 1 : 0] : lanes_shifted_down(before, V{});
            if (vectors == 1 || v == firstVector) x = chosen(firstLane, in, x);
            if constexpr (all) {
                y[v] = section[v](x, d0[v], d1[v]);
            } else {
                const Vec<f64> mask = active(v);
                V next0 = masked(d0[v], mask), next1 = masked(d1[v], mask);
                y[v] = section[v](x, next0, next1);
                d0[v] = chosen(mask, next0, d0[v]);
                d1[v] = chosen(mask, next1, d1[v]);
            }
        }
        return y[vectors - 1];
    }
};

// More sections than vectors, at most as many as these have lanes, and at least `fewestSamples`.
constexpr int fewestSamples = 40; // more than any lane lags behind
template <int vectors, class T> [[gnu::noinline]] void skewed(const T* src, T* dst, ptrdiff_t n, const Cascade<T>& c)
{
    using S = Skewed<T, vectors>;
    using V = typename S::V;
    constexpr int w = S::w, rows = tapsInSection + delaysInSection;
    const int used = (c.sections + vectors - 1) / vectors, missing = used * vectors - c.sections;

    alignas(64) f64 memory[vectors][rows][partsOf<T> * w] = {};
    const auto row = [&](int v, int r) { return Row<T>(memory[v][r], w); };
    const auto eachNumber = [&](auto exchange, int from, int to) {
        for (int s = 0; s < c.sections; ++s)
            for (int r = from; r < to; ++r)
                exchange(row((s + missing) % vectors, r), used - 1 - (s + missing) / vectors,
                         r < tapsInSection ? c.taps : c.d,
                         r < tapsInSection ? s * tapsInSection + r : s * delaysInSection + r - tapsInSection);
    };
    eachNumber([](Row<T> r, int lane, Row<T> given, int i) { r.set(lane, given.get(i)); }, 0, rows);
    S lane;
    for (int v = 0; v < vectors; ++v) {
        const auto get = [&](int r) { return row(v, r).template get<w>(0); };
        lane.section[v] = {get(0), get(1), get(2), get(3), get(4)};
        lane.d0[v] = get(5);
        lane.d1[v] = get(6);
    }
    lane.firstVector = missing;
    lane.firstLane = both(lanesFrom(used - 1), lanesBelow(used));

    // What the last vector gave waits for some samples until the next lane comes to it: as many as the way there takes.
    // A single vector waits for nothing else, and its outputs stay in registers; with more of them they go through
    // memory, which takes longer.
    constexpr int waiting = vectors == 1 ? (partsOf<T> == 1 ? 3 : 2) : vectors == 2 ? 4 : 2;
    constexpr int lag = vectors - 1 + waiting;
    V recent[vectors == 1 ? waiting : 1] = {};
    alignas(64) f64 places[waiting][partsOf<T> * w] = {};
    const auto step = [&]<bool all>(ptrdiff_t i, V in, auto active) {
        if constexpr (vectors == 1) {
            const V y = lane.template step<all>(in, recent[waiting - 1], active);
#pragma GCC unroll 4
            for (int k = waiting - 1; k > 0; --k) recent[k] = recent[k - 1];
            recent[0] = y;
            return lowestLane(y);
        } else {
            const Row<T> place(places[i % waiting], w);
            const V y = lane.template step<all>(in, place.template get<w>(0), active);
            place.template set<w>(0, y);
            return lowestLane(y);
        }
    };
    const auto in = [&](ptrdiff_t i) { return inAllLanes<w>(sample(src + i)); };
    // Lanes, from the top, that a sample has reached in a vector by the time that the input is at i; -1: none.
    const auto reached = [&](ptrdiff_t i, int v) { return (static_cast<int>(i) - v + missing + lag) / lag - 1; };
    const ptrdiff_t late = lag * (used - 1) + vectors - 1 - missing;
    static_assert(fewestSamples >= lag * (w - 1) + vectors - 1);

    ptrdiff_t i = 0;
    for (; i < late; ++i)
        step.template operator()<false>(i, in(i), [&](int v) { return lanesFrom(used - 1 - reached(i, v)); });
    for (; i < n; ++i) setSample(dst + i - late, step.template operator()<true>(i, in(i), 0));
    for (; i < n + late; ++i) {
        const auto active = [&](int v) { return lanesBelow(used - 1 - reached(i - n, v)); };
        setSample(dst + i - late, step.template operator()<false>(i, V{}, active));
    }

    for (int v = 0; v < vectors; ++v) {
        row(v, 5).template set<w>(0, lane.d0[v]);
        row(v, 6).template set<w>(0, lane.d1[v]);
    }
    eachNumber([](Row<T> r, int lane, Row<T> given, int i) { given.set(i, r.get(lane)); }, tapsInSection, rows);
}

// With so many vectors, at least `fewest`.
template <int fewest, class T> void skewed_by(int vectors, const T* src, T* dst, ptrdiff_t n, const Cascade<T>& c)
{
    if constexpr (fewest < mostVectors<T>)
        if (vectors > fewest) return skewed_by<fewest + 1>(vectors, src, dst, n, c);
    skewed<fewest>(src, dst, n, c);
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
        if (sections == 1 || n < fewestSamples || !allFinite(c.taps, sections * tapsInSection))
            oneByOne(src, dst, n, now);
        else
            skewed_by<1>(vectors, src, dst, n, now);
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
