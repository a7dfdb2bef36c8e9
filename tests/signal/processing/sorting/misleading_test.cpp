// Arrays that mislead the samples of each body, as often as they are trusted.
#include "signal/processing/sorting/misleading.h"
#include "support/bytes.h"
#include <algorithm>
#include <chrono>

using namespace support;

namespace {

// The shortest of some times, in seconds.
double timeOf(const std::vector<Ipp32s>& input)
{
    double best = 1e9;
    std::vector<Ipp32s> right = input;
    std::sort(right.begin(), right.end());
    for (int round = 0; round < 7; ++round) {
        std::vector<Ipp32s> x = input;
        const auto begin = std::chrono::steady_clock::now();
        call("ippsSortAscend_32s_I", (void*)x.data(), static_cast<int>(x.size()));
        best = std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
        EXPECT_EQ(x, right);
    }
    return best;
}

} // namespace

TEST(MisleadingKeys, CostLittleMore)
{
    for (const sorting::Body& body : {sorting::px(), sorting::p8(), sorting::h9()})
        for (const Variant& v : supported()) {
            if (std::string(v.code) != body.name) continue;
            force(v);
            const std::vector<Ipp32s> bad = body.misleading(100000);
            std::vector<Ipp32s> random = bad;
            std::shuffle(random.begin(), random.end(), std::mt19937(1));
            const double ratio = timeOf(bad) / timeOf(random);
            std::cout << body.name << ": " << ratio << " times as long as in random order\n";
            EXPECT_LT(ratio, 4); // 3 are promised; a busy machine measures badly
        }
}
