#include "fir_design.h"
#include <cmath>
#include <cstddef>

namespace {

constexpr double pi = 3.14159265358979323846;

// The modified Bessel function of order 0, from its power series.
double besselI0(double x)
{
    double sum = 1, term = 1;
    for (int k = 1; term > 1e-17 * sum; ++k) {
        term *= (x / (2 * k)) * (x / (2 * k));
        sum += term;
    }
    return sum;
}

// The impulse response of an ideal low-pass, t samples from its centre.
double idealLowPass(double edge, int t) { return t == 0 ? 2 * edge : std::sin(2 * pi * edge * t) / (pi * t); }

} // namespace

// Kaiser's formulas for length and shape (Oppenheim, Schafer: Discrete-Time Signal Processing, 7.6), which hold for
// attenuations above 50 dB.
std::vector<double> designTaps(const Band& band, double gain, int delayStep)
{
    const double wanted = (band.attenuation - 7.95) / (2.285 * 2 * pi * band.transition) / 2;
    const int delay = static_cast<int>(std::ceil(wanted / delayStep)) * delayStep;
    const double beta = 0.1102 * (band.attenuation - 8.7);
    std::vector<double> taps(2 * static_cast<std::size_t>(delay) + 1);
    for (int t = 0; t <= delay; ++t) {
        const double x = static_cast<double>(t) / delay;
        const double window = besselI0(beta * std::sqrt(1 - x * x)) / besselI0(beta);
        const double ideal = idealLowPass(band.high, t) - idealLowPass(band.low, t);
        taps[delay - t] = taps[delay + t] = gain * ideal * window;
    }
    return taps;
}

double gainAt(const std::vector<double>& taps, double frequency)
{
    // taps[centre] + sum of 2 taps[centre+t] cos(t w), by Clenshaw's recurrence.
    const std::size_t centre = taps.size() / 2;
    const double c = std::cos(2 * pi * frequency);
    double b1 = 0, b2 = 0;
    for (std::size_t t = centre; t >= 1; --t) {
        const double b = 2 * taps[centre + t] + 2 * c * b1 - b2;
        b2 = b1;
        b1 = b;
    }
    return std::fabs(taps[centre] + c * b1 - b2);
}
