// The largest and the smallest of integers and of their magnitudes, and where they come first.
#include "frame/entry.h"
#include "signal/processing/statistics/extremes.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Magnitudes as unsigned numbers, for -2147483648 has one, too.
struct Magnitude {
    static u32 one(i32 x) { return x < 0 ? 0u - static_cast<u32>(x) : static_cast<u32>(x); }
#if SIG5D_LEVEL > 0
    template <int n> static auto to(const i32* p)
    {
        const auto x = load_lanes<n>(p);
        using U = Vec<u32, sizeof x / sizeof(u32)>;
        if constexpr (hasByteShuffle) {
            return as<U>(magnitudes(x));
        } else {
            const U sign = as<U>(x >> 31);
            return (as<U>(x) ^ sign) - sign;
        }
    }
#endif
};

template <class T> void maximum(const T* a, int n, T* max, i32* index = nullptr)
{
    tell_extreme<Largest>(a, n, max, index);
}
template <class T> void minimum(const T* a, int n, T* min, i32* index = nullptr)
{
    tell_extreme<Smallest>(a, n, min, index);
}
template <class T> void both(const T* a, int n, T* min, T* max) { tell_extremes(a, n, min, max); }
template <class T> void both(const T* a, int n, T* min, i32* minIndex, T* max, i32* maxIndex)
{
    tell_extremes(a, n, min, minIndex, max, maxIndex);
}
void largest_magnitude(const i32* a, int n, i32* max, i32* index = nullptr)
{
    tell_extreme<Largest>(converted(a, Magnitude{}), n, max, index);
}
void smallest_magnitude(const i32* a, int n, i32* min, i32* index = nullptr)
{
    tell_extreme<Smallest>(converted(a, Magnitude{}), n, min, index);
}
void order(const i32* a, int n, int* result)
{
    const u32 m = extreme<Largest>(static_cast<size_t>(n), converted(a, Magnitude{}), false).value;
    *result = m == 0 ? 0 : 32 - __builtin_clz(m);
}

} // namespace
#include "entries/signal/processing/statistics/integer_extremes.inc"
} // namespace sig5d::SIG5D_VARIANT
