// Quicksort of keys, alone or with their places: any input in time len * log(len), on a stack of a fixed size.
#pragma once
#include "signal/processing/sorting/counting.h"
#include "signal/processing/sorting/partition.h"
#include "signal/processing/sorting/small.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// What is still to be sorted: n keys from "low" to "high". "trust" is how many samples more may mislead.
template <class K> struct Part {
    Array<K> a;
    u32 n;
    int trust;
    K low, high;
};

template <class K> [[gnu::noinline]] K median(K x, K y, K z)
{
    const K low = x < y ? x : y, high = x < y ? y : x, rest = high < z ? high : z;
    return low < rest ? rest : low;
}

// The median of a sample, or nearly.
template <class K> [[gnu::noinline]] K sampled(const K* key, size_t n)
{
    constexpr size_t count = keysOfSample<K>;
    const size_t number = n < manyKeys<K> ? 9 : count, step = n / number;
    K sample[count];
    for (size_t i = 0; i < number; ++i) sample[i] = key[i * step + step / 2];
    if (number == count) {
        sort_small(Keys<K>{sample}, count);
        return sample[count / 2 - 1];
    }
    for (size_t i = 0; i < 3; ++i) sample[i] = median(sample[i], sample[i + 3], sample[i + 6]);
    return median(sample[0], sample[1], sample[2]);
}

// The key in the middle of the range; at most as many times as a key has bits can a part be divided there.
template <class K> inline K middle(K low, K high)
{
    using U = std::make_unsigned_t<K>;
    return static_cast<K>(static_cast<U>(low) + static_cast<U>(static_cast<U>(high) - static_cast<U>(low)) / 2);
}

// Many keys within a range of 256, as 16-bit keys soon are, are counted.
template <class K> inline bool count_keys(const Part<K>& part)
{
    if constexpr (sizeof(K) == 2) {
        if (part.high - part.low > 255 || part.n < 2048) return false;
        sort_by_counting(part.a.key, part.n, static_cast<u32>(part.low), 0);
        return true;
    }
    return false;
}

// Returns whether the part is sorted.
template <class K> inline bool sort_if_small(const Part<K>& part)
{
    return part.a.hand_to([&]<class A>(A a) {
        const bool small = part.n <= mostSmall<A>;
        if (small) sort_small(a, part.n);
        return small;
    });
}

template <class K> [[gnu::noinline]] void quicksort(Array<K> array, size_t n)
{
    Part<K> waiting[27]; // the larger part waits, so that the length halves each time, and ends above 16
    int count = 0;
    Part<K> part = {array, static_cast<u32>(n), 8, lowestKey<K>, highestKey<K>};
    for (;;) {
        bool sorted = sort_if_small(part) || count_keys(part);
        if (!sorted) {
            K pivot = part.trust > 0 ? sampled(part.a.key, part.n) : middle(part.low, part.high);
            if (pivot == part.high) {
                if (all_equal(part.a.key, part.n, pivot))
                    part.low = part.high;
                else
                    --pivot;
            }
            sorted = part.low == part.high;
            if constexpr (sizeof(K) > 2)
                if (sorted && part.a.place) quicksort(Array<i32>{part.a.place, nullptr}, part.n);
            if (!sorted) {
                const size_t split =
                    part.a.hand_to([&]<class A>(A a) { return partition<mostSmall<A> + 1>(a, part.n, pivot); });
                const bool lowerIsLarger = split > part.n / 2;
                const size_t smaller = lowerIsLarger ? part.n - split : split;
                if (smaller < part.n / 16) --part.trust;
                Part<K>& later = waiting[count++];
                later = part;
                Part<K>&lower = lowerIsLarger ? later : part, &upper = lowerIsLarger ? part : later;
                upper.a = upper.a.from(split);
                upper.n -= static_cast<u32>(split);
                upper.low = static_cast<K>(pivot + 1);
                lower.n = static_cast<u32>(split);
                lower.high = pivot;
            }
        }
        if (sorted) {
            if (count == 0) return;
            part = waiting[--count];
        }
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
