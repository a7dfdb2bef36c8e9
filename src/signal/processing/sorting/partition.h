// The division of an array: keys up to the pivot first, then those above it.
#pragma once
#include "kernel/partial.h"
#include "signal/processing/sorting/keys.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// One by one, without a branch that depends on the keys. Returns how many stand in the first part.
template <class A> inline size_t partition_singly(A a, size_t n, typename A::Key pivot)
{
    size_t low = 0;
    for (size_t i = 0; i < n; ++i) {
        const auto key = a.key[i];
        a.key[i] = a.key[low];
        a.key[low] = key;
        if constexpr (A::paired) exchange(a.place[i], a.place[low]);
        low += key <= pivot;
    }
    return low;
}

// By vectors: each is divided, and the whole of it stored at both ends of the room that is free between what is done on
// either side; what is of the other side there will be overwritten. (Bramas, A novel hybrid quicksort algorithm
// vectorized using AVX-512, 2017, stores with masks; vqsort divides by tables.) Free room is made by setting blocks
// aside. Each further block is taken from the end where less room is free. That is decided while the block before it
// waits to be stored, so that loads never wait for counts: three blocks set aside are enough for it. With one in hand
// four are free: at least one at either end, and at most two at that which the next is taken from. A stored block takes
// one at most of an end, and the next one gives one back where less than two were.
// "least" are the elements of the shortest array: three blocks at least.
template <class A, size_t least> struct Divider {
    using K = typename A::Key;
    static constexpr int L = lanesParted<sizeof(K)>;
    static constexpr size_t most = A::paired ? 4 : 8, vectors = least < 3 * most * L ? least / (3 * L) : most;
    static constexpr size_t block = vectors * L, aside = 3 * block;
    using V = Vec<K, L>;

    struct Room {
        K key[4 * block];
        i32 place[A::paired ? 4 * block : 1];
        static Keys<K> of(K* k, i32*) requires(!A::paired) { return {k}; }
        static Pairs<K> of(K* k, i32* p) requires(A::paired) { return {k, p}; }
    };
    struct Loaded {
        V key;
        Vec<i32, L == 2 ? 4 : L> place;
    };

    V pivots;
    A low, high;     // where the next vector would go if all before it were of the other side
    size_t back = 0; // so many elements before that: those above the pivot, with the other sign

    [[gnu::always_inline]] static Loaded load(A from)
    {
        Loaded v{};
        v.key = loadn<L>(from.key);
        if constexpr (A::paired) v.place = load_lanes<L>(from.place);
        return v;
    }
    [[gnu::always_inline]] static void store(A to, const Loaded& v)
    {
        storen<L>(to.key, v.key);
        if constexpr (A::paired) store_part<4 * L>(to.place, v.place);
    }
    [[gnu::always_inline]] static void copy(A from, A to, size_t n)
    {
        for (size_t i = 0; i < n; i += L) store(to.from(i), load(from.from(i)));
    }
    [[gnu::always_inline]] void put(const Loaded& loaded, size_t number)
    {
        const u32 set = lanes_above(loaded.key, pivots);
        Loaded v{};
        v.key = parted(loaded.key, set);
        if constexpr (A::paired) v.place = parted_low<L>(loaded.place, set);
        store(low.from(number * L + back), v);
        store(high.from(back), v);
        back -= bit_count(set);
    }
    [[gnu::always_inline]] void put(A from, K pivot)
    {
        const auto key = from.key[0];
        const A first = low.from(back), last = high.from(L - 1 + back);
        first.key[0] = last.key[0] = key;
        if constexpr (A::paired) first.place[0] = last.place[0] = from.place[0];
        back -= key > pivot;
        low = low.from(1);
    }

    [[gnu::always_inline]] static size_t divide(A a, size_t n, K pivot)
    {
        Room room;
        const A rest = Room::of(room.key, room.place);
        Divider d{splatn<L>(pivot), a, a.from(n - L)};
        copy(a, rest, 2 * block);
        copy(a.from(n - block), rest.from(2 * block), block);
        // What has not been loaded: "left" elements from "next" on, with "spare" places before them.
        A next = a.from(2 * block);
        size_t left = n - aside;
        if (left >= block) {
            A now = next.from(left -= block);
            for (;;) {
                Loaded v[vectors];
#pragma GCC unroll 8
                for (size_t i = 0; i < vectors; ++i) v[i] = load(now.from(i * L));
                const bool more = left >= block;
                if (more) {
                    const size_t spare = static_cast<size_t>(next.key - d.low.key) - d.back;
                    const size_t first = 0 - static_cast<size_t>(spare <= 2 * block); // all bits or none
                    left -= block;
                    now = next.from(left & ~first);
                    next = next.from(block & first);
                }
#pragma GCC unroll 8
                for (size_t i = 0; i < vectors; ++i) d.put(v[i], i);
                d.low = d.low.from(block);
                if (!more) break;
            }
        }
        copy(next, rest.from(aside), block);
        left += aside;
        // Single ones first: the room is then one of whole vectors, of which the last one fills all that is left.
        size_t i = 0;
        for (; i < left % L; ++i) d.put(rest.from(i), pivot);
        for (; i < left; i += L, d.low = d.low.from(L)) d.put(load(rest.from(i)), 0);
        return n + d.back;
    }
};

template <size_t least, class A> [[gnu::noinline]] size_t partition(A a, size_t n, typename A::Key pivot)
{
    constexpr int L = lanesParted<sizeof(typename A::Key)>;
    if constexpr (L == 1)
        return partition_singly(a, n, pivot);
    else
        return Divider<A, least>::divide(a, n, pivot);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
