// Arrays of selected elements: moved together (compact), put back (spread). A selection is a record with
//     at(k)       whether element k is selected;
//     byte(k)     elements k .. k+7 as bits, word(k) elements k .. k+31;
//     wordsFirst  whether the bits of eight cost as much as those of 32.
#pragma once
#include "kernel/partial.h"
#include "kernel/simd/compress.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Calls one(j, k) for the j-th selected element k, or, for the 32 elements from k on, group(k), whose result is called
// with (j, b, set) for each set b of eight of them, where j is the number of its first. The latter happens only while
// at least eight selected elements are still to come, the set's included, so that it may move eight of them, whatever
// the set. Returns the number of selected elements.
//
// Few are taken one by one, which costs nothing for the rest; many (so many of 1024) by eights, which costs the same
// whatever they are and has no branch that depends on them: a mispredicted one costs as much as 32 elements. What was
// met lately decides.
template <size_t many, class Selection, class Group, class One>
inline size_t for_selected(const Selection& selected, size_t n, Group group, One one)
{
    constexpr size_t unknown = SIZE_MAX;
    size_t j = 0, k = 0;
    size_t safe = unknown; // from here on at least eight selected elements are to come
    size_t lately = 0;     // selected in the last words: the mean, times 1024
    for (size_t i = 0; n >= 32 && i < 32; i += 8) lately += 1024 * bit_count(selected.byte(i));
    for (; n - k >= 32; k += 32) {
        const size_t before = j;
        if (lately >= 32 * many && safe == unknown) {
            u32 count = 0;
            for (safe = n; safe >= k + 8 && count < 8;) count += bit_count(selected.byte(safe -= 8));
            if (count < 8) safe = 0;
        }
        if (lately >= 32 * many && k + 32 <= safe) {
            const auto act = group(k);
            [[maybe_unused]] u32 word = 0;
            if constexpr (Selection::wordsFirst) word = selected.word(k);
#pragma GCC unroll 4
            for (u32 b = 0; b < 4; ++b) {
                u32 set;
                if constexpr (Selection::wordsFirst)
                    set = word >> 8 * b & 255;
                else
                    set = selected.byte(k + 8 * b);
                act(j, b, set);
                j += bit_count(set);
            }
        } else {
            for (u32 word = selected.word(k); word; word &= word - 1) one(j++, k + lowest_bit(word));
        }
        lately += (j - before) * (1024 / 16) - lately / 16;
    }
    for (; n - k >= 8; k += 8)
        for (u32 set = selected.byte(k); set; set &= set - 1) one(j++, k + lowest_bit(set));
    for (; k < n; ++k)
        if (selected.at(k)) one(j++, k);
    return j;
}

// The elements of a set among a[0..8), moved together to d; up to eight elements of d are written.
template <class T> inline void compress(const T* a, u32 set, T* d)
{
    constexpr int n = lanesMoved<sizeof(T)>;
    if constexpr (n == 1) {
#pragma GCC unroll 8
        for (u32 i = 0; i < 8; ++i) {
            *d = a[i];
            d += set >> i & 1;
        }
    } else if constexpr (n == 8) {
        store_part<8 * sizeof(T)>(d, compressed(load_lanes<8>(a), set));
    } else {
        const u32 low = set & 15;
        store_part<4 * sizeof(T)>(d, compressed(load_lanes<4>(a), low));
        store_part<4 * sizeof(T)>(d + bit_count(low), compressed(load_lanes<4>(a + 4), set >> 4));
    }
}

// The first elements of a, put where a set among d[0..8) is, in order; up to eight of a are read.
template <class T> inline void expand(const T* a, u32 set, T* d)
{
    constexpr int n = lanesMoved<sizeof(T)>;
    if constexpr (n == 1) {
#pragma GCC unroll 8
        for (u32 i = 0; i < 8; ++i) {
            const bool member = set >> i & 1;
            const T* const from = member ? a : d + i;
            d[i] = *from;
            a += member;
        }
    } else if constexpr (n == 8) {
        store_part<8 * sizeof(T)>(d, expanded(load_lanes<8>(a), set, load_lanes<8>(d)));
    } else {
        const u32 low = set & 15;
        store_part<4 * sizeof(T)>(d, expanded(load_lanes<4>(a), low, load_lanes<4>(d)));
        store_part<4 * sizeof(T)>(d + 4, expanded(load_lanes<4>(a + bit_count(low)), set >> 4, load_lanes<4>(d + 4)));
    }
}

// What is moved together: the elements of an array, or the numbers of elements. group(k) is for 32 of them: called with
// (b, set, d), it compresses the set of the b-th eight.
template <class T> struct Elements {
    const T* p;
    T operator[](size_t k) const { return p[k]; }
    auto group(size_t k) const
    {
        const T* from = p + k;
        asm("" : "+r"(from)); // loads from it take part in other instructions, those with an index do not
        return [from](u32 b, u32 set, T* d) { compress(from + 8 * b, set, d); };
    }
};
template <class T> struct Positions {
    T operator[](size_t k) const { return static_cast<T>(k); }
    auto group(size_t k) const
    {
        constexpr int n = integerBytes >= 32 ? 8 : 4;
        auto bases = splatn<n>(static_cast<T>(k));
        asm("" : "+x"(bases)); // a value that the compiler knows it would spread over the lanes anew for each set
        return [bases](u32 b, u32 set, T* d) {
            const auto first = bases + 8 * b;
            storen<n>(d, lane_numbers<n, 0, T>(set) + first);
            if constexpr (n == 4) storen<n>(d + n, lane_numbers<n, n, T>(set) + first);
        };
    }
};

// d[j] = a[k] for the j-th selected k of n; returns how many there are. By eights from "many" of 1024 on.
template <size_t many, class Selection, class A, class T>
inline size_t compact(const Selection& selected, size_t n, A a, T* d)
{
    if constexpr (lanes<u8> == 1) {
        size_t j = 0;
        for (size_t k = 0; k < n; ++k)
            if (selected.at(k)) d[j++] = a[k];
        return j;
    } else {
        const auto group = [=](size_t k) {
            const auto act = a.group(k);
            return [=](size_t j, u32 b, u32 set) { act(b, set, d + j); };
        };
        return for_selected<many>(selected, n, group, [=](size_t j, size_t k) { d[j] = a[k]; });
    }
}

// d[k] = a[j] for the j-th selected k of n.
template <size_t many, class Selection, class T>
inline void spread(const Selection& selected, size_t n, const T* a, T* d)
{
    if constexpr (lanes<u8> == 1) {
        for (size_t k = 0; k < n; ++k)
            if (selected.at(k)) d[k] = *a++;
    } else {
        const auto group = [=](size_t k) {
            return [=](size_t j, u32 b, u32 set) { expand(a + j, set, d + k + 8 * b); };
        };
        for_selected<many>(selected, n, group, [=](size_t j, size_t k) { d[k] = a[j]; });
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
