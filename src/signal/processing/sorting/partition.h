// The division of an array: keys up to the pivot first, then those above it.
#pragma once
#include "kernel/simd/parted.h"
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
template <class A> struct Divider {
    using K = typename A::Key;
    static constexpr int L = lanesParted<sizeof(K)>;
    static constexpr size_t vectors = 4, block = vectors * L, aside = 3 * block;
    using V = Vec<K, L>;
    using P = Vec<i32, L>;

    A a;
    size_t n;
    K pivot;
    V pivots = splatn<L>(pivot);
    size_t done = 0, above = 0; // stored in all, and of them the upper ones

    struct Room {
        K key[4 * block];
        i32 place[A::paired ? 4 * block : 1];
        A array() { return of(key, place); }
        static Keys<K> of(K* k, i32*) requires(!A::paired) { return {k}; }
        static Pairs<K> of(K* k, i32* p) requires(A::paired) { return {k, p}; }
    };
    struct Loaded {
        V key;
        P place;
    };
    static Loaded load(A from)
    {
        Loaded v{};
        v.key = loadn<L>(from.key);
        if constexpr (A::paired) v.place = loadn<L>(from.place);
        return v;
    }
    static void store(A to, Loaded v)
    {
        storen<L>(to.key, v.key);
        if constexpr (A::paired) storen<L>(to.place, v.place);
    }
    void put(Loaded v)
    {
        const u32 set = lanes_above(v.key, pivots);
        v.key = parted(v.key, set);
        if constexpr (A::paired) v.place = parted(v.place, set);
        store(a.from(done - above), v);
        store(a.from(n - above - L), v);
        above += bit_count(set);
        done += L;
    }
    void put(A from)
    {
        const auto key = from.key[0];
        const size_t low = done - above, high = n - 1 - above;
        a.key[low] = a.key[high] = key;
        if constexpr (A::paired) a.place[low] = a.place[high] = from.place[0];
        above += key > pivot;
        ++done;
    }

    // At least four blocks.
    size_t divide()
    {
        Room room;
        const A rest = room.array();
        size_t begin = 2 * block, end = n - block;
        for (size_t i = 0; i < begin; i += L) store(rest.from(i), load(a.from(i)));
        for (size_t i = 0; i < block; i += L) store(rest.from(begin + i), load(a.from(end + i)));
        if (end - begin >= block) {
            size_t now = end -= block;
            for (;;) {
                Loaded v[vectors];
#pragma GCC unroll 4
                for (size_t i = 0; i < vectors; ++i) v[i] = load(a.from(now + i * L));
                const bool more = end - begin >= block;
                const size_t taken = more ? block : 0;
                const size_t first =
                    0 - static_cast<size_t>(begin - (done - above) <= n - above - end); // all bits or none
                end -= taken & ~first;
                now = (begin & first) | (end & ~first);
                begin += taken & first;
#pragma GCC unroll 4
                for (size_t i = 0; i < vectors; ++i) put(v[i]);
                if (!more) break;
            }
        }
        const size_t left = aside + (end - begin);
        for (size_t i = 0; i < block; i += L) store(rest.from(aside + i), load(a.from(begin + i)));
        // Single ones first: the room is then one of whole vectors, of which the last one fills all that is left.
        size_t i = 0;
        for (; i < left % L; ++i) put(rest.from(i));
        for (; i < left; i += L) put(load(rest.from(i)));
        return n - above;
    }
};

template <class A> [[gnu::noinline]] size_t partition(A a, size_t n, typename A::Key pivot)
{
    constexpr int L = lanesParted<sizeof(typename A::Key)>;
    if constexpr (L == 1 || (A::paired && sizeof(typename A::Key) == 2)) {
        return partition_singly(a, n, pivot);
    } else {
        return Divider<A>{a, n, pivot}.divide();
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
