// Arrays of more than a few vectors: how map walks them, with aligned stores, several vectors at a time, and large ones
// in sections and past the caches.
#pragma once
#include "kernel/sources.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// How an operation is computed: so many vectors of so many bytes in flight; arrays that are shorter than a vector in
// one vector, or else in shorter ones.
template <int vectors, bool shortInOne, int bytes = vectorBytes> struct InFlight {
    static constexpr size_t group = vectors;
    static constexpr bool shortInOneVector = shortInOne;
    static constexpr uintptr_t vectorSize = bytes;
    template <class D>
    static constexpr size_t lanesFor = bytes == vectorBytes ? lanesOf<D> : lanesOf<D>* bytes / vectorBytes;
};
// For few instructions; for some, or for complex numbers, each of which is two vectors; for many.
using Light = InFlight<4, false>;
using Medium = InFlight<2, false>;
template <int vectors> using Heavy = InFlight<vectors, true>;

// A vector that stays in its register: compilers load it again from memory for a second use.
template <class V> inline V in_register(V v)
{
    asm("" : "+x"(v));
    return v;
}

// The next elements of a source. Operations of many instructions get them in registers.
template <class Shape, int L, class A> inline auto elements_of(A a) { return load_lanes<L>(a); }
template <class Shape, int L, class T> inline auto elements_of(const T* a)
{
    if constexpr (Shape::shortInOneVector)
        return in_register(load_lanes<L>(a));
    else
        return load_lanes<L>(a);
}

// A group of vectors, all loaded before any is stored; and not in turn to two arrays, since processors join stores that
// follow one another to a line.
template <int L, int group, class D, class Write, class V>
inline void store_group(D& d, Write write, const V (&v)[group])
{
#pragma GCC unroll 8
    for (int i = 0; i < group; ++i) {
        store_lanes<L>(write, d + i * L, v[i]);
        pin(d);
    }
}
template <int L, int group, class T, class Write, class V>
inline void store_group(TwoArrays<T>& d, Write write, const V (&v)[group])
{
#pragma GCC unroll 8
    for (int i = 0; i < group; ++i) {
        const auto [first, second] = v[i];
        store_lanes<L>(write, d.first + i * L, first);
        pin(d.first);
    }
#pragma GCC unroll 8
    for (int i = 0; i < group; ++i) {
        const auto [first, second] = v[i];
        store_lanes<L>(write, d.second + i * L, second);
        pin(d.second);
    }
}
template <class Shape, class D, class Write, class Op, class... A>
[[gnu::always_inline]] inline void map_group(D& d, Write write, Op op, A&... a)
{
    constexpr int L = Shape::template lanesFor<D>, group = Shape::group;
    decltype(op(load_lanes<L>(a)...)) v[group];
#pragma GCC unroll 8
    for (int i = 0; i < group; ++i) v[i] = op(elements_of<Shape, L>(a + i * L)...);
    store_group<L>(d, write, v);
    d = d + group * L;
    (void(a = a + group * L), ...);
    pin(d);
}

// As many groups as there are. Returns the elements that are left.
template <class Shape, class D, class Write, class Op, class... A>
[[gnu::always_inline]] inline size_t map_groups(size_t n, D d, Write write, Op op, A... a)
{
    constexpr size_t all = Shape::group * Shape::template lanesFor<D>;
    if constexpr (std::is_same_v<Shape, Light> && std::is_same_v<Write, Ordinary>) // memory is slower than the loop
        for (; n >= 2 * all; n -= 2 * all) {
            map_group<Shape>(d, write, op, a...);
            map_group<Shape>(d, write, op, a...);
        }
#pragma GCC unroll 1
    for (; n >= all; n -= all) map_group<Shape>(d, write, op, a...);
    return n;
}

// The same, run by run.
template <class Shape, class D, class Write, class Op, class... A>
[[gnu::always_inline]] inline size_t map_runs(Runs run, D d, Write write, Op op, A... a)
{
    size_t left;
    do {
        left = map_groups<Shape>(run.length, d + run.begin, write, op, a + run.begin...);
    } while (run.next());
    return left;
}

// How a large array d is written. In sections: where every source is d itself or has no byte in common with it. Past
// the caches: where none is d.
struct LargeArray {
    bool inSections, pastCaches;
    template <class V> void operator()(void* p, V v) const
    {
        if (pastCaches)
            stream(p, v);
        else
            store_at(p, v);
    }
};
template <class D, class A> inline bool same_array(D d, A a)
{
    if constexpr (isArray<A>)
        return span(d, 0).p == span(a, 0).p && span(d, 1).bytes == span(a, 1).bytes;
    else
        return false;
}
template <class D, class... A> inline LargeArray large_array(size_t n, D d, A... a)
{
    if (!streamingPays(span(d, n).bytes)) return {false, false};
    return {((same_array(d, a) || apart(span(d, n), span(a, n))) && ...), (apart(span(d, n), span(a, n)) && ...)};
}
template <class T, class... A> inline LargeArray large_array(size_t n, TwoArrays<T> d, A... a)
{
    if (!streamingPays(2 * u64{n} * sizeof(T))) return {false, false};
    const bool isApart = ((apart(span(d.first, n), span(a, n)) && apart(span(d.second, n), span(a, n))) && ...);
    return {isApart, isApart};
}

// The address by which a destination is aligned, and whether its vectors are.
template <class D> inline const void* address_of(D d) { return span(d, 0).p; }
template <class T> inline const void* address_of(TwoArrays<T> d) { return d.first; }
template <class D> inline bool vectors_aligned(D d, uintptr_t bytes) { return aligned(address_of(d), bytes); }
template <class T> inline bool vectors_aligned(TwoArrays<T> d, uintptr_t bytes)
{
    return aligned(d.first, bytes) && aligned(d.second, bytes);
}

// From one to L elements, to where d begins a vector or group of L lanes (as far as elements reach such an address).
template <size_t L, class D> inline size_t to_alignment(D d)
{
    const size_t each =
        static_cast<size_t>(static_cast<const u8*>(address_of(d + 1)) - static_cast<const u8*>(address_of(d)));
    return L - reinterpret_cast<uintptr_t>(address_of(d)) % (L * each) / each;
}

// How an array whose vectors are aligned is walked: large ones in sections. Up to the beginning of a line some elements
// may be computed twice, but where a source is the destination.
template <class Shape, class D> inline Runs runs_of(size_t n, D d, LargeArray large)
{
    constexpr size_t L = Shape::template lanesFor<D>, group = Shape::group * L,
                     turn = bytesInTurn / Shape::vectorSize * L;
    static_assert(turn % group == 0);
    if (!large.inSections) return Runs(n);
    const size_t toLine = to_alignment<64 / Shape::vectorSize * L>(d) % (64 / Shape::vectorSize * L);
    return Runs(n, large.pastCaches ? toLine : 0, group, turn);
}

// An array of more than four groups: all groups from the first aligned element on, which the first vector reaches.
// Returns how many elements are left.
template <class Shape, class D, class Op, class... A>
[[gnu::always_inline]] inline size_t map_long(size_t n, D d, Op op, A... a)
{
    constexpr size_t L = Shape::template lanesFor<D>;
    size_t skip = to_alignment<L>(d);
    if constexpr (std::is_same_v<Shape, Light>) skip %= L; // often leaves whole groups, with nothing behind them
    // A value that is repeated in a vector of bytes must begin anew there.
    if constexpr (requires { op.period; }) skip &= ~(op.period - 1);
    LargeArray large = large_array(n, d, a...);
    d = d + skip;
    (void(a = a + skip), ...);
    n -= skip;
    if (!vectors_aligned(d, Shape::vectorSize)) large = {false, false};
    const Runs runs = runs_of<Shape>(n, d, large);
    if constexpr (std::is_same_v<Shape, Light>)
        n = large.pastCaches ? map_runs<Shape>(runs, d, PastCaches{}, op, a...)
                             : map_runs<Shape>(runs, d, Ordinary{}, op, a...);
    else // in one place, since more is made of the operation than of the question at each store
        n = map_runs<Shape>(runs, d, large, op, a...);
    if (large.pastCaches) stream_end();
    return n;
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
