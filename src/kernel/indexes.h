// The index of each element, or for each part of one, as doubles: a source of map.
#pragma once
#include "kernel/map.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

#if SIG5D_LEVEL == 0

template <int parts> struct Indexes {
    size_t i;
    Indexes operator+(size_t n) const { return {i + n}; }
};
template <int parts> inline Indexes<parts> indexes() { return {0}; }
template <int n, int parts> inline auto load_lanes(Indexes<parts> a)
{
    const f64 x = static_cast<f64>(static_cast<u32>(a.i));
    if constexpr (parts == 1)
        return x;
    else
        return c64f{x, x};
}

#else

template <int parts> struct Indexes {
    Vec<f64> at;
    Indexes operator+(size_t n) const { return {at + splat(static_cast<f64>(static_cast<u32>(n / parts)))}; }
};
template <int parts> inline Indexes<parts> indexes()
{
    Vec<f64> v;
    for (int i = 0; i < lanes<f64>; ++i) v[i] = i / parts;
    return {v};
}
template <int n, int parts> inline auto load_lanes(Indexes<parts> a) { return low_end < Vec<f64, n<2 ? 2 : n>>(a.at); }

#endif
template <int parts> inline Span span(Indexes<parts>, size_t) { return nowhere; }

// Those of one vector, from an element on.
inline Vec<f64> indexes_from(size_t first) { return load_lanes<lanes<f64>>(indexes<1>() + first); }

} // namespace
} // namespace sig5d::SIG5D_VARIANT
