// One value as an array that has it everywhere: what map takes for a source, so that an operation with a value is the
// operation of two arrays. A complex value is its two parts in turn.
#pragma once
#include "kernel/compact_loop.h"

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
    void operator+=(size_t n) { *this = *this + n; }
};

#if SIG5D_LEVEL > 0

template <int L, class T> inline Vec<T, L> loadn(Repeated<T> a)
{
    return reinterpret_cast<Vec<T, L>>(splatn<L * sizeof(T) / 8>(a.pattern));
}
template <int bytes, class T> inline Vec<T, 16 / sizeof(T)> load_part(Repeated<T> a)
{
    return loadn<16 / sizeof(T)>(a);
}
template <class T> [[gnu::always_inline]] inline Vec<T> load_ends(Repeated<T> a, size_t) { return loadn<lanes<T>>(a); }

// It lies in no memory that a destination could overlap.
struct Nowhere {
};
template <class T> inline Nowhere lowest(Repeated<T>, size_t) { return {}; }
inline bool apart(const void*, Nowhere, size_t) { return true; }

#endif

template <class T> inline Repeated<T> repeated(T v) { return {repeated_bits(v)}; }
inline Repeated<i32> repeated(c32s v) { return {repeated_bits(v)}; }

// Arrays of complex numbers as arrays of their parts.
inline size_t count(const void*, int n) { return static_cast<size_t>(n); }
inline size_t count(const c32s*, int n) { return 2 * static_cast<size_t>(n); }
template <class T> inline T* parts(T* p) { return p; }
inline i32* parts(c32s* p) { return &p->re; }
inline const i32* parts(const c32s* p) { return &p->re; }

} // namespace
} // namespace sig5d::SIG5D_VARIANT
