// A symmetric window over an array: from both ends towards the middle, each weight for two elements. Weights come in
// stretches: "weights.stretch(i, n, use)" calls use(w), where w.at(k) is a vector of weights from element i + k on;
// "weights.length()" tells how many there are at most. What a vector has beyond n is not used.
#pragma once
#include "kernel/pairs.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr size_t mostWeights = 128; // of a stretch

template <class V, size_t... i> inline V reversed_lanes(V v, std::index_sequence<i...>)
{
    return __builtin_shufflevector(v, v, (sizeof...(i) - 1 - i)...);
}
// Each of half the lanes, from the first of them on, twice.
template <size_t first, class V, size_t... i> inline V doubled_lanes(V v, std::index_sequence<i...>)
{
    return __builtin_shufflevector(v, v, (first + i / 2)...);
}

inline f64 weighted(f64 x, f64 w) { return x * w; }
inline c64f weighted(c64f x, f64 w) { return {x.re * w, x.im * w}; }

// Weights that stand in memory.
struct StoredWeights {
    const f64* w;
    Vec<f64> at(size_t k) const { return load(w + k); }
};

// d = a * w from `front` on, and d = a * w backwards from the element before `back`.
template <class T, class W>
[[gnu::noinline]] void weigh_ends(const T* a, T* d, size_t front, size_t back, const W& weights, size_t n)
{
    const W w = weights; // in registers: stores could change it elsewhere
    constexpr size_t L = lanes<f64>;
    size_t k = 0;
#if SIG5D_LEVEL > 0
    constexpr auto all = std::make_index_sequence<L>{};
    if constexpr (sizeof(T) == sizeof(f64)) {
        // Two at each end: stores to one cache line go together.
        for (; k + 2 * L <= n; k += 2 * L) {
            const Vec<f64> v0 = w.at(k), v1 = w.at(k + L);
            const f64 *const p = a + front + k, *const q = a + back - k - 2 * L;
            f64 *const to = d + front + k, *const toLast = d + back - k - 2 * L;
            const Vec<f64> first0 = load(p) * v0, first1 = load(p + L) * v1;
            const Vec<f64> last0 = load(q) * reversed_lanes(v1, all), last1 = load(q + L) * reversed_lanes(v0, all);
            store(to, first0);
            store(to + L, first1);
            store(toLast, last0);
            store(toLast + L, last1);
        }
    } else {
        for (; k + L <= n; k += L) {
            const Vec<f64> v = w.at(k);
            const f64 *const p = parts_of(a + front + k), *const q = parts_of(a + back - k - L);
            f64 *const to = parts_of(d + front + k), *const toLast = parts_of(d + back - k - L);
            const Vec<f64> low = doubled_lanes<0>(v, all), high = doubled_lanes<L / 2>(v, all);
            const Vec<f64> first0 = load(p) * low, first1 = load(p + L) * high;
            const Vec<f64> last0 = load(q) * reversed_lanes(high, all), last1 = load(q + L) * reversed_lanes(low, all);
            store(to, first0);
            store(to + L, first1);
            store(toLast, last0);
            store(toLast + L, last1);
        }
    }
#endif
    for (; k < n; k += L) {
        f64 left[L];
        store(left, w.at(k));
        for (size_t i = k; i < n && i < k + L; ++i) {
            asm("" : "+r"(i)); // no vectors of less than a vector
            const T first = weighted(a[front + i], left[i - k]), last = weighted(a[back - 1 - i], left[i - k]);
            d[front + i] = first;
            d[back - 1 - i] = last;
        }
    }
}

// All but the middle of an odd number of elements.
template <class T, class Weights> inline void weigh(const T* a, T* d, size_t n, Weights& weights)
{
    const size_t most = weights.length();
    for (size_t i = 0, count; i < n / 2; i += count) {
        count = n / 2 - i < most ? n / 2 - i : most;
        weights.stretch(i, count, [=](const auto& w) { weigh_ends(a, d, i, n - i, w, count); });
    }
}
template <class T> inline void copy_middle(const T* a, T* d, size_t n)
{
    if (n % 2) d[n / 2] = a[n / 2];
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
