// The scalar functions against correctly rounded values at the hardest points, their symmetries, and their bits, which
// must be the same on every platform.
#include "kernel/libm.h"
#include <cmath>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace sig5d;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

int64_t ordered(double x)
{
    int64_t bits;
    std::memcpy(&bits, &x, sizeof bits);
    return bits < 0 ? std::numeric_limits<int64_t>::min() - bits : bits;
}
int64_t steps(double a, double b) { return std::llabs(ordered(a) - ordered(b)); }

struct Bits {
    uint64_t hash = 14695981039346656037u;
    void add(double x)
    {
        uint64_t bits;
        std::memcpy(&bits, &x, sizeof bits);
        for (int i = 0; i < 64; i += 8) hash = (hash ^ (bits >> i & 255)) * 1099511628211u;
    }
};

double anyDouble(std::mt19937_64& random)
{
    const uint64_t bits = random();
    double x;
    std::memcpy(&x, &bits, sizeof x);
    return std::isfinite(x) ? x : 1.0;
}

} // namespace

TEST(Trigonometry, HardestArguments)
{
    // Doubles next to multiples of pi/2, at the seams of the reductions, and at the ends of the range.
    const struct {
        double x, sin, cos;
    } known[] = {
        {0x1.6ac5b262ca1ffp+849, 1.0, -0x1.14ae72e6ba22fp-61},
        {0x1.6c6cbc45dc8dep+5, 1.0, -0x1.6d61b58c99c43p-61},
        {0x1.6ac5b262ca1ffp+850, -0x1.14ae72e6ba22fp-60, -1.0},
        {0x1.b951f1572eba5p+23, -1.0, -0x1.f54f5227a4e84p-60},
        {0x1.504cac51f1eafp+131, -1.0, -0x1.0cb604d34f341p-59},
        {0x1.e009c53148be1p+991, 1.0, 0x1.295a3b0a64b1dp-59},
        {0x1.921fb54442d18p+0, 1.0, 0x1.1a62633145c07p-54},
        {0x1.921fb54442d18p+1, 0x1.1a62633145c07p-53, -1.0},
        {0x1.67e57cdd4dc54p+15, -1.0, 0x1.396f53352c401p-53},
        {0x1.0f0cf064dd592p+73, -0x1.b453ab76bf397p-1, 0x1.0be2cef01c8f4p-1},
        {0x1p+1023, 0x1.205248cbdb760p-1, -0x1.a719f26c232bfp-1},
        {0x1.fffffffffffffp+1023, 0x1.452fc98b34e97p-8, -0x1.fffe62ecfab75p-1},
        {0x1p+120, 0x1.82e34655e6fcbp-2, -0x1.da0cd0b66d8cep-1},
        {0x1p+20, 0x1.526ccb2fc8656p-2, 0x1.e33ada92fe2aep-1},
        {0x1.fffffffffffffp+19, 0x1.526ccb2de52a8p-2, 0x1.e33ada9352c61p-1},
        {-0x1.c6bf52634p+49, -0x1.b76f88136cebap-1, -0x1.06c154609d33fp-1},
        {0x1.921fb54442d18p-1, 0x1.6a09e667f3bccp-1, 0x1.6a09e667f3bcdp-1},
        {0x1.921fb54442d19p-1, 0x1.6a09e667f3bcdp-1, 0x1.6a09e667f3bccp-1},
        {-0x1.2d97c7f3321d2p+1, -0x1.6a09e667f3bcdp-1, -0x1.6a09e667f3bccp-1},
        {0.5, 0x1.eaee8744b05fp-2, 0x1.c1528065b7d5p-1},
        {0x1.56e1fc2f8f359p-997, 0x1.56e1fc2f8f359p-997, 1.0},
        {5e-324, 5e-324, 1.0},
        {-0x1.5798ee2308c3ap-27, -0x1.5798ee2308c3ap-27, 1.0},
        {0x1p-26, 0x1p-26, 0x1.fffffffffffffp-1},
    };
    for (const auto& k : known) {
        EXPECT_LE(steps(libm::sin(k.x), k.sin), 1) << k.x;
        EXPECT_LE(steps(libm::cos(k.x), k.cos), 1) << k.x;
    }
    EXPECT_TRUE(std::signbit(libm::sin(-0.0)));
    EXPECT_EQ(libm::sin(-0.0), 0.0);
    for (double x : {infinity, -infinity, std::nan("")}) {
        EXPECT_TRUE(std::isnan(libm::sin(x)));
        EXPECT_TRUE(std::isnan(libm::cos(x)));
    }
}

TEST(Trigonometry, SymmetryAndTheCircle)
{
    std::mt19937_64 random(1);
    for (int i = 0; i < 100000; ++i) {
        const double x = i & 1 ? anyDouble(random) : std::ldexp(double(int64_t(random())), -44);
        const libm::CosSin a = libm::cosSin(x);
        ASSERT_EQ(libm::sin(-x), -a.sin) << x;
        ASSERT_EQ(libm::cos(-x), a.cos) << x;
        ASSERT_NEAR(a.cos * a.cos + a.sin * a.sin, 1.0, 0x1p-51) << x;
    }
}

TEST(Trigonometry, TurnsAreSymmetricToTheBit)
{
    for (int64_t n : {int64_t(1), int64_t(2), int64_t(8), int64_t(24), int64_t(1000), int64_t(1009), int64_t(1) << 29,
                      (int64_t(1) << 53) - 8}) {
        for (int64_t i = 0; i < 3000; ++i) {
            const int64_t k = n < 3000 ? i % n : n / 3000 * i;
            const libm::CosSin a = libm::cosSinTurn(k, n);
            const libm::CosSin mirrored = libm::cosSinTurn(-k, n), further = libm::cosSinTurn(k + 3 * n, n);
            ASSERT_EQ(mirrored.cos, a.cos);
            ASSERT_EQ(mirrored.sin, -a.sin);
            ASSERT_EQ(further.cos, a.cos);
            ASSERT_EQ(further.sin, a.sin);
            if (n % 4 == 0) {
                const libm::CosSin quarter = libm::cosSinTurn(k + n / 4, n), swapped = libm::cosSinTurn(n / 4 - k, n);
                ASSERT_EQ(quarter.cos, -a.sin);
                ASSERT_EQ(quarter.sin, a.cos);
                ASSERT_EQ(swapped.cos, a.sin);
                ASSERT_EQ(swapped.sin, a.cos);
            }
            if (n <= 1009) {
                const double x = 2 * 3.14159265358979323846 * double(k) / double(n);
                ASSERT_NEAR(a.cos, std::cos(x), 2e-15);
                ASSERT_NEAR(a.sin, std::sin(x), 2e-15);
            }
        }
    }
    EXPECT_EQ(libm::cosSinTurn(1, 8).cos, std::sqrt(0.5));
    EXPECT_EQ(libm::cosSinTurn(1, 12).cos, std::sqrt(0.75));
    EXPECT_FALSE(std::signbit(libm::cosSinTurn(1, 4).cos));
}

TEST(Trigonometry, SameBitsOnEveryPlatform)
{
    Bits wide, near, turns;
    std::mt19937_64 random(2);
    for (int i = 0; i < 200000; ++i) {
        const libm::CosSin a = libm::cosSin(anyDouble(random));
        wide.add(a.cos);
        wide.add(a.sin);
        const libm::CosSin b = libm::cosSin(std::ldexp(double(int64_t(random())), -44));
        near.add(b.cos);
        near.add(b.sin);
        const libm::CosSin c = libm::cosSinTurn(int64_t(random() >> 11), int64_t(random() >> 12) + 1);
        turns.add(c.cos);
        turns.add(c.sin);
    }
    EXPECT_EQ(wide.hash, 16034245217452965901u);
    EXPECT_EQ(near.hash, 3051653623278882254u);
    EXPECT_EQ(turns.hash, 6501399391676714875u);
}
