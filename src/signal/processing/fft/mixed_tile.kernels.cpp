// Transforms of tiles by decimation in frequency: a pass of radix r takes blocks of rows apart into r blocks that are
// transformed by themselves. Every lane sees the same operations in every variant.
#include "signal/processing/fft/mixed_tile.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

using Value = Complex<Vector>;

constexpr f64 oneHalf = 0.5, oneQuarter = 0.25;
constexpr f64 sinThird = 0x1.bb67ae8584caap-1;                                      // of 2 pi / 3
constexpr f64 rootQuarter = 0x1.1e3779b97f4a8p-1;                                   // sqrt(5) / 4
constexpr f64 sinFifth = 0x1.e6f0e134454ffp-1, sinTwoFifths = 0x1.2cf2304755a5ep-1; // of 2 pi / 5 and 4 pi / 5
// Of 2 pi / 7 and so on; the second and the third cosine are negative, and their magnitudes stand here: signs of known
// factors could be moved, which shows where results are not rounded to nearest.
constexpr f64 cosSevenths[] = {0x1.3f3a0e28bedd1p-1, 0x1.c7b90e3024582p-3, 0x1.cd4bca9cb5c71p-1};
constexpr f64 sinSevenths[] = {0x1.904c37505de4bp-1, 0x1.f329c0558e969p-1, 0x1.bc4c04d71abc1p-2};
constexpr f64 cosEighth = 0x1.6a09e667f3bcdp-1; // of pi / 4

SIG5D_INLINE Vector every(const f64& c) { return broadcast<width>(&c); }
SIG5D_INLINE Value times(Value a, Vector c) { return {a.re * c, a.im * c}; }
SIG5D_INLINE Value minusTurned(Value a, Value b) { return {a.re + b.im, a.im - b.re}; } // a - i b
SIG5D_INLINE Value plusTurned(Value a, Value b) { return {a.re - b.im, a.im + b.re}; }  // a + i b

// A transform of r values, by halves: the real parts of its results come of the sums of real parts and the differences
// of imaginary ones of mirror images, j and r - j; imaginary parts the other way round, with the signs that exchange
// results k and r - k.
//   result[k] = sum over j of p[j] cos(2 pi j k / r) + q[j] sin(2 pi j k / r)
template <int r> SIG5D_INLINE void half(const Vector* p, const Vector* q, Vector* result)
{
    if constexpr (r == 2) {
        result[0] = p[0] + p[1];
        result[1] = p[0] - p[1];
    } else if constexpr (r == 3) {
        const Vector sum = p[1] + p[2], odd = (q[1] - q[2]) * every(sinThird);
        const Vector even = p[0] - sum * every(oneHalf);
        result[0] = p[0] + sum;
        result[1] = even + odd;
        result[2] = even - odd;
    } else if constexpr (r == 4) {
        const Vector s0 = p[0] + p[2], s1 = p[1] + p[3], even = p[0] - p[2], odd = q[1] - q[3];
        result[0] = s0 + s1;
        result[1] = even + odd;
        result[2] = s0 - s1;
        result[3] = even - odd;
    } else if constexpr (r == 5) {
        const Vector s1 = p[1] + p[4], s2 = p[2] + p[3], sum = s1 + s2;
        const Vector middle = p[0] - sum * every(oneQuarter), spread = (s1 - s2) * every(rootQuarter);
        result[0] = p[0] + sum;
        const Vector d1 = q[1] - q[4], d2 = q[2] - q[3], s = every(sinFifth), t = every(sinTwoFifths);
        const Vector even1 = middle + spread, even2 = middle - spread, odd1 = d1 * s + d2 * t, odd2 = d1 * t - d2 * s;
        result[1] = even1 + odd1;
        result[4] = even1 - odd1;
        result[2] = even2 + odd2;
        result[3] = even2 - odd2;
    } else {
        static_assert(r == 7);
        const Vector s1 = p[1] + p[6], s2 = p[2] + p[5], s3 = p[3] + p[4];
        const Vector c1 = every(cosSevenths[0]), c2 = every(cosSevenths[1]), c3 = every(cosSevenths[2]);
        const Vector even1 = ((p[0] + s1 * c1) - s2 * c2) - s3 * c3;
        const Vector even2 = ((p[0] - s1 * c2) - s2 * c3) + s3 * c1;
        const Vector even3 = ((p[0] - s1 * c3) + s2 * c1) - s3 * c2;
        result[0] = p[0] + ((s1 + s2) + s3);
        const Vector d1 = q[1] - q[6], d2 = q[2] - q[5], d3 = q[3] - q[4];
        const Vector t1 = every(sinSevenths[0]), t2 = every(sinSevenths[1]), t3 = every(sinSevenths[2]);
        const Vector odd1 = (d1 * t1 + d2 * t2) + d3 * t3;
        const Vector odd2 = (d1 * t2 - d2 * t3) - d3 * t1;
        const Vector odd3 = (d1 * t3 - d2 * t1) + d3 * t2;
        result[1] = even1 + odd1;
        result[6] = even1 - odd1;
        result[2] = even2 + odd2;
        result[5] = even2 - odd2;
        result[3] = even3 + odd3;
        result[4] = even3 - odd3;
    }
}
SIG5D_INLINE void four(Value* v, int apart)
{
    const Vector re[] = {v[0].re, v[apart].re, v[2 * apart].re, v[3 * apart].re};
    const Vector im[] = {v[0].im, v[apart].im, v[2 * apart].im, v[3 * apart].im};
    Vector x[4], y[4];
    half<4>(re, im, x);
    half<4>(im, re, y);
    for (int k = 0; k < 4; ++k) v[k * apart] = {x[k], y[-k & 3]};
}

// In natural order.
template <int r> SIG5D_INLINE void butterfly(Value* v)
{
    if constexpr (r < 8) {
        Vector re[r], im[r], x[r], y[r];
        for (int j = 0; j < r; ++j) {
            re[j] = v[j].re;
            im[j] = v[j].im;
        }
        half<r>(re, im, x);
        half<r>(im, re, y);
        for (int k = 0; k < r; ++k) v[k] = {x[k], y[k ? r - k : 0]};
    } else {
        static_assert(r == 8);
        four(v, 2);
        four(v + 1, 2);
        const Vector c = every(cosEighth);
        const Value one = {(v[3].re + v[3].im) * c, (v[3].im - v[3].re) * c};   // times exp(-i pi / 4)
        const Value three = {(v[7].re - v[7].im) * c, (v[7].re + v[7].im) * c}; // times -exp(-3 i pi / 4)
        const Value even[] = {v[0], v[2], v[4], v[6]}, two = v[5], zero = v[1];
        v[0] = even[0] + zero;
        v[4] = even[0] - zero;
        v[1] = even[1] + one;
        v[5] = even[1] - one;
        v[2] = minusTurned(even[2], two);
        v[6] = plusTurned(even[2], two);
        v[3] = even[3] - three;
        v[7] = even[3] + three;
    }
}

SIG5D_INLINE Value turn(const f64* p) { return {broadcast<width>(p), broadcast<width>(p + 1)}; }

// A row of each part, and so on for `count` of them.
template <int r, bool turned>
SIG5D_INLINE void rowsOfParts(const f64* source, Count sourceApart, Count sourceStep, Count imaginary, f64* row,
                              Count apart, Count step, Count count, const f64* turns)
{
    for (; count > 0; --count, source += sourceStep, row += step) {
        Value v[r];
        for (int j = 0; j < r; ++j) {
            const f64* const p = source + j * sourceApart;
            v[j] = {load(p), load(p + imaginary)};
        }
        butterfly<r>(v);
        putRow(row, v[0]);
        for (int k = 1; k < r; ++k) putRow(row + k * apart, turned ? v[k] * turn(turns + 2 * k - 2) : v[k]);
        if (turned) turns += 2 * (r - 1);
    }
}
// The first rows of all blocks, which meet no factors, then the others block by block.
template <int r>
[[gnu::noinline]] const f64* pass(const f64* from, Count apart, Count imaginary, f64* tile, Count length, Count block,
                                  const f64* turns)
{
    const Count part = block / r;
    rowsOfParts<r, false>(from, part * apart, block * apart, imaginary, tile, part * rowSize, block * rowSize,
                          length / block, nullptr);
    if (part == 1) return turns;
    for (Count i = 1; i < length; i += block)
        rowsOfParts<r, true>(from + i * apart, part * apart, apart, imaginary, tile + i * rowSize, part * rowSize,
                             rowSize, part - 1, turns);
    return turns + 2 * (r - 1) * (part - 1);
}

// Any odd radix, by sums of the definition over the sums and differences of the rows j and r - j, which are kept apart.
[[gnu::noinline]] void oddRows(const f64* source, Count sourceApart, Count imaginary, f64* row, Count apart, int r,
                               const f64* circle, const f64* turns, f64* spare)
{
    auto in = [&](int j) {
        const f64* const p = source + j * sourceApart;
        return Value{load(p), load(p + imaginary)};
    };
    const Value first = in(0);
    Value sum = first;
    for (int j = 1; 2 * j < r; ++j) {
        const Value a = in(j), b = in(r - j);
        putRow(spare + j * rowSize, a + b);
        putRow(spare + (r - j) * rowSize, a - b);
        sum = sum + (a + b);
    }
    putRow(row, sum);
    for (int k = 1; 2 * k < r; ++k) {
        Value even = first, odd = {};
        for (int j = 1, turned = k; 2 * j < r; ++j, turned = turned + k < r ? turned + k : turned + k - r) {
            const Value t = turn(circle + 2 * turned);
            even = even + times(getRow(spare + j * rowSize), t.re);
            odd = odd + times(getRow(spare + (r - j) * rowSize), t.im);
        }
        // The sines are those of the turn back.
        Value a = plusTurned(even, odd), b = minusTurned(even, odd);
        if (turns) {
            a = a * turn(turns + 2 * k - 2);
            b = b * turn(turns + 2 * (r - k) - 2);
        }
        putRow(row + k * apart, a);
        putRow(row + (r - k) * apart, b);
    }
}
const f64* oddPass(const f64* from, Count fromApart, Count imaginary, f64* tile, Count length, Count block, int r,
                   const f64* circle, const f64* turns, f64* spare)
{
    const Count part = block / r;
    for (Count p = 0; p < part; ++p) {
        for (Count i = p; i < length; i += block)
            oddRows(from + i * fromApart, part * fromApart, imaginary, tile + i * rowSize, part * rowSize, r, circle,
                    p ? turns : nullptr, spare);
        if (p) turns += 2 * (r - 1);
    }
    return turns;
}

} // namespace

void transformRows(const f64* from, Count apart, Count imaginary, f64* tile, f64* spare, const MixedPlan& plan,
                   const MixedTile& shape)
{
    const f64 *turns = tableAt<f64>(plan, shape.turns), *circle = tableAt<f64>(plan, shape.circle);
    const Count length = shape.length;
    Count block = length;
    for (int i = 0; i < shape.passes; ++i) {
        const int r = shape.radix[i];
        switch (r) {
        case 2:
            turns = pass<2>(from, apart, imaginary, tile, length, block, turns);
            break;
        case 3:
            turns = pass<3>(from, apart, imaginary, tile, length, block, turns);
            break;
        case 4:
            turns = pass<4>(from, apart, imaginary, tile, length, block, turns);
            break;
        case 5:
            turns = pass<5>(from, apart, imaginary, tile, length, block, turns);
            break;
        case 7:
            turns = pass<7>(from, apart, imaginary, tile, length, block, turns);
            break;
        case 8:
            turns = pass<8>(from, apart, imaginary, tile, length, block, turns);
            break;
        default:
            turns = oddPass(from, apart, imaginary, tile, length, block, r, circle, turns, spare);
            circle += 2 * r;
        }
        block /= r;
        from = tile;
        apart = rowSize;
        imaginary = width;
    }
}

} // namespace sig5d::SIG5D_VARIANT
