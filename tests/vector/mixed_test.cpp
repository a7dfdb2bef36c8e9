// Mixed real and complex arithmetic against the formulas in complex numbers of their own, zeros and their signs
// included; moves, ramps and products.
#include "vector/own_call.h"
#include <cmath>
#include <cstring>

using namespace support;

namespace {

using Complex = Ipp64fc;

// The formulas word by word, on the parts, in the order vector, scalar (or first, second array).
struct Formula {
    const char* name;
    bool realFirst, realSecond;
    double (*re)(Complex s, Complex v);
    double (*im)(Complex s, Complex v);
};
using C = Complex;

const Formula withValue[] = {
    {"AddValuec", false, false, [](C s, C v) { return s.re + v.re; }, [](C s, C v) { return s.im + v.im; }},
    {"AddValuecd", false, true, [](C s, C v) { return s.re + v.re; }, [](C s, C) { return s.im + 0.0; }},
    {"AddValuedc", true, false, [](C s, C v) { return s.re + v.re; }, [](C, C v) { return v.im + 0.0; }},
    {"SubFromValuec", false, false, [](C s, C v) { return v.re - s.re; }, [](C s, C v) { return v.im - s.im; }},
    {"SubFromValuecd", false, true, [](C s, C v) { return v.re - s.re; }, [](C s, C) { return 0.0 - s.im; }},
    {"SubFromValuedc", true, false, [](C s, C v) { return v.re - s.re; }, [](C, C v) { return v.im - 0.0; }},
    {"ScaleByValuec", false, false, [](C s, C v) { return s.re * v.re - s.im * v.im; },
     [](C s, C v) { return s.im * v.re + s.re * v.im; }},
    {"ScaleByValuecd", false, true, [](C s, C v) { return v.re * s.re; }, [](C s, C v) { return v.re * s.im; }},
    {"ScaleByValuedc", true, false, [](C s, C v) { return s.re * v.re; }, [](C s, C v) { return s.re * v.im; }},
    {"DivideValuedc", true, false, [](C s, C v) { return v.re / s.re; }, [](C s, C v) { return v.im / s.re; }},
};
const Formula withArray[] = {
    {"AddVeccd", false, true, [](C a, C b) { return b.re + a.re; }, [](C a, C) { return 0.0 + a.im; }},
    {"SubVeccd", false, true, [](C a, C b) { return a.re - b.re; }, [](C a, C) { return a.im - 0.0; }},
    {"SubVecdc", true, false, [](C a, C b) { return a.re - b.re; }, [](C, C b) { return 0.0 - b.im; }},
    {"MulVeccd", false, true, [](C a, C b) { return b.re * a.re; }, [](C a, C b) { return b.re * a.im; }},
    {"DivVeccd", false, true, [](C a, C b) { return a.re / b.re; }, [](C a, C b) { return a.im / b.re; }},
    {"ConjMulcc", false, false, [](C a, C b) { return a.im * b.im + a.re * b.re; },
     [](C a, C b) { return a.im * b.re - a.re * b.im; }},
};

constexpr unsigned longest = 75;

double number(std::mt19937_64& random)
{
    static const double specials[] = {
        0.0, -0.0, 1.0, -1.0, HUGE_VAL, -HUGE_VAL, NAN, 0x1p-1074, 0x1.fffffffffffffp1023};
    const auto r = random();
    return r % 3 ? std::ldexp(double(int64_t(r)), int(random() % 200) - 160) : specials[r / 3 % 9];
}

// Numbers as an array of complex or of real ones.
struct Operand {
    std::vector<double> parts;
    bool real;
    Operand(std::mt19937_64& random, bool isReal) : parts(longest * 2), real(isReal)
    {
        for (double& x : parts) x = number(random);
    }
    const void* data() const { return parts.data(); }
    Complex at(unsigned i) const { return real ? Complex{parts[i], 0.0} : Complex{parts[2 * i], parts[2 * i + 1]}; }
};

bool same(double x, double y) { return std::memcmp(&x, &y, sizeof x) == 0 || (std::isnan(x) && std::isnan(y)); }

void expect(const Formula& f, Complex found, Complex s, Complex v)
{
    EXPECT_TRUE(same(found.re, f.re(s, v)) && same(found.im, f.im(s, v)))
        << f.name << ": (" << s.re << ", " << s.im << ") and (" << v.re << ", " << v.im << ") gave (" << found.re
        << ", " << found.im << ')';
}

} // namespace

TEST(Mixed, FormulasWithOneNumber)
{
    inEveryVariant([] {
        std::mt19937_64 random(1);
        for (const Formula& f : withValue)
            for (unsigned n = 0; n <= longest; n += n < 20 ? 1 : 11) {
                const Operand s(random, f.realFirst);
                const Complex v = {number(random), f.realSecond ? 0.0 : number(random)};
                Complex d[longest + 1] = {};
                d[n] = {5, 6};
                if (f.realSecond)
                    run(f.name, s.data(), (void*)d, v.re, n);
                else
                    run(f.name, s.data(), (void*)d, (const void*)&v, n);
                for (unsigned i = 0; i < n; ++i) expect(f, d[i], s.at(i), v);
                EXPECT_EQ(d[n].re, 5) << f.name;
            }
    });
}

TEST(Mixed, FormulasOfTwoArrays)
{
    inEveryVariant([] {
        std::mt19937_64 random(2);
        for (const Formula& f : withArray)
            for (unsigned n = 0; n <= longest; n += n < 20 ? 1 : 11) {
                const Operand a(random, f.realFirst), b(random, f.realSecond);
                Complex d[longest + 1] = {};
                d[n] = {5, 6};
                run(f.name, a.data(), b.data(), (void*)d, n);
                for (unsigned i = 0; i < n; ++i) expect(f, d[i], a.at(i), b.at(i));
                EXPECT_EQ(d[n].re, 5) << f.name;
            }
    });
}

TEST(Mixed, RealNumbersWithOneNumber)
{
    inEveryVariant([] {
        std::mt19937_64 random(3);
        const Operand s(random, true);
        const double* x = s.parts.data();
        const double v = 0.7;
        double d[longest];
        run("AddValue", x, d, v, longest);
        for (unsigned i = 0; i < longest; ++i) EXPECT_TRUE(same(d[i], x[i] + v));
        run("SubFromValue", x, d, v, longest);
        for (unsigned i = 0; i < longest; ++i) EXPECT_TRUE(same(d[i], v - x[i]));
        run("ScaleByValue", x, d, v, longest);
        for (unsigned i = 0; i < longest; ++i) EXPECT_TRUE(same(d[i], x[i] * v));
        run("DivideValue", x, d, v, longest);
        for (unsigned i = 0; i < longest; ++i) EXPECT_TRUE(same(d[i], v / x[i]));
    });
}

TEST(Mixed, SignsOfZeros)
{
    inEveryVariant([] {
        const Complex minus = {1, -0.0}, plus = {1, 0.0};
        const double one = 1;
        Complex d;
        run("AddValuecd", &minus, &d, one, 1u);
        EXPECT_FALSE(std::signbit(d.im));
        run("SubFromValuecd", &plus, &d, one, 1u);
        EXPECT_FALSE(std::signbit(d.im));
        run("SubFromValuedc", &one, &d, &minus, 1u);
        EXPECT_TRUE(std::signbit(d.im));
        run("AddVeccd", &minus, &one, &d, 1u);
        EXPECT_FALSE(std::signbit(d.im));
        run("SubVeccd", &minus, &one, &d, 1u);
        EXPECT_TRUE(std::signbit(d.im));
        run("SubVecdc", &one, &plus, &d, 1u);
        EXPECT_FALSE(std::signbit(d.im));
        run("MulI", &plus, &d, 1u);
        EXPECT_TRUE(d.re == 0 && std::signbit(d.re) && d.im == 1);
        const Complex none = {0, 0};
        run("FlipConj", &none, &d, 1u);
        EXPECT_TRUE(std::signbit(d.im) && !std::signbit(d.re));
    });
}

// The value may stand in the array that is written.
TEST(Mixed, ValueInsideTheDestination)
{
    inEveryVariant([] {
        Complex x[40];
        for (unsigned i = 0; i < 40; ++i) x[i] = {double(i), 1};
        run("AddValuec", (const Complex*)x, x, (const Complex*)&x[3], 40u);
        for (unsigned i = 0; i < 40; ++i) ASSERT_EQ(x[i].re, i + 3.0);
    });
}

TEST(Moves, PartsAndOrder)
{
    inEveryVariant([] {
        for (unsigned n = 0; n < 70; ++n) {
            std::vector<Complex> x(n + 1), d(n + 1), in(n + 1);
            for (unsigned i = 0; i < n; ++i) x[i] = {i + 0.25, -1.0 * i - 1};
            d[n] = {9, 9};
            run("Flip", (const Complex*)x.data(), d.data(), n);
            for (unsigned i = 0; i < n; ++i) ASSERT_TRUE(d[i].re == x[i].im && d[i].im == x[i].re);
            run("FlipConj", (const Complex*)x.data(), d.data(), n);
            for (unsigned i = 0; i < n; ++i) ASSERT_TRUE(d[i].re == x[i].im && d[i].im == -x[i].re);
            run("MulI", (const Complex*)x.data(), d.data(), n);
            for (unsigned i = 0; i < n; ++i) ASSERT_TRUE(d[i].re == -x[i].im && d[i].im == x[i].re);
            run("Reverse", (const Complex*)x.data(), d.data(), n);
            in = x;
            run("Reverse", (const Complex*)in.data(), in.data(), n);
            for (unsigned i = 0; i < n; ++i) {
                ASSERT_TRUE(d[n - 1 - i].re == x[i].re && d[n - 1 - i].im == x[i].im) << n;
                ASSERT_TRUE(in[n - 1 - i].re == x[i].re && in[n - 1 - i].im == x[i].im) << n;
            }
            ASSERT_EQ(d[n].re, 9);
        }
    });
}

TEST(Ramps, FromTheIndexAlone)
{
    inEveryVariant([] {
        for (unsigned n : {0u, 1u, 2u, 3u, 17u, 100001u}) {
            std::vector<double> d(n + 1, 5.0);
            run("Rampd", d.data(), n, 0.1, 0.7);
            for (unsigned i = 0; i < n; ++i) ASSERT_EQ(d[i], 0.1 + 0.7 * i) << i;
            EXPECT_EQ(d[n], 5.0);
            std::vector<Complex> c(n + 1, Complex{5, 5});
            const Complex offset = {1e10, -3}, step = {-0.1, 1.0 / 3};
            run("Rampc", c.data(), n, &offset, &step);
            for (unsigned i = 0; i < n; ++i)
                ASSERT_TRUE(c[i].re == 1e10 + -0.1 * i && c[i].im == -3 + 1.0 / 3 * i) << i;
            EXPECT_EQ(c[n].im, 5);
        }
    });
}

TEST(Products, OfAllElements)
{
    inEveryVariant([] {
        double p;
        Complex q;
        const double inner[] = {2, 0, 3, HUGE_VAL};
        run("Product", inner, 0u, &p);
        EXPECT_EQ(p, 1);
        run("Product", inner, 4u, &p);
        EXPECT_TRUE(std::isnan(p));
        const Complex infinite = {HUGE_VAL, 0};
        run("Productc", &infinite, 0u, &q);
        EXPECT_TRUE(q.re == 1 && q.im == 0);

        std::mt19937_64 random(4);
        for (unsigned n = 1; n < 600; n += n < 70 ? 1 : 37) {
            std::vector<double> x(n);
            std::vector<Complex> z(n);
            long double product = 1, re = 1, im = 0;
            for (unsigned i = 0; i < n; ++i) {
                x[i] = std::ldexp(1.0 + double(random() >> 11) * 0x1p-53, int(random() % 3) - 1);
                z[i] = {x[i] - 1.25, double(random() >> 11) * 0x1p-53};
                product *= x[i];
                const long double r = re * z[i].re - im * z[i].im;
                im = re * z[i].im + im * z[i].re;
                re = r;
            }
            run("Product", (const double*)x.data(), n, &p);
            EXPECT_NEAR(p / double(product), 1, n * 2.3e-16);
            run("Productc", (const Complex*)z.data(), n, &q);
            const double size = double(sqrtl(re * re + im * im));
            EXPECT_NEAR(q.re, double(re), n * 5e-16 * size);
            EXPECT_NEAR(q.im, double(im), n * 5e-16 * size);
        }
    });
}
