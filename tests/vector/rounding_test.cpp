// Rounding, remainders and signs against the standard library and literal results.
#include "support/bytes.h"
#include "support/same_bits.h"
#include <cmath>
#include <limits>

using namespace support;

namespace {

constexpr double inf = std::numeric_limits<double>::infinity(), notANumber = std::numeric_limits<double>::quiet_NaN();
const int lengths[] = {0, 1, 2, 3, 4, 5, 7, 8, 9, 31, 64, 67, 1025};

// Around every integer where something changes, signed.
std::vector<double> numbers(size_t n, unsigned seed)
{
    static const double special[] = {
        0.0,        0.3,          0.5,         0.75,   1.0,          1.5,          2.5,
        7.0,        7.5,          1e10,        0x1p31, 0x1p31 - 0.5, 0x1p51 + 0.5, inf,
        0x1p52,     0x1p52 - 0.5, 0x1p53,      0x1p63, 1e300,        0x1p-1074,    4503599627370497.0,
        notANumber, 0x1p-52,      2147483648.5};
    std::mt19937 random(seed);
    std::vector<double> v(n);
    for (double& x : v) {
        const unsigned r = random();
        x = r % 3 ? special[r / 8 % (sizeof special / sizeof *special)] : (r / 8 % 200000) / 64.0;
        if (random() & 1) x = -x;
    }
    return v;
}
std::vector<Ipp64fc> pairs(size_t n, unsigned seed)
{
    const auto x = numbers(2 * n, seed);
    std::vector<Ipp64fc> v(n);
    for (size_t i = 0; i < n; ++i) v[i] = {x[2 * i], x[2 * i + 1]};
    return v;
}

double sign(double x) { return x > 0 ? 1 : x < 0 ? -1 : 0; }
double sign(Ipp64fc x) { return sign(x.re) == 0 ? sign(x.im) : sign(x.re); }

// 1, -1 or 0 as a factor; NaN counts as positive.
int factor(double x) { return x == 0 ? 0 : std::signbit(x) && !std::isnan(x) ? -1 : 1; }
int factor(Ipp64fc x) { return x.re == 0 ? factor(x.im) : factor(x.re); }
double times(double x, int f) { return f == 0 ? 0.0 : std::copysign(x, std::signbit(x) == (f < 0) ? 1.0 : -1.0); }
Ipp64fc times(Ipp64fc x, int f) { return {times(x.re, f), times(x.im, f)}; }

double quotient32(double q) { return std::fabs(std::trunc(q)) < 0x1p31 ? std::trunc(q) + 0.0 : -0x1p31; }

} // namespace

TEST(Rounding, AsTheStandardLibrary)
{
    inEveryVariant([] {
        for (int n : lengths) {
            const auto a = numbers(static_cast<size_t>(n), 1);
            std::vector<double> up = a, down(a.size());
            callIndexed("Ceil", up.data(), up.data(), n);
            callIndexed("Floor_Idx", a.data(), 0, down.data(), 0, n);
            for (size_t i = 0; i < a.size(); ++i) {
                EXPECT_TRUE(sameBits(up[i], std::ceil(a[i]))) << a[i] << ' ' << up[i];
                EXPECT_TRUE(sameBits(down[i], std::floor(a[i]))) << a[i] << ' ' << down[i];
            }
        }
    });
}

TEST(Remainder, ByAValue)
{
    inEveryVariant([] {
        for (double value : {2.0, -2.0, 0.0, 0.1, -3.0, 1e-5, 1e300, inf, notANumber})
            for (int n : lengths) {
                const auto a = numbers(static_cast<size_t>(n), 2);
                std::vector<double> d(a.size());
                callIndexed("RemVal", a.data(), value, d.data(), n);
                for (size_t i = 0; i < a.size(); ++i) {
                    const double reciprocal = 1.0 / value, product = value * quotient32(a[i] * reciprocal);
                    EXPECT_TRUE(sameBits(d[i], a[i] - product)) << a[i] << " by " << value << ": " << d[i];
                }
            }
        double x[] = {7, -7, 7.5};
        callIndexed("RemVal", x, -2.0, x, 3);
        EXPECT_EQ(x[0], 1);
        EXPECT_EQ(x[1], -1);
        EXPECT_EQ(x[2], 1.5);
    });
}

TEST(Remainder, ByAnArray)
{
    inEveryVariant([] {
        for (int n : lengths) {
            const auto a = numbers(static_cast<size_t>(n), 3), b = numbers(static_cast<size_t>(n), 4);
            std::vector<double> d = b;
            callIndexed("Rem", a.data(), d.data(), d.data(), n);
            for (size_t i = 0; i < a.size(); ++i) {
                const double product = b[i] * quotient32(a[i] / b[i]);
                EXPECT_TRUE(sameBits(d[i], a[i] - product)) << a[i] << " by " << b[i] << ": " << d[i];
            }
        }
        const double a[] = {1e10, 5, 0, -7.5, 1e9}, b[] = {1, 0, 0, 2, 7};
        const double expected[] = {12147483648.0, 5, 0, -1.5, std::fmod(1e9, 7)};
        double d[5];
        callIndexed("Rem", a, b, d, 5);
        for (int i = 0; i < 5; ++i) EXPECT_EQ(d[i], expected[i]);
    });
}

TEST(Sign, OfRealAndComplexNumbers)
{
    inEveryVariant([] {
        for (int n : lengths) {
            const size_t count = static_cast<size_t>(n);
            const auto a = numbers(count, 5);
            const auto c = pairs(count, 6);
            std::vector<double> dd(count), cd(count);
            std::vector<Ipp64fc> dc(count), cc = c;
            callIndexed("Sgndd", a.data(), dd.data(), n);
            callIndexed("Sgndc", a.data(), dc.data(), n);
            callIndexed("Sgncd", c.data(), cd.data(), n);
            callIndexed("Sgncc", cc.data(), cc.data(), n);
            for (size_t i = 0; i < count; ++i) {
                EXPECT_TRUE(sameBits(dd[i], sign(a[i]))) << a[i];
                EXPECT_TRUE(sameBits(dc[i], Ipp64fc{sign(a[i]), 0.0})) << a[i];
                EXPECT_TRUE(sameBits(cd[i], sign(c[i]))) << c[i].re << ' ' << c[i].im;
                EXPECT_TRUE(sameBits(cc[i], Ipp64fc{sign(c[i]), 0.0})) << c[i].re << ' ' << c[i].im;
            }
        }
        Ipp64fc x[] = {{0, -3}, {notANumber, 2}, {notANumber, notANumber}, {-0.0, 0}}, d[4];
        callIndexed("Sgncc", x, d, 4);
        const double expected[] = {-1, 1, 0, 0};
        for (int i = 0; i < 4; ++i) EXPECT_TRUE(sameBits(d[i], Ipp64fc{expected[i], 0.0}));
    });
}

TEST(Sign, AsAFactor)
{
    inEveryVariant([] {
        for (int n : lengths) {
            const size_t count = static_cast<size_t>(n);
            const auto a = numbers(count, 7), y = numbers(count, 8);
            const auto c = pairs(count, 9), z = pairs(count, 10);
            std::vector<double> real = y, byComplex = y;
            std::vector<Ipp64fc> complex = z, byReal = z;
            callIndexed("SgnMul", a.data(), real.data(), n);
            callIndexed("SgnMulcd", c.data(), byComplex.data(), n);
            callIndexed("SgnMuldc", a.data(), byReal.data(), n);
            callIndexed("SgnMulc", c.data(), complex.data(), n);
            for (size_t i = 0; i < count; ++i) {
                EXPECT_TRUE(sameBits(real[i], times(y[i], factor(a[i])))) << a[i] << ' ' << y[i];
                EXPECT_TRUE(sameBits(byReal[i], times(z[i], factor(a[i])))) << a[i];
                EXPECT_TRUE(sameBits(byComplex[i], times(y[i], factor(c[i])))) << c[i].re << ' ' << c[i].im;
                EXPECT_TRUE(sameBits(complex[i], times(z[i], factor(c[i])))) << c[i].re << ' ' << c[i].im;
            }
        }
        const Ipp64fc source[] = {{notANumber, -2}, {0, notANumber}, {0, -1}, {-0.0, 0}};
        Ipp64fc x[] = {{1, 2}, {3, 4}, {5, 6}, {notANumber, -7}};
        callIndexed("SgnMulc", source, x, 4);
        const Ipp64fc expected[] = {{1, 2}, {3, 4}, {-5, -6}, {0.0, 0.0}};
        for (int i = 0; i < 4; ++i) EXPECT_TRUE(sameBits(x[i], expected[i]));
    });
}
