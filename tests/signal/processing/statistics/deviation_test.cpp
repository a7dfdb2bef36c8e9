// The standard deviation against one in 113 bits, whatever the data.
#include "signal/processing/statistics/arrays.h"

using namespace statistics;

namespace {

struct Exact {
    Wide mean = 0, deviation = 0;
    explicit Exact(const std::vector<double>& x)
    {
        const Wide n = static_cast<Wide>(x.size());
        const Wide first = x[0];
        Wide rest = 0;
        for (double v : x) rest += (Wide(v) - first) / n;
        mean = first + rest;
        Wide squares = 0;
        for (double v : x) {
            const Wide d = Wide(v) - mean;
            squares += d * d / (n - 1);
        }
        deviation = wideRoot(squares);
    }
};

double worst = 0;

// The distance from the exact deviation, in units of the last place times 1 + |mean|/deviation.
void check(const std::vector<double>& x)
{
    const Exact exact(x);
    double mean = 7, deviation = 7, alone = 7;
    const int n = static_cast<int>(x.size());
    ASSERT_EQ(call("ippsMeanStdDev_64f", (const void*)x.data(), n, (void*)&mean, (void*)&deviation), ippStsNoErr);
    ASSERT_EQ(call("ippsStdDev_64f", (const void*)x.data(), n, (void*)&alone), ippStsNoErr);
    EXPECT_EQ(bitsOf(mean), bitsOf(valueOf<double>("ippsMean_64f", x)));
    EXPECT_EQ(bitsOf(alone), bitsOf(deviation));
    if (exact.deviation == 0) {
        EXPECT_EQ(bitsOf(deviation), 0u);
        return;
    }
    const Wide size = exact.mean < 0 ? -exact.mean : exact.mean;
    const double allowed = 1 + static_cast<double>(size / exact.deviation);
    const double error = ulps(deviation, exact.deviation) / allowed;
    worst = std::max(worst, error);
    EXPECT_LE(error, 8) << x.size() << ": " << deviation << " for " << static_cast<double>(exact.deviation);
}

} // namespace

TEST(Deviation, OfAnyData)
{
    inEveryVariant([] {
        for (size_t n : {2u, 3u, 10u, 33u, 1000u, 1024u, 1025u, 4096u, 9999u, 100000u}) {
            SCOPED_TRACE(n);
            const auto noise = fractions(n, static_cast<unsigned>(n));
            const auto with = [&](auto f) {
                std::vector<double> x(n);
                for (size_t i = 0; i < n; ++i) x[i] = f(i);
                check(x);
            };
            check(noise);
            for (double offset : {1.0, 1e4, 1e8, 1e12, 1e15, -1e15}) with([&](size_t i) { return offset + noise[i]; });
            for (double outlier : {1e3, -1e8, 1e16, 1e30, 1e200})
                for (size_t at : {size_t{0}, n / 2, n - 1}) {
                    with([&](size_t i) { return i == at ? outlier : noise[i]; });
                    with([&](size_t i) { return i == at ? outlier : 0.1; });
                }
            with([](size_t i) { return i % 2 ? 0.1 : -0.1; }); // every rounding in one direction
            with([](size_t i) { return i % 3 ? 0.1 : 0.7; });
            with([](size_t i) { return i < 1500 ? 1e10 + 0.1 : 1e10 - 0.1; }); // blocks of equal elements
            with([](size_t i) { return static_cast<double>(i); });             // means far apart
            with([](size_t i) { return 1e9 + 1e-3 * static_cast<double>(i * i % 97); });
            with([](size_t i) { return i ? 1 : 1 + 0x1p-52; }); // the least spread there is
            with([&](size_t i) { return 1 + 0x1p-52 * static_cast<double>(i % 5); });
            for (int exponent : {-1060, -700, -400, 505, 520, 700, 1010}) {
                with([&](size_t i) { return std::ldexp(noise[i], exponent); });
                with([&](size_t i) { return std::ldexp(3 + noise[i], exponent); });
            }
            for (double value : {0.0, -0.0, 0.1, 1.0 / 3, 1e-310, -1e-200, 3e8, 1e300, -1.7e308})
                with([&](size_t) { return value; });
        }
    });
    std::printf("at most %.2f of 8 units of the last place\n", worst);
}

TEST(Deviation, OfInfinitiesAndNaN)
{
    inEveryVariant([] {
        for (double x : {infinity, -infinity, quietNaN})
            for (size_t n : {2u, 50u, 3000u}) {
                std::vector<double> a(n, 1.5);
                a[n / 2] = x;
                double mean = 7, deviation = 7;
                ASSERT_EQ(call("ippsMeanStdDev_64f", (const void*)a.data(), static_cast<int>(n), (void*)&mean,
                               (void*)&deviation),
                          ippStsNoErr);
                EXPECT_TRUE(same(mean, x)) << mean;
                EXPECT_EQ(bitsOf(deviation), 0u) << x;
            }
    });
}
