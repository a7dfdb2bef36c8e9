// Vectors of floating-point numbers times a power of two, rounded to integers within limits.
#pragma once
#include "kernel/lanes.h"
#include "kernel/plain_rounding.h"
#include "kernel/saturate.h"
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// For x that is no NaN and a positive limit: the smaller of the two; where x is larger, all bits. Single precision has
// the order of its bits as integers there, which keeps the units free that convert and compare numbers.
template <class V> constexpr bool byIntegers = sizeof(Lane<V>) == 4 && has32BitMinimum && sizeof(V) <= integerBytes;
template <class V> using Integers = Vec<i32, sizeof(V) / 4>;
template <class V> inline V below_limit(V x, V limit)
{
    if constexpr (byIntegers<V>) {
        const auto a = reinterpret_cast<Integers<V>>(x), b = reinterpret_cast<Integers<V>>(limit);
        return reinterpret_cast<V>(a < b ? a : b);
    } else {
        return smaller(x, limit);
    }
}
template <class V> inline Integers<V> exceeds(V x, V limit)
{
    if constexpr (byIntegers<V>)
        return reinterpret_cast<Integers<V>>(x) > reinterpret_cast<Integers<V>>(limit);
    else
        return reinterpret_cast<Integers<V>>(x > limit);
}

// The largest number below one half: with it, truncation of the sum rounds to the nearest, ties away from zero.
template <class F> constexpr F belowHalf = sizeof(F) == 4 ? F(0x1.fffffep-2) : F(0x1.fffffffffffffp-2);

// A magnitude with the sign of each lane.
template <class F, class V> inline V with_sign_of(V y, F magnitude)
{
    using U = std::conditional_t<sizeof(F) == 4, u32, u64>;
    constexpr int n = sizeof(V) / sizeof(F);
    const auto sign = reinterpret_cast<Vec<U, n>>(y) & (U(1) << (8 * sizeof(F) - 1));
    return reinterpret_cast<V>(sign | reinterpret_cast<Vec<U, n>>(splatn<n>(magnitude)));
}

// Scale factors up to here leave the limits of integers finite, and products with numbers within them exact or on the
// way to zero.
template <class F> constexpr int mostScaled = sizeof(F) == 4 ? 95 : 950;

// Where the processor rounds to the nearest. F: type of the numbers and of the computation. Limits come first: neither
// the product nor the conversion gets a number that does not fit, which would raise an exception. NaN becomes the lower
// one.
template <class F, class Bounds, Rounding mode, bool scaled = true> struct Rounded {
    // Single precision has no 2^31 - 1: what is beyond the largest number below gets the bits that it lacks.
    static constexpr bool inexact = sizeof(F) == 4 && Bounds::high > 0x1p30;

    F factor; // 1 unless "scaled"
    F low, high;
    F half; // of NearestAway: added to magnitudes
    explicit Rounded(F f, F added = belowHalf<F>)
        : factor(f), low(static_cast<F>(Bounds::low) / f), high((inexact ? F(0x1.fffffep30) : F(Bounds::high)) / f),
          half(added)
    {
    }

    template <class V> auto lanes_of(V x) const
    {
        constexpr int n = sizeof(V) / sizeof(F);
        const V above = larger(x, splatn<n>(low));
        V y = below_limit(above, splatn<n>(high));
        if constexpr (scaled) y *= factor;
        if constexpr (mode == NearestAway) y = y + with_sign_of(y, half);
        const auto whole = [](V z) {
            if constexpr (mode == NearestEven)
                return nearest(z);
            else
                return truncated(z);
        };
        const auto integers = whole(y);
        if constexpr (inexact)
            return integers |
                   reinterpret_cast<Integers<V>>(reinterpret_cast<Vec<u32, n>>(exceeds(above, splatn<n>(high))) >> 25);
        else
            return integers;
    }

    // n integers, in a register at least.
    template <int n> auto to(const f32* p) const { return lanes_of(load_lanes<n>(p)); }
    template <int n> auto to(const f64* p) const
    {
        if constexpr (n > lanes<f64>)
            return low_halves(to<n / 2>(p), to<n / 2>(p + n / 2));
        else
            return lanes_of(load_lanes<n>(p));
    }
};

// As elements of type D.
template <class D> using LimitsOfInteger = Limits<width<D>, isSigned<D>>;
template <class D, class Integers> struct AsElements {
    Integers integers;
    template <int n, class S> auto to(const S* p) const
    {
        return gather<D, n>(p, [this]<int k>(const S* q) { return integers.template to<k>(q); });
    }
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
