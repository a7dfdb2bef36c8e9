// A symmetric window over an array: from both ends towards the middle, each weight for two elements. Weights are made
// by "weights.fill(w, i, n)": those of elements i to i + n - 1, where i is a multiple of weightsAtOnce; up to a
// vector's end it may write more.
#pragma once
#include "kernel/pairs.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr size_t weightsAtOnce = 128;

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

// d = a * w from `front` on, and d = a * w backwards from the element before `back`.
template <class T>
[[gnu::noinline]] void weigh_ends(const T* a, T* d, size_t front, size_t back, const f64* w, size_t n)
{
    size_t k = 0;
#if SIG5D_LEVEL > 0
    constexpr size_t L = lanes<f64>;
    constexpr auto all = std::make_index_sequence<L>{};
    for (; k + L <= n; k += L) {
        const Vec<f64> v = load(w + k);
        if constexpr (sizeof(T) == sizeof(f64)) {
            const Vec<f64> first = load(a + front + k) * v, last = load(a + back - k - L) * reversed_lanes(v, all);
            store(d + front + k, first);
            store(d + back - k - L, last);
        } else {
            const f64 *const p = parts_of(a + front + k), *const q = parts_of(a + back - k - L);
            f64 *const to = parts_of(d + front + k), *const toLast = parts_of(d + back - k - L);
            const Vec<f64> low = doubled_lanes<0>(v, all), high = doubled_lanes<L / 2>(v, all);
            const Vec<f64> first = load(p) * low, second = load(p + L) * high;
            const Vec<f64> lastButOne = load(q) * reversed_lanes(high, all),
                           last = load(q + L) * reversed_lanes(low, all);
            store(to, first);
            store(to + L, second);
            store(toLast, lastButOne);
            store(toLast + L, last);
        }
    }
#endif
    for (; k < n; ++k) {
        asm("" : "+r"(k)); // no vectors of less than a vector
        const T first = weighted(a[front + k], w[k]), last = weighted(a[back - 1 - k], w[k]);
        d[front + k] = first;
        d[back - 1 - k] = last;
    }
}

// All but the middle of an odd number of elements.
template <class T, class Weights> inline void weigh(const T* a, T* d, size_t n, Weights& weights)
{
    alignas(64) f64 w[weightsAtOnce];
    for (size_t i = 0, count; i < n / 2; i += count) {
        count = n / 2 - i < weightsAtOnce ? n / 2 - i : weightsAtOnce;
        weights.fill(w, i, count);
        weigh_ends(a, d, i, n - i, w, count);
    }
}
template <class T> inline void copy_middle(const T* a, T* d, size_t n)
{
    if (n % 2) d[n / 2] = a[n / 2];
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
