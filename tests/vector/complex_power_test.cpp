// Complex powers: what is exact, the element that is left alone, and the special values of the C standard. Accuracy is
// measured against MPFR elsewhere.
#include "vector/own_call.h"
#include <cmath>
#include <complex>

using namespace support;

namespace {

using Complex = Ipp64fc;

Complex power(Complex a, Complex b)
{
    Complex bases[2] = {{3, 3}, a}, exponents[2] = {{3, 3}, b}, d[2] = {{7, 8}, {}};
    run("Powc", (const Complex*)bases, (const Complex*)exponents, d, 2u);
    EXPECT_EQ(d[0].re, 7);
    EXPECT_EQ(d[0].im, 8);
    return d[1];
}

} // namespace

TEST(ComplexPower, FirstElementAndShortArraysAreLeftAlone)
{
    Complex a[3] = {{2, 0}, {3, 0}, {4, 0}};
    run("Powc", (const Complex*)a, (const Complex*)a, a, 0u);
    run("Powc", (const Complex*)a, (const Complex*)a, a, 1u);
    EXPECT_EQ(a[0].re, 2);
    run("Powc", (const Complex*)a, (const Complex*)a, a, 3u);
    EXPECT_EQ(a[0].re, 2);
    EXPECT_EQ(a[1].re, 27);
    EXPECT_EQ(a[2].re, 256);
}

TEST(ComplexPower, ExactWhereTheResultIs)
{
    const struct {
        Complex a, b, expected;
    } cases[] = {{{2, 0}, {10, 0}, {1024, 0}},  {{1, 1}, {2, 0}, {0, 2}},   {{0, 1}, {2, 0}, {-1, 0}},
                 {{-2, 0}, {2, 0}, {4, 0}},     {{3, 4}, {2, 0}, {-7, 24}}, {{4, 0}, {0.5, 0}, {2, 0}},
                 {{-4, 0}, {0.5, 0}, {0, 2}},   {{3, 4}, {0, 0}, {1, 0}},   {{0x1p-500, 0}, {2, 0}, {0x1p-1000, 0}},
                 {{1, 1}, {-1, 0}, {0.5, -0.5}}};
    for (const auto& c : cases) {
        const Complex d = power(c.a, c.b);
        const double size = std::hypot(c.expected.re, c.expected.im);
        EXPECT_NEAR(d.re, c.expected.re, 3e-16 * size) << c.a.re << ' ' << c.a.im;
        EXPECT_NEAR(d.im, c.expected.im, 3e-16 * size) << c.a.re << ' ' << c.a.im;
    }
    EXPECT_EQ(power({0x1p-537, 0}, {2, 0}).re, 0x1p-1074);
    EXPECT_EQ(power({0x1p-600, 0}, {2, 0}).re, 0);
    EXPECT_EQ(power({0x1p600, 0}, {2, 0}).re, HUGE_VAL);
}

#if defined(__linux__) && defined(__x86_64__)
bool alike(double x, double y) { return x == y || (std::isnan(x) && std::isnan(y)); }

// The platform's cpow as an oracle for everything that is special: there it is cexp(b * clog(a)) to the letter.
TEST(ComplexPower, SpecialValuesOfTheStandard)
{
    const double values[] = {0.0, -0.0, 1, -1, 2.5, -2.5, 1e308, HUGE_VAL, -HUGE_VAL, NAN};
    for (double ar : values)
        for (double ai : values)
            for (double br : values)
                for (double bi : values) {
                    const bool ordinary = std::isfinite(ar) && std::isfinite(ai) && std::isfinite(br) &&
                                          std::isfinite(bi) && (ar != 0 || ai != 0);
                    const Complex d = power({ar, ai}, {br, bi});
                    _Complex double a, b;
                    __real__ a = ar, __imag__ a = ai, __real__ b = br, __imag__ b = bi;
                    const _Complex double e = __builtin_cpow(a, b);
                    const double re = __real__ e, im = __imag__ e;
                    if (ordinary && std::fmax(std::fmax(ar, ai), std::fmax(br, bi)) == 1e308) continue; // cpow errs
                    if (ordinary)
                        EXPECT_LE(std::hypot(d.re - re, d.im - im), 1e-14 * std::hypot(re, im) + 1e-300);
                    else
                        EXPECT_TRUE(alike(d.re, re) && alike(d.im, im))
                            << '(' << ar << ", " << ai << ") ^ (" << br << ", " << bi << "): " << d.re << ", " << d.im
                            << " for " << re << ", " << im;
                }
}
#endif

TEST(ComplexPower, FarBeyondTheDoubles)
{
    const Complex up = power({1e300, 1e300}, {1e300, 0}), down = power({1e300, 1e300}, {-1e300, 0});
    EXPECT_TRUE(std::isinf(up.re) && std::isinf(up.im));
    EXPECT_TRUE(down.re == 0 && down.im == 0);
    // The angle alone matters: the modulus stays 1 however large the exponent is.
    const Complex turned = power({0, 1}, {0x1.fffffffffffffp1023, 0});
    EXPECT_NEAR(std::hypot(turned.re, turned.im), 1.0, 1e-15);
    const Complex kept = power({1, 0}, {0x1.fffffffffffffp1023, 0x1.fffffffffffffp1023});
    EXPECT_EQ(kept.re, 1.0);
    EXPECT_EQ(kept.im, 0.0);
}

TEST(ComplexPower, KeepsItsDirectionWhereTheModulusIsBeyondTheDoubles)
{
    for (const double angle : {0.8, 2.4, 4.0, 5.5, -0.8})
        for (const double exponent : {0x1p960, 0x1p961, 1e307, 0x1.fffffffffffffp1023})
            for (const double sign : {1.0, -1.0}) {
                const Complex base = {1e308, 0}; // whose logarithm is real, so that the exponent's is its own angle
                const Complex d = power(base, {sign * exponent, angle / std::log(1e308)});
                const double size = sign > 0 ? HUGE_VAL : 0;
                EXPECT_EQ(d.re, std::copysign(size, std::cos(angle)));
                EXPECT_EQ(d.im, std::copysign(size, std::sin(angle)));
                EXPECT_EQ(std::signbit(d.re), std::cos(angle) < 0) << angle << ' ' << exponent;
                EXPECT_EQ(std::signbit(d.im), std::sin(angle) < 0) << angle << ' ' << exponent;
            }
}
