// Quotients by complex numbers: (a * conj(b)) * (1 / |b|^2), the textbook formula without scaling, every step rounded
// to 53 bits with exponents that neither overflow nor underflow. docs/decisions/complex-division.md tells why.
#include "frame/entry.h"
#include "kernel/complex.h"
#include "vector/wide.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The definition, for one quotient.
Complex<f64> wide_quotient(Complex<f64> dividend, Complex<f64> divisor)
{
    const Wide ar = wide(dividend.re), ai = wide(dividend.im), br = wide(divisor.re), bi = wide(divisor.im);
    const Wide t = reciprocal(br * br + bi * bi);
    return {to_double((ar * br + bi * ai) * t), to_double(t * (ai * br + -(ar * bi)))};
}

#if SIG5D_LEVEL == 0

template <class... V> inline bool ordinary(V...) { return false; }
inline Complex<f64> quotient(Complex<f64> a, Complex<f64> b, bool) { return wide_quotient(a, b); }

#else

// The magnitudes of the operands, but for zeros, lie within 2^-240 and 2^240. Then the formula in doubles is exact in
// the sense above: |b|^2 and its reciprocal lie within 2^-481 and 2^481, a difference of products that is not 0 is at
// least one unit in the last place of 2^-480, and the results lie between 2^-1013 and 2^962. That is seen before
// anything is computed: a square that overflows would raise an exception.
constexpr f64 least = 0x1p-240, greatest = 0x1p240;

template <class V> inline V smallest_of(V x) { return absolute_value(x); }
template <class V, class... W> inline V smallest_of(V x, W... y)
{
    return smaller(absolute_value(x), smallest_of(y...));
}
template <class V> inline V largest_of(V x) { return absolute_value(x); }
template <class V, class... W> inline V largest_of(V x, W... y) { return larger(absolute_value(x), largest_of(y...)); }

template <class V> inline auto within_range(V x)
{
    const V size = absolute_value(x);
    return ((size >= constant<V>(least)) & (size <= constant<V>(greatest))) | (x == V{});
}
template <class V, class... W> inline bool ordinary(V x, W... y)
{
    const auto all = (smallest_of(x, y...) >= constant<V>(least)) & (largest_of(x, y...) <= constant<V>(greatest));
    if (__builtin_expect(lanes_set(all) == allLanes<V>, 1)) return true;
    return lanes_set((within_range(x) & ... & within_range(y))) == allLanes<V>; // some are zero
}

// Lane by lane, where numbers are not ordinary.
template <class V> [[gnu::noinline]] void wide_quotients(Complex<V>* a, const Complex<V>* b)
{
    constexpr size_t L = sizeof(V) / sizeof(f64);
    const auto *br = reinterpret_cast<const f64*>(&b->re), *bi = reinterpret_cast<const f64*>(&b->im);
    auto *ar = reinterpret_cast<f64*>(&a->re), *ai = reinterpret_cast<f64*>(&a->im);
    for (size_t i = 0; i < L; ++i) {
        const Complex<f64> q = wide_quotient({ar[i], ai[i]}, {br[i], bi[i]});
        ar[i] = q.re;
        ai[i] = q.im;
    }
}

template <class V> inline Complex<V> quotient(Complex<V> a, Complex<V> b, bool isOrdinary)
{
    if (__builtin_expect(isOrdinary, 1)) {
        const V t = constant<V>(1) / (b.re * b.re + b.im * b.im);
        return {(a.re * b.re + b.im * a.im) * t, t * (a.im * b.re - a.re * b.im)};
    }
    Complex<V> result = a;
    const Complex<V> divisor = b;
    wide_quotients(&result, &divisor);
    return result;
}

#endif

struct Quotient {
    template <class V> Complex<V> operator()(Complex<V> a, Complex<V> b) const
    {
        return quotient(a, b, ordinary(a.re, a.im, b.re, b.im));
    }
    template <class V> Complex<V> operator()(V a, Complex<V> b) const
    {
        return quotient(Complex<V>{a, V{}}, b, ordinary(a, b.re, b.im));
    }
};
struct ValueOver {
    f64 re, im;
    bool isOrdinary;
    ValueOver(f64 x, f64 y) : re(x), im(y), isOrdinary(ordinary(x, y)) {}
    template <class V> Complex<V> operator()(Complex<V> b) const
    {
        return quotient(Complex<V>{constant<V>(re), constant<V>(im)}, b, isOrdinary && ordinary(b.re, b.im));
    }
};

[[gnu::noinline]] void divide_value(size_t n, const c64f* b, c64f* d, f64 re, f64 im)
{
    map<Medium>(n, folded(d), ValueOver(re, im), folded(b));
}
void divide_value(const c64f* b, c64f* d, const c64f* v, u32 n) { divide_value(n, b, d, v->re, v->im); }
void divide_value(const c64f* b, c64f* d, f64 v, u32 n) { divide_value(n, b, d, v, 0.0); }

[[gnu::noinline]] void divide(const c64f* a, const c64f* b, c64f* d, u32 n)
{
    map<Medium>(n, folded(d), Quotient{}, folded(a), folded(b));
}

[[gnu::noinline]] void divide(const f64* a, const c64f* b, c64f* d, u32 n)
{
    map<Medium>(n, folded(d), Quotient{}, FoldedReals{a}, folded(b));
}

} // namespace
#include "entries/vector/complex_division.inc"
} // namespace sig5d::SIG5D_VARIANT
