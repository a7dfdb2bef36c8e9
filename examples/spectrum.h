// The long-term average spectrum of a recording.
#pragma once
#include "wav.h"
#include <vector>

// Welch's method: mean power of half-overlapping Hann windows over all channels. A full-scale sine reads 1 (0 dB).
class Spectrum
{
public:
    explicit Spectrum(const Wav& wav);

    // Mean power of a bin between two frequencies in Hz.
    double mean(double low, double high) const;
    // Power between two frequencies together, relative to a full-scale sine.
    double total(double low, double high) const;

    // What rounding to 16 bits leaves in the mean bin: a twelfth of a step squared, spread over all bins.
    double roundingNoise() const;

    int windowLength() const { return length_; }
    double binWidth() const { return width_; }

private:
    double upTo(double frequency) const; // power of all bins up to a frequency, fractions of a bin included

    int length_;
    double width_;                   // of a bin, in Hz
    std::vector<double> cumulative_; // power of bins 0..k-1
};

double decibels(double power);
