#include "spectrum_svg.h"
#include "fir_design.h"
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <functional>
#include <stdexcept>

namespace {

constexpr double width = 960, height = 560;                       // of the picture
constexpr double left = 72, right = 936, top = 112, bottom = 496; // of the plot in it
constexpr double smoothing = 1.0 / 24; // octaves to either side of a plotted frequency; at least one bin

constexpr const char* style = R"(<style>
text{font-family:"Helvetica Neue",Helvetica,Arial,"Liberation Sans","DejaVu Sans",sans-serif;fill:#222;font-size:14px}
.title{font-size:20px;font-weight:bold}.note{fill:#555;font-size:13px}
.x{text-anchor:middle}.y{text-anchor:end}
.grid{stroke:#d9dde1}.fine{stroke:#eef0f2}.frame{fill:none;stroke:#555}
polyline,.key{fill:none;stroke-width:2;stroke-linejoin:round}
.floor{stroke:#8a949e;stroke-dasharray:2 3}.before{stroke:#8a949e}.after{stroke:#0a5ea8}.filter{stroke:#d35400;stroke-dasharray:7 4}
</style>
)";

std::string format(const char* pattern, auto... values)
{
    char text[256];
    std::snprintf(text, sizeof text, pattern, values...);
    return text;
}

std::string escaped(const std::string& text)
{
    std::string out;
    for (const char c : text) out += c == '&' ? "&amp;" : c == '<' ? "&lt;" : c == '>' ? "&gt;" : std::string(1, c);
    return out;
}

// The heading has room for some forty characters of a name; a longer one (in UTF-8) loses its middle.
std::string elided(const std::string& name)
{
    std::vector<std::size_t> characters;
    for (std::size_t i = 0; i < name.size(); ++i)
        if ((name[i] & 0xC0) != 0x80) characters.push_back(i);
    if (characters.size() <= 36) return name;
    return name.substr(0, characters[20]) + "\u2026" + name.substr(characters[characters.size() - 15]);
}

std::string textAt(double x, double y, const char* kind, const std::string& text)
{
    return format("<text x='%.1f' y='%.1f' class='%s'>", x, y, kind) + escaped(text) + "</text>\n";
}

std::string lineFrom(double x1, double y1, double x2, double y2, const char* kind)
{
    return format("<line x1='%.1f' y1='%.1f' x2='%.1f' y2='%.1f' class='%s'/>\n", x1, y1, x2, y2, kind);
}

// 20, 50, 100, ... with k for a thousand and M for a million.
std::string frequencyLabel(double f)
{
    if (f >= 1e6) return format("%gM", f / 1e6);
    return f >= 1e3 ? format("%gk", f / 1e3) : format("%g", f);
}

// Frequency on a logarithmic axis, decibels on a linear one.
struct Axes {
    double lowest, highest; // Hz
    double floor, ceiling;  // dB
    double x(double f) const { return left + (right - left) * std::log(f / lowest) / std::log(highest / lowest); }
    double y(double dB) const { return bottom - (bottom - top) * (dB - floor) / (ceiling - floor); }
    double frequencyAt(double x) const { return lowest * std::pow(highest / lowest, (x - left) / (right - left)); }

    std::string drawn() const
    {
        std::string svg;
        for (double decade = std::pow(10, std::floor(std::log10(lowest))); decade < highest; decade *= 10)
            for (int digit = 1; digit <= 9; ++digit) {
                const double f = digit * decade;
                if (f < lowest * 0.999 || f > highest * 1.001) continue;
                const bool labelled = digit == 1 || digit == 2 || digit == 5;
                svg += lineFrom(x(f), top, x(f), bottom, labelled ? "grid" : "fine");
                if (labelled) svg += textAt(x(f), bottom + 20, "x", frequencyLabel(f));
            }
        for (double dB = floor; dB <= ceiling; dB += 20) {
            svg += lineFrom(left, y(dB), right, y(dB), "grid");
            svg += textAt(left - 8, y(dB) + 5, "y", format("%.0f", dB));
        }
        svg += textAt((left + right) / 2, bottom + 46, "x", "Frequency (Hz)");
        return svg + format("<text transform='translate(22 %.1f) rotate(-90)' class='x'>Level, gain (dB)</text>\n",
                            (top + bottom) / 2);
    }

    // One point a pixel; `level` gives dB over frequency.
    std::string curve(const char* kind, const std::function<double(double)>& level) const
    {
        std::string svg = format("<polyline class='%s' points='", kind);
        for (double px = left; px <= right; px += 1) {
            const double dB = std::clamp(level(frequencyAt(px)), floor - 20, ceiling + 20);
            svg += format("%.0f,%.1f ", px, y(dB));
        }
        return svg + "'/>\n";
    }
};

// Mean over a twelfth of an octave, so that the upper octaves are not a thicket.
double smoothedLevel(const Spectrum& spectrum, double f)
{
    const double bin = spectrum.binWidth();
    return decibels(
        spectrum.mean(std::min(f * std::exp2(-smoothing), f - bin), std::max(f * std::exp2(smoothing), f + bin)));
}

// The mean square of the gain over the same width.
double smoothedGain(const std::vector<double>& taps, double f, double rate)
{
    constexpr int points = 16;
    double sum = 0;
    for (int i = 0; i < points; ++i) {
        const double octaves = smoothing * (2 * (i + 0.5) / points - 1);
        const double gain = gainAt(taps, std::min(f * std::exp2(octaves) / rate, 0.5));
        sum += gain * gain;
    }
    return decibels(sum / points);
}

std::string legend(double x, const char* kind, const std::string& text)
{
    return lineFrom(x, 88, x + 34, 88, (std::string("key ") + kind).c_str()) + textAt(x + 42, 93, "", text);
}

} // namespace

void writeSvg(const std::filesystem::path& file, const SpectrumPicture& p)
{
    Axes axes = {p.rate / 2400, p.rate / 2, 0, 0};
    double loudest = 0, softest = 0; // the filter's gain tops at 0 dB
    for (double px = left; px <= right; px += 4) {
        const double f = axes.frequencyAt(px);
        const double a = smoothedLevel(p.before, f), b = smoothedLevel(p.after, f);
        loudest = std::max({loudest, a, b});
        softest = std::min({softest, a, b});
    }
    const double highest = 20 * std::ceil(loudest / 20);
    axes.floor = std::clamp(20 * std::floor(softest / 20), highest - 140, highest - 100);
    axes.ceiling = highest + 10;

    std::string svg = format("<svg xmlns='http://www.w3.org/2000/svg' width='%.0f' height='%.0f' viewBox='0 0 %.0f "
                             "%.0f' role='img'>\n",
                             width, height, width, height);
    const auto title = [](const std::string& name) {
        return "Spectrum of " + name + " before and after the band-pass";
    };
    svg += "<title>" + escaped(title(p.recording)) + "</title>\n";
    svg += style;
    svg += format("<rect width='%.0f' height='%.0f' fill='#fff'/>\n", width, height);
    svg += textAt(left, 34, "title", title(elided(p.recording))) + textAt(left, 58, "note", p.subtitle);
    const double x1 = axes.x(p.passLow), x2 = axes.x(p.passHigh);
    svg +=
        format("<rect x='%.1f' y='%.1f' width='%.1f' height='%.1f' fill='#fbf3e6'/>\n", x1, top, x2 - x1, bottom - top);
    svg += axes.drawn();
    svg += format("<clipPath id='plot'><rect x='%.1f' y='%.1f' width='%.1f' height='%.1f'/></clipPath>\n", left, top,
                  right - left, bottom - top);
    const double noise = decibels(p.after.roundingNoise());
    if (noise > axes.floor) {
        svg += lineFrom(left, axes.y(noise), right, axes.y(noise), "floor");
        svg += textAt(axes.x(std::sqrt(p.passLow * p.passHigh)), axes.y(noise) - 8, "x note", "rounding to 16 bits");
    }
    svg += "<g clip-path='url(#plot)'>\n";
    svg += axes.curve("before", [&](double f) { return smoothedLevel(p.before, f); });
    svg += axes.curve("filter", [&](double f) { return smoothedGain(p.taps, f, p.rate); });
    svg += axes.curve("after", [&](double f) { return smoothedLevel(p.after, f); });
    svg += "</g>\n";
    svg += format("<rect x='%.1f' y='%.1f' width='%.1f' height='%.1f' class='frame'/>\n", left, top, right - left,
                  bottom - top);
    svg += legend(left, "before", "recording") + legend(left + 150, "after", "after the filter") +
           legend(left + 330, "filter", "gain of the filter (shaded: " + format("%g to %g Hz)", p.passLow, p.passHigh));
    svg += "</svg>\n";

    std::ofstream out(file, std::ios::binary);
    out << svg;
    out.close();
    if (!out) throw std::runtime_error("cannot write " + file.filename().string());
}
