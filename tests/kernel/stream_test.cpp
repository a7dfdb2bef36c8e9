// Copies, logic, fills, blocks, transposes, complex numbers and scaled sums with streaming stores, wherever the
// destination stands.
#include "kernel/streaming.h"
#include "sig5d.h"
#include "support/bytes.h"
#include <algorithm>
#include <cstring>
#include <vector>

using support::Bytes;
using support::noise;
using Stream = support::Streaming;
using Size = unsigned;

TEST_P(Stream, OneAndTwoSourcesAnywhere)
{
    const Bytes a = noise(5000), b = noise(5000, 2), before = noise(5000, 3);
    for (size_t n = 1; n <= 4900; n += n < 300 ? 1 : n < 1300 ? 23 : 171) // from 1536 on in sections
        for (size_t to = 0; to < 40; to += 3) {
            Bytes d = before, expected = before;
            std::copy_n(&a[7], n, &expected[to]);
            ippsCopy_8u(&a[7], &d[to], static_cast<int>(n));
            ASSERT_EQ(d, expected) << n << ' ' << to;
            for (size_t i = 0; i < n; ++i) expected[to + i] = a[i] ^ b[5 + i];
            ippsXor_8u(&a[0], &b[5], &d[to], static_cast<int>(n));
            ASSERT_EQ(d, expected) << n << ' ' << to;
        }
}

TEST_P(Stream, OverlapAndInPlace)
{
    for (size_t n : {1u, 200u, 513u, 1000u, 1600u, 4000u}) {
        for (size_t to : {0u, 1u, 31u, 33u, 64u, 70u, 200u}) {
            Bytes d = noise(4500), expected = d;
            const Bytes source = d;
            std::copy_n(&source[64], n, &expected[to]);
            ippsMove_8u(&d[64], &d[to], static_cast<int>(n));
            ASSERT_EQ(d, expected) << n << ' ' << to;
        }
        Bytes d = noise(4500), expected = d;
        for (size_t i = 0; i < n; ++i) expected[3 + i] = static_cast<unsigned char>(~d[3 + i]);
        ippsNot_8u_I(&d[3], static_cast<int>(n));
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
            ippsSet_64fc(value, reinterpret_cast<Ipp64fc*>(&d[to]), static_cast<int>(n));
            ASSERT_EQ(d, expected) << n << ' ' << to;
            for (size_t i = 0; i < n; ++i) std::memcpy(&expected[to + 2 * i], &a[2 * (n - 1 - i)], 2);
            ippsFlip_16u(reinterpret_cast<const Ipp16u*>(a.data()), reinterpret_cast<Ipp16u*>(&d[to]),
                         static_cast<int>(n));
            ASSERT_EQ(d, expected) << n << ' ' << to;
        }
}

TEST_P(Stream, BlocksOfLongRows)
{
    const Bytes a = noise(5 * 4500), before = noise(5 * 4600, 2);
    for (Size cols : {4096u, 4111u, 4290u})
        for (size_t to : {0u, 1u, 17u, 40u}) {
            Bytes d = before, expected = before;
            for (size_t i = 0; i < 4; ++i) std::copy_n(&a[3 + i * 4400], cols, &expected[to + i * 4501]);
            ResizeMatrix_8u(&a[3], &d[to], 4, cols, 4400, 4501);
            ASSERT_EQ(d, expected) << cols << ' ' << to;
        }
}

namespace {

// Rows of the result are a multiple of a cache line apart, as streaming asks for; results begin anywhere in a line.
template <class T, class F> void streamsTransposed(F transpose, bool conjugate)
{
    const Size line = 64 / sizeof(T);
    for (Size rows : {2 * line, 2 * line + 1, 3 * line - 1, 5 * line + 3, 7 * line})
        for (Size cols : {400 / Size(sizeof(T)) + 16, 24577 / rows / Size(sizeof(T)) + 17})
            for (size_t shift : {size_t(0), sizeof(T), 48 + sizeof(T)}) {
                const size_t stride = 9 * line;
                const Bytes a = noise(sizeof(T) * rows * (cols + 3));
                Bytes d = noise(sizeof(T) * stride * cols + 192, 2);
                const size_t at = -reinterpret_cast<uintptr_t>(d.data()) % 64 + shift;
                Bytes expected = d;
                for (size_t i = 0; i < rows; ++i)
                    for (size_t j = 0; j < cols; ++j) {
                        const size_t to = at + (j * stride + i) * sizeof(T);
                        std::copy_n(&a[(i * (cols + 3) + j) * sizeof(T)], sizeof(T), &expected[to]);
                        if (conjugate) expected[to + 15] ^= 0x80;
                    }
                transpose(reinterpret_cast<const T*>(a.data()), reinterpret_cast<T*>(&d[at]), rows, cols, cols + 3,
                          static_cast<Size>(stride));
                ASSERT_TRUE(d == expected) << sizeof(T) << " bytes, " << rows << 'x' << cols << ' ' << shift;
            }
}

} // namespace

TEST_P(Stream, Transposes)
{
    streamsTransposed<Ipp8u>(TransposeMatrix_8u, false);
    streamsTransposed<Ipp16s>(TransposeMatrix_16s, false);
    streamsTransposed<Ipp64f>(TransposeMatrix, false);
    streamsTransposed<Ipp64fc>(AdjungateMatrixc, true);
}

// Values that small integers make are exact, whatever the order of operations.
TEST_P(Stream, ComplexNumbers)
{
    for (size_t n : {1u, 3u, 9u, 16u, 40u, 41u, 300u, 613u})
        for (size_t to = 0; to < 5; ++to) { // doubles; a complex array at an odd one is never aligned
            std::vector<Ipp64f> z(2 * n + 10), w(z), d(z), re(n + 10), im(n + 10);
            for (size_t i = 0; i < z.size(); ++i) z[i] = w[i] = static_cast<double>(i * i % 97) - 30;
            const int count = static_cast<int>(n);
            const auto complex = [&](std::vector<Ipp64f>& v) { return reinterpret_cast<Ipp64fc*>(&v[to]); };

            ippsCplxToReal_64fc(complex(z), &re[to], &im[4 - to], count);
            ippsRealToCplx_64f(&re[to], &im[4 - to], complex(d), count);
            for (size_t i = 0; i < n; ++i)
                ASSERT_TRUE(re[to + i] == z[to + 2 * i] && im[4 - to + i] == z[to + 2 * i + 1]) << n << ' ' << i;
            ASSERT_TRUE(std::equal(&d[to], &d[to + 2 * n], &z[to])) << n << ' ' << to;
            ASSERT_TRUE(re[to + n] == 0 && im[4 - to + n] == 0 && d[to + 2 * n] == 0);
            ippsRealToCplx_64f(nullptr, &im[4 - to], complex(d), count);
            for (size_t i = 0; i < n; ++i) ASSERT_TRUE(d[to + 2 * i] == 0 && d[to + 2 * i + 1] == z[to + 2 * i + 1]);

            ippsMulC_64fc(complex(z), Ipp64fc{0, 2}, complex(d), count);
            for (size_t i = to; i < to + 2 * n; i += 2) ASSERT_TRUE(d[i] == -2 * z[i + 1] && d[i + 1] == 2 * z[i]);
            ippsMulC_64fc(complex(w), Ipp64fc{0, 2}, complex(w), count);
            ASSERT_TRUE(std::equal(&d[to], &d[to + 2 * n], &w[to])) << n << ' ' << to;
            for (size_t i = to; i < to + 2 * n; i += 2) w[i] = 0, w[i + 1] = 0.5;
            ippsDiv_64fc(complex(w), complex(d), complex(d), count);
            for (size_t i = to; i < to + 2 * n; ++i) ASSERT_EQ(d[i], 4 * z[i]) << n << ' ' << to;
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
            ippsAdd_8u_Sfs(&a[0], &b[5], &d[to], static_cast<int>(n), -1);
            ASSERT_EQ(d, expected) << n << ' ' << to;

            std::vector<Ipp32sc> source(n), difference(n), place(n + 6);
            for (size_t i = 0; i < n; ++i) {
                const int x = a[i] - 100, y = 3 * b[i];
                source[i] = {x, y};
                difference[i] = {x - value.re, y - value.im};
            }
            auto* const p = reinterpret_cast<Ipp32sc*>(reinterpret_cast<unsigned char*>(place.data()) + to);
            ippsSubC_32sc_Sfs(source.data(), value, p, static_cast<int>(n), 0);
            ASSERT_EQ(std::memcmp(p, difference.data(), 8 * n), 0) << n << ' ' << to;
            std::memcpy(p, source.data(), 8 * n);
            ippsSubC_32sc_ISfs(value, p, static_cast<int>(n), 0);
            ASSERT_EQ(std::memcmp(p, difference.data(), 8 * n), 0) << n << ' ' << to;
        }
}

INSTANTIATE_TEST_SUITE_P(Variants, Stream, support::streamingVariants(), testing::PrintToStringParamName());
