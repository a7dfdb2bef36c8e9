// Complex quotients against the x87 unit, set to 53 bits as Windows hosts set it: every bit, for operands of every
// size, whatever this thread's own setting is.
#include "vector/own_call.h"
#include <cmath>
#include <cstring>

using namespace support;

namespace {

using Complex = Ipp64fc;

// a / b: t = 1 / (br*br + bi*bi), ((ar*br + bi*ai) * t, t * (ai*br - ar*bi)).
Complex onUnit(Complex a, Complex b)
{
    Complex q;
    uint16_t before, control = 0x27F;
    asm volatile(
        "fnstcw %[before]\n\tfldcw %[control]\n\t"
        "fldl %[br]\n\tfmul %%st(0), %%st\n\tfldl %[bi]\n\tfmul %%st(0), %%st\n\tfaddp\n\t"
        "fld1\n\tfdiv %%st(1), %%st\n\tfstp %%st(1)\n\t"
        "fldl %[ar]\n\tfmull %[br]\n\tfldl %[bi]\n\tfmull %[ai]\n\tfaddp\n\tfmul %%st(1), %%st\n\tfstpl %[re]\n\t"
        "fldl %[ai]\n\tfmull %[br]\n\tfldl %[ar]\n\tfmull %[bi]\n\tfchs\n\tfaddp\n\tfmul %%st(1), %%st\n\t"
        "fstpl %[im]\n\tfstp %%st(0)\n\tfldcw %[before]"
        : [before] "=m"(before), [re] "=m"(q.re), [im] "=m"(q.im)
        : [control] "m"(control), [ar] "m"(a.re), [ai] "m"(a.im), [br] "m"(b.re), [bi] "m"(b.im)
        : "memory", "st", "st(1)", "st(2)", "st(3)");
    return q;
}

bool same(double x, double y) { return std::memcmp(&x, &y, sizeof x) == 0 || (std::isnan(x) && std::isnan(y)); }
bool same(Complex x, Complex y) { return same(x.re, y.re) && same(x.im, y.im); }
std::string text(Complex x)
{
    char line[80];
    std::snprintf(line, sizeof line, "(%a, %a)", x.re, x.im);
    return line;
}

class Numbers
{
public:
    explicit Numbers(unsigned seed) : random_(seed) {}
    // Magnitudes of about 2^exponent, give or take a factor of 2^spread; among them some of few bits, zeros, specials.
    double any(int exponent, int spread)
    {
        static const double specials[] = {0.0,
                                          -0.0,
                                          HUGE_VAL,
                                          -HUGE_VAL,
                                          NAN,
                                          1.0,
                                          0x1p-1074,
                                          -0x1p-1074,
                                          0x1p-1022,
                                          0x1.fffffffffffffp1023,
                                          0x1.fffffffffffffp-1022};
        const auto r = random_();
        if (r % 64 == 0) return specials[(r >> 8) % (sizeof specials / sizeof *specials)];
        double m = 1.0 + double(random_() >> 11) * 0x1p-53;
        if (r % 8 == 1) m = std::ldexp(std::floor(std::ldexp(m, int(r >> 8 & 31))), -int(r >> 8 & 31));
        const int e = exponent + (spread ? int((r >> 16) % (2 * spread + 1)) - spread : 0);
        return std::ldexp(r >> 63 ? -m : m, std::max(-1100, std::min(1023, e)));
    }
    int below(int n) { return int(random_() % unsigned(n)); }

private:
    std::mt19937_64 random_;
};

constexpr unsigned count = 96;

struct Operands {
    Complex a[count], b[count];
    double real[count];

    void draw(Numbers& numbers)
    {
        const int spreads[] = {0, 0, 2, 60, 300, 1100};
        const int exponent = numbers.below(2) ? numbers.below(2100) - 1074 : numbers.below(20) - 10;
        // Quotients near the ends of the doubles, too.
        const int other = numbers.below(3) ? exponent + (numbers.below(2) ? 1022 : -1022) + numbers.below(60) - 30
                                           : numbers.below(2100) - 1074;
        const int spread = spreads[numbers.below(6)], otherSpread = spreads[numbers.below(6)];
        for (unsigned i = 0; i < count; ++i) {
            b[i] = {numbers.any(exponent, spread), numbers.any(exponent, spread)};
            a[i] = {numbers.any(other, otherSpread), numbers.any(other, otherSpread)};
            real[i] = numbers.any(other, otherSpread);
        }
    }
};

void expectQuotient(Complex found, Complex a, Complex b)
{
    const Complex expected = onUnit(a, b);
    if (!same(found, expected)) // a plain comparison: there are millions
        FAIL() << text(a) << " / " << text(b) << ": expected " << text(expected) << ", found " << text(found);
}

} // namespace

TEST(ComplexDivision, BitsOfTheExtendedUnitAt53Bits)
{
    inEveryVariant([] {
        Numbers numbers(53);
        Operands o;
        Complex d[count];
        for (int round = 0; round < 2500 && !testing::Test::HasFatalFailure(); ++round) {
            o.draw(numbers);
            run("DivVeccc", (const Complex*)o.a, (const Complex*)o.b, d, count);
            for (unsigned i = 0; i < count; ++i) expectQuotient(d[i], o.a[i], o.b[i]);
            run("DivVecdc", (const double*)o.real, (const Complex*)o.b, d, count);
            for (unsigned i = 0; i < count; ++i) expectQuotient(d[i], {o.real[i], 0.0}, o.b[i]);
            run("DivideValuec", (const Complex*)o.b, d, (const Complex*)&o.a[0], count);
            for (unsigned i = 0; i < count; ++i) expectQuotient(d[i], o.a[0], o.b[i]);
            run("DivideValuecd", (const Complex*)o.b, d, o.real[0], count);
            for (unsigned i = 0; i < count; ++i) expectQuotient(d[i], {o.real[0], 0.0}, o.b[i]);
        }
    });
}

TEST(ComplexDivision, IndependentOfTheThreadsSetting)
{
    inEveryVariant([] {
        Numbers numbers(64);
        Operands o;
        for (int round = 0; round < 50; ++round) {
            o.draw(numbers);
            Complex expected[count], found[count];
            run("DivVeccc", (const Complex*)o.a, (const Complex*)o.b, expected, count);
            for (const uint16_t control : {0x07F, 0x27F, 0x37F, 0xF7F}) {
                uint16_t before;
                asm volatile("fnstcw %0\n\tfldcw %1" : "=m"(before) : "m"(control));
                run("DivVeccc", (const Complex*)o.a, (const Complex*)o.b, found, count);
                asm volatile("fldcw %0" : : "m"(before));
                for (unsigned i = 0; i < count; ++i) ASSERT_TRUE(same(found[i], expected[i])) << control;
            }
        }
    });
}

TEST(ComplexDivision, Surprises)
{
    inEveryVariant([] {
        const Complex huge = {1e200, 1e200}, zero = {0, 0}, one = {1, 0};
        Complex d;
        run("DivideValuec", &huge, &d, &huge, 1u);
        EXPECT_NEAR(d.re, 1.0, 1e-15); // the squared modulus is beyond the doubles
        EXPECT_EQ(d.im, 0.0);
        run("DivideValuec", &zero, &d, &one, 1u);
        EXPECT_TRUE(std::isnan(d.re) && std::isnan(d.im));
        run("DivVeccc", &huge, &zero, &d, 1u);
        EXPECT_TRUE(std::isnan(d.re) && std::isnan(d.im));
        d = one;
        run("DivVeccc", &huge, &zero, &d, 0u);
        run("DivideValuec", &huge, &d, &huge, 0u);
        EXPECT_EQ(d.re, 1.0);
    });
}
