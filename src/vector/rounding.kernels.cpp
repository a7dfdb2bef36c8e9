// Rounding to integers that stay doubles, and remainders of quotients that are truncated to 32 bits.
#include "frame/entry.h"
#include "kernel/map.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// From here on every double is an integer.
constexpr f64 allWhole = 0x1p52;

#if SIG5D_LEVEL == 0

// x, or one of the integers next to it; NaN and what is an integer by its size unchanged.
inline f64 near_integer(f64 x)
{
    const f64 size = __builtin_fabs(x);
    return size < allWhole ? __builtin_copysign((size + allWhole) - allWhole, x) : x;
}
struct Down {
    f64 operator()(f64 x) const
    {
        const f64 near = near_integer(x);
        return near > x ? near - 1.0 : near;
    }
};
struct Up {
    f64 operator()(f64 x) const
    {
        const f64 near = near_integer(x);
        return __builtin_copysign(near < x ? near + 1.0 : near, x); // -0.0 between -1 and 0
    }
};

#else

template <class V> inline V near_integer(V x)
{
    const V sign = both(x, all_lanes<V>(-0.0)), size = without(x, all_lanes<V>(-0.0)), limit = all_lanes<V>(allWhole);
    const V whole = without((size + limit) - limit, all_lanes<V>(-0.0)); // where rounding downward, a zero is -0.0
    const V near = either(whole, sign), fraction = less(size, limit);
    return either(both(near, fraction), without(x, fraction));
}
// "step" where the mask is set. Zeros get the sign of x: -0.0 between -1 and 0.
template <class V> inline V stepped(V x, V near, V mask, f64 step)
{
    return either(near + both(mask, all_lanes<V>(step)), both(x, all_lanes<V>(-0.0)));
}
struct Down {
    template <class V> V operator()(V x) const
    {
        if constexpr (hasFloor) {
            return floor(x);
        } else {
            const V near = near_integer(x);
            return stepped(x, near, less(x, near), -1.0);
        }
    }
};
struct Up {
    template <class V> V operator()(V x) const
    {
        if constexpr (hasFloor) {
            return ceiling(x);
        } else {
            const V near = near_integer(x);
            return stepped(x, near, less(near, x), 1.0);
        }
    }
};

#endif

struct RemainderByValue {
    f64 value, reciprocal;
    template <class V> V operator()(V x) const
    {
        return x - all_lanes<V>(value) * truncated_to_32(x * all_lanes<V>(reciprocal));
    }
};
struct Remainder {
    template <class V> V operator()(V x, V y) const { return x - y * truncated_to_32(x / y); }
};

void round_up(const f64* a, f64* d, u32 n) { map(n, d, Up{}, a); }
void round_down(const f64* a, f64* d, u32 n) { map(n, d, Down{}, a); }
void remainder_by_value(const f64* a, f64 v, f64* d, u32 n) { map(n, d, RemainderByValue{v, 1.0 / v}, a); }
void remainder(const f64* a, const f64* b, f64* d, u32 n) { map(n, d, Remainder{}, a, b); }

} // namespace
#include "entries/vector/rounding.inc"
} // namespace sig5d::SIG5D_VARIANT
