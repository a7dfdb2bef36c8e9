// Transposes against element moves in the order that the functions promise.
#include "matrix/matrices.h"
#include <cmath>

using namespace support;
using namespace matrices;

namespace {

struct Transpose {
    const char* name;
    size_t bytes;
    bool conjugate;
};
const Transpose outOfPlace[] = {{"TransposeMatrix", 8, false},     {"TransposeMatrix_32s", 4, false},
                                {"TransposeMatrix_16s", 2, false}, {"TransposeMatrix_8u", 1, false},
                                {"TransposeMatrixc", 16, false},   {"AdjungateMatrixc", 16, true}};
const Transpose inPlace[] = {{"TransposeSquareMatrix", 8, false},     {"TransposeSquareMatrix_32s", 4, false},
                             {"TransposeSquareMatrix_16s", 2, false}, {"TransposeSquareMatrix_8u", 1, false},
                             {"TransposeSquareMatrixc", 16, false},   {"AdjungateSquareMatrixc", 16, true}};

struct Shape {
    size_t src, dst; // byte offsets
    unsigned rows, cols, srcStride, dstStride;
};

size_t extent(unsigned rows, unsigned cols, unsigned stride)
{
    return rows && cols ? size_t(rows - 1) * stride + cols : 0;
}

void flipSign(Bytes& memory, size_t element) { memory[element + 15] ^= 0x80; }

void expectTransposed(const Transpose& t, const Shape& s, size_t size)
{
    Bytes memory = filled(size), expected = memory;
    for (size_t i = 0; i < s.rows; ++i)
        for (size_t j = 0; j < s.cols; ++j) {
            const size_t to = s.dst + (j * s.dstStride + i) * t.bytes;
            copyElement(expected, s.src + (i * s.srcStride + j) * t.bytes, to, t.bytes);
            if (t.conjugate) flipSign(expected, to);
        }
    callOwn(t.name, (const void*)&memory[s.src], (void*)&memory[s.dst], s.rows, s.cols, s.srcStride, s.dstStride);
    ASSERT_TRUE(memory == expected) << t.name << ' ' << s.rows << 'x' << s.cols << " strides " << s.srcStride << ' '
                                    << s.dstStride << " at " << s.src << ' ' << s.dst;
}

void expectApart(const Transpose& t, unsigned rows, unsigned cols, unsigned srcStride, unsigned dstStride, Random& r)
{
    Shape s{place(r.below(40), t.bytes), 0, rows, cols, srcStride, dstStride};
    const size_t end = s.src + extent(rows, cols, srcStride) * t.bytes;
    s.dst = (end + 15) / 16 * 16 + place(r.below(40), t.bytes);
    expectTransposed(t, s, s.dst + extent(cols, rows, dstStride) * t.bytes + 40);
}

void expectSquare(const Transpose& t, unsigned n, unsigned stride, size_t at)
{
    const size_t last = n ? size_t(n - 1) * (stride > 1 ? stride : 1) + n : 0;
    Bytes memory = filled(at + last * t.bytes + 40), expected = memory;
    const auto element = [&](size_t i, size_t j) { return at + (i * stride + j) * t.bytes; };
    for (size_t i = 0; i < n; ++i) {
        if (t.conjugate) flipSign(expected, element(i, i));
        for (size_t j = 0; j < i; ++j) {
            unsigned char x[16], y[16];
            std::memcpy(x, &expected[element(j, i)], t.bytes);
            std::memcpy(y, &expected[element(i, j)], t.bytes);
            if (t.conjugate) x[15] ^= 0x80, y[15] ^= 0x80;
            std::memcpy(&expected[element(i, j)], x, t.bytes);
            std::memcpy(&expected[element(j, i)], y, t.bytes);
        }
    }
    callOwn(t.name, (void*)&memory[at], n, stride);
    ASSERT_TRUE(memory == expected) << t.name << ' ' << n << " stride " << stride << " at " << at;
}

} // namespace

TEST(Transpose, SmallMatricesOfEveryShape)
{
    inEveryVariant([] {
        Random r;
        for (const Transpose& t : outOfPlace)
            for (unsigned rows = 0; rows <= 36; ++rows)
                for (unsigned cols = 0; cols <= 36; ++cols)
                    expectApart(t, rows, cols, cols + r.below(3), rows + r.below(3), r);
    });
}

// Long rows or columns, tiles that begin and end anywhere, steps of many powers of two.
TEST(Transpose, LargeMatrices)
{
    const unsigned sizes[][4] = {
        {130, 257, 257, 130},   {257, 130, 512, 512},   {96, 96, 1024, 128},   {300, 170, 171, 301},
        {64, 512, 512, 64},     {333, 417, 420, 335},   {1, 5000, 5000, 1},    {5000, 1, 1, 5000},
        {3, 3000, 3001, 4},     {3000, 3, 4, 3001},     {7, 2000, 2048, 8},    {2000, 7, 8, 2048},
        {15, 1500, 1500, 4096}, {1500, 15, 4096, 1500}, {40, 40, 4096, 4096},  {129, 131, 2048, 2048},
        {512, 512, 512, 512},   {31, 1033, 1040, 31},   {200, 300, 4095, 4097}};
    inEveryVariant([&] {
        Random r;
        for (const Transpose& t : outOfPlace)
            for (const auto& s : sizes) {
                const size_t all = extent(s[0], s[1], s[2]) + extent(s[1], s[0], s[3]);
                if (all * t.bytes < 6 << 20) expectApart(t, s[0], s[1], s[2], s[3], r);
            }
    });
}

// Results of more than 2 MB, rows at distances that share cache sets: written past the caches, from copies of tiles.
TEST(Transpose, BeyondTheCaches)
{
    inEveryVariant([] {
        Random r;
        for (const Transpose& t : outOfPlace)
            for (unsigned more : {0u, 16u, 48u}) {
                const unsigned dstStride = static_cast<unsigned>(4096 / t.bytes), rows = dstStride - 1 - r.below(30);
                Shape s{place(r.below(40), t.bytes), 0, rows, 640 + r.below(16), 656, dstStride};
                s.dst = (s.src + extent(rows, s.cols, s.srcStride) * t.bytes + 63) / 64 * 64 + more;
                expectTransposed(t, s, s.dst + extent(s.cols, rows, dstStride) * t.bytes + 40);
            }
    });
}
TEST(TransposeSquare, BeyondTheCaches)
{
    inEveryVariant([] {
        for (const Transpose& t : inPlace) {
            unsigned n = 367;
            while (n * n * t.bytes < 0x210000) n += 16;
            const unsigned unit = static_cast<unsigned>(1024 / t.bytes);
            expectSquare(t, n, (n + unit) / unit * unit, place(24, t.bytes));
        }
    });
}

// Two blocks side by side in one matrix, one below the other, and overlaps of every kind: each element is moved in
// the order of the source.
TEST(Transpose, MatricesThatShareMemory)
{
    inEveryVariant([] {
        Random r;
        for (const Transpose& t : outOfPlace)
            for (int round = 0; round < 1500; ++round) {
                const unsigned rows = r.from(1, 40), cols = r.from(1, 40);
                Shape s{0, 0, rows, cols, r.below(90), r.below(90)};
                if (r.below(3)) s.srcStride = s.dstStride = rows + cols + r.below(3);
                const size_t a = place(r.below(2000), t.bytes), b = place(r.below(2000), t.bytes);
                s.src = a + r.below(90) * t.bytes;
                s.dst = b + r.below(90) * t.bytes;
                const size_t strides = s.srcStride > s.dstStride ? s.srcStride : s.dstStride;
                expectTransposed(t, s, 2200 + (90 + 41 * (strides + 1)) * t.bytes);
            }
    });
}

TEST(TransposeSquare, SizesStridesAndRowsThatShareElements)
{
    inEveryVariant([] {
        Random r;
        for (const Transpose& t : inPlace) {
            for (unsigned n = 0; n <= 100; ++n)
                for (unsigned more : {0u, 1u, 13u}) expectSquare(t, n, n + more, place(r.below(40), t.bytes));
            for (unsigned n : {5u, 16u, 33u, 64u})
                for (unsigned stride : {0u, 1u, 3u, n - 1, n - 2}) expectSquare(t, n, stride, 0);
            const unsigned larger[][2] = {{128, 1024}, {161, 256}, {200, 512}, {255, 257}, {513, 520}, {90, 4096}};
            for (const auto& s : larger) expectSquare(t, s[0], s[1], place(r.below(40), t.bytes));
        }
    });
}

TEST(Adjungate, InvertsTheSignOfTheImaginaryPartAlone)
{
    inEveryVariant([] {
        double nan;
        const Ipp64u bits = 0x7FF4000000012345, negative = bits | Ipp64u(1) << 63;
        std::memcpy(&nan, &bits, 8);
        Ipp64fc a[2] = {{-1.5, 0.0}, {0.0, 0.0}}, d[2];
        std::memcpy(&a[1].im, &nan, 8);
        callOwn("AdjungateMatrixc", (const void*)a, (void*)d, 1u, 2u, 2u, 1u);
        EXPECT_TRUE(d[0].re == -1.5 && d[0].im == 0 && std::signbit(d[0].im));
        EXPECT_EQ(std::memcmp(&d[1].im, &negative, 8), 0);
        EXPECT_FALSE(std::signbit(d[1].re));
        callOwn("AdjungateSquareMatrixc", (void*)a, 1u, 7u);
        EXPECT_TRUE(a[0].re == -1.5 && a[0].im == 0 && std::signbit(a[0].im));
        callOwn("TransposeSquareMatrixc", (void*)a, 1u, 7u);
        EXPECT_TRUE(a[0].re == -1.5 && a[0].im == 0 && std::signbit(a[0].im));
    });
}
