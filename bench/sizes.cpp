#include "sizes.h"
#include "emitter.h"
#include <algorithm>
#include <cpuid.h>
#include <cstring>

namespace bench {
namespace {

// Leaf 4 of Intel and leaf 0x8000001D of AMD have one layout.
void readCaches(Machine& m)
{
    unsigned a, b, c, d;
    for (unsigned leaf : {4u, 0x8000001Du})
        for (unsigned i = 0; i < 8; ++i) {
            if (!__get_cpuid_count(leaf, i, &a, &b, &c, &d) || (a & 31) == 0) break;
            const size_t bytes = size_t((b >> 22) + 1) * ((b >> 12 & 1023) + 1) * ((b & 4095) + 1) * (size_t(c) + 1);
            const unsigned kind = a & 31, level = a >> 5 & 7;
            if (level == 1 && kind == 1) m.l1 = bytes;
            if (level == 2) m.l2 = bytes;
        }
    if (!m.l1) m.l1 = 32 << 10;
    if (!m.l2) m.l2 = 256 << 10;
}

std::string processorName()
{
    unsigned words[12] = {};
    for (unsigned i = 0; i < 3; ++i)
        if (!__get_cpuid(0x80000002 + i, &words[4 * i], &words[4 * i + 1], &words[4 * i + 2], &words[4 * i + 3]))
            return "?";
    char text[49] = {};
    std::memcpy(text, words, 48);
    return text + std::strspn(text, " ");
}

std::vector<CurvePoint> measureCurve()
{
    Memory memory;
    const size_t largest = sizeof(void*) == 4 ? size_t(512) << 20 : size_t(1) << 30;
    uint8_t* const data = memory.scratch(largest);
    const int width = 16;
    Emitter emitter;
    const Kernel kernel = emitter.streams(width, {{16, true, false}}, false);
    std::vector<CurvePoint> curve;
    for (size_t bytes = 16 << 10; bytes <= largest; bytes *= 2) {
        const auto load = repeated([=, array = static_cast<void*>(data)] { kernel(&array, bytes / (16 * width)); });
        std::vector<Candidate> one = {{"load", load, {}, {}}};
        measure(one, {7, 1e-3});
        const auto fastest = std::min_element(one[0].cycles.begin(), one[0].cycles.end()); // others only slow it down
        curve.push_back({bytes, static_cast<double>(bytes) / *fastest});
    }
    return curve;
}

} // namespace

const Machine& machine()
{
    static const Machine known = [] {
        Machine m;
        readCaches(m);
        m.processor = processorName();
        return m;
    }();
    return known;
}

const std::vector<CurvePoint>& Machine::loadCurve()
{
    static const std::vector<CurvePoint> curve = measureCurve();
    return curve;
}

// The largest size that is still clearly faster than memory.
size_t Machine::effectiveCache()
{
    double slowest = loadCurve().front().bytesPerCycle;
    for (const CurvePoint& p : loadCurve()) slowest = std::min(slowest, p.bytesPerCycle);
    size_t bytes = machine().l2;
    for (const CurvePoint& p : loadCurve())
        if (p.bytesPerCycle > 1.3 * slowest)
            bytes = std::max(bytes, p.bytes);
        else if (p.bytes > bytes)
            break;
    return bytes;
}

Level levelOf(size_t bytes)
{
    if (bytes <= machine().l1) return Level::L1;
    if (bytes <= machine().l2) return Level::L2;
    return bytes <= 2 * Machine::effectiveCache() ? Level::L3 : Level::memory;
}

Room roomAt(Level level)
{
    switch (level) {
    case Level::L1:
        return {machine().l1 * 3 / 4, 8 << 10};
    case Level::L2:
        return {machine().l2 * 3 / 4, 256 << 10};
    default: {
        const size_t bytes = std::min(4 * Machine::effectiveCache(), Memory::limit());
        return {bytes, bytes};
    }
    }
}

} // namespace bench
