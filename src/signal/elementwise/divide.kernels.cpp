// Quotients of arrays. A divisor of zero is a warning, after all elements have been computed.
#include "frame/entry.h"
#include "kernel/parts.h"
#include "kernel/select.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Operations take the divisor first, as the functions do.

struct RealQuotient {
    int& zeroDivisors;
    template <class V> V operator()(V b, V a) const
    {
        const auto none = b == V{};
        zeroDivisors |= lanes_set(none);
        // By +0, also instead of -0: infinity with the dividend's sign, and of zero by zero the NaN wanted. A NaN that
        // was there before would keep its payload.
        const V q = a / (none ? V{} : b);
        return none & (q != q) ? from_bits<V>(indefiniteBits) : q;
    }
};

struct ComplexQuotient {
    int& zeroDivisors;
    template <class V> Parts<V> operator()(Parts<V> b, Parts<V> a) const
    {
        const V d = b.re * b.re + b.im * b.im;
        const V r = constant<V>(1) / d;
        const auto none = d == V{};
        zeroDivisors |= lanes_set(none);
        const V nan = from_bits<V>(indefiniteBits);
        return {none ? nan : (a.re * b.re + a.im * b.im) * r, none ? nan : (a.im * b.re - a.re * b.im) * r};
    }
};

Status warning(int zeroDivisors) { return zeroDivisors ? StsDivByZero : StsNoErr; }

[[gnu::noinline]] Status divide(const f64* b, const f64* a, f64* d, int n)
{
    int zeroDivisors = 0;
    map_parts(static_cast<size_t>(n), d, RealQuotient{zeroDivisors}, b, a);
    return warning(zeroDivisors);
}

[[gnu::noinline]] Status divide(const c64f* b, const c64f* a, c64f* d, int n)
{
    int zeroDivisors = 0;
    map_parts(static_cast<size_t>(n), folded(d), ComplexQuotient{zeroDivisors}, folded(b), folded(a));
    return warning(zeroDivisors);
}

} // namespace
#include "entries/signal/elementwise/divide.inc"
} // namespace sig5d::SIG5D_VARIANT
