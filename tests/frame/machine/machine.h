// The frame's own sources on a machine of the test's choice: recorded processors answer the identification
// instructions, each test begins as a new process does, and calls of other threads come in between where it says.
#pragma once
#include "frame/recorded_processors.h"
#include <functional>
#include <vector>

namespace machine {

void start(const Recorded& r); // a new process on this processor

int body();              // the index that stubs read; -1: none is selected
sig5d::u64 enabled();    // what ippGetEnabledCpuFeatures gives
size_t streamingStart(); // from how many bytes on kernels stream; the largest number: never
int leavesAsked();       // executions of CPUID since the start
void firstCall();        // as the stub of a primitive makes it: selects where nothing is

// A call that another thread makes, from beginning to end, at the place-th access to what the threads share.
struct Interruption {
    int place;
    std::function<void()> call;
};
// Runs the call with these in their places, in increasing order; a place inside another interruption is one as well.
// The places passed.
int run(const std::function<void()>& call, std::vector<Interruption> interruptions);

// Two threads: the first runs to its stop, an access to what they share, then the second to its own, then the first to
// its end, then the second. Whether both came to their stops.
bool cross(const std::function<void()>& first, int firstStop, const std::function<void()>& second, int secondStop);

} // namespace machine
