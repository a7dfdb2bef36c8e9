// Pairs of lanes, as complex numbers stand in memory.
#pragma once
#include "kernel/simd/sign_bits.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The members of each pair exchanged; the second of each twice.
template <class V> inline V swapped(V v) { return shuffled<allLanes<V> & 0x55>(v, v); }
template <class V> inline V imaginary_lanes(V v) { return shuffled<allLanes<V>>(v, v); }

// The first of each pair with the other sign.
template <class V> inline V negated_firsts(V v)
{
    typename BitsOf<V>::type signs{};
    for (size_t i = 0; i < sizeof(V) / sizeof(u64); i += 2) signs[i] = signBit;
    return BitsOf<V>::back(BitsOf<V>::of(v) ^ signs);
}

// Whether a condition holds in any lane.
template <class Mask>
requires(sizeof(Mask) >= 16) inline bool any(Mask condition) { return lanes_set(condition) != 0; }

} // namespace
} // namespace sig5d::SIG5D_VARIANT
