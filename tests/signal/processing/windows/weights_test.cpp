// Weights of windows too long to be tried: the plain body's own code, at places anywhere in them.
#include "oracle/circle.h"
#include "signal/processing/windows/cosines.h"

using sig5d::px::CosineTable;
using sig5d::px::CosineWeights;
using sig5d::px::mostWeights;

template <int terms> static void copy(const sig5d::px::CosineBlock<terms>& block, double (&w)[mostWeights])
{
    for (size_t i = 0; i < mostWeights; ++i) w[i] = block.at(i);
}
static void copy(const sig5d::px::StoredWeights&, double (&)[mostWeights]) { ADD_FAILURE() << "not in blocks"; }

TEST(LongWindows, CosineWeightsStayAsExact)
{
    double worst = 0;
    for (const size_t n : {size_t{1} << 20, size_t{1} << 27, (size_t{1} << 27) + 1, (size_t{1} << 31) - 1}) {
        const double alpha = -0.16;
        CosineTable<1> sines, lessThanOnes;
        CosineTable<2> sines2, lessThanOnes2;
        CosineWeights<1> hann(n, {0.5, 0.0}, {0.5}, sines, lessThanOnes);
        CosineWeights<2> blackman(n, {(alpha + 1) / 2, 0.0}, {0.5, alpha / 2}, sines2, lessThanOnes2);
        for (size_t part = 0; part < 64; ++part) {
            const size_t first = n / 2 / 64 * part / 2048 * 2048; // where starts are computed anew
            double v[mostWeights], w[mostWeights];
            hann.stretch(first, mostWeights, [&](const auto& all) { copy(all, v); });
            blackman.stretch(first, mostWeights, [&](const auto& all) { copy(all, w); });
            for (size_t i = 0; i < mostWeights; ++i) {
                const auto at = static_cast<int64_t>(first + i), turn = static_cast<int64_t>(n - 1);
                const long double c = oracle::ofTurn(at, turn).cos, c2 = oracle::ofTurn(2 * at, turn).cos;
                const long double a = alpha, right = (a + 1) / 2 - c / 2 - a / 2 * c2;
                worst = std::max(worst, static_cast<double>(std::fabs(v[i] - (0.5L - c / 2))) * 0x1p52);
                worst = std::max(worst, static_cast<double>(std::fabs(w[i] - right)) * 0x1p52);
            }
        }
    }
    std::printf("largest error of a long window's weight: %.3f * 2^-52\n", worst);
    EXPECT_LE(worst, 0.6);
}
