// Doubles that minima and maxima do not order as their keys are ordered: NaN, -0 beside +0, and denormal numbers where
// the processor takes them for zeros.
#pragma once
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

#if SIG5D_LEVEL > 0

// The bits of what compares as zero or not at all; of +0 there are none.
template <class V> inline V special_bits(V x) { return both(x, same_or_nan(x, V{})); }

inline bool is_special(f64 x)
{
    const u64 bits = __builtin_bit_cast(u64, x), magnitude = bits & ~signBit;
    return magnitude > infinityBits || (magnitude < 0x0010000000000000 && bits);
}

// Among so many vectors from p on and so many elements before them.
template <int vectors, int before> [[gnu::always_inline]] inline bool any_special(const f64* p)
{
    constexpr int L = lanes<f64>;
    auto found = special_bits(load(p - before));
#pragma GCC unroll 8
    for (int i = L - before; i < vectors * L; i += L)
        found = either(found, special_bits(load(p + (i < vectors * L - L ? i : vectors * L - L))));
    return any_bit(bits(found));
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
