// Concurrent first calls each detect, the first to finish stores, and all find the same values.
#include "frame/detected.h"
#include "frame/features.h"
#include "frame/shared_word.h"

namespace sig5d {
namespace {

constexpr u64 nothing = u64(1) << 63; // neither a feature word nor a cache word has this bit

SharedWord features = nothing;
SharedWord cache = nothing;  // the status above the size
SharedWord beyond = nothing; // 1: the body beyond the variants can run

u64 packed(CacheSize c) { return static_cast<u64>(c.status) << 32 | static_cast<u32>(c.bytes); }

void detect()
{
    const Identity id = identify(thisProcessor);
    // Only where nothing stands: a caller's override made meanwhile must stay.
    const u64 word = readFeatures(id);
    u64 expected = nothing;
    features.replace(expected, word);
    expected = nothing;
    cache.replace(expected, packed(readCacheSize(id)));
    expected = nothing;
    beyond.replace(expected, runsBeyondVariants(id, word));
}

u64 known(const SharedWord& word)
{
    if (word.load() == nothing) detect();
    return word.load();
}

} // namespace

u64 detectedFeatures() { return known(features); }

CacheSize detectedCache()
{
    const u64 word = known(cache);
    return {static_cast<i32>(word), static_cast<Status>(word >> 32)};
}

bool detectedBeyondVariants() { return known(beyond) == 1; }

void overrideDetectedFeatures(u64 word) { features.store(word); }

} // namespace sig5d
