#include "spectrum.h"
#include <algorithm>
#include <cmath>
#include <complex>
#include <utility>

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double hannNoiseBandwidth = 1.5; // bins
using Complex = std::complex<double>;

// Discrete Fourier transform in place, radix 2, decimation in time; w[k] = exp(-2 pi i k / n), k < n / 2.
void transform(std::vector<Complex>& x, const std::vector<Complex>& w)
{
    const std::size_t n = x.size();
    for (std::size_t i = 1, j = 0; i < n; ++i) { // bit-reversed order
        std::size_t bit = n / 2;
        for (; j & bit; bit /= 2) j ^= bit;
        j ^= bit;
        if (i < j) std::swap(x[i], x[j]);
    }
    for (std::size_t half = 1; half < n; half *= 2)
        for (std::size_t start = 0; start < n; start += 2 * half)
            for (std::size_t k = 0; k < half; ++k) {
                const Complex a = x[start + k], b = x[start + k + half] * w[k * (n / 2 / half)];
                x[start + k] = a + b;
                x[start + k + half] = a - b;
            }
}

// About 12 Hz a bin; short enough for any rate and recording.
int chooseLength(double rate)
{
    int n = 256;
    while (n < 65536 && rate / n > 12) n *= 2;
    return n;
}

} // namespace

Spectrum::Spectrum(const Wav& wav) : length_(chooseLength(wav.rate)), width_(double(wav.rate) / length_)
{
    const std::size_t n = length_;
    std::vector<Complex> w(n / 2), x(n);
    std::vector<double> window(n), power(n / 2 + 1);
    for (std::size_t k = 0; k < n / 2; ++k) w[k] = std::polar(1.0, -2 * pi * double(k) / double(n));
    for (std::size_t i = 0; i < n; ++i) window[i] = 0.5 - 0.5 * std::cos(2 * pi * double(i) / double(n));

    // A recording shorter than one window is filled up with silence.
    const std::size_t frames = wav.frames(), channels = wav.channels;
    std::size_t windows = 0;
    for (std::size_t start = 0; start == 0 || start + n <= frames; start += n / 2)
        for (std::size_t c = 0; c < channels; ++c, ++windows) {
            for (std::size_t i = 0; i < n; ++i)
                x[i] = start + i < frames ? window[i] * wav.samples[(start + i) * channels + c] / 32768 : 0;
            transform(x, w);
            for (std::size_t k = 0; k <= n / 2; ++k) power[k] += std::norm(x[k]);
        }

    // Half of the window's sum is what a full-scale sine gives in its bin.
    const double fullScale = double(n) / 4 * (double(n) / 4) * double(windows);
    cumulative_.assign(power.size() + 1, 0.0);
    for (std::size_t k = 0; k < power.size(); ++k) cumulative_[k + 1] = cumulative_[k] + power[k] / fullScale;
}

double Spectrum::upTo(double frequency) const
{
    const double bins = std::clamp(frequency / width_ + 0.5, 0.0, double(cumulative_.size() - 1)); // centred on bins
    const auto k = std::min(static_cast<std::size_t>(bins), cumulative_.size() - 2);
    return cumulative_[k] + (bins - double(k)) * (cumulative_[k + 1] - cumulative_[k]);
}

double Spectrum::total(double low, double high) const { return (upTo(high) - upTo(low)) / hannNoiseBandwidth; }

double Spectrum::mean(double low, double high) const { return (upTo(high) - upTo(low)) / ((high - low) / width_); }

double Spectrum::roundingNoise() const
{
    constexpr double step = 1.0 / 32768, sinePower = 0.5;
    return step * step / 12 / sinePower * hannNoiseBandwidth / (length_ / 2.0);
}

double decibels(double power) { return 10 * std::log10(std::max(power, 1e-30)); }
