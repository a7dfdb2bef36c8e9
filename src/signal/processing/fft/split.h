// The steps of a real signal's reduction, for one column of coefficients at a time.
#pragma once
#include "signal/processing/fft/butterfly.h"
#include <cstdint>

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr f64 cosEighth = 0x1.6a09e667f3bcdp-1;    // of pi / 4
constexpr f64 cosSixteenth = 0x1.d906bcf328d46p-1; // of pi / 8
constexpr f64 sinSixteenth = 0x1.87de2a6aea963p-2;

template <class T> SIG5D_INLINE T everyLane(const f64& c) { return broadcast<sizeof(T) / sizeof(f64)>(&c); }
// a exp(-i pi / 4) and a exp(i pi / 4)
template <class T> SIG5D_INLINE Complex<T> turnedBack(Complex<T> a)
{
    const T c = everyLane<T>(cosEighth);
    return {(a.re + a.im) * c, (a.im - a.re) * c};
}
template <class T> SIG5D_INLINE Complex<T> turned(Complex<T> a)
{
    const T c = everyLane<T>(cosEighth);
    return {(a.re - a.im) * c, (a.im + a.re) * c};
}

// Multiples of a distance between rows as offsets that addressing modes reach from few registers. Left alone, the
// compiler keeps a pointer to each of the rows, most of them on the stack.
struct Rows {
    Count odd[4]; // once, three, five and seven times the distance, in bytes
    SIG5D_INLINE static Rows apart(Count doubles) { return {{8 * doubles, 24 * doubles, 40 * doubles, 56 * doubles}}; }
    SIG5D_INLINE Count operator[](int j) const
    {
        if (j == 0) return 0;
        const int twos = j & 1 ? 0 : j & 2 ? 1 : j & 4 ? 2 : 3;
        return odd[j >> twos >> 1] << twos;
    }
};
template <class P> SIG5D_INLINE P* row(P* p, const Rows& rows, int j)
{
    return reinterpret_cast<P*>(reinterpret_cast<std::uintptr_t>(p) + static_cast<std::uintptr_t>(rows[j]));
}

// Sixteen coefficients, one in each row of x, into one of each of the seven nodes and two of the remaining polynomial.
// Nodes are two rows of `nodes` apart. (Small transforms use it with a single double for a vector.)
template <bool conjugateOdd, class T>
SIG5D_INLINE void split16(const f64* x, const Rows& rows, f64* node, const Rows& nodes, f64* rest)
{
    T negative[4], cyclic[4]; // modulo y^(L/4) + 1 and y^(L/4) - 1; of the first, two coefficients of opposite sign
    Quad<T> quarterPart;      // modulo y^(L/4) + i
    x = opaque(x);
    const f64* const upper = opaque(row(x, rows, 8));
    for (int j = 0; j < 4; ++j) {
        const T a = get<T>(row(x, rows, j)), b = get<T>(row(x, rows, j + 4));
        const T c = get<T>(row(upper, rows, j)), d = get<T>(row(upper, rows, j + 4));
        const T ac = a + c, bd = b + d;
        quarterPart.v[j] = {a - c, d - b};
        negative[j] = j < 2 ? ac - bd : bd - ac;
        cyclic[j] = ac + bd;
    }
    node = opaque(node);
    putBlock(row(node, nodes, 2), Complex<T>{cyclic[0] - cyclic[2], cyclic[3] - cyclic[1]});
    put(rest, cyclic[0] + cyclic[2]);
    put(row(rest, nodes, 1), cyclic[1] + cyclic[3]);

    const Complex<T> a = {negative[0], negative[2]}, b = turnedBack<T>({negative[1], negative[3]});
    putBlock(row(node, nodes, 4), a + b);
    putBlock(row(node, nodes, 6), conjugateOdd ? Complex<T>{a.re - b.re, b.im - a.im} : a - b);

    const T c = everyLane<T>(cosSixteenth), s = everyLane<T>(sinSixteenth);
    quarterPart = {{quarterPart.v[0], timesConj(quarterPart.v[1], {c, s}), turnedBack(quarterPart.v[2]),
                    timesConj(quarterPart.v[3], {s, c})}};
    const Quad<T> four = sums<conjugateOdd>(quarterPart);
    putBlock(row(node, nodes, 8), four.v[0]);
    putBlock(row(node, nodes, 10), four.v[1]);
    putBlock(row(node, nodes, 12), four.v[2]);
    putBlock(row(node, nodes, 14), four.v[3]);
}

// The way back: sixteen coefficients, 8 * scale times, given the nodes' and twice the remaining ones.
template <bool conjugateOdd, class T>
SIG5D_INLINE void join16(f64* x, const Rows& rows, const f64* node, const Rows& nodes, const f64* rest,
                         const f64& scale)
{
    node = opaque(node);
    auto at = [&](int number) {
        const f64* const p = row(node, nodes, 2 * number);
        return Complex<T>{get<T>(p), get<T>(p + 4)};
    };
    const T c = everyLane<T>(cosSixteenth), s = everyLane<T>(sinSixteenth);
    Quad<T> quarterPart = parts<conjugateOdd, T>({{at(4), at(5), at(6), at(7)}});
    quarterPart = {{quarterPart.v[0], quarterPart.v[1] * Complex<T>{c, s}, turned(quarterPart.v[2]),
                    quarterPart.v[3] * Complex<T>{s, c}}};

    const Complex<T> a = at(2), b = at(3), last = at(1);
    const Complex<T> even = conjugateOdd ? Complex<T>{a.re + b.re, a.im - b.im} : a + b;
    const Complex<T> odd = turned(conjugateOdd ? Complex<T>{a.re - b.re, a.im + b.im} : a - b);
    const T negative[4] = {even.re, odd.re, even.im, odd.im}; // the last two of opposite sign

    const T rest0 = get<T>(rest), rest1 = get<T>(row(rest, nodes, 1));
    const T cyclic[4] = {rest0 + last.re, rest1 - last.im, rest0 - last.re, rest1 + last.im};
    const T factor = everyLane<T>(scale);
    x = opaque(x);
    f64* const upper = opaque(row(x, rows, 8));
    for (int j = 0; j < 4; ++j) {
        const T ac = j < 2 ? cyclic[j] + negative[j] : cyclic[j] - negative[j];
        const T bd = j < 2 ? cyclic[j] - negative[j] : cyclic[j] + negative[j];
        put(row(x, rows, j), (ac + quarterPart.v[j].re) * factor);
        put(row(upper, rows, j), (ac - quarterPart.v[j].re) * factor);
        put(row(upper, rows, j + 4), (bd + quarterPart.v[j].im) * factor);
        put(row(x, rows, j + 4), (bd - quarterPart.v[j].im) * factor);
    }
}

// The last 2, 4 or 8 coefficients: nodes of one block, and block 0.
template <bool conjugateOdd, class T> SIG5D_INLINE void splitLast(const f64* x, Count apart, Count left, f64* node)
{
    auto in = [&](int j) { return get<T>(x + j * apart); };
    T even = in(0), odd = in(1);
    if (left == 4) {
        putBlock(node + blockSize, Complex<T>{in(0) - in(2), in(3) - in(1)});
        even = in(0) + in(2);
        odd = in(1) + in(3);
    } else if (left == 8) {
        const T a = in(0) + in(4), b = in(1) + in(5), c = in(2) + in(6), d = in(3) + in(7);
        const Complex<T> z0 = {in(0) - in(4), in(6) - in(2)}, z1 = turnedBack<T>({in(1) - in(5), in(7) - in(3)});
        putBlock(node + 2 * blockSize, z0 + z1);
        putBlock(node + 3 * blockSize, conjugateOdd ? Complex<T>{z0.re - z1.re, z1.im - z0.im} : z0 - z1);
        putBlock(node + blockSize, Complex<T>{a - c, d - b});
        even = a + c;
        odd = b + d;
    }
    putBlock(node, Complex<T>{even + odd, even - odd});
}
// The way back: scale * left / 2 times, given the blocks and half of block 0.
template <bool conjugateOdd, class T>
SIG5D_INLINE void joinLast(f64* x, Count apart, Count left, const f64* node, const f64& scale)
{
    const T factor = everyLane<T>(scale);
    auto at = [&](int number) {
        return Complex<T>{get<T>(node + number * blockSize), get<T>(node + number * blockSize + 4)};
    };
    auto out = [&](int j, T v) { put(x + j * apart, v * factor); };
    const Complex<T> ends = at(0);
    const T even = ends.re + ends.im, odd = ends.re - ends.im;
    if (left == 2) {
        out(0, even);
        out(1, odd);
        return;
    }
    const Complex<T> one = at(1);
    const T a = even + one.re, c = even - one.re, d = odd + one.im, b = odd - one.im;
    if (left == 4) {
        out(0, a);
        out(1, b);
        out(2, c);
        out(3, d);
        return;
    }
    Complex<T> p = at(2), q = at(3);
    if constexpr (conjugateOdd) q.im = -q.im;
    const Complex<T> z0 = p + q, z1 = turned(p - q);
    out(0, a + z0.re);
    out(4, a - z0.re);
    out(6, c + z0.im);
    out(2, c - z0.im);
    out(1, b + z1.re);
    out(5, b - z1.re);
    out(7, d + z1.im);
    out(3, d - z1.im);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
