// WAV files of 16-bit PCM samples, mono or stereo.
#pragma once
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <vector>

struct Wav {
    std::uint32_t rate = 0; // Hz
    int channels = 0;
    std::vector<std::int16_t> samples; // interleaved
    std::size_t frames() const { return samples.size() / channels; }
};

// Takes nothing on trust: a file that is not exactly what it says throws std::runtime_error with one line that tells
// what is wrong (without the file's name).
Wav readWav(const std::filesystem::path& file);

void writeWav(const std::filesystem::path& file, const Wav& wav);
