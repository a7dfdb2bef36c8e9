// Loops over arrays of two element types. A conversion is a record with
//     to<n>(p)     for vectors: n elements from p on, n a power of two, in a vector of n lanes or the low end of one of
//                  16 bytes;
//     one(x)       in px: a single element.
#pragma once
#include "kernel/loops.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// A source that is converted on the way: what map takes for a pointer.
template <class D, class S, class Op> struct Converted {
    Op op;
    const S* p;
    Converted operator+(size_t n) const { return {op, p + n}; }
    void operator+=(size_t n) { p += n; }
    D operator[](size_t i) const { return op.one(p[i]); }
};
template <class D, class S, class Op> inline const S* lowest(Converted<D, S, Op> a, size_t) { return a.p; }

#if SIG5D_LEVEL == 0

template <class D, class S, class Op> inline void convert_all(size_t n, const S* a, D* d, Op op)
{
    map(n, d, Same{}, Converted<D, S, Op>{op, a});
}
template <int bytes = 0, class D, class S, class Op> inline void convert_compact(size_t n, const S* a, D* d, Op op)
{
    convert_all(n, a, d, op);
}

#else

template <int n, class D, class S, class Op> inline Vec<D, n> loadn(Converted<D, S, Op> a)
{
    return a.op.template to<n>(a.p);
}
template <int bytes, class D, class S, class Op> inline Vec<D, 16 / sizeof(D)> load_part(Converted<D, S, Op> a)
{
    return a.op.template to<bytes / static_cast<int>(sizeof(D))>(a.p);
}

// For conversions of few instructions.
template <class D, class S, class Op> [[gnu::always_inline]] inline void convert_all(size_t n, const S* a, D* d, Op op)
{
    map(n, d, Same{}, Converted<D, S, Op>{op, a});
}

// The same for conversions of many instructions: pairs of vectors, so that less code is made of them, of so many bytes.
// The arrays have no element in common.
template <int L, class D, class S, class Op, class Store>
[[gnu::always_inline]] inline size_t convert_pairs(size_t n, const S*& a, D*& d, Op op, Store write)
{
#pragma GCC unroll 1
    for (; n >= 2 * L; n -= 2 * L) {
        const Vec<D, L> v0 = op.template to<L>(a), v1 = op.template to<L>(a + L);
        write(d, v0);
        write(d + L, v1);
        a += 2 * L;
        d += 2 * L;
        keep(d);
    }
    return n;
}

template <int bytes = vectorBytes, class D, class S, class Op>
[[gnu::always_inline]] inline void convert_compact(size_t n, const S* a, D* d, Op op)
{
    constexpr size_t L = bytes / sizeof(D), turn = bytesInTurn / sizeof(S);
    static_assert(turn % (2 * L) == 0 && turn * sizeof(D) % 64 == 0);
    const auto convert_vector = [op](const S* p, D* q) { put(q, Vec<D, L>(op.template to<L>(p))); };
    if (n < L) return map_short<bytes / 2>(n, d, Same{}, Converted<D, S, Op>{op, a});
    convert_vector(a + (n - L), d + (n - L));
    if (n == L) return;
    convert_vector(a, d);
    const size_t skip = -reinterpret_cast<uintptr_t>(d) % bytes / sizeof(D);
    a += skip;
    d += skip;
    n -= skip;
    if (streamingPays(n * sizeof(D)) && aligned(d, bytes)) {
        for (; n >= L && !aligned(d, 64); a += L, d += L, n -= L) convert_vector(a, d); // in turns of whole lines
        const size_t done = in_sections(n, turn, [=](size_t i) {
            const S* p = a + i;
            D* q = d + i;
            convert_pairs<L>(turn, p, q, op, [](D* to, auto v) { stream(to, v); });
        });
        stream_end();
        a += done;
        d += done;
        n -= done;
    }
    n = convert_pairs<L>(n, a, d, op, [](D* to, auto v) { put(to, v); });
    if (n >= L) convert_vector(a, d);
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
