// A picture of what a filter does to a recording.
#pragma once
#include "spectrum.h"
#include <filesystem>
#include <string>
#include <vector>

struct SpectrumPicture {
    std::string recording, subtitle; // its name and a note, UTF-8
    const Spectrum& before;
    const Spectrum& after;
    const std::vector<double>& taps; // at the recording's sample rate
    double rate;                     // Hz
    double passLow, passHigh;        // Hz, shaded
};

void writeSvg(const std::filesystem::path& file, const SpectrumPicture& picture);
