// Exact integer division of vectors by a number that is the same for all lanes, as a product by its reciprocal.
#pragma once
#include "kernel/lane_shifts.h"
#include "vector/two_results.h"
#if SIG5D_LEVEL > 0

namespace sig5d::SIG5D_VARIANT {
namespace {

// floor(high * 2^32 / divisor) for high < divisor; a divisor of zero faults.
inline u32 scaled_quotient(u32 high, u32 divisor)
{
    u32 quotient = 0;
    asm("divl %2" : "+a"(quotient), "+d"(high) : "r"(divisor) : "cc");
    return quotient;
}

// As in "Division by Invariant Integers using Multiplication" (PLDI 1994), figure 5.2: exact for every dividend and
// every divisor but zero. T: i16, i32.
template <class T> struct Reciprocal {
    T multiplier; // 2^(width + shift) / |divisor|, rounded up, less 2^width
    int shift;
    T magnitude; // |divisor|, or -2^(width - 1)
    T flip;      // -1 where the divisor is negative

    explicit Reciprocal(T divisor)
        : magnitude(static_cast<T>(divisor < 0 ? 0u - static_cast<u32>(divisor) : static_cast<u32>(divisor))),
          flip(divisor < 0 ? -1 : 0)
    {
        const u32 size = sizeof(T) == 2 ? static_cast<u16>(magnitude) : static_cast<u32>(magnitude);
        shift = size > 2 ? 31 - __builtin_clz(size - 1) : 0; // ceil(log2(size)) - 1
        const u32 high = size == 1 ? 0 : u32{1} << shift;
        if constexpr (sizeof(T) == 4)
            multiplier = static_cast<T>(scaled_quotient(high, size) + 1);
        else
            multiplier = static_cast<T>((high << 16) / size + 1);
    }

    // Truncated quotients by |divisor|.
    template <class V> V by_magnitude(V x) const
    {
        constexpr int L = sizeof(V) / sizeof(T);
        using Lanes = Vec<T, L>;
        using U = Vec<typename UnsignedLane<T>::type, L>;
        const U sum = as<U>(x) + as<U>(high_product(as<Lanes>(x), splatn<L>(multiplier)));
        const Lanes floor = shifted_right(as<Lanes>(sum), shift), sign = as<Lanes>(x) >> (8 * sizeof(T) - 1);
        return as<V>(as<U>(floor) - as<U>(sign));
    }
    template <class V> V quotient(V byMagnitude) const
    {
        constexpr int L = sizeof(V) / sizeof(T);
        using U = Vec<typename UnsignedLane<T>::type, L>;
        const U turn = reinterpret_cast<U>(splatn<L>(flip));
        return reinterpret_cast<V>((reinterpret_cast<U>(byMagnitude) ^ turn) - turn);
    }
    template <class V> V remainder(V x, V byMagnitude) const
    {
        constexpr int L = sizeof(V) / sizeof(T);
        using U = Vec<typename UnsignedLane<T>::type, L>;
        const U product = reinterpret_cast<U>(byMagnitude) * reinterpret_cast<U>(splatn<L>(magnitude));
        return reinterpret_cast<V>(reinterpret_cast<U>(x) - product);
    }
};

// For bytes: floor((x + 1) * m / 2^16) with m = floor((2^16 - 1) / divisor) is floor(x / divisor), since the error of m
// is at most the divisor and 256 * 255 <= 2^16. Bytes at even and at odd places go apart, in lanes of two bytes.
template <> struct Reciprocal<u8> {
    u16 multiplier, magnitude;

    explicit Reciprocal(u8 divisor) : multiplier(static_cast<u16>(0xFFFFu / divisor)), magnitude(divisor) {}

    template <class V> struct Halves {
        Vec<u16, sizeof(V) / 2> even, odd;
    };
    template <class V> Halves<V> by_magnitude(V x) const
    {
        using U = Vec<u16, sizeof(V) / 2>;
        const U both = reinterpret_cast<U>(x);
        return {times_reciprocal((both & 0xFF) + 1), times_reciprocal((both >> 8) + 1)};
    }
    template <class U> U times_reciprocal(U x) const { return high_product(x, splatn<sizeof(U) / 2>(multiplier)); }
    template <class V> V quotient(Halves<V> q) const { return reinterpret_cast<V>(q.even | q.odd << 8); }
    template <class V> V remainder(V x, Halves<V> q) const
    {
        return x - reinterpret_cast<V>(q.even * magnitude | q.odd * static_cast<u16>(magnitude << 8));
    }
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
#endif
