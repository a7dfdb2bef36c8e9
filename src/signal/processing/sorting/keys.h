// What is sorted: arrays of keys, alone or with the places where they were. All keys are signed integers: doubles are
// turned into such as stand in the same order, and back; for descending order all keys are turned around.
#pragma once
#include "kernel/map.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class K> constexpr K highestKey = static_cast<K>(std::make_unsigned_t<K>(-1) >> 1);
template <class K> constexpr K lowestKey = static_cast<K>(-highestKey<K> - 1);

template <class T> struct Keys {
    using Key = T;
    static constexpr bool paired = false;
    T* key;
    Keys from(size_t i) const { return {key + i}; }
};
template <class T> struct Pairs {
    using Key = T;
    static constexpr bool paired = true;
    T* key;
    i32* place;
    Pairs from(size_t i) const { return {key + i, place + i}; }
};

template <class T> inline void exchange(T& x, T& y)
{
    const T before = x;
    x = y;
    y = before;
}
template <class A> inline void exchange(A a, size_t i, size_t j)
{
    exchange(a.key[i], a.key[j]);
    if constexpr (A::paired) exchange(a.place[i], a.place[j]);
}

template <class V, class W> inline V as_bits(W x) { return __builtin_bit_cast(V, x); }
inline i64 mask_of(bool condition) { return -static_cast<i64>(condition); }
template <class Mask> inline Mask mask_of(Mask condition) { return condition; }

// The order of keys: -infinity ... -0, +0 ... +infinity, NaN without the sign bit, NaN with it, these by their bits. So
// the bits of numbers below zero are turned around, and all moved down by the number of NaN with the sign bit, which
// come to stand at the upper end.
constexpr u64 signedNans = 0x000FFFFFFFFFFFFF;
constexpr i64 allButSign = highestKey<i64>,
              highestOther = static_cast<i64>(infinityBits); // of no NaN with the sign bit

template <class V> inline V moved_by(V x, u64 distance) // beyond the ends
{
    return as_bits<V>(as_bits<Unsigned<V>>(x) + distance);
}
struct KeysOfDoubles {
    i64 flip; // 0 or, for descending order, -1
    template <class V> V operator()(V bits) const
    {
        const V negative = mask_of(bits < 0), nan = mask_of(bits > static_cast<i64>(signBit | infinityBits)) & negative;
        const V moved = moved_by(bits ^ (negative & allButSign), 0 - signedNans);
        return ((moved & ~nan) | (bits & allButSign & nan)) ^ flip;
    }
};
struct DoublesOfKeys {
    i64 flip;
    template <class V> V operator()(V key) const
    {
        key ^= flip;
        const V nan = mask_of(key > highestOther), moved = moved_by(key, signedNans);
        const V number = moved ^ (mask_of(moved < 0) & allButSign);
        return (number & ~nan) | ((key | lowestKey<i64>)&nan);
    }
};
struct Flipped {
    template <class V> V operator()(V key) const { return ~key; }
};

template <class A> inline void flip_keys(A a, size_t n)
{
    map(n, a.key, Flipped{}, static_cast<const typename A::Key*>(a.key));
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
