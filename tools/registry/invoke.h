// Calls a function of the interface with argument values, by what the registry says of it.
#pragma once
#include "checked_call.h"
#include "registry.h"
#include <string>
#include <vector>

namespace registry {

struct Answer {
    long long status = 0;  // the result as an integer: status, count, 64-bit value, pointer
    double number = 0;     // the result of a function that returns a double
    std::string intrusion; // what the call changed that it must not; empty: nothing
    uint32_t raised = 0;   // exception flags in MXCSR that the call set
    size_t stackBytes = 0; // how deep it went, as far as the stack was painted
};

// What calls run with, from now on.
struct Surroundings {
    uint32_t mxcsr = 0;      // modes and masks, without flags; 0: the caller's
    uint32_t control = 0;    // of x87; 0: the caller's
    size_t paintedStack = 0; // bytes below the stack pointer that are looked at
};
extern Surroundings surroundings;

// The plain form, or the argument list of an _Idx form that is written out.
Answer invoke(Entry entry, const Function& f, const Value* values, int stackPhase = 0);
// The _Idx form by rule: index k belongs to the k-th array or work buffer.
Answer invokeIndexed(Entry entry, const Function& f, const Value* values, const int* indexes, int stackPhase = 0);

bool takesIndex(const Arg& a);

// Where the platform's convention puts the arguments of a call.
struct CallWords {
    uintptr_t integers[6] = {}; // registers of x86-64
    double floats[8] = {};
    std::vector<uintptr_t> stack;
    int firstDouble = -1; // place on the stack of the first 8-byte argument of 32-bit code; -1: none
};
CallWords wordsOf(const Function& f, const Value* values);                            // as invoke calls
CallWords wordsOfIndexed(const Function& f, const Value* values, const int* indexes); // as invokeIndexed calls

} // namespace registry
