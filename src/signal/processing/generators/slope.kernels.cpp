// Lines: every element from its index, so that no error accumulates. Integers are the nearest ones, ties to even,
// within their limits; NaN becomes the lower one.
#include "frame/entry.h"
#include "kernel/indexes.h"
#include "kernel/rounding.h"
#include "kernel/saturate.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct Line {
    f64 offset, slope;
    template <class V> V operator()(V i) const { return all_lanes<V>(offset) + all_lanes<V>(slope) * i; }
};

// A line as elements of type D: a source of map.
template <class D> struct Points {
    Indexes<1> i;
    Line line;
    Points operator+(size_t n) const { return {i + n, line}; }
};
template <class D> inline Span span(Points<D>, size_t) { return nowhere; }

#if SIG5D_LEVEL == 0

template <int n, class D> inline D load_lanes(Points<D> a) { return static_cast<D>(a.line(load_lanes<1>(a.i))); }

#else

// n lanes of single precision, or n integers in a register at least.
template <int n> inline auto singles_of(Points<f32> a)
{
    if constexpr (n > lanes<f64>)
        return joined<n / 2>(singles_of<n / 2>(a), singles_of<n / 2>(a + n / 2));
    else
        return singles(a.line(load_lanes<n>(a.i)));
}
template <int n, class D> inline auto integers_of(Points<D> a)
{
    if constexpr (n > lanes<f64>)
        return low_halves(integers_of<n / 2>(a), integers_of<n / 2>(a + n / 2));
    else
        return Rounded<f64, LimitsOfInteger<D>, NearestEven, false>(1.0).lanes_of(a.line(load_lanes<n>(a.i)));
}
template <int n, class D> inline auto load_lanes(Points<D> a)
{
    if constexpr (std::is_same_v<D, f64>)
        return a.line(load_lanes<n>(a.i));
    else if constexpr (std::is_same_v<D, f32>)
        return singles_of<n>(a);
    else
        return gather<D, n>(a, []<int k>(Points<D> b) { return integers_of<k>(b); });
}

#endif

template <class Shape, class D> inline void draw(D* d, int n, Line line)
{
    map<Shape>(static_cast<size_t>(n), d, Same{}, Points<D>{indexes<1>(), line});
}

template <class D> [[gnu::noinline]] void draw_integers(D* d, int n, Line line)
{
    if constexpr (vectorBytes > 0) { // 16 bytes at a time, since that is how doubles become integers
        draw<InFlight<2, false, 16>>(d, n, line);
    } else {
        const Scale one(0);
        for (int i = 0; i < n; ++i)
            d[i] = static_cast<D>(rounded<LimitsOfInteger<D>>(line(static_cast<f64>(i)), one, NearestEven));
    }
}

template <class D> void vector_slope(D* d, int n, f64 offset, f64 slope)
{
    const Line line{offset, slope};
    if constexpr (std::is_floating_point_v<D>) {
        draw<std::conditional_t<sizeof(D) == sizeof(f64), Light, Medium>>(d, n, line);
    } else {
        const NearestMode mode;
        draw_integers(d, n, line);
    }
}

} // namespace
#include "entries/signal/processing/generators/slope.inc"
} // namespace sig5d::SIG5D_VARIANT
