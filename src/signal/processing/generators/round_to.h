// Numbers as integer elements.
#pragma once
#include "kernel/map.h"
#include "kernel/rounding.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// To the nearest integers, ties to even, within the limits of the type. No number is a NaN.
template <class T> [[gnu::noinline]] void round_to(T* d, const f64* a, size_t n)
{
    if constexpr (vectorBytes > 0)
        if (rounds_to_nearest()) {
            using Integers = Rounded<f64, LimitsOfInteger<T>, NearestEven, false>;
            using Shape = InFlight<sizeof(T) == 1 ? 1 : 2, false, 16>; // each has as many conversions under way
            return map<Shape>(n, d, Same{}, converted(a, AsElements<T, Integers>{Integers(1.0)}));
        }
    const Scale one(0);
    for (size_t i = 0; i < n; ++i) d[i] = static_cast<T>(rounded<LimitsOfInteger<T>>(a[i], one, NearestEven));
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
