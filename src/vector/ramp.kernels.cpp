// Ramps: every element from its index, so that no error accumulates.
#include "frame/entry.h"
#include "kernel/indexes.h"
#include "vector/pairs.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> struct Line {
    Operand<T> offset, step;
    template <class V> V operator()(V i) const
    {
        return Sum{}(offset.template as<V>(), PartsProduct{}(step.template as<V>(), i));
    }
};

[[gnu::noinline]] void ramp(f64* d, u32 n, f64 offset, f64 step)
{
    map(size_t{n}, d, Line<f64>{Operand(offset), Operand(step)}, indexes<1>());
}
[[gnu::noinline]] void ramp(c64f* d, u32 n, const c64f* offset, const c64f* step)
{
    map_pairs(n, d, Line<c64f>{Operand(*offset), Operand(*step)}, indexes<2>());
}

} // namespace
#include "entries/vector/ramp.inc"
} // namespace sig5d::SIG5D_VARIANT
