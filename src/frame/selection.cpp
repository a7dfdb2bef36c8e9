// The variant in use and the functions that expose it. The process-wide words have no lock.
#include "frame/selection.h"
#include "frame/cache.h"
#include "frame/detected.h"
#include "frame/features.h"

sig5d::SharedWord sig5d_variant = 0xFFFFFFFF;
size_t sig5d_stream_bytes = ~size_t(0);

namespace sig5d {
namespace {

constexpr u64 unselected = u64(1) << 63; // a mark beside the first value, which a caller may also select
constexpr u64 enabledBefore = unselected | FeatureMmx | FeatureSse;

SharedWord enabled = enabledBefore;

u64 enabledFeatures() { return enabled.load() & ~unselected; }

// After a change of the enabled word: the variant is made from whatever word stands now, so that calls at the same time
// never leave the variant of one with the word of another. The count refuses a variant that was made from a word before
// another call replaced it and was done.
void useEnabled()
{
    __atomic_store_n(&sig5d_stream_bytes, streamBytes(detectedCache()), __ATOMIC_RELAXED);
    const bool runsBeyond = detectedBeyondVariants();
    u64 before = sig5d_variant.load(), after;
    do {
        const u64 count = (before >> 32) + 1;
        after = count << 32 | static_cast<u32>(bodyFor(enabledFeatures(), runsBeyond));
    } while (!sig5d_variant.replace(before, after));
}

void use(u64 word)
{
    enabled.store(word);
    useEnabled();
}

// The initialiser's choice never replaces one that a caller makes at the same time.
void useFirst(u64 word)
{
    u64 expected = enabledBefore;
    enabled.replace(expected, word);
    useEnabled();
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
    use(chosen.enabled);
    return chosen.status;
}

} // namespace

#include "entries/frame/selection.inc"
} // namespace sig5d

extern "C" void sig5d_initialise()
{
    using namespace sig5d;
    const u64 word = detectedFeatures();
    useFirst(thisProcessor.identifiable() ? selectAgainst(word, word).enabled : FeatureMmx | FeatureSse);
}
