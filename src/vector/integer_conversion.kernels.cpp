// Conversions between integers of different width: to bytes with saturation, from bytes.
#include "frame/entry.h"
#include "kernel/lanes.h"
#include "kernel/map.h"
#include "kernel/saturate.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class D> struct To {
    template <class S> D one(S x) const { return saturated<D>(x); }
    template <int n> auto to(const u8* p) const
    {
        if constexpr (sizeof(D) == 2)
            return load_as_16<n>(p);
        else
            return load_as_32<n>(p);
    }
    template <int n, class S> auto to(const S* p) const
    {
        return gather<D, n>(p, []<int k>(const S* q) { return load_lanes<k>(q); });
    }
};

template <class T, class D> [[gnu::noinline]] void convert(const T* a, D* d, u32 n)
{
    map(n, d, Same{}, converted(a, To<D>{}));
}

} // namespace
#include "entries/vector/integer_conversion.inc"
} // namespace sig5d::SIG5D_VARIANT
