// Windows against their formulas in extended precision, and what all of them have in common.
#include "oracle/circle.h"

using namespace support;

namespace {

constexpr double eps = 0x1p-52;

struct Window {
    std::string name;
    int shortest;
    bool hasAlpha;
    bool copiesMiddle;
};
const Window windows[] = {{"Bartlett", 3, false, true},     {"Hann", 3, false, true},
                          {"Hamming", 3, false, true},      {"Blackman", 3, true, false},
                          {"BlackmanStd", 3, false, false}, {"BlackmanOpt", 4, false, false},
                          {"Kaiser", 1, true, true}};
const std::vector<int> lengths = {3,   4,    5,    7,    8,    15,   16,   17,   31,   32,   33,  34,
                                  35,  36,   63,   64,   65,   66,   100,  255,  256,  257,  258, 259,
                                  515, 1000, 1023, 1024, 2049, 4095, 4097, 4099, 9001, 20000};

template <class T> IppStatus apply(const Window& w, const T* x, T* d, int n, double alpha)
{
    const std::string name = "ippsWin" + w.name + (sizeof(T) == 8 ? "_64f" : "_64fc");
    if (w.hasAlpha) return call(name, (const void*)x, (void*)d, n, alpha);
    return call(name, (const void*)x, (void*)d, n);
}
template <class T> IppStatus applyInPlace(const Window& w, T* d, int n, double alpha)
{
    const std::string name = "ippsWin" + w.name + (sizeof(T) == 8 ? "_64f_I" : "_64fc_I");
    if (w.hasAlpha) return call(name, (void*)d, n, alpha);
    return call(name, (void*)d, n);
}

std::vector<double> weights(const std::string& name, int n, double alpha = 0)
{
    std::vector<double> one(static_cast<size_t>(n), 1.0), w(one.size());
    const Window* window =
        std::find_if(std::begin(windows), std::end(windows), [&](auto& x) { return x.name == name; });
    EXPECT_EQ(apply(*window, one.data(), w.data(), n, alpha), ippStsNoErr) << name << ' ' << n;
    return w;
}

using Formula = long double (*)(int i, int n, double alpha);
long double raisedCosine(long double mean, long double amplitude, int i, int n)
{
    return mean - amplitude * oracle::ofTurn(i, n - 1).cos;
}
long double blackman(int i, int n, long double alpha)
{
    return (alpha + 1) / 2 - oracle::ofTurn(i, n - 1).cos / 2 - alpha / 2 * oracle::ofTurn(2LL * i, n - 1).cos;
}

// The largest error of all weights, in units of eps * (1 + |alpha|).
double largestError(const std::string& name, int n, double alpha, Formula formula)
{
    const std::vector<double> w = weights(name, n, alpha);
    double worst = 0;
    for (int i = 0; i <= (n - 1) / 2; ++i) {
        const long double error = w[static_cast<size_t>(i)] - formula(i, n, alpha);
        worst = std::max(worst, static_cast<double>(std::fabs(error)) / (eps * (1 + std::fabs(alpha))));
        EXPECT_EQ(bitsOf(w[static_cast<size_t>(i)]), bitsOf(w[static_cast<size_t>(n - 1 - i)])) << name << ' ' << n;
    }
    return worst;
}

double worstOf(const std::string& name, double alpha, Formula formula)
{
    double worst = 0;
    std::vector<int> all = lengths;
    for (int n = 4; n < 300; ++n) all.push_back(n);
    for (int n : all)
        if (n > 3) worst = std::max(worst, largestError(name, n, alpha, formula));
    return worst;
}

// Of the approximations that the Kaiser window is defined by.
long double bessel(long double x)
{
    if (x < 4) {
        const long double t = x / 4 * (x / 4), c[] = {0.0008267816, 0.0075942968, 0.0713758187, 0.4443189384,
                                                      1.777809969,  3.9999959541, 4.0000001935, 0.9999999985};
        long double sum = 0;
        for (long double a : c) sum = sum * t + a;
        return sum;
    }
    const long double u = 4 / x, c[] = {0.0051246015,  -0.0366694767, 0.1113315511,  -0.1867783276, 0.1895476618,
                                        -0.1209940805, 0.0495811118,  -0.0128314822, 0.0022585672,  0.00026,
                                        0.0017623668,  0.0124667783,  0.3989422809};
    long double sum = 0;
    for (long double a : c) sum = sum * u + a;
    return sum * std::exp(x) / std::sqrt(x);
}

} // namespace

TEST(Windows, CosineWeightsAreWithinEps)
{
    double worst = 0;
    inEveryVariant([&] {
        const auto see = [&](double error) { worst = std::max(worst, error); };
        see(worstOf("Hann", 0, [](int i, int n, double) { return raisedCosine(0.5L, 0.5L, i, n); }));
        see(worstOf("Hamming", 0, [](int i, int n, double) { return raisedCosine(0.54L, 0.46L, i, n); }));
        see(worstOf("BlackmanStd", 0, [](int i, int n, double) { return blackman(i, n, -0.16L); }));
        see(worstOf("BlackmanOpt", 0, [](int i, int n, double) {
            const long double c = oracle::ofTurn(1, n - 1).cos;
            return blackman(i, n, -1 / (2 + 2 * c));
        }));
    });
    std::printf("largest error of a cosine window's weight: %.3f * 2^-52\n", worst);
    EXPECT_LE(worst, 1);
}

TEST(Windows, BlackmanWeightsAreWithinEpsOfAnyAlpha)
{
    double worst = 0;
    inEveryVariant([&] {
        for (double alpha : {0.0, 1.0, -0.16, -0.3, 0.37, 1.0000000000000002, -1.1, 1.49, 3.3, -77.7, 1.05e6, -1e15})
            worst =
                std::max(worst, worstOf("Blackman", alpha, [](int i, int n, double a) { return blackman(i, n, a); }));
    });
    std::printf("largest error of a Blackman window's weight: %.3f * 2^-52 (1 + |alpha|)\n", worst);
    EXPECT_LE(worst, 1);
}

TEST(Windows, KaiserWeightsAreNearTheirApproximations)
{
    double worst = 0;
    inEveryVariant([&] {
        for (int n : lengths)
            for (double x : {1e-9, 0.7, 3.99, 4.01, 8.5, 60.0, 307.0}) {
                const double alpha = 2 * x / (n - 1);
                const std::vector<double> w = weights("Kaiser", n, -alpha);
                for (int i = 0; i < n / 2; ++i) {
                    const double m = i * static_cast<double>(n - 1 - i), y = alpha * std::sqrt(m),
                                 top = alpha * (n - 1) / 2;
                    if ((y < 4) != (alpha * std::sqrt(static_cast<long double>(m)) < 4)) continue; // either is right
                    const long double right = bessel(alpha * std::sqrt(static_cast<long double>(m))) /
                                              bessel(static_cast<long double>(alpha) * (n - 1) / 2);
                    const double error = static_cast<double>(std::fabs(w[static_cast<size_t>(i)] / right - 1));
                    worst = std::max(worst, error / (eps * (4 + 2 * top)));
                    ASSERT_EQ(bitsOf(w[static_cast<size_t>(i)]), bitsOf(w[static_cast<size_t>(n - 1 - i)]));
                }
            }
    });
    std::printf("largest relative error of a Kaiser window's weight: %.3f * 2^-52 (4 + 2x)\n", worst);
    EXPECT_LE(worst, 1);
}

TEST(Windows, BartlettIsARunningSum)
{
    inEveryVariant([] {
        for (int n : lengths) {
            const std::vector<double> w = weights("Bartlett", n);
            double running = 0;
            for (int i = 0; i < n / 2; ++i, running += 2.0 / (n - 1)) {
                ASSERT_EQ(bitsOf(w[static_cast<size_t>(i)]), bitsOf(running)) << n << ' ' << i;
                ASSERT_EQ(bitsOf(w[static_cast<size_t>(n - 1 - i)]), bitsOf(running)) << n << ' ' << i;
            }
            if (n % 2) {
                ASSERT_EQ(w[static_cast<size_t>(n / 2)], 1);
            }
        }
    });
}

// Every element, of either part, times the weight; the middle one as it is where the window copies it.
TEST(Windows, MultiplyRealAndComplexElementsInPlaceOrNot)
{
    inEveryVariant([] {
        for (const Window& window : windows)
            for (int n : lengths) {
                if (n < window.shortest || (n == 3 && window.name != "Kaiser")) continue;
                const double alpha = 9.1 / n;
                const std::vector<double> w = weights(window.name, n, alpha), x = numbers(w.size(), 5, false);
                const std::vector<Ipp64fc> z = complexNumbers(w.size(), 6, false);
                std::vector<double> d(w.size()), inPlace = x;
                std::vector<Ipp64fc> e(w.size()), inPlaceToo = z;
                EXPECT_EQ(apply(window, x.data(), d.data(), n, alpha), ippStsNoErr);
                EXPECT_EQ(applyInPlace(window, inPlace.data(), n, alpha), ippStsNoErr);
                EXPECT_EQ(apply(window, z.data(), e.data(), n, alpha), ippStsNoErr);
                EXPECT_EQ(applyInPlace(window, inPlaceToo.data(), n, alpha), ippStsNoErr);
                for (size_t i = 0; i < w.size(); ++i) {
                    const double by = w[i];
                    if (n % 2 && i == w.size() / 2) {
                        EXPECT_EQ(by, 1) << window.name << ' ' << n;
                    }
                    ASSERT_TRUE(same(d[i], x[i] * by) && same(inPlace[i], x[i] * by))
                        << window.name << ' ' << n << ' ' << i;
                    const Ipp64fc right = {z[i].re * by, z[i].im * by};
                    ASSERT_TRUE(same(e[i], right) && same(inPlaceToo[i], right)) << window.name << ' ' << n << ' ' << i;
                }
            }
    });
}

// Zeros that are set, not multiplied, and ends and middles that are copied: NaN comes through where it may.
TEST(Windows, ShortOnes)
{
    inEveryVariant([] {
        const double x[] = {-5, 7, quietNaN};
        for (const Window& window : windows) {
            if (window.name == "BlackmanOpt") {
                EXPECT_EQ(apply<double>(window, nullptr, nullptr, 3, 0), ippStsSizeErr);
                EXPECT_EQ(apply<double>(window, nullptr, nullptr, 4, 0), ippStsNullPtrErr);
                continue;
            }
            double d[] = {1, 1, 1};
            ASSERT_EQ(apply(window, x, d, 3, quietNaN), ippStsNoErr) << window.name;
            EXPECT_EQ(d[1], 7) << window.name;
            if (window.name == "Bartlett" || window.name.rfind("Blackman", 0) == 0) {
                EXPECT_EQ(bitsOf(d[0]), 0u) << window.name;
                EXPECT_EQ(bitsOf(d[2]), 0u) << window.name;
            } else if (window.name == "Hamming") {
                EXPECT_NEAR(d[0], -0.4, 1e-15);
            } else {
                EXPECT_TRUE(window.hasAlpha ? std::isnan(d[0]) : d[0] == 0) << window.name;
            }
        }
        for (int n : {4, 5, 40, 41}) {
            const std::vector<double> kaiser = weights("Kaiser", n, quietNaN),
                                      blackmans = weights("Blackman", n, quietNaN);
            for (int i = 0; i < n; ++i) {
                const bool middle = 2 * i == n - 1;
                EXPECT_EQ(std::isnan(kaiser[static_cast<size_t>(i)]), !middle) << n << ' ' << i;
                EXPECT_TRUE(std::isnan(blackmans[static_cast<size_t>(i)])) << n << ' ' << i;
            }
        }
    });
}

TEST(Windows, KaiserLimits)
{
    inEveryVariant([] {
        for (int n : {2, 3, 100, 5001}) {
            for (double w : weights("Kaiser", n, 0)) ASSERT_EQ(w, 1);
            EXPECT_EQ(weights("Kaiser", n, 3.0 / n), weights("Kaiser", n, -3.0 / n));
            const double most = 2 * 308.0 / (n - 1), above = most * (1 + 1e-14), below = most * (1 - 1e-14);
            std::vector<double> x(static_cast<size_t>(n), 3.0);
            EXPECT_EQ(call("ippsWinKaiser_64f_I", (void*)x.data(), n, -above), ippStsHugeWinErr);
            EXPECT_EQ(x, std::vector<double>(x.size(), 3.0));
            EXPECT_EQ(call("ippsWinKaiser_64f_I", (void*)x.data(), n, below), ippStsNoErr);
        }
        for (double alpha : {1e300, quietNaN, infinity, 5.0}) {
            double x = -0.0;
            EXPECT_EQ(call("ippsWinKaiser_64f_I", (void*)&x, 1, alpha), ippStsNoErr);
            EXPECT_EQ(bitsOf(x), bitsOf(-0.0));
        }
    });
}
