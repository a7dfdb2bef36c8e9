#include "frame/cpuid.h"
#include <cpuid.h>

namespace sig5d {
namespace {

bool identifiable() { return __get_cpuid_max(0, nullptr) != 0; }

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

} // namespace

const Processor thisProcessor = {identifiable, cpuid, xgetbv};

} // namespace sig5d
