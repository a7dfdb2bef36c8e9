// What map reads and writes. A source is a pointer or a record with
//     a + n              the source from its n-th element on;
//     load_lanes<n>(a)   its first n elements, n a power of two, in a vector of as many lanes or in the low end of one
//                        of 16 bytes; with n = 1 in px the element itself;
//     span(a, n)         the bytes that its first n elements are read from.
// A destination has the first and the last of these, and
//     store_lanes<n>(write, d, v)   stores the first n lanes of v; "write" stores a whole vector;
//     lanesOf<D>                    elements of a vector;
//     pin(d)                        see below.
#pragma once
#include "kernel/partial.h"
#include "kernel/stream.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The bytes of an array; nothing, for what lies in no memory.
struct Span {
    const void* p;
    size_t bytes;
};
inline bool apart(Span a, Span b)
{
    const uintptr_t p = reinterpret_cast<uintptr_t>(a.p), q = reinterpret_cast<uintptr_t>(b.p);
    return p + a.bytes <= q || q + b.bytes <= p;
}
constexpr Span nowhere = {nullptr, 0};

// How vectors are stored.
struct Ordinary {
    template <class V> void operator()(void* p, V v) const { store_at(p, v); }
};
struct PastCaches { // p is aligned
    template <class V> void operator()(void* p, V v) const { stream(p, v); }
};

// Arrays.
template <class T> inline Span span(const T* p, size_t n) { return {p, n * sizeof(T)}; }
template <class A> constexpr bool isArray = false; // the n-th element lies n times its size behind the first
template <class T> constexpr bool isArray<T*> = true;
template <class D> constexpr size_t lanesOf = D::lanesOfEach;
template <class T> constexpr size_t lanesOf<T*> = static_cast<size_t>(lanes<T>);

template <int n, class Write, class T, class V> inline void store_lanes([[maybe_unused]] Write write, T* d, V v)
{
    if constexpr (lanes<u8> == 1)
        *d = static_cast<T>(v);
    else if constexpr (sizeof(V) == n * sizeof(T))
        write(d, v);
    else
        store_part<static_cast<int>(n * sizeof(T))>(d, v);
}

// Pins a pointer that the compiler would otherwise turn into an index, and the order of loads and stores around it:
// stores with an index, or that alternate between cache lines, are slower on some processors.
template <class T> inline void pin(T*& p) { asm volatile("" : "+r"(p) : : "memory"); }

// An array whose elements are converted on the way. A conversion is a record with
//     one(x)    in px: an element;
//     to<n>(p)  for vectors: what load_lanes<n>(p) is to give.
template <class S, class Op> struct Converted {
    const S* p;
    Op op;
    Converted operator+(size_t n) const { return {p + n, op}; }
};
template <class S, class Op> inline Span span(Converted<S, Op> a, size_t n) { return span(a.p, n); }
template <int n, class S, class Op> inline auto load_lanes(Converted<S, Op> a)
{
    if constexpr (lanes<u8> == 1)
        return a.op.one(*a.p);
    else
        return a.op.template to<n>(a.p);
}
template <class S, class Op> inline Converted<S, Op> converted(const S* p, Op op) { return {p, op}; }

// Two arrays of a kind, for operations that give a record of two vectors.
template <class T> struct TwoArrays {
    static constexpr size_t lanesOfEach = static_cast<size_t>(lanes<T>);
    T *first, *second;
    TwoArrays operator+(size_t n) const { return {first + n, second + n}; }
};
template <class T> TwoArrays(T*, T*) -> TwoArrays<T>;
template <int n, class Write, class T, class V> inline void store_lanes(Write write, TwoArrays<T> d, const V& v)
{
    const auto [first, second] = v;
    store_lanes<n>(write, d.first, first);
    store_lanes<n>(write, d.second, second);
}
template <class T> inline void pin(TwoArrays<T>& d)
{
    pin(d.first);
    pin(d.second);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
