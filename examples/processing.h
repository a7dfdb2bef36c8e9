// What the demo does with a recording, apart from reading, printing and drawing.
#pragma once
#include "filter.h"
#include "wav.h"
#include <string>
#include <vector>

struct Streamed {
    Wav wav;
    std::size_t clipped = 0;   // samples beyond 16 bits
    std::vector<double> start; // first results of the first channel as the filter made them
};

// Filters all channels block by block with a delay line for each, as a program does that gets its samples from a
// device. The filter's delay is taken out: the first `delay` results are dropped and the recording ends in silence.
Streamed stream(Filter& filter, const Wav& recording, std::uint32_t rate, int delay);

// The same results in one call, as many as Streamed::start holds.
std::vector<double> inOneCall(Filter& filter, const Wav& recording);

struct Variant {
    const char* code;
    const char* instructions;
    Ipp64u features; // what selects it, and what the processor must have
};
extern const Variant variants[6];

// The processor's name and its features, as the library reads them. Ask before a variant is forced.
std::string processorName(const Library& library);
bool runsHere(const Variant& variant, Ipp64u processorFeatures);

// Selects a variant without asking the processor; throws if another one answers.
void force(const Library& library, const Variant& variant);

struct Speed {
    double samplesPerSecond; // input samples
    std::vector<double> results;
};

// The fastest of several passes over the signal.
Speed measure(Filter& filter, const std::vector<double>& signal);
