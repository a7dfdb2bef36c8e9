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
template <class Test> struct Not {
    auto operator()(auto x, auto y) const { return !Test{}(x, y); }
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

// Calls act(test) with the comparison of a code with y[0..n); another code is none.
template <class Act> inline void with_order(u32 code, Act act)
{
    switch (code) {
    case 0:
        return act(Less{});
    case 1:
        return act(LessOrEqual{});
    case 2:
        return act(Greater{});
    case 3:
        return act(GreaterOrEqual{});
    }
}
template <class Test, class Act> inline void with_equality(u32 code, Act act)
{
    if (code == 4) return act(Test{});
    if (code == 5) return act(Not<Test>{});
    with_order(code, act);
}
template <class T, class Act> inline void with_comparison(u32 code, const T*, size_t, Act act)
{
    with_equality<Equal>(code, act);
}
template <class Act> inline void with_comparison(u32 code, const f64* y, size_t n, Act act)
{
    // Looking at all of y first costs less than comparing by kind, as long as the cache keeps it.
    constexpr size_t cached = 32768;
    if (code >= 4 && n <= cached && all_finite(y, n)) return with_equality<Equal>(code, act);
    with_equality<EqualByKind>(code, act);
}
template <class T, class Act> inline void with_comparison(u32 code, OneValue<T> y, size_t, Act act)
{
    // The kind of a single value is known beforehand.
    if constexpr (sizeof(T) == sizeof(f64)) {
        if (code >= 4 && y.value != y.value) return with_equality<BothNaN>(code, act);
        if (code >= 4 && magnitude(y.value) == infinity) return with_equality<BothInfinite>(code, act);
    }
    with_equality<Equal>(code, act);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
