// The identification instructions of the processor that runs this.
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

} // namespace sig5d
