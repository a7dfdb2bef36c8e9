// G.711 by its tables of decision values: a segment after the other, an interval after the other.
#pragma once
#include <cmath>
#include <vector>

namespace oracle {

// Of one law: where its 128 intervals of magnitudes begin, the magnitudes they decode to, and their codes without the
// sign, all in units of 16-bit samples.
struct Intervals {
    std::vector<int> begin, middle;
    int inverted;
};

inline Intervals aLaw()
{
    Intervals law;
    law.inverted = 0x55;
    int at = 0;
    for (int segment = 0; segment < 8; ++segment)
        for (int i = 0; i < 16; ++i) {
            const int step = segment < 2 ? 16 : 16 << (segment - 1);
            law.begin.push_back(at);
            law.middle.push_back(at + step / 2);
            at += step;
        }
    return law;
}

// The first interval is half as long as the others of its segment, and around zero.
inline Intervals muLaw()
{
    Intervals law;
    law.inverted = 0x7F;
    int at = -4;
    for (int segment = 0; segment < 8; ++segment)
        for (int i = 0; i < 16; ++i) {
            const int step = 8 << segment;
            law.begin.push_back(at);
            law.middle.push_back(at + step / 2);
            at += step;
        }
    return law;
}

inline int decoded(const Intervals& law, int code)
{
    const int magnitude = law.middle[static_cast<size_t>((code ^ law.inverted) & 127)];
    return code & 128 ? magnitude : -magnitude;
}

inline int encoded(const Intervals& law, int sample)
{
    const int magnitude = sample < 0 ? -1 - sample : sample;
    int interval = 127;
    while (law.begin[static_cast<size_t>(interval)] > magnitude) --interval;
    return (sample < 0 ? 0 : 128) | (interval ^ law.inverted);
}

inline int sampleOf(double x)
{
    if (std::isnan(x)) x = 0;
    const double y = std::fmin(std::fmax(x, -1.0), 1.0) * 32767.0;
    return static_cast<int>(y < 0 ? y - 0.5 : y + 0.5);
}

} // namespace oracle
