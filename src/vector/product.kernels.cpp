// The product of all elements, in one order for all variants: element i goes to partial product i % lanes, in
// increasing i; partial products that have an element are then joined, k with k + 16, k + 8, ... k + 1. So many that a
// processor can load two vectors a cycle while products are under way.
#include "frame/entry.h"
#include "kernel/complex.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr size_t realLanes = 32, complexLanes = 16;

inline f64 times(f64 p, f64 x) { return p * x; }
inline c64f times(c64f p, c64f x) { return {x.re * p.re - x.im * p.im, x.im * p.re + x.re * p.im}; }

// Joins n partial products; all of them, where their number is known, in vectors.
template <class T> T joined_product(size_t n, T* p)
{
    for (size_t half = realLanes / 2; half > 0; half /= 2)
        for (size_t k = 0; k < half && k + half < n; ++k) p[k] = times(p[k], p[k + half]);
    return p[0];
}
template <size_t all, class T> T joined_product(T* p)
{
    if constexpr (all == 1) {
        return p[0];
    } else {
        for (size_t k = 0; k < all / 2; ++k) p[k] = times(p[k], p[k + all / 2]);
        return joined_product<all / 2>(p);
    }
}

#if SIG5D_LEVEL == 0

template <size_t lanes, class T> size_t multiply_blocks(size_t, const T*, T*) { return 0; }

#else

// Multiplies whole blocks onto the partial products. Returns the elements done.
template <size_t all> size_t multiply_blocks(size_t n, const f64* a, f64* partial)
{
    constexpr size_t L = lanes<f64>, vectors = all / L;
    // With few registers in two rounds of half the lanes.
    constexpr size_t group = vectors < 8 ? vectors : 8;
    const size_t end = n - n % all;
    for (size_t first = 0; first < vectors; first += group) {
        Vec<f64> p[group];
        for (size_t k = 0; k < group; ++k) p[k] = load(partial + (first + k) * L);
        for (size_t i = first * L; i < end; i += all)
            for (size_t k = 0; k < group; ++k) p[k] *= load(a + i + k * L);
        for (size_t k = 0; k < group; ++k) store(partial + (first + k) * L, p[k]);
    }
    return end;
}

template <size_t all> size_t multiply_blocks(size_t n, const c64f* a, c64f* partial)
{
    constexpr size_t L = lanes<f64>, chains = all / L;
    constexpr size_t group = chains < 4 ? chains : 4;
    const size_t end = n - n % all;
    for (size_t first = 0; first < chains; first += group) {
        Complex<Vec<f64>> p[group];
        for (size_t k = 0; k < group; ++k) p[k] = load_lanes<L>(folded(partial + (first + k) * L));
        for (size_t i = first * L; i < end; i += all)
            for (size_t k = 0; k < group; ++k) {
                const Complex<Vec<f64>> x = load_lanes<L>(folded(a + i + k * L));
                p[k] = {x.re * p[k].re - x.im * p[k].im, x.im * p[k].re + x.re * p[k].im};
            }
        for (size_t k = 0; k < group; ++k) store_lanes<L>(Ordinary{}, folded(partial + (first + k) * L), p[k]);
    }
    return end;
}

#endif

template <size_t all, class T> T product_of(size_t n, const T* a, T one)
{
    T partial[all];
    for (T& p : partial) p = one;
    size_t i = n < all ? 0 : multiply_blocks<all>(n, a, partial);
    for (; i < n; ++i) partial[i % all] = times(partial[i % all], a[i]);
    return n < all ? joined_product(n, partial) : joined_product<all>(partial);
}

[[gnu::noinline]] void product(const f64* a, u32 n, f64* result) { *result = product_of<realLanes>(n, a, 1.0); }
[[gnu::noinline]] void product(const c64f* a, u32 n, c64f* result)
{
    *result = product_of<complexLanes>(n, a, c64f{1.0, 0.0});
}

} // namespace
#include "entries/vector/product.inc"
} // namespace sig5d::SIG5D_VARIANT
