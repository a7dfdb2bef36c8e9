// Stores past the caches, which only arrays beyond them are worth, on short arrays anywhere: the bits are the same, and
// no byte beside them changes.
#include "support/module.h"
#include "variants/subject.h"
#include <cstring>
#include <gtest/gtest.h>

namespace {

using registry::Function;
using registry::Pattern;
using variants::Subject;

// The library has no switch for this: a test finds the word by the linker's map. Each choice of a variant sets it anew.
void streamFromTheFirstByteOn()
{
    static const support::Variable& threshold = support::libraryVariable("sig5d_stream_bytes");
    size_t bytes;
    ASSERT_EQ(threshold.bytes, sizeof bytes);
    std::memcpy(&bytes, threshold.at, sizeof bytes);
    ASSERT_TRUE(bytes == ~size_t(0) || (bytes >> 20 >= 1 && bytes >> 20 <= 32)) << bytes << " is no threshold";
    std::memset(threshold.at, 0, threshold.bytes);
}

std::vector<int> lengths()
{
    std::vector<int> all;
    for (int n = 0; n <= 67; ++n) all.push_back(n);
    // Three sections of 512 bytes, elements of 1 to 16 bytes.
    for (int n : {95, 97, 127, 128, 160, 193, 255, 300, 385, 420, 500, 769, 800, 1025, 1537, 1601, 1665, 3100})
        all.push_back(n);
    return all;
}

class Streaming
{
public:
    explicit Streaming(const Function& f) : subject_(f) {}

    void run()
    {
        int turn = 0;
        for (int n : lengths())
            for (int round = 0; round < 3 && !failed_; ++round) {
                registry::Random random(static_cast<uint64_t>(n) * 100 + static_cast<uint64_t>(round));
                const auto pattern = static_cast<Pattern>((n + round) % static_cast<int>(Pattern::count));
                registry::Arguments a = registry::build(subject_.function(), random, n, pattern, 0);
                if (a.valid()) compare(a, turn++);
            }
    }
    long long calls() const { return subject_.calls(); }

private:
    void compare(registry::Arguments& a, int turn)
    {
        const Function& f = subject_.function();
        support::force(subject_.bodies()[0]);
        const variants::Result expected = subject_.call(a, {true, 0});
        for (const support::Variant& v : subject_.bodies()) {
            if (v.index == 0) continue;
            support::force(v);
            streamFromTheFirstByteOn();
            for (bool atEnd : {true, false})
                if (differs(a, v, expected, {atEnd, turn * 4 % 64 + turn / 16 % 4})) return;
            if (differs(a, v, expected, {true, 0})) return;
            for (int k = 0; k < f.inPlaceCount; ++k) {
                const registry::InPlace& pair = f.inPlace[k];
                if (a.null[pair.source] || a.null[pair.destination]) continue;
                if (differs(a, v, expected, {true, turn * 4 % 64}, &pair)) return;
            }
        }
    }

    bool differs(registry::Arguments& a, const support::Variant& v, const variants::Result& expected,
                 support::Place place, const registry::InPlace* shared = nullptr)
    {
        const std::string what = subject_.difference(a, expected, subject_.call(a, place, shared));
        if (what.empty()) return false;
        failed_ = true;
        ADD_FAILURE() << support::nameOf(a.f) << " in " << v.code << ": " << what;
        return true;
    }

    Subject subject_;
    bool failed_ = false;
};

} // namespace

TEST(Streaming, ChangesNoBit)
{
    long long calls = 0;
    for (const Function& f : registry::functions()) {
        if (!Subject::suits(f)) continue;
        Streaming streaming(f);
        streaming.run();
        calls += streaming.calls();
    }
    support::force(support::supported().back());
    std::printf("%lld calls with stores past the caches\n", calls);
    EXPECT_GT(calls, 300000);
}
