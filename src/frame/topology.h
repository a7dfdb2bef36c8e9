// What CPUID tells about caches and cores.
#pragma once
#include "frame/cpuid.h"
#include <stddef.h>

namespace sig5d {

struct CacheSize {
    i32 bytes;     // of the largest data or unified cache; 0: none found, -1: the processor cannot be identified
    Status status; // StsNoErr, StsUnknownCacheSize, StsNotSupportedCpu
};

CacheSize readCacheSize(const Identity& id);

// From how many written bytes on streaming stores pay, given the largest cache.
size_t streamBytes(CacheSize largest);

int coresPerPackage(const Identity& id);

} // namespace sig5d
