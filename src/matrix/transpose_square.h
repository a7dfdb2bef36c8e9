// Transposing in place: squares and their mirror images are exchanged.
#pragma once
#include "matrix/transpose_tiles.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr struct {
    u8 clear[32], set[32];
} maskBytes = {{}, {255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255,
                    255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255}};

// All bits set but those of the first "bytes" bytes, which may be negative or more than a register has.
template <int width> inline Reg<width> mask_from(int bytes)
{
    return loadn<width>(maskBytes.set - (bytes < 0 ? 0 : bytes > width ? width : bytes));
}

// Exchanges the squares of "side" elements at p and q, both transposed; p may be q. Where the matrix ends with less
// than a square, the last ones lie partly in those before them: only elements in rows of p, and columns of q, from
// "skip" on are then exchanged.
template <int size, int width, bool conj, int side, bool partly>
inline void exchange_squares(u8* p, u8* q, size_t step, int skip)
{
    constexpr int C = 16 / size, R = width / size, P = portion<size>;
    Reg<width> x[side][side / R];
#pragma GCC unroll 4
    for (int i = 0; i < side; i += P)
#pragma GCC unroll 4
        for (int j = 0; j < side; j += R) {
            Reg<width> r[P];
            load_columns<size, width, conj>(r, p + j * step + i / C * 16, step, i % C != 0);
#pragma GCC unroll 16
            for (int k = 0; k < P; ++k) x[i + k][j / R] = r[k];
        }
    if (p != q) {
#pragma GCC unroll 4
        for (int i = 0; i < side; i += P)
#pragma GCC unroll 4
            for (int j = 0; j < side; j += R) {
                Reg<width> r[P];
                load_columns<size, width, conj>(r, q + j * step + i / C * 16, step, i % C != 0);
#pragma GCC unroll 16
                for (int k = 0; k < P; ++k)
                    if (!partly || i + k >= skip) store_at(p + (i + k) * step + j * size, r[k]);
            }
    }
#pragma GCC unroll 4
    for (int j = 0; j < side; j += R) {
        const Reg<width> mask = partly ? mask_from<width>((skip - j) * size) : Reg<width>{};
#pragma GCC unroll 32
        for (int i = 0; i < side; ++i) {
            u8* const to = q + i * step + j * size;
            if constexpr (!partly) {
                store_at(to, x[i][j / R]);
            } else if (p != q || i >= skip) {
                const Reg<width> old = loadn<width>(to);
                store_at(to, (x[i][j / R] & mask) | (old & ~mask));
            }
        }
    }
}

// f(i, j) for the corners of squares of "step" elements, from row i0 and column j0 on, that do not lie above the
// diagonal.
template <class F> inline void below_diagonal(size_t i0, size_t iEnd, size_t j0, size_t jEnd, size_t step, F f)
{
    for (size_t i = i0; i < iEnd; i += step)
        for (size_t j = j0; j < jEnd && j <= i; j += step) f(i, j);
}

// Exchanges squares of one or two lines' length, from copies of both: whole ones, or half and half, so that little
// stack is taken. Returns the rows that are done: all but less than a square.
template <int size, int width, bool conj> size_t exchange_copies(Out<size> a, size_t n)
{
    constexpr int side = (size < 4 ? 1 : 2) * lineBytes / size;
    using Square = Tile<size, side, side>;
    constexpr int parts = Square::pieces, part = side / parts, room = 2;
    using Columns = Tile<size, side, part>;
    using Rows = Tile<size, part, side>;
    static_assert(parts <= room && Columns::pieces == 1 && Rows::pieces == 1);
    const size_t whole = n - n % side;
    with_room<room>([=](u8* const(&piece)[room]) {
        below_diagonal(0, whole, 0, whole, side, [=](size_t i, size_t j) {
            if (i == j) {
                const Out<size> p = a.from(i, i);
                copy_tile<size, width, Square>(In<size>{p.p, a.step}, piece, Square::cols * size);
                transpose_copy<size, width, conj, false, Square>(piece, p);
                return;
            }
#pragma GCC unroll 1
            for (size_t done = 0; done < side; done += part) {
                const Out<size> p = a.from(i, j + done), q = a.from(j + done, i);
                copy_tile<size, width, Columns>(In<size>{p.p, a.step}, piece, Square::cols * size);
                copy_tile<size, width, Rows>(In<size>{q.p, a.step}, piece + 1, Square::rows * a.step);
                transpose_copy<size, width, conj, false, Rows>(piece + 1, p);
                transpose_copy<size, width, conj, false, Columns>(piece, q);
            }
        });
    });
    return whole;
}

template <int size, int width, bool conj, bool mayBeLarge> void exchange_all(Out<size> a, size_t n)
{
    constexpr size_t side = width / size > 4 ? width / size : 4, line = lineBytes / size, tile = 64;
    constexpr u64 secondLevel = u64(2) << 20;
    const size_t whole = n - n % side;
    size_t done = 0;
    if constexpr (mayBeLarge)
        if (sharesFewSets(a.step) && u64(n) * n * size >= secondLevel) done = exchange_copies<size, width, conj>(a, n);
    const auto end = [=](size_t i) { return i < whole ? i : whole; };
    // Steps that put many rows into few sets of the first cache level: all of a line is exchanged before the next one.
    const size_t group = a.step % 1024 == 0 ? line : tile;
    below_diagonal(done, whole, 0, whole, tile, [=](size_t ti, size_t tj) {
        below_diagonal(ti, end(ti + tile), tj, end(tj + tile), group, [=](size_t gi, size_t gj) {
            below_diagonal(gi, end(gi + group), gj, end(gj + group), side, [=](size_t i, size_t j) {
                exchange_squares<size, width, conj, side, false>(a.at(i, j), a.at(j, i), a.step, 0);
            });
        });
    });
    if (whole == n) return;
    const size_t last = n - side;
    const int skip = static_cast<int>(whole - last);
    for (size_t j = 0; j < whole; j += side)
        exchange_squares<size, width, conj, side, true>(a.at(last, j), a.at(j, last), a.step, skip);
    exchange_squares<size, width, conj, side, true>(a.at(last, last), a.at(last, last), a.step, skip);
}

// The smallest matrix that transpose_square_apart takes.
template <int size> constexpr size_t smallestSquare = 16 / size > 4 ? 16 / size : 4;

// No two rows share an element.
template <int size, bool conj> void transpose_square_apart(Out<size> a, size_t n)
{
    constexpr int wide = widest<size>;
    if (n < wide / size) return exchange_all<size, 16, conj, wide == 16>(a, n);
    exchange_all<size, wide, conj, true>(a, n);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
