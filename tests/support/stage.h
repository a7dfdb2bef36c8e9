// Puts a function's arguments into guarded memory, calls it, and looks at what it wrote.
#pragma once
#include "arguments.h"
#include "invoke.h"
#include "states.h"
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

using Places = std::vector<Place>;             // one for each argument
using Shared = std::vector<registry::InPlace>; // pairs without a common argument; each destination is its source

class Stage
{
public:
    ~Stage() { releaseStates(); }

    // Copies the arrays' initial content to their places, makes the states, which lie as the arrays do, and sets the
    // pointers. With "shared" the destination of that pair is its source.
    void put(registry::Arguments& a, Place place, const registry::InPlace* shared = nullptr);
    void putEach(registry::Arguments& a, const Places& places, const Shared& shared = {});
    // The plain form, or the _Idx form (with indexes 0) where there is no other.
    registry::Answer call(registry::Arguments& a, registry::Entry entry, int stackPhase = 0);
    // The _Idx form by rule, with an index for each array and work buffer; with "values" instead of the arguments' own.
    registry::Answer callIndexed(const registry::Arguments& a, registry::Entry entry, const registry::Value* values,
                                 const int* indexes, int stackPhase = 0);

    // The arrays anew, for a further call on the same states.
    void refresh(const registry::Arguments& a);
    // Zeros in place of a state.
    void wipe(int argument);
    // The variant that makes states from now on; null: the one that is forced.
    void makeStatesIn(const Variant* v) { maker_ = v; }

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
        registry::Gaps gaps;                          // where the scalars are spoilt later, too
        std::vector<uint8_t> made;                    // of a state in this memory: its bytes before the call
        const std::vector<uint8_t>* longer = nullptr; // of a shared destination: the source that goes on behind it
    };
    struct State {
        int argument;
        std::unique_ptr<registry::Made> made;
        const GuardedRegion* home;
    };
    void putState(registry::Arguments& a, int argument, Place place);
    Spot spot(GuardedRegion& region, size_t bytes, Place place);
    void releaseStates();
    registry::Answer settled(const registry::Arguments& a, const registry::Answer& answer);
    void write(const registry::Arguments& a, int argument);
    GuardedRegion& region(size_t index, size_t bytes);
    std::vector<std::unique_ptr<GuardedRegion>> regions_;
    std::vector<Spot> spots_;
    std::vector<State> states_;
    size_t stateRegions_ = 0; // in use, behind those of the arguments
    const Variant* maker_ = nullptr;
    Shared shared_;
    unsigned writes_ = 0;
};

// What a call gave: all that must be the same in every body and at every place. States that it made are not among it:
// they are compared by using them (variants/streams.h).
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

// Functions to which the general tests apply; the others have a reason in the description.
bool generallyCallable(const registry::Function& f);
// Functions that may refuse what passes their checks: sizes that do not fit an int.
bool mayRefuse(const registry::Function& f);

} // namespace support
