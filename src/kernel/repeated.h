// One value as an array that has it everywhere, so that an operation with a value is the operation of two arrays. A
// complex value is its two parts in turn, and then the arrays beside it are those of the parts.
#pragma once
#include "kernel/map.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

inline u64 repeated_bits(u8 v) { return v * 0x0101010101010101u; }
inline u64 repeated_bits(i16 v) { return static_cast<u16>(v) * 0x0001000100010001u; }
inline u64 repeated_bits(c32s v) { return static_cast<u64>(static_cast<u32>(v.im)) << 32 | static_cast<u32>(v.re); }
inline u64 repeated_bits(i32 v) { return repeated_bits(c32s{v, v}); }

template <class T> struct Repeated {
    u64 pattern; // the elements of eight bytes
    T operator[](size_t i) const { return static_cast<T>(pattern >> (8 * sizeof(T) * i % 64)); }
    Repeated operator+(size_t n) const // parts of a complex value change places at odd distances
    {
        return {sizeof(T) == 4 && n % 2 ? pattern << 32 | pattern >> 32 : pattern};
    }
};
template <class T> inline Span span(Repeated<T>, size_t) { return nowhere; }
template <int n, class T> inline auto load_lanes(Repeated<T> a)
{
#if SIG5D_LEVEL == 0
    return static_cast<T>(a.pattern);
#else
    constexpr int bytes = n * sizeof(T) < 16 ? 16 : static_cast<int>(n * sizeof(T));
    return reinterpret_cast<Vec<T, bytes / static_cast<int>(sizeof(T))>>(splatn<bytes / 8>(a.pattern));
#endif
}
#if SIG5D_LEVEL > 0
template <int L, class T> [[gnu::always_inline]] inline Vec<T, L> load_ends(Repeated<T> a, size_t)
{
    return load_lanes<L>(a);
}
template <class T, size_t L> constexpr bool maskable<Repeated<T>, L> = maskable<const T*, L>;
template <size_t L, class T> inline auto load_first(Repeated<T> a, size_t) { return load_lanes<L>(a); }
#endif

template <class T> inline Repeated<T> repeated(T v) { return {repeated_bits(v)}; }
inline Repeated<i32> repeated(c32s v) { return {repeated_bits(v)}; }

#if SIG5D_LEVEL > 0

// An array, or a value in memory that is read again and again, as a source of one type: for operations that are worth
// one loop for both.
template <class T> struct ArrayOrValue {
    const T* p;
    size_t counts; // the bits of a distance that count
    ArrayOrValue operator+(size_t n) const { return {p + (n & counts), counts}; }
};
template <class T> constexpr bool isArray<ArrayOrValue<T>> = true;
template <class T> inline Span span(ArrayOrValue<T> a, size_t n) { return a.counts + 1 == 0 ? span(a.p, n) : nowhere; }
template <int n, class T> inline auto load_lanes(ArrayOrValue<T> a) { return load_lanes<n>(a.p); }
template <int L, class T> [[gnu::always_inline]] inline Vec<T, L> load_ends(ArrayOrValue<T> a, size_t n)
{
    return load_ends<L>(a.p, n);
}
template <class T, size_t L> constexpr bool maskable<ArrayOrValue<T>, L> = maskable<const T*, L>;
template <size_t L, class T> inline auto load_first(ArrayOrValue<T> a, size_t n) { return load_first<L>(a.p, n); }
template <class Shape, int L, class T> inline auto elements_of(ArrayOrValue<T> a) { return elements_of<Shape, L>(a.p); }

// What a source is read from so, as long as this lives.
template <class A> struct InMemory;
template <class T> struct InMemory<const T*> {
    ArrayOrValue<T> source;
    explicit InMemory(const T* p) : source{p, SIZE_MAX} {}
};
template <class T> struct InMemory<T*> : InMemory<const T*> {
    using InMemory<const T*>::InMemory;
};
template <class T> struct InMemory<Repeated<T>> {
    static constexpr size_t odd = sizeof(T) == 4; // parts of a complex value change places; some odd distances add up
    alignas(vectorBytes) u64 patterns[vectorBytes / 8 + 2 * odd];
    ArrayOrValue<T> source{reinterpret_cast<const T*>(patterns), odd};
    explicit InMemory(Repeated<T> a)
    {
        for (u64& pattern : patterns) pattern = a.pattern;
    }
};

#endif

// Arrays of complex integers as arrays of their parts, and how many elements those have.
inline size_t part_count(const void*, int n) { return static_cast<size_t>(n); }
inline size_t part_count(const c32s*, int n) { return 2 * static_cast<size_t>(n); }
template <class T> inline T* parts_of(T* p) { return p; }
inline i32* parts_of(c32s* p) { return &p->re; }
inline const i32* parts_of(const c32s* p) { return &p->re; }

} // namespace
} // namespace sig5d::SIG5D_VARIANT
