// And, or, exclusive or of two arrays or of an array and a value; complement.
#include "frame/entry.h"
#include "kernel/map.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct And {
    template <class V> V operator()(V x, V y) const { return x & y; }
};
struct Or {
    template <class V> V operator()(V x, V y) const { return x | y; }
};
struct Xor {
    template <class V> V operator()(V x, V y) const { return x ^ y; }
};

u32 repeated(u8 v) { return v * 0x01010101u; }
u32 repeated(u16 v) { return v * 0x00010001u; }
u32 repeated(u32 v) { return v; }

// An operation whose second operand is a value, repeated to fill 32 bits: then it is the same for all types.
template <class Op> struct WithValue {
    template <class T> explicit WithValue(T v) : value(repeated(v)), period(sizeof v) {}
    u32 value;
    size_t period; // in bytes
    template <class V> V operator()(V x) const
    {
        if constexpr (sizeof(V) <= sizeof value)
            return Op{}(x, static_cast<V>(value));
        else
            return Op{}(x, reinterpret_cast<V>(splatn<sizeof(V) / sizeof value>(value)));
    }
};

template <class T> void bit_and(const T* a, const T* b, T* d, int n) { map_as_bytes(n, d, And{}, a, b); }
template <class T> void bit_or(const T* a, const T* b, T* d, int n) { map_as_bytes(n, d, Or{}, a, b); }
template <class T> void bit_xor(const T* a, const T* b, T* d, int n) { map_as_bytes(n, d, Xor{}, a, b); }

template <class T> void bit_and(const T* a, T v, T* d, int n) { map_as_bytes(n, d, WithValue<And>(v), a); }
template <class T> void bit_or(const T* a, T v, T* d, int n) { map_as_bytes(n, d, WithValue<Or>(v), a); }
template <class T> void bit_xor(const T* a, T v, T* d, int n) { map_as_bytes(n, d, WithValue<Xor>(v), a); }

template <class T> void complement(const T* a, T* d, int n) { bit_xor(a, static_cast<T>(~T{}), d, n); }

} // namespace
#include "entries/signal/elementwise/logic.inc"
} // namespace sig5d::SIG5D_VARIANT
