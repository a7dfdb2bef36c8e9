// Parts of vectors: fewer elements than a register holds, at the ends of arrays. No lane ever holds anything but
// elements, since what is computed of a zero beside them could raise an exception: lanes that are left over repeat
// elements. And no byte outside an array is read or written.
#pragma once
#include "kernel/simd.h"
#include <type_traits>

namespace sig5d::SIG5D_VARIANT {
namespace {

// Any vector, wherever p points.
template <class V> inline void store_at(void* p, V v) { __builtin_memcpy(p, &v, sizeof v); }

#if SIG5D_LEVEL == 0

template <int n, class T> inline T load_lanes(const T* p)
{
    static_assert(n == 1);
    return *p;
}

#else

// 16, 8, 4, 2 or 1 bytes in the low end of a register. A double stands in both halves.
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

// n elements, a power of two, in a vector of as many lanes or in the low end of one of 16 bytes.
template <int n, class T> inline auto load_lanes(const T* p)
{
    if constexpr (n * sizeof(T) > 16)
        return loadn<n>(p);
    else
        return load_part<static_cast<int>(n * sizeof(T))>(p);
}

// The low end of a vector, as a shorter one.
template <class V, class W> inline V low_end(W vector)
{
    V v;
    __builtin_memcpy(&v, &vector, sizeof v);
    return v;
}

// The low n lanes of two vectors side by side.
template <int n, class V> inline auto joined(V low, V high)
{
    using T = Lane<V>;
    constexpr int bytes = n * static_cast<int>(sizeof(T));
    using Both = Vec<T, (bytes < 16 ? 16 : 2 * bytes) / static_cast<int>(sizeof(T))>;
    if constexpr (bytes >= 16) {
        using Half = Vec<f64, bytes / 8>;
        return as<Both>(joined(as<Half>(low), as<Half>(high)));
    } else {
        return as<Both>(interleaved_pieces<bytes>(bits(low), bits(high)));
    }
}

// Lanes n to 2n - 1 at the low end of a register.
template <int n, class V> inline auto upper_lanes(V v)
{
    using T = Lane<V>;
    constexpr int bytes = n * static_cast<int>(sizeof(T));
    using Half = Vec<T, (bytes < 16 ? 16 : bytes) / static_cast<int>(sizeof(T))>;
    if constexpr (bytes >= 16)
        return as<Half>(upper_half(low_end<Vec<f64, 2 * bytes / 8>>(v)));
    else
        return as<Half>(bytes_from<bytes>(low_end<__m128i>(v)));
}

// Fewer than L elements of an array in a vector of L lanes: the largest power of two of them that fits, from either end
// of the array, side by side, and that again and again up to the vector's end. What is short of eight bytes goes by way
// of ordinary registers.
template <int L, class T>
requires(L * sizeof(T) == 8) inline auto load_ends(const T* a, size_t n)
{
    const u8 *const p = reinterpret_cast<const u8*>(a), *const end = reinterpret_cast<const u8*>(a + n);
    const size_t bytes = n * sizeof(T);
    u32 low = 0, high;
    if (sizeof(T) >= 4 || bytes >= 4) {
        __builtin_memcpy(&low, p, 4);
        __builtin_memcpy(&high, end - 4, 4);
    } else {
        if (sizeof(T) >= 2 || bytes >= 2) {
            u16 first, last;
            __builtin_memcpy(&first, p, 2);
            __builtin_memcpy(&last, end - 2, 2);
            low = first | static_cast<u32>(last) << 16;
        } else {
            low = *p * 0x01010101u;
        }
        high = low;
    }
    return reinterpret_cast<Vec<T, 16 / sizeof(T)>>(
        _mm_unpacklo_epi32(_mm_cvtsi32_si128(static_cast<int>(low)), _mm_cvtsi32_si128(static_cast<int>(high))));
}
template <int L, class A> [[gnu::always_inline]] inline auto load_ends(A a, size_t n)
{
    constexpr int half = L / 2;
    if constexpr (half > 1)
        if (n < half) {
            const auto v = load_ends<half>(a, n);
            return joined<half>(v, v);
        }
    return joined<half>(load_lanes<half>(a), load_lanes<half>(a + (n - half)));
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
