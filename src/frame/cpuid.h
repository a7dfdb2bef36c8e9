// The processor identification instructions, behind an interface that tests replace with recorded processors.
#pragma once
#include "frame/types.h"

namespace sig5d {

struct CpuidRegs {
    u32 eax = 0, ebx = 0, ecx = 0, edx = 0;
};

struct Processor {
    bool (*identifiable)(); // false: no CPUID instruction
    CpuidRegs (*cpuid)(u32 leaf, u32 subleaf);
    u64 (*xgetbv)(); // extended control register 0; called only when CPUID says that the instruction is usable
};

extern const Processor thisProcessor;

} // namespace sig5d
