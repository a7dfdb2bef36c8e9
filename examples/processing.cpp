#include "processing.h"
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstring>
#include <limits>
#include <stdexcept>

namespace {

constexpr int blockSamples = 1024;                            // input samples at a time
constexpr std::size_t comparedSamples = std::size_t(1) << 20; // bounds the memory of the comparison
constexpr Ipp64u featureAvx = 0x100, featureAvxEnabledBySystem = 0x200, doNotCompare = Ipp64u(1) << 63;

// Sample n of a channel in -1..1, silence after the end.
double sample(const Wav& wav, int channel, std::uint64_t n)
{
    return n < wav.frames() ? wav.samples[static_cast<std::size_t>(n) * wav.channels + channel] / 32768.0 : 0.0;
}

int comparedIterations(const Filter& filter, const Wav& wav)
{
    const std::size_t n = std::min(wav.frames(), comparedSamples);
    return static_cast<int>((n + filter.down - 1) / filter.down);
}

} // namespace

Streamed stream(Filter& filter, const Wav& recording, std::uint32_t rate, int delay)
{
    const int up = filter.up, down = filter.down, iterations = blockSamples / down;
    const std::uint64_t frames = (std::uint64_t(recording.frames()) * up + down - 1) / down;
    const std::size_t kept = std::size_t(comparedIterations(filter, recording)) * up;
    std::vector<double> in(std::size_t(iterations) * down), out(std::size_t(iterations) * up);
    Streamed result;
    result.wav = {rate, recording.channels, std::vector<std::int16_t>(frames * recording.channels)};

    for (int channel = 0; channel < recording.channels; ++channel) {
        std::vector<double> delayLine = filter.silence();
        for (std::uint64_t taken = 0, made = 0; made < frames + delay;) {
            for (double& x : in) x = sample(recording, channel, taken++);
            filter.run(in.data(), out.data(), iterations, delayLine);
            for (const double y : out) {
                if (channel == 0 && result.start.size() < kept) result.start.push_back(y);
                const std::uint64_t n = made++ - delay; // huge before the first
                if (n >= frames) continue;
                const double wide = std::nearbyint(y * 32768), narrow = std::clamp(wide, -32768.0, 32767.0);
                result.clipped += wide != narrow;
                result.wav.samples[static_cast<std::size_t>(n) * recording.channels + channel] =
                    static_cast<std::int16_t>(narrow);
            }
        }
    }
    return result;
}

std::vector<double> inOneCall(Filter& filter, const Wav& recording)
{
    const int iterations = comparedIterations(filter, recording);
    std::vector<double> in(std::size_t(iterations) * filter.down), out(std::size_t(iterations) * filter.up);
    for (std::size_t n = 0; n < in.size(); ++n) in[n] = sample(recording, 0, n);
    std::vector<double> delayLine = filter.silence();
    filter.run(in.data(), out.data(), iterations, delayLine);
    return out;
}

const Variant variants[6] = {{"px", "plain", 0x3},   {"w7", "SSE2", 0x7},  {"s8", "SSSE3", 0x1F},
                             {"p8", "SSE4.2", 0xDF}, {"g9", "AVX", 0x1DF}, {"h9", "AVX2", 0x81DF}};

std::string processorName(const Library& library)
{
    // A first word of "getinfoa" asks for the registers of a CPUID leaf: the extended ones hold the name.
    const auto cpuid = [&library](Ipp32u leaf) {
        std::vector<Ipp32u> registers = {leaf, 0, 0, 0};
        Ipp64u request = 0x616F666E69746567;
        library.check(library.ippGetCpuFeatures(&request, registers.data()), "ippGetCpuFeatures");
        return registers;
    };
    constexpr Ipp32u first = 0x80000002, last = 0x80000004;
    if (cpuid(0x80000000)[0] < last) return "of unknown name";
    std::string name;
    for (Ipp32u leaf = first; leaf <= last; ++leaf) {
        const std::vector<Ipp32u> registers = cpuid(leaf);
        name.append(reinterpret_cast<const char*>(registers.data()), 16);
    }
    name.resize(std::strlen(name.c_str()));
    return name.substr(std::min(name.find_first_not_of(' '), name.size()));
}

bool runsHere(const Variant& variant, Ipp64u processorFeatures)
{
    const Ipp64u needed =
        variant.features & featureAvx ? variant.features | featureAvxEnabledBySystem : variant.features;
    return (processorFeatures & needed) == needed;
}

void force(const Library& library, const Variant& variant)
{
    library.check(library.ippSetCpuFeatures(variant.features | doNotCompare), "ippSetCpuFeatures");
    if (std::strncmp(library.ippsGetLibVersion()->targetCpu, variant.code, 4) != 0)
        throw std::runtime_error(std::string("variant ") + variant.code + " was asked for, another one answers");
}

Speed measure(Filter& filter, const std::vector<double>& signal)
{
    using Clock = std::chrono::steady_clock;
    const int iterations = static_cast<int>(signal.size()) / filter.down;
    Speed speed = {0, std::vector<double>(std::size_t(iterations) * filter.up)};
    double fastest = std::numeric_limits<double>::infinity();
    const auto end = Clock::now() + std::chrono::milliseconds(12);
    for (int pass = 0; pass < 2 || Clock::now() < end; ++pass) {
        std::vector<double> delayLine = filter.silence();
        const auto begin = Clock::now();
        filter.run(signal.data(), speed.results.data(), iterations, delayLine);
        fastest = std::min(fastest, std::chrono::duration<double>(Clock::now() - begin).count());
    }
    speed.samplesPerSecond = iterations * double(filter.down) / fastest;
    return speed;
}
