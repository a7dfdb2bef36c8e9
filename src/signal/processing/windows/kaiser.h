// The Kaiser window's weights: I0(|alpha| sqrt(i (n - 1 - i))) / I0(|alpha| (n - 1) / 2), where I0 is approximated by
// two polynomials, below and from 4 on.
#pragma once
#include "kernel/exp.h"
#include "kernel/indexes.h"
#include "signal/processing/windows/both_ends.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr f64 largeBessel = 4.0;

template <class V> inline V small_bessel(V x)
{
    static constexpr f64 series[] = {0.9999999985, 4.0000001935, 3.9999959541, 1.777809969,
                                     0.4443189384, 0.0713758187, 0.0075942968, 0.0008267816};
    const V quarter = x * constant<V>(0.25);
    return polynomial(series, quarter * quarter);
}
template <class V> inline V large_bessel(V x)
{
    static constexpr f64 series[] = {0.3989422809,  0.0124667783,  0.0017623668,  0.00026,      0.0022585672,
                                     -0.0128314822, 0.0495811118,  -0.1209940805, 0.1895476618, -0.1867783276,
                                     0.1113315511,  -0.0366694767, 0.0051246015};
    const V inverse = constant<V>(1.0) / square_root(x), fraction = inverse * inverse * constant<V>(4.0);
    return moderate_exp(x) * (polynomial(series, fraction) * inverse);
}
// For 0 <= x <= 700, or NaN. What no lane asks for is not computed.
template <class V> inline V bessel(V x)
{
    const V limit = constant<V>(largeBessel);
    const auto isSmall = x < limit;
    const int smalls = lanes_set(isSmall);
    if (smalls == allLanes<V>) return small_bessel(x);
    const V large = large_bessel(larger(limit, x));
    if (!smalls) return large;
    return isSmall ? small_bessel(smaller(limit, x)) : large;
}

class KaiserWeights
{
public:
    [[gnu::noinline]] KaiserWeights(size_t n, f64 alpha)
        : weights_(static_cast<f64>(static_cast<i32>(n / 2))), last_(static_cast<f64>(static_cast<i32>(n - 1))),
          slope_(absolute_value(alpha)), inverse_(constant<V>(1.0) / bessel(splat(slope_ * last_ * 0.5)))
    {
    }

    [[gnu::noinline]] void fill(f64* w, size_t first, size_t n)
    {
        constexpr size_t L = lanes<f64>;
        const V last = splat(last_), mine = splat(weights_ - 1.0), slope = splat(slope_);
        Indexes<1> at = indexes<1>() + first;
        for (size_t k = 0; k < n; k += L, at = at + L) {
            const V i = smaller(load_lanes<L>(at), mine); // lanes that are left over repeat the last weight
            store(w + k, bessel(slope * square_root(i * (last - i))) * inverse_);
        }
    }

private:
    using V = Vec<f64>;
    f64 weights_, last_, slope_;
    V inverse_;
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
