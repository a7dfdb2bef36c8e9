// Quotients and remainders of integers by a number that is the same for all.
#include "frame/entry.h"
#include "vector/reciprocal.h"
#include "vector/two_results.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// One after the other, by the processor's division, with its fault where the value is zero.
template <class T> void plain_quotients(const T* a, T v, T* q, u32 n)
{
    for (u32 i = 0; i < n; ++i) q[i] = static_cast<T>(a[i] / v);
}
template <class T> void plain_remainders(const T* a, T v, T* r, u32 n)
{
    for (u32 i = 0; i < n; ++i) r[i] = static_cast<T>(a[i] % v);
}
template <class T> void plain_both(const T* a, T* q, T* r, T v, u32 n)
{
    for (u32 i = 0; i < n; ++i) {
        q[i] = static_cast<T>(a[i] / v);
        r[i] = static_cast<T>(a[i] % v);
    }
}

#if SIG5D_LEVEL == 0

template <class T> void quotients(const T* a, T v, T* q, u32 n) { plain_quotients(a, v, q, n); }
template <class T> void remainders(const T* a, T v, T* r, u32 n) { plain_remainders(a, v, r, n); }
template <class T> void quotients_and_remainders(const T* a, T* q, T* r, T v, u32 n) { plain_both(a, q, r, v, n); }

#else

template <class T> struct Quotient {
    Reciprocal<T> value;
    template <class V> V operator()(V x) const { return value.quotient(value.by_magnitude(x)); }
};
template <class T> struct Remainder {
    Reciprocal<T> value;
    template <class V> V operator()(V x) const { return value.remainder(x, value.by_magnitude(x)); }
};
template <class T> struct Both {
    Reciprocal<T> value;
    template <class V> Division<V> operator()(V x) const
    {
        const auto byMagnitude = value.by_magnitude(x);
        return {value.template quotient<V>(byMagnitude), value.remainder(x, byMagnitude)};
    }
};

template <class T> [[gnu::noinline]] void quotients(const T* a, T v, T* q, u32 n)
{
    if (n < fewElements) return plain_quotients(a, v, q, n);
    map(n, q, Quotient<T>{Reciprocal<T>(v)}, a);
}
template <class T> [[gnu::noinline]] void remainders(const T* a, T v, T* r, u32 n)
{
    if (n < fewElements) return plain_remainders(a, v, r, n);
    map(n, r, Remainder<T>{Reciprocal<T>(v)}, a);
}
template <class T> [[gnu::noinline]] void quotients_and_remainders(const T* a, T* q, T* r, T v, u32 n)
{
    if (n < fewElements || !independent(n, q, r, a)) return plain_both(a, q, r, v, n);
    map<Heavy<1>>(n, TwoArrays{q, r}, Both<T>{Reciprocal<T>(v)}, a);
}

#endif

} // namespace
#include "entries/vector/division_by_value.inc"
} // namespace sig5d::SIG5D_VARIANT
