// Exponential, logarithm and angle as unevaluated sums of two doubles, to about 80 bits: what powers need, where an
// error of the exponent grows with it. Tables of 1/16 leave a short rest, whose series is computed with its first terms
// in twice the precision.
#pragma once
#include "kernel/doubled.h"

namespace sig5d::libm {
namespace {

constexpr Doubled ln2 = {0x1.62e42fefa39efp-1, 0x1.abc9e3b39803fp-56};
constexpr Doubled halfPi = {0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54};

inline Doubled operator+(Doubled a, Doubled b)
{
    const Doubled sum = twoSum(a.hi, b.hi);
    return fastTwoSum(sum.hi, sum.lo + (a.lo + b.lo));
}
inline Doubled operator-(Doubled a) { return {-a.hi, -a.lo}; }
inline Doubled operator*(Doubled a, Doubled b)
{
    const Doubled product = twoProduct(a.hi, b.hi);
    return fastTwoSum(product.hi, product.lo + (a.hi * b.lo + a.lo * b.hi));
}
inline Doubled operator*(Doubled a, f64 b) { return a * Doubled{b, 0.0}; }
inline Doubled operator/(Doubled a, Doubled b)
{
    const f64 first = a.hi / b.hi;
    const Doubled back = twoProduct(first, b.hi);
    const f64 rest = ((a.hi - back.hi) - back.lo) + (a.lo - first * b.lo);
    return fastTwoSum(first, rest / b.hi);
}

inline f64 powerOfTwo(int e) { return fromBits(static_cast<u64>(e + 1023) << 52); } // -1022 <= e <= 1023

// x * 2^e with at most one rounding that counts, for |x| near 1 and |e| < 3000.
inline f64 scaled(f64 x, int e)
{
    if (e > 1023) return x * 0x1p1023 * (e > 2046 ? 0x1p1023 : powerOfTwo(e - 1023));
    if (e < -1022) return x * 0x1p-1022 * (e < -2044 ? 0x1p-1022 : powerOfTwo(e + 1022));
    return x * powerOfTwo(e);
}

// value * 2^exponent
struct Scaled {
    Doubled value;
    int exponent;
};

// 2^(j/16)
constexpr Doubled sixteenthPowers[16] = {{0x1.0000000000000p+0, 0x0.0p+0},
                                         {0x1.0b5586cf9890fp+0, 0x1.8a62e4adc610bp-54},
                                         {0x1.172b83c7d517bp+0, -0x1.19041b9d78a76p-55},
                                         {0x1.2387a6e756238p+0, 0x1.9b07eb6c70573p-54},
                                         {0x1.306fe0a31b715p+0, 0x1.6f46ad23182e4p-55},
                                         {0x1.3dea64c123422p+0, 0x1.ada0911f09ebcp-55},
                                         {0x1.4bfdad5362a27p+0, 0x1.d4397afec42e2p-56},
                                         {0x1.5ab07dd485429p+0, 0x1.6324c054647adp-54},
                                         {0x1.6a09e667f3bcdp+0, -0x1.bdd3413b26456p-54},
                                         {0x1.7a11473eb0187p+0, -0x1.41577ee04992fp-55},
                                         {0x1.8ace5422aa0dbp+0, 0x1.6e9f156864b27p-54},
                                         {0x1.9c49182a3f090p+0, 0x1.c7c46b071f2bep-56},
                                         {0x1.ae89f995ad3adp+0, 0x1.7a1cd345dcc81p-54},
                                         {0x1.c199bdd85529cp+0, 0x1.11065895048ddp-55},
                                         {0x1.d5818dcfba487p+0, 0x1.2ed02d75b3707p-55},
                                         {0x1.ea4afa2a490dap+0, -0x1.e9c23179c2893p-54}};

// e^x for |x| <= 2000.
inline Scaled exponential(Doubled x)
{
    // x = n ln(2)/16 + rest; ln(2)/16 in two parts of 36 bits, whose products with n are exact, and a third.
    const f64 shifted = x.hi * 0x1.71547652b82fep+4 + 0x1.8p52, n = shifted - 0x1.8p52;
    const Doubled most = twoSum(x.hi - n * 0x1.62e42fefa0000p-5, n * -0x1.cf79abc9e0000p-44);
    const Doubled r = twoSum(most.hi, most.lo + (x.lo - n * 0x1.d9cc01f97b57ap-83));

    const f64 z = r.hi;
    const f64 tail =
        0x1.1111111111111p-7 +
        z * (0x1.6c16c16c16c17p-10 +
             z * (0x1.a01a01a01a01ap-13 +
                  z * (0x1.a01a01a01a01ap-16 +
                       z * (0x1.71de3a556c734p-19 +
                            z * (0x1.27e4fb7789f5cp-22 + z * (0x1.ae64567f544e4p-26 + z * 0x1.1eed8eff8d898p-29))))));
    Doubled sum = Doubled{0x1.5555555555555p-5, 0x1.5555555555555p-59} + r * tail;
    sum = Doubled{0x1.5555555555555p-3, 0x1.5555555555555p-57} + r * sum;
    sum = Doubled{0.5, 0.0} + r * sum;
    sum = Doubled{1.0, 0.0} + r * sum;
    sum = Doubled{1.0, 0.0} + r * sum;

    const int k = static_cast<i32>(static_cast<u32>(bitsOf(shifted)));
    return {sum * sixteenthPowers[k & 15], k >> 4};
}

// s (1 + q/3 + q^2/5 + ...) for |q| < 2^-9: atanh s with q = s^2, atan s with q = -s^2.
inline Doubled oddSeries(Doubled s, Doubled q)
{
    const f64 z = q.hi;
    const f64 tail =
        0x1.2492492492492p-3 +
        z * (0x1.c71c71c71c71cp-4 +
             z * (0x1.745d1745d1746p-4 +
                  z * (0x1.3b13b13b13b14p-4 +
                       z * (0x1.1111111111111p-4 + z * (0x1.e1e1e1e1e1e1ep-5 + z * 0x1.af286bca1af28p-5)))));
    Doubled sum = Doubled{0x1.999999999999ap-3, -0x1.999999999999ap-57} + q * tail;
    sum = Doubled{0x1.5555555555555p-2, 0x1.5555555555555p-56} + q * sum;
    sum = Doubled{1.0, 0.0} + q * sum;
    return s * sum;
}

// -log(j/16) for j = 11 to 23
constexpr Doubled sixteenthLogs[13] = {
    {0x1.7fafa3bd8151cp-2, -0x1.219024acd3b77p-58},  {0x1.269621134db92p-2, 0x1.e0efadd9db02bp-56},
    {0x1.a93ed3c8ad9e3p-3, 0x1.bcafa9de97203p-57},   {0x1.1178e8227e47cp-3, -0x1.0e63a5f01c691p-58},
    {0x1.08598b59e3a07p-4, -0x1.dd7009902bf32p-58},  {0x0.0p+0, 0x0.0p+0},
    {-0x1.f0a30c01162a6p-5, -0x1.85f325c5bbacdp-59}, {-0x1.e27076e2af2e6p-4, 0x1.61578001e0162p-60},
    {-0x1.5ff3070a793d4p-3, 0x1.bc60efafc6f6ep-58},  {-0x1.c8ff7c79a9a22p-3, 0x1.4f689f8434012p-57},
    {-0x1.1675cababa60ep-2, -0x1.ce63eab883717p-61}, {-0x1.4618bc21c5ec2p-2, -0x1.f42decdeccf1dp-56},
    {-0x1.739d7f6bbd007p-2, 0x1.8c76ceb014b04p-56}};

// log(2^e (1 + d)) for 0.7 < 1 + d < 1.42. The relative error stays small next to 1.
inline Doubled logarithm(Doubled d, int e)
{
    // 1 + d = (16/j) (1 + c)
    const int j = static_cast<int>(16.0 / (1.0 + d.hi) + 0.5);
    const f64 r = j * 0.0625;
    const Doubled c = j == 16 ? d : Doubled{r - 1.0, 0.0} + d * r;
    const Doubled s = c / (Doubled{2.0, 0.0} + c);
    const Doubled twice = oddSeries(s * 2.0, s * s);
    const Doubled log = j == 16 ? twice : sixteenthLogs[j - 11] + twice;
    return e == 0 ? log : ln2 * e + log;
}

constexpr f64 rootOfTwo = 0x1.6a09e667f3bcdp+0;

// A finite number that is not 0 as x * 2^e, with its larger part between 1 and 2; what the smaller part loses is beyond
// counting.
struct ComplexScaled {
    f64 re, im;
    int e;
};
inline ComplexScaled normalizedParts(f64 re, f64 im)
{
    const f64 x = __builtin_fabs(re), y = __builtin_fabs(im), larger = x > y ? x : y;
    const f64 near = larger > 0x1p960 ? 0x1p-64 : larger < 0x1p-960 ? 0x1p64 : 1.0; // so that powers of two stay normal
    const int e = static_cast<int>(bitsOf(larger * near) >> 52) - 1023;
    const f64 factor = powerOfTwo(-e);
    return {re * near * factor, im * near * factor, e - (static_cast<int>(bitsOf(near) >> 52) - 1023)};
}

// log |re + i im|
inline Doubled logOfModulus(ComplexScaled z)
{
    const Doubled x = twoProduct(z.re, z.re), y = twoProduct(z.im, z.im);
    int e = 0;
    f64 factor = 1.0;
    for (f64 square = x.hi + y.hi; square * factor > rootOfTwo; factor *= 0.5) ++e;
    // The square of the modulus, less 1: a sum of five terms, which may cancel down to the last of them.
    const Doubled high = twoSum(x.hi * factor, y.hi * factor), low = twoSum(x.lo * factor, y.lo * factor);
    const Doubled middle = twoSum(high.lo, low.hi);
    const Doubled d = twoSum(high.hi - 1.0, middle.hi);
    return logarithm(fastTwoSum(d.hi, d.lo + (middle.lo + low.lo)), 2 * z.e + e) * 0.5;
}

// atan(j/16)
constexpr Doubled sixteenthAngles[17] = {{0x0.0p+0, 0x0.0p+0},
                                         {0x1.ff55bb72cfdeap-5, -0x1.c934d86d23f1dp-60},
                                         {0x1.fd5ba9aac2f6ep-4, -0x1.cd37686760c17p-59},
                                         {0x1.7b97b4bce5b02p-3, 0x1.347b0b4f881cap-58},
                                         {0x1.f5b75f92c80ddp-3, 0x1.8ab6e3cf7afbdp-57},
                                         {0x1.362773707ebccp-2, -0x1.963a544b672d8p-57},
                                         {0x1.6f61941e4def1p-2, -0x1.c63aae6f6e918p-56},
                                         {0x1.a64eec3cc23fdp-2, -0x1.24dec1b50b7ffp-56},
                                         {0x1.dac670561bb4fp-2, 0x1.a2b7f222f65e2p-56},
                                         {0x1.0657e94db30d0p-1, -0x1.d5b495f6349e6p-56},
                                         {0x1.1e00babdefeb4p-1, -0x1.928df287a668fp-58},
                                         {0x1.345f01cce37bbp-1, 0x1.1021137c71102p-55},
                                         {0x1.4978fa3269ee1p-1, 0x1.2419a87f2a458p-56},
                                         {0x1.5d58987169b18p-1, 0x1.0028e4bc5e7cap-57},
                                         {0x1.700a7c5784634p-1, -0x1.8c34d25aadef6p-56},
                                         {0x1.819d0b7158a4dp-1, -0x1.bf76229d3b917p-56},
                                         {0x1.921fb54442d18p-1, 0x1.1a62633145c07p-55}};

// The angle of re + i im, from -pi to pi.
inline Doubled angle(ComplexScaled z)
{
    const f64 x = __builtin_fabs(z.re), y = __builtin_fabs(z.im), large = x > y ? x : y, small = x > y ? y : x;
    const int j = static_cast<int>(16.0 * (small / large) + 0.5);
    const f64 t = j * 0.0625;
    // atan(small/large) = atan t + atan((small - t large) / (large + t small))
    const Doubled rest = (Doubled{small, 0.0} + -twoProduct(large, t)) / (Doubled{large, 0.0} + twoProduct(small, t));
    Doubled a = sixteenthAngles[j] + oddSeries(rest, -(rest * rest));
    if (y > x) a = halfPi + -a;
    if (bitsOf(z.re) >> 63) a = halfPi * 2.0 + -a;
    return bitsOf(z.im) >> 63 ? -a : a;
}

} // namespace
} // namespace sig5d::libm
