// Conditions of many elements as the bits of a word.
#pragma once
#include "kernel/simd/vector.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Whether bits of several vectors are taken from each: where that is one step, where lanes are as short as they get, or
// where there are no integers so long. Elsewhere the lanes of all are first put into one vector.
template <class Mask>
constexpr bool bitsFromEach = sizeof(Mask) == 64 || sizeof(Mask) > integerBytes || sizeof(Lane<Mask>) == 1;

// A bit for each lane of several vectors whose mask is set; those of the first one are the lowest.
template <class Mask> inline u32 lanes_set(Mask a, Mask b)
{
    constexpr int n = sizeof(Mask) / sizeof(Lane<Mask>);
    if constexpr (bitsFromEach<Mask> || (sizeof(Mask) == 32 && sizeof(Lane<Mask>) == 8))
        return static_cast<u32>(lanes_set(a)) | static_cast<u32>(lanes_set(b)) << n;
    else
        return lanes_set(narrowed_masks(a, b));
}
template <class Mask> inline u32 lanes_set(Mask a, Mask b, Mask c, Mask d)
{
    constexpr int n = 2 * sizeof(Mask) / sizeof(Lane<Mask>);
    if constexpr (bitsFromEach<Mask>) {
        return lanes_set(a, b) | lanes_set(c, d) << n;
    } else if constexpr (sizeof(Mask) == 32 && sizeof(Lane<Mask>) == 4) { // in order again after two steps, not each
        using V = Vec<i32, 8>;
        return lanes_set(narrowed<i8>(as<V>(a), as<V>(b), as<V>(c), as<V>(d)));
    } else {
        return lanes_set(narrowed_masks(a, b), narrowed_masks(c, d));
    }
}
template <class Mask> inline u32 lanes_set(Mask a, Mask b, Mask c, Mask d, Mask e, Mask f, Mask g, Mask h)
{
    constexpr int n = 4 * sizeof(Mask) / sizeof(Lane<Mask>);
    if constexpr (bitsFromEach<Mask>)
        return lanes_set(a, b, c, d) | lanes_set(e, f, g, h) << n;
    else if constexpr (sizeof(Mask) == 32)
        return lanes_set(bytes_of_long_masks(a, b, c, d, e, f, g, h));
    else
        return lanes_set(narrowed_masks(a, b), narrowed_masks(c, d), narrowed_masks(e, f), narrowed_masks(g, h));
}

template <int lanesOfEach, class Part, int... i> inline u32 bits_of_parts(Part part, std::integer_sequence<int, i...>)
{
    return static_cast<u32>(lanes_set(part.template operator()<lanesOfEach>(i * lanesOfEach)...));
}
// A bit for each of n elements of type T: 8, 16 or 32. part<m>(i) gives the masks of m of them, from the i-th on.
template <int n, class T, class Part> inline u32 bits_of(Part part)
{
    constexpr int most = (std::is_floating_point_v<T> ? vectorBytes : integerBytes) / static_cast<int>(sizeof(T));
    constexpr int m = most < n ? most : n;
    if constexpr (n > 8 * m) {
        const auto upper = [&part]<int k>(int i) { return part.template operator()<k>(n / 2 + i); };
        return bits_of<n / 2, T>(part) | bits_of<n / 2, T>(upper) << n / 2;
    } else {
        const u32 bits = bits_of_parts<m>(part, std::make_integer_sequence<int, n / m>{});
        return m * sizeof(T) < 16 ? bits & ((1u << m) - 1) : bits; // the low end of a register
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
