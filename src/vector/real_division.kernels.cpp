// Quotients by real divisors: true divisions, at the speed of the divider.
#include "frame/entry.h"
#include "kernel/complex.h"
#include "vector/map_numbers.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct ValueOver {
    Repeated<f64> value;
    template <class V> V operator()(V b) const { return value.as<V>() / b; }
};
struct ComplexValueOver {
    f64 re, im;
    template <class V> Parts<V> operator()(V b) const { return {constant<V>(re) / b, constant<V>(im) / b}; }
};
struct PartsOver {
    template <class V> Parts<V> operator()(Parts<V> a, V b) const { return {a.re / b, a.im / b}; }
};

[[gnu::noinline]] void divide_value(const f64* b, f64* d, f64 v, u32 n) { map(n, d, ValueOver{Repeated(v)}, b); }
[[gnu::noinline]] void divide_value(const f64* b, c64f* d, const c64f* v, u32 n)
{
    map_numbers(n, complex(d), ComplexValueOver{v->re, v->im}, b);
}
[[gnu::noinline]] void divide(const c64f* a, const f64* b, c64f* d, u32 n)
{
    map_numbers(n, complex(d), PartsOver{}, complex(a), b);
}

} // namespace
#include "entries/vector/real_division.inc"
} // namespace sig5d::SIG5D_VARIANT
