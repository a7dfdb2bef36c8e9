// Products of integers, of two arrays or of an array and a value, scaled.
#include "frame/entry.h"
#include "kernel/repeated.h"
#include "kernel/scale.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct Product {
    template <class T> static constexpr int bits = isSigned<T> ? 2 * width<T> - 2 : 2 * width<T>;
#if SIG5D_LEVEL == 0
    i64 exact(i64 x, i64 y) const { return x * y; }
#else
    template <class V> auto exact(V x, V y) const
    {
        if constexpr (sizeof(Lane<V>) == 1) {
            using W = Vec<u16, sizeof(V) / 2>;
            const W low = all_lanes<W>(0xFF);
            return Words<W>{(as<W>(x) & low) * (as<W>(y) & low), (as<W>(x) >> 8) * (as<W>(y) >> 8)};
        } else if constexpr (sizeof(Lane<V>) == 2) {
            return unpacked(product_modulo(x, y), high_product(x, y));
        } else {
            return split<V>(even_products(x, y), even_products(odd_lanes(x), odd_lanes(y)));
        }
    }
    template <class T, int s> static constexpr bool quick = s == 1 ? sizeof(T) < 4 : sizeof(T) == 2 && hasByteShuffle;
    template <int s, class V> V quickly(V x, V y) const
    {
        if constexpr (s == 1 && sizeof(Lane<V>) == 1) {
            const auto r = exact(x, y);
            return as<V>(saturated(Words{ties_to_even(halved(r.even), r.even), ties_to_even(halved(r.odd), r.odd)}));
        } else if constexpr (s == 1) {
            // Rounded down, then up from an odd half: the limits are those of the sum.
            const auto r = exact(x, y);
            const V down = saturated(Doubled{r.low >> 1, r.high >> 1});
            return add_saturated(down, down & x & y & 1);
        } else {
            return fraction_product(x, y);
        }
    }
    // Numbers between -1 and 1 with the point behind the sign. Ties are where the lower half of the product is the tie,
    // with any sign bit; and one product is 1.
    template <class V> V fraction_product(V x, V y) const
    {
        const V up = rounded_product(x, y), low = product_modulo(x, y), lowest = all_lanes<V>(lowest_of<i16>);
        return sum_modulo(ties_to_even(up, sum_modulo(low, low) == lowest), as<V>(up == lowest));
    }
#endif
};

// z + x * y
struct ProductSum {
    template <class T> static constexpr int bits = 2 * width<T> - 1;
#if SIG5D_LEVEL == 0
    i64 exact(i64 x, i64 y, i64 z) const { return z + x * y; }
#else
    template <class V> Split<V> exact(V x, V y, V z) const
    {
        using U = Vec<u32, sizeof(V) / 4>;
        const Split<V> p = Product{}.exact(x, y);
        const V low = sum_modulo(p.low, z);
        return {low, p.high + (z >> 31) - as<V>(as<U>(low) < as<U>(z))};
    }
#endif
};

// A complex number times a value; both parts of the value are not the lowest number at once, so that the products'
// parts have 64 bits.
struct ComplexProduct {
    template <class T> static constexpr int bits = 63;
#if SIG5D_LEVEL == 0
    c32s value;
    c64s exact(c32s x) const
    {
        const i64 re = value.re, im = value.im;
        return {x.re * re - x.im * im, x.re * im + x.im * re};
    }
#else
    u64 value;
    template <class P> auto exact(P pairs) const
    {
        using V = Vec<i32, sizeof(P) / 4>;
        const V x = as<V>(pairs), re = as<V>(all_lanes<P>(value)), im = odd_lanes(re);
        return split<V>(even_products(x, re) - even_products(odd_lanes(x), im),
                        even_products(x, im) + even_products(odd_lanes(x), re));
    }
#endif
};

template <class T> void multiply(const T* a, const T* b, T* d, int n, int s)
{
    run_scaled<Product>(part_count(d, n), d, s, a, b);
}
template <class T> void multiply(const T* a, T v, T* d, int n, int s)
{
    run_scaled<Product>(part_count(d, n), d, s, a, repeated(v));
}

// -2^31 (1 + i) x: without the factor 2^31, which goes into the scale factor.
void multiply_by_lowest(const c32s* a, c32s* d, int n, int s)
{
    s = s < -32 ? -63 : s - 31; // whatever is not zero is far beyond the limits anyway
    for (int i = 0; i < n; ++i) {
        const i64 re = a[i].re, im = a[i].im;
        d[i] = {scaled<i32>(im - re, s), scaled<i32>(-im - re, s)};
    }
}
[[gnu::noinline]] void multiply(const c32s* a, c32s v, c32s* d, int n, int s)
{
    if (v.re == lowest_of<i32> && v.im == lowest_of<i32>) return multiply_by_lowest(a, d, n, s);
#if SIG5D_LEVEL == 0
    map_scaled<i32>(ComplexProduct{v}, s, static_cast<size_t>(n), d, a);
#else
    map_scaled<i32>(ComplexProduct{repeated_bits(v)}, s, static_cast<size_t>(n), reinterpret_cast<u64*>(d),
                    reinterpret_cast<const u64*>(a));
#endif
}

void add_product(const i32* a, const i32* b, i32* d, int n, int s)
{
    run_scaled<ProductSum>(part_count(d, n), d, s, a, b, d);
}

} // namespace
#include "entries/signal/elementwise/scaled_products.inc"
} // namespace sig5d::SIG5D_VARIANT
