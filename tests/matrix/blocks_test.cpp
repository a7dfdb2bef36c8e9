// Sub-matrices, exchanges and triangles against element moves.
#include "matrix/matrices.h"
#include <utility>

using namespace support;
using namespace matrices;

namespace {

const unsigned widths[] = {0,  1,  2,  3,  4,  5,  7,  8,  9,  11, 12, 13,  15,  16,  17,  23,
                           31, 32, 33, 40, 47, 63, 64, 65, 70, 96, 97, 128, 129, 200, 257, 700};

// d(i, j) = a(i, j) at byte offsets of one memory, element after element.
void copyBlock(Bytes& m, size_t a, size_t d, unsigned rows, unsigned cols, unsigned aStride, unsigned dStride,
               size_t bytes)
{
    for (size_t i = 0; i < rows; ++i)
        for (size_t j = 0; j < cols; ++j)
            copyElement(m, a + (i * aStride + j) * bytes, d + (i * dStride + j) * bytes, bytes);
}

std::string named(const char* family, const Type& t) { return std::string(family) + t.suffix; }

} // namespace

TEST(SubMatrix, BlocksAnywhereAndNothingElse)
{
    inEveryVariant([] {
        Random r;
        for (const Type& t : types)
            for (unsigned cols : widths)
                for (unsigned rows : {0u, 1u, 2u, 5u, 17u}) {
                    const unsigned srcRow = r.below(3), srcCol = r.below(4), dstRow = r.below(3), dstCol = r.below(4);
                    // one in three without gaps between rows
                    const unsigned srcStride = r.below(3) ? srcCol + cols + r.below(9) : cols;
                    const unsigned dstStride = r.below(3) ? dstCol + cols + r.below(9) : cols;
                    const size_t src = place(r.below(40), t.bytes);
                    const size_t dst = 64 + (size_t(23) * srcStride + 720) * t.bytes + place(r.below(40), t.bytes);
                    Bytes memory = filled(dst + (size_t(23) * dstStride + 720) * t.bytes), expected = memory;
                    const size_t from = src + (size_t(srcRow) * srcStride + srcCol) * t.bytes;
                    const size_t to = dst + (size_t(dstRow) * dstStride + dstCol) * t.bytes;
                    copyBlock(expected, from, to, rows, cols, srcStride, dstStride, t.bytes);
                    callOwn(named("CopySubMatrix", t), (const void*)&memory[src], (void*)&memory[dst], srcRow, srcCol,
                            dstRow, dstCol, rows, cols, srcStride, dstStride);
                    ASSERT_TRUE(memory == expected) << t.suffix << ' ' << rows << 'x' << cols;
                    memory = filled(memory.size());
                    expected = memory;
                    copyBlock(expected, from, to, rows, cols, srcStride, dstStride, t.bytes);
                    callOwn(named("ResizeMatrix", t), (const void*)&memory[from], (void*)&memory[to], rows, cols,
                            srcStride, dstStride);
                    ASSERT_TRUE(memory == expected) << t.suffix << ' ' << rows << 'x' << cols;
                }
    });
}

// Source and destination in one memory, rows that overlap their own copies or those of other rows.
TEST(SubMatrix, OverlapsInTheOrderOfRowsAndElements)
{
    inEveryVariant([] {
        Random r;
        for (const Type& t : types)
            for (int round = 0; round < 2500; ++round) {
                const unsigned rows = r.from(1, 9), cols = r.below(2) ? r.from(1, 20) : r.from(20, 150);
                const unsigned srcStride = r.below(160), dstStride = r.below(2) ? srcStride : r.below(160);
                const unsigned nearby = static_cast<unsigned>(t.bytes) * (r.below(2) ? 40 : 160);
                const size_t from = place(r.below(nearby), t.bytes), dst = place(r.below(nearby), t.bytes);
                Bytes memory = filled(300 + (size_t(9) * 160 + 400) * t.bytes), expected = memory;
                copyBlock(expected, from, dst, rows, cols, srcStride, dstStride, t.bytes);
                callOwn(named("ResizeMatrix", t), (const void*)&memory[from], (void*)&memory[dst], rows, cols,
                        srcStride, dstStride);
                ASSERT_TRUE(memory == expected) << t.suffix << ' ' << rows << 'x' << cols << " strides " << srcStride
                                                << ' ' << dstStride << " at " << from << ' ' << dst;
            }
    });
}

TEST(Exchange, RowsAndColumns)
{
    inEveryVariant([] {
        Random r;
        for (const Type& t : types)
            for (unsigned n : widths)
                for (const auto& [x, y] : {std::pair(0u, 1u), {3u, 1u}, {2u, 2u}, {0u, 4u}}) {
                    const size_t at = place(r.below(40), t.bytes);
                    const unsigned rowStride = n + r.below(5), colStride = 5 + r.below(70);
                    Bytes memory = filled(100 + (size_t(5) * rowStride + size_t(n) * colStride + n) * t.bytes);
                    Bytes expected = memory;
                    for (size_t k = 0; k < n; ++k)
                        swapElements(expected, at + (x * rowStride + k) * t.bytes, at + (y * rowStride + k) * t.bytes,
                                     t.bytes);
                    callOwn(named("RowExchange", t), (void*)&memory[at], x, y, n, rowStride);
                    ASSERT_TRUE(memory == expected) << t.suffix << " rows of " << n;
                    for (size_t k = 0; k < n; ++k)
                        swapElements(expected, at + (k * colStride + x) * t.bytes, at + (k * colStride + y) * t.bytes,
                                     t.bytes);
                    callOwn(named("ColExchange", t), (void*)&memory[at], x, y, n, colStride);
                    ASSERT_TRUE(memory == expected) << t.suffix << " columns of " << n;
                }
    });
}

// A stride below the width: the order of the exchanges shows, and which of the rows is named first must not.
TEST(Exchange, RowsThatShareElements)
{
    inEveryVariant([] {
        for (const Type& t : types)
            for (unsigned n : {1u, 2u, 5u, 16u, 33u, 70u, 129u})
                for (unsigned stride : {0u, 1u, 2u, 3u, 7u, n / 2, n - 1})
                    for (unsigned x = 0; x < 5; ++x)
                        for (unsigned y = 0; y < 5; ++y) {
                            const size_t at = place(x + y, t.bytes);
                            Bytes memory = filled(40 + (size_t(5) * stride + n) * t.bytes), expected = memory;
                            for (size_t k = 0; k < n; ++k)
                                swapElements(expected, at + (x * stride + k) * t.bytes, at + (y * stride + k) * t.bytes,
                                             t.bytes);
                            callOwn(named("RowExchange", t), (void*)&memory[at], x, y, n, stride);
                            ASSERT_TRUE(memory == expected)
                                << t.suffix << " rows " << x << ", " << y << " of " << n << ", stride " << stride;
                        }
    });
}

namespace {

// Which elements belong to a triangle, in the words of the definition.
bool inTriangle(bool lower, size_t i, size_t j, int diagonal) { return i == j ? diagonal != 0 : lower ? j < i : j > i; }

} // namespace

TEST(Triangle, CopiedAndCleared)
{
    const unsigned shapes[][2] = {{0, 3}, {3, 0}, {1, 1}, {2, 5},   {5, 2},   {1, 9},   {9, 1},    {3, 3},
                                  {4, 4}, {8, 7}, {7, 8}, {33, 40}, {40, 33}, {70, 70}, {130, 90}, {20, 300}};
    inEveryVariant([&] {
        Random r;
        for (const Type& t : types)
            for (const auto& [rows, cols] : shapes)
                for (bool lower : {true, false})
                    for (int diagonal : {0, 1, 7, -1}) {
                        const unsigned srcStride = cols + r.below(6), dstStride = cols + r.below(6);
                        const size_t src = place(r.below(40), t.bytes);
                        const size_t end = src + size_t(rows) * srcStride * t.bytes;
                        const size_t dst = (end + 15) / 16 * 16 + place(r.below(40), t.bytes);
                        Bytes memory = filled(dst + 40 + size_t(rows) * dstStride * t.bytes), copied = memory,
                              cleared = memory;
                        for (size_t i = 0; i < rows; ++i)
                            for (size_t j = 0; j < cols; ++j)
                                if (inTriangle(lower, i, j, diagonal)) {
                                    const size_t to = dst + (i * dstStride + j) * t.bytes;
                                    copyElement(copied, src + (i * srcStride + j) * t.bytes, to, t.bytes);
                                    std::memset(&cleared[to], 0, t.bytes);
                                }
                        const Bytes before = memory;
                        callOwn(named(lower ? "LowerTriangle" : "UpperTriangle", t), (const void*)&memory[src],
                                (void*)&memory[dst], rows, cols, srcStride, dstStride, diagonal);
                        ASSERT_TRUE(memory == copied) << t.suffix << lower << ' ' << rows << 'x' << cols;
                        memory = before;
                        callOwn(named(lower ? "ZeroLowerTriangle" : "ZeroUpperTriangle", t), (void*)&memory[dst], rows,
                                cols, dstStride, diagonal);
                        ASSERT_TRUE(memory == cleared) << t.suffix << lower << ' ' << rows << 'x' << cols;
                    }
    });
}
