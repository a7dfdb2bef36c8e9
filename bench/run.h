// Measures a case at one size: every variant, the limits and the peers, in the same rounds.
#pragma once
#include "case.h"
#include "limit_kernels.h"

namespace bench {

struct VariantFigure {
    std::string code;
    double cycles;     // of an element
    double spread;     // of the rounds, relative
    double share;      // of the limit
    Limit::Kind bound; // which limit that is
};
struct LimitFigure {
    Limit::Kind kind;
    int width;
    double cycles;
};
struct PeerFigure {
    std::string name;
    double cycles, spread;
    double ratio; // how many times as fast the last of the variants is
};

struct Result {
    std::string name, family;
    Level level;
    long long size;
    double elements, bytes, clock; // clock in cycles per second
    std::vector<VariantFigure> variants;
    std::vector<LimitFigure> limits;
    std::vector<PeerFigure> peers;
    double nanoseconds(double cyclesPerElement) const { return cyclesPerElement * elements / clock * 1e9; }
};

struct Selection {
    std::vector<std::string> variants; // empty: all
    std::vector<Level> levels;         // empty: all
    Effort effort;
    bool has(Level level) const;
    bool has(const std::string& variant) const;
};

// False where the selection leaves nothing to measure.
bool run(const Case& c, const Size& size, const Selection& selection, Memory& memory, Result& result);

} // namespace bench
