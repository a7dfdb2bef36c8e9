// What FIR filters are measured against.
#pragma once
#include <vector>

namespace bench {

std::vector<double> firTaps(int n);

// Multi-rate as an engineer writes it: the input dealt out into `down` streams, each output phase a filter over the
// iterations with vectors of the widest instructions, the outputs put together again.
class Polyphase
{
public:
    Polyphase(int up, int down, int taps, int iterations);
    void run(const double* x, double* y);

private:
    struct Tap {
        int stream, offset; // of the sample that it meets in iteration 0
        double value;
    };
    int up_, down_, iterations_, before_;
    std::vector<std::vector<Tap>> phases_;
    std::vector<std::vector<double>> streams_;
    std::vector<double> outputs_;
};

} // namespace bench
