// Arithmetic for oracles: every operation exact or in 113 bits, rounded to double once.
#pragma once
#include "support/bytes.h"
#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace support {

using Wide = __float128;

inline constexpr double infinity = std::numeric_limits<double>::infinity();
inline constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();
inline constexpr uint64_t indefinite = 0xFFF8000000000000; // the NaN that processors make

inline uint64_t bitsOf(double x)
{
    uint64_t bits;
    std::memcpy(&bits, &x, sizeof bits);
    return bits;
}
inline double fromBits(uint64_t bits)
{
    double x;
    std::memcpy(&x, &bits, sizeof x);
    return x;
}

inline double sum(double x, double y) { return static_cast<double>(Wide(x) + y); }
inline double difference(double x, double y) { return static_cast<double>(Wide(x) - y); }
inline double product(double x, double y) { return static_cast<double>(Wide(x) * y); }
inline double quotient(double x, double y) { return static_cast<double>(Wide(x) / y); }

// Right to the last bits: the double root, which any compiler gets right to a few bits, and two steps of Newton.
inline Wide wideRoot(Wide x)
{
    if (!(x > 0)) return x == 0 ? x : Wide(quietNaN);
    Wide scale = 1;
    while (x > 0x1p1000) x *= 0x1p-1000, scale *= 0x1p500;
    while (x < 0x1p-1000) x *= 0x1p1000, scale *= 0x1p-500;
    Wide root = std::sqrt(static_cast<double>(x));
    for (int i = 0; i < 2; ++i) root = (root + x / root) / 2;
    return root * scale;
}
inline double squareRoot(double x) { return std::isinf(x) ? x : static_cast<double>(wideRoot(x)); }

// The distance of x from what it should be, in units of the last place of the latter.
inline double ulps(double x, Wide right)
{
    const double nearest = static_cast<double>(right);
    int exponent;
    std::frexp(nearest, &exponent);
    const Wide unit = std::ldexp(1.0, std::max(exponent - 53, -1074));
    const Wide error = (Wide(x) - right) / unit;
    return static_cast<double>(error < 0 ? -error : error);
}

// The same bits; a NaN that arithmetic made may be any.
inline bool same(double x, double y) { return bitsOf(x) == bitsOf(y) || (std::isnan(x) && std::isnan(y)); }
inline bool same(Ipp64fc x, Ipp64fc y) { return same(x.re, y.re) && same(x.im, y.im); }

// Complex numbers by the formulas for their parts, each operation rounded.
inline Ipp64fc sum(Ipp64fc x, Ipp64fc y) { return {sum(x.re, y.re), sum(x.im, y.im)}; }
inline Ipp64fc difference(Ipp64fc x, Ipp64fc y) { return {difference(x.re, y.re), difference(x.im, y.im)}; }
inline Ipp64fc product(Ipp64fc x, Ipp64fc y)
{
    return {difference(product(x.re, y.re), product(x.im, y.im)), sum(product(x.re, y.im), product(x.im, y.re))};
}
inline double power(Ipp64fc z) { return sum(product(z.re, z.re), product(z.im, z.im)); }
// The dividend's product with the conjugate of the divisor, times the reciprocal of the divisor's power.
inline Ipp64fc quotient(Ipp64fc x, Ipp64fc y)
{
    if (power(y) == 0) return {quietNaN, quietNaN};
    const double r = quotient(1, power(y));
    return {product(sum(product(x.re, y.re), product(x.im, y.im)), r),
            product(difference(product(x.im, y.re), product(x.re, y.im)), r)};
}

// Numbers of all kinds: mostly of ordinary size, some of any exponent, some with few bits so that results are exact or
// cancel, some special.
inline std::vector<double> numbers(size_t n, unsigned seed, bool special = true)
{
    static const double specials[] = {0,        -0.0,      1,       -1, 0x1p-1074, -0x1p-1022, 0x1.fffffffffffffp1023,
                                      infinity, -infinity, quietNaN};
    std::mt19937_64 random(seed);
    std::vector<double> v(n);
    for (double& x : v) {
        const uint64_t kind = random() % 16, bits = random();
        if (kind == 0 && special)
            x = specials[random() % (sizeof specials / sizeof *specials)];
        else if (kind == 1)
            x = fromBits(bits & ~(uint64_t{1} << 52)); // of any exponent, infinities and NaN excluded
        else if (kind == 2)
            x = static_cast<double>(static_cast<int64_t>(bits % 17) - 8);
        else
            x = std::ldexp(static_cast<double>(static_cast<int64_t>(bits)), static_cast<int>(random() % 32) - 80);
    }
    return v;
}
inline std::vector<Ipp64fc> complexNumbers(size_t n, unsigned seed, bool special = true)
{
    const std::vector<double> parts = numbers(2 * n, seed, special);
    std::vector<Ipp64fc> v(n);
    std::memcpy(v.data(), parts.data(), n * sizeof v[0]);
    return v;
}

} // namespace support
