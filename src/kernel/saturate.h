// The limits of integer element types, and arithmetic that stops at them, for single values and for vectors lane by
// lane.
#pragma once
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> constexpr int width = 8 * sizeof(T);
template <class T> constexpr bool isSigned = T(-1) < T(0);
template <class T> constexpr i64 highest = (i64(1) << (width<T> - isSigned<T>)) - 1;
template <class T> constexpr i64 lowest_of = isSigned<T> ? -highest<T> - 1 : 0;

template <class T> inline T saturated(i64 x)
{
    return static_cast<T>(x < lowest_of<T> ? lowest_of<T> : x > highest<T> ? highest<T> : x);
}

#if SIG5D_LEVEL > 0

// Lane by lane without the bits that do not fit: in signed lanes the language leaves that open.
template <class V> inline V sum_modulo(V x, V y) { return as<V>(as<Unsigned<V>>(x) + as<Unsigned<V>>(y)); }
template <class V> inline V difference_modulo(V x, V y) { return as<V>(as<Unsigned<V>>(x) - as<Unsigned<V>>(y)); }
template <class V> inline V product_modulo(V x, V y) { return as<V>(as<Unsigned<V>>(x) * as<Unsigned<V>>(y)); }

// x & ~y, where y is made of a comparison.
template <class V> inline V without(V x, V y) { return as<V>(and_not(bits(x), bits(y))); }

// The limit on the side of a number's sign.
template <class V> inline V limit_of(V x) { return (x >> 31) ^ static_cast<i32>(highest<i32>); }

// Sums and differences of 32-bit lanes that stop at their limits, for which there are no instructions.

// Of x within what leaves room for y: bounds that the compiler computes once if y is always the same. Or by the wrong
// sign that a sum beyond the limits has, where processors lack the minimum.
template <class V>
requires(sizeof(Lane<V>) == 4) inline V add_saturated(V x, V y)
{
    if constexpr (has32BitMinimum) {
        const V least = all_lanes<V>(lowest_of<i32>) - smaller(y, V{});
        const V most = all_lanes<V>(highest<i32>) - larger(y, V{});
        return smaller(larger(x, least), most) + y;
    } else {
        const V sum = sum_modulo(x, y);
        return where_negative((x > sum) ^ y, limit_of(~sum), sum);
    }
}

// With bounds for x that depend on y.
template <class V>
requires(sizeof(Lane<V>) == 4) inline V subtract_saturated(V x, V y)
{
    if constexpr (has32BitMinimum) {
        const V least = all_lanes<V>(lowest_of<i32>) + larger(y, V{});
        const V most = all_lanes<V>(highest<i32>) + smaller(y, V{});
        return smaller(larger(x, least), most) - y;
    } else {
        const V difference = difference_modulo(x, y);
        return where_negative((difference > x) ^ y, limit_of(~difference), difference);
    }
}

// The same with bounds for y that depend on x.
template <class V> inline V subtract_saturated_from(V x, V y)
{
    if constexpr (sizeof(Lane<V>) == 4 && has32BitMinimum) {
        const V least = larger(x, all_lanes<V>(-1)) - static_cast<i32>(highest<i32>);
        const V most = smaller(x, all_lanes<V>(-1)) - static_cast<i32>(lowest_of<i32>);
        return x - smaller(larger(y, least), most);
    } else {
        return subtract_saturated(x, y);
    }
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
