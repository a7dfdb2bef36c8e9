// Integers times a power of two in double precision.
#include "frame/entry.h"
#include "kernel/convert_loop.h"
#include "kernel/lanes.h"
#include "kernel/power_of_two.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// An integer is so far from the smallest number that only the second product can round.
template <class S> void convert_far(const S* a, f64* d, int n, Scale scale)
{
    for (int i = 0; i < n; ++i) d[i] = static_cast<f64>(a[i]) * scale.first * scale.second;
}

struct Scaled {
    f64 factor;
    template <class S> f64 one(S x) const { return static_cast<f64>(x) * factor; }
#if SIG5D_LEVEL > 0
    template <int n, class S> auto to(const S* p) const { return doubles<n>(load_as_32<n>(p)) * factor; }
#endif
};

template <class S> [[gnu::noinline]] void convert(const S* a, f64* d, int n, int s)
{
    const Scale scale(s);
    if (!scale.simple()) return convert_far(a, d, n, scale);
    convert_all(static_cast<size_t>(n), a, d, Scaled{scale.first});
}

} // namespace
#include "entries/signal/elementwise/convert_scaled_double.inc"
} // namespace sig5d::SIG5D_VARIANT
