// Ramps: every element from its index, so that no error accumulates.
#include "frame/entry.h"
#include "vector/pairs.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// An index for each element, or for each part of one, as doubles: what map takes for a source.
#if SIG5D_LEVEL == 0

template <int parts> struct Indexes {
    auto operator[](size_t i) const
    {
        const f64 x = static_cast<f64>(static_cast<u32>(i));
        if constexpr (parts == 1)
            return x;
        else
            return c64f{x, x};
    }
};
template <int parts> inline Indexes<parts> indexes() { return {}; }

#else

template <int parts> struct Indexes {
    Vec<f64> at;
    Indexes operator+(size_t n) const { return {at + splat(static_cast<f64>(static_cast<u32>(n / parts)))}; }
    void operator+=(size_t n) { *this = *this + n; }
};
template <int parts> inline Indexes<parts> indexes()
{
    Vec<f64> v;
    for (int i = 0; i < lanes<f64>; ++i) v[i] = i / parts;
    return {v};
}
template <int L, int parts> inline Vec<f64, L> loadn(Indexes<parts> a) { return a.at; }
template <int bytes, int parts> inline Vec<f64, 2> load_part(Indexes<parts> a) { return Vec<f64, 2>{a.at[0], a.at[1]}; }
template <int parts> inline const void* lowest(Indexes<parts>, size_t) { return nullptr; }

#endif

template <class T> struct Line {
    Repeated<T> offset, step;
    template <class V> V operator()(V i) const
    {
        return Sum{}(offset.template as<V>(), PartsProduct{}(step.template as<V>(), i));
    }
};

[[gnu::noinline]] void ramp(f64* d, u32 n, f64 offset, f64 step)
{
    map(size_t{n}, d, Line<f64>{Repeated(offset), Repeated(step)}, indexes<1>());
}
[[gnu::noinline]] void ramp(c64f* d, u32 n, const c64f* offset, const c64f* step)
{
    map_pairs_of(n, d, Line<c64f>{Repeated(*offset), Repeated(*step)}, indexes<2>());
}

} // namespace
#include "entries/vector/ramp.inc"
} // namespace sig5d::SIG5D_VARIANT
