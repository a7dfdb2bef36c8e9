// Streaming stores on short arrays: the kernels are compiled again for two widths and told to stream from the first
// byte on, which in the library only arrays beyond the caches do.
#include "frame/cache.h"
#include "sig5d_types.h"
#include "support/bytes.h"
#include <algorithm>
#include <cstring>

#ifndef SIG5D_STATIC // a static library brings its own
size_t sig5d_stream_bytes;
#endif

#define BODIES(name, arguments)                                         \
    extern "C" IppStatus SIG5D_STDCALL sig5d_stream16_##name arguments; \
    extern "C" IppStatus SIG5D_STDCALL sig5d_stream32_##name arguments;
BODIES(ippsCopy_8u, (const Ipp8u*, Ipp8u*, int))
BODIES(ippsMove_8u, (const Ipp8u*, Ipp8u*, int))
BODIES(ippsSet_64fc, (Ipp64fc, Ipp64fc*, int))
BODIES(ippsXor_8u, (const Ipp8u*, const Ipp8u*, Ipp8u*, int))
BODIES(ippsNot_8u_I, (Ipp8u*, int))
BODIES(ippsFlip_16u, (const Ipp16u*, Ipp16u*, int))
BODIES(ippsAdd_8u_Sfs, (const Ipp8u*, const Ipp8u*, Ipp8u*, int, int))
BODIES(ippsSubC_32sc_Sfs, (const Ipp32sc*, Ipp32sc, Ipp32sc*, int, int))
BODIES(ippsSubC_32sc_ISfs, (Ipp32sc, Ipp32sc*, int, int))

using support::Bytes;
using support::noise;

namespace {

class Stream : public testing::TestWithParam<int>
{
protected:
    void SetUp() override
    {
        sig5d_stream_bytes = 0;
        if (GetParam() == 32 && !__builtin_cpu_supports("avx2")) GTEST_SKIP() << "no AVX2";
    }
    template <class F> F pick(F narrow, F wide) { return GetParam() == 16 ? narrow : wide; }
};
#define PICK(name) pick(sig5d_stream16_##name, sig5d_stream32_##name)

} // namespace

TEST_P(Stream, OneAndTwoSourcesAnywhere)
{
    const Bytes a = noise(1400), b = noise(1400, 2), before = noise(1400, 3);
    for (size_t n = 1; n <= 1300; n += n < 300 ? 1 : 23)
        for (size_t to = 0; to < 40; to += 3) {
            Bytes d = before, expected = before;
            std::copy_n(&a[7], n, &expected[to]);
            PICK(ippsCopy_8u)(&a[7], &d[to], static_cast<int>(n));
            ASSERT_EQ(d, expected) << n << ' ' << to;
            for (size_t i = 0; i < n; ++i) expected[to + i] = a[i] ^ b[5 + i];
            PICK(ippsXor_8u)(&a[0], &b[5], &d[to], static_cast<int>(n));
            ASSERT_EQ(d, expected) << n << ' ' << to;
        }
}

TEST_P(Stream, OverlapAndInPlace)
{
    for (size_t n : {1u, 200u, 513u, 1000u}) {
        for (size_t to : {0u, 1u, 31u, 33u, 64u, 70u, 200u}) {
            Bytes d = noise(1500), expected = d;
            const Bytes source = d;
            std::copy_n(&source[64], n, &expected[to]);
            PICK(ippsMove_8u)(&d[64], &d[to], static_cast<int>(n));
            ASSERT_EQ(d, expected) << n << ' ' << to;
        }
        Bytes d = noise(1500), expected = d;
        for (size_t i = 0; i < n; ++i) expected[3 + i] = static_cast<unsigned char>(~d[3 + i]);
        PICK(ippsNot_8u_I)(&d[3], static_cast<int>(n));
        ASSERT_EQ(d, expected) << n;
    }
}

TEST_P(Stream, FillsAndFlips)
{
    const Ipp64fc value = {1.5, -2.5};
    const Bytes a = noise(2 * 700);
    for (size_t n : {1u, 9u, 40u, 41u, 300u, 613u})
        for (size_t to = 0; to < 40; to += 2) { // where elements reach no aligned address, ordinary stores
            Bytes d = noise(16 * 700), expected = d;
            for (size_t i = 0; i < n; ++i) std::memcpy(&expected[to + 16 * i], &value, 16);
            PICK(ippsSet_64fc)(value, reinterpret_cast<Ipp64fc*>(&d[to]), static_cast<int>(n));
            ASSERT_EQ(d, expected) << n << ' ' << to;
            for (size_t i = 0; i < n; ++i) std::memcpy(&expected[to + 2 * i], &a[2 * (n - 1 - i)], 2);
            PICK(ippsFlip_16u)
            (reinterpret_cast<const Ipp16u*>(a.data()), reinterpret_cast<Ipp16u*>(&d[to]), static_cast<int>(n));
            ASSERT_EQ(d, expected) << n << ' ' << to;
        }
}

TEST_P(Stream, ScaledSums)
{
    const Bytes a = noise(1400), b = noise(1400, 2), before = noise(1400, 3);
    const Ipp32sc value = {1000, -70000};
    for (size_t n = 1; n <= 1300; n += n < 150 ? 1 : 23)
        for (size_t to = 0; to < 40; to += 4) { // where numbers reach no aligned address, ordinary stores
            Bytes d = before, expected = before;
            for (size_t i = 0; i < n; ++i)
                expected[to + i] = static_cast<unsigned char>(std::min(2 * (a[i] + b[5 + i]), 255));
            PICK(ippsAdd_8u_Sfs)(&a[0], &b[5], &d[to], static_cast<int>(n), -1);
            ASSERT_EQ(d, expected) << n << ' ' << to;

            std::vector<Ipp32sc> source(n), difference(n), place(n + 6);
            for (size_t i = 0; i < n; ++i) {
                const int x = a[i] - 100, y = 3 * b[i];
                source[i] = {x, y};
                difference[i] = {x - value.re, y - value.im};
            }
            auto* const p = reinterpret_cast<Ipp32sc*>(reinterpret_cast<unsigned char*>(place.data()) + to);
            PICK(ippsSubC_32sc_Sfs)(source.data(), value, p, static_cast<int>(n), 0);
            ASSERT_EQ(std::memcmp(p, difference.data(), 8 * n), 0) << n << ' ' << to;
            std::memcpy(p, source.data(), 8 * n);
            PICK(ippsSubC_32sc_ISfs)(value, p, static_cast<int>(n), 0);
            ASSERT_EQ(std::memcmp(p, difference.data(), 8 * n), 0) << n << ' ' << to;
        }
}

INSTANTIATE_TEST_SUITE_P(Widths, Stream, testing::Values(16, 32), testing::PrintToStringParamName());
