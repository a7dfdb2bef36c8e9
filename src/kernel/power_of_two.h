// 2^-scaleFactor for floating-point numbers, as a product of two factors: one of them is 1 unless the scale factor is
// so large that no single number holds the power. Products with both are exact until they leave the type's range, in
// one direction.
#pragma once
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// 2^e, within the range of normal numbers.
inline f64 power_of_two(int e)
{
    const u64 bits = static_cast<u64>(1023 + e) << 52;
    f64 x;
    __builtin_memcpy(&x, &bits, sizeof x);
    return x;
}

struct Scale {
    f64 first, second;
    // Numbers of type F, of up to so many powers of two; beyond twice that all results are zero or infinite.
    explicit Scale(int s, int most = 1022)
    {
        const i64 e = -static_cast<i64>(s), a = e < -most ? -most : e > most ? most : e, rest = e - a;
        const i64 b = rest < -most ? -most : rest > most ? most : rest;
        first = power_of_two(static_cast<int>(a));
        second = power_of_two(static_cast<int>(b));
    }
    bool simple() const { return second == 1; }
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
