// The variant in use and the functions that expose it. The process-wide words are relaxed atomics without a lock:
// concurrent first calls store the same values.
#include "frame/selection.h"
#include "frame/cache.h"
#include "frame/detected.h"
#include "frame/features.h"
#include <atomic>

int sig5d_variant = -1;
size_t sig5d_stream_bytes = ~size_t(0);

namespace sig5d {
namespace {

constexpr auto relaxed = std::memory_order_relaxed;
constexpr u64 unselected = u64(1) << 63; // a mark beside the first value, which a caller may also select

std::atomic<u64> enabled = unselected | FeatureMmx | FeatureSse;

u64 enabledFeatures() { return enabled.load(relaxed) & ~unselected; }

void setStreamBytes() { __atomic_store_n(&sig5d_stream_bytes, streamBytes(detectedCache()), __ATOMIC_RELAXED); }

void use(const Selection& s)
{
    setStreamBytes();
    enabled.store(s.enabled, relaxed);
    __atomic_store_n(&sig5d_variant, s.variant, __ATOMIC_RELAXED);
}

// The initialiser's choice never replaces one that a caller makes at the same time.
void useFirst(const Selection& s)
{
    setStreamBytes();
    u64 word = unselected | FeatureMmx | FeatureSse;
    enabled.compare_exchange_strong(word, s.enabled, relaxed);
    int variant = -1;
    __atomic_compare_exchange_n(&sig5d_variant, &variant, s.variant, false, __ATOMIC_RELAXED, __ATOMIC_RELAXED);
}

Status getFeatures(u64* features, u32* registers)
{
    constexpr u64 leafGiven = 0x616F666E69746567; // "getinfoa" in memory order
    if (!thisProcessor.identifiable()) return StsNotSupportedCpu;
    if (!features) return StsNullPtrErr;
    if (registers) {
        const bool given = *features == leafGiven;
        const CpuidRegs r = thisProcessor.cpuid(given ? registers[0] : 1, given ? registers[2] : 0);
        registers[0] = r.eax;
        registers[1] = r.ebx;
        registers[2] = r.ecx;
        registers[3] = r.edx;
    }
    *features = detectedFeatures();
    return StsNoErr;
}

Status setFeatures(u64 requested)
{
    Selection chosen;
    if (requested & DoNotCompare) {
        overrideDetectedFeatures(enabledFeatures());
        chosen = select(requested & ~DoNotCompare);
    } else {
        chosen = selectAgainst(requested, detectedFeatures());
    }
    use(chosen);
    return chosen.status;
}

} // namespace

#include "entries/frame/selection.inc"
} // namespace sig5d

extern "C" void sig5d_initialise()
{
    using namespace sig5d;
    const u64 word = detectedFeatures();
    useFirst(thisProcessor.identifiable() ? selectAgainst(word, word)
                                          : Selection{0, FeatureMmx | FeatureSse, StsNoErr});
}
