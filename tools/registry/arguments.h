// A complete, valid set of arguments for a function, as data that can be placed anywhere in memory: scalars, the
// extents that follow from them, the initial bytes of every array, and the same for the calls that make its states.
#pragma once
#include "registry.h"
#include "values.h"
#include <memory>
#include <vector>

namespace registry {

// What lies between the rows of an array.
struct Gaps {
    size_t step = 0, width = 0; // of a row
    bool have(size_t byte) const { return step > width && byte % step >= width; }
};

struct Arguments {
    explicit Arguments(const Function& function);

    const Function& f;
    std::vector<Value> values;     // of the arguments, then of the names
    std::vector<long long> extent; // of each pointer argument: elements (bytes for buffers and opaque records)
    std::vector<std::vector<uint8_t>> content;          // initial bytes of each pointer argument
    std::vector<bool> null;                             // pointer arguments that are null
    std::vector<std::shared_ptr<const Arguments>> made; // of each state: the arguments of the call that makes it

    size_t bytes(int argument) const;
    size_t lead(int argument) const; // of these bytes, those in front of the pointer
    bool valid() const;              // no check fails

    // The bytes between two rows of the argument: no call may change them, nor do its results depend on them.
    Gaps gaps(int argument) const;
    // Fills what is only written with "pattern" again and again: results do not depend on it either.
    void prefill(int argument, uint64_t pattern);
};

// One element of what is read that differs from the rest: in each array, or in one of them alone.
struct Outlier {
    long long position = -1; // counted round and round in shorter arrays; -1: there is none
    Special value = Special::nan;
    int array = -1; // among those that are read; -1: each
};

// Scalars that pass all checks, arrays as long as "length" asks for (lengths in extents: that value or, where there are
// several, values up to it), filled with the pattern. What is only written holds "prefill". A function all of whose
// lengths are those of its state gets a state of that length. With "maker" some scalars are given.
Arguments build(const Function& f, Random& random, long long length, Pattern pattern, uint64_t prefill,
                const Outlier& outlier = {}, const Maker* maker = nullptr);

// The number that a pointer argument has at first (a double or an int).
void setNumber(Arguments& a, int argument, double number);

// The same call on the data that follow: new contents for what is read, the same states.
void further(Arguments& a, Random& random, Pattern pattern);

bool takesState(const Function& f);    // made by another call
bool updatesState(const Function& f);  // ... and changed by this one
bool releasesState(const Function& f); // ... or given back

} // namespace registry
