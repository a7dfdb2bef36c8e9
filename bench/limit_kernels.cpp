#include "limit_kernels.h"
#include <algorithm>
#include <cmath>

namespace bench {
namespace {

struct Traffic {
    std::vector<Array> arrays; // the largest; what is much smaller does not count
    size_t bytes = 0;
    bool writesOnly = false; // some array is written without being read
};

Traffic trafficOf(const Setup& setup)
{
    Traffic t;
    t.arrays = setup.memory().arrays();
    std::stable_sort(t.arrays.begin(), t.arrays.end(),
                     [](const Array& a, const Array& b) { return a.bytes > b.bytes; });
    while (t.arrays.size() > Emitter::maxStreams ||
           (!t.arrays.empty() && t.arrays.back().bytes < t.arrays[0].bytes / 64))
        t.arrays.pop_back();
    for (const Array& a : t.arrays) {
        t.bytes += a.bytes;
        t.writesOnly |= a.access == Access::written;
    }
    return t;
}

struct Form {
    int accesses; // of a step, about
    int parts;    // of each array, walked side by side: more streams keep more of the memory busy
    bool streaming;
};

// The arrays' loads and stores and nothing else, in proportion to the arrays' bytes.
void addBandwidth(std::vector<Limit>& all, Emitter& emitter, const Traffic& t, int width, const Form& form)
{
    std::vector<Stream> streams;
    std::vector<void*> starts;
    size_t steps = ~size_t(0), touched = 0;
    for (const Array& a : t.arrays) {
        const double share = static_cast<double>(a.bytes) / static_cast<double>(t.bytes);
        const int vectors = std::max(1, static_cast<int>(std::lround(share * form.accesses / form.parts)));
        const size_t start = (64 - reinterpret_cast<uintptr_t>(a.data) % 64) % 64;
        const size_t part = (a.bytes - std::min(a.bytes, start)) / static_cast<size_t>(form.parts) / 64 * 64;
        steps = std::min(steps, part / static_cast<size_t>(vectors * width));
        for (int k = 0; k < form.parts; ++k) {
            streams.push_back({vectors, a.access != Access::written, a.access != Access::read});
            starts.push_back(a.data + start + static_cast<size_t>(k) * part);
        }
    }
    if (steps == 0) return;
    for (const Stream& s : streams) touched += steps * static_cast<size_t>(s.vectors * width);
    const Kernel kernel = emitter.streams(width, streams, form.streaming);
    const auto batch = repeated([=] { kernel(starts.data(), steps); });
    all.push_back(
        {Limit::bandwidth, width, {"", batch, {}, {}}, static_cast<double>(t.bytes) / static_cast<double>(touched)});
}

void addBandwidths(std::vector<Limit>& all, Emitter& emitter, const Traffic& t, int width)
{
    if (t.arrays.empty()) return;
    if (t.bytes < (4 << 20)) {
        for (int accesses : {8, 32, 64}) addBandwidth(all, emitter, t, width, {accesses, 1, false});
        return;
    }
    const int parts = std::min(3, static_cast<int>(Emitter::maxStreams / t.arrays.size()));
    for (bool streaming : {false, true})
        for (int k : {1, parts})
            if (!streaming || t.writesOnly) addBandwidth(all, emitter, t, width, {32, k, streaming});
}

void addArithmetic(std::vector<Limit>& all, Emitter& emitter, Limit::Kind kind, int width, double operations)
{
    if (operations <= 0) return;
    alignas(64) static double constants[12] = {1.37, 1.37, 1.37, 1.37, 1.13, 1.13, 1.13, 1.13, 0, 0, 0, 0};
    const Operation operation = kind == Limit::divide       ? Operation::divide
                                : kind == Limit::squareRoot ? Operation::squareRoot
                                                            : Operation::multiplyAdd;
    constexpr size_t steps = 100;
    const double perVector = width / 8 * (kind == Limit::multiplyAdd ? 2 : 1);
    const double scale = operations / (static_cast<double>(steps) * Emitter::operationsPerStep * perVector);
    for (int registers : {8, 16}) {
        if (registers == 16 && (sizeof(void*) == 4 || kind != Limit::multiplyAdd)) continue;
        const Kernel kernel = emitter.arithmetic(width, operation, registers);
        const auto batch = repeated([=] {
            void* const array = constants;
            kernel(&array, steps);
        });
        all.push_back({kind, width, {"", batch, {}, {}}, scale});
    }
}

void addChain(std::vector<Limit>& all, Emitter& emitter, const Setup::Chain& chain)
{
    if (chain.times <= 0) return;
    alignas(64) static double constants[6] = {1, 1, 0.5, 0.5, 0.25, 0.25};
    constexpr size_t steps = 100;
    const Kernel kernel = emitter.chain(chain.multiplications, chain.additions);
    const auto batch = repeated([=] {
        void* const array = constants;
        kernel(&array, steps);
    });
    all.push_back({Limit::chain, 0, {"", batch, {}, {}}, chain.times / (steps * Emitter::linksPerStep)});
}

} // namespace

const char* nameOf(Limit::Kind kind)
{
    static const char* const names[] = {"bandwidth", "mul+add", "divide", "sqrt", "chain", "call"};
    return names[kind];
}

std::vector<Limit> limitsOf(const Setup& setup, const std::set<int>& widths, Emitter& emitter)
{
    std::vector<Limit> all;
    const Traffic traffic = trafficOf(setup);
    for (int width : widths) {
        addBandwidths(all, emitter, traffic, width);
        addArithmetic(all, emitter, Limit::multiplyAdd, width, setup.flops);
        addArithmetic(all, emitter, Limit::divide, width, setup.divisions);
        addArithmetic(all, emitter, Limit::squareRoot, width, setup.squareRoots);
    }
    addChain(all, emitter, setup.chain);
    return all;
}

} // namespace bench
