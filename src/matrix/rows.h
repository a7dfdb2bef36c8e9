// Runs of elements within rows: copied, exchanged, set to zero. Strided matrices are walked row by row around them.
#pragma once
#include "kernel/vec.h"
#include <stddef.h>
#include <stdint.h>

namespace sig5d::SIG5D_VARIANT {
namespace {

// d[k] = a[k], k increasing: what overlapping runs must get.
template <class T> inline void copy_in_order(const T* a, T* d, size_t n)
{
    for (size_t k = 0; k < n; ++k) d[k] = a[k];
}
template <class T> inline void exchange_in_order(T* a, T* b, size_t n)
{
    for (size_t k = 0; k < n; ++k) {
        const T x = a[k];
        a[k] = b[k];
        b[k] = x;
    }
}

#if SIG5D_LEVEL == 0

template <class T> inline void copy_run(const T* a, T* d, size_t n) { copy_in_order(a, d, n); }
template <class T> inline void exchange_runs(T* a, T* b, size_t n) { exchange_in_order(a, b, n); }
template <class T> inline void zero_run(T* d, size_t n)
{
    for (size_t k = 0; k < n; ++k) d[k] = T{};
}

#else

// So many bytes as one value.
template <int bytes> struct Piece {
    using type = Vec<u8, bytes>;
};
template <> struct Piece<8> {
    using type = u64;
};
template <> struct Piece<4> {
    using type = u32;
};
template <> struct Piece<2> {
    using type = u16;
};
template <> struct Piece<1> {
    using type = u8;
};

template <int bytes> struct Bytes {
    typename Piece<bytes>::type v;
    static Bytes load(const u8* p)
    {
        Bytes x;
        __builtin_memcpy(&x.v, p, bytes);
        return x;
    }
    void store(u8* p) const { __builtin_memcpy(p, &v, bytes); }
};

struct Copy {
    const u8* a;
    u8* d;
    template <int w> using Values = Bytes<w>;
    template <int w> Bytes<w> load(size_t i) const { return Bytes<w>::load(a + i); }
    template <int w> void store(size_t i, Bytes<w> x) const { x.store(d + i); }
};

struct Exchange {
    u8 *a, *d;
    template <int w> struct Values {
        Bytes<w> a, d;
    };
    template <int w> Values<w> load(size_t i) const { return {Bytes<w>::load(a + i), Bytes<w>::load(d + i)}; }
    template <int w> void store(size_t i, Values<w> x) const
    {
        x.d.store(a + i);
        x.a.store(d + i);
    }
};

struct Zero {
    u8* d;
    template <int w> using Values = Bytes<w>;
    template <int w> Bytes<w> load(size_t) const
    {
        Bytes<w> none;
        none.v = typename Piece<w>::type{};
        return none;
    }
    template <int w> void store(size_t i, Bytes<w> x) const { x.store(d + i); }
};

// Applies the operation to n bytes, w at a time. The first and the last w overlap the others, so that nothing is left
// over: they are loaded before anything is stored, and stored at the end. Between them the stores are aligned.
template <int w, class Op> inline void cover(size_t n, Op op)
{
    if (n < w) {
        if constexpr (w > 1) cover<w / 2>(n, op);
        return;
    }
    const auto head = op.template load<w>(0), tail = op.template load<w>(n - w);
    if constexpr (w == vectorBytes) {
        size_t i = w;
        if (n > 8 * w) i = w - reinterpret_cast<uintptr_t>(op.d) % w;
        for (; i + 4 * w <= n; i += 4 * w) {
            const auto x0 = op.template load<w>(i), x1 = op.template load<w>(i + w);
            const auto x2 = op.template load<w>(i + 2 * w), x3 = op.template load<w>(i + 3 * w);
            op.template store<w>(i, x0);
            op.template store<w>(i + w, x1);
            op.template store<w>(i + 2 * w, x2);
            op.template store<w>(i + 3 * w, x3);
        }
        for (; i + w < n; i += w) op.template store<w>(i, op.template load<w>(i));
    }
    op.template store<w>(0, head);
    op.template store<w>(n - w, tail);
}

// The order of elements shows only where the destination begins inside the source.
template <class T> inline void copy_run(const T* a, T* d, size_t n)
{
    const size_t distance = reinterpret_cast<uintptr_t>(d) - reinterpret_cast<uintptr_t>(a), bytes = n * sizeof(T);
    if (distance < bytes && distance) return copy_in_order(a, d, n);
    cover<vectorBytes>(bytes, Copy{reinterpret_cast<const u8*>(a), reinterpret_cast<u8*>(d)});
}
template <class T> inline void exchange_runs(T* a, T* b, size_t n)
{
    const size_t distance = reinterpret_cast<uintptr_t>(b) - reinterpret_cast<uintptr_t>(a), bytes = n * sizeof(T);
    if (distance == 0) return;
    if (distance < bytes || -distance < bytes) return exchange_in_order(a, b, n);
    cover<vectorBytes>(bytes, Exchange{reinterpret_cast<u8*>(a), reinterpret_cast<u8*>(b)});
}
template <class T> inline void zero_run(T* d, size_t n)
{
    cover<vectorBytes>(n * sizeof(T), Zero{reinterpret_cast<u8*>(d)});
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
