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

class Stage {
public:
    // Copies the arrays' initial content to their places and sets the pointers. With "shared" the destination of that
    // pair is its source.
    void put(registry::Arguments& a, Place place, const registry::InPlace* shared = nullptr);
    // The plain form, or the _Idx form (with indexes 0) where there is no other.
    registry::Answer call(registry::Arguments& a, registry::Entry entry, int stackPhase = 0);

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
    };
    GuardedRegion& region(size_t index, size_t bytes);
    std::vector<std::unique_ptr<GuardedRegion>> regions_;
    std::vector<Spot> spots_;
};

// How an output differs from the expected one; NaN equals NaN unless the function moves bits.
std::string difference(const registry::Arguments& a, int argument, const uint8_t* expected, const uint8_t* found);
bool isOutput(const registry::Arg& arg);

// Functions to which the general tests apply: those whose arguments the description or a fixture can build.
bool generallyCallable(const registry::Function& f);

} // namespace support
