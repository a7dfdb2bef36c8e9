// Flip: arrays in reverse order, complex ones also conjugated.
#include "frame/entry.h"
#include "kernel/map.h"
#include <utility>

namespace sig5d::SIG5D_VARIANT {
namespace {

// An array read from its end on: a source of map.
template <class T> struct Backwards {
    const T* end;
    Backwards operator+(size_t n) const { return {end - n}; }
};
template <class T> inline Span span(Backwards<T> a, size_t n) { return span(a.end - n, n); }

// What becomes of the elements.
struct Conjugate {
    c64f operator()(c64f x) const { return {x.re, -x.im}; }
#if SIG5D_LEVEL > 0
    template <class V> V operator()(V x) const
    {
        // The last byte of each element of 16 holds the sign.
        constexpr size_t numbers = sizeof(V) / sizeof(u64);
        Vec<u64, numbers> signs{};
        for (size_t i = 1; i < numbers; i += 2) signs[i] = u64{1} << 63;
        return x ^ reinterpret_cast<V>(signs);
    }
#endif
};

#if SIG5D_LEVEL == 0

template <int n, class T> inline T load_lanes(Backwards<T> a) { return a.end[-1]; }

template <class Op, class T> void flip_apart(size_t n, const T* a, T* d) { map(n, d, Op{}, Backwards<T>{a + n}); }
template <class Op, class T> void flip_in_place(size_t n, T* d)
{
    T *p = d, *q = d + n - 1;
    for (; p < q; ++p, --q) {
        const T x = *p;
        *p = Op{}(*q);
        *q = Op{}(x);
    }
    if (p == q) *p = Op{}(*p);
}

#else

// How elements of so many bytes are shuffled; what is longer goes in units of four.
template <int bytes> struct UnitOf {
    using type = u32;
};
template <> struct UnitOf<1> {
    using type = u8;
};
template <> struct UnitOf<2> {
    using type = u16;
};

template <int group, class V, size_t... i> inline V reversed_units(V v, std::index_sequence<i...>)
{
    constexpr size_t last = sizeof...(i) / group - 1;
    return __builtin_shufflevector(v, v, ((last - i / group) * group + i % group)...);
}

// The elements of so many bytes in reverse order.
template <int bytes, class V> inline V reversed(V v)
{
#if SIG5D_LEVEL < 2
    // There is no shuffle of bytes, and none of pairs but within eight bytes.
    if constexpr (bytes == 1) {
        using Pairs = Vec<u16, 8>;
        const Pairs pairs = reinterpret_cast<Pairs>(v);
        return reversed<2>(reinterpret_cast<V>(pairs << 8 | pairs >> 8));
    } else if constexpr (bytes == 2) {
        const auto pairs = reinterpret_cast<Vec<u16, 8>>(v);
        return reversed<8>(reinterpret_cast<V>(__builtin_shufflevector(pairs, pairs, 3, 2, 1, 0, 7, 6, 5, 4)));
    } else
#endif
    {
        using Unit = typename UnitOf<bytes>::type;
        constexpr size_t units = sizeof(V) / sizeof(Unit);
        const auto u = reinterpret_cast<Vec<Unit, units>>(v);
        return reinterpret_cast<V>(reversed_units<bytes / sizeof(Unit)>(u, std::make_index_sequence<units>{}));
    }
}

template <int n, class T> inline auto load_lanes(Backwards<T> a)
{
    constexpr int bytes = n * static_cast<int>(sizeof(T));
    const auto v = reversed<sizeof(T)>(load_lanes<bytes>(reinterpret_cast<const u8*>(a.end - n)));
    if constexpr (bytes >= 16)
        return v;
    else // reversed, they stand at the upper end
        return reinterpret_cast<Vec<u8, 16>>(_mm_srli_si128(reinterpret_cast<__m128i>(v), 16 - bytes));
}

template <class Op, class T> [[gnu::noinline]] void flip_apart(size_t n, const T* a, T* d)
{
    map(n, d, Op{}, Backwards<T>{a + n});
}

// An array of at most four vectors, all loaded before any is stored: a short array, or the middle of a longer one.
template <class Op, class T> void flip_few(size_t n, T* d)
{
    constexpr size_t L = lanes<T>;
    const Op op;
    const Backwards<T> a{d + n};
    if (n < L) return map(n, d, op, a);
    const auto head = op(load_lanes<L>(a)), tail = op(load_lanes<L>(a + (n - L)));
    if (n > 2 * L) {
        const auto second = op(load_lanes<L>(a + L)), third = op(load_lanes<L>(a + (n - 2 * L)));
        store_at(d + L, second);
        store_at(d + (n - 2 * L), third);
    }
    store_at(d, head);
    store_at(d + (n - L), tail);
}

// From both ends towards the middle. As in map, the outermost vectors are computed first and stored last.
template <class Op, class T> [[gnu::noinline]] void flip_in_place(size_t n, T* d)
{
    constexpr size_t L = lanes<T>;
    const Op op;
    if (n <= 4 * L) return flip_few<Op>(n, d);
    T* const last = d + (n - L);
    const auto head = op(load_lanes<L>(Backwards<T>{d + n})), tail = op(load_lanes<L>(Backwards<T>{d + L}));
    const size_t skip = to_alignment<L>(d);
    T *p = d + skip, *q = d + (n - skip);
    size_t left = n - 2 * skip;
    for (; left > 4 * L; left -= 4 * L) { // two at each end: stores to one cache line go together
        const auto x0 = op(load_lanes<L>(Backwards<T>{q})), x1 = op(load_lanes<L>(Backwards<T>{q - L}));
        const auto y0 = op(load_lanes<L>(Backwards<T>{p + L})), y1 = op(load_lanes<L>(Backwards<T>{p + 2 * L}));
        store_at(p, x0);
        store_at(p + L, x1);
        pin(p);
        store_at(q - L, y0);
        store_at(q - 2 * L, y1);
        p += 2 * L;
        q -= 2 * L;
        pin(q);
    }
    flip_few<Op>(left, p);
    store_at(d, head);
    store_at(last, tail);
}

#endif

template <class Op, class T> void flip_by(const T* a, T* d, int n)
{
    if (a == d)
        flip_in_place<Op>(static_cast<size_t>(n), d);
    else
        flip_apart<Op>(static_cast<size_t>(n), a, d);
}

template <class T> void flip(const T* a, T* d, int n) { flip_by<Same>(a, d, n); }
void conj_flip(const c64f* a, c64f* d, int n) { flip_by<Conjugate>(a, d, n); }

} // namespace
#include "entries/signal/elementwise/flip.inc"
} // namespace sig5d::SIG5D_VARIANT
