// Vectors of the body's width as plain values: Vec<f64> v = load(p); store(p, v * splat(2.0)). The operators are the
// compiler's; what they do not say stands beside this file, one file for each width of register and topic. In px a
// vector has one element, so that the same source is the plain reference.
#pragma once
#include "frame/types.h"
#include <type_traits>
#include <utility>

namespace sig5d::SIG5D_VARIANT {
namespace {

// Bytes of a vector register that the body may use; px computes one element at a time.
constexpr int vectorBytes = SIG5D_LEVEL == 0 ? 0 : SIG5D_LEVEL < 4 ? 16 : SIG5D_LEVEL < 6 ? 32 : 64;
// Of a register of integers: AVX has the longer ones for numbers only.
constexpr int integerBytes = SIG5D_LEVEL == 4 ? 16 : vectorBytes;

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

// The type of a vector's elements (a number is a vector of itself), and as many unsigned ones.
template <class V> struct LaneType {
    using type = std::remove_cvref_t<decltype(V{}[0])>;
};
template <class V>
requires(std::is_integral_v<V> || std::is_floating_point_v<V>) struct LaneType<V> {
    using type = V;
};
template <class V> using Lane = typename LaneType<V>::type;
template <class V> using Unsigned = Vec<std::make_unsigned_t<Lane<V>>, sizeof(V) / sizeof(Lane<V>)>;

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

// The same number in every lane of a V.
template <class V> inline V all_lanes(Lane<V> x) { return splatn<sizeof(V) / sizeof(x)>(x); }

// The larger and the smaller of two numbers, lane by lane: the second if they are equal or one is NaN.
template <class V> inline V larger(V x, V y) { return x > y ? x : y; }
template <class V> inline V smaller(V x, V y) { return x < y ? x : y; }

// The bits of a vector as one of another type, and as what the intrinsics take.
template <class V, class W> inline V as(W v) { return reinterpret_cast<V>(v); }
template <class V> inline auto bits(V v) { return reinterpret_cast<Vec<long long, sizeof(V) / 8>>(v); }

// What the body's processor has: for kernels that can do without it by a way of their own.
constexpr bool hasByteShuffle = SIG5D_LEVEL >= 2;  // and products of fractions, magnitudes and signs of integers
constexpr bool hasFloor = SIG5D_LEVEL >= 3;        // of doubles; widening to 64 bits
constexpr bool has32BitMinimum = SIG5D_LEVEL >= 3; // and maximum, signed and unsigned
constexpr bool hasMaskedMoves = SIG5D_LEVEL >= 6;  // of any lanes: what they do not reach in memory need not be there
constexpr bool hasQuickChoice = SIG5D_LEVEL == 3;  // between lanes by a mask: two steps from AVX on

} // namespace
} // namespace sig5d::SIG5D_VARIANT
