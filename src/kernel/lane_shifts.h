// Shifts of vectors by a count that is known only when the kernel runs. The instructions that take such a count from a
// register need two steps on many processors; products, and shifts that take a count for each lane, need one.
#pragma once
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// V: a vector with any lanes. T: the type of the lanes that are shifted, to the right arithmetic if it is signed.
// Counts are below their width.

template <class T, class V> using LanesOf = Vec<T, sizeof(V) / sizeof(T)>;

template <class V> inline V shift_left_16(V x, int count)
{
    return as<V>(as<LanesOf<u16, V>>(x) * splatn<sizeof(V) / 2>(static_cast<u16>(1 << count)));
}

// T = u16: count > 0. T = i16: count > 1, since 2^15 would be negative.
template <class T, class V> inline V shift_right_16(V x, int count)
{
    return as<V>(high_product(as<LanesOf<T, V>>(x), splatn<sizeof(V) / 2>(static_cast<T>(1 << (16 - count)))));
}

// In lanes of 32 or 64 bits.
template <class T, class V> inline V shift_left(V x, int count)
{
    return as<V>(shifted_left(as<LanesOf<T, V>>(x), count));
}
// In lanes of any length; in those of 16 bits any count, at the price of the second step.
template <class T, class V> inline V shift_right(V x, int count)
{
    return as<V>(shifted_right(as<LanesOf<T, V>>(x), count));
}

// The odd 32-bit lanes in the even ones' places.
template <class V> inline V odd_lanes(V x) { return as<V>(as<LanesOf<u64, V>>(x) >> 32); }

} // namespace
} // namespace sig5d::SIG5D_VARIANT
