// Selected elements: a walk over them that is fast for few and for many. Packs, unpacks and index searches are this
// walk with another action.
#pragma once
#include "matrix/holding.h"

#if SIG5D_LEVEL > 0

namespace sig5d::SIG5D_VARIANT {
namespace {

// For each set of lanes: their numbers in increasing order, each as "parts" consecutive numbers, the last one repeated.
template <class Unit, int lanes, int parts> struct Numbers {
    alignas(32) Unit of[1 << lanes][lanes * parts] = {};
    constexpr Numbers()
    {
        for (int set = 1; set < 1 << lanes; ++set) {
            int lane = 0, last = 0;
            for (int i = 0; i < lanes; ++i) {
                while (lane < lanes && !(set >> lane & 1)) ++lane;
                if (lane < lanes) last = lane++;
                for (int p = 0; p < parts; ++p) of[set][i * parts + p] = static_cast<Unit>(last * parts + p);
            }
        }
    }
};
constexpr Numbers<u8, 8, 1> laneNumbers;

// For each set of lanes: how many of the set come before each lane of it, as "parts" consecutive numbers; -128 for
// lanes outside of it.
template <class Unit, int lanes, int parts> struct Ranks {
    alignas(32) Unit of[1 << lanes][lanes * parts] = {};
    constexpr Ranks()
    {
        for (int set = 0; set < 1 << lanes; ++set) {
            int rank = 0;
            for (int i = 0; i < lanes; ++i) {
                const bool member = set >> i & 1;
                for (int p = 0; p < parts; ++p)
                    of[set][i * parts + p] = static_cast<Unit>(member ? rank * parts + p : -128);
                rank += member;
            }
        }
    }
};

#if SIG5D_LEVEL >= 3
inline u32 bit_count(u32 byte) { return static_cast<u32>(_mm_popcnt_u32(byte)); }
#else
struct BitCounts {
    u8 of[256] = {};
    constexpr BitCounts()
    {
        for (int byte = 1; byte < 256; ++byte) of[byte] = static_cast<u8>(of[byte >> 1] + (byte & 1));
    }
};
constexpr BitCounts bitCounts;
inline u32 bit_count(u32 byte) { return bitCounts.of[byte]; }
#endif

// word: not 0. The compiler itself would write tzcnt, which no variant's level includes.
inline u32 lowest_bit(u32 word)
{
    u32 number;
    asm("bsf %1, %0" : "=r"(number) : "r"(word) : "cc");
    return number;
}

// Calls one(j, k) for the j-th selected element k, or, for the 32 elements from k on, group(k), whose result is called
// with (j, k + 8*b, b, bits) for each byte b of them, where j is the number of its first. The latter happens only while
// at least eight selected elements are still to come, the byte's included, so that it may move eight of them, whatever
// the bits. Returns the number of selected elements.
//
// Few are taken one by one, which costs nothing for the rest; many (so many of 1024) by bytes, which costs the same
// whatever they are and has no branch that depends on them: a mispredicted one costs as much as 32 elements. What was
// met lately decides.
template <size_t many, class Holding, class Group, class One>
inline size_t for_selected(const Holding& selected, size_t n, Group group, One one)
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
            if constexpr (Holding::wordsFirst) {
                const u32 word = selected.word(k);
#pragma GCC unroll 4
                for (u32 b = 0; b < 4; ++b) {
                    const u32 bits = word >> 8 * b & 255;
                    act(j, k + 8 * b, b, bits);
                    j += bit_count(bits);
                }
            } else {
#pragma GCC unroll 4
                for (u32 b = 0; b < 4; ++b) {
                    const u32 bits = selected.byte(k + 8 * b);
                    act(j, k + 8 * b, b, bits);
                    j += bit_count(bits);
                }
            }
        } else {
            for (u32 word = selected.word(k); word; word &= word - 1) one(j++, k + lowest_bit(word));
        }
        lately += (j - before) * (1024 / 16) - lately / 16;
    }
    for (; n - k >= 8; k += 8)
        for (u32 bits = selected.byte(k); bits; bits &= bits - 1) one(j++, k + lowest_bit(bits));
    for (; k < n; ++k)
        if (selected.at(k)) one(j++, k);
    return j;
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT

#endif
