// Loops in which complex numbers are vectors of real parts and vectors of imaginary parts: where the two are computed
// from one another, or stand in arrays of their own. An operation takes and gives real numbers as V and complex ones as
// Parts<V>, where V is a number or a vector of them: single numbers, never half-filled vectors, at the ends of arrays.
#pragma once
#include "kernel/loops.h"
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class V> struct Parts {
    V re, im;
};

// What a loop reads and writes, besides arrays of doubles: complex numbers; real and imaginary parts in two arrays;
// zeros. "Folded" puts the numbers into lanes in another order, which saves shuffles: for loops from complex to
// complex.
template <class T, bool folds> struct ComplexArray {
    T* p;
    ComplexArray operator+(size_t n) const { return {p + n}; }
    void operator+=(size_t n) { p += n; }
};
template <class T> inline ComplexArray<T, false> complex(T* p) { return {p}; }
template <class T> inline ComplexArray<T, true> folded(T* p) { return {p}; }

struct TwoArrays {
    f64 *re, *im;
    TwoArrays operator+(size_t n) const { return {re + n, im + n}; }
    void operator+=(size_t n) { re += n, im += n; }
};
struct Zeros {
    Zeros operator+(size_t) const { return {}; }
    void operator+=(size_t) {}
};

#if SIG5D_LEVEL > 0

// Pairs of lanes: the first of each, the second of each. The same shuffles make pairs again.
template <class V> inline Parts<V> exchanged(V a, V b) { return {shuffled<0>(a, b), shuffled<allLanes<V>>(a, b)}; }
#endif

// The next L numbers of a source.
template <int L> inline Vec<f64, L> loadn(Zeros) { return Vec<f64, L>{}; }
template <int L, class T, bool folds> inline auto loadn(ComplexArray<T, folds> a)
{
    const f64* const p = &a.p->re;
    if constexpr (L == 1)
        return Parts<f64>{p[0], p[1]};
    else if constexpr (L == 2 || folds)
        return exchanged(loadn<L>(p), loadn<L>(p + L));
    else // halves of vectors take no shuffle when they come from memory
        return exchanged(joined(loadn<L / 2>(p), loadn<L / 2>(p + L)),
                         joined(loadn<L / 2>(p + L / 2), loadn<L / 2>(p + L + L / 2)));
}

// Stores as many numbers as v has; "write" stores a vector.
struct Ordinary {
    template <class V> void operator()(f64* d, V v) const { __builtin_memcpy(d, &v, sizeof v); }
};
template <class Write, class V> inline void store_numbers(Write write, f64* d, V v) { write(d, v); }
template <class Write, class V> inline void store_numbers(Write write, TwoArrays d, Parts<V> v)
{
    write(d.re, v.re);
    write(d.im, v.im);
}
template <class Write, class V, bool folds>
inline void store_numbers(Write write, ComplexArray<c64f, folds> d, Parts<V> v)
{
    constexpr int L = sizeof(V) / sizeof(f64);
    f64* const p = &d.p->re;
    if constexpr (L == 1) {
        // Apart from one another: compilers compute a sum and a difference beside it as two sums and two differences,
        // of which the others may overflow.
        asm("" : "+x"(v.re));
        write(p, v.re);
        write(p + 1, v.im);
    } else if constexpr (L == 2 || folds) {
        const auto pairs = exchanged(v.re, v.im);
        write(p, pairs.re);
        write(p + L, pairs.im);
    } else {
        const auto pairs = exchanged(v.re, v.im);
        write(p, low_halves(pairs.re, pairs.im));
        write(p + L, high_halves(pairs.re, pairs.im));
    }
}

#if SIG5D_LEVEL == 0

// d[i] = op(a[i], ...) for 0 <= i < n.
template <class D, class Op, class... A> inline void map_parts(size_t n, D d, Op op, A... a)
{
    for (size_t i = 0; i < n; ++i) store_numbers(Ordinary{}, d + i, op(loadn<1>(a + i)...));
}

#else

struct PastCaches {
    template <class V> void operator()(f64* d, V v) const { stream(d, v); }
};

// Bytes of a number at one place, and where the first one lies.
template <class D> constexpr size_t numberBytes = sizeof(f64);
template <class T, bool folds> constexpr size_t numberBytes<ComplexArray<T, folds>> = sizeof(c64f);
inline uintptr_t address(const f64* d) { return reinterpret_cast<uintptr_t>(d); }
inline uintptr_t address(TwoArrays d) { return reinterpret_cast<uintptr_t>(d.re); }
template <bool folds> inline uintptr_t address(ComplexArray<c64f, folds> d) { return reinterpret_cast<uintptr_t>(d.p); }

// Numbers up to the next address where as many as a vector holds are aligned; 0 also where they never are.
template <class D> inline size_t unaligned_numbers(D d)
{
    return -address(d) % (lanes<f64> * numberBytes<D>) / numberBytes<D>;
}
// They begin a cache line.
template <class D> inline bool at_line(D d) { return address(d) % 64 < lanes<f64> * numberBytes<D>; }

// The bytes of n numbers.
struct Span {
    const void* p;
    size_t bytes;
};
inline Span span(const f64* p, size_t n) { return {p, n * sizeof(f64)}; }
template <class T, bool folds> inline Span span(ComplexArray<T, folds> a, size_t n) { return {a.p, n * sizeof(c64f)}; }
inline Span span(Zeros, size_t) { return {nullptr, 0}; }
inline bool apart(Span a, Span b)
{
    const uintptr_t p = reinterpret_cast<uintptr_t>(a.p), q = reinterpret_cast<uintptr_t>(b.p);
    return p + a.bytes <= q || q + b.bytes <= p;
}

// Stores past the caches pay, and are possible: n numbers to d, whose "skip"-th is the first that a loop stores.
template <class D, class... A> inline bool streams(size_t n, size_t skip, D d, A... a)
{
    const Span all = span(d, n);
    return streamingPays(all.bytes) && aligned(span(d + skip, 0).p, vectorBytes) && (apart(all, span(a, n)) && ...);
}
template <class... A> inline bool streams(size_t n, size_t skip, TwoArrays d, A... a)
{
    return streamingPays(2 * n * sizeof(f64)) && aligned(d.re + skip, vectorBytes) &&
           aligned(d.im + skip, vectorBytes) &&
           ((apart(span(d.re, n), span(a, n)) && apart(span(d.im, n), span(a, n))) && ...);
}

// Fewer than a vector has: the largest power of two that fits, once from either end.
template <int L, class D, class Op, class... A> inline void map_few(size_t n, D d, Op op, A... a)
{
    if constexpr (L == 1) {
        store_numbers(Ordinary{}, d, op(loadn<1>(a)...));
    } else if (n >= L) {
        const auto head = op(loadn<L>(a)...), tail = op(loadn<L>(a + (n - L))...);
        store_numbers(Ordinary{}, d, head);
        store_numbers(Ordinary{}, d + (n - L), tail);
    } else {
        map_few<L / 2>(n, d, op, a...);
    }
}

// Two vectors of numbers: not in turn to two arrays, since processors join stores that follow one another to a line.
template <class Write, class D, class V> inline void store_two(Write write, D d, V v0, V v1)
{
    store_numbers(write, d, v0);
    store_numbers(write, d + lanes<f64>, v1);
}
template <class Write, class V> inline void store_two(Write write, TwoArrays d, Parts<V> v0, Parts<V> v1)
{
    store_two(write, d.re, v0.re, v1.re);
    keep(d.im);
    store_two(write, d.im, v0.im, v1.im);
}

// As many pairs of vectors as there are. Returns the numbers that are left.
template <class Write, class D, class Op, class... A>
inline size_t map_pairs(size_t n, Write write, D& d, Op op, A&... a)
{
    constexpr size_t L = lanes<f64>;
#pragma GCC unroll 1
    for (; n >= 2 * L; n -= 2 * L) {
        const auto v0 = op(loadn<L>(a)...), v1 = op(loadn<L>(a + L)...);
        store_two(write, d, v0, v1);
        d += 2 * L;
        (void(a += 2 * L), ...);
    }
    return n;
}

// The same past the caches, for arrays that have nothing in common. Returns how many numbers, from the first on.
template <class D, class Op, class... A> inline size_t map_streaming(size_t n, D d, Op op, A... a)
{
    constexpr size_t turn = bytesInTurn / sizeof(f64);
    const auto piece = [op](D to, A... from) { map_pairs(turn, PastCaches{}, to, op, from...); };
    const size_t done = in_sections(n, turn, [&](size_t i) { piece(d + i, a + i...); });
    stream_end();
    return done;
}

// d[i] = op(a[i], ...) for 0 <= i < n. A source may be d itself. As in map, the first and the last vector overlap the
// others and are stored at the end.
template <class D, class Op, class... A> [[gnu::always_inline]] inline void map_parts(size_t n, D d, Op op, A... a)
{
    constexpr size_t L = lanes<f64>;
    if (n < L) return map_few<L / 2>(n, d, op, a...);
    const D first = d, last = d + (n - L);
    const auto head = op(loadn<L>(a)...), tail = op(loadn<L>(a + (n - L))...);
    if (n > 2 * L) {
        const size_t unaligned = unaligned_numbers(d), skip = unaligned ? unaligned : L;
        const bool streaming = streams(n, skip, d, a...);
        d += skip;
        (void(a += skip), ...);
        size_t left = n - skip;
        const auto map_vector = [&]() __attribute__((always_inline))
        {
            store_numbers(Ordinary{}, d, op(loadn<L>(a)...));
            d += L;
            (void(a += L), ...);
            left -= L;
        };
        while (left > L && !at_line(d)) map_vector();
        if (streaming) {
            const size_t done = map_streaming(left, d, op, a...);
            d += done;
            (void(a += done), ...);
            left -= done;
        }
        left = map_pairs(left, Ordinary{}, d, op, a...);
        while (left > L) map_vector();
    }
    store_numbers(Ordinary{}, first, head);
    store_numbers(Ordinary{}, last, tail);
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
