// Unevaluated sums of two doubles, and the bits of a double: what functions need that are accurate to the last bit.
// Plain double arithmetic only, so that every platform computes the same bits.
#pragma once
#include "frame/types.h"

namespace sig5d {
namespace {

// hi + lo, where hi is the sum rounded to a double.
struct Doubled {
    f64 hi, lo;
};

// a + b exactly, for |a| >= |b| or a = 0.
inline Doubled fastTwoSum(f64 a, f64 b)
{
    const f64 sum = a + b;
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
inline f64 upperHalf(f64 x)
{
    typedef f64 Numbers __attribute__((vector_size(16)));
    typedef u64 Words __attribute__((vector_size(16)));
    const Words bits = reinterpret_cast<Words>(Numbers{x, 0.0}) + (u64(1) << 26);
    return reinterpret_cast<Numbers>(bits & ~((u64(1) << 27) - 1))[0];
}

// a * b exactly, as long as nothing overflows or underflows.
inline Doubled twoProduct(f64 a, f64 b)
{
    const f64 product = a * b;
    const f64 ah = upperHalf(a), al = a - ah, bh = upperHalf(b), bl = b - bh;
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
