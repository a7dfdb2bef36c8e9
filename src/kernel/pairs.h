// Complex numbers as they stand in memory, parts side by side: in vectors of pairs, where products need fewest
// shuffles; in px one number. Operations take and give pairs.
#pragma once
#include "kernel/map.h"
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// A number as an operand for vectors of numbers, real or complex.
template <class T> struct Operand;

#if SIG5D_LEVEL == 0

template <class T> struct Operand {
    T value;
    explicit Operand(T v) : value(v) {}
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

// A number in every lane; a complex one in every pair of lanes.
inline Vec<f64> in_every_lane(f64 v) { return splat(v); }
inline Vec<f64> in_every_lane(c64f v)
{
    // Each part for itself: a caller stores them one by one, and to load both at once right after that takes long.
    asm("" : "+x"(v.re), "+x"(v.im));
    Vec<f64> all;
    for (int i = 0; i < lanes<f64>; ++i) all[i] = i % 2 ? v.im : v.re;
    return all;
}

template <class T> struct Operand {
    Vec<f64> value;
    explicit Operand(T v) : value(in_every_lane(v)) {}
    template <class V> V as() const { return low_end<V>(value); }
};

template <class V> inline V conjugate(V x)
{
    typename BitsOf<V>::type signs{};
    for (size_t i = 1; i < sizeof(V) / sizeof(u64); i += 2) signs[i] = signBit;
    return BitsOf<V>::back(BitsOf<V>::of(x) ^ signs);
}

// A value in a register, here and now: the compiler would read memory again for each use, and begin several products
// before it finishes one, for which the registers do not suffice.
template <class V> inline V in_register_now(V v)
{
    asm volatile("" : "+x"(v));
    return v;
}

template <class V> inline V product(V x, V y)
{
    x = in_register_now(x);
    return in_register_now(subtract_add(x * real_lanes(y), swapped(x) * imaginary_lanes(y)));
}

struct Factor {
    Operand<f64> re;
    Operand<c64f> im; // (-im, im): adds what the product subtracts
    explicit Factor(c64f v) : re(v.re), im(c64f{-v.im, v.im}) {}
    template <class V> V times(V x) const
    {
        x = in_register_now(x);
        return in_register_now(x * re.as<V>() + swapped(x) * im.as<V>());
    }
};

// The address may be null, with no elements.
inline const f64* parts_of(const c64f* a) { return reinterpret_cast<const f64*>(a); }
inline f64* parts_of(c64f* d) { return reinterpret_cast<f64*>(d); }
template <class A> inline A parts_of(A a) { return a; }

#endif

// An operation on pairs: only at even offsets may it begin anew.
template <class Op> struct OnPairs : Op {
    static constexpr size_t period = 2;
};

// d[i] = op(a[i], ...) for 0 <= i < n, where the sources are complex arrays or give pairs.
template <class Shape = Light, class C, class Op, class... A>
[[gnu::always_inline]] inline void map_pairs(size_t n, C* d, Op op, A... a)
{
#if SIG5D_LEVEL == 0
    map<Shape>(n, d, op, a...);
#else
    map<Shape>(2 * n, parts_of(d), OnPairs<Op>{op}, parts_of(a)...);
#endif
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
