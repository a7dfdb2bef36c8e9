// Keys of 16 bits with their places: both in one word of 32 bits, which is sorted alone.
#pragma once
#include "signal/processing/sorting/quick.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr u32 signOfWord = 0x80000000;

// Places take so many bits of a word, and as many of a key's 16 as are left. Where that is not all, the words are first
// brought into groups by its other bits, the upper ones: at most 256 groups.
constexpr size_t mostInWords = size_t{1} << 24;

// n: from 1 to mostInWords.
[[gnu::noinline]] void sort_as_words(i16* a, i32* place, size_t n, u32 flip)
{
    constexpr u32 keyBits = 16, lowest = 0x8000;
    u32 placeBits = keyBits;
    while ((n - 1) >> placeBits) ++placeBits;
    const u32 groupShift = 32 - placeBits, groups = 1u << (placeBits - keyBits);
    const auto key_of = [=](i16 x) { return (static_cast<u32>(x) ^ flip ^ lowest) & 0xFFFF; };
    u32 next[256];
    for (u32 g = 0; g < groups; ++g) next[g] = 0;
    for (size_t i = 0; groups > 1 && i < n; ++i) ++next[key_of(a[i]) >> groupShift];
    for (u32 g = 0, sum = 0; g < groups; ++g) {
        const u32 count = next[g];
        next[g] = sum;
        sum += count;
    }
    for (size_t i = 0; i < n; ++i) {
        const u32 key = key_of(a[i]), word = key << placeBits | static_cast<u32>(i);
        place[next[key >> groupShift]++] = static_cast<i32>(word ^ signOfWord);
    }
    size_t i = 0;
    for (u32 g = 0; g < groups; ++g) {
        const size_t end = groups > 1 ? next[g] : n;
        quicksort(Array<i32>{place + i, nullptr}, end - i);
        for (; i < end; ++i) {
            const u32 word = static_cast<u32>(place[i]) ^ signOfWord;
            a[i] = static_cast<i16>((g << groupShift | word >> placeBits) ^ flip ^ lowest);
            place[i] = static_cast<i32>(word & ((1u << placeBits) - 1));
        }
    }
}

// More: halving the range of the keys, and sorting the places of equal ones.
[[gnu::noinline]] void sort_from_middle(Pairs<i16> a, size_t n, int low, int high)
{
    if (low == high) return quicksort(Array<i32>{a.place, nullptr}, n);
    const int middle = (low + high) >> 1;
    const size_t split = partition_singly(a, n, static_cast<i16>(middle));
    if (split > 0) sort_from_middle(a, split, low, middle);
    if (split < n) sort_from_middle(a.from(split), n - split, middle + 1, high);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
