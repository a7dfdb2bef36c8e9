#include "machine.h"
#include "frame/cache.h"
#include "frame/selection.h"
#include "sig5d.h"

using namespace sig5d;

namespace machine {
namespace {

Recorded processor;
std::vector<Interruption> coming;
int passed;
size_t rounds; // of leaf 2

} // namespace

void comeInBetween()
{
    ++passed;
    if (coming.empty() || coming.front().place != passed) return;
    const auto call = coming.front().call;
    coming.erase(coming.begin());
    call();
}

void start(const Recorded& r)
{
    processor = r;
    coming.clear();
    rounds = 0;
    for (SharedWord* word : SharedWord::all()) word->reset();
    sig5d_stream_bytes = ~size_t(0);
}

int variant() { return static_cast<i32>(sig5d_variant.now()); }
u64 enabled() { return ippGetEnabledCpuFeatures(); }
size_t streamingStart() { return sig5d_stream_bytes; }
void firstCall()
{
    if (variant() < 0) sig5d_initialise();
}

int run(const std::function<void()>& call, std::vector<Interruption> interruptions)
{
    passed = 0;
    coming = std::move(interruptions);
    call();
    coming.clear();
    return passed;
}

namespace {

bool identifiable()
{
    comeInBetween();
    return processor.identifiable;
}

CpuidRegs cpuid(u32 leaf, u32 subleaf)
{
    comeInBetween();
    const size_t round = leaf == 2 ? rounds++ % (processor.rounds.size() + 1) : 0;
    return processor.answer(leaf, subleaf, round);
}

} // namespace
} // namespace machine

const Processor sig5d::thisProcessor = {machine::identifiable, machine::cpuid, [] { return machine::processor.xcr0; },
                                        [] { return machine::processor.mxcsrMask; }};
