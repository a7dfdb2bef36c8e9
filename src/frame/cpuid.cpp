#include "frame/cpuid.h"
#include <cpuid.h>

namespace sig5d {
namespace {

// CPUID exists where the identification flag of the flags register can be changed: always in 64-bit code.
bool identifiable()
{
#ifdef __x86_64__
    return true;
#else
    u32 changed, before;
    __asm__ volatile("pushfl\n\t"
                     "pushfl\n\t"
                     "popl %0\n\t"
                     "movl %0, %1\n\t"
                     "xorl $0x200000, %0\n\t"
                     "pushl %0\n\t"
                     "popfl\n\t"
                     "pushfl\n\t"
                     "popl %0\n\t"
                     "popfl"
                     : "=&r"(changed), "=&r"(before)::"cc");
    return (changed ^ before) & 0x200000;
#endif
}

CpuidRegs cpuid(u32 leaf, u32 subleaf)
{
    CpuidRegs r;
    __cpuid_count(leaf, subleaf, r.eax, r.ebx, r.ecx, r.edx);
    return r;
}

u64 xgetbv()
{
    u32 low, high;
    __asm__ volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
    return static_cast<u64>(high) << 32 | low;
}

u32 mxcsrMask()
{
    alignas(16) u32 area[128];
    __asm__ volatile("fxsave %0" : "=m"(area));
    return area[7] ? area[7] : 0xFFBF; // 0 on the first processors with SSE: all but denormals-are-zero
}

} // namespace

const Processor thisProcessor = {identifiable, cpuid, xgetbv, mxcsrMask};

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
