// Conversions of integers to longer ones, to shorter ones with saturation, and to single precision.
#include "frame/entry.h"
#include "kernel/map.h"
#include "kernel/lanes.h"
#include "kernel/rescale.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct To16 {
    i16 one(i8 x) const { return x; }
    template <int n> auto to(const i8* p) const { return load_as_16<n>(p); }
};

struct To32 {
    i32 one(i16 x) const { return x; }
    template <int n> auto to(const i16* p) const { return load_as_32<n>(p); }
};

struct ToSingle {
    template <class S> f32 one(S x) const { return static_cast<f32>(x); }
    template <int n, class S> auto to(const S* p) const { return singles(load_as_32<n>(p)); }
};

void convert(const i8* a, i16* d, int n) { map(static_cast<size_t>(n), d, Same{}, converted(a, To16{})); }
void convert(const i16* a, i32* d, int n) { map(static_cast<size_t>(n), d, Same{}, converted(a, To32{})); }
template <class S> void convert(const S* a, f32* d, int n)
{
    map(static_cast<size_t>(n), d, Same{}, converted(a, ToSingle{}));
}

// Saturation, with a scale factor before it.
template <class D, class Rescale> struct Narrow {
    Rescale rescale;
    template <class S> D one(S x) const { return saturated<D>(rescale(x)); }
    template <int n, class S> auto to(const S* p) const
    {
        return gather<D, n>(p, [this]<int k>(const S* q) { return rescale(load_lanes<k>(q)); });
    }
};

template <class D, class S> [[gnu::noinline]] void convert(const S* a, D* d, int n, int s)
{
    with_scale<S>(
        s, [=](auto op) { map<Medium>(static_cast<size_t>(n), d, Same{}, converted(a, Narrow<D, decltype(op)>{op})); });
}
void convert(const i32* a, i16* d, int n) { convert(a, d, n, 0); }

} // namespace
#include "entries/signal/elementwise/convert_integer.inc"
} // namespace sig5d::SIG5D_VARIANT
