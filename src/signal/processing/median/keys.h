// What a median compares: integers as they are; doubles as integers in their one order, from -infinity by way of -0 and
// +0 to +infinity and on to all NaN. Integers are compared the same in every floating-point mode, and raise nothing.
#pragma once
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The bits of negative numbers are inverted but for the sign; then -infinity is made the lowest integer, so that NaN
// with a sign, which were below it, are above all others.
constexpr i64 belowInfinity = 0x000FFFFFFFFFFFFF;
template <class T> inline T key_of(T x) { return x; }
inline i64 key_of(f64 x)
{
    const i64 bits = __builtin_bit_cast(i64, x);
    return static_cast<i64>(static_cast<u64>(bits ^ (bits >> 63 & INT64_MAX)) - belowInfinity);
}
inline void set_element(f64& x, i64 key)
{
    const i64 bits = static_cast<i64>(static_cast<u64>(key) + belowInfinity);
    x = __builtin_bit_cast(f64, bits ^ (bits >> 63 & INT64_MAX));
}
template <class T> inline void set_element(T& x, i64 key) { x = static_cast<T>(key); }

#if SIG5D_LEVEL > 0
template <int n> inline Vec<i64, n> keys_of(Vec<i64, n> bits)
{
    return as<Vec<i64, n>>(as<Vec<u64, n>>(bits ^ as<Vec<i64, n>>(as<Vec<u64, n>>(bits >> 63) >> 1)) -
                           static_cast<u64>(belowInfinity));
}
template <int n> inline Vec<i64, n> elements_of_keys(Vec<i64, n> keys)
{
    const auto bits = as<Vec<i64, n>>(as<Vec<u64, n>>(keys) + static_cast<u64>(belowInfinity));
    return bits ^ as<Vec<i64, n>>(as<Vec<u64, n>>(bits >> 63) >> 1);
}
#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
