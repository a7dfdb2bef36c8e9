// Ramps: every element from its index, so that no error accumulates.
#include "frame/entry.h"
#include "vector/pairs.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// An index for each element, or for each part of one, as doubles: a source of map.
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

template <class T> struct Line {
    Operand<T> offset, step;
    template <class V> V operator()(V i) const
    {
        return Sum{}(offset.template as<V>(), PartsProduct{}(step.template as<V>(), i));
    }
};

[[gnu::noinline]] void ramp(f64* d, u32 n, f64 offset, f64 step)
{
    map(size_t{n}, d, Line<f64>{Operand(offset), Operand(step)}, indexes<1>());
}
[[gnu::noinline]] void ramp(c64f* d, u32 n, const c64f* offset, const c64f* step)
{
    map_pairs(n, d, Line<c64f>{Operand(*offset), Operand(*step)}, indexes<2>());
}

} // namespace
#include "entries/vector/ramp.inc"
} // namespace sig5d::SIG5D_VARIANT
