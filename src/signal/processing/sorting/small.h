// Short arrays of keys, alone or with their places.
#pragma once
#if SIG5D_LEVEL > 2
#include "kernel/lanes.h"
#include "signal/processing/sorting/network.h"
#endif
#include "signal/processing/sorting/keys.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// By insertion; places stand behind equal keys as they increase.
template <class A> [[gnu::noinline]] void sort_by_insertion(A a, size_t n)
{
    for (size_t i = 1; i < n; ++i) {
        const auto key = a.key[i];
        i32 place = 0;
        if constexpr (A::paired) place = a.place[i];
        size_t j = i;
        for (; j > 0; --j) {
            bool before = key < a.key[j - 1];
            if constexpr (A::paired) before = before || (key == a.key[j - 1] && place < a.place[j - 1]);
            if (!before) break;
            a.key[j] = a.key[j - 1];
            if constexpr (A::paired) a.place[j] = a.place[j - 1];
        }
        a.key[j] = key;
        if constexpr (A::paired) a.place[j] = place;
    }
}

template <class A> constexpr size_t mostSmall = 24;
template <class A> inline void sort_small(A a, size_t n) { sort_by_insertion(a, n); }

#if SIG5D_LEVEL <= 2

// Pivots are medians of a sample of so many, of arrays of many keys.
template <class K> constexpr size_t manyKeys = 4096;
template <class K> constexpr size_t keysOfSample = 32;

#else

template <class K> constexpr size_t manyKeys = 1024;
template <class K> constexpr size_t keysOfSample = fewestRows* laneCount<Row<K>>;

template <class K> constexpr size_t mostSmall<Keys<K>> = mostInNetwork<K>;
template <> constexpr size_t mostSmall<Keys<i16>> = mostInNetwork<i32>;
template <> constexpr size_t mostSmall<Pairs<i32>> = mostInNetwork<i64>;
template <> constexpr size_t mostSmall<Pairs<i64>> = 64;

template <class K> inline void sort_small(Keys<K> a, size_t n) { sort_by_network(a.key, n); }
[[gnu::noinline]] void sort_small(Keys<i16> a, size_t n)
{
    constexpr int L = lanesParted<4>;
    i32 wide[mostInNetwork<i32>];
    size_t i = 0;
    for (; n - i >= L; i += L) storen<L>(wide + i, load_as_32<L>(a.key + i));
    for (; i < n; ++i) wide[i] = a.key[i];
    sort_by_network(wide, n);
    for (i = 0; n - i >= 2 * L; i += 2 * L)
        storen<2 * L>(a.key + i, narrowed<i16>(loadn<L>(wide + i), loadn<L>(wide + i + L)));
    for (; i < n; ++i) a.key[i] = static_cast<i16>(wide[i]);
}

// Key and place in one word.
[[gnu::noinline]] void sort_small(Pairs<i32> a, size_t n)
{
    constexpr int L = lanesParted<4>;
    using V = Vec<i32, L>;
    i64 word[mostInNetwork<i64>];
    size_t i = 0;
    for (; n - i >= L; i += L) { // in any order
        const V key = loadn<L>(a.key + i), place = loadn<L>(a.place + i);
        i32* const words = reinterpret_cast<i32*>(word + i);
        storen<L>(words, interleaved_lows(place, key));
        storen<L>(words + L, interleaved_highs(place, key));
    }
    for (; i < n; ++i) word[i] = static_cast<i64>(static_cast<u64>(a.key[i]) << 32 | static_cast<u32>(a.place[i]));
    sort_by_network(word, n);
    for (i = 0; n - i >= L; i += L) {
        const i32* const words = reinterpret_cast<const i32*>(word + i);
        const V low = loadn<L>(words), high = loadn<L>(words + L);
        storen<L>(a.place + i, even_lanes(low, high));
        storen<L>(a.key + i, odd_lanes(low, high));
    }
    for (; i < n; ++i) {
        a.key[i] = static_cast<i32>(word[i] >> 32);
        a.place[i] = static_cast<i32>(word[i]);
    }
}

// The upper bits of the key and, below them, where it stands. What these bits do not tell is put right afterwards.
[[gnu::noinline]] void sort_small(Pairs<i64> a, size_t n)
{
    constexpr size_t most = mostSmall<Pairs<i64>>;
    constexpr int L = lanesParted<8>;
    constexpr i64 upper = -static_cast<i64>(most);
    i64 word[most], key[most];
    i32 place[most];
    auto number = first_numbers<i64, L>();
    size_t i = 0;
    for (; n - i >= L; i += L, number += L) {
        const auto k = loadn<L>(a.key + i);
        storen<L>(key + i, k);
        storen<L>(place + i, loadn<L>(a.place + i));
        storen<L>(word + i, (k & upper) | number);
    }
    for (; i < n; ++i) {
        key[i] = a.key[i];
        place[i] = a.place[i];
        word[i] = (key[i] & upper) | static_cast<i64>(i);
    }
    sort_by_network(word, n);
    i64 before = 0;
    bool told = true;
    for (i = 0; i < n; ++i) {
        const size_t from = static_cast<size_t>(word[i]) & (most - 1);
        const i64 k = key[from];
        told &= i == 0 || before < k;
        before = k;
        a.key[i] = k;
        a.place[i] = place[from];
    }
    if (!told) sort_by_insertion(a, n);
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
