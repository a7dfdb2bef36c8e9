// Hosts may run in any rounding mode, with denormal numbers taken for zeros, and with x87 set to any precision: all
// bodies give the same bits there too, and arithmetic on integers always the same.
#include "variants/subject.h"
#include <gtest/gtest.h>

namespace {

using registry::Function;
using registry::Pattern;
using variants::Subject;

constexpr uint32_t allMasked = 0x1F80, denormalsAreZero = 0x8040; // operands and results
constexpr uint32_t x87Precisions[] = {0x037F, 0x027F, 0x007F};

const struct Mode {
    const char* name;
    uint32_t mxcsr;
} modes[] = {
    {"to nearest", allMasked},
    {"down", allMasked | 0x2000},
    {"up", allMasked | 0x4000},
    {"toward zero", allMasked | 0x6000},
    {"to nearest, without denormal numbers", allMasked | denormalsAreZero},
    {"down, without denormal numbers", allMasked | denormalsAreZero | 0x2000},
    {"operands without denormal numbers", allMasked | 0x40},
};

class Modes
{
public:
    explicit Modes(const Function& f) : subject_(f) {}

    void run()
    {
        for (int n = 0; n <= 67; ++n)
            for (int round = 0; round < 3 && !failed_; ++round) {
                const auto pattern = static_cast<Pattern>((n + round * 2) % static_cast<int>(Pattern::count));
                registry::Random random(static_cast<uint64_t>(n) * 100 + static_cast<uint64_t>(round));
                registry::Arguments a = registry::build(subject_.function(), random, n, pattern, 0);
                if (a.valid()) compare(a, n + round);
            }
    }
    long long calls() const { return subject_.calls(); }

private:
    void compare(registry::Arguments& a, int turn)
    {
        variants::Result ordinary;
        for (const Mode& mode : modes) {
            registry::surroundings.mxcsr = mode.mxcsr;
            registry::surroundings.control = x87Precisions[0];
            support::force(subject_.bodies()[0]);
            const variants::Result expected = subject_.call(a, {true, 0});
            if (&mode == modes) ordinary = expected;
            if (subject_.onIntegers())
                if (say(a, subject_.bodies()[0], mode, subject_.difference(a, ordinary, expected))) return;
            for (const support::Variant& v : subject_.bodies()) {
                if (v.index == 0) continue;
                support::force(v);
                registry::surroundings.control = x87Precisions[turn++ % 3];
                if (say(a, v, mode, subject_.difference(a, expected, subject_.call(a, {true, 0})))) return;
            }
        }
    }

    bool say(const registry::Arguments& a, const support::Variant& v, const Mode& mode, const std::string& what)
    {
        if (what.empty()) return false;
        failed_ = true;
        ADD_FAILURE() << support::nameOf(a.f) << " in " << v.code << ", " << mode.name << ": " << what;
        return true;
    }

    Subject subject_;
    bool failed_ = false;
};

} // namespace

TEST(Modes, ChangeAllBodiesAlike)
{
    long long calls = 0;
    for (const Function& f : registry::functions()) {
        if (!Subject::suits(f)) continue;
        Modes modes(f);
        modes.run();
        calls += modes.calls();
    }
    registry::surroundings = {};
    std::printf("%lld calls in all modes\n", calls);
    EXPECT_GT(calls, 500000);
}
