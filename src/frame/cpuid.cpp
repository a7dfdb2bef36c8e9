#include "frame/cpuid.h"

namespace sig5d {

Identity identify(const Processor& p)
{
    Identity id{p};
    if (!p.identifiable()) return id;
    const CpuidRegs zero = p.cpuid(0, 0);
    id.maxLeaf = zero.eax;
    id.intel = zero.ebx == 0x756E6547 && zero.edx == 0x49656E69 && zero.ecx == 0x6C65746E;
    id.amd = zero.ecx == 0x444D4163;
    // Processors without extended leaves answer with the data of another leaf.
    const u32 extended = p.cpuid(0x80000000, 0).eax;
    if (extended >> 16 == 0x8000) id.maxExtended = extended;
    if (id.maxExtended >= 0x80000001) id.extendedFeatures = p.cpuid(0x80000001, 0).ecx;
    return id;
}

} // namespace sig5d
