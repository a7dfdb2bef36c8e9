// Thresholds of real arrays, of integers and doubles alike: elements beyond a level become the level or another value.
// Comparisons are written so that a NaN meets none of them and passes.
#pragma once
#include "kernel/map.h"
#include "kernel/plain_rounding.h"
#include "kernel/saturate.h"
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> struct LimitBelow {
    T level;
    template <class V> V operator()(V x) const { return larger(all_lanes<V>(level), x); }
};
template <class T> struct LimitAbove {
    T level;
    template <class V> V operator()(V x) const { return smaller(all_lanes<V>(level), x); }
};

// Levels of magnitudes are not negative. The plain form needs no magnitude, and so no wider type for that of the lowest
// integer; vectors take it as an unsigned number.
template <class T, bool toNearest = true> struct LimitMagnitudeBelow {
    T level;
    template <class V> V operator()(V x) const
    {
        if constexpr (sizeof(T) == 8 && sizeof(V) > sizeof(T) && toNearest) {
            // -0 is not negative: where the level is above 0 it becomes the level, too. Rounded downward the sum would
            // be -0 again.
            const V zero = all_lanes<V>(level > 0 ? 0.0 : -0.0);
            return with_sign(larger(all_lanes<V>(level), absolute_value(x)), x + zero);
        }
        if constexpr (sizeof(T) < 8 && sizeof(V) >= 16 && has32BitMinimum) {
            using U = Unsigned<V>;
            return with_signs(as<V>(larger(as<U>(all_lanes<V>(level)), as<U>(magnitudes(x)))), x | 1);
        }
        const V up = all_lanes<V>(level), down = all_lanes<V>(static_cast<T>(-level));
        return x < all_lanes<V>(T{}) ? smaller(down, x) : larger(up, x);
    }
};
template <class T> struct LimitMagnitudeAbove {
    T level;
    template <class V> V operator()(V x) const
    {
        const V up = all_lanes<V>(level), down = all_lanes<V>(static_cast<T>(-level));
        return larger(down, smaller(up, x));
    }
};

template <class T> struct ReplaceBelow {
    T level, value;
    template <class V> V operator()(V x) const { return x < all_lanes<V>(level) ? all_lanes<V>(value) : x; }
};
template <class T> struct ReplaceAbove {
    T level, value;
    template <class V> V operator()(V x) const { return x > all_lanes<V>(level) ? all_lanes<V>(value) : x; }
};

// What is not below or equal to the upper level is above it, NaN included.
template <class T> struct ReplaceOutside {
    T levelLT, valueLT, levelGT, valueGT;
    template <class V> V operator()(V x) const
    {
        const V low = all_lanes<V>(valueLT), high = all_lanes<V>(valueGT);
        const auto below = x < all_lanes<V>(levelLT), within = x <= all_lanes<V>(levelGT);
        if constexpr (hasQuickChoice || sizeof(V) == sizeof(T)) {
            return below ? low : within ? x : high;
        } else {
            // Two selections are six or more steps, but in the form that SSE4.1 has and AVX lacks. By bits they are
            // five: what differs from the upper value and then from the lower one.
            using Bits = std::remove_const_t<decltype(below)>;
            const Bits a = reinterpret_cast<Bits>(low), b = reinterpret_cast<Bits>(high);
            const Bits difference = ((reinterpret_cast<Bits>(x) ^ b) & within) ^ (a ^ b);
            return reinterpret_cast<V>((difference & ~below) ^ a);
        }
    }
};

template <class T, class Op> [[gnu::noinline]] void each(const T* a, T* d, int n, Op op)
{
    map(static_cast<size_t>(n), d, op, a);
}

template <class T> void limit_below(const T* a, T* d, int n, T level) { each(a, d, n, LimitBelow<T>{level}); }
template <class T> void limit_above(const T* a, T* d, int n, T level) { each(a, d, n, LimitAbove<T>{level}); }

template <class T> void limit_magnitude_below(const T* a, T* d, int n, T level)
{
    if (sizeof(T) == 8 && !rounds_to_nearest()) return each(a, d, n, LimitMagnitudeBelow<T, false>{level});
    each(a, d, n, LimitMagnitudeBelow<T>{level});
}
template <class T> void limit_magnitude_above(const T* a, T* d, int n, T level)
{
    each(a, d, n, LimitMagnitudeAbove<T>{level});
}

template <class T> void replace_below(const T* a, T* d, int n, T level, T value)
{
    each(a, d, n, ReplaceBelow<T>{level, value});
}
template <class T> void replace_above(const T* a, T* d, int n, T level, T value)
{
    each(a, d, n, ReplaceAbove<T>{level, value});
}

template <class T>
[[gnu::noinline]] void replace_outside(const T* a, T* d, int n, T levelLT, T valueLT, T levelGT, T valueGT)
{
    // An element is inside if it is neither below the one level nor above the other: none is if one of them is NaN.
    if (levelLT != levelLT) levelGT = levelLT;
    map<Heavy<2>>(static_cast<size_t>(n), d, ReplaceOutside<T>{levelLT, valueLT, levelGT, valueGT}, a);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
