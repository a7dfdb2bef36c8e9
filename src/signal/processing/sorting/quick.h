// Quicksort of keys, alone or with their places: any input in time len * log(len), on a stack of a fixed size.
#pragma once
#include "signal/processing/sorting/partition.h"
#include "signal/processing/sorting/small.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// What is still to be sorted: n keys from "low" to "high". "trust" is how many samples more may mislead.
template <class A> struct Part {
    A a;
    size_t n;
    typename A::Key low, high;
    int trust;
};

template <class K> inline K median(K x, K y, K z)
{
    const K low = x < y ? x : y, high = x < y ? y : x, rest = high < z ? high : z;
    return low < rest ? rest : low;
}

// The median of a sample, or nearly.
template <class A> inline typename A::Key sampled(A a, size_t n)
{
    using K = typename A::Key;
    if (n < manyKeys<K>) {
        const size_t step = n / 9;
        const K* const k = a.key + step / 2;
        return median(median(k[0], k[step], k[2 * step]), median(k[3 * step], k[4 * step], k[5 * step]),
                      median(k[6 * step], k[7 * step], k[8 * step]));
    }
    constexpr size_t count = keysOfSample<K>;
    K sample[count];
    const size_t step = n / count;
    for (size_t i = 0; i < count; ++i) sample[i] = a.key[i * step + step / 2];
    sort_small(Keys<K>{sample}, count);
    return sample[count / 2 - 1];
}

template <class K> inline bool all_equal(const K* k, size_t n)
{
    for (size_t i = 1; i < n; ++i)
        if (k[i] != k[0]) return false;
    return true;
}

// The key in the middle of the range; at most as many times as a key has bits can a part be divided there.
template <class K> inline K middle(K low, K high)
{
    using U = std::make_unsigned_t<K>;
    return static_cast<K>(static_cast<U>(low) + static_cast<U>(static_cast<U>(high) - static_cast<U>(low)) / 2);
}

template <class A> void quicksort(A a, size_t n);

// Equal keys: their places are sorted.
template <class A> inline void sort_equal([[maybe_unused]] A a, [[maybe_unused]] size_t n)
{
    if constexpr (A::paired) quicksort(Keys<i32>{a.place}, n);
}

template <class A> [[gnu::noinline]] void quicksort(A a, size_t n)
{
    using K = typename A::Key;
    Part<A> waiting[32]; // the larger part waits, so that there are never more than the length has bits
    int count = 0;
    Part<A> part = {a, n, lowestKey<K>, highestKey<K>, 8};
    for (;;) {
        bool sorted = true;
        if (part.low == part.high) {
            sort_equal(part.a, part.n);
        } else if (part.n <= mostSmall<A>) {
            sort_small(part.a, part.n);
        } else {
            sorted = false;
            K pivot = part.trust > 0 ? sampled(part.a, part.n) : middle(part.low, part.high);
            if (pivot == part.high) {
                if (all_equal(part.a.key, part.n)) {
                    part.low = part.high;
                    continue;
                }
                --pivot;
            }
            const size_t split = partition(part.a, part.n, pivot);
            const bool lowerIsLarger = split > part.n / 2;
            const size_t smaller = lowerIsLarger ? part.n - split : split;
            if (smaller < part.n / 16) --part.trust;
            Part<A> lower = {part.a, split, part.low, pivot, part.trust};
            Part<A> upper = {part.a.from(split), part.n - split, static_cast<K>(pivot + 1), part.high, part.trust};
            waiting[count++] = lowerIsLarger ? lower : upper;
            part = lowerIsLarger ? upper : lower;
        }
        if (sorted) {
            if (count == 0) return;
            part = waiting[--count];
        }
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
