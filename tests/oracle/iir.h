// IIR filters by definition, sample by sample: literally in double, and by the difference equation in long double.
#pragma once
#include "oracle/fir.h"
#include <cstddef>

namespace oracle {

inline double sum(double x, double y) { return x + y; }
inline double difference(double x, double y) { return x - y; }
inline long double sum(long double x, long double y) { return x + y; }
inline long double difference(long double x, long double y) { return x - y; }
template <class C> C sum(C x, C y) { return {x.re + y.re, x.im + y.im}; }
template <class C> C difference(C x, C y) { return {x.re - y.re, x.im - y.im}; }

inline double reciprocal(double a) { return 1 / a; }
inline Ipp64fc reciprocal(Ipp64fc a)
{
    const double square = a.re * a.re + a.im * a.im;
    return {a.re / square, -a.im / square};
}

// The recurrence of order N: taps b0..bN a0..aN, delays d[0..N-1], which go on.
template <class T> std::vector<T> recurrence(const std::vector<T>& taps, std::vector<T>& d, const std::vector<T>& x)
{
    const int order = static_cast<int>(d.size());
    const T factor = reciprocal(taps[order + 1]);
    std::vector<T> b, a, y;
    for (int i = 0; i <= order; ++i) {
        b.push_back(product(taps[i], factor));
        a.push_back(product(taps[order + 1 + i], factor));
    }
    for (const T& in : x) {
        const T out = sum(product(b[0], in), d[0]);
        for (int i = 0; i + 1 < order; ++i)
            d[i] = sum(difference(product(b[i + 1], in), product(a[i + 1], out)), d[i + 1]);
        d[order - 1] = difference(product(b[order], in), product(a[order], out));
        y.push_back(out);
    }
    return y;
}

// Sections with taps b0 b1 b2 a0 a1 a2 and two delays each.
template <class T> std::vector<T> cascade(const std::vector<T>& taps, std::vector<T>& d, std::vector<T> x)
{
    for (std::size_t s = 0; s < d.size() / 2; ++s) {
        const T* t = taps.data() + 6 * s;
        const T factor = reciprocal(t[3]);
        const T b0 = product(t[0], factor), b1 = product(t[1], factor), b2 = product(t[2], factor);
        const T a1 = product(t[4], factor), a2 = product(t[5], factor);
        T &d0 = d[2 * s], &d1 = d[2 * s + 1];
        for (T& v : x) {
            const T in = v;
            v = sum(product(b0, in), d0);
            d0 = difference(sum(product(b1, in), d1), product(a1, v));
            d1 = difference(product(b2, in), product(a2, v));
        }
    }
    return x;
}

// a0*y[n] = sum of b[k]*x[n-k] - sum of a[k]*y[n-k], from rest, for an a0 that is real.
template <class T>
std::vector<T> differenceEquation(const std::vector<T>& taps, const std::vector<T>& x, long double a0)
{
    const int order = static_cast<int>(taps.size()) / 2 - 1;
    std::vector<T> y;
    for (int n = 0; n < static_cast<int>(x.size()); ++n) {
        T s{};
        for (int k = 0; k <= order && k <= n; ++k) s = sum(s, product(taps[k], x[n - k]));
        for (int k = 1; k <= order && k <= n; ++k) s = difference(s, product(taps[order + 1 + k], y[n - k]));
        if constexpr (sizeof(T) == sizeof(LongComplex))
            y.push_back({s.re / a0, s.im / a0});
        else
            y.push_back(s / a0);
    }
    return y;
}

} // namespace oracle
