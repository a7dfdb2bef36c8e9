// Processors by what their identification instructions answer: the virtual machine as it answered, the others put
// together from published values, with the leaves and registers that detection reads.
#pragma once
#include "frame/cpuid.h"
#include <map>
#include <string>
#include <utility>
#include <vector>

struct Recorded {
    std::string name;
    std::map<std::pair<sig5d::u32, sig5d::u32>, sig5d::CpuidRegs> leaves; // (leaf, subleaf); others answer with zeros
    std::vector<sig5d::CpuidRegs> rounds = {};                            // what leaf 2 answers when it is asked again
    sig5d::u64 xcr0 = 0;
    sig5d::u32 mxcsrMask = 0xFFFF;
    bool identifiable = true;

    // What detection must find.
    sig5d::u64 word;
    int variant;
    bool beyond = false; // whether the body beyond the variants can run
    sig5d::u64 enabled;
    int cacheBytes;
    int cores;

    int body() const { return beyond ? 6 : variant; } // that the first call selects
    sig5d::CpuidRegs answer(sig5d::u32 leaf, sig5d::u32 subleaf, size_t round = 0) const;
};

extern const Recorded recordedProcessors[];
extern const int recordedProcessorCount;
const Recorded& recorded(const char* start); // the first whose name starts so

// The processor to detect. It fails the running test when it is asked for a leaf that it does not have, more often than
// it has answers, or for anything when it has no CPUID.
sig5d::Processor play(const Recorded& r);
