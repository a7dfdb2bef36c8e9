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
// From 4 on: the exponential, and what it is multiplied by.
template <class V> inline V inverse_root(V x) { return constant<V>(1.0) / square_root(x); }
template <class V> inline V large_factor(V inverseRoot)
{
    static constexpr f64 series[] = {0.3989422809,  0.0124667783,  0.0017623668,  0.00026,      0.0022585672,
                                     -0.0128314822, 0.0495811118,  -0.1209940805, 0.1895476618, -0.1867783276,
                                     0.1113315511,  -0.0366694767, 0.0051246015};
    return polynomial(series, inverseRoot * inverseRoot * constant<V>(4.0)) * inverseRoot;
}

class KaiserWeights
{
public:
    [[gnu::noinline]] KaiserWeights(size_t n, f64 alpha)
        : weights_(static_cast<f64>(static_cast<i32>(n / 2))), last_(static_cast<f64>(static_cast<i32>(n - 1))),
          slope_(absolute_value(alpha))
    {
        f64 x[lanes<f64>], w[lanes<f64>];
        store(x, splat(slope_ * last_ * 0.5));
        bessel(x, w, 1, 1.0);
        inverse_ = 1.0 / w[0];
    }

    size_t length() const { return mostWeights; }
    template <class Use> void stretch(size_t first, size_t n, Use use)
    {
        fill(first, n);
        use(StoredWeights{w_});
    }

private:
    using V = Vec<f64>;
    static constexpr size_t L = lanes<f64>;

    [[gnu::noinline]] void fill(size_t first, size_t n)
    {
        f64 x[mostWeights];
        const V last = splat(last_), mine = splat(weights_ - 1.0), slope = splat(slope_);
        Indexes<1> at = indexes<1>() + first;
        for (size_t k = 0; k < n; k += L, at = at + L) {
            const V i = smaller(load_lanes<L>(at), mine); // lanes that are left over repeat the last weight
            store(x + k, slope * square_root(i * (last - i)));
        }
        bessel(x, w_, n, inverse_);
    }

    // A factor times I0 of vectors of 0 <= x <= 700, or NaN. In short loops, so that the processor, whose view ahead
    // ends within one vector's steps, finds some that wait for nothing; those of small x come first.
    [[gnu::noinline]] static void bessel(const f64* x, f64* w, size_t n, f64 factor)
    {
        const V limit = constant<V>(largeBessel), all = splat(factor);
        f64 exponential[mostWeights];
        size_t begin = 0;
        while (begin < n && lanes_set(load(x + begin) < limit) == allLanes<V>) begin += L;
        for (size_t k = begin; k < n; k += L) {
            const V large = larger(limit, load(x + k));
            store(exponential + k, moderate_exp(large));
            store(w + k, inverse_root(large));
        }
        for (size_t k = begin; k < n; k += L) store(w + k, load(exponential + k) * large_factor(load(w + k)) * all);
        for (size_t k = 0; k < n; k += L) {
            const V here = load(x + k);
            const auto small = here < limit;
            if (!any(small)) break;
            const V weight = small_bessel(smaller(limit, here)) * all;
            store(w + k, k < begin ? weight : small ? weight : load(w + k));
        }
    }

    f64 weights_, last_, slope_, inverse_;
    alignas(64) f64 w_[mostWeights];
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
