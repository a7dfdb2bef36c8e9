// The comparison of every body of every function with px: in guarded memory, wherever the arrays lie and whatever lay
// there before. It is a pass over all functions that tests can repeat under other circumstances.
#pragma once
#include "support/stage.h"
#include <functional>

namespace variants {

struct Pass {
    std::vector<long long> lengths; // empty: 0 to 67, and around powers of two up to 4096
    double share = 1;               // of the usual number of rounds for a length
    bool specialValues = false;     // arrays of ordinary numbers with one special value, once at every position
    long long leastCalls = 100;     // that a body must answer; a body that refuses its calls is not tested
    std::function<bool(const registry::Function&)> includes; // empty: every function
    std::function<void()> afterSelecting; // follows every selection of a variant, which resets what belongs to it
};

struct Tally {
    int functions = 0, bodies = 0;
    long long calls = 0;   // answered, each compared
    long long inPlace = 0; // of them
    long long skipped = 0; // sets of arguments that the function's checks refuse
    long long fewest = -1; // calls that any one body answered
    std::string fewestOf;
};

// Fails the running test at the first difference. Prints the tally. SIG5D_ONLY in the environment restricts all passes
// to functions in whose names it occurs, SIG5D_ROUNDS multiplies the rounds before a release.
Tally compareBodies(const Pass& pass);
bool restricted(); // by SIG5D_ONLY: whoever asks for few functions does not fail for having few

// Where the arrays of a call lie, each in its own way; "side" 0 and 1 are two placements for a round. In every eighth
// round all lie flush against the end of their memory on side 0, against its start on side 1; in the other rounds one
// of them does, and the rest lie anywhere.
support::Places placesOf(int arguments, long long length, int round, int side);

} // namespace variants
