// Thresholds of real arrays, of integers and doubles alike: elements beyond a level become the level or another value.
// Comparisons are written so that a NaN meets none of them and passes.
#pragma once
#include "kernel/loops.h"
#include "kernel/minmax.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// A value in all lanes; the value itself in px.
template <class V, class T> inline V all_lanes(T x) { return splatn<sizeof(V) / sizeof(T)>(x); }

template <class T> struct LimitBelow {
    T level;
    template <class V> V operator()(V x) const { return larger(all_lanes<V>(level), x); }
};
template <class T> struct LimitAbove {
    T level;
    template <class V> V operator()(V x) const { return smaller(all_lanes<V>(level), x); }
};

// Levels of magnitudes are not negative. No magnitude is formed, so that the lowest integer needs no wider type.
template <class T> struct LimitMagnitudeBelow {
    T level;
    template <class V> V operator()(V x) const
    {
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
        const V y = x <= all_lanes<V>(levelGT) ? x : all_lanes<V>(valueGT);
        return x < all_lanes<V>(levelLT) ? all_lanes<V>(valueLT) : y;
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

template <class T> void replace_outside(const T* a, T* d, int n, T levelLT, T valueLT, T levelGT, T valueGT)
{
    // An element is inside if it is neither below the one level nor above the other: none is if one of them is NaN.
    if (levelLT != levelLT) levelGT = levelLT;
    each(a, d, n, ReplaceOutside<T>{levelLT, valueLT, levelGT, valueGT});
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
