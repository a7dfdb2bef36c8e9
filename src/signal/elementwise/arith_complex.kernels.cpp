// Products of complex numbers, squares, conjugates.
#include "frame/entry.h"
#include "kernel/pairs.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct Product {
    template <class V> V operator()(V x, V y) const { return product(x, y); }
};
struct SumWithProduct {
    template <class V> V operator()(V d, V x, V y) const { return d + product(x, y); }
};
struct Square {
    template <class V> V operator()(V x) const { return product(x, x); }
};
struct Conjugate {
    template <class V> V operator()(V x) const { return conjugate(x); }
};
struct ProductWithValue {
    Factor value;
    template <class V> V operator()(V x) const { return value.times(x); }
};

[[gnu::noinline]] void mul(const c64f* a, const c64f* b, c64f* d, int n)
{
    map_pairs(static_cast<size_t>(n), d, Product{}, a, b);
}
[[gnu::noinline]] void mul(const c64f* a, c64f v, c64f* d, int n)
{
    map_pairs(static_cast<size_t>(n), d, ProductWithValue{Factor(v)}, a);
}
// 1 / v. A power of two keeps the squares in range.
c64f reciprocal(c64f v)
{
    const f64 x = absolute_value(v.re), y = absolute_value(v.im), larger = x > y ? x : y;
    const f64 scale = larger > 0x1p500 ? 0x1p-600 : larger < 0x1p-450 ? 0x1p600 : 1;
    const f64 re = v.re * scale, im = v.im * scale, power = re * re + im * im;
    return {re / power * scale, -im / power * scale};
}
void div(const c64f* a, c64f v, c64f* d, int n) { mul(a, reciprocal(v), d, n); }
void add_product(const c64f* a, const c64f* b, c64f* d, int n)
{
    map_pairs(static_cast<size_t>(n), d, SumWithProduct{}, static_cast<const c64f*>(d), a, b);
}
[[gnu::noinline]] void sqr(const c64f* a, c64f* d, int n) { map_pairs(static_cast<size_t>(n), d, Square{}, a); }
[[gnu::noinline]] void conj(const c64f* a, c64f* d, int n) { map_pairs(static_cast<size_t>(n), d, Conjugate{}, a); }

} // namespace
#include "entries/signal/elementwise/arith_complex.inc"
} // namespace sig5d::SIG5D_VARIANT
