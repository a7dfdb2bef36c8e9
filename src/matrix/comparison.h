// What "x compares with y" means, for single values and for vectors of them, by the comparison codes of the interface.
#pragma once
#include "frame/entry.h"
#include "kernel/simd.h"
#include <cstddef>

namespace sig5d::SIG5D_VARIANT {
namespace {

// Written for values and for vectors alike: a comparison of vectors is -1 (all bits) where it holds.
template <class V> inline V magnitude(V x)
{
    if constexpr (sizeof(V) == sizeof(f64)) {
        return __builtin_fabs(x);
    } else {
        const auto bits = reinterpret_cast<decltype(x < x)>(x);
        return reinterpret_cast<V>(bits & 0x7FFFFFFFFFFFFFFF);
    }
}
constexpr f64 infinity = __builtin_inf();

struct Less {
    auto operator()(auto x, auto y) const { return x < y; }
};
struct LessOrEqual {
    auto operator()(auto x, auto y) const { return x <= y; }
};
struct Greater {
    auto operator()(auto x, auto y) const { return x > y; }
};
struct GreaterOrEqual {
    auto operator()(auto x, auto y) const { return x >= y; }
};
struct Equal {
    auto operator()(auto x, auto y) const { return x == y; }
};
// Equality by the kind of y: a NaN equals the NaNs, an infinity those of both signs.
struct BothNaN { // y is one
    auto operator()(auto x, auto) const { return x != x; }
};
struct BothInfinite { // y is infinite
    auto operator()(auto x, auto y) const { return magnitude(x) == magnitude(y); }
};
struct EqualByKind {
    auto operator()(auto x, auto y) const
    {
        const auto size = magnitude(y);
        return (x == y) | ((x != x) & (y != y)) | ((magnitude(x) == size) & (size == infinity));
    }
};
template <class Test> constexpr bool findsInfinities = false;
template <> constexpr bool findsInfinities<BothInfinite> = true;
template <> constexpr bool findsInfinities<EqualByKind> = true;

// One value that is compared with all elements, in place of an array.
template <class T> struct OneValue {
    T value;
    T operator[](size_t) const { return value; }
    OneValue operator+(size_t) const { return *this; }
};

inline bool all_finite(const f64* y, size_t n)
{
    constexpr u64 exponent = 0x7FF0000000000000, one = 0x0010000000000000;
    u64 sums = 0;
    for (size_t k = 0; k < n; ++k) {
        u64 bits;
        __builtin_memcpy(&bits, y + k, sizeof bits);
        sums |= (bits & exponent) + one; // reaches the sign from the greatest exponent only
    }
    return sums >> 63 == 0;
}

// Calls act(test, x, y, inverted) so that the code's comparison of x[k] with y[k] is that test of them, or of the two
// changed round, or the opposite of it: the fewer tests there are, the less code. Another code is none.
template <class Test, class X, class Y, class Act> inline void with_equality(u32 code, X x, Y y, Act act)
{
    if (code == 4 || code == 5) act(Test{}, x, y, code == 5);
}
template <class T, class Act> inline void with_order(u32 code, const T* x, const T* y, Act act)
{
    const bool fromAbove = code >= 2;
    if constexpr (sizeof(T) < sizeof(f64)) { // without NaN
        if (code == 1 || code == 2)
            act(Less{}, y, x, code == 1);
        else if (code < 4)
            act(Less{}, x, y, code == 3);
    } else if (code % 2 == 0 && code < 4) {
        act(Less{}, fromAbove ? y : x, fromAbove ? x : y, false);
    } else if (code < 4) {
        act(LessOrEqual{}, fromAbove ? y : x, fromAbove ? x : y, false);
    }
}
template <class T, class Act> inline void with_order(u32 code, const T* x, OneValue<T> y, Act act)
{
    constexpr bool total = sizeof(T) < sizeof(f64);
    if (code == 0 || (total && code == 3)) return act(Less{}, x, y, code == 3);
    if (code == 2 || (total && code == 1)) return act(Greater{}, x, y, code == 1);
    if constexpr (!total) {
        if (code == 1) act(LessOrEqual{}, x, y, false);
        if (code == 3) act(GreaterOrEqual{}, x, y, false);
    }
}
template <class T, class Act> inline void with_comparison(u32 code, const T* x, const T* y, size_t n, Act act)
{
    with_order(code, x, y, act);
    if constexpr (sizeof(T) == sizeof(f64)) {
        // Looking at all of y first costs less than comparing by kind, as long as the cache keeps it.
        constexpr size_t cached = 32768;
        if (code >= 4 && (n > cached || !all_finite(y, n))) return with_equality<EqualByKind>(code, x, y, act);
    }
    with_equality<Equal>(code, x, y, act);
}
template <class T, class Act> inline void with_comparison(u32 code, const T* x, OneValue<T> y, size_t, Act act)
{
    with_order(code, x, y, act);
    // The kind of a single value is known beforehand.
    if constexpr (sizeof(T) == sizeof(f64)) {
        if (code >= 4 && y.value != y.value) return with_equality<BothNaN>(code, x, y, act);
        if (code >= 4 && magnitude(y.value) == infinity) return with_equality<BothInfinite>(code, x, y, act);
    }
    with_equality<Equal>(code, x, y, act);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
