// Integers times 2^-scaleFactor, rounded to the nearest (ties to the even one), within the limits of their own type:
// for results of a shorter type, whose limits come after these. With vectors, a record for each range of scale factors.
#pragma once
#include "kernel/scale.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

#if SIG5D_LEVEL == 0

struct Rescaled {
    int s;
    template <class S> i32 operator()(S x) const { return scaled<i32>(x, s); } // limits of 32 bits serve for all
};

template <class S, class Run> inline void with_scale(int s, Run run) { run(Rescaled{s}); }

#else

struct Unscaled {
    template <class V> V operator()(V x) const { return x; }
};

// From 16-bit lanes on, 0 < s < width.
struct ScaledDown {
    int s;
    template <class V> V operator()(V x) const
    {
        using Signed = Vec<std::make_signed_t<Lane<V>>, sizeof(V) / sizeof(Lane<V>)>;
        const V q = down(x, s);
        const Signed rest = as<Signed>(x & rest_mask<V>(s)), half = as<Signed>(half_unit<V>(s));
        return q - as<V>(rest > half - as<Signed>(q & all_lanes<V>(1)));
    }
};

struct ScaledUp {
    int count;
    template <class V> V operator()(V x) const { return raised(x, count); }
};

// What is left of unsigned numbers that are shifted by all their bits, and nothing else.
template <class S> struct Vanishing {
    S half; // of the unit
    template <class V> V operator()(V x) const
    {
        if constexpr (isSigned<S>)
            return V{};
        else
            return as<V>(x > all_lanes<V>(half)) & all_lanes<V>(1);
    }
};

// run(op) with the operation for scale factor s on vectors with lanes S.
template <class S, class Run> inline void with_scale(int s, Run run)
{
    if (s == 0)
        run(Unscaled{});
    else if (s < 0)
        run(ScaledUp{raise_count<S>(s)});
    else if (s < width<S>)
        run(ScaledDown{s});
    else
        run(Vanishing<S>{static_cast<S>(s == width<S> ? S(1) << (width<S> - 1) : S(-1))});
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
