// Streaming stores of conversions, byte swaps and complex thresholds on short arrays, in kernels compiled for this
// test: the result is that of ordinary stores, wherever the destination stands, and nothing beside it changes.
#include "frame/cache.h"
#include "sig5d_types.h"
#include "support/bytes.h"

#ifndef SIG5D_STATIC // a static library brings its own
size_t sig5d_stream_bytes;
#endif

#define BODIES(name, arguments)                                                \
    extern "C" IppStatus SIG5D_STDCALL sig5d_convertstream16_##name arguments; \
    extern "C" IppStatus SIG5D_STDCALL sig5d_convertstream32_##name arguments;
BODIES(ippsConvert_32s24s_Sfs, (const Ipp32s*, Ipp8u*, int, int))
BODIES(ippsConvert_32f24u_Sfs, (const Ipp32f*, Ipp8u*, int, int, int))
BODIES(ippsConvert_24s32f, (const Ipp8u*, Ipp32f*, int))
BODIES(ippsConvert_32f8u_Sfs, (const Ipp32f*, Ipp8u*, int, int, int))
BODIES(ippsConvert_64f32s_Sfs, (const Ipp64f*, Ipp32s*, int, int, int))
BODIES(ippsSwapBytes_24u, (const Ipp8u*, Ipp8u*, int))
BODIES(ippsThreshold_LTVal_64fc, (const Ipp64fc*, Ipp64fc*, int, Ipp64f, Ipp64fc))

using support::Bytes;
using support::noise;

namespace {

constexpr size_t most = 700, margin = 64;

class ConvertStream : public testing::TestWithParam<int>
{
protected:
    void SetUp() override
    {
        if (GetParam() == 32 && !__builtin_cpu_supports("avx2")) GTEST_SKIP() << "no AVX2";
    }
    void TearDown() override { sig5d_stream_bytes = ~size_t(0); }
    template <class F> F pick(F narrow, F wide) { return GetParam() == 16 ? narrow : wide; }

    // run(d, n) writes n elements of so many bytes.
    template <class Run> void expectSame(size_t bytes, size_t step, Run run)
    {
        for (size_t n = 1; n <= most; n += n < 200 ? 1 : 29)
            for (size_t to = 0; to < 48; to += step) {
                Bytes ordinary = noise(most * bytes + margin, 9), streamed = ordinary;
                sig5d_stream_bytes = ~size_t(0);
                EXPECT_EQ(run(&ordinary[to], static_cast<int>(n)), 0);
                sig5d_stream_bytes = 0;
                EXPECT_EQ(run(&streamed[to], static_cast<int>(n)), 0);
                ASSERT_EQ(streamed, ordinary) << n << ' ' << to;
                const Bytes before = noise(most * bytes + margin, 9);
                const auto tail = static_cast<std::ptrdiff_t>(to + n * bytes);
                ASSERT_TRUE(std::equal(before.begin() + tail, before.end(), streamed.begin() + tail)) << n << ' ' << to;
            }
    }
};
#define PICK(name) pick(sig5d_convertstream16_##name, sig5d_convertstream32_##name)

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
    expectSame(3, 1, [&](void* d, int n) {
        return PICK(ippsConvert_32s24s_Sfs)(integers.data(), static_cast<Ipp8u*>(d), n, 1);
    });
    expectSame(3, 1, [&](void* d, int n) {
        return PICK(ippsConvert_32f24u_Sfs)(singles.data(), static_cast<Ipp8u*>(d), n, 2, -3);
    });
    expectSame(4, 4,
               [&](void* d, int n) { return PICK(ippsConvert_24s32f)(bytes.data(), static_cast<Ipp32f*>(d), n); });
    expectSame(1, 1, [&](void* d, int n) {
        return PICK(ippsConvert_32f8u_Sfs)(singles.data(), static_cast<Ipp8u*>(d), n, 1, 0);
    });
    expectSame(4, 4, [&](void* d, int n) {
        return PICK(ippsConvert_64f32s_Sfs)(doubles.data(), static_cast<Ipp32s*>(d), n, 1, 0);
    });
    expectSame(3, 1, [&](void* d, int n) { return PICK(ippsSwapBytes_24u)(&bytes[1], static_cast<Ipp8u*>(d), n); });
    expectSame(16, 8, [&](void* d, int n) {
        return PICK(ippsThreshold_LTVal_64fc)(complex.data(), static_cast<Ipp64fc*>(d), n, 90, Ipp64fc{1, 2});
    });
}

INSTANTIATE_TEST_SUITE_P(Widths, ConvertStream, testing::Values(16, 32), testing::PrintToStringParamName());
