// The loop of element-wise work: d[i] = op(a[i], ...) for 0 <= i < n. What d and the a are, kernel/sources.h tells. An
// operation is a record with a templated call operator, so that one expression serves single elements (in px) and
// vectors of any width.
#pragma once
#include "kernel/map_long.h"
#include "kernel/map_short.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct Same {
    template <class V> V operator()(V x) const { return x; }
};

// A source may be d itself, or overlap it and begin behind it.
//
// The first and the last vector overlap the others, so that no element is left over: they are computed before anything
// is stored. Those between them begin at the second vector of an array of few vectors; in longer ones at an aligned
// address, since stores that cross a cache line take twice as long.
//
// Always inlined, so that an operation may hold vectors: as arguments of a real function those of 32 bytes would leave
// the upper halves of registers in use, which slows down all code after it.
template <class Shape = Light, class D, class Op, class... A>
[[gnu::always_inline]] inline void map(size_t n, D d, Op op, A... a)
{
    constexpr size_t L = Shape::template lanesFor<D>;
    if constexpr (lanes<u8> == 1) {
        for (size_t i = 0; i < n; ++i) store_lanes<1>(Ordinary{}, d + i, op(load_lanes<1>(a + i)...));
    } else {
        if (n < L) return map_fewer<L, Shape::shortInOneVector>(n, d, op, a...);
        const D last = d + (n - L);
        const auto head = op(load_lanes<L>(a)...), tail = op(load_lanes<L>(a + (n - L))...);
        if (n <= 2 * L) {
            store_lanes<L>(Ordinary{}, d, head);
            return store_lanes<L>(Ordinary{}, last, tail);
        }
        size_t done = L;
        if (n > 4 * Shape::group * L) {
            done = n - map_long<Shape>(n, d, op, a...);
        } else if (std::is_same_v<Shape, Light> && n <= 4 * L) { // without a loop
            const auto second = op(load_lanes<L>(a + L)...), third = op(load_lanes<L>(a + (n - 2 * L))...);
            store_lanes<L>(Ordinary{}, d + L, second);
            store_lanes<L>(Ordinary{}, d + (n - 2 * L), third);
            done = n;
        }
        store_lanes<L>(Ordinary{}, d, head);
        for (; done + L < n; done += L) store_lanes<L>(Ordinary{}, d + done, op(elements_of<Shape, L>(a + done)...));
        store_lanes<L>(Ordinary{}, last, tail);
    }
}

// The same for operations of dozens of steps, each of which waits for the one before: op.second(op.first(a[i], ...)).
// The first half for the next vector is computed between the halves for this one: so the processor, whose view ahead
// ends within one vector's steps, always finds some that wait for nothing. The loop stands in one place only, or
// operations so long would fill the instruction cache.
template <class D, class Op, class... A> [[gnu::always_inline]] inline void map_overlapped(size_t n, D d, Op op, A... a)
{
    constexpr size_t L = lanesOf<D>;
    const auto whole = [op](auto... x) { return op.second(op.first(x...)); };
    if constexpr (lanes<u8> == 1) {
        map(n, d, whole, a...);
    } else {
        if (n < L) return map_fewer<L, true>(n, d, whole, a...);
        const size_t last = n - L;
        auto half_done = op.first(load_lanes<L>(a)...);
        for (size_t i = 0;;) {
            const size_t next = i + L < last ? i + L : last;
            const auto following = op.first(load_lanes<L>(a + next)...);
            store_lanes<L>(Ordinary{}, d + i, op.second(half_done));
            if (i == last) return;
            half_done = following;
            i = next;
        }
    }
}

// One loop for all types, where only bytes count and not the elements that they make up; in px one by one.
template <class Op, class... A> [[gnu::noinline]] void map_bytes(size_t n, u8* d, Op op, A... a)
{
    map(n, d, op, a...);
}
template <class Op, class D, class... A> inline void map_as_bytes(int n, D* d, Op op, const A*... a)
{
    if constexpr (lanes<u8> == 1)
        map(static_cast<size_t>(n), d, op, a...);
    else
        map_bytes(static_cast<size_t>(n) * sizeof(D), reinterpret_cast<u8*>(d), op, reinterpret_cast<const u8*>(a)...);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
