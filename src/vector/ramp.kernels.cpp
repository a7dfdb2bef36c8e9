// Ramps: every element from its index, so that no error accumulates.
#include "frame/entry.h"
#include "vector/map_numbers.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// 0, 1, 2, ... as doubles: what map_parts takes for a source.
struct Indexes {
    f64 first;
    Indexes operator+(size_t n) const { return {first + static_cast<f64>(static_cast<u32>(n))}; }
    void operator+=(size_t n) { *this = *this + n; }
};
template <int L> inline Vec<f64, L> loadn(Indexes a)
{
    if constexpr (L == 1)
        return a.first;
    else if constexpr (L == 2)
        return splatn<L>(a.first) + Vec<f64, L>{0, 1};
    else
        return splatn<L>(a.first) + Vec<f64, L>{0, 1, 2, 3};
}
#if SIG5D_LEVEL > 0
inline Span span(Indexes, size_t) { return {nullptr, 0}; }
#endif

struct Line {
    f64 offset, step;
    template <class V> V operator()(V i) const { return constant<V>(offset) + constant<V>(step) * i; }
};
struct ComplexLine {
    Line re, im;
    template <class V> Parts<V> operator()(V i) const { return {re(i), im(i)}; }
};

[[gnu::noinline]] void ramp(f64* d, u32 n, f64 offset, f64 step)
{
    map_numbers(n, d, Line{offset, step}, Indexes{0});
}
[[gnu::noinline]] void ramp(c64f* d, u32 n, const c64f* offset, const c64f* step)
{
    map_numbers(n, complex(d), ComplexLine{{offset->re, step->re}, {offset->im, step->im}}, Indexes{0});
}

} // namespace
#include "entries/vector/ramp.inc"
} // namespace sig5d::SIG5D_VARIANT
