// Medians of three and of five: minima and maxima of whole vectors, from the last results to the first.
#pragma once
#include "kernel/partial.h"
#include "signal/processing/median/keys.h"
#include "signal/processing/median/specials.h"
#include "signal/processing/median/stream.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class V> inline V middle(V a, V b, V c) { return larger(smaller(a, b), smaller(larger(a, b), c)); }
template <class V> inline V middle(V a, V b, V c, V d, V e)
{
    return middle(e, larger(smaller(a, b), smaller(c, d)), smaller(larger(a, b), larger(c, d)));
}
// Of the elements up to p, from vectors that load(q) gives.
template <int mask, class T, class Load> [[gnu::always_inline]] inline auto middle_at(const T* p, Load load)
{
    if constexpr (mask == 3)
        return middle(load(p), load(p - 1), load(p - 2));
    else
        return middle(load(p), load(p - 1), load(p - 2), load(p - 3), load(p - 4));
}

#if SIG5D_LEVEL > 0

// d[i] from a[i] and those before it, i < vectors * L: all loaded before any is stored.
template <int mask, int vectors, int L, class T> [[gnu::always_inline]] inline void network(const T* a, T* d)
{
    Vec<T, L> v[vectors];
#pragma GCC unroll 8
    for (int i = 0; i < vectors; ++i) v[i] = middle_at<mask>(a + i * L, [](const T* p) { return loadn<L>(p); });
#pragma GCC unroll 8
    for (int i = 0; i < vectors; ++i) storen<L>(d + i * L, v[i]);
}
// Of doubles by their keys: where some are not ordered as numbers are.
template <int mask, int vectors, int L> [[gnu::noinline]] void network_of_keys(const f64* a, f64* d)
{
    Vec<i64, L> v[vectors];
#pragma GCC unroll 1
    for (int i = 0; i < vectors; ++i)
        v[i] = middle_at<mask>(a + i * L, [](const f64* p) { return keys_of<L>(as<Vec<i64, L>>(loadn<L>(p))); });
#pragma GCC unroll 1
    for (int i = 0; i < vectors; ++i) storen<L>(d + i * L, as<Vec<f64, L>>(elements_of_keys<L>(v[i])));
}

template <int mask, int vectors, class T> [[gnu::always_inline]] inline void network_of(const T* a, T* d)
{
    constexpr int L = lanes<T>;
    if constexpr (std::is_same_v<T, f64>)
        if (any_special<vectors, mask - 1>(a)) return network_of_keys<mask, vectors, L>(a, d);
    network<mask, vectors, L>(a, d);
}

#endif

// d[i] = the median of a[i - mask + 1] ... a[i], i < n.
template <int mask, class T> [[gnu::noinline]] void networks(const T* a, T* d, ptrdiff_t n)
{
#if SIG5D_LEVEL > 0
    constexpr int L = lanes<T>, group = std::is_same_v<T, f64> ? 4 : 2;
    while (n >= group * L) {
        n -= group * L;
        network_of<mask, group>(a + n, d + n);
    }
    while (n >= L) {
        n -= L;
        network_of<mask, 1>(a + n, d + n);
    }
#endif
    while (n-- > 0) set_element(d[n], middle_at<mask>(a + n, [](const T* p) { return key_of(*p); }));
}

// The first results, which have history in their window, and the others; run is what does networks of this mask.
template <class T>
[[gnu::noinline]] void small_median(const Stream<T>& x, T* d, T* next, void (*run)(const T*, T*, ptrdiff_t))
{
    T begin[8], tail[4];
    const ptrdiff_t some = x.length < x.delay ? x.length : x.delay;
    copy_stream(x, -x.delay, begin, x.delay + some);
    copy_tail(x, tail);
    run(x.src + some, d + some, x.length - some);
    run(begin + x.delay, begin + x.delay, some);
    copy_few(begin + x.delay, d, some);
    if (next) copy_few(tail, next, x.delay);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
