// The butterfly across the lanes for unordered spectra, and products of such spectra. A group of four blocks becomes
// the values at z = t, -t, -i t, i t: four blocks again, with one lane per block of the group.
#include "signal/processing/fft/butterfly.h"
#include "signal/processing/fft/ends.h"
#include "signal/processing/fft/passes.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr Count fourBlocks = 4 * blockSize;

template <class F> SIG5D_INLINE Quad<Vector> groupForward(F* group, int h, const Powers<Vector>& t)
{
    const f64* rows[width];
    for (int i = 0; i < width; ++i) rows[i] = group + (h + i) * blockSize;
    return evaluate<false>(getLanes(rows), t);
}
SIG5D_INLINE void groupInverse(f64* group, int h, const Powers<Vector>& t, const Quad<Vector>& a)
{
    f64* rows[width];
    for (int i = 0; i < width; ++i) rows[i] = group + (h + i) * blockSize;
    putLanes(rows, interpolate<false>(a, t));
}
SIG5D_INLINE Complex<Vector> getValues(const f64* p) { return {load(p), load(p + 4)}; }
SIG5D_INLINE void putValues(f64* p, Complex<Vector> a)
{
    store(p, a.re);
    store(p + 4, a.im);
}

// What becomes of d: a * b, a * conj(b), d + a * b.
enum class Product { plain, conjugated, added };
template <Product kind, class T> SIG5D_INLINE Complex<T> product(Complex<T> a, Complex<T> b, Complex<T> d)
{
    if constexpr (kind == Product::conjugated) return timesConj(a, b);
    return kind == Product::plain ? a * b : d + a * b;
}

// Spectra of interleaved complex values.
template <Product kind> void multiplyValues(const f64* a, const f64* b, f64* d, Count n)
{
    for (Count i = 0; i < 2 * n; i += 2) {
        const Complex<f64> x = {a[i], a[i + 1]}, y = {b[i], b[i + 1]};
        const Complex<f64> result = product<kind>(x, y, kind == Product::added ? Complex<f64>{d[i], d[i + 1]} : x);
        d[i] = result.re;
        d[i + 1] = result.im;
    }
}
template <Product kind> void multiplyBlocks(const f64* a, const f64* b, f64* d, Count blocks)
{
    for (Count i = 0; i < blocks * blockSize; i += blockSize)
        for (int h = 0; h < 4; h += width) {
            const Complex<Vector> x = getValues(a + i + h), y = getValues(b + i + h);
            putValues(d + i + h, product<kind>(x, y, kind == Product::added ? getValues(d + i + h) : x));
        }
}
bool interleaved(const FftPlan& plan) { return plan.small || isOrdered(plan); }

template <Product kind> void multiply(const FftPlan& plan, const f64* a, const f64* b, f64* d)
{
    constexpr bool added = kind == Product::added;
    if (interleaved(plan)) {
        const f64 ends[2] = {a[0] * b[0], plan.order > 0 ? a[1] * b[1] : 0};
        multiplyValues<kind>(a + 2, b + 2, d + 2, pointsOf(plan) / 2 - 1);
        for (int i = 0; i < 2 && i < pointsOf(plan); ++i) d[i] = added ? d[i] + ends[i] : ends[i];
        return;
    }
    const Ends other = endsOfSpectrum(b), before = added ? endsOfSpectrum(d) : other;
    Ends ends = multiplyEnds(endsOfSpectrum(a), kind == Product::conjugated ? conjugate(other) : other, 1.0);
    for (int j = 0; added && j < 4; ++j) {
        ends.plus[j] += before.plus[j];
        ends.minus[j] += before.minus[j];
    }
    multiplyBlocks<kind>(a, b, d, pointsOf(plan) / blockSize);
    putEndsOfSpectrum(d, ends);
}
template <Product kind> void multiply(const FftPlan& plan, const c64f* a, const c64f* b, c64f* d)
{
    if (interleaved(plan))
        multiplyValues<kind>(&a->re, &b->re, &d->re, pointsOf(plan));
    else
        multiplyBlocks<kind>(&a->re, &b->re, &d->re, pointsOf(plan) / 4);
}

} // namespace

void acrossForward(const f64* work, const f64* table, Count blocks, f64* spectrum)
{
    for (Count i = 0; i < blocks; i += 4, work += fourBlocks, spectrum += fourBlocks, table += groupSize)
        for (int h = 0; h < 4; h += width) {
            const Quad<Vector> a = groupForward(work, h, powersOfGroup(table + h));
            for (int j = 0; j < 4; ++j) putValues(spectrum + j * blockSize + h, a.v[j]);
        }
}

void acrossInverse(const f64* spectrum, const f64* table, Count blocks, f64* work)
{
    for (Count i = 0; i < blocks; i += 4, work += fourBlocks, spectrum += fourBlocks, table += groupSize)
        for (int h = 0; h < 4; h += width) {
            Quad<Vector> a;
            for (int j = 0; j < 4; ++j) a.v[j] = getValues(spectrum + j * blockSize + h);
            groupInverse(work, h, powersOfGroup(table + h), a);
        }
}

void convolveBlocks(f64* work, const f64* table, const f64* h, Count blocks)
{
    for (Count i = 0; i < blocks; i += 4, work += fourBlocks, h += fourBlocks, table += groupSize)
        for (int k = 0; k < 4; k += width) {
            const Powers<Vector> t = powersOfGroup(table + k);
            Quad<Vector> a = groupForward(work, k, t);
            for (int j = 0; j < 4; ++j) a.v[j] = a.v[j] * getValues(h + j * blockSize + k);
            groupInverse(work, k, t, a);
        }
}

void fftMultiply(const void* plan, const f64* a, const f64* b, f64* d)
{
    multiply<Product::plain>(planAt(plan), a, b, d);
}
void fftMultiply(const void* plan, const c64f* a, const c64f* b, c64f* d)
{
    multiply<Product::plain>(planAt(plan), a, b, d);
}
void fftMultiplyConj(const void* plan, const f64* a, const f64* b, f64* d)
{
    multiply<Product::conjugated>(planAt(plan), a, b, d);
}
void fftMultiplyConj(const void* plan, const c64f* a, const c64f* b, c64f* d)
{
    multiply<Product::conjugated>(planAt(plan), a, b, d);
}
void fftMultiplyAdd(const void* plan, const f64* a, const f64* b, f64* d)
{
    multiply<Product::added>(planAt(plan), a, b, d);
}
void fftMultiplyAdd(const void* plan, const c64f* a, const c64f* b, c64f* d)
{
    multiply<Product::added>(planAt(plan), a, b, d);
}

} // namespace sig5d::SIG5D_VARIANT
