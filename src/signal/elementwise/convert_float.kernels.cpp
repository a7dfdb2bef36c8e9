// Conversions between single and double precision and of 32-bit integers to either, rounded to the nearest where the
// number does not fit.
#include "frame/entry.h"
#include "kernel/lanes.h"
#include "kernel/map.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct ToSingle {
    template <class S> f32 one(S x) const { return static_cast<f32>(x); }
    template <int n> auto to(const i32* p) const { return singles(load_lanes<n>(p)); }
    template <int n> auto to(const f64* p) const
    {
        constexpr int half = n / 2;
        if constexpr (n > 4)
            return joined<half>(singles(loadn<half>(p)), singles(loadn<half>(p + half)));
        else if constexpr (n == 4) // of short arrays: in 16 bytes, so that the compiler need not leave those of 32
            return joined<half>(to<half>(p), to<half>(p + half));
        else
            return singles(load_lanes<n>(p));
    }
};

struct ToDouble {
    template <class S> f64 one(S x) const { return x; }
    template <int n, class S> auto to(const S* p) const { return doubles<n>(load_lanes<n>(p)); }
};

template <class S> void convert(const S* a, f32* d, int n)
{
    map(static_cast<size_t>(n), d, Same{}, converted(a, ToSingle{}));
}
template <class S> void convert(const S* a, f64* d, int n)
{
    map(static_cast<size_t>(n), d, Same{}, converted(a, ToDouble{}));
}

} // namespace
#include "entries/signal/elementwise/convert_float.inc"
} // namespace sig5d::SIG5D_VARIANT
