// Short arrays of keys, alone or with their places.
#pragma once
#if SIG5D_LEVEL > 2
#include "signal/processing/sorting/network.h"
#endif
#include "signal/processing/sorting/keys.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

#if SIG5D_LEVEL > 2

template <class A> constexpr size_t mostSmall = 64;
template <class K> constexpr size_t mostSmall<Keys<K>> = mostInNetwork<K>;
template <> constexpr size_t mostSmall<Keys<i16>> = mostInNetwork<i32>;
template <class K> constexpr size_t mostSmall<Pairs<K>> = mostInNetwork<i64>;
template <> constexpr size_t mostSmall<Pairs<i64>> = 64;

template <class K> inline void sort_small(Keys<K> a, size_t n) { sort_by_network(a.key, n); }
[[gnu::noinline]] void sort_small(Keys<i16> a, size_t n)
{
    i32 wide[mostInNetwork<i32>];
    for (size_t i = 0; i < n; ++i) wide[i] = a.key[i];
    sort_by_network(wide, n);
    for (size_t i = 0; i < n; ++i) a.key[i] = static_cast<i16>(wide[i]);
}

// Key and place in one word.
template <class K> [[gnu::noinline]] void sort_small(Pairs<K> a, size_t n)
{
    i64 word[mostInNetwork<i64>];
    for (size_t i = 0; i < n; ++i)
        word[i] = static_cast<i64>(static_cast<u64>(a.key[i]) << 32 | static_cast<u32>(a.place[i]));
    sort_by_network(word, n);
    for (size_t i = 0; i < n; ++i) {
        a.key[i] = static_cast<K>(word[i] >> 32);
        a.place[i] = static_cast<i32>(word[i]);
    }
}

// The upper bits of the key and, below them, where it stands. What these bits do not tell is put right by insertion.
[[gnu::noinline]] void sort_small(Pairs<i64> a, size_t n)
{
    constexpr size_t most = mostSmall<Pairs<i64>>;
    i64 word[most], key[most];
    i32 place[most];
    for (size_t i = 0; i < n; ++i) {
        key[i] = a.key[i];
        place[i] = a.place[i];
        word[i] = (key[i] & -static_cast<i64>(most)) | static_cast<i64>(i);
    }
    sort_by_network(word, n);
    for (size_t i = 0; i < n; ++i) {
        const size_t from = static_cast<size_t>(word[i]) & (most - 1);
        const i64 k = key[from];
        const i32 p = place[from];
        size_t j = i;
        for (; j > 0 && (k < a.key[j - 1] || (k == a.key[j - 1] && p < a.place[j - 1])); --j) {
            a.key[j] = a.key[j - 1];
            a.place[j] = a.place[j - 1];
        }
        a.key[j] = k;
        a.place[j] = p;
    }
}

template <class K> constexpr size_t manyKeys = 1024;
template <class K> constexpr size_t keysOfSample = fewestRows* laneCount<Row<K>>;

#else

template <class A> constexpr size_t mostSmall = 24;
template <class K> constexpr size_t manyKeys = 4096;
template <class K> constexpr size_t keysOfSample = 32;

// By insertion; places stand behind equal keys as they increase.
template <class A> [[gnu::noinline]] void sort_small(A a, size_t n)
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

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
