// Puts a function's arguments into guarded memory, calls it, and looks at what it wrote.
#pragma once
#include "arguments.h"
#include "invoke.h"
#include "support/arena.h"
#include "support/library.h"
#include <memory>
#include <string>
#include <vector>

namespace support {

// Arrays stand "offset" bytes away from the inaccessible page at the end, or at the start, of their memory.
struct Place {
    bool atEnd = true;
    int offset = 0;
};

using Places = std::vector<Place>;              // one for each argument
using Shared = std::vector<registry::InPlace>; // pairs without a common argument; each destination is its source

class Stage {
public:
    // Copies the arrays' initial content to their places and sets the pointers. With "shared" the destination of that
    // pair is its source.
    void put(registry::Arguments& a, Place place, const registry::InPlace* shared = nullptr);
    void putEach(registry::Arguments& a, const Places& places, const Shared& shared = {});
    // The plain form, or the _Idx form (with indexes 0) where there is no other.
    registry::Answer call(registry::Arguments& a, registry::Entry entry, int stackPhase = 0);
    // The _Idx form by rule, with an index for each array and work buffer; with "values" instead of the arguments' own.
    registry::Answer callIndexed(const registry::Arguments& a, registry::Entry entry, const registry::Value* values,
                                 const int* indexes, int stackPhase = 0);

    // What the argument points to now.
    const uint8_t* now(int argument) const { return spots_[argument].own; }
    // A byte outside of an array changed: the argument's name; empty: none did.
    std::string strayWrite(const registry::Arguments& a) const;
    // Any byte of any array changed.
    std::string changed(const registry::Arguments& a) const;

private:
    struct Spot {
        uint8_t* own = nullptr;
        uint8_t *low = nullptr, *high = nullptr; // the whole memory around it
        size_t bytes = 0;
        const std::vector<uint8_t>* longer = nullptr; // of a shared destination: the source that goes on behind it
    };
    GuardedRegion& region(size_t index, size_t bytes);
    std::vector<std::unique_ptr<GuardedRegion>> regions_;
    std::vector<Spot> spots_;
};

// What a call gave: all that must be the same in every body and at every place. Records that the call wrote are among
// the outputs; an address that it stored, of a state that it made, is not.
struct Outcome {
    registry::Answer answer;
    std::vector<std::vector<uint8_t>> outputs; // by argument; empty: not an output
};
Outcome outcomeOf(const registry::Arguments& a, const Stage& stage, const registry::Answer& answer);
// How what stands on the stage after a call differs from what was expected; empty: not at all.
std::string unlike(const Outcome& expected, const registry::Arguments& a, const Stage& stage,
                   const registry::Answer& answer);

// How an output differs from the expected one; NaN equals NaN unless the function moves bits.
std::string difference(const registry::Arguments& a, int argument, const uint8_t* expected, const uint8_t* found);
bool isOutput(const registry::Arg& arg);
// The pairs of arguments that may be one array: each alone, and each with those of the others that go with it.
std::vector<Shared> sharings(const registry::Function& f);

// Functions to which the general tests apply: those whose arguments the description or a fixture can build.
bool generallyCallable(const registry::Function& f);
// Functions that may refuse what passes their checks: sizes that do not fit an int.
bool mayRefuse(const registry::Function& f);

} // namespace support
