// Integers times a power of two in double precision.
#include "frame/entry.h"
#include "kernel/map.h"
#include "kernel/lanes.h"
#include "kernel/rounding.h"

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
    template <int n, class S> auto to(const S* p) const { return doubles<n>(load_as_32<n>(p)) * factor; }
};

// The integer added to the last bits of a double whose last bit is worth the factor, less that double: two additions
// instead of a conversion and a product.
struct ScaledShort {
    f64 offset;
    template <class V> auto value(V x) const
    {
        using F = Vec<f64, sizeof(V) / 8>;
        return reinterpret_cast<F>(x + reinterpret_cast<V>(splatn<sizeof(V) / 8>(offset))) - offset;
    }
    template <int n> auto to(const i16* p) const
    {
        return value(widened_to_64<n>(load_part<static_cast<int>(n * sizeof(i16))>(p)));
    }
};

template <class S> [[gnu::noinline]] void convert(const S* a, f64* d, int n, int s)
{
    const Scale scale(s);
    const size_t count = static_cast<size_t>(n);
    if (!scale.simple()) return convert_far(a, d, n, scale);
    // Rounding downward, a difference of zero would be -0.
    if constexpr (sizeof(S) == 2 && hasFloor)
        if (s > -900 && s < 900 && rounds_to_nearest())
            return map(count, d, Same{}, converted(a, ScaledShort{0x1.8p52 * scale.first}));
    map(count, d, Same{}, converted(a, Scaled{scale.first}));
}

} // namespace
#include "entries/signal/elementwise/convert_scaled_double.inc"
} // namespace sig5d::SIG5D_VARIANT
