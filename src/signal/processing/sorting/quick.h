// Quicksort of keys, alone or with their places: any input in time len * log(len), on a stack of a fixed size.
#pragma once
#include "signal/processing/sorting/counting.h"
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

// Many keys within a range of 256, as 16-bit keys soon are, are counted.
template <class A> inline bool count_keys(Part<A>& part)
{
    if constexpr (sizeof(typename A::Key) == 2 && !A::paired) {
        if (part.high - part.low > 255 || part.n < 2048) return false;
        sort_by_counting(part.a.key, part.n, static_cast<u32>(part.low), 0);
        return true;
    }
    return false;
}

template <class A> [[gnu::noinline]] void quicksort(A a, size_t n)
{
    using K = typename A::Key;
    Part<A> waiting[28]; // the larger part waits, so that they are fewer than the bits of the length, and none is short
    int count = 0;
    Part<A> part = {a, n, lowestKey<K>, highestKey<K>, 8};
    for (;;) {
        bool sorted = true;
        if (part.low == part.high) {
            sort_equal(part.a, part.n);
        } else if (part.n <= mostSmall<A>) {
            sort_small(part.a, part.n);
        } else if (count_keys(part)) {
        } else {
            sorted = false;
            K pivot = part.trust > 0 ? sampled(part.a, part.n) : middle(part.low, part.high);
            if (pivot == part.high) {
                if (all_equal(part.a.key, part.n, pivot)) {
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
