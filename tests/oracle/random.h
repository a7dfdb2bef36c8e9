// Random numbers by definition, draw after draw.
#pragma once
#include <cmath>
#include <cstdint>

namespace oracle {

struct Draws {
    uint32_t lcg = 0x436CBAE9, s1, s2, s3;
    bool borrow = true;

    explicit Draws(uint32_t seed) : s1(seed), s2(69069 * s1 + 1013904243), s3(69069 * s2 + 1013904243) {}
    int32_t next()
    {
        lcg = 69069 * lcg + 1013904243;
        uint32_t t = s2 - s3 - (borrow ? 1 : 0);
        borrow = t >= 0x80000000;
        if (borrow) t -= 18;
        s3 = s2;
        s2 = s1;
        s1 = t;
        return static_cast<int32_t>(t + lcg);
    }
};

struct Uniform {
    Draws draws;
    double mid, scale;
    Uniform(double low, double high, uint32_t seed)
        : draws(seed), mid((low + high) * 0.5), scale((high - low) * std::ldexp(1.0, -32))
    {
    }
    double next() { return draws.next() * scale + mid; }
};

// The polar method; the numbers in extended precision from the squared modulus on.
struct Normal {
    Draws draws;
    double mean, stdDev;
    bool pending = false;
    double u1 = 0;
    long double factor = 0;
    Normal(double m, double s, uint32_t seed) : draws(seed), mean(m), stdDev(s) {}
    long double value(double u) const { return mean + stdDev * (u * factor); }
    long double next()
    {
        if (pending) {
            pending = false;
            return value(u1);
        }
        double u2, square;
        do {
            u1 = draws.next() * std::ldexp(1.0, -31);
            u2 = draws.next() * std::ldexp(1.0, -31);
            square = u1 * u1 + u2 * u2;
        } while (square >= 1 || square == 0);
        const long double s = square;
        factor = std::sqrt(-2 * std::log(s) / s);
        pending = true;
        return value(u2);
    }
};

// To nearest, ties to even, within the limits of an integer type.
inline long long rounded(double x, long long low, long long high)
{
    const double whole = std::nearbyint(x);
    return whole < static_cast<double>(low)    ? low
           : whole > static_cast<double>(high) ? high
                                               : static_cast<long long>(whole);
}

} // namespace oracle
