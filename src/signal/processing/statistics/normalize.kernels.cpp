// Less an offset, divided by a scale.
#include "frame/entry.h"
#include "kernel/pairs.h"
#include "kernel/repeated.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> struct Normalized {
    Operand<T> offset;
    Operand<f64> scale;
#if SIG5D_LEVEL == 0
    f64 operator()(f64 x) const { return (x - offset.value) / scale.value; }
    c64f operator()(c64f x) const
    {
        const c64f d = x - offset.value;
        return {d.re / scale.value, d.im / scale.value};
    }
#else
    template <class V> V operator()(V x) const { return (x - offset.template as<V>()) / scale.as<V>(); }
#endif
};

[[gnu::noinline]] void normalize(const f64* a, f64* d, int n, f64 offset, f64 scale)
{
    map<Medium>(static_cast<size_t>(n), d, Normalized<f64>{Operand<f64>(offset), Operand<f64>(scale)}, a);
}
[[gnu::noinline]] void normalize(const c64f* a, c64f* d, int n, c64f offset, f64 scale)
{
    map_pairs(static_cast<size_t>(n), d, Normalized<c64f>{Operand<c64f>(offset), Operand<f64>(scale)}, a);
}

} // namespace
#include "entries/signal/processing/statistics/normalize.inc"
} // namespace sig5d::SIG5D_VARIANT
