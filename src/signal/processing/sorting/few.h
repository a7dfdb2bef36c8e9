// Arrays of few different elements.
#pragma once
#include "signal/processing/sorting/small.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

#if SIG5D_LEVEL > 2

template <class K> [[gnu::noinline]] size_t count_equal(const K* a, size_t n, K key)
{
    constexpr int L = integerLanes<K>;
    Vec<K, L> sum[4]{};
    size_t i = 0, count = 0;
    for (; n - i >= 4 * L; i += 4 * L)
#pragma GCC unroll 4
        for (size_t k = 0; k < 4; ++k) sum[k] -= loadn<L>(a + i + k * L) == splatn<L>(key);
    for (; i < n; ++i) count += a[i] == key;
    sum[0] += sum[1] + (sum[2] + sum[3]);
    for (int k = 0; k < L; ++k) count += static_cast<size_t>(sum[0][k]);
    return count;
}

// The places of a key, in increasing order, to d; a whole vector of them is stored where there is room.
template <class K> [[gnu::noinline]] void tell_places(const K* a, size_t n, K key, i32* d, size_t room)
{
    constexpr int L = lanesParted<sizeof(K)>;
    auto places = first_numbers < i32, L == 2 ? 4 : L > ();
    size_t i = 0, count = 0;
    for (; n - i >= L && room - count >= L; i += L, places += L) {
        const u32 others = static_cast<u32>(lanes_set(loadn<L>(a + i) != splatn<L>(key)));
        store_part<4 * L>(d + count, parted_low<L>(places, others));
        count += L - bit_count(others);
    }
    for (; i < n && count < room; ++i) {
        d[count] = static_cast<i32>(i);
        count += a[i] == key;
    }
}

// Sorts the array if a sample, and then all, have no more than 16 different elements, of which Key makes keys, and Back
// elements again. Places are 0, 1, ... n - 1.
template <class Key, class Back, class K> [[gnu::noinline]] bool sort_few(Array<K> a, size_t n, i64 flip)
{
    constexpr size_t samples = keysOfSample<K>, most = 16, block = 16384 / sizeof(K);
    if (n < 1000) return false;
    K key[samples];
    size_t count[most] = {}, different = 0;
    for (size_t i = 0; i < samples; ++i) key[i] = a.key[n / samples * i];
    change(key, samples, Key{flip});
    sort_small(Keys<K>{key}, samples);
    change(key, samples, Back{flip});
    for (size_t i = 0; i < samples; ++i)
        if (i == 0 || key[i] != key[different - 1]) key[different++] = key[i];
    if (different > most) return false;
    for (size_t i = 0, m; i < n; i += m) {
        m = n - i < block ? n - i : block;
        size_t found = 0;
        for (size_t k = 0; k < different; ++k) {
            const size_t more = count_equal(a.key + i, m, key[k]);
            count[k] += more;
            found += more;
        }
        if (found != m) return false;
    }
    if (a.place)
        for (size_t k = 0, i = 0; k < different; i += count[k++]) tell_places(a.key, n, key[k], a.place + i, n - i);
    for (size_t k = 0, i = 0; k < different; i += count[k++]) fill(a.key + i, count[k], key[k]);
    return true;
}

#else

template <class Key, class Back, class K> inline bool sort_few(Array<K>, size_t, i64) { return false; }

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
