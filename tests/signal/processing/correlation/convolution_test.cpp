#include "signal/processing/correlation/calls.h"
#include <cmath>

using namespace correlation;
namespace {

const int lengths[] = {1, 2, 3, 7, 8, 20, 33, 64, 100, 257};

TEST(Convolution, ByDefinitionEqualsTheNamedOrderToTheBit)
{
    std::mt19937 g(5);
    int offset = 0;
    for (const int n : lengths)
        for (const int m : lengths) {
            auto a = noise<Ipp64f>(g, n), b = noise<Ipp64f>(g, m);
            if (n > 6) a[n / 2] = HUGE_VAL; // reaches the results that it has part in
            if (m > 6) b[m - 1] = -HUGE_VAL;
            const auto expected = oracle::convolution(a, b);
            for (const auto& v : support::supported()) {
                support::force(v);
                ASSERT_EQ(difference(convolve(a, b, 1, offset += 5), expected), -1) << v.code << " " << n << " " << m;
            }
        }
}

TEST(Convolution, ByTransformIsWithinItsBound)
{
    std::mt19937 g(6);
    double worst = 0;
    for (const auto& [n, m] : {std::pair(1, 1),
                               {1, 9},
                               {40, 3},
                               {64, 65},
                               {100, 100},
                               {1000, 150},
                               {77, 4000},
                               {1024, 1024},
                               {513, 512},
                               {3000, 2900}}) {
        const auto a = noise<Ipp64f>(g, n), b = noise<Ipp64f>(g, m);
        const auto exact = oracle::convolution(oracle::wide(a), oracle::wide(b));
        double aSum = 0, bSum = 0;
        for (const double x : a) aSum += x * x;
        for (const double x : b) bSum += x * x;
        const double bound = 8 * 0x1p-52 * std::sqrt(std::log2(2.0 * std::min(n, m)) * aSum * bSum);
        std::vector<Ipp64f> first;
        for (const auto& v : support::supported()) {
            support::force(v);
            const auto y = convolve(a, b, 2), exchanged = convolve(b, a, 2);
            for (size_t i = 0; i < y.size(); ++i) {
                const double error = static_cast<double>(std::abs(y[i] - exact[i]));
                ASSERT_LE(error, bound) << v.code << " " << n << " " << m;
                worst = std::max(worst, error / bound);
            }
            if (n != m) {
                ASSERT_EQ(difference(y, exchanged), -1) << v.code << " " << n << " " << m;
            }
            if (first.empty()) first = y;
            ASSERT_EQ(difference(y, first), -1) << v.code << " " << n << " " << m;
        }
    }
    std::printf("by transform: %.3f of the bound at most\n", worst);
}

TEST(Convolution, ChoosesByLengths)
{
    std::mt19937 g(7);
    const auto a = noise<Ipp64f>(g, 3000), few = noise<Ipp64f>(g, 20), many = noise<Ipp64f>(g, 1500);
    EXPECT_EQ(difference(convolve(a, few, 0), convolve(a, few, 1)), -1);
    EXPECT_EQ(difference(convolve(a, many, 0), convolve(a, many, 2)), -1);
    EXPECT_NE(difference(convolve(a, many, 0), convolve(a, many, 1)), -1);
}

} // namespace
