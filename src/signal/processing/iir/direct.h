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
#pragma GCC unroll 8
        for (int k = 0; k + 1 < order; ++k) d[k] = b[k + 1] * x - a[k + 1] * y + d[k + 1];
        d[order - 1] = b[order] * x - a[order] * y;
        setSample(dst + i, y);
    }
    for (int k = 0; k < order; ++k) f.d.set(k, d[k]);
}

// What changes no sum in the present rounding mode: the opposite of the zero that equal numbers leave.
inline f64 neutralZero()
{
    f64 one = 1.0;
    asm volatile("" : "+x"(one));
    const f64 zero = one - one;
    return -zero;
}

template <class T> inline Number<T> neutral()
{
    if constexpr (partsOf<T> == 1)
        return neutralZero();
    else
        return {neutralZero(), neutralZero()};
}

// Two samples at a time, so that a vector of delays waits for memory every other sample only. The first delays are
// single numbers, as many as it takes for the others to come in time. Then follow whole vectors, each of which takes
// the lowest lane of the next one; the first of them is in a register. So are the last w delays, however many of them
// the other vectors have too: their last lane takes nothing, and the lane that the topmost vector below takes is read
// back from a copy.
template <int w, class T> void byVectors(const T* src, T* dst, ptrdiff_t pairs, Direct<T> f)
{
    using X = Number<T>;
    using V = Number<T, w>;
    constexpr int head = partsOf<T> == 1 ? 3 : 2;
    const int top = f.order - w, vectors = (f.order - head - 1) / w, laneTaken = head + vectors * w - top;
    X b[head + 1], a[head + 1], d[head];
    for (int k = 0; k <= head; ++k) {
        b[k] = f.b.get(k);
        if (k > 0) a[k] = f.a.get(k);
        if (k < head) d[k] = f.d.get(k);
    }
    V start = {}, last = f.d.template get<w>(top), nothing = inAllLanes<w>(neutral<T>());
    if (vectors > 0) start = f.d.template get<w>(head);
    f64 copies[2][partsOf<T> * w];
    const Row<T> copyOfFirst(copies[0], w), copyOfSecond(copies[1], w); // after the first sample of a pair, the second
    copyOfSecond.template set<w>(0, last);

    const auto input = [&](int k, V x, V y) { // of the delays from d[k] on
        return f.b.template get<w>(k + 1) * x - f.a.template get<w>(k + 1) * y;
    };
    const auto moveHead = [&](X x, X y, X above) {
#pragma GCC unroll 4
        for (int k = 0; k < head; ++k)
            d[k] = b[k + 1] * x - a[k + 1] * y + (k + 1 < head ? d[k + 1 < head ? k + 1 : k] : above);
    };

    for (; pairs > 0; --pairs, src += 2, dst += 2) {
        const X taken = copyOfSecond.get(laneTaken);
        const X x = sample(src), x2 = sample(src + 1);
        const X y = b[0] * x + d[0];
        moveHead(x, y, vectors > 0 ? lowestLane(start) : taken);
        const X y2 = b[0] * x2 + d[0];
        setSample(dst, y);
        setSample(dst + 1, y2);

        const V xs = inAllLanes<w>(x), ys = inAllLanes<w>(y), xs2 = inAllLanes<w>(x2), ys2 = inAllLanes<w>(y2);
        last = input(top, xs, ys) + lanes_shifted_down(last, nothing);
        copyOfFirst.template set<w>(0, last);
        last = input(top, xs2, ys2) + lanes_shifted_down(last, nothing);
        copyOfSecond.template set<w>(0, last);
        const X taken2 = copyOfFirst.get(laneTaken);

        X aboveHead = taken2;
        if (vectors > 0) {
            const auto stored = [&](int k) {
                return k < vectors ? f.d.template get<w>(head + k * w) : inAllLanes<w>(taken);
            };
            V above = stored(1);
            V first = input(head, xs, ys) + lanes_shifted_down(start, above), second = input(head, xs2, ys2);
            aboveHead = lowestLane(first);
            for (int k = 1; k < vectors; ++k) {
                const V now = above;
                above = stored(k + 1);
                const V next = input(head + k * w, xs, ys) + lanes_shifted_down(now, above);
                const V finished = second + lanes_shifted_down(first, next);
                if (k == 1)
                    start = finished;
                else
                    f.d.template set<w>(head + (k - 1) * w, finished);
                second = input(head + k * w, xs2, ys2);
                first = next;
            }
            const V finished = second + lanes_shifted_down(first, inAllLanes<w>(taken2));
            if (vectors == 1)
                start = finished;
            else
                f.d.template set<w>(head + (vectors - 1) * w, finished);
        }
        moveHead(x2, y2, aboveHead);
    }
    if (vectors > 0) f.d.template set<w>(head, start);
    f.d.template set<w>(top, last);
    for (int k = 0; k < head; ++k) f.d.set(k, d[k]);
}

#endif

template <class T> void filter(const T* src, T* dst, ptrdiff_t n, Direct<T> f)
{
#if SIG5D_LEVEL > 0
    if (f.order == 1) return ofLowOrder<1>(src, dst, n, f);
    if (f.order == 2) return ofLowOrder<2>(src, dst, n, f);
    if (f.order == 3) return ofLowOrder<3>(src, dst, n, f);
    if constexpr (partsOf<T> == 1) { // of complex numbers vectors take less
        if (f.order == 4) return ofLowOrder<4>(src, dst, n, f);
        if (f.order == 5) return ofLowOrder<5>(src, dst, n, f);
    }
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
