// The processor's identification instructions, behind an interface that tests replace with recorded processors.
#pragma once
#include "frame/types.h"

namespace sig5d {

struct CpuidRegs {
    u32 eax = 0, ebx = 0, ecx = 0, edx = 0;
};

struct Processor {
    bool (*identifiable)(); // false: no CPUID instruction
    CpuidRegs (*cpuid)(u32 leaf, u32 subleaf);
    u64 (*xgetbv)();    // extended control register 0; called only when CPUID says that the instruction is usable
    u32 (*mxcsrMask)(); // the bits of MXCSR that exist; called only when CPUID says that FXSAVE and SSE are usable
};

extern const Processor thisProcessor;

// Who made the processor and which leaves it answers: read once per detection, because CPUID is slow in a virtual
// machine (some microseconds each).
struct Identity {
    Processor processor;
    u32 maxLeaf = 0;          // 0: leaf 1 and above do not exist
    u32 maxExtended = 0;      // below 0x80000001: no extended leaves
    u32 extendedFeatures = 0; // ECX of leaf 0x80000001
    bool intel = false;       // the leaf 0 string is "GenuineIntel"
    bool amd = false;         // it ends in "cAMD"

    bool topologyExtensions() const { return extendedFeatures >> 22 & 1; } // leaves 0x8000001D and 0x8000001E count
    CpuidRegs leaf(u32 number, u32 subleaf = 0) const { return processor.cpuid(number, subleaf); }
};

Identity identify(const Processor& p);

} // namespace sig5d
