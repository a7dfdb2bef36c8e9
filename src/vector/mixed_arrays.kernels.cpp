// Arrays of which one is real and one complex, and the product with a conjugate. A real operand has the imaginary part
// +0.0, which takes part in sums and differences, but not in products and quotients.
#include "frame/entry.h"
#include "kernel/complex.h"
#include "vector/pairs.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class Op, class A, class B> [[gnu::noinline]] void each(size_t n, A a, B b, c64f* d)
{
    map_pairs(n, d, Op{}, a, b);
}

void add(const c64f* a, const f64* b, c64f* d, u32 n) { each<Sum>(n, a, with_zeros(b), d); }
void sub(const c64f* a, const f64* b, c64f* d, u32 n) { each<Difference>(n, a, with_zeros(b), d); }
void sub(const f64* a, const c64f* b, c64f* d, u32 n) { each<Difference>(n, with_zeros(a), b, d); }
void mul(const c64f* a, const f64* b, c64f* d, u32 n) { each<PartsProduct>(n, a, twice(b), d); }
void divide(const c64f* a, const f64* b, c64f* d, u32 n) { each<PartsQuotient>(n, a, twice(b), d); }

struct ConjugateProduct {
    template <class V> Complex<V> operator()(Complex<V> a, Complex<V> b) const
    {
        return {a.im * b.im + a.re * b.re, a.im * b.re - a.re * b.im};
    }
};
[[gnu::noinline]] void conj_mul(const c64f* a, const c64f* b, c64f* d, u32 n)
{
    map<Medium>(n, folded(d), ConjugateProduct{}, folded(a), folded(b));
}

} // namespace
#include "entries/vector/mixed_arrays.inc"
} // namespace sig5d::SIG5D_VARIANT
