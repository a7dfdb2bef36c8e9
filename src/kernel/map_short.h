// Arrays with fewer elements than a vector: how map computes them, and how it stores them.
#pragma once
#include "kernel/sources.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The largest power of two of elements that fits, once from either end: for operations of few instructions. Both are
// computed before anything is stored, since a source may be the destination.
template <int L, class D, class Op, class... A> inline void map_halves(size_t n, D d, Op op, A... a)
{
    if constexpr (L == 0) {
        return;
    } else if (n >= L) {
        const auto head = op(load_lanes<L>(a)...), tail = op(load_lanes<L>(a + (n - L))...);
        store_lanes<L>(Ordinary{}, d, head);
        store_lanes<L>(Ordinary{}, d + (n - L), tail);
    } else {
        map_halves<L / 2>(n, d, op, a...);
    }
}

// What load_ends put side by side goes back to either end of the array.
template <int L, class D, class V> [[gnu::always_inline]] inline void store_ends(D d, size_t n, V v)
{
    constexpr int half = L / 2;
    if constexpr (half > 1)
        if (n < half) return store_ends<half>(d, n, v);
    store_lanes<half>(Ordinary{}, d, v);
    store_lanes<half>(Ordinary{}, d + (n - half), upper_lanes<half>(v));
}
template <int L, class T, class V> [[gnu::always_inline]] inline void store_ends(TwoArrays<T> d, size_t n, const V& v)
{
    const auto [first, second] = v;
    store_ends<L>(d.first, n, first);
    store_ends<L>(d.second, n, second);
}

// In one vector: for operations of more instructions, which then stand in fewer places.
template <int L, class D, class Op, class... A>
[[gnu::always_inline]] inline void map_ends(size_t n, D d, Op op, A... a)
{
    if (n > 0) store_ends<L>(d, n, op(load_ends<L>(a, n)...));
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
