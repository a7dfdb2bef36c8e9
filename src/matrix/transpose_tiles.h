// Transposes of whole matrices from register blocks: in which order the blocks are taken, and what is left at the
// edges.
#pragma once
#include "kernel/stream.h"
#include "matrix/transpose_block.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr size_t lineBytes = 64;

// A line into the first cache level, and into the second.
inline void fetch(const u8* p) { __builtin_prefetch(p, 0, 3); }
inline void fetch_for_later(const u8* p) { __builtin_prefetch(p, 0, 2); }

// A matrix of elements of "size" bytes. Rows are "step" bytes apart.
template <int size, class Byte> struct View {
    Byte* p;
    size_t step;
    Byte* at(size_t i, size_t j) const { return p + i * step + j * size; }
    View from(size_t i, size_t j) const { return {at(i, j), step}; }
};
template <int size> using In = View<size, const u8>;
template <int size> using Out = View<size, u8>;

// How results are written. A walk that writes whole lines fetches those that come next, since nobody else could know
// that they are about to be written: that is worth a third from the second cache level on.
enum class Writing { blocks, lines };

// Blocks of "columns" columns, "steps" times, moving on by so many bytes each time; the last step goes to a place of
// its own: where steps do not divide the matrix it overlaps the one before it. A step is one block, or as many below
// each other as make whole lines of the result, each of which is written in one go as far as registers go round.
template <int size, int width, bool conj, int columns, Writing writing>
inline void transpose_walk(In<size> a, Out<size> d, size_t steps, size_t aMove, size_t dMove, const u8* lastA,
                           u8* lastD)
{
    constexpr int C = 16 / size, R = width / size, P = portion<size>;
    constexpr int count = writing == Writing::blocks ? 1 : lineBytes / width;
    constexpr int registers = sizeof(void*) == 4 ? 4 : 8; // the others are for shuffling
    constexpr int together = P * count <= registers ? count : P < registers ? registers / P : 1;
    while (steps) {
        if (writing == Writing::lines) {
#pragma GCC unroll 16
            for (int k = 0; k < columns; ++k) fetch(d.p + k * d.step + 2 * lineBytes - 1);
        }
#pragma GCC unroll 4
        for (int block = 0; block < count; block += together)
#pragma GCC unroll 4
            for (int g = 0; g < columns; g += P) {
                Reg<width> x[together][P];
#pragma GCC unroll 4
                for (int b = 0; b < together; ++b)
                    load_columns<size, width, conj>(x[b], a.at((block + b) * R, g / C * C), a.step, g % C != 0);
#pragma GCC unroll 16
                for (int k = 0; k < P; ++k)
#pragma GCC unroll 4
                    for (int b = 0; b < together; ++b) store_at(d.at(g + k, (block + b) * R), x[b][k]);
            }
        a.p += aMove;
        d.p += dMove;
        if (--steps == 1) {
            a.p = lastA;
            d.p = lastD;
        }
    }
}

constexpr size_t steps_in(size_t n, size_t step) { return (n + step - 1) / step; }

// Strips of rows, block by block along the row.
template <int size, int width, bool conj, int columns>
void transpose_by_rows(In<size> a, Out<size> d, size_t rows, size_t cols)
{
    constexpr size_t R = width / size;
    for (size_t done = 0; done < rows; done += R) {
        const size_t i = done + R <= rows ? done : rows - R;
        transpose_walk<size, width, conj, columns, Writing::blocks>(a.from(i, 0), d.from(0, i), steps_in(cols, columns),
                                                                    columns * size, columns * d.step,
                                                                    a.at(i, cols - columns), d.at(cols - columns, i));
    }
}

// Strips of columns, line by line down the column, so that rows of the result are written from one end to the other.
template <int size, int width, bool conj, int columns>
void transpose_by_columns(In<size> a, Out<size> d, size_t rows, size_t cols)
{
    constexpr size_t line = lineBytes / size;
    for (size_t done = 0; done < cols; done += columns) {
        const size_t j = done + columns <= cols ? done : cols - columns;
        transpose_walk<size, width, conj, columns, Writing::lines>(a.from(0, j), d.from(j, 0), steps_in(rows, line),
                                                                   line * a.step, lineBytes, a.at(rows - line, j),
                                                                   d.at(j, rows - line));
    }
}

// Rows at this distance that the first cache level holds side by side: steps with many factors of two put the rows into
// few of its sets.
inline size_t rows_without_conflict(size_t step)
{
    constexpr size_t way = 4096;
    const size_t power = step & -step;
    return power == 0 || power >= way ? 8 : 8 * (way / power);
}

inline bool sharesFewSets(size_t step) { return step % 1024 == 0; }

// Beyond the first cache level: in tiles. Those have more rows as long as the second level holds both matrices, by up
// to a third faster than with few.
template <int size, int width, bool conj, int columns>
void transpose_by_tiles(In<size> a, Out<size> d, size_t rows, size_t cols)
{
    constexpr size_t line = lineBytes / size, secondLevel = 512 * 1024;
    size_t tileRows = (rows * cols <= secondLevel / size ? 32 : 8) * line, tileCols = (rows < line ? 64 : 4) * line;
    const size_t aRows = rows_without_conflict(a.step), dRows = rows_without_conflict(d.step);
    if (aRows < tileRows) tileRows = aRows < 16 ? 16 : aRows;
    if (tileRows < line) tileRows = line;
    if (dRows < tileCols && dRows >= (size == 8 ? 2 : 1) * line) tileCols = dRows;
    // Tiles begin at line boundaries, where rows agree on them.
    const size_t firstRows = tileRows + (-reinterpret_cast<uintptr_t>(d.p) % lineBytes) / size;
    const size_t firstCols = tileCols + (-reinterpret_cast<uintptr_t>(a.p) % (2 * lineBytes)) / size;
    for (size_t j = 0, nextJ = firstCols; j < cols; j = nextJ, nextJ += tileCols) {
        if (nextJ + columns > cols) nextJ = cols;
        if (rows < line) {
            transpose_by_rows<size, width, conj, columns>(a.from(0, j), d.from(j, 0), rows, nextJ - j);
            continue;
        }
        for (size_t i = 0, nextI = firstRows; i < rows; i = nextI, nextI += tileRows) {
            if (nextI + line > rows) nextI = rows;
            transpose_by_columns<size, width, conj, columns>(a.from(i, j), d.from(j, i), nextI - i, nextJ - j);
        }
    }
}

// Calls f with addresses of so many pieces of the stack, 2 KB each: a single frame of 4 KB or more would have to touch
// its pages one by one on Windows.
constexpr int pieceBytes = 2048;
template <int pieces, class F, class... Piece> [[gnu::noinline]] void with_room(F f, Piece*... room)
{
    alignas(lineBytes) u8 piece[pieceBytes];
    if constexpr (sizeof...(Piece) + 1 == pieces) {
        u8* const all[] = {room..., piece};
        f(all);
    } else {
        with_room<pieces>(f, room..., piece);
    }
}

// Tiles that are copied before they are written: rows that share few cache sets push each other out before all of
// their columns are taken. The copy lies in pieces, side by side, of as many rows. Meanwhile the tile that lies "ahead"
// bytes further is fetched.
template <int size, int rows_, int cols_> struct Tile {
    static constexpr int rows = rows_, cols = cols_;
    static constexpr int step = rows * cols * size < pieceBytes ? cols * size : pieceBytes / rows; // in a piece
    static constexpr int pieces = cols * size / step;
};

template <int size, int width, class Tile> inline void copy_tile(In<size> a, u8* const* piece, size_t ahead)
{
    for (int i = 0; i < Tile::rows; ++i) {
        for (int k = 0; k < Tile::cols * size; k += lineBytes) fetch_for_later(a.at(i, 0) + ahead + k);
#pragma GCC unroll 16
        for (int k = 0; k < Tile::cols * size; k += width) {
            const Reg<width> x = loadn<width>(a.at(i, 0) + k);
            store_at(piece[k / Tile::step] + i * Tile::step + k % Tile::step, x);
        }
    }
}

template <int size, int width, bool conj, bool pastCaches, class Tile>
inline void transpose_copy(u8* const* piece, Out<size> d)
{
    constexpr int R = width / size, P = portion<size>;
    constexpr int together = (Tile::rows * size < lineBytes ? Tile::rows * size : lineBytes) / width;
    for (int g = 0; g < Tile::cols; g += P) {
        const u8* const columns = piece[g * size / Tile::step] + g * size % Tile::step / 16 * 16;
        for (int i = 0; i < Tile::rows; i += together * R) {
            Reg<width> x[together][P];
#pragma GCC unroll 4
            for (int b = 0; b < together; ++b)
                load_columns<size, width, conj>(x[b], columns + (i + b * R) * Tile::step, Tile::step,
                                                g * size % 16 != 0);
#pragma GCC unroll 16
            for (int k = 0; k < P; ++k)
#pragma GCC unroll 4
                for (int b = 0; b < together; ++b) {
                    if constexpr (pastCaches)
                        stream(d.at(g + k, i + b * R), x[b][k]);
                    else
                        store_at(d.at(g + k, i + b * R), x[b][k]);
                }
        }
    }
}

// Past the caches, where every row of the result begins at the same place of a line. Two lines of each row are read and
// two written, since single lines took up to 1.4 times as long; fewer of short elements, so that a tile has 4 KB: calls
// are to do with little stack. Of two bytes, two lines written and one read took less time than the other way round.
template <int size>
using TilePastCaches = Tile<size, (size < 2 ? 1 : 2) * lineBytes / size, (size < 4 ? 1 : 2) * lineBytes / size>;

template <int size, int width, bool conj, int columns>
void transpose_past_caches(In<size> a, Out<size> d, size_t rows, size_t cols)
{
    using Tile = TilePastCaches<size>;
    constexpr size_t line = lineBytes / size;
    const size_t first = -reinterpret_cast<uintptr_t>(d.p) % lineBytes / size, end = rows - (rows - first) % Tile::rows;
    with_room<Tile::pieces>([=](u8* const(&piece)[Tile::pieces]) {
        for (size_t i = first; i < end; i += Tile::rows)
            for (size_t done = 0; done < cols; done += Tile::cols) {
                const size_t j = done + Tile::cols <= cols ? done : cols - Tile::cols;
                copy_tile<size, width, Tile>(a.from(i, j), piece, Tile::cols * size);
                transpose_copy<size, width, conj, true, Tile>(piece, d.from(j, i));
            }
        stream_end();
    });
    if (first) transpose_by_columns<size, width, conj, columns>(a, d, line, cols);
    if (end == rows) return;
    const size_t last = rows - end < line ? rows - line : end;
    transpose_by_columns<size, width, conj, columns>(a.from(last, 0), d.from(0, last), rows - last, cols);
}

// The smallest matrix that transpose_apart takes.
template <int size> constexpr size_t smallestBlock = 16 / size;

// a and d have no byte in common, and no two rows of d do.
template <int size, bool conj> [[gnu::noinline]] void transpose_apart(In<size> a, Out<size> d, size_t rows, size_t cols)
{
    constexpr int C = 16 / size, wide = widest<size>, columns = C > 4 ? C : 4;
    constexpr size_t firstLevel = 24576;
    if (cols < columns) {
        if (rows < wide / size) return transpose_by_rows<size, 16, conj, C>(a, d, rows, cols);
        return transpose_by_rows<size, wide, conj, C>(a, d, rows, cols);
    }
    if (rows < wide / size) return transpose_by_rows<size, 16, conj, columns>(a, d, rows, cols);
    if (rows * cols <= firstLevel / size) return transpose_by_rows<size, wide, conj, columns>(a, d, rows, cols);
    using Tile = TilePastCaches<size>;
    const bool linesAgree = d.step % lineBytes == 0 && reinterpret_cast<uintptr_t>(d.p) % size == 0;
    // Both matrices count; and where rows share few sets, writing to the caches is the slower the more rows there are.
    const u64 bytes = u64(rows) * cols * size * (sharesFewSets(a.step) || sharesFewSets(d.step) ? 16 : 2);
    if (linesAgree && rows >= 2 * Tile::rows && cols >= Tile::cols && streamingPays(bytes))
        return transpose_past_caches<size, wide, conj, columns>(a, d, rows, cols);
    transpose_by_tiles<size, wide, conj, columns>(a, d, rows, cols);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
