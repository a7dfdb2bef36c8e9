// Interleaved timing: every candidate of a group is measured once a round, so that what disturbs the machine disturbs
// all of them alike, and only their ratios within a round are compared.
#pragma once
#include <functional>
#include <string>
#include <vector>

namespace bench {

using Work = std::function<void()>;
using Batch = std::function<void(long long calls)>;

// A batch that calls f again and again. The compiler must not carry anything from one call to the next.
template <class F> Batch repeated(F f)
{
    return [f](long long calls) mutable {
        for (long long i = 0; i < calls; ++i) {
            f();
            asm volatile("" ::: "memory");
        }
    };
}

struct Candidate {
    std::string name;
    Batch batch;
    Work before;                // not timed, once before a batch; may be empty
    std::vector<double> cycles; // of one call, by round
};

struct Effort {
    int rounds = 15;
    double batchSeconds = 1e-3;
};

// Returns the core clock that the batches ran at, in cycles per second.
double measure(std::vector<Candidate>& candidates, const Effort& effort);

void settle(); // waits, for some seconds at most, until nobody else uses the core

double now();       // seconds
double clockRate(); // cycles per second of the core, now

double median(std::vector<double> values);
double spread(std::vector<double> values); // distance of the quartiles, relative to the median

} // namespace bench
