// One value of the spectrum: the sum of x[n] * w^n with w = e^(-2 pi i f), by Horner's rule in interleaved chains.
//
// Samples stand in rows of 16 numbers. Each column is a chain of its own, z = x + z*W, where W is the rotation from one
// row to the next; four rows are taken at once, so that three of four products are of real numbers:
// z = (x0 + x1*W + x2*W^2 + x3*W^3) + z*W^4. Complex samples are taken for twice as many real ones: the real parts and
// the imaginary parts have chains of their own.
#include "frame/entry.h"
#include "frame/index.h"
#include "signal/processing/goertzel/rotations.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr size_t columns = 16, atOnce = 4; // rows
constexpr size_t blockRows = 64;           // that stay in the first cache for all columns and frequencies

// What the samples are multiplied by: W to W^4, then w^8, w^4, w^2 and w in units of numbers.
struct Rotations {
    alignas(64) f64 cos[8], sin[8];
    void fill(f64 frequency, int members)
    {
        static constexpr f64 multiples[] = {16, 32, 48, 64, 8, 4, 2, 1};
        const Multiples of(frequency);
        constexpr int L = lanes<f64>;
        for (int i = 0; i < 8; i += L) {
            const auto a = of.cos_sin_of(loadn<L>(multiples + i) * all_lanes<Vec<f64>>(1.0 / members));
            storen<L>(cos + i, a.re);
            storen<L>(sin + i, a.im);
        }
    }
};

// The chains' sums, column by column.
struct Chains {
    alignas(64) f64 re[columns], im[columns];
};

// z*W, where the angle of W is that of (c, s) with the other sign.
template <class V> inline Complex<V> turned_back(Complex<V> z, V c, V s)
{
    return {z.re * c + z.im * s, z.im * c - z.re * s};
}

// The next rows in some columns beside each other, from the last row on: those that make no four one by one.
template <int vectors>
[[gnu::always_inline]] inline void some_columns(const f64* a, size_t rows, const Rotations& w, f64* re, f64* im)
{
    constexpr int L = lanes<f64>;
    using V = Vec<f64>;
    Complex<V> z[vectors];
    for (int j = 0; j < vectors; ++j) z[j] = {loadn<L>(re + j * L), loadn<L>(im + j * L)};
    for (; rows % atOnce; --rows)
        for (int j = 0; j < vectors; ++j) {
            const Complex<V> t = turned_back(z[j], all_lanes<V>(w.cos[0]), all_lanes<V>(w.sin[0]));
            z[j] = {loadn<L>(a + (rows - 1) * columns + j * L) + t.re, t.im};
        }
    const V c1 = all_lanes<V>(w.cos[0]), c2 = all_lanes<V>(w.cos[1]), c3 = all_lanes<V>(w.cos[2]),
            c4 = all_lanes<V>(w.cos[3]), s1 = all_lanes<V>(w.sin[0]), s2 = all_lanes<V>(w.sin[1]),
            s3 = all_lanes<V>(w.sin[2]), s4 = all_lanes<V>(w.sin[3]);
    const f64* p = a + rows * columns;
    while (p != a) {
        p -= atOnce * columns;
#pragma GCC unroll 4
        for (int j = 0; j < vectors; ++j) {
            const f64* const q = p + j * L;
            const V x0 = loadn<L>(q), x1 = loadn<L>(q + columns), x2 = loadn<L>(q + 2 * columns),
                    x3 = loadn<L>(q + 3 * columns);
            const Complex<V> t = turned_back(z[j], c4, s4);
            z[j] = {t.re + ((x0 + x1 * c1) + (x2 * c2 + x3 * c3)), t.im - (x1 * s1 + (x2 * s2 + x3 * s3))};
        }
    }
    for (int j = 0; j < vectors; ++j) {
        storen<L>(re + j * L, z[j].re);
        storen<L>(im + j * L, z[j].im);
    }
}

// All columns, so many vectors at a time as there are registers for.
[[gnu::noinline]] void add_rows(const f64* a, size_t rows, const Rotations& w, Chains& z)
{
    constexpr int vectors = lanes<f64> == 1 ? 1 : 2;
    for (size_t k = 0; k < columns; k += vectors * lanes<f64>)
        some_columns<vectors>(a + k, rows, w, z.re + k, z.im + k);
}

// The chains as one: k and k + 8, then k and k + 4, and so on down to one, or to the two of a sample's parts.
inline void join(Chains& z, const Rotations& w, int members)
{
    for (int step = 4, half = columns / 2; half >= members; half /= 2, ++step) {
        const f64 c = w.cos[step], s = w.sin[step];
#pragma GCC unroll 1
        for (int k = 0; k < half; ++k) {
            const Complex<f64> t = turned_back<f64>({z.re[k + half], z.im[k + half]}, c, s);
            z.re[k] += t.re;
            z.im[k] += t.im;
        }
    }
}

// n numbers, of which a sample has so many members; at so many frequencies, one or two, in one pass.
[[gnu::noinline, gnu::noclone]] void spectrum(const f64* a, size_t n, int members, const f64* frequency,
                                              int frequencies, c64f* value)
{
    Rotations w[2];
    Chains z[2];
    // What is left at the end is a row of which some columns begin later: with nothing.
    const size_t whole = n / columns;
    for (int i = 0; i < frequencies; ++i) {
        w[i].fill(frequency[i], members);
#pragma GCC unroll 1
        for (size_t k = 0; k < columns; ++k) {
            z[i].re[k] = whole * columns + k < n ? a[whole * columns + k] : 0.0;
            z[i].im[k] = 0.0;
        }
    }
    for (size_t end = whole; end;) {
        const size_t rows = end % blockRows ? end % blockRows : blockRows;
        end -= rows;
        for (int i = 0; i < frequencies; ++i) add_rows(a + end * columns, rows, w[i], z[i]);
    }
    for (int i = 0; i < frequencies; ++i) {
        join(z[i], w[i], members);
        value[i] = {z[i].re[0], z[i].im[0]};
        if (members == 2) value[i] = {z[i].re[0] - z[i].im[1], z[i].im[0] + z[i].re[1]};
    }
}

inline void spectrum_of(const f64* a, int n, const f64* frequency, int frequencies, c64f* value)
{
    spectrum(a, static_cast<size_t>(n), 1, frequency, frequencies, value);
}
inline void spectrum_of(const c64f* a, int n, const f64* frequency, int frequencies, c64f* value)
{
    spectrum(&a->re, 2 * static_cast<size_t>(n), 2, frequency, frequencies, value);
}

template <class T> void goertzel(const T* a, int n, c64f* value, f64 frequency)
{
    spectrum_of(a, n, &frequency, 1, value);
}

template <class T> Status goertzel_two(const T* pSrc, int srcIdx, int n, c64f* value, const f64* frequency)
{
    for (int i = 0; i < 2; ++i)
        if (frequency[i] < 0 || frequency[i] >= 1) return StsRelFreqErr;
    spectrum_of(element<static_cast<int>(sizeof(T))>(pSrc, srcIdx), n, frequency, 2, value);
    return StsNoErr;
}

} // namespace
#include "entries/signal/processing/goertzel/goertzel.inc"
} // namespace sig5d::SIG5D_VARIANT
