// Sums, differences and products of every element and one number, real or complex.
#include "frame/entry.h"
#include "kernel/complex.h"
#include "vector/map_numbers.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct Sum {
    template <class V> V operator()(V x, V y) const { return x + y; }
};
struct ReverseDifference {
    template <class V> V operator()(V x, V y) const { return y - x; }
};
struct RealProduct {
    template <class V> V operator()(V x, V y) const { return x * y; }
};

// An operation whose second operand is the same number for all elements.
template <class Op, class T> struct WithValue {
    Repeated<T> value;
    static constexpr size_t period = sizeof(T) / sizeof(f64);
    template <class V> V operator()(V x) const { return Op{}(x, value.template as<V>()); }
};
struct ComplexProduct {
    Factor value;
    static constexpr size_t period = 2;
    template <class V> V operator()(V x) const { return value.times(x); }
};

template <class Op> [[gnu::noinline]] void each(size_t n, const f64* a, f64* d, f64 v)
{
    map(n, d, WithValue<Op, f64>{Repeated(v)}, a);
}
template <class Op> [[gnu::noinline]] void each(size_t n, const c64f* a, c64f* d, c64f v)
{
    map_complex(n, d, WithValue<Op, c64f>{Repeated(v)}, a);
}

// Real elements, complex results.
struct SumWithImaginary {
    f64 re, im;
    template <class V> Parts<V> operator()(V x) const { return {x + constant<V>(re), constant<V>(im)}; }
};
struct DifferenceWithImaginary {
    f64 re, im;
    template <class V> Parts<V> operator()(V x) const { return {constant<V>(re) - x, constant<V>(im)}; }
};
struct PartsScaled {
    f64 re, im;
    template <class V> Parts<V> operator()(V x) const { return {x * constant<V>(re), x * constant<V>(im)}; }
};
template <class Op> [[gnu::noinline]] void widen(size_t n, const f64* a, c64f* d, f64 re, f64 im)
{
    map_numbers(n, complex(d), Op{re, im}, a);
}

void add_value(const f64* a, f64* d, f64 v, u32 n) { each<Sum>(n, a, d, v); }
void add_value(const c64f* a, c64f* d, f64 v, u32 n) { each<Sum>(n, a, d, c64f{v, 0.0}); }
void add_value(const c64f* a, c64f* d, const c64f* v, u32 n) { each<Sum>(n, a, d, *v); }
void add_value(const f64* a, c64f* d, const c64f* v, u32 n) { widen<SumWithImaginary>(n, a, d, v->re, v->im + 0.0); }

void sub_from_value(const f64* a, f64* d, f64 v, u32 n) { each<ReverseDifference>(n, a, d, v); }
void sub_from_value(const c64f* a, c64f* d, f64 v, u32 n) { each<ReverseDifference>(n, a, d, c64f{v, 0.0}); }
void sub_from_value(const c64f* a, c64f* d, const c64f* v, u32 n) { each<ReverseDifference>(n, a, d, *v); }
void sub_from_value(const f64* a, c64f* d, const c64f* v, u32 n)
{
    widen<DifferenceWithImaginary>(n, a, d, v->re, v->im - 0.0);
}

void scale_by_value(const f64* a, f64* d, f64 v, u32 n) { each<RealProduct>(n, a, d, v); }
void scale_by_value(const c64f* a, c64f* d, f64 v, u32 n) { each<RealProduct>(size_t{2} * n, &a->re, &d->re, v); }
[[gnu::noinline]] void scale_by_value(const c64f* a, c64f* d, const c64f* v, u32 n)
{
    map_complex(n, d, ComplexProduct{Factor(*v)}, a);
}
void scale_by_value(const f64* a, c64f* d, const c64f* v, u32 n) { widen<PartsScaled>(n, a, d, v->re, v->im); }

} // namespace
#include "entries/vector/mixed_value.inc"
} // namespace sig5d::SIG5D_VARIANT
