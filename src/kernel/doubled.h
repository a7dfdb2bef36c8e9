// Unevaluated sums of two doubles, and the bits of a double: what functions need that are accurate to the last bit.
// Plain double arithmetic only, so that every platform computes the same bits.
#pragma once
#include "frame/types.h"

namespace sig5d {
namespace {

// Two numbers side by side, in a register that all processors have.
typedef f64 NumberPair __attribute__((vector_size(16)));

// hi + lo, where hi is the sum rounded to a double.
template <class V> struct InTwo {
    V hi, lo;
};
using Doubled = InTwo<f64>;

// a + b exactly, for |a| >= |b| or a = 0.
template <class V> inline InTwo<V> fastTwoSum(V a, V b)
{
    const V sum = a + b;
    return {sum, b - (sum - a)};
}

// a + b exactly.
inline Doubled twoSum(f64 a, f64 b)
{
    const f64 sum = a + b, part = sum - a;
    return {sum, (a - (sum - part)) + (b - part)};
}

inline u64 bitsOf(f64 x)
{
    u64 bits;
    __builtin_memcpy(&bits, &x, sizeof bits);
    return bits;
}
inline f64 fromBits(u64 bits)
{
    f64 x;
    __builtin_memcpy(&x, &bits, sizeof x);
    return x;
}

// x rounded to 26 significant bits; what is left has 26 bits and a sign. Products of two such halves are exact.
// In a vector register: the way through integer registers, on i386 through memory, takes several times as long.
template <class V> inline V upperHalf(V x)
{
    typedef u64 Words __attribute__((vector_size(sizeof(V))));
    const Words bits = reinterpret_cast<Words>(x) + (u64(1) << 26);
    return reinterpret_cast<V>(bits & ~((u64(1) << 27) - 1));
}
inline f64 upperHalf(f64 x) { return upperHalf(NumberPair{x, 0.0})[0]; }

// a * b exactly, as long as nothing overflows or underflows.
template <class V> inline InTwo<V> twoProduct(V a, V b)
{
    const V product = a * b;
    const V ah = upperHalf(a), al = a - ah, bh = upperHalf(b), bl = b - bh;
    return {product, ((ah * bh - product) + (ah * bl + al * bh)) + al * bl};
}

// An integer below 2^53 in magnitude. (The compiler's own conversion of 64 bits goes through the x87 unit on i386.)
inline f64 toDouble(i64 n)
{
    const i32 high = static_cast<i32>(n >> 32);
    return high * 0x1p32 + (fromBits(0x4330000000000000 | static_cast<u32>(n)) - 0x1p52);
}

} // namespace
} // namespace sig5d
