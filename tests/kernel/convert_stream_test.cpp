// Streaming stores of conversions, byte swaps and complex thresholds: the result is that of ordinary stores, wherever
// the destination stands, and nothing beside it changes.
#include "kernel/streaming.h"
#include "sig5d.h"
#include "support/bytes.h"

using support::Bytes;
using support::noise;

namespace {

constexpr size_t most = 700, margin = 64;

class ConvertStream : public support::Streaming
{
protected:
    // run(d, n) writes n elements of so many bytes.
    template <class Run> void expectSame(size_t bytes, size_t step, Run run)
    {
        for (size_t n = 1; n <= most; n += n < 200 ? 1 : 29)
            for (size_t to = 0; to < 48; to += step) {
                Bytes ordinary = noise(most * bytes + margin, 9), streamed = ordinary;
                streamNever();
                EXPECT_EQ(run(&ordinary[to], static_cast<int>(n)), 0);
                streamAlways();
                EXPECT_EQ(run(&streamed[to], static_cast<int>(n)), 0);
                ASSERT_EQ(streamed, ordinary) << n << ' ' << to;
                const Bytes before = noise(most * bytes + margin, 9);
                const auto tail = static_cast<std::ptrdiff_t>(to + n * bytes);
                ASSERT_TRUE(std::equal(before.begin() + tail, before.end(), streamed.begin() + tail)) << n << ' ' << to;
            }
    }
};

} // namespace

TEST_P(ConvertStream, IsTheSameAsOrdinary)
{
    const Bytes bytes = noise(16 * most);
    std::vector<Ipp32s> integers;
    std::vector<Ipp32f> singles;
    std::vector<Ipp64f> doubles;
    std::vector<Ipp64fc> complex;
    for (size_t i = 0; i < most; ++i) {
        integers.push_back((bytes[i] - 128) * 70001);
        singles.push_back((bytes[i] - 60) * 1.25f);
        doubles.push_back((bytes[i] - 60) * 1e7);
        complex.push_back({bytes[i] - 100.0, bytes[i + 1] - 100.0});
    }
    expectSame(3, 1,
               [&](void* d, int n) { return ippsConvert_32s24s_Sfs(integers.data(), static_cast<Ipp8u*>(d), n, 1); });
    expectSame(
        3, 1, [&](void* d, int n) { return ippsConvert_32f24u_Sfs(singles.data(), static_cast<Ipp8u*>(d), n, 2, -3); });
    expectSame(4, 4, [&](void* d, int n) { return ippsConvert_24s32f(bytes.data(), static_cast<Ipp32f*>(d), n); });
    expectSame(1, 1,
               [&](void* d, int n) { return ippsConvert_32f8u_Sfs(singles.data(), static_cast<Ipp8u*>(d), n, 1, 0); });
    expectSame(
        4, 4, [&](void* d, int n) { return ippsConvert_64f32s_Sfs(doubles.data(), static_cast<Ipp32s*>(d), n, 1, 0); });
    expectSame(3, 1, [&](void* d, int n) { return ippsSwapBytes_24u(&bytes[1], static_cast<Ipp8u*>(d), n); });
    expectSame(16, 8, [&](void* d, int n) {
        return ippsThreshold_LTVal_64fc(complex.data(), static_cast<Ipp64fc*>(d), n, 90, Ipp64fc{1, 2});
    });
}

INSTANTIATE_TEST_SUITE_P(Variants, ConvertStream, support::streamingVariants(), testing::PrintToStringParamName());
