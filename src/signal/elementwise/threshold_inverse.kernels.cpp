// Reciprocals of real arrays that are limited in magnitude.
#include "frame/entry.h"
#include "kernel/map.h"
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The reciprocal of x, or of the level with the sign of x where x is not larger. A NaN stays one.
struct LimitedReciprocal {
    f64 level, one;
    bool& zeros;
    template <class V> V operator()(V x) const
    {
        const V zero = all_lanes<V>(0), up = all_lanes<V>(level), down = all_lanes<V>(-level);
        zeros |= any(x == zero);
        const V raised = x <= up ? up : x, lowered = x >= down ? down : x;
        return all_lanes<V>(one) / (x < zero ? lowered : raised);
    }
};

[[gnu::noinline]] Status invert(const f64* a, f64* d, int n, f64 level)
{
    bool zeros = false;
    if (level == 0) level = 0;                  // not -0
    const f64 one = level != level ? level : 1; // nothing is larger than NaN
    map<Heavy<2>>(static_cast<size_t>(n), d, LimitedReciprocal{level, one, zeros}, a);
    return zeros && level == 0 ? StsInvZero : StsNoErr;
}

} // namespace
#include "entries/signal/elementwise/threshold_inverse.inc"
} // namespace sig5d::SIG5D_VARIANT
