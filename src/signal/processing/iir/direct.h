// A filter of any order N in its transposed direct form, for each sample x:
//
//   y = b[0]*x + d[0];  d[i] = b[i+1]*x - a[i+1]*y + d[i+1] for i = 0..N-2;  d[N-1] = b[N]*x - a[N]*y
//
// What it takes at least is the way from one y to the next: a product, a difference and two sums. Everything beyond
// d[1] has time, and is computed in vectors of delays.
#pragma once
#include "signal/processing/iir/numbers.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> struct Direct {
    int order;
    Row<T> b, a, d; // a from a[0] on, which is not stored
};

// Literally.
template <class T> void oneByOne(const T* src, T* dst, ptrdiff_t n, Direct<T> f)
{
    const int last = f.order - 1;
    for (ptrdiff_t i = 0; i < n; ++i) {
        const Number<T> x = sample(src + i), y = f.b.get(0) * x + f.d.get(0);
        for (int k = 0; k < last; ++k) f.d.set(k, f.b.get(k + 1) * x - f.a.get(k + 1) * y + f.d.get(k + 1));
        f.d.set(last, f.b.get(last + 1) * x - f.a.get(last + 1) * y);
        setSample(dst + i, y);
    }
}

#if SIG5D_LEVEL > 0

// The same with everything in registers.
template <int order, class T> void ofLowOrder(const T* src, T* dst, ptrdiff_t n, Direct<T> f)
{
    Number<T> b[order + 1], a[order + 1], d[order];
    b[0] = f.b.get(0);
    for (int k = 0; k < order; ++k) {
        b[k + 1] = f.b.get(k + 1);
        a[k + 1] = f.a.get(k + 1);
        d[k] = f.d.get(k);
    }
    for (ptrdiff_t i = 0; i < n; ++i) {
        const Number<T> x = sample(src + i), y = b[0] * x + d[0];
#pragma GCC unroll 4
        for (int k = 0; k + 1 < order; ++k) d[k] = b[k + 1] * x - a[k + 1] * y + d[k + 1];
        d[order - 1] = b[order] * x - a[order] * y;
        setSample(dst + i, y);
    }
    for (int k = 0; k < order; ++k) f.d.set(k, d[k]);
}

template <class V> inline V allButLastLane()
{
    typename BitsOf<V>::type bits{};
    for (size_t i = 0; i + 1 < sizeof(V) / sizeof(u64); ++i) bits[i] = ~u64{0};
    return BitsOf<V>::back(bits);
}

// Two samples at a time, so that a vector of delays waits for memory every other sample only. d[0] and d[1] are single
// numbers. From d[2] on whole vectors stand in memory, each of which takes the lowest lane of the next one. The last w
// delays are a vector in a register, however many of them the vectors below have too: nothing goes into its last lane,
// and the lane that the topmost of the others takes is read back from a copy.
template <int w, class T> void byVectors(const T* src, T* dst, ptrdiff_t pairs, Direct<T> f)
{
    using X = Number<T>;
    using V = Number<T, w>;
    const int top = f.order - w, vectors = (f.order - 3) / w, laneTaken = 2 + vectors * w - top;
    const X b0 = f.b.get(0), b1 = f.b.get(1), b2 = f.b.get(2), a1 = f.a.get(1), a2 = f.a.get(2);
    X d0 = f.d.get(0), d1 = f.d.get(1);
    V last = f.d.template get<w>(top);
    const auto keeping = allButLastLane<Vec<f64, w>>();
    f64 copies[2][partsOf<T> * w];
    const Row<T> copyOfFirst(copies[0], w), copyOfSecond(copies[1], w); // after the first sample of a pair, the second
    copyOfSecond.template set<w>(0, last);

    const auto input = [&](int k, V x, V y) { return f.b.template get<w>(k + 1) * x - f.a.template get<w>(k + 1) * y; };
    const auto lastAfter = [&](V x, V y) {
        const V in = input(top, x, y);
        return chosen(keeping, in + masked(lanes_shifted_down(last, last), keeping), in);
    };

    for (; pairs > 0; --pairs, src += 2, dst += 2) {
        const X x = sample(src), x2 = sample(src + 1);
        const X y = b0 * x + d0;
        d0 = b1 * x - a1 * y + d1;
        const X y2 = b0 * x2 + d0;
        setSample(dst, y);
        setSample(dst + 1, y2);
        const V xs = inAllLanes<w>(x), ys = inAllLanes<w>(y), xs2 = inAllLanes<w>(x2), ys2 = inAllLanes<w>(y2);

        const X taken = copyOfSecond.get(laneTaken);
        last = lastAfter(xs, ys);
        copyOfFirst.template set<w>(0, last);
        last = lastAfter(xs2, ys2);
        copyOfSecond.template set<w>(0, last);
        const X taken2 = copyOfFirst.get(laneTaken);

        X d2 = taken, d2next = taken2;
        if (vectors > 0) {
            V now = f.d.template get<w>(2), above;
            const auto next = [&](int k) {
                above = k < vectors ? f.d.template get<w>(2 + k * w) : inAllLanes<w>(taken);
            };
            d2 = lowestLane(now);
            next(1);
            V first = input(2, xs, ys) + lanes_shifted_down(now, above), second = input(2, xs2, ys2);
            d2next = lowestLane(first);
            for (int k = 1; k < vectors; ++k) {
                now = above;
                next(k + 1);
                const V firstAbove = input(2 + k * w, xs, ys) + lanes_shifted_down(now, above);
                f.d.template set<w>(2 + (k - 1) * w, second + lanes_shifted_down(first, firstAbove));
                second = input(2 + k * w, xs2, ys2);
                first = firstAbove;
            }
            f.d.template set<w>(2 + (vectors - 1) * w, second + lanes_shifted_down(first, inAllLanes<w>(taken2)));
        }
        d1 = b2 * x - a2 * y + d2;
        d0 = b1 * x2 - a1 * y2 + d1;
        d1 = b2 * x2 - a2 * y2 + d2next;
    }
    f.d.template set<w>(top, last);
    f.d.set(0, d0);
    f.d.set(1, d1);
}

#endif

template <class T> void filter(const T* src, T* dst, ptrdiff_t n, Direct<T> f)
{
#if SIG5D_LEVEL > 0
    if (f.order == 1) return ofLowOrder<1>(src, dst, n, f);
    if (f.order == 2) return ofLowOrder<2>(src, dst, n, f);
    if (f.order == 3) return ofLowOrder<3>(src, dst, n, f);
    const ptrdiff_t pairs = n / 2;
    if (pairs > 0) {
        constexpr int widest = lanes<f64>;
        if (f.order >= widest)
            byVectors<widest>(src, dst, pairs, f);
        else
            byVectors < widest<4 ? widest : 4>(src, dst, pairs, f);
    }
    src += 2 * pairs;
    dst += 2 * pairs;
    n -= 2 * pairs;
#endif
    oneByOne(src, dst, n, f);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
