// The lanes of vectors in other orders, each order a function of the lane's number.
#pragma once
#include "kernel/simd/vector.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// A number is a vector of itself.
template <class V> constexpr int laneCount = sizeof(V) / sizeof(Lane<V>);

// Lane i is lane from(i) of x and y side by side.
template <class V, class From, int... i> inline V lanes_from(V x, V y, From, std::integer_sequence<int, i...>)
{
    return __builtin_shufflevector(x, y, From{}(i)...);
}
template <class V, class From> inline V lanes_from(V x, V y, From from)
{
    return lanes_from(x, y, from, std::make_integer_sequence<int, laneCount<V>>{});
}

// Lane i is lane i ^ with: neighbours exchanged, groups of a power of two reversed.
template <int with, class V> inline V crossed(V x)
{
    return lanes_from(x, x, [](int i) { return i ^ with; });
}
// Lanes whose number has this bit from y, the others from x.
template <int bit, class V> inline V lanes_by_bit(V x, V y)
{
    return lanes_from(x, y, [](int i) { return i & bit ? i + laneCount<V> : i; });
}
// Of lanes in groups of 2 * half: the lower halves of both vectors, and the upper ones.
template <int half, class V> inline V lower_halves(V x, V y)
{
    return lanes_from(x, y, [](int i) { return i & half ? i - half + laneCount<V> : i; });
}
template <int half, class V> inline V upper_halves(V x, V y)
{
    return lanes_from(x, y, [](int i) { return i & half ? i + laneCount<V> : i + half; });
}

// 0, 1, 2, ...
template <class T, int n> inline Vec<T, n> first_numbers()
{
    return []<int... i>(std::integer_sequence<int, i...>) { return Vec<T, n>{i...}; }
    (std::make_integer_sequence<int, n>{});
}

// The lanes of x and y in turn, of the lower and of the upper halves of each 16 bytes; and every second lane of both.
template <class V> inline V interleaved_lows(V x, V y)
{
    constexpr int n = 16 / sizeof(Lane<V>);
    return lanes_from(x, y, [](int i) { return i / n * n + i % n / 2 + i % 2 * laneCount<V>; });
}
template <class V> inline V interleaved_highs(V x, V y)
{
    constexpr int n = 16 / sizeof(Lane<V>);
    return lanes_from(x, y, [](int i) { return i / n * n + (n + i % n) / 2 + i % 2 * laneCount<V>; });
}
template <class V> inline V even_lanes(V x, V y)
{
    return lanes_from(x, y, [](int i) { return 2 * i; });
}
template <class V> inline V odd_lanes(V x, V y)
{
    return lanes_from(x, y, [](int i) { return 2 * i + 1; });
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
