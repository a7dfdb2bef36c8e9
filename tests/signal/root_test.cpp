// Square roots: the real one to the last bit, the complex one within a unit of the last place everywhere.
#include "support/wide.h"

using namespace support;

namespace {

struct WideParts {
    Wide re, im;
};

// The root in the right half plane, from |z| in wide arithmetic.
WideParts wideRoot(Ipp64fc z)
{
    const Wide x = std::fabs(z.re), y = std::fabs(z.im);
    if (x == 0 && y == 0) return {0, z.im};
    const Wide t = support::wideRoot((x + support::wideRoot(x * x + y * y)) / 2), v = y / (2 * t);
    const bool negative = z.re < 0;
    return {negative ? v : t, std::signbit(z.im) ? -(negative ? t : v) : (negative ? t : v)};
}

// The larger distance of both parts from the exact root.
double error(Ipp64fc root, Ipp64fc z)
{
    const WideParts right = wideRoot(z);
    return std::max(ulps(root.re, right.re), ulps(root.im, right.im));
}

std::vector<Ipp64fc> roots(const std::vector<Ipp64fc>& z)
{
    std::vector<Ipp64fc> d(z.size()), inPlace = z;
    const int n = static_cast<int>(z.size());
    EXPECT_EQ(call("ippsSqrt_64fc", (const void*)z.data(), (void*)d.data(), n), 0);
    EXPECT_EQ(call("ippsSqrt_64fc_I", (void*)inPlace.data(), n), 0);
    for (size_t i = 0; i < z.size(); ++i)
        EXPECT_TRUE(same(d[i].re, inPlace[i].re) && same(d[i].im, inPlace[i].im)) << i;
    return d;
}

} // namespace

TEST(Root, RealToTheLastBit)
{
    inEveryVariant([] {
        std::vector<double> x = numbers(3001, 1), d(x.size());
        for (double& v : x)
            if (v < 0 || std::isnan(v)) v = -v < 0 || std::isnan(v) ? 0.0 : -v;
        x[7] = -0.0;
        EXPECT_EQ(call("ippsSqrt_64f", (const void*)x.data(), (void*)d.data(), 3001), ippStsNoErr);
        for (size_t i = 0; i < x.size(); ++i) ASSERT_EQ(bitsOf(d[i]), bitsOf(squareRoot(x[i]))) << x[i];
    });
}

TEST(Root, NegativeNumbersAndNaN)
{
    inEveryVariant([] {
        for (double none : {-1.0, -infinity, -0x1p-1074, quietNaN, fromBits(0x7FF0000000000077)})
            for (size_t n : {1u, 4u, 7u, 40u})
                for (size_t at : {size_t{0}, n / 2, n - 1}) {
                    std::vector<double> x(n, 9), inPlace;
                    x[at] = none;
                    inPlace = x;
                    EXPECT_EQ(call("ippsSqrt_64f", (const void*)inPlace.data(), (void*)x.data(), static_cast<int>(n)),
                              ippStsSqrtNegArg);
                    EXPECT_EQ(call("ippsSqrt_64f_I", (void*)inPlace.data(), static_cast<int>(n)), ippStsSqrtNegArg);
                    for (size_t i = 0; i < n; ++i) {
                        EXPECT_EQ(bitsOf(x[i]), i == at ? indefinite : bitsOf(3)) << none << ' ' << n << ' ' << i;
                        EXPECT_EQ(bitsOf(x[i]), bitsOf(inPlace[i]));
                    }
                }
    });
}

TEST(Root, ComplexWithinAUnitOfTheLastPlace)
{
    inEveryVariant([] {
        std::vector<Ipp64fc> z = complexNumbers(6001, 2, false);
        std::mt19937_64 random(3);
        const auto fraction = [&] { return 1 + static_cast<double>(random() >> 12) * 0x1p-52; };
        for (int i = 0; i < 12000; ++i) { // sizes that differ by any power of two, of any exponent
            const int exponent = static_cast<int>(random() % 2098) - 1074, less = static_cast<int>(random() % 130);
            const double large = std::ldexp(fraction(), exponent), small = std::ldexp(fraction(), exponent - less);
            const double x = random() % 2 ? large : small, y = x == large ? small : large;
            z.push_back({random() % 2 ? x : -x, random() % 2 ? y : -y});
        }
        for (int i = 0; i < 3000; ++i) // roots with parts of few bits, and their neighbours: results close to exact
        {
            const double t = static_cast<double>(random() % (1 << 26)), v = static_cast<double>(random() % (1 << 26));
            z.push_back({t * t - v * v + static_cast<double>(random() % 3), 2 * t * v});
        }
        const auto d = roots(z);
        double worst = 0;
        for (size_t i = 0; i < z.size(); ++i) {
            const double e = error(d[i], z[i]);
            worst = std::max(worst, e);
            ASSERT_LE(e, 1) << std::hexfloat << z[i].re << ' ' << z[i].im << " gives " << d[i].re << ' ' << d[i].im;
        }
        testing::Test::RecordProperty("worst", std::to_string(worst));
    });
}

// The C standard's csqrt, for infinities, zeros and NaN; each alone and among ordinary numbers.
TEST(Root, ComplexSpecialNumbers)
{
    const struct {
        Ipp64fc z, root;
    } cases[] = {
        {{0, 0}, {0, 0}},
        {{-0.0, 0}, {0, 0}},
        {{0, -0.0}, {0, -0.0}},
        {{-0.0, -0.0}, {0, -0.0}},
        {{4, 0}, {2, 0}},
        {{4, -0.0}, {2, -0.0}},
        {{-4, 0}, {0, 2}},
        {{-4, -0.0}, {0, -2}},
        {{0, 8}, {2, 2}},
        {{-0.0, -8}, {2, -2}},
        {{-3, -4}, {1, -2}},
        {{0x1p-1074, 0}, {0x1p-537, 0}},
        {{infinity, 1}, {infinity, 0}},
        {{infinity, -1}, {infinity, -0.0}},
        {{-infinity, 1}, {0, infinity}},
        {{-infinity, -1}, {0, -infinity}},
        {{1, infinity}, {infinity, infinity}},
        {{-1, -infinity}, {infinity, -infinity}},
        {{quietNaN, infinity}, {infinity, infinity}},
        {{quietNaN, -infinity}, {infinity, -infinity}},
        {{-infinity, infinity}, {infinity, infinity}},
        {{infinity, quietNaN}, {infinity, quietNaN}},
        {{-infinity, quietNaN}, {quietNaN, infinity}}, // of either sign
        {{quietNaN, 1}, {quietNaN, quietNaN}},
        {{1, quietNaN}, {quietNaN, quietNaN}},
        {{0, quietNaN}, {quietNaN, quietNaN}},
        {{quietNaN, 0}, {quietNaN, quietNaN}},
    };
    inEveryVariant([&] {
        for (const auto& c : cases)
            for (size_t n : {1u, 2u, 3u, 9u})
                for (size_t at = 0; at < n; ++at) {
                    std::vector<Ipp64fc> z(n, {-3, 4});
                    z[at] = c.z;
                    const auto d = roots(z);
                    const double im = std::isnan(c.root.re) && c.root.im == infinity ? std::fabs(d[at].im) : d[at].im;
                    EXPECT_TRUE(same(d[at].re, c.root.re) && same(im, c.root.im))
                        << c.z.re << ' ' << c.z.im << " gives " << d[at].re << ' ' << d[at].im;
                    if (n > 1) {
                        const Ipp64fc other = d[at ? 0 : 1];
                        EXPECT_TRUE(other.re == 1 && other.im == 2);
                    }
                }
    });
}
