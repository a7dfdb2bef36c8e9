// Sums, differences, products and quotients of every element and one number, real or complex.
#include "frame/entry.h"
#include "vector/pairs.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// An operation whose second operand is the same number for all elements; with the operands exchanged.
template <class Op, class T> struct WithValue {
    Operand<T> value;
    template <class V> V operator()(V x) const { return Op{}(x, value.template as<V>()); }
};
template <class Op> struct Reversed {
    template <class V> V operator()(V x, V y) const { return Op{}(y, x); }
};
struct ComplexProduct {
    Factor value;
    template <class V> V operator()(V x) const { return value.times(x); }
};

template <class Op> [[gnu::noinline]] void each(size_t n, const f64* a, f64* d, f64 v)
{
    map(n, d, WithValue<Op, f64>{Operand(v)}, a);
}
template <class Op, class A> [[gnu::noinline]] void each(size_t n, A a, c64f* d, c64f v)
{
    map_pairs(n, d, WithValue<Op, c64f>{Operand(v)}, a);
}

void add_value(const f64* a, f64* d, f64 v, u32 n) { each<Sum>(n, a, d, v); }
void add_value(const c64f* a, c64f* d, f64 v, u32 n) { each<Sum>(n, a, d, c64f{v, 0.0}); }
void add_value(const c64f* a, c64f* d, const c64f* v, u32 n) { each<Sum>(n, a, d, *v); }
void add_value(const f64* a, c64f* d, const c64f* v, u32 n) { each<Sum>(n, with_zeros(a), d, *v); }

using FromValue = Reversed<Difference>;
void sub_from_value(const f64* a, f64* d, f64 v, u32 n) { each<FromValue>(n, a, d, v); }
void sub_from_value(const c64f* a, c64f* d, f64 v, u32 n) { each<FromValue>(n, a, d, c64f{v, 0.0}); }
void sub_from_value(const c64f* a, c64f* d, const c64f* v, u32 n) { each<FromValue>(n, a, d, *v); }
void sub_from_value(const f64* a, c64f* d, const c64f* v, u32 n) { each<FromValue>(n, with_zeros(a), d, *v); }

void scale_by_value(const f64* a, f64* d, f64 v, u32 n) { each<PartsProduct>(n, a, d, v); }
void scale_by_value(const c64f* a, c64f* d, f64 v, u32 n) { each<PartsProduct>(size_t{2} * n, &a->re, &d->re, v); }
[[gnu::noinline]] void scale_by_value(const c64f* a, c64f* d, const c64f* v, u32 n)
{
    map_pairs(n, d, ComplexProduct{Factor(*v)}, a);
}
void scale_by_value(const f64* a, c64f* d, const c64f* v, u32 n) { each<PartsProduct>(n, twice(a), d, *v); }

using ValueOver = Reversed<PartsQuotient>;
void divide_value(const f64* b, f64* d, f64 v, u32 n) { each<ValueOver>(n, b, d, v); }
void divide_value(const f64* b, c64f* d, const c64f* v, u32 n) { each<ValueOver>(n, twice(b), d, *v); }

} // namespace
#include "entries/vector/mixed_value.inc"
} // namespace sig5d::SIG5D_VARIANT
