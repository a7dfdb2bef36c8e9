// Vectors of the variant's width as plain values: Vec<f64> v = load(p); store(p, v * splat(2.0)). Only for kernels that
// a plain loop does not serve. In px a vector has one element, so that the same source is the plain reference.
#pragma once
#include "frame/types.h"
#include <utility>

namespace sig5d::SIG5D_VARIANT {
namespace {

// Bytes of a vector register that the variant may use; px computes one element at a time.
constexpr int vectorBytes = SIG5D_LEVEL == 0 ? 0 : SIG5D_LEVEL < 4 ? 16 : 32;

template <class T> constexpr int lanes = SIG5D_LEVEL == 0 ? 1 : vectorBytes / static_cast<int>(sizeof(T));

template <class T, int n> struct VecType {
    typedef T type __attribute__((vector_size(sizeof(T) * n)));
    typedef T unaligned __attribute__((vector_size(sizeof(T) * n), aligned(alignof(T)), may_alias));
};
template <class T> struct VecType<T, 1> {
    using type = T;
    typedef T unaligned __attribute__((may_alias));
};

template <class T, int n = lanes<T>> using Vec = typename VecType<T, n>::type;

template <int n, class T> inline Vec<T, n> loadn(const T* p)
{
    return *reinterpret_cast<const typename VecType<T, n>::unaligned*>(p);
}
template <class T> inline Vec<T> load(const T* p) { return loadn<lanes<T>>(p); }

template <int n, class T> inline void storen(T* p, Vec<T, n> v)
{
    *reinterpret_cast<typename VecType<T, n>::unaligned*>(p) = v;
}
template <class T> inline void store(T* p, Vec<T> v) { storen<lanes<T>>(p, v); }

template <class T, int... i> inline Vec<T, sizeof...(i)> splat_lanes(T x, std::integer_sequence<int, i...>)
{
    return Vec<T, sizeof...(i)>{(void(i), x)...};
}
template <int n, class T> inline Vec<T, n> splatn(T x)
{
    if constexpr (n == 1)
        return x;
    else
        return splat_lanes(x, std::make_integer_sequence<int, n>{});
}
template <class T> inline Vec<T> splat(T x) { return splatn<lanes<T>>(x); }

} // namespace
} // namespace sig5d::SIG5D_VARIANT
