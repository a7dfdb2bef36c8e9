// Absolute values of integers; that of the lowest, which does not fit, is the highest.
#include "frame/entry.h"
#include "kernel/map.h"
#include "kernel/saturate.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct Absolute {
#if SIG5D_LEVEL == 0
    template <class T> T operator()(T x) const { return saturated<T>(x < 0 ? -static_cast<i64>(x) : x); }
#else
    template <class V> V operator()(V x) const
    {
        using U = Vec<u32, sizeof(V) / 4>;
        if constexpr (sizeof(Lane<V>) == 2) {
            return larger(x, subtract_saturated(V{}, x));
        } else { // the lowest stays itself: it is the only negative one
            const V a = larger(x, difference_modulo(V{}, x));
            if constexpr (has32BitMinimum)
                return as<V>(smaller(as<U>(a), all_lanes<U>(highest<i32>)));
            else
                return a ^ (a >> 31);
        }
    }
#endif
};

template <class T> [[gnu::noinline]] void absolute(const T* a, T* d, int n)
{
    map<Heavy<4>>(static_cast<size_t>(n), d, Absolute{}, a);
}

} // namespace
#include "entries/signal/elementwise/absolute.inc"
} // namespace sig5d::SIG5D_VARIANT
