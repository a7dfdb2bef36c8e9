// Arrays of which one is real and one complex, and the product with a conjugate.
#include "frame/entry.h"
#include "vector/map_numbers.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// A real operand has the imaginary part +0.0, which takes part in sums and differences, but not in products.
struct Sum {
    template <class V> Parts<V> operator()(Parts<V> a, V b) const { return {a.re + b, a.im + V{}}; }
};
struct Difference {
    template <class V> Parts<V> operator()(Parts<V> a, V b) const { return {a.re - b, a.im - V{}}; }
    template <class V> Parts<V> operator()(V a, Parts<V> b) const { return {a - b.re, V{} - b.im}; }
};
struct Scaled {
    template <class V> Parts<V> operator()(Parts<V> a, V b) const { return {a.re * b, a.im * b}; }
};
struct ConjugateProduct {
    template <class V> Parts<V> operator()(Parts<V> a, Parts<V> b) const
    {
        return {a.im * b.im + a.re * b.re, a.im * b.re - a.re * b.im};
    }
};

template <class Op> [[gnu::noinline]] void each(size_t n, const c64f* a, const f64* b, c64f* d)
{
    map_numbers(n, complex(d), Op{}, complex(a), b);
}

void add(const c64f* a, const f64* b, c64f* d, u32 n) { each<Sum>(n, a, b, d); }
void sub(const c64f* a, const f64* b, c64f* d, u32 n) { each<Difference>(n, a, b, d); }
void mul(const c64f* a, const f64* b, c64f* d, u32 n) { each<Scaled>(n, a, b, d); }
[[gnu::noinline]] void sub(const f64* a, const c64f* b, c64f* d, u32 n)
{
    map_numbers(n, complex(d), Difference{}, a, complex(b));
}
[[gnu::noinline]] void conj_mul(const c64f* a, const c64f* b, c64f* d, u32 n)
{
    map_numbers(n, folded(d), ConjugateProduct{}, folded(a), folded(b));
}

} // namespace
#include "entries/vector/mixed_arrays.inc"
} // namespace sig5d::SIG5D_VARIANT
