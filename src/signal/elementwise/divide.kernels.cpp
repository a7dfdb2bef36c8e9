// Quotients of arrays. A divisor of zero is a warning, after all elements have been computed.
#include "frame/entry.h"
#include "kernel/complex.h"
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Takes down the zeros found, which are rare.
inline bool any(int zeros, int& zeroDivisors)
{
    zeroDivisors |= zeros;
    return __builtin_expect(zeros != 0, 0);
}

// Operations take the divisor first, as the functions do.

struct RealQuotient {
    int& zeroDivisors;
    template <class V> V operator()(V b, V a) const
    {
        const V q = a / b;
        const auto none = b == V{};
        if (!any(lanes_set(none), zeroDivisors)) return q;
        // By +0, also instead of -0: infinity with the dividend's sign, and of zero by zero the NaN wanted. A NaN that
        // was there before would keep its payload. Not by a quotient, which other elements would take part in.
        const V infinite = with_sign(from_bits<V>(infinityBits), a), nan = from_bits<V>(indefiniteBits);
        const V finite = a == a ? infinite : nan;
        return none ? (a == V{} ? nan : finite) : q;
    }
};

struct ComplexQuotient {
    int& zeroDivisors;
    template <class V> Complex<V> operator()(Complex<V> b, Complex<V> a) const
    {
        const V d = b.re * b.re + b.im * b.im;
        const V r = constant<V>(1) / d;
        const Complex<V> q = {(a.re * b.re + a.im * b.im) * r, (a.im * b.re - a.re * b.im) * r};
        const auto none = d == V{};
        if (!any(lanes_set(none), zeroDivisors)) return q;
        const V nan = from_bits<V>(indefiniteBits);
        return {none ? nan : q.re, none ? nan : q.im};
    }
};

Status warning(int zeroDivisors) { return zeroDivisors ? StsDivByZero : StsNoErr; }

[[gnu::noinline]] Status divide(const f64* b, const f64* a, f64* d, int n)
{
    int zeroDivisors = 0;
    map<Medium>(static_cast<size_t>(n), d, RealQuotient{zeroDivisors}, b, a);
    return warning(zeroDivisors);
}

[[gnu::noinline]] Status divide(const c64f* b, const c64f* a, c64f* d, int n)
{
    int zeroDivisors = 0;
    map<Medium>(static_cast<size_t>(n), folded(d), ComplexQuotient{zeroDivisors}, folded(b), folded(a));
    return warning(zeroDivisors);
}

} // namespace
#include "entries/signal/elementwise/divide.inc"
} // namespace sig5d::SIG5D_VARIANT
