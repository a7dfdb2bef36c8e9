// 32 elements and the word of their bits: bit i of the word is a[i] != 0.
#pragma once
#include "kernel/map.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The first m bits; the others are 0.
template <class T> inline u32 pack_word(const T* a, u32 m)
{
    u32 word = 0;
    for (u32 i = 0; i < m; ++i) word |= u32(a[i] != 0) << i;
    return word;
}
template <class T> inline void unpack_word(u32 word, T* d, u32 m)
{
    for (u32 i = 0; i < m; ++i) d[i] = static_cast<T>(word >> i & 1);
}

// All of them. Lanes that are zero are found by one instruction, those that are not by two.
template <class T> inline u32 pack_word(const T* a)
{
    if constexpr (lanes<T> == 1)
        return pack_word(a, 32);
    else
        return ~bits_of<32, T>([a]<int m>(int i) { return load_lanes<m>(a + i) == 0; });
}

template <class T, int... k> inline void unpack_groups(u32 word, T* d, std::integer_sequence<int, k...>)
{
    constexpr int L = 32 / sizeof...(k);
    (storen<L>(d + k * L, bits_to_lanes<Vec<T, L>, k>(word)), ...);
}
template <class T> inline void unpack_word(u32 word, T* d)
{
    if constexpr (lanes<T> == 1) {
        unpack_word(word, d, 32);
    } else {
        constexpr int most = integerBytes / static_cast<int>(sizeof(T)), L = most < 32 ? most : 32;
        unpack_groups(word, d, std::make_integer_sequence<int, 32 / L>{});
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
