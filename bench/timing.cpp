#include "timing.h"
#include <algorithm>
#include <random>
#ifdef _WIN32
#include <windows.h>
#else
#include <chrono>
#endif

namespace bench {
namespace {

// An interruption makes a chain look slow, nothing makes it look fast.
double fastestClock()
{
    const double first = clockRate();
    return std::max(first, clockRate());
}

double seconds(const Candidate& c, long long calls)
{
    const double start = now();
    c.batch(calls);
    return now() - start;
}

long long callsPerBatch(const Candidate& c, double batchSeconds)
{
    if (c.before) c.before();
    long long calls = 1;
    double taken = seconds(c, 1);
    while (taken < batchSeconds / 8 && calls < (1LL << 40)) taken = seconds(c, calls *= 4);
    return std::max(1LL, static_cast<long long>(static_cast<double>(calls) * batchSeconds / taken));
}

double cyclesOfOneCall(const Candidate& c, long long calls, std::vector<double>& clocks)
{
    if (c.before) c.before();
    if (calls > 1) c.batch(1); // brings code and data back into the caches that the other candidates used
    const double clockBefore = fastestClock();
    const double taken = seconds(c, calls);
    const double clock = std::max(clockBefore, fastestClock());
    clocks.push_back(clock);
    return taken * clock / static_cast<double>(calls);
}

double quantile(std::vector<double>& values, double q)
{
    if (values.empty()) return 0;
    const double place = q * static_cast<double>(values.size() - 1);
    const auto low = static_cast<size_t>(place);
    const size_t high = std::min(low + 1, values.size() - 1);
    std::sort(values.begin(), values.end());
    return values[low] + (place - static_cast<double>(low)) * (values[high] - values[low]);
}

} // namespace

double now()
{
#ifdef _WIN32
    static const double frequency = [] {
        LARGE_INTEGER f;
        QueryPerformanceFrequency(&f);
        return static_cast<double>(f.QuadPart);
    }();
    LARGE_INTEGER ticks;
    QueryPerformanceCounter(&ticks);
    return static_cast<double>(ticks.QuadPart) / frequency;
#else
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
#endif
}

// A chain of dependent register additions takes one cycle each. (Recent processors fold additions of constants away.)
double clockRate()
{
    constexpr int turns = 1000, additions = 100;
    uintptr_t x = 1, y = 3;
    const double start = now();
    for (int i = 0; i < turns; ++i) asm volatile(".rept 100\n\tadd %1, %0\n\t.endr" : "+r"(x) : "r"(y));
    return turns * additions / (now() - start);
}

void settle()
{
    const double end = now() + 5;
    double lost = 1; // share of the time that others had the core
    while (lost > 0.02 && now() < end) {
        std::vector<double> rates;
        double perCycle = 0;
        for (int i = 0; i < 5000; ++i) {
            rates.push_back(clockRate());
            perCycle += 1 / rates.back() / 5000;
        }
        lost = 1 - 1 / (perCycle * median(rates));
    }
}

double measure(std::vector<Candidate>& candidates, const Effort& effort)
{
    std::vector<long long> calls;
    std::vector<size_t> order;
    for (Candidate& c : candidates) {
        order.push_back(order.size());
        calls.push_back(callsPerBatch(c, effort.batchSeconds));
        c.cycles.clear();
    }
    std::vector<double> clocks;
    std::mt19937 random(1);
    for (int round = 0; round < effort.rounds; ++round) {
        std::shuffle(order.begin(), order.end(), random);
        for (size_t i : order) candidates[i].cycles.push_back(cyclesOfOneCall(candidates[i], calls[i], clocks));
    }
    return median(clocks);
}

double median(std::vector<double> values) { return quantile(values, 0.5); }

double spread(std::vector<double> values)
{
    const double middle = median(values);
    return middle > 0 ? (quantile(values, 0.75) - quantile(values, 0.25)) / middle : 0;
}

} // namespace bench
