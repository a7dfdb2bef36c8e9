// Phases far behind the elements that a test can ask for: the plain body's own code, at indexes up to the largest.
#include "oracle/circle.h"
#include "signal/processing/generators/jaehne.h"
#include "signal/processing/generators/tone_angle.h"

using namespace sig5d::px;

namespace {

constexpr int64_t mostElements = 0x7FFFFFFF;

double error(Complex<sig5d::f64> got, oracle::CosSin right)
{
    return static_cast<double>(std::max(std::fabs(got.re - right.cos), std::fabs(got.im - right.sin))) * 0x1p53;
}

} // namespace

TEST(FarElements, ToneAnglesAreExact)
{
    double worst = 0;
    const auto full = support::Wide(6.283185307179586) + support::Wide(2.4492935982947064e-16);
    std::mt19937_64 random(1);
    for (int attempt = 0; attempt < 20000; ++attempt) {
        const double frequency = std::ldexp(static_cast<double>(random() >> 11), -53 - static_cast<int>(random() % 20)),
                     phase = static_cast<double>(random() >> 11) * 0x1p-53 * 6.28;
        const int64_t i = attempt < 10000 ? mostElements - attempt : static_cast<int64_t>(random() >> 33);
        const ToneAngle angle(frequency, phase);
        const support::Wide part =
            oracle::fraction(support::Wide(frequency) * support::Wide(i) + support::Wide(phase) / full);
        worst = std::max(worst, error(cos_sin(angle(static_cast<double>(i))), oracle::ofTurn(part)));
    }
    std::printf("largest error of a tone's sine or cosine: %.3f * 2^-53\n", worst);
    EXPECT_LE(worst, 1);
}

TEST(FarElements, JaehneSquaresAreExact)
{
    double worst = 0;
    for (int n : {(1 << 26) + 1, 0x7FFFFFFF, 0x7FFFFFFE, 0x5A5A5A5B}) {
        Jaehne signal(1.0, n);
        for (int64_t i = 0; i < n; i += elementsAtOnce, signal.nextStretch()) {
            if (i / elementsAtOnce % 5003 != 0) continue;
            for (int64_t k : {0, 1, 77, 127}) {
                const int64_t at = i + k;
                const auto units = static_cast<int64_t>(static_cast<uint64_t>(at) * static_cast<uint64_t>(at) %
                                                        (4 * static_cast<uint64_t>(n)));
                const long double right = oracle::ofTurn(units, 4 * int64_t{n}).sin;
                worst = std::max(
                    worst, support::ulps(signal.second(signal.first(static_cast<double>(k))), support::Wide(right)));
            }
        }
    }
    std::printf("largest error of a long Jaehne signal: %.3f ulp\n", worst);
    EXPECT_LE(worst, 2.5);
}
