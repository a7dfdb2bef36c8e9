// The loops of sliding sums, in the words of a FIR filter: y[i] = sum of r[k] * x[i + k] over k = 0..taps-1, with r the
// taps in reversed order. Each output is one running sum that starts from 0.0 and takes the oldest sample first, so the
// work goes in parallel across outputs only and every vector width gives the same bits.
//
// What bounds such a kernel is loads, half of them across cache lines: a product needs a vector of samples. A block
// therefore works on `groups` sets of outputs at once, each set one vector behind the one before in its taps, so that
// all need the same samples at the same time: groups + columns loads serve groups * columns products. Of the multiply
// and add peak of a Sapphire Rapids core the AVX2 body reaches 81, 92 and 95 % at 16, 64 and 256 taps with 3 x 3, and
// 78, 84 and 83 % with a load per product.
#pragma once
#include "signal/processing/sliding/shape.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Arithmetic on w elements of T side by side: Sum accumulates, Tap and Signal are what a product takes.
template <class T, int w> struct Side;

template <int w> struct Side<f64, w> {
    static constexpr int width = w;
    using Sum = Vec<f64, w>;
    using Tap = Sum;
    using Signal = Sum;
    static Sum zero() { return splatn<w>(0.0); }
    static Tap tap(const f64& h) { return broadcast<w>(&h); }
    static Signal signal(const f64* x) { return loadn<w>(x); }
    static void add(Sum& s, Tap h, Signal x) { s += h * x; }
    static Sum get(const f64* y) { return loadn<w>(y); }
    static void put(f64* y, Sum s) { storen<w>(y, s); }
};

// A complex product is (h.re*x.re - h.im*x.im, h.re*x.im + h.im*x.re): both parts are finished, then added to the sum.
// The subtraction is written as the addition of the exactly negated product, so that one form serves both parts.
template <int w> struct Side<c64f, w> {
    static constexpr int width = w;
    using Sum = Vec<f64, 2 * w>;
    struct Tap {
        Sum re, im; // im: -h.im for real parts, h.im for imaginary parts
    };
    struct Signal {
        Sum x, crossed; // crossed: parts exchanged
    };
    static Sum zero() { return splatn<2 * w>(0.0); }
    static Tap tap(const c64f& h) { return {broadcast<2 * w>(&h.re), negated_firsts(broadcast<2 * w>(&h.im))}; }
    static Signal signal(const c64f* p)
    {
        const Sum x = loadn<2 * w>(&p->re);
        return {x, swapped(x)};
    }
    static void add(Sum& s, const Tap& h, const Signal& x) { s += h.re * x.x + h.im * x.crossed; }
    static Sum get(const c64f* y) { return loadn<2 * w>(&y->re); }
    static void put(c64f* y, Sum s) { storen<2 * w>(&y->re, s); }
};

#if SIG5D_LEVEL == 0
template <> struct Side<c64f, 1> {
    static constexpr int width = 1;
    using Sum = c64f;
    struct Tap {
        f64 re, im, minusIm;
    };
    using Signal = c64f;
    static Sum zero() { return {0.0, 0.0}; }
    static Tap tap(const c64f& h)
    {
        f64 minusIm = -h.im;
        asm("" : "+x"(minusIm)); // a subtraction would round differently in some directions
        return {h.re, h.im, minusIm};
    }
    static Signal signal(const c64f* x) { return *x; }
    static void add(Sum& s, const Tap& h, const Signal& x)
    {
        s.re += h.re * x.re + h.minusIm * x.im;
        s.im += h.re * x.im + h.im * x.re;
    }
    static Sum get(const c64f* y) { return *y; }
    static void put(c64f* y, const Sum& s) { *y = s; }
};
#endif

// Where a column stands: regularly, but the last one where it is told.
template <int stride, int columns> [[gnu::always_inline]] inline int at(int column, int last)
{
    return column == columns - 1 ? last : column * stride;
}

// Steps t = from..to-1 of the groups lo..hi-1. x and r point to the first sample and tap of the block; group i takes
// tap t - i * width at step t.
template <class S, int lo, int hi, int groups, int columns, class T>
[[gnu::always_inline]] inline void steps(typename S::Sum (&sum)[groups][columns], const T* x, const T* r, int from,
                                         int to, int last)
{
    constexpr int w = S::width;
    for (int t = from; t < to; ++t) {
        typename S::Tap tap[groups];
#pragma GCC unroll 4
        for (int i = lo; i < hi; ++i) tap[i] = S::tap(r[t - i * w]);
#pragma GCC unroll 16
        for (int j = 0; j < columns; ++j) {
            const typename S::Signal signal = S::signal(x + t + at<groups * w, columns>(j, last));
#pragma GCC unroll 4
            for (int i = lo; i < hi; ++i) S::add(sum[i][j], tap[i], signal);
        }
        // Samples and taps are loaded where they are used: to carry them over to a later step takes registers that are
        // not there.
        asm volatile("" ::: "memory");
    }
}

// groups * columns vectors of outputs, from at least (groups - 1) * width taps. The last column stands at output
// `last`, so that it may overlap the one before where there are not enough outputs. `more`: sums that go on from y.
template <class S, int groups, int columns, class T>
[[gnu::always_inline]] inline void block(const T* x, const T* r, int taps, T* y, int last, bool more)
{
    constexpr int w = S::width;
    static_assert(groups <= 4);
    typename S::Sum sum[groups][columns];
#pragma GCC unroll 4
    for (int i = 0; i < groups; ++i)
#pragma GCC unroll 16
        for (int j = 0; j < columns; ++j)
            sum[i][j] = more ? S::get(y + at<groups * w, columns>(j, last) + i * w) : S::zero();
    if constexpr (groups > 1) steps<S, 0, 1>(sum, x, r, 0, w, last);
    if constexpr (groups > 2) steps<S, 0, 2>(sum, x, r, w, 2 * w, last);
    if constexpr (groups > 3) steps<S, 0, 3>(sum, x, r, 2 * w, 3 * w, last);
    steps<S, 0, groups>(sum, x, r, (groups - 1) * w, taps, last);
    if constexpr (groups > 2) steps<S, 1, groups>(sum, x, r, taps, taps + w, last);
    if constexpr (groups > 3) steps<S, 2, groups>(sum, x, r, taps + w, taps + 2 * w, last);
    if constexpr (groups > 1) {
        steps<S, groups - 1, groups>(sum, x, r, taps + (groups - 2) * w, taps + (groups - 1) * w, last);
    }
#pragma GCC unroll 4
    for (int i = 0; i < groups; ++i)
#pragma GCC unroll 16
        for (int j = 0; j < columns; ++j) S::put(y + at<groups * w, columns>(j, last) + i * w, sum[i][j]);
}

// n outputs, n <= columns * width: the smallest block that holds them.
template <class S, int columns, class T> inline void few(const T* x, const T* r, int taps, T* y, int n, bool more)
{
    constexpr int w = S::width;
    if constexpr (columns == 1 && w > 1) {
        if (n < w) return few<Side<T, w / 2>, 2>(x, r, taps, y, n, more);
    }
    if constexpr (columns > 1) {
        if (n <= (columns - 1) * w) return few<S, columns - 1>(x, r, taps, y, n, more);
    }
    block<S, 1, columns>(x, r, taps, y, n - w, more);
}

template <class T> using Widest = Side<T, widest<T>>;

// y[i] = sum of r[k] * x[i + k], i = 0..n-1, or that on top of y[i]. x holds n + taps - 1 samples and does not overlap
// y.
template <class T> void blocks(const T* x, const T* r, int taps, T* y, int n, bool more)
{
    constexpr int w = widest<T>, rows = groups<T>, all = groups<T> * columns<T>;
    using S = Widest<T>;
    int i = 0;
    if (taps < (rows - 1) * w) {
        for (; n - i >= all * w; i += all * w) block<S, 1, all>(x + i, r, taps, y + i, (all - 1) * w, more);
    } else {
        for (; n - i >= all * w; i += all * w) {
            block<S, rows, columns<T>>(x + i, r, taps, y + i, (columns<T> - 1) * rows * w, more);
        }
    }
    if (i < n) {
        if (!more && i > 0) i = n - (n - i + w - 1) / w * w; // whole vectors, the first of them again
        few<S, all>(x + i, r, taps, y + i, n - i, more);
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
