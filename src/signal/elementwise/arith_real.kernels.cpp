// Sums and differences, real and complex; products of real numbers.
#include "frame/entry.h"
#include "kernel/pairs.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct Sum {
    template <class V> V operator()(V x, V y) const { return x + y; }
};
struct Difference {
    template <class V> V operator()(V x, V y) const { return x - y; }
};
struct ReverseDifference {
    template <class V> V operator()(V x, V y) const { return y - x; }
};
struct Product {
    template <class V> V operator()(V x, V y) const { return x * y; }
};
struct SumWithProduct {
    template <class V> V operator()(V d, V x, V y) const { return d + x * y; }
};
struct Square {
    template <class V> V operator()(V x) const { return x * x; }
};
struct Absolute {
    template <class V> V operator()(V x) const { return absolute_value(x); }
};

// An operation whose second operand is the same number for all elements.
template <class Op, class T> struct WithValue {
    Operand<T> value;
    template <class V> V operator()(V x) const { return Op{}(x, value.template as<V>()); }
};

template <class Op> [[gnu::noinline]] void each(size_t n, const f64* a, const f64* b, f64* d) { map(n, d, Op{}, a, b); }
template <class Op> [[gnu::noinline]] void each(size_t n, const f64* a, f64 v, f64* d)
{
    map(n, d, WithValue<Op, f64>{Operand(v)}, a);
}
template <class Op> [[gnu::noinline]] void each(size_t n, const c64f* a, c64f v, c64f* d)
{
    map_pairs(n, d, WithValue<Op, c64f>{Operand(v)}, a);
}
// Complex arrays are arrays of their parts.
template <class Op> void each(size_t n, const c64f* a, const c64f* b, c64f* d)
{
    each<Op>(2 * n, &a->re, &b->re, &d->re);
}

template <class T> void add(const T* a, const T* b, T* d, int n) { each<Sum>(static_cast<size_t>(n), a, b, d); }
template <class T> void sub(const T* a, const T* b, T* d, int n) { each<Difference>(static_cast<size_t>(n), b, a, d); }
template <class T> void add(const T* a, T v, T* d, int n) { each<Sum>(static_cast<size_t>(n), a, v, d); }
template <class T> void sub_value(const T* a, T v, T* d, int n) { each<Difference>(static_cast<size_t>(n), a, v, d); }
template <class T> void sub_from_value(const T* a, T v, T* d, int n)
{
    each<ReverseDifference>(static_cast<size_t>(n), a, v, d);
}
void mul(const f64* a, const f64* b, f64* d, int n) { each<Product>(static_cast<size_t>(n), a, b, d); }
void mul(const f64* a, f64 v, f64* d, int n) { each<Product>(static_cast<size_t>(n), a, v, d); }
void div(const f64* a, f64 v, f64* d, int n) { mul(a, 1 / v, d, n); }
void sqr(const f64* a, f64* d, int n) { map(static_cast<size_t>(n), d, Square{}, a); }
void absolute(const f64* a, f64* d, int n) { map(static_cast<size_t>(n), d, Absolute{}, a); }

void add_product(const f64* a, const f64* b, f64* d, int n)
{
    map(static_cast<size_t>(n), d, SumWithProduct{}, static_cast<const f64*>(d), a, b);
}

} // namespace
#include "entries/signal/elementwise/arith_real.inc"
} // namespace sig5d::SIG5D_VARIANT
