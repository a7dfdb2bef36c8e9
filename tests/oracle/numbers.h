// Numbers that filters and correlations are defined on: double, long double, and complex ones of both.
#pragma once
#include "sig5d_types.h"
#include <vector>

namespace oracle {

struct LongComplex {
    long double re, im;
};
inline double product(double h, double x) { return h * x; }
inline long double product(long double h, long double x) { return h * x; }
template <class C> C product(C h, C x) { return {h.re * x.re - h.im * x.im, h.re * x.im + h.im * x.re}; }
inline double conjugate(double x) { return x; }
inline long double conjugate(long double x) { return x; }
template <class C> C conjugate(C x) { return {x.re, -x.im}; }
inline void add(double& s, double p) { s += p; }
inline void add(long double& s, long double p) { s += p; }
template <class C> void add(C& s, C p)
{
    s.re += p.re;
    s.im += p.im;
}

inline long double wide(double x) { return x; }
inline LongComplex wide(Ipp64fc x) { return {x.re, x.im}; }
template <class T> auto wide(const std::vector<T>& v)
{
    std::vector<decltype(wide(T{}))> result;
    for (const T& x : v) result.push_back(wide(x));
    return result;
}

} // namespace oracle
