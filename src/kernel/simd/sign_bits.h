// Doubles as bits: constants, signs, magnitudes, for single numbers and vectors alike.
#pragma once
#include "kernel/simd/vector.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr u64 signBit = u64{1} << 63;
constexpr u64 infinityBits = 0x7FF0000000000000;
// What the processor gives for 0/0 and for roots of negative numbers.
constexpr u64 indefiniteBits = 0xFFF8000000000000;

template <class V> struct BitsOf {
    using type = Vec<u64, sizeof(V) / sizeof(u64)>;
    static type of(V x) { return reinterpret_cast<type>(x); }
    static V back(type bits) { return reinterpret_cast<V>(bits); }
    static type all(u64 bits) { return splatn<sizeof(V) / sizeof(u64)>(bits); }
};
template <> struct BitsOf<f64> {
    using type = u64;
    static u64 of(f64 x) { return __builtin_bit_cast(u64, x); }
    static f64 back(u64 bits) { return __builtin_bit_cast(f64, bits); }
    static u64 all(u64 bits) { return bits; }
};

// The number with these bits, in every lane.
template <class V> inline V from_bits(u64 bits) { return BitsOf<V>::back(BitsOf<V>::all(bits)); }
template <class V> inline V constant(f64 x) { return from_bits<V>(BitsOf<f64>::of(x)); }
// x with the bits of the mask alone.
template <class V> inline V keep_bits(V x, u64 mask)
{
    return BitsOf<V>::back(BitsOf<V>::of(x) & BitsOf<V>::all(mask));
}

template <class V> inline V absolute_value(V x) { return keep_bits(x, ~signBit); }
// x >= 0 with the sign of y.
template <class V> inline V with_sign(V x, V y)
{
    return BitsOf<V>::back(BitsOf<V>::of(x) | (BitsOf<V>::of(y) & BitsOf<V>::all(signBit)));
}

template <class V> constexpr int allLanes = (1 << sizeof(V) / sizeof(f64)) - 1;

} // namespace
} // namespace sig5d::SIG5D_VARIANT
