// Quotients and remainders in one pass: loops with two destinations.
#pragma once
#include "kernel/compact_loop.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Below this the loop of single divisions is as fast as any preparation.
constexpr u32 fewElements = 8;

// The sources may overlap the destinations as long as a vector at a time gives the same as an element at a time: the
// remainders may take the place of a source, exactly.
template <class T> inline bool independent(size_t n, const T* q, const T* r, const T* a)
{
    const size_t bytes = n * sizeof(T);
    return apart(q, r, bytes) && apart(q, a, bytes) && (r == a || apart(r, a, bytes));
}

#if SIG5D_LEVEL > 0

// Lanes in which products and differences wrap around.
template <class T> struct UnsignedLane {
    using type = u32;
};
template <> struct UnsignedLane<i16> {
    using type = u16;
};

template <class V> struct Division {
    V quotient, remainder;
};

// As map, with two destinations: {q[i], r[i]} = op(a[i], ...), of vectors of elements only: none is divided by zero.
template <class T, class Op, class... A>
[[gnu::always_inline]] inline void map_division(size_t n, T* q, T* r, Op op, A... a)
{
    constexpr size_t L = lanes<T>;
    if (n < L) {
        const auto v = op(load_ends(a, n)...);
        store_ends(q, n, v.quotient);
        store_ends(r, n, v.remainder);
        return;
    }
    T *const firstQ = q, *const firstR = r, *const lastQ = q + (n - L), *const lastR = r + (n - L);
    const auto head = op(loadn<L>(a)...), tail = op(loadn<L>(a + (n - L))...);
    const size_t skip = misalignment(q);
    q += skip;
    r += skip;
    (void(a += skip), ...);
    size_t left = n - skip;
    if (streamingPays(2 * n * sizeof(T)) && (apart(r, a, left * sizeof(T)) && ...) && aligned(q, vectorBytes) &&
        aligned(r, vectorBytes)) {
        for (; left > L; left -= L) {
            const auto v = op(loadn<L>(a)...);
            stream(q, v.quotient);
            stream(r, v.remainder);
            q += L;
            r += L;
            (void(a += L), ...);
        }
        stream_end();
    }
    for (; left > L; left -= L) {
        const auto v = op(loadn<L>(a)...);
        put(q, v.quotient);
        put(r, v.remainder);
        q += L;
        r += L;
        (void(a += L), ...);
    }
    put(firstQ, head.quotient);
    put(firstR, head.remainder);
    put(lastQ, tail.quotient);
    put(lastR, tail.remainder);
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
