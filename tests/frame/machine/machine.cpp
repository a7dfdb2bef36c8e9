#include "machine.h"
#include "frame/cache.h"
#include "frame/selection.h"
#include "sig5d.h"
#include <condition_variable>
#include <mutex>
#include <thread>

using namespace sig5d;

namespace machine {
namespace {

Recorded processor;
std::vector<Interruption> coming;
int passed, leaves;
size_t rounds; // of leaf 2

// Set by one thread, awaited and taken by another. (With std::binary_semaphore the threads hung under Wine.)
class Signal
{
public:
    void set()
    {
        const std::lock_guard lock(mutex_);
        isSet_ = true;
        changed_.notify_one();
    }
    void take()
    {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return isSet_; });
        isSet_ = false;
    }

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    bool isSet_ = false;
};

// A thread that stops at an access.
class Runner
{
public:
    Runner(const std::function<void()>& call, int stop) : stop_(stop)
    {
        thread_ = std::thread([this, &call] {
            self = this;
            call();
            ended_ = true;
            resting_.set();
        });
        resting_.take();
    }
    bool atStop() const { return !ended_; }
    void toTheEnd()
    {
        if (!ended_) {
            go_.set();
            resting_.take();
        }
        thread_.join();
    }
    void pass()
    {
        if (++passed_ != stop_) return;
        resting_.set();
        go_.take();
    }
    static inline thread_local Runner* self = nullptr;

private:
    int stop_, passed_ = 0;
    bool ended_ = false;
    Signal resting_, go_;
    std::thread thread_;
};

} // namespace

void comeInBetween()
{
    if (Runner::self) return Runner::self->pass();
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
    leaves = 0;
    for (SharedWord* word : SharedWord::all()) word->reset();
    sig5d_stream_bytes = ~size_t(0);
}

int body() { return static_cast<i32>(sig5d_variant.now()); }
u64 enabled() { return ippGetEnabledCpuFeatures(); }
int leavesAsked() { return leaves; }
size_t streamingStart() { return sig5d_stream_bytes; }
void firstCall()
{
    if (body() < 0) sig5d_initialise();
}

int run(const std::function<void()>& call, std::vector<Interruption> interruptions)
{
    passed = 0;
    coming = std::move(interruptions);
    call();
    coming.clear();
    return passed;
}

bool cross(const std::function<void()>& first, int firstStop, const std::function<void()>& second, int secondStop)
{
    Runner a(first, firstStop);
    Runner b(second, secondStop);
    const bool stopped = a.atStop() && b.atStop();
    a.toTheEnd();
    b.toTheEnd();
    return stopped;
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
    ++leaves;
    const size_t round = leaf == 2 ? rounds++ % (processor.rounds.size() + 1) : 0;
    return processor.answer(leaf, subleaf, round);
}

} // namespace
} // namespace machine

const Processor sig5d::thisProcessor = {machine::identifiable, machine::cpuid, [] { return machine::processor.xcr0; },
                                        [] { return machine::processor.mxcsrMask; }};
