// A complete, valid set of arguments for a function, as data that can be placed anywhere in memory: scalars, the extents
// that follow from them, and the initial bytes of every array.
#pragma once
#include "registry.h"
#include "values.h"
#include <functional>
#include <vector>

namespace registry {

struct Arguments {
    explicit Arguments(const Function& function);

    const Function& f;
    std::vector<Value> values;
    std::vector<long long> extent; // of each pointer argument: elements (bytes for buffers and opaque records)
    std::vector<std::vector<uint8_t>> content; // initial bytes of each pointer argument
    std::vector<bool> null; // pointer arguments that are null

    size_t bytes(int argument) const;
    bool valid() const; // no check fails
};

// Builds what does not follow from the description: filter specifications, states, index lists. Each step is optional
// and runs after the general one: scalars chosen, extents computed, arrays filled.
struct Fixture {
    std::function<void(Arguments&, Random&, long long length)> scalars;
    std::function<void(Arguments&)> extents;
    std::function<void(Arguments&, Random&)> contents;
    std::function<void(const Arguments&)> release; // after a call: what it allocated
};
void addFixture(const char* name, Fixture fixture);

// One element of what is read that differs from the rest: in each array, or in one of them alone.
struct Outlier {
    long long position = -1; // counted round and round in shorter arrays; -1: there is none
    Special value = Special::nan;
    int array = -1; // among those that are read; -1: each
};

// Scalars that pass all checks, arrays as long as "length" asks for (lengths in extents: that value or, where there are
// several, values up to it), filled with the pattern. What is only written holds "prefill" again and again.
Arguments build(const Function& f, Random& random, long long length, Pattern pattern, uint64_t prefill,
                const Outlier& outlier = {});

// Gives back what a call with these arguments allocated.
void release(const Arguments& a);

// Scalars only; false when no valid ones were found.
bool chooseScalars(Arguments& a, Random& random, long long length, Pattern pattern);

} // namespace registry
