// Relaxed atomics: concurrent first calls each detect, the first to finish stores, and all store the same values.
#include "frame/detected.h"
#include "frame/features.h"
#include <atomic>

namespace sig5d {
namespace {

constexpr auto relaxed = std::memory_order_relaxed;
constexpr u64 nothing = u64(1) << 63; // neither a feature word nor a cache word has this bit

std::atomic<u64> features = nothing;
std::atomic<u64> cache = nothing; // the status above the size
static_assert(std::atomic<u64>::is_always_lock_free);

u64 packed(CacheSize c) { return static_cast<u64>(c.status) << 32 | static_cast<u32>(c.bytes); }

void detect()
{
    const Identity id = identify(thisProcessor);
    // Only where nothing stands: a caller's override made meanwhile must stay.
    u64 expected = nothing;
    features.compare_exchange_strong(expected, readFeatures(id), relaxed);
    expected = nothing;
    cache.compare_exchange_strong(expected, packed(readCacheSize(id)), relaxed);
}

u64 known(const std::atomic<u64>& word)
{
    if (word.load(relaxed) == nothing) detect();
    return word.load(relaxed);
}

} // namespace

u64 detectedFeatures() { return known(features); }

CacheSize detectedCache()
{
    const u64 word = known(cache);
    return {static_cast<i32>(word), static_cast<Status>(word >> 32)};
}

void overrideDetectedFeatures(u64 word) { features.store(word, relaxed); }

} // namespace sig5d
