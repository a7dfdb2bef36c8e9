// Complex numbers as they stand in memory, parts side by side: one of them, or a vector of pairs.
#pragma once
#include "kernel/loops.h"
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// A number as the second operand of a vector of numbers.
template <class T> struct Repeated;

#if SIG5D_LEVEL == 0

template <class T> struct Repeated {
    T value;
    explicit Repeated(T v) : value(v) {}
    template <class V> V as() const { return value; }
};

inline c64f operator+(c64f x, c64f y) { return {x.re + y.re, x.im + y.im}; }
inline c64f operator-(c64f x, c64f y) { return {x.re - y.re, x.im - y.im}; }
inline c64f conjugate(c64f x) { return {x.re, -x.im}; }
inline c64f product(c64f x, c64f y) { return {x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re}; }

// A complex factor that is the same for all elements. The product adds what is multiplied by -im, as vectors do: in
// some rounding directions that is not the same as to subtract, and the compiler must not know of it.
struct Factor {
    f64 re, im, minusIm;
    explicit Factor(c64f v) : re(v.re), im(v.im), minusIm(-v.im) { asm("" : "+x"(minusIm)); }
    c64f times(c64f x) const { return {x.re * re + x.im * minusIm, x.im * re + x.re * im}; }
};

#else

inline Vec<f64> repeated(f64 v) { return splat(v); }
inline Vec<f64> repeated(c64f v)
{
    // Each part for itself: a caller stores them one by one, and to load both at once right after that takes long.
    asm("" : "+x"(v.re), "+x"(v.im));
    Vec<f64> all;
    for (int i = 0; i < lanes<f64>; ++i) all[i] = i % 2 ? v.im : v.re;
    return all;
}

template <class T> struct Repeated {
    Vec<f64> value;
    explicit Repeated(T v) : value(repeated(v)) {}
    template <class V> V as() const
    {
        if constexpr (sizeof(V) == sizeof value)
            return value;
        else
            return __builtin_shufflevector(value, value, 0, 1);
    }
};

template <class V> inline V conjugate(V x)
{
    typename BitsOf<V>::type signs{};
    for (size_t i = 1; i < sizeof(V) / sizeof(u64); i += 2) signs[i] = signBit;
    return BitsOf<V>::back(BitsOf<V>::of(x) ^ signs);
}

// A value in a register, here and now: the compiler would read memory again for each use, and begin several products
// before it finishes one, for which the registers do not suffice.
template <class V> inline V now(V v)
{
    asm volatile("" : "+x"(v));
    return v;
}

template <class V> inline V product(V x, V y)
{
    x = now(x);
    return now(subtract_add(x * real_lanes(y), swapped(x) * imaginary_lanes(y)));
}

struct Factor {
    Repeated<f64> re;
    Repeated<c64f> im; // (-im, im): adds what the product subtracts
    explicit Factor(c64f v) : re(v.re), im(c64f{-v.im, v.im}) {}
    template <class V> V times(V x) const
    {
        x = now(x);
        return now(x * re.as<V>() + swapped(x) * im.as<V>());
    }
};

#endif

// Loops over complex numbers, as arrays of their parts where there are vectors; operations have a "period" of 2.
template <class Op, class... A> inline void map_complex(size_t n, c64f* d, Op op, const A*... a)
{
#if SIG5D_LEVEL == 0
    map(n, d, op, a...);
#else
    map(2 * n, &d->re, op, &a->re...);
#endif
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
