// Loops over whole arrays that many kernels share. An operation is a small record with a templated call operator, so
// that one expression serves single elements (in px) and vectors of any width.
#pragma once
#include "kernel/stream.h"
#include "kernel/simd.h"
#include <type_traits>

namespace sig5d::SIG5D_VARIANT {
namespace {

struct Same {
    template <class V> V operator()(V x) const { return x; }
};

#if SIG5D_LEVEL == 0

// d[i] = op(a[i], ...) for 0 <= i < n.
template <class D, class Op, class... A> inline void map(size_t n, D* d, Op op, A... a)
{
    for (size_t i = 0; i < n; ++i) d[i] = op(a[i]...);
}

#else

// 8, 4, 2 or 1 bytes in the low end of a register. A double stands in both halves: what is computed of a zero beside it
// could raise an exception.
template <int bytes, class T> inline Vec<T, 16 / sizeof(T)> load_part(const T* p)
{
    __m128i v;
    if constexpr (bytes == 16) {
        v = _mm_loadu_si128(reinterpret_cast<const __m128i_u*>(p));
    } else if constexpr (bytes == 8) {
        v = _mm_loadl_epi64(reinterpret_cast<const __m128i_u*>(p));
        if constexpr (std::is_floating_point_v<T>) v = _mm_unpacklo_epi64(v, v);
    } else {
        u32 low = 0;
        __builtin_memcpy(&low, p, bytes);
        v = _mm_cvtsi32_si128(static_cast<int>(low));
    }
    return reinterpret_cast<Vec<T, 16 / sizeof(T)>>(v);
}

// The low end of a register of any size.
template <int bytes, class V> inline void store_part(void* p, V vector)
{
    const auto v = reinterpret_cast<Vec<i32, sizeof(V) / 4>>(vector);
    if constexpr (bytes <= 4) {
        const int low = v[0];
        __builtin_memcpy(p, &low, bytes);
    } else {
        __builtin_memcpy(p, &v, bytes);
    }
}

// Any vector, wherever p points.
template <class V> inline void put(void* p, V v) { __builtin_memcpy(p, &v, sizeof v); }

// Fewer elements than a vector has: the largest power of two of bytes that fits, once from either end.
template <int bytes, class D, class Op, class... A> inline void map_short(size_t n, D* d, Op op, A... a)
{
    constexpr size_t part = bytes / sizeof(D);
    if constexpr (part == 0) {
        return;
    } else if (n >= part) {
        const auto head = op(load_part<bytes>(a)...), tail = op(load_part<bytes>(a + (n - part))...);
        store_part<bytes>(d, head);
        store_part<bytes>(d + (n - part), tail);
    } else {
        map_short<bytes / 2>(n, d, op, a...);
    }
}

// Elements from d to the next address that is a multiple of the vector's size (as far as elements reach one).
template <class D> inline size_t misalignment(const D* d)
{
    return -reinterpret_cast<uintptr_t>(d) % vectorBytes / sizeof(D);
}

// Where the n elements that a source reads begin in memory.
template <class T> inline const T* lowest(const T* a, size_t) { return a; }

// Keeps a pointer that the compiler would otherwise turn into an index, and the order of loads and stores around it:
// stores with an index, or that alternate between cache lines, are slower on some processors.
template <class P> inline void keep(P& p) { asm volatile("" : "+r"(p) : : "memory"); }

// Four vectors: all loaded before any is stored.
template <class D, class Store, class Op, class... A> inline void map_four(D*& d, Store write, Op op, A&... a)
{
    constexpr int L = lanes<D>;
    const auto v0 = op(loadn<L>(a)...), v1 = op(loadn<L>(a + L)...);
    const auto v2 = op(loadn<L>(a + 2 * L)...), v3 = op(loadn<L>(a + 3 * L)...);
    write(d, v0);
    keep(d);
    write(d + L, v1);
    keep(d);
    write(d + 2 * L, v2);
    keep(d);
    write(d + 3 * L, v3);
    d += 4 * L;
    (void(a += 4 * L), ...);
    keep(d);
}

// As many groups of four as there are. Returns the elements that are left.
template <class D, class Store, class Op, class... A>
inline size_t map_blocks(size_t n, D*& d, Store write, Op op, A&... a)
{
    constexpr int L = lanes<D>;
    for (; n >= 8 * L; n -= 8 * L) {
        map_four(d, write, op, a...);
        map_four(d, write, op, a...);
    }
    if (n >= 4 * L) {
        map_four(d, write, op, a...);
        n -= 4 * L;
    }
    return n;
}

// How a large array d is written. In sections: where every source is d itself or has no byte in common with it. Past
// the caches: where none is d.
struct LargeArray {
    bool inSections, pastCaches;
    template <class V> void operator()(void* p, V v) const
    {
        if (pastCaches)
            stream(p, v);
        else
            put(p, v);
    }
};
template <class D, class A> inline bool same_place(const D*, const A&) { return false; }
template <class D> inline bool same_place(const D* d, const D* a) { return d == a; }
template <class D, class... A> inline LargeArray large_array(size_t n, [[maybe_unused]] D* d, A... a)
{
    if (!streamingPays(n * sizeof(D))) return {false, false};
    return {((same_place(d, a) || apart(d, lowest(a, n), n * sizeof(D))) && ...),
            (apart(d, lowest(a, n), n * sizeof(D)) && ...)};
}

template <int group, size_t n, class D, class Op, class... A>
inline void map_turn(D* d, LargeArray write, Op op, A... a)
{
    constexpr int L = lanes<D>;
#pragma GCC unroll 1
    for (size_t i = 0; i < n; i += group * L) {
        decltype(op(loadn<L>(a)...)) v[group];
#pragma GCC unroll 4
        for (int k = 0; k < group; ++k) v[k] = op(loadn<L>(a + k * L)...);
#pragma GCC unroll 4
        for (int k = 0; k < group; ++k) {
            write(d + k * L, v[k]);
            keep(d);
        }
        d += group * L;
        (void(a += group * L), ...);
        keep(d);
    }
}

// A large array, so many vectors at a time; d is aligned to the size of a vector. Returns the elements that are left.
template <int group, class D, class Op, class... A>
inline size_t map_sections(size_t n, D*& d, LargeArray write, Op op, A&... a)
{
    constexpr size_t L = lanes<D>, turn = bytesInTurn / sizeof(D);
    for (; !aligned(d, 64) && n >= L; n -= L) { // in turns of whole cache lines
        put(d, op(loadn<L>(a)...));
        d += L;
        (void(a += L), ...);
    }
    const size_t done = in_sections(n, turn, [&](size_t i) { map_turn<group, turn>(d + i, write, op, a + i...); });
    stream_end(); // in any case, so that a check of the built code finds it
    d += done;
    (void(a += done), ...);
    return n - done;
}

// d[i] = op(a[i], ...) for 0 <= i < n. A source may be d itself, or overlap it and begin behind it. Sources are
// pointers to elements of the destination's size, or what offers the same operators and loads.
//
// The first and the last vector overlap the others, so that no element is left over: they are computed before anything
// is stored and stored at the end. Between them the stores are aligned, since stores that cross a cache line take
// twice as long. Always inlined, so that an operation may hold vectors: as arguments of a real function those of 32
// bytes would leave the upper halves of registers in use, which slows down all code after it.
template <class D, class Op, class... A> [[gnu::always_inline]] inline void map(size_t n, D* d, Op op, A... a)
{
    constexpr size_t L = lanes<D>;
    if (n < L) return map_short<vectorBytes / 2>(n, d, op, a...);
    D* const first = d;
    D* const last = d + (n - L);
    const auto head = op(loadn<L>(a)...), tail = op(loadn<L>(a + (n - L))...);
    if (n > 4 * L) {
        size_t skip = misalignment(d);
        // A value that is repeated in a vector of bytes must begin anew there.
        if constexpr (requires { op.period; }) skip &= ~(op.period - 1);
        const LargeArray large = large_array(n, d, a...);
        d += skip;
        (void(a += skip), ...);
        size_t left = n - skip;
        if (large.inSections && aligned(d, vectorBytes)) left = map_sections<4>(left, d, large, op, a...);
        left = map_blocks(
            left, d, [](D* p, auto v) { put(p, v); }, op, a...);
        for (; left > L; left -= L) {
            put(d, op(loadn<L>(a)...));
            d += L;
            (void(a += L), ...);
        }
    } else if (n > 2 * L) {
        const auto second = op(loadn<L>(a + L)...), third = op(loadn<L>(a + (n - 2 * L))...);
        put(d + L, second);
        put(d + (n - 2 * L), third);
    }
    put(first, head);
    put(last, tail);
}

#endif

// One loop for all types, where only bits count and not the elements that they make up; in px one by one.
template <class Op, class... A> [[gnu::noinline]] void map_bytes(size_t n, u8* d, Op op, A... a)
{
    map(n, d, op, a...);
}
template <class D, class Op, class... A> inline void map_bits(int n, D* d, Op op, const A*... a)
{
#if SIG5D_LEVEL == 0
    map(static_cast<size_t>(n), d, op, a...);
#else
    map_bytes(static_cast<size_t>(n) * sizeof(D), reinterpret_cast<u8*>(d), op, reinterpret_cast<const u8*>(a)...);
#endif
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
