// How large the machine's caches are, and what that means for the sizes that are measured.
#pragma once
#include "case.h"

namespace bench {

struct CurvePoint {
    size_t bytes;
    double bytesPerCycle;
};

struct Machine {
    std::string processor;
    size_t l1 = 0, l2 = 0; // as the processor reports them
    // Bandwidth of loads over size. Measured when first asked for: it takes a second or two.
    static const std::vector<CurvePoint>& loadCurve();
    // What one core effectively has of all caches, by that curve: virtual machines report the whole socket's.
    static size_t effectiveCache();
};
const Machine& machine();

Level levelOf(size_t bytes); // where that many bytes stay

// What the arrays of a regular function may add up to at a level, and the largest of them alone.
struct Room {
    size_t total, largest;
};
Room roomAt(Level level);

} // namespace bench
