// Hosts may run with floating-point exceptions unmasked: no body raises one that its elements do not raise, and
// arithmetic on integers raises none.
#include "variants/subject.h"
#include <gtest/gtest.h>
#include <limits>

namespace {

using registry::Function;
using registry::Pattern;
using variants::Subject;

// What hosts unmask. Results are inexact, and now and then denormal, everywhere.
constexpr uint32_t invalid = 1, divisionByZero = 4, overflow = 8, watched = invalid | divisionByZero | overflow;
constexpr uint32_t allMasked = 0x1F80;

std::string names(uint32_t flags)
{
    return std::string(flags & invalid ? " invalid" : "") + (flags & divisionByZero ? " division by zero" : "") +
           (flags & overflow ? " overflow" : "");
}

using L = std::numeric_limits<double>;

// Numbers of ordinary size, and among them, as often as asked for, others.
class Mixture : public variants::Numbers
{
public:
    Mixture(registry::Random& random, std::vector<double> others, int oneIn)
        : random_(random), others_(std::move(others)), oneIn_(oneIn)
    {
    }
    double next() override
    {
        if (!others_.empty() && random_.oneIn(oneIn_))
            return others_[static_cast<size_t>(random_.below(static_cast<long long>(others_.size())))];
        return static_cast<double>(random_.below(2001) - 1000) / 64 + 0.001;
    }

private:
    registry::Random& random_;
    std::vector<double> others_;
    int oneIn_;
};

const struct {
    const char* name;
    std::vector<double> others;
    int oneIn;
} kinds[] = {
    {"ordinary numbers", {}, 1},
    {"small whole numbers", {0, -0.0, 1, -1, 2, 3, -4, 7}, 1},
    {"zeros", {0, -0.0}, 2},
    {"large numbers", {4e9, -3e9, 0x1p31, -0x1p31, 0x1p32, 1e12, -1e19, 1e30, 1e38}, 2},
    {"huge numbers", {1e300, -1e300, L::max(), L::lowest()}, 2},
    {"tiny numbers", {L::min(), L::denorm_min(), -L::denorm_min(), 1e-300, 1e-310}, 2},
    {"a not-a-number", {L::quiet_NaN()}, 40},
    {"an infinity", {L::infinity(), -L::infinity()}, 40},
    {"an infinite divisor or a zero", {L::infinity(), 0}, 40},
};

class Exceptions
{
public:
    explicit Exceptions(const Function& f) : subject_(f) {}

    void run()
    {
        for (int n = 0; n <= 67; ++n)
            for (const auto& kind : kinds) {
                registry::Random random(static_cast<uint64_t>(n));
                registry::Arguments a = registry::build(subject_.function(), random, n, Pattern::tame, 0);
                if (!a.valid()) continue;
                if (!subject_.onIntegers()) Mixture(random, kind.others, kind.oneIn).replaceIn(a);
                probe(a, kind.name);
                if (failed_) return;
                if (subject_.onIntegers() && &kind - kinds == 3) break;
            }
    }
    long long calls() const { return subject_.calls(); }
    long long unmasked() const { return unmasked_; }

private:
    void probe(registry::Arguments& a, const char* kind)
    {
        support::force(subject_.bodies()[0]);
        registry::surroundings.mxcsr = allMasked;
        const uint32_t expected = subject_.call(a, {true, 0}).answer.raised & watched;
        if (subject_.onIntegers() && expected) fail(a, subject_.bodies()[0], kind, expected);
        for (const support::Variant& v : subject_.bodies()) {
            if (failed_) return;
            support::force(v);
            registry::surroundings.mxcsr = allMasked;
            const uint32_t more = subject_.call(a, {true, 0}).answer.raised & watched & ~expected;
            if (more) return fail(a, v, kind, more);
            registry::surroundings.mxcsr = allMasked & ~((watched & ~expected) << 7);
            subject_.call(a, {true, 0}); // which ends the program if an exception is raised after all
            ++unmasked_;
        }
    }

    void fail(const registry::Arguments& a, const support::Variant& v, const char* kind, uint32_t flags)
    {
        failed_ = true;
        std::string extents;
        for (int i = 0; i < a.f.argCount; ++i)
            extents +=
                std::string(" ") + a.f.args[i].name + " " + std::to_string(a.extent[i] ? a.extent[i] : a.values[i].i);
        ADD_FAILURE() << support::nameOf(a.f) << " in " << v.code << " with " << kind << " raises" << names(flags)
                      << ":" << extents;
    }

    Subject subject_;
    long long unmasked_ = 0;
    bool failed_ = false;
};

} // namespace

TEST(Exceptions, AreThoseOfTheElements)
{
    long long calls = 0, unmasked = 0;
    for (const Function& f : registry::functions()) {
        if (!Subject::suits(f)) continue;
        Exceptions exceptions(f);
        exceptions.run();
        calls += exceptions.calls();
        unmasked += exceptions.unmasked();
    }
    registry::surroundings = {};
    std::printf("%lld calls, %lld with exceptions unmasked\n", calls, unmasked);
    EXPECT_GT(unmasked, 100000);
}
