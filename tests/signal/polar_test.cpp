// Phase, and conversions between Cartesian and polar coordinates: special values, all forms, accuracy. The oracle here
// is long double; polar_mpfr_test.cpp finds the exact errors.
#include "support/wide.h"
#include <cmath>
#include <random>

using namespace support;

namespace {

using Numbers = std::vector<double>;

double phase(double re, double im)
{
    double result = 7;
    EXPECT_EQ(call("ippsPhase_64f", (const void*)&re, (const void*)&im, (void*)&result, 1), 0);
    return result;
}

// Both forms of each function give the same, at every length: lanes and leftovers alike.
void everyForm(const Numbers& re, const Numbers& im)
{
    for (size_t n = 1; n <= 40; ++n) {
        const int len = static_cast<int>(n);
        std::vector<Ipp64fc> z(n), w(n);
        for (size_t i = 0; i < n; ++i) z[i] = {re[i], im[i]};
        Numbers magnitude(n), angle(n), angle2(n), magnitude3(n), angle3(n), x(n), y(n);
        const void *const r = re.data(), *const i = im.data();
        EXPECT_EQ(call("ippsPhase_64f", r, i, (void*)angle2.data(), len), 0);
        EXPECT_EQ(call("ippsCartToPolar_64f", r, i, (void*)magnitude.data(), (void*)angle.data(), len), 0);
        EXPECT_EQ(
            call("ippsCartToPolar_64fc", (const void*)z.data(), (void*)magnitude3.data(), (void*)angle3.data(), len),
            0);
        for (size_t k = 0; k < n; ++k) {
            const double root = squareRoot(power(z[k]));
            ASSERT_TRUE(same(magnitude[k], root) && same(magnitude3[k], root)) << n << ' ' << k;
            const double alone = phase(re[k], im[k]);
            ASSERT_TRUE(same(angle[k], alone) && same(angle2[k], alone) && same(angle3[k], alone)) << n << ' ' << k;
        }
        EXPECT_EQ(call("ippsPhase_64fc", (const void*)z.data(), (void*)angle2.data(), len), 0);
        for (size_t k = 0; k < n; ++k) ASSERT_TRUE(same(angle[k], angle2[k])) << n << ' ' << k;

        // Magnitudes and phases are any two arrays as well.
        EXPECT_EQ(call("ippsPolarToCart_64f", r, i, (void*)x.data(), (void*)y.data(), len), 0);
        EXPECT_EQ(call("ippsPolarToCart_64fc", r, i, (void*)w.data(), len), 0);
        for (size_t k = 0; k < n; ++k) {
            double one = 1, c, s;
            call("ippsPolarToCart_64f", (const void*)&one, (const void*)&im[k], (void*)&c, (void*)&s, 1);
            ASSERT_TRUE(same(x[k], product(re[k], c)) && same(y[k], product(re[k], s))) << n << ' ' << k;
            ASSERT_TRUE(same(w[k], {x[k], y[k]})) << n << ' ' << k;
        }
    }
}

} // namespace

TEST(Polar, EveryFormAndLength)
{
    inEveryVariant([] {
        everyForm(numbers(40, 1), numbers(40, 2));
        everyForm(numbers(40, 3, false), numbers(40, 4, false));
    });
}

TEST(Polar, SpecialPhases)
{
    constexpr double pi = 0x1.921fb54442d18p+1, big = 0x1.fffffffffffffp1023, tiny = 0x1p-1074;
    const struct {
        double re, im, phase; // the phase for a negative imaginary part is the opposite
    } cases[] = {
        {0, 0, 0},
        {-0.0, 0, pi},
        {1, 0, 0},
        {-1, 0, pi},
        {0, 1, pi / 2},
        {-0.0, 1, pi / 2},
        {1, 1, pi / 4},
        {-1, 1, 0x1.2d97c7f3321d2p+1},
        {big, big, pi / 4},
        {tiny, tiny, pi / 4},
        {-tiny, tiny, 0x1.2d97c7f3321d2p+1},
        {big, tiny, 0},
        {-big, tiny, pi},
        {tiny, big, pi / 2},
        {1, tiny, tiny},
        {2, 3 * tiny, 2 * tiny}, // 1.5 to even
        {infinity, 1, 0},
        {-infinity, 1, pi},
        {1, infinity, pi / 2},
        {-big, infinity, pi / 2},
        {infinity, infinity, pi / 4},
        {-infinity, infinity, 0x1.2d97c7f3321d2p+1},
        {infinity, 0, 0},
        {0, infinity, pi / 2},
    };
    inEveryVariant([&] {
        for (const auto& c : cases) {
            EXPECT_TRUE(same(phase(c.re, c.im), c.phase)) << c.re << ' ' << c.im;
            EXPECT_TRUE(same(phase(c.re, -c.im), -c.phase)) << c.re << ' ' << -c.im;
        }
        for (double x : {0.0, 1.0, infinity, quietNaN}) {
            EXPECT_TRUE(std::isnan(phase(x, quietNaN)));
            EXPECT_TRUE(std::isnan(phase(quietNaN, x)));
        }
    });
}

TEST(Polar, SpecialPoints)
{
    inEveryVariant([] {
        const Numbers magnitude = {1, 1, 2, -3, 0, infinity, 1, 1, 1, infinity};
        const Numbers angle = {0, -0.0, 0, 0, 1, 1, infinity, -infinity, quietNaN, 0};
        const Numbers re = {1, 1, 2, -3, 0, infinity, quietNaN, quietNaN, quietNaN, infinity};
        const Numbers im = {0, -0.0, 0, -0.0, 0, infinity, quietNaN, quietNaN, quietNaN, quietNaN};
        Numbers x(10), y(10);
        call("ippsPolarToCart_64f", (const void*)magnitude.data(), (const void*)angle.data(), (void*)x.data(),
             (void*)y.data(), 10);
        for (size_t i = 0; i < 10; ++i) EXPECT_TRUE(same(x[i], re[i]) && same(y[i], im[i])) << i;
    });
}

// Where long double has bits to spare: the same statement for all targets.
TEST(Polar, WithinOneUlp)
{
    if (std::numeric_limits<long double>::digits < 64) GTEST_SKIP() << "long double is double";
    std::mt19937_64 random(5);
    const auto unit = [&] { return static_cast<double>(static_cast<int64_t>(random())) * 0x1p-63; };
    constexpr size_t n = 4000;
    Numbers a(n), b(n), one(n, 1.0), turn(n), angle(n), c(n), s(n);
    for (size_t i = 0; i < n; ++i) {
        a[i] = unit();
        b[i] = std::ldexp(unit(), static_cast<int>(random() % 40) - 20);
        turn[i] = 1.5 * unit(); // x87 sines are good for so much
    }
    inEveryVariant([&] {
        const int len = static_cast<int>(n);
        call("ippsPhase_64f", (const void*)a.data(), (const void*)b.data(), (void*)angle.data(), len);
        call("ippsPolarToCart_64f", (const void*)one.data(), (const void*)turn.data(), (void*)c.data(), (void*)s.data(),
             len);
        for (size_t i = 0; i < n; ++i) {
            const long double x = turn[i];
            ASSERT_LT(ulps(angle[i], std::atan2(static_cast<long double>(b[i]), static_cast<long double>(a[i]))), 0.9);
            ASSERT_LT(ulps(c[i], std::cos(x)), 0.9) << turn[i];
            ASSERT_LT(ulps(s[i], std::sin(x)), 0.9) << turn[i];
        }
    });
}
