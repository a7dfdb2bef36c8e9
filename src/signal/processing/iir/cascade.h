// A cascade of sections of second order, each of which computes, for each sample x of the one before it,
//
//   y = b0*x + d0;  d0 = b1*x + d1 - a1*y;  d1 = b2*x - a2*y
//
// From one y to the next lead a product, a difference and a sum, and nothing shortens that. So the sections go side by
// side, each in a lane of its own and two samples behind the one before it. With one sample between them every lane
// would wait for its neighbour's y to move over.
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

// Vectors that go side by side. One of real sections leaves the processor idle most of the time; of complex ones, two
// times two products for each, it does not.
template <class T> constexpr int mostVectors = partsOf<T> == 1 ? 4 : 1;

// Masks of lanes from a place on, or up to one, by where one starts to read.
constexpr int mostPlaces = 4 * lanes<f64>;
struct Window {
    u64 lanes[3 * mostPlaces];
};
constexpr Window windowOf()
{
    Window w = {};
    for (int i = mostPlaces; i < 2 * mostPlaces; ++i) w.lanes[i] = ~u64{0};
    return w;
}
constexpr Window window = windowOf();

// Places are counted through the lanes of all vectors. The first section has the last place, so that a vector moved
// down by a lane brings each section the output of the one before it, and the last section may have any lane of the
// first vector. Lanes below it hold zeros, their taps included. So do, in what is computed of them, the lanes of
// sections that have no sample yet or none any more: nothing that an infinite or huge sample would raise an exception
// with.
template <class T, int vectors> struct Skewed {
    static constexpr int w = lanes<f64>, places = vectors * w;
    using V = Number<T, w>;
    using Mask = Vec<f64, w>;

    Section<V> section[vectors];
    V d0[vectors], d1[vectors];
    V even[vectors] = {}, odd[vectors] = {}; // outputs of all sections for samples of even and of odd numbers

    // all: only the lanes that `active` sets go on. The others keep their delays.
    template <bool all> [[gnu::always_inline]] void step(V (&y)[vectors], V in, const Mask (&active)[vectors])
    {
#pragma GCC unroll 4
        for (int v = 0; v < vectors; ++v) {
            const V x =
                masked(lanes_shifted_down(y[v], v + 1 < vectors ? y[v + 1 < vectors ? v + 1 : v] : in), active[v]);
            if constexpr (all) {
                y[v] = section[v](x, d0[v], d1[v]);
            } else {
                V next0 = masked(d0[v], active[v]), next1 = masked(d1[v], active[v]);
                y[v] = section[v](x, next0, next1);
                d0[v] = chosen(active[v], next0, d0[v]);
                d1[v] = chosen(active[v], next1, d1[v]);
            }
        }
    }
};

template <int vectors>
[[gnu::always_inline]] inline void loadMasks(const u64* p, Vec<f64, lanes<f64>> (&masks)[vectors])
{
    constexpr int w = lanes<f64>;
    for (int v = 0; v < vectors; ++v) masks[v] = as<Vec<f64, w>>(loadn<w>(p + v * w));
}

// As many sections as the vectors have lanes, at most w - 1 less, and more samples than a section lags behind.
template <int vectors, class T> [[gnu::noinline]] void skewed(const T* src, T* dst, ptrdiff_t n, const Cascade<T>& c)
{
    using S = Skewed<T, vectors>;
    using V = typename S::V;
    constexpr int w = S::w, places = S::places, rows = tapsInSection + delaysInSection;
    alignas(64) f64 memory[rows][partsOf<T> * places] = {};
    const auto row = [&](int r) { return Row<T>(memory[r], places); };
    for (int s = 0; s < c.sections; ++s) {
        const int place = places - 1 - s;
        for (int r = 0; r < tapsInSection; ++r) row(r).set(place, c.taps.get(s * tapsInSection + r));
        for (int r = 0; r < delaysInSection; ++r) row(tapsInSection + r).set(place, c.d.get(s * delaysInSection + r));
    }
    S lane;
    for (int v = 0; v < vectors; ++v) {
        const auto get = [&](int r) { return row(r).template get<w>(v * w); };
        lane.section[v] = {get(0), get(1), get(2), get(3), get(4)};
        lane.d0[v] = get(5);
        lane.d1[v] = get(6);
    }

    const int output = places - c.sections;
    const ptrdiff_t lag = 2 * (c.sections - 1);
    const auto put = [&](T* p, const V& y) { // by way of memory, where a lane has an address
        alignas(64) f64 lowest[partsOf<T> * w];
        const Row<T> r(lowest, w);
        r.template set<w>(0, y);
        setSample(p, r.get(output));
    };
    const auto in = [](const T* p) { return inAllLanes<w>(sample(p)); };

    typename S::Mask active[vectors], used[vectors];
    loadMasks(window.lanes + mostPlaces - output, used);
    ptrdiff_t i = 0;
    for (; i < lag; i += 2) {
        loadMasks(window.lanes + mostPlaces - places + 1 + i / 2, active);
        lane.template step<false>(lane.even, in(src + i), active);
        lane.template step<false>(lane.odd, in(src + i + 1), active);
    }
    for (; i + 1 < n; i += 2) {
        const V x = in(src + i), next = in(src + i + 1);
        lane.template step<true>(lane.even, x, used);
        put(dst + i - lag, lane.even[0]);
        lane.template step<true>(lane.odd, next, used);
        put(dst + i + 1 - lag, lane.odd[0]);
    }
    if (i < n) {
        lane.template step<true>(lane.even, in(src + i), used);
        put(dst + i - lag, lane.even[0]);
        for (int v = 0; v < vectors; ++v) {
            const V y = lane.even[v];
            lane.even[v] = lane.odd[v];
            lane.odd[v] = y;
        }
    }
    for (ptrdiff_t rest = 0; rest < lag; rest += 2) {
        loadMasks(window.lanes + mostPlaces + (mostPlaces - places) + 1 + rest / 2, active);
        for (int v = 0; v < vectors; ++v) active[v] = both(active[v], used[v]);
        lane.template step<false>(lane.even, V{}, active);
        put(dst + n + rest - lag, lane.even[0]);
        lane.template step<false>(lane.odd, V{}, active);
        put(dst + n + rest + 1 - lag, lane.odd[0]);
    }

    for (int v = 0; v < vectors; ++v) {
        row(5).template set<w>(v * w, lane.d0[v]);
        row(6).template set<w>(v * w, lane.d1[v]);
    }
    for (int s = 0; s < c.sections; ++s)
        for (int r = 0; r < delaysInSection; ++r)
            c.d.set(s * delaysInSection + r, row(tapsInSection + r).get(places - 1 - s));
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
        if (sections == 1 || n <= 4 * sections || !allFinite(c.taps, sections * tapsInSection))
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
