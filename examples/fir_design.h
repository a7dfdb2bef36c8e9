// Linear-phase FIR filters by the window method with a Kaiser window. Frequencies are fractions of the sample rate.
#pragma once
#include <vector>

// What the filter is to do: pass low..high (the edges are 6 dB down), fall by `attenuation` dB within `transition`
// around each edge. low = 0 makes a low-pass.
struct Band {
    double low, high, transition, attenuation;
};

// The delay is (number of taps - 1) / 2 samples, made a multiple of delayStep.
std::vector<double> designTaps(const Band& band, double gain = 1, int delayStep = 1);

// |H(f)| of symmetric taps.
double gainAt(const std::vector<double>& taps, double frequency);
