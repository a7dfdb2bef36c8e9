// Quotients by complex numbers: (a * conj(b)) * (1 / |b|^2), the textbook formula without scaling, every step rounded
// to 53 bits with exponents that neither overflow nor underflow. docs/decisions/complex-division.md tells why.
#include "frame/entry.h"
#include "vector/map_numbers.h"
#include "vector/wide.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The definition, for one quotient.
Parts<f64> wide_quotient(Parts<f64> dividend, Parts<f64> divisor)
{
    const Wide ar = wide(dividend.re), ai = wide(dividend.im), br = wide(divisor.re), bi = wide(divisor.im);
    const Wide t = reciprocal(br * br + bi * bi);
    return {to_double((ar * br + bi * ai) * t), to_double(t * (ai * br + -(ar * bi)))};
}

#if SIG5D_LEVEL == 0

inline Parts<f64> quotient(Parts<f64> a, Parts<f64> b) { return wide_quotient(a, b); }

#else

// The second where either is NaN. (Written as a choice this became a comparison and a blend.)
inline f64 smaller(f64 x, f64 y) { return x < y ? x : y; }
inline f64 greater(f64 x, f64 y) { return x > y ? x : y; }
inline Vec<f64, 2> smaller(Vec<f64, 2> x, Vec<f64, 2> y) { return _mm_min_pd(x, y); }
inline Vec<f64, 2> greater(Vec<f64, 2> x, Vec<f64, 2> y) { return _mm_max_pd(x, y); }
#if SIG5D_LEVEL >= 4
inline Vec<f64, 4> smaller(Vec<f64, 4> x, Vec<f64, 4> y) { return _mm256_min_pd(x, y); }
inline Vec<f64, 4> greater(Vec<f64, 4> x, Vec<f64, 4> y) { return _mm256_max_pd(x, y); }
#endif

// The magnitudes of the operands, but for zeros and NaN, lie within 2^-240 and 2^240. Then the formula in doubles is
// exact in the sense above: |b|^2 and its reciprocal lie within 2^-481 and 2^481, a difference of products that is not
// 0 is at least one unit in the last place of 2^-480, and the results lie between 2^-1013 and 2^962.
template <class V> struct Range {
    V least = constant<V>(1), greatest = constant<V>(1);
    void add(V x)
    {
        // One below the bits of the magnitude, as a number: 0 becomes a NaN, which the comparisons pass over.
        const V size = BitsOf<V>::back((BitsOf<V>::of(x) & BitsOf<V>::all(~signBit)) - BitsOf<V>::all(1));
        least = smaller(size, least);
        greatest = greater(size, greatest);
    }
    bool ordinary() const { return !lanes_set((least < constant<V>(0x1p-240)) | (greatest > constant<V>(0x1p240))); }
};

// Lane by lane, where numbers are not ordinary.
template <class V> [[gnu::noinline]] void wide_quotients(Parts<V>* a, const Parts<V>* b)
{
    constexpr size_t L = sizeof(V) / sizeof(f64);
    const auto *br = reinterpret_cast<const f64*>(&b->re), *bi = reinterpret_cast<const f64*>(&b->im);
    auto *ar = reinterpret_cast<f64*>(&a->re), *ai = reinterpret_cast<f64*>(&a->im);
    for (size_t i = 0; i < L; ++i) {
        const Parts<f64> q = wide_quotient({ar[i], ai[i]}, {br[i], bi[i]});
        ar[i] = q.re;
        ai[i] = q.im;
    }
}

// |b|^2 and both parts of the result lie within 2^-200 and 2^200. Then nothing has overflowed, and a product that
// underflowed stood beside one so much larger that it did not count.
template <class V> inline bool moderate(V power, Parts<V> q)
{
    const V re = absolute_value(q.re), im = absolute_value(q.im);
    const V least = smaller(smaller(re, im), power), greatest = greater(power, re + im); // the sum keeps a NaN
    return lanes_set((least >= constant<V>(0x1p-200)) & (greatest <= constant<V>(0x1p200))) == allLanes<V>;
}

template <class V> inline Parts<V> quotient(Parts<V> a, Parts<V> b)
{
    const V power = b.re * b.re + b.im * b.im;
    const V t = constant<V>(1) / power;
    const Parts<V> q = {(a.re * b.re + b.im * a.im) * t, t * (a.im * b.re - a.re * b.im)};
    if (__builtin_expect(moderate(power, q), 1)) return q;
    // Zeros in the result, for instance, say nothing; then the operands must be looked at.
    Range<V> range;
    range.add(a.re);
    range.add(a.im);
    range.add(b.re);
    range.add(b.im);
    if (range.ordinary()) return q;
    Parts<V> result = a;
    const Parts<V> divisor = b;
    wide_quotients(&result, &divisor);
    return result;
}

#endif

struct Quotient {
    template <class V> Parts<V> operator()(Parts<V> a, Parts<V> b) const { return quotient(a, b); }
    template <class V> Parts<V> operator()(V a, Parts<V> b) const { return quotient(Parts<V>{a, V{}}, b); }
};
struct ValueOver {
    f64 re, im;
    template <class V> Parts<V> operator()(Parts<V> b) const
    {
        return quotient(Parts<V>{constant<V>(re), constant<V>(im)}, b);
    }
};

[[gnu::noinline]] void divide_value(size_t n, const c64f* b, c64f* d, f64 re, f64 im)
{
    map_numbers(n, folded(d), ValueOver{re, im}, folded(b));
}
void divide_value(const c64f* b, c64f* d, const c64f* v, u32 n) { divide_value(n, b, d, v->re, v->im); }
void divide_value(const c64f* b, c64f* d, f64 v, u32 n) { divide_value(n, b, d, v, 0.0); }

[[gnu::noinline]] void divide(const c64f* a, const c64f* b, c64f* d, u32 n)
{
    map_numbers(n, folded(d), Quotient{}, folded(a), folded(b));
}

[[gnu::noinline]] void divide(const f64* a, const c64f* b, c64f* d, u32 n)
{
    map_numbers(n, folded(d), Quotient{}, FoldedReals{a}, folded(b));
}

} // namespace
#include "entries/vector/complex_division.inc"
} // namespace sig5d::SIG5D_VARIANT
