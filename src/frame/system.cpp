// Queries about the processor and the calling thread's floating-point mode.
#include "frame/detected.h"
#include "frame/features.h"
#include "frame/frequency.h"
#include <time.h>
#include <x86intrin.h>

namespace sig5d {
namespace {

u64 clocks() { return __rdtsc(); }

i64 seconds()
{
#ifdef _WIN32
    return _time64(nullptr); // plain time has 32 bits there
#else
    return time(nullptr);
#endif
}

void frequency(int* mhz) { *mhz = averageMhz({clocks, seconds}); }

Status maxCacheSize(int* bytes)
{
    const CacheSize c = detectedCache();
    *bytes = c.bytes;
    return c.status;
}

int cores() { return coresPerPackage(identify(thisProcessor)); }

// The library starts no threads.
Status threads(int* count)
{
    *count = 1;
    return StsNoOperation;
}
Status setThreads(int) { return StsNoOperation; }

Status setDenormalsAreZeros(int value)
{
    constexpr u32 bit = 0x40;
    if (!hasDenormalsAreZeros(thisProcessor)) return StsCpuNotSupportedErr;
    _mm_setcsr(value ? _mm_getcsr() | bit : _mm_getcsr() & ~bit);
    return StsNoErr;
}

} // namespace

#include "entries/frame/system.inc"
} // namespace sig5d
