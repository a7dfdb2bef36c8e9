// map for operations of more than a few instructions: as many vectors in flight as the operation is worth, and short
// arrays in one vector, so that the operation stands in few places and little code is made of it.
#pragma once
#include "kernel/loops.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

#if SIG5D_LEVEL == 0

template <int, class D, class Op, class... A> inline void map_compact(size_t n, D* d, Op op, A... a)
{
    map(n, d, op, a...);
}

#else

// The same 16 bytes in all of a vector.
template <class T> inline Vec<T> repeat(__m128i v)
{
#if SIG5D_LEVEL >= 4
    return reinterpret_cast<Vec<T>>(_mm256_set_m128i(v, v));
#else
    return reinterpret_cast<Vec<T>>(v);
#endif
}

inline __m128i load_low(const void* p) { return _mm_loadl_epi64(static_cast<const __m128i_u*>(p)); }
template <class U> inline U load_as(const u8* p)
{
    U x;
    __builtin_memcpy(&x, p, sizeof x);
    return x;
}

// Keeps a vector in a register: compilers load it again from memory for a second use.
template <class V> inline V held(V v)
{
    asm("" : "+x"(v));
    return v;
}

// Fewer elements than a vector has, in one: the largest power of two of bytes that fits, from either end of the array,
// side by side, and that again and again up to the vector's end. So no lane holds anything but elements. (Inlined
// always, as map is.)
template <class T> [[gnu::always_inline]] inline Vec<T> load_ends(const T* array, size_t n)
{
    const u8 *const p = reinterpret_cast<const u8*>(array), *const end = p + n * sizeof(T);
    const size_t bytes = n * sizeof(T);
#if SIG5D_LEVEL >= 4
    if (bytes >= 16)
        return reinterpret_cast<Vec<T>>(_mm256_set_m128i(load_as<__m128i_u>(end - 16), load_as<__m128i_u>(p)));
#endif
    if (sizeof(T) >= 8 || bytes >= 8) return repeat<T>(_mm_unpacklo_epi64(load_low(p), load_low(end - 8)));
    u32 low, high;
    if (sizeof(T) >= 4 || bytes >= 4) {
        low = load_as<u32>(p);
        high = load_as<u32>(end - 4);
    } else {
        if (sizeof(T) >= 2 || bytes >= 2)
            low = load_as<u16>(p) | static_cast<u32>(load_as<u16>(end - 2)) << 16;
        else
            low = *p * 0x01010101u;
        high = low;
    }
    const __m128i both =
        _mm_unpacklo_epi32(_mm_cvtsi32_si128(static_cast<int>(low)), _mm_cvtsi32_si128(static_cast<int>(high)));
    return repeat<T>(_mm_unpacklo_epi64(both, both));
}

template <class T> [[gnu::always_inline]] inline void store_ends(T* array, size_t n, Vec<T> v)
{
    u8 *const p = reinterpret_cast<u8*>(array), *const end = p + n * sizeof(T);
    const size_t bytes = n * sizeof(T);
#if SIG5D_LEVEL >= 4
    if (bytes >= 16) {
        const auto halves = reinterpret_cast<__m256i>(v);
        put(p, _mm256_castsi256_si128(halves));
        return put(end - 16, _mm256_extractf128_si256(halves, 1));
    }
#endif
    const auto parts = reinterpret_cast<Vec<u64, vectorBytes / 8>>(v);
    const auto quarters = reinterpret_cast<Vec<u32, vectorBytes / 4>>(v);
    if (sizeof(T) >= 8 || bytes >= 8) {
        const u64 low = parts[0], high = parts[1];
        put(p, low);
        put(end - 8, high);
    } else if (sizeof(T) >= 4 || bytes >= 4) {
        const u32 low = quarters[0], high = quarters[1];
        put(p, low);
        put(end - 4, high);
    } else {
        const u32 low = quarters[0];
        if (sizeof(T) >= 2 || bytes >= 2) {
            put(p, static_cast<u16>(low));
            put(end - 2, static_cast<u16>(low >> 16));
        } else {
            *p = static_cast<u8>(low);
        }
    }
}

// As many groups of vectors as leave one element or more. Returns the elements that are left.
template <int group, class D, class Op, class... A> inline size_t map_groups(size_t n, D*& d, Op op, A&... a)
{
    constexpr int L = lanes<D>;
    for (; n > group * L; n -= group * L) {
        Vec<D> v[group];
#pragma GCC unroll 8
        for (int i = 0; i < group; ++i) v[i] = op(held(loadn<L>(a + i * L))...);
#pragma GCC unroll 8
        for (int i = 0; i < group; ++i) {
            put(d + i * L, v[i]);
            keep(d);
        }
        d += group * L;
        (void(a += group * L), ...);
        keep(d);
    }
    return n;
}

// d[i] = op(a[i], ...) for 0 <= i < n; sources as in map. The operation gets whole vectors of elements only.
template <int group, class D, class Op, class... A>
[[gnu::always_inline]] inline void map_compact(size_t n, D* d, Op op, A... a)
{
    constexpr size_t L = lanes<D>;
    if (n < L) return store_ends(d, n, op(load_ends(a, n)...));
    D* const first = d;
    D* const last = d + (n - L);
    const auto head = op(loadn<L>(a)...), tail = op(loadn<L>(a + (n - L))...);
    const size_t skip = L - reinterpret_cast<uintptr_t>(d) % vectorBytes / sizeof(D);
    const LargeArray large = large_array(n, d, a...);
    d += skip;
    (void(a += skip), ...);
    size_t left = n - skip;
    if (large.inSections && aligned(d, vectorBytes)) left = map_sections<2>(left, d, large, op, a...);
    left = map_groups<group>(left, d, op, a...);
    for (; left > L; left -= L) {
        put(d, op(loadn<L>(a)...));
        d += L;
        (void(a += L), ...);
    }
    put(first, head);
    put(last, tail);
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
