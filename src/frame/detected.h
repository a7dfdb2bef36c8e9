// What detection found: process-wide words, filled once by whoever asks first.
#pragma once
#include "frame/topology.h"

namespace sig5d {

u64 detectedFeatures(); // 0: the processor cannot be identified
CacheSize detectedCache();
bool detectedBeyondVariants(); // whether the body beyond the variants can run, whatever overrides the word

void overrideDetectedFeatures(u64 word); // from now on requests are compared with this word

} // namespace sig5d
