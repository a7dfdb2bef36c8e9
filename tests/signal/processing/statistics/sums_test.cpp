// Sums and what is made of them: the order that is told, to the bit; accuracy; numbers whose squares or sums have no
// place among doubles.
#include "signal/processing/statistics/arrays.h"

using namespace statistics;

namespace {

// The order as the reference tells it: blocks, partial sums in turn, halves, a balanced tree.
double joinedByHalves(std::vector<double> p, size_t lanes)
{
    for (size_t half = lanes / 2; half > 0; half /= 2)
        for (size_t k = 0; k < half && k + half < p.size(); ++k) p[k] = sum(p[k], p[k + half]);
    return p[0];
}
double blockSum(const double* x, size_t n, size_t lanes)
{
    std::vector<double> partial;
    for (size_t i = 0; i < n; ++i)
        if (i < lanes)
            partial.push_back(x[i]);
        else
            partial[i % lanes] = sum(partial[i % lanes], x[i]);
    return joinedByHalves(partial, lanes);
}
// The largest power of two of blocks that is less than all makes the left branch.
double treeSum(const double* x, size_t n, size_t block, size_t lanes)
{
    if (n <= block) return blockSum(x, n, lanes);
    size_t left = block;
    while (2 * left < n) left *= 2;
    return sum(treeSum(x, left, block, lanes), treeSum(x + left, n - left, block, lanes));
}
double orderedSum(const std::vector<double>& x) { return treeSum(x.data(), x.size(), 1024, 32); }
// One of several numbers of each element.
double orderedPart(const std::vector<double>& x, size_t lanes = 16) { return treeSum(x.data(), x.size(), 512, lanes); }

template <class T, class F> std::vector<double> made(const std::vector<T>& x, F f)
{
    std::vector<double> y;
    for (size_t i = 0; i < x.size(); ++i) y.push_back(f(i));
    return y;
}
double modulus(Ipp64fc z) { return squareRoot(power(z)); }

void checkReal(const std::vector<double>& x, const std::vector<double>& y)
{
    const auto right = [&](auto f) { return orderedSum(made(x, f)); };
    EXPECT_TRUE(same(valueOf<double>("ippsSum_64f", x), orderedSum(x)));
    EXPECT_TRUE(same(valueOf<double>("ippsMean_64f", y), quotient(orderedSum(y), static_cast<double>(y.size()))));
    EXPECT_TRUE(same(valueOf<double>("ippsDotProd_64f", x, y), right([&](size_t i) { return product(x[i], y[i]); })));
    EXPECT_TRUE(same(valueOf<double>("ippsNorm_L1_64f", x), right([&](size_t i) { return std::fabs(x[i]); })));
    EXPECT_TRUE(same(valueOf<double>("ippsNormDiff_L1_64f", x, y),
                     right([&](size_t i) { return std::fabs(difference(x[i], y[i])); })));
    EXPECT_TRUE(
        same(valueOf<double>("ippsNorm_L2_64f", y), squareRoot(right([&](size_t i) { return product(y[i], y[i]); }))));
}
void checkComplex(const std::vector<Ipp64fc>& z, const std::vector<Ipp64fc>& w, const std::vector<double>& x)
{
    const auto right = [&](auto f) { return orderedSum(made(z, f)); };
    const auto part = [&](size_t lanes, auto f) { return orderedPart(made(z, f), lanes); };
    EXPECT_TRUE(same(valueOf<Ipp64fc>("ippsSum_64fc", z),
                     {part(16, [&](size_t i) { return z[i].re; }), part(16, [&](size_t i) { return z[i].im; })}));
    EXPECT_TRUE(same(valueOf<double>("ippsNorm_L1_64fc64f", z), right([&](size_t i) { return modulus(z[i]); })));
    EXPECT_TRUE(same(valueOf<double>("ippsNormDiff_L1_64fc64f", z, w),
                     right([&](size_t i) { return modulus(difference(z[i], w[i])); })));
    const double reRe = part(8, [&](size_t i) { return product(z[i].re, w[i].re); }),
                 imIm = part(8, [&](size_t i) { return product(z[i].im, w[i].im); }),
                 reIm = part(8, [&](size_t i) { return product(z[i].re, w[i].im); }),
                 imRe = part(8, [&](size_t i) { return product(z[i].im, w[i].re); });
    EXPECT_TRUE(same(valueOf<Ipp64fc>("ippsDotProd_64fc", z, w), {difference(reRe, imIm), sum(reIm, imRe)}));
    EXPECT_TRUE(same(valueOf<Ipp64fc>("ippsDotProd_64f64fc", x, w),
                     {part(16, [&](size_t i) { return product(x[i], w[i].re); }),
                      part(16, [&](size_t i) { return product(x[i], w[i].im); })}));
}

// Exact to a few units of the last of 113 bits.
Wide wideSum(const std::vector<double>& x)
{
    Wide s = 0;
    for (double v : x) s += v;
    return s;
}

} // namespace

TEST(Sums, AreMadeInTheOrderThatIsTold)
{
    inEveryVariant([] {
        for (size_t n : lengths) {
            SCOPED_TRACE(n);
            const unsigned seed = static_cast<unsigned>(n);
            checkReal(fractions(n, seed), fractions(n, seed + 1));
            checkReal(numbers(n, seed, false), fractions(n, seed + 1));
            checkComplex(complexFractions(n, seed), complexFractions(n, seed + 1), fractions(n, seed + 2));
        }
    });
}

TEST(Sums, KeepTheSignOfZero)
{
    inEveryVariant([] {
        for (size_t n : lengths) {
            const std::vector<double> x(n, -0.0);
            EXPECT_EQ(bitsOf(valueOf<double>("ippsSum_64f", x)), bitsOf(-0.0)) << n;
        }
    });
}

// Each element is rounded with a sum a few dozen times and not once for each element before it.
TEST(Sums, LoseLittleInLongArrays)
{
    inEveryVariant([] {
        const std::vector<double> tenths(3000001, 0.1);
        const Wide right = Wide(0.1) * 3000001;
        EXPECT_LE(ulps(valueOf<double>("ippsSum_64f", tenths), right), 40);
        const auto x = fractions(3000001, 5);
        Wide size = 0;
        for (double v : x) size += std::fabs(v);
        const Wide error = Wide(valueOf<double>("ippsSum_64f", x)) - wideSum(x);
        EXPECT_LE(std::fabs(static_cast<double>(error / size)), 48 * 0x1p-53);
    });
}

TEST(Norms, OfHugeAndTinyNumbers)
{
    inEveryVariant([] {
        for (int exponent : {-1060, -1000, -700, -540, -500, -300, 0, 300, 505, 520, 700, 1000, 1013})
            for (size_t n : {1u, 3u, 40u, 700u, 1500u}) {
                SCOPED_TRACE(testing::Message() << "2^" << exponent << ", " << n);
                auto x = fractions(n, 7);
                auto z = complexFractions(n, 8);
                for (double& v : x) v = std::ldexp(v, exponent);
                for (Ipp64fc& v : z) v = {std::ldexp(v.re, exponent), std::ldexp(v.im, exponent)};
                const std::vector<double> zeros(n);
                const std::vector<Ipp64fc> noughts(n);
                Wide squares = 0, powers = 0, moduli = 0, largest = 0;
                for (double v : x) squares += Wide(v) * v;
                for (Ipp64fc v : z) {
                    const Wide p = Wide(v.re) * v.re + Wide(v.im) * v.im;
                    powers += p;
                    moduli += wideRoot(p);
                    largest = p > largest ? p : largest;
                }
                EXPECT_LE(ulps(valueOf<double>("ippsNorm_L2_64f", x), wideRoot(squares)), 8);
                EXPECT_LE(ulps(valueOf<double>("ippsNorm_L2_64fc64f", z), wideRoot(powers)), 8);
                EXPECT_LE(ulps(valueOf<double>("ippsNorm_L1_64fc64f", z), moduli), 16);
                EXPECT_LE(ulps(valueOf<double>("ippsNorm_Inf_64fc64f", z), wideRoot(largest)), 2);
                EXPECT_LE(ulps(valueOf<double>("ippsNormDiff_L2_64f", x, zeros), wideRoot(squares)), 8);
                EXPECT_LE(ulps(valueOf<double>("ippsNormDiff_L2_64fc64f", noughts, z), wideRoot(powers)), 8);
                EXPECT_LE(ulps(valueOf<double>("ippsNormDiff_Inf_64fc64f", z, noughts), wideRoot(largest)), 2);
            }
    });
}

// The difference of two numbers that are neither huge nor tiny can be tiny, and of two that are huge none at all.
TEST(Norms, OfTinyDifferences)
{
    inEveryVariant([] {
        const std::vector<double> a = {1e300, 0x1.0000000000001p-500}, b = {1e300, 0x1p-500};
        EXPECT_EQ(valueOf<double>("ippsNormDiff_L2_64f", a, b), 0x1p-552);
        const std::vector<Ipp64fc> c = {{1e300, -1e300}, {0, 0x1.0000000000001p-500}},
                                   d = {{1e300, -1e300}, {0, 0x1p-500}};
        EXPECT_EQ(valueOf<double>("ippsNormDiff_L2_64fc64f", c, d), 0x1p-552);
        EXPECT_EQ(valueOf<double>("ippsNormDiff_L1_64fc64f", c, d), 0x1p-552);
        EXPECT_EQ(valueOf<double>("ippsNormDiff_Inf_64fc64f", c, d), 0x1p-552);
    });
}

TEST(Norms, OfInfinitiesAndNaN)
{
    inEveryVariant([] {
        for (size_t n : {1u, 2u, 5u, 31u, 64u, 1100u})
            for (size_t at : {size_t{0}, n / 2, n - 1})
                for (double x : {infinity, -infinity, quietNaN}) {
                    SCOPED_TRACE(testing::Message() << x << " at " << at << " of " << n);
                    std::vector<double> a(n, -2.5);
                    std::vector<Ipp64fc> z(n, {1e200, -2.5});
                    a[at] = z[at].im = x;
                    for (const char* norm : {"Inf", "L1", "L2"}) {
                        const double real = valueOf<double>(std::string("ippsNorm_") + norm + "_64f", a),
                                     of = valueOf<double>(std::string("ippsNorm_") + norm + "_64fc64f", z),
                                     none = valueOf<double>(std::string("ippsNormDiff_") + norm + "_64f", a, a);
                        EXPECT_TRUE(same(real, std::fabs(x))) << norm << real;
                        EXPECT_TRUE(same(of, std::fabs(x))) << norm << of;
                        EXPECT_TRUE(std::isnan(none)) << norm << none;
                    }
                }
    });
}

TEST(Mean, OfNumbersWhoseSumOverflows)
{
    inEveryVariant([] {
        const double most = std::numeric_limits<double>::max();
        for (size_t n : {2u, 64u, 2048u}) {
            EXPECT_EQ(valueOf<double>("ippsMean_64f", std::vector<double>(n, most)), most) << n;
            const Ipp64fc z = valueOf<Ipp64fc>("ippsMean_64fc", std::vector<Ipp64fc>(n, {-most, 1}));
            EXPECT_TRUE(z.re == -most && z.im == 1) << n;
        }
        const std::vector<double> opposite = {most, most, -most, -most};
        EXPECT_EQ(valueOf<double>("ippsMean_64f", opposite), 0);
        EXPECT_EQ(valueOf<double>("ippsMean_64f", std::vector<double>{most, infinity}), infinity);
        EXPECT_TRUE(std::isnan(valueOf<double>("ippsMean_64f", std::vector<double>{most, infinity, -infinity})));
    });
}

TEST(Normalize, DividesWhatIsLess)
{
    inEveryVariant([] {
        for (size_t n : {1u, 2u, 3u, 9u, 100u}) {
            const auto x = numbers(n, 3);
            const auto z = complexNumbers(n, 4);
            std::vector<double> d(n);
            std::vector<Ipp64fc> w(n);
            const double by = 3.7, less = 0.3;
            const Ipp64fc complexLess = {0.3, -11};
            const int count = static_cast<int>(n);
            EXPECT_EQ(call("ippsNormalize_64f", (const void*)x.data(), (void*)d.data(), count, less, by), ippStsNoErr);
            EXPECT_EQ(call("ippsNormalize_64fc", (const void*)z.data(), (void*)w.data(), count, complexLess, by),
                      ippStsNoErr);
            for (size_t i = 0; i < n; ++i) {
                EXPECT_TRUE(same(d[i], quotient(difference(x[i], less), by))) << x[i];
                const Ipp64fc rest = difference(z[i], complexLess);
                EXPECT_TRUE(same(w[i], {quotient(rest.re, by), quotient(rest.im, by)}));
            }
        }
    });
}
