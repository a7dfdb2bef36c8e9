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
template <class D, class S, class Op> inline void convert_compact(size_t n, const S* a, D* d, Op op)
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

// The same for conversions of many instructions: pairs of vectors, so that less code is made of them. The arrays have
// no element in common.
template <class D, class S, class Op, class Store>
[[gnu::always_inline]] inline size_t convert_pairs(size_t n, const S*& a, D*& d, Op op, Store write)
{
    constexpr int L = lanes<D>;
    for (; n >= 2 * L; n -= 2 * L) {
        const Vec<D> v0 = op.template to<L>(a), v1 = op.template to<L>(a + L);
        write(d, v0);
        write(d + L, v1);
        a += 2 * L;
        d += 2 * L;
        keep(d);
    }
    return n;
}
template <class D, class S, class Op>
[[gnu::always_inline]] inline void convert_compact(size_t n, const S* a, D* d, Op op)
{
    constexpr size_t L = lanes<D>;
    if (n < L) return map_short<vectorBytes / 2>(n, d, Same{}, Converted<D, S, Op>{op, a});
    put(d + (n - L), op.template to<L>(a + (n - L)));
    if (n > L) {
        put(d, op.template to<L>(a));
        const size_t skip = misalignment(d);
        const bool streaming = streamingPays(n * sizeof(D)) && aligned(d + skip, vectorBytes);
        a += skip;
        d += skip;
        n -= skip;
        if (streaming) {
            n = convert_pairs(n, a, d, op, [](D* p, auto v) { stream(p, v); });
            stream_end();
        } else {
            n = convert_pairs(n, a, d, op, [](D* p, auto v) { put(p, v); });
        }
        if (n >= L) put(d, op.template to<L>(a));
    }
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
