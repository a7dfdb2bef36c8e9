// demo recording.wav folder
//
// Loads Numlab.Sig5d as any program would, filters a recording to the band of a telephone, resamples it by 2/3, checks
// and times the library on the way, and writes both results and a picture of the spectra into the folder.
#include "fir_design.h"
#include "processing.h"
#include "spectrum_svg.h"
#include <cmath>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <new>

namespace {

namespace fs = std::filesystem;

constexpr double attenuation = 80; // dB
constexpr int up = 2, down = 3;

// A file's name fit for one line of text: UTF-8 without control characters.
std::string shown(const fs::path& path)
{
    bool valid = true;
    try {
        (void)path.u32string();
    } catch (const std::exception&) {
        valid = false; // bytes of another encoding
    }
    const auto name = path.generic_u8string();
    std::string text(name.begin(), name.end());
    for (char& c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7F || (byte >= 0x80 && !valid)) c = '?';
    }
    return text;
}

// 300 to 3400 Hz. Where the sample rate is too low for that, or so high that the taps would be very many, the band
// moves with the rate.
struct SpeechBand {
    explicit SpeechBand(double rate)
    {
        const double scale = rate < 8000 ? rate / 8000 : rate > 192000 ? rate / 192000 : 1;
        low = 300 * scale;
        high = 3400 * scale;
        transition = 300 * scale;
    }
    double low, high, transition; // Hz
};

struct Results {
    Streamed filtered, resampled;
};

void describe(const Library& library, const Wav& wav, const std::string& name)
{
    const IppLibraryVersion* version = library.ippsGetLibVersion();
    std::printf("Processor   %s\n", processorName(library).c_str());
    std::printf("Library     %s, variant %.4s: %s %s\n", Library::fileName, version->targetCpu, version->Name,
                version->Version);
    std::printf("Recording   %s: %u Hz, %s, %zu samples, %.2f s\n", name.c_str(), unsigned(wav.rate),
                wav.channels == 1 ? "mono" : "stereo", wav.frames(), double(wav.frames()) / wav.rate);
}

// Same bits, whether the signal comes in blocks or at once.
void compare(const char* what, const Streamed& streamed, Filter& filter, const Wav& recording)
{
    const std::vector<double> whole = inOneCall(filter, recording);
    if (whole.size() != streamed.start.size() ||
        std::memcmp(whole.data(), streamed.start.data(), whole.size() * sizeof(double)) != 0)
        throw std::runtime_error(std::string(what) + ": blocks and one call give different results");
    std::printf("            %s: streamed in blocks = one call, bit for bit (%zu results)\n", what, whole.size());
}

double largestDifference(const std::vector<double>& a, const std::vector<double>& b)
{
    double largest = 0;
    for (std::size_t i = 0; i < a.size(); ++i) largest = std::fmax(largest, std::fabs(a[i] - b[i]));
    return largest;
}

// Every variant in turn, on the recording repeated to a fixed length. In several rounds of short passes, so that what
// else the machine does at one time is not taken for a property of one variant.
void race(const Library& library, const Wav& recording, const std::vector<double>& bandTaps,
          const std::vector<double>& rateTaps, Ipp64u processorFeatures)
{
    std::vector<double> signal(3 * 4096);
    for (std::size_t n = 0; n < signal.size(); ++n)
        signal[n] = recording.samples[n % recording.frames() * recording.channels] / 32768.0;

    double fastest[std::size(variants)][3] = {};
    std::vector<double> reference[3]; // px stands first
    for (int round = 0; round < 4; ++round)
        for (std::size_t v = 0; v < std::size(variants); ++v) {
            if (!runsHere(variants[v], processorFeatures)) continue;
            force(library, variants[v]);
            Filter filters[] = {
                {library, bandTaps, Method::direct}, {library, bandTaps, Method::fft}, {library, rateTaps, up, down}};
            for (int i = 0; i < 3; ++i) {
                const Speed speed = measure(filters[i], signal);
                fastest[v][i] = std::fmax(fastest[v][i], speed.samplesPerSecond);
                if (reference[i].empty()) reference[i] = speed.results;
                if (std::memcmp(speed.results.data(), reference[i].data(), reference[i].size() * sizeof(double)) != 0)
                    throw std::runtime_error(std::string("variant ") + variants[v].code + " differs from px");
            }
        }

    std::printf("Speed       million input samples per second\n");
    std::printf("            variant          band-pass direct    by FFT   resampling\n");
    for (std::size_t v = 0; v < std::size(variants); ++v) {
        std::printf("            %s  %-10s", variants[v].code, variants[v].instructions);
        if (runsHere(variants[v], processorFeatures))
            std::printf("%18.1f%10.1f%13.1f   %s\n", fastest[v][0] / 1e6, fastest[v][1] / 1e6, fastest[v][2] / 1e6,
                        v == 0 ? "the reference" : "same bits as px");
        else
            std::printf("   skipped: this processor lacks it\n");
    }
}

// All files or none: written under other names first, renamed when the last one is complete.
class Outputs
{
public:
    explicit Outputs(const fs::path& folder) : folder_(folder) {}
    ~Outputs()
    {
        std::error_code ignored;
        for (const fs::path& name : names_) fs::remove(partial(name), ignored);
    }
    Outputs(const Outputs&) = delete;
    Outputs& operator=(const Outputs&) = delete;

    template <class Write> void add(const char* name, Write write)
    {
        if (fs::is_directory(folder_ / name)) throw std::runtime_error(shown(folder_ / name) + " is a folder");
        fs::create_directories(folder_);
        names_.emplace_back(name);
        write(partial(name));
    }

    void commit()
    {
        std::size_t done = 0;
        try {
            for (; done < names_.size(); ++done) fs::rename(partial(names_[done]), folder_ / names_[done]);
        } catch (...) {
            while (done > 0) fs::remove(folder_ / names_[--done]);
            throw;
        }
        const char* heading = "Files";
        for (const fs::path& name : names_) {
            std::printf("%-12s%s\n", heading, shown(folder_ / name).c_str());
            heading = "";
        }
        names_.clear();
    }

private:
    fs::path partial(const fs::path& name) const { return folder_ / (name.string() + ".part"); }
    fs::path folder_;
    std::vector<fs::path> names_;
};

void demonstrate(const fs::path& input, const fs::path& folder)
{
    const std::string name = shown(input.filename());
    Wav recording;
    try {
        recording = readWav(input);
    } catch (const std::runtime_error& error) {
        throw std::runtime_error(name + ": " + error.what());
    }
    const double rate = recording.rate;

    const Library library;
    describe(library, recording, name);
    Ipp64u features = 0;
    library.check(library.ippGetCpuFeatures(&features, nullptr), "ippGetCpuFeatures");

    const SpeechBand band(rate);
    const auto bandTaps = designTaps({band.low / rate, band.high / rate, band.transition / rate, attenuation});
    // Passes 0.9 of the new Nyquist frequency, stops from there on; a delay of whole samples after resampling.
    const double nyquist = 0.5 / down; // of the new rate, at the rate times `up`
    const auto rateTaps = designTaps({0, 0.95 * nyquist, 0.1 * nyquist, attenuation}, up, down);
    const double newRate = rate * up / down;
    std::printf("Band-pass   %g to %g Hz, %zu taps, linear phase\n", band.low, band.high, bandTaps.size());
    std::printf("Resampling  %g Hz to %g Hz, %zu taps\n", rate, newRate, rateTaps.size());

    Filter direct(library, bandTaps, Method::direct), fft(library, bandTaps, Method::fft);
    Filter resampler(library, rateTaps, up, down);
    const int bandDelay = static_cast<int>(bandTaps.size() / 2), rateDelay = static_cast<int>(rateTaps.size() / 2);
    const Streamed filtered = stream(direct, recording, recording.rate, bandDelay);
    const Streamed resampled =
        stream(resampler, recording, static_cast<std::uint32_t>(std::lround(newRate)), rateDelay / down);

    std::printf("Checks\n");
    compare("band-pass", filtered, direct, recording);
    compare("resampling", resampled, resampler, recording);
    std::printf("            band-pass by FFT - direct form: at most %.1e\n",
                largestDifference(inOneCall(fft, recording), filtered.start));
    const Spectrum before(recording), after(filtered.wav);
    const double reach = band.transition / 2;
    const auto level = [&](const char* where, double low, double high) {
        std::printf("            %s: %.1f dB before, %.1f dB after\n", where, decibels(before.total(low, high)),
                    decibels(after.total(low, high)));
    };
    level("level in the band", band.low + reach, band.high - reach);
    level("level below it", 0, band.low - reach);
    level("level above it", band.high + reach, rate / 2);
    if (filtered.clipped + resampled.clipped)
        std::printf("            clipped to 16 bits: %zu samples\n", filtered.clipped + resampled.clipped);

    race(library, recording, bandTaps, rateTaps, features);

    char about[160];
    std::snprintf(about, sizeof about,
                  "Mean over Hann windows of %d samples, smoothed over 1/12 octave; 0 dB is a full-scale sine",
                  before.windowLength());
    Outputs outputs(folder);
    outputs.add("bandpass.wav", [&](const fs::path& file) { writeWav(file, filtered.wav); });
    outputs.add("resampled.wav", [&](const fs::path& file) { writeWav(file, resampled.wav); });
    outputs.add("spectrum.svg", [&](const fs::path& file) {
        writeSvg(file, {name, about, before, after, bandTaps, rate, band.low, band.high});
    });
    outputs.commit();
}

int run(int count, const fs::path* arguments)
{
    if (count != 2) {
        std::fprintf(stderr, "usage: demo recording.wav folder\n");
        return 2;
    }
    try {
        demonstrate(arguments[0], arguments[1]);
        return 0;
    } catch (const std::bad_alloc&) {
        std::fprintf(stderr, "demo: %s: too long for this machine's memory\n", shown(arguments[0].filename()).c_str());
    } catch (const std::exception& error) {
        std::fflush(stdout);
        std::fprintf(stderr, "demo: %s\n", error.what());
    }
    return 1;
}

} // namespace

#ifdef _WIN32
int wmain(int argc, wchar_t** argv)
#else
int main(int argc, char** argv)
#endif
{
    const std::vector<fs::path> arguments(argv + 1, argv + argc);
    return run(static_cast<int>(arguments.size()), arguments.data());
}
