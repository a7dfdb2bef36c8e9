// What the machine can do, measured on the case's own arrays, in the same rounds as the case.
#pragma once
#include "case.h"
#include "emitter.h"
#include <set>

namespace bench {

struct Limit {
    enum Kind { bandwidth, multiplyAdd, divide, squareRoot, chain, call } kind;
    int width; // bytes of the vectors; 0: any
    Candidate candidate;
    double scale; // cycles of the kernel to cycles of the case's work
};
const char* nameOf(Limit::Kind kind);

// Several forms of one kind may be given; the fastest is the limit. The emitter owns their code.
std::vector<Limit> limitsOf(const Setup& setup, const std::set<int>& widths, Emitter& emitter);

} // namespace bench
