// Quotients and remainders of integers by the elements of an array.
#include "frame/entry.h"
#include "frame/index.h"
#include "vector/quotient_lanes.h"
#include "vector/two_results.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The same number again and again: what the loops take for an array.
template <class T> struct Constant {
    T value;
    T operator[](u32) const { return value; }
};

// One after the other, by the processor's division, with its fault where the divisor is zero. Elements are read again
// for the remainder, after the quotient has been stored.
template <class T, class A> void plain_quotients(A a, const T* b, T* q, u32 n)
{
    for (u32 i = 0; i < n; ++i) q[i] = static_cast<T>(a[i] / b[i]);
}
template <class T, class A> void plain_both(A a, const T* b, T* q, T* r, u32 n)
{
    for (u32 i = 0; i < n; ++i) {
        q[i] = static_cast<T>(a[i] / b[i]);
        r[i] = static_cast<T>(a[i] % b[i]);
    }
}

#if SIG5D_LEVEL == 0

template <class T> void quotients_of_value(const T* b, T v, T* q, u32 n) { plain_quotients(Constant<T>{v}, b, q, n); }
template <class T> void quotients_and_remainders_of_value(const T* b, T* q, T* r, T v, u32 n)
{
    plain_both(Constant<T>{v}, b, q, r, n);
}
template <class T> void both_by_array(const T* a, const T* b, T* q, T* r, u32 n) { plain_both(a, b, q, r, n); }

#else

template <class T> struct QuotientOfValue {
    T value;
    template <class V> V operator()(V y) const { return quotient<T>(splatn<sizeof(V) / sizeof(T)>(value), y); }
};
template <class T> struct Both {
    template <class V> Division<V> operator()(V x, V y) const { return division<T>(x, y); }
};
template <class T> struct BothOfValue {
    T value;
    template <class V> Division<V> operator()(V y) const
    {
        return division<T>(splatn<sizeof(V) / sizeof(T)>(value), y);
    }
};

template <class T> [[gnu::noinline]] void quotients_of_value(const T* b, T v, T* q, u32 n)
{
    if (n < fewElements) return plain_quotients(Constant<T>{v}, b, q, n);
    map<Heavy<1>>(n, q, QuotientOfValue<T>{v}, b);
}
template <class T> [[gnu::noinline]] void quotients_and_remainders_of_value(const T* b, T* q, T* r, T v, u32 n)
{
    if (n < fewElements || !independent(n, q, r, b)) return plain_both(Constant<T>{v}, b, q, r, n);
    map<Heavy<1>>(n, TwoArrays{q, r}, BothOfValue<T>{v}, b);
}
template <class T> [[gnu::noinline]] void both_by_array(const T* a, const T* b, T* q, T* r, u32 n)
{
    if (n < fewElements || !independent(n, q, r, a) || !independent(n, q, r, b)) return plain_both(a, b, q, r, n);
    map<Heavy<1>>(n, TwoArrays{q, r}, Both<T>{}, a, b);
}

#endif

// The index of the divisors is without effect.
template <class T>
void quotients_and_remainders_by_array(const T* a, int aIdx, T* q, int qIdx, T* r, int rIdx, const T* b, int, u32 n)
{
    constexpr int unit = sizeof(T);
    both_by_array(element<unit>(a, aIdx), b, element<unit>(q, qIdx), element<unit>(r, rIdx), n);
}

} // namespace
#include "entries/vector/division_by_array.inc"
} // namespace sig5d::SIG5D_VARIANT
