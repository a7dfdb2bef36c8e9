// What is sorted: arrays of keys, alone or with the places where they were. All keys are signed integers: doubles are
// turned into such as stand in the same order, and back; for descending order all keys are turned around.
#pragma once
#include "kernel/simd/lane_orders.h"
#include "kernel/simd/parted.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Elements in a vector of integers; 1 where the body sorts them one by one.
template <class T> constexpr int integerLanes = lanesParted<8> == 1 ? 1 : integerBytes / static_cast<int>(sizeof(T));

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
// Either, as call(a) gets them: without places where there are none. What takes little time is compiled once for both.
template <class T> struct Array {
    T* key;
    i32* place;
    Array from(size_t i) const { return {key + i, place ? place + i : nullptr}; }
    template <class Call> [[gnu::always_inline]] auto hand_to(Call call) const
    {
        if constexpr (sizeof(T) > 2)
            if (place) return call(Pairs<T>{key, place});
        return call(Keys<T>{key});
    }
};

template <class T> inline void exchange(T& x, T& y)
{
    const T before = x;
    x = y;
    y = before;
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
    i64 flip;
    template <class V> V operator()(V key) const { return key ^ static_cast<Lane<V>>(flip); }
};

// a[i] = op(a[i]). Here and below loops are simpler than those of kernel/map.h: what they take is little beside the
// sorting, and their size would not be.
template <class T, class Op> [[gnu::noinline, gnu::noclone]] void change(T* a, size_t n, Op op)
{
    constexpr int L = integerLanes<T>;
    size_t i = 0;
    if constexpr (L > 1)
        for (; i + L <= n; i += L) storen<L>(a + i, op(loadn<L>(a + i)));
    for (; i < n; ++i) a[i] = op(a[i]);
}
// Whether test<lanes>(i) holds for no element.
template <class T, class Test> inline bool nowhere(size_t n, Test test)
{
    constexpr int L = integerLanes<T>;
    size_t i = 0;
    if constexpr (L > 1)
        for (; n - i >= 2 * L; i += 2 * L)
            if (any(test.template operator()<L>(i) | test.template operator()<L>(i + L))) return false;
    for (; i < n; ++i)
        if (test.template operator()<1>(i)) return false;
    return true;
}
// Whether no key, as op makes them of elements, is below the one before it.
template <class K, class Op> [[gnu::noinline]] bool rising(const K* k, size_t n, Op op)
{
    return nowhere<K>(n - 1, [=]<int L>(size_t i) { return op(loadn<L>(k + i)) > op(loadn<L>(k + i + 1)); });
}
template <class K> [[gnu::noinline]] bool all_equal(const K* k, size_t n, K key)
{
    return nowhere<K>(n, [=]<int L>(size_t i) { return loadn<L>(k + i) != splatn<L>(key); });
}
template <class T> inline void fill(T* p, size_t n, T x)
{
    change(p, n, [x](auto v) { return all_lanes<decltype(v)>(x); });
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
