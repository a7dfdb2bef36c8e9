// The one butterfly that all passes share: a cubic at the four points t, -t, -i t, i t, and back.
#pragma once
#include "signal/processing/fft/lanes.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> struct Quad {
    Complex<T> v[4];
};

// Powers t, t^2, t^3 that belong to a node.
template <class T> struct Powers {
    Complex<T> t1, t2, t3;
};
SIG5D_INLINE Powers<Vector> powersOfNode(const f64* table, Count node)
{
    const f64* const p = table + (node >> 2) * groupSize + (node & 3);
    return {{broadcast<width>(p), broadcast<width>(p + 4)},
            {broadcast<width>(p + 8), broadcast<width>(p + 12)},
            {broadcast<width>(p + 16), broadcast<width>(p + 20)}};
}
// Those of four neighbours (or of `width` of them) are vectors.
SIG5D_INLINE Powers<Vector> powersOfGroup(const f64* entries)
{
    return {getBlock(entries), getBlock(entries + 8), getBlock(entries + 16)};
}

// b0 + b1 + b2 + b3 and its turns. Real signals keep the conjugates of the values at -t and i t, which costs nothing.
template <bool conjugateOdd, class T> SIG5D_INLINE Quad<T> sums(Quad<T> b)
{
    const Complex<T> s0 = b.v[0] + b.v[2], d0 = b.v[0] - b.v[2], s1 = b.v[1] + b.v[3], d1 = b.v[3] - b.v[1];
    if constexpr (conjugateOdd)
        return {
            {s0 + s1, {s0.re - s1.re, s1.im - s0.im}, {d0.re - d1.im, d0.im + d1.re}, {d0.re + d1.im, d1.re - d0.im}}};
    else
        return {{s0 + s1, s0 - s1, {d0.re - d1.im, d0.im + d1.re}, {d0.re + d1.im, d0.im - d1.re}}};
}
// Four times what `sums` was made of.
template <bool conjugateOdd, class T> SIG5D_INLINE Quad<T> parts(Quad<T> a)
{
    const Complex<T>&a0 = a.v[0], &a1 = a.v[1], &a2 = a.v[2], &a3 = a.v[3];
    const T real = a3.re - a2.re;
    Complex<T> s0, s1, d0;
    T imaginary;
    if constexpr (conjugateOdd) {
        s0 = {a0.re + a1.re, a0.im - a1.im};
        s1 = {a0.re - a1.re, a0.im + a1.im};
        d0 = {a2.re + a3.re, a2.im - a3.im};
        imaginary = a2.im + a3.im;
    } else {
        s0 = a0 + a1;
        s1 = a0 - a1;
        d0 = a2 + a3;
        imaginary = a2.im - a3.im;
    }
    return {{s0 + d0, {s1.re - imaginary, s1.im - real}, s0 - d0, {s1.re + imaginary, s1.im + real}}};
}

template <bool conjugateOdd, class T> SIG5D_INLINE Quad<T> evaluate(Quad<T> a, const Powers<T>& t)
{
    return sums<conjugateOdd, T>({{a.v[0], a.v[1] * t.t1, a.v[2] * t.t2, a.v[3] * t.t3}});
}
template <bool conjugateOdd, class T> SIG5D_INLINE Quad<T> interpolate(Quad<T> a, const Powers<T>& t)
{
    const Quad<T> b = parts<conjugateOdd>(a);
    return {{b.v[0], timesConj(b.v[1], t.t1), timesConj(b.v[2], t.t2), timesConj(b.v[3], t.t3)}};
}

// Four blocks at equal distances.
SIG5D_INLINE Quad<Vector> getBlocks(const f64* p, Count apart)
{
    return {{getBlock(p), getBlock(p + apart), getBlock(p + 2 * apart), getBlock(p + 3 * apart)}};
}
SIG5D_INLINE void putBlocks(f64* p, Count apart, const Quad<Vector>& a)
{
    for (int j = 0; j < 4; ++j) putBlock(p + j * apart, a.v[j]);
}

// Where the next `width` columns lie; those after the next are asked for already.
template <class P> SIG5D_INLINE void findColumns(P* work, const i32* places, P** rows)
{
    for (int i = 0; i < width; ++i) {
        rows[i] = work + places[i];
        __builtin_prefetch(work + places[i + columnsAhead]);
    }
}

// The lanes of `width` blocks: value j of each.
SIG5D_INLINE Quad<Vector> getLanes(const f64* const* blocks)
{
    const f64* imaginary[width];
    for (int i = 0; i < width; ++i) imaginary[i] = blocks[i] + 4;
    const Four<Vector> re = getTransposed<Vector>(blocks), im = getTransposed<Vector>(imaginary);
    return {{{re.v[0], im.v[0]}, {re.v[1], im.v[1]}, {re.v[2], im.v[2]}, {re.v[3], im.v[3]}}};
}
SIG5D_INLINE void putLanes(f64* const* blocks, const Quad<Vector>& a)
{
    const Four<Vector> re = {{a.v[0].re, a.v[1].re, a.v[2].re, a.v[3].re}};
    const Four<Vector> im = {{a.v[0].im, a.v[1].im, a.v[2].im, a.v[3].im}};
    putTransposed(blocks, re, im);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
