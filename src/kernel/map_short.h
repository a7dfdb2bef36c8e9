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

// Whether the first elements of a source or destination can be moved alone, as lanes of a whole vector.
template <class A, size_t L> constexpr bool maskable = false;
template <class T, size_t L>
requires(hasMaskedMoves && (std::is_integral_v<T> ||
                            std::is_floating_point_v<T>)) constexpr bool maskable<T*, L> = L * sizeof(T) == vectorBytes;
template <class T, size_t L> constexpr bool maskable<TwoArrays<T>, L> = maskable<T*, L>;

// The first n elements of an array; the other lanes repeat the first one, since no lane computes with anything else.
template <size_t L, class T> inline Vec<T, L> load_first(const T* a, size_t n)
{
    return load_masked(a, n, splatn<L>(*a));
}
template <class T, class V> inline void store_first(T* d, size_t n, V v) { store_masked(d, n, v); }
template <class T, class V> inline void store_first(TwoArrays<T> d, size_t n, const V& v)
{
    const auto [first, second] = v;
    store_masked(d.first, n, first);
    store_masked(d.second, n, second);
}

// 0 <= n < L. Processors with masks need neither branches nor a second form of the operation, unless that needs the
// neighbours of a lane: pairs in one vector took twice as long for a single one.
template <size_t L, bool inOneVector, class D, class Op, class... A>
[[gnu::always_inline]] inline void map_fewer(size_t n, D d, Op op, A... a)
{
    constexpr bool bound = requires { Op::needsNeighbours; }
    || requires { Op::period; };
    if constexpr (!bound && maskable<D, L> && (maskable<A, L> && ...)) {
        if (n > 0) store_first(d, n, op(load_first<L>(a, n)...));
    } else if constexpr (inOneVector) {
        map_ends<L>(n, d, op, a...);
    } else {
        map_halves<L / 2>(n, d, op, a...);
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
