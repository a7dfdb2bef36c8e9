// Exact integer division of vectors by a number that is the same for all lanes, as a product by its reciprocal.
#pragma once
#include "kernel/lane_shifts.h"
#include "vector/two_results.h"
#if SIG5D_LEVEL > 0

namespace sig5d::SIG5D_VARIANT {
namespace {

// floor(high * 2^32 / divisor) for high < divisor; a divisor of zero faults.
inline u32 scaled_quotient(u32 high, u32 divisor)
{
    u32 quotient = 0;
    asm("divl %2" : "+a"(quotient), "+d"(high) : "r"(divisor) : "cc");
    return quotient;
}

// The upper halves of the products of 32-bit lanes.
inline __m128i high_product(__m128i x, __m128i y, i32)
{
#if SIG5D_LEVEL >= 3
    const __m128i even = _mm_mul_epi32(x, y), odd = _mm_mul_epi32(_mm_srli_epi64(x, 32), y);
    return _mm_blend_epi16(_mm_srli_epi64(even, 32), odd, 0xCC);
#else
    // Of the unsigned products, less what a sign bit counts too much there.
    const __m128i even = _mm_mul_epu32(x, y), odd = _mm_mul_epu32(_mm_srli_epi64(x, 32), _mm_srli_epi64(y, 32));
    const __m128i upper = _mm_and_si128(odd, _mm_set1_epi64x(static_cast<long long>(0xFFFFFFFF00000000)));
    const __m128i product = _mm_or_si128(_mm_srli_epi64(even, 32), upper);
    const __m128i excess =
        _mm_add_epi32(_mm_and_si128(_mm_srai_epi32(x, 31), y), _mm_and_si128(_mm_srai_epi32(y, 31), x));
    return _mm_sub_epi32(product, excess);
#endif
}
#if SIG5D_LEVEL >= 5
inline __m256i high_product(__m256i x, __m256i y, i32)
{
    const __m256i even = _mm256_mul_epi32(x, y), odd = _mm256_mul_epi32(_mm256_srli_epi64(x, 32), y);
    return _mm256_blend_epi32(_mm256_srli_epi64(even, 32), odd, 0xAA);
}
#endif

inline __m128i shifted_right(__m128i x, __m128i count, i16) { return _mm_sra_epi16(x, count); }
#if SIG5D_LEVEL >= 5
inline __m128i shifted_right(__m128i x, __m128i count, i32) { return _mm_sra_epi32(x, count); }
inline __m256i shifted_right(__m256i x, __m128i count, i16) { return _mm256_sra_epi16(x, count); }
inline __m256i shifted_right(__m256i x, __m128i count, i32) { return _mm256_sra_epi32(x, count); }
#endif

template <class V> using Register = Vec<long long, sizeof(V) / 8>;

// As in "Division by Invariant Integers using Multiplication" (PLDI 1994), figure 5.2: exact for every dividend and
// every divisor but zero. T: i16, i32.
template <class T> struct Reciprocal {
    T multiplier; // 2^(width + shift) / |divisor|, rounded up, less 2^width
    int shift;
    T magnitude; // |divisor|, or -2^(width - 1)
    T flip;      // -1 where the divisor is negative

    explicit Reciprocal(T divisor)
        : magnitude(static_cast<T>(divisor < 0 ? 0u - static_cast<u32>(divisor) : static_cast<u32>(divisor))),
          flip(divisor < 0 ? -1 : 0)
    {
        const u32 size = sizeof(T) == 2 ? static_cast<u16>(magnitude) : static_cast<u32>(magnitude);
        shift = size > 2 ? 31 - __builtin_clz(size - 1) : 0; // ceil(log2(size)) - 1
        const u32 high = size == 1 ? 0 : u32{1} << shift;
        if constexpr (sizeof(T) == 4)
            multiplier = static_cast<T>(scaled_quotient(high, size) + 1);
        else
            multiplier = static_cast<T>((high << 16) / size + 1);
    }

    // Truncated quotients by |divisor|.
    template <class V> V by_magnitude(V x) const
    {
        constexpr int L = sizeof(V) / sizeof(T);
        using Lanes = Vec<T, L>;
        using U = Vec<typename UnsignedLane<T>::type, L>;
        const auto factor = reinterpret_cast<Register<V>>(splatn<L>(multiplier));
        const auto high = high_product(reinterpret_cast<Register<V>>(x), factor, T{});
        const U sum = reinterpret_cast<U>(x) + reinterpret_cast<U>(high);
        const auto floor = shifted_right(reinterpret_cast<Register<V>>(sum), _mm_cvtsi32_si128(shift), T{});
        const Lanes sign = reinterpret_cast<Lanes>(x) >> (8 * sizeof(T) - 1);
        return reinterpret_cast<V>(reinterpret_cast<U>(floor) - reinterpret_cast<U>(sign));
    }
    template <class V> V quotient(V byMagnitude) const
    {
        constexpr int L = sizeof(V) / sizeof(T);
        using U = Vec<typename UnsignedLane<T>::type, L>;
        const U turn = reinterpret_cast<U>(splatn<L>(flip));
        return reinterpret_cast<V>((reinterpret_cast<U>(byMagnitude) ^ turn) - turn);
    }
    template <class V> V remainder(V x, V byMagnitude) const
    {
        constexpr int L = sizeof(V) / sizeof(T);
        using U = Vec<typename UnsignedLane<T>::type, L>;
        const U product = reinterpret_cast<U>(byMagnitude) * reinterpret_cast<U>(splatn<L>(magnitude));
        return reinterpret_cast<V>(reinterpret_cast<U>(x) - product);
    }
};

// For bytes: floor((x + 1) * m / 2^16) with m = floor((2^16 - 1) / divisor) is floor(x / divisor), since the error of m
// is at most the divisor and 256 * 255 <= 2^16. Bytes at even and at odd places go apart, in lanes of two bytes.
template <> struct Reciprocal<u8> {
    u16 multiplier, magnitude;

    explicit Reciprocal(u8 divisor) : multiplier(static_cast<u16>(0xFFFFu / divisor)), magnitude(divisor) {}

    template <class V> struct Halves {
        Vec<u16, sizeof(V) / 2> even, odd;
    };
    template <class V> Halves<V> by_magnitude(V x) const
    {
        using U = Vec<u16, sizeof(V) / 2>;
        const U both = reinterpret_cast<U>(x);
        return {times_reciprocal((both & 0xFF) + 1), times_reciprocal((both >> 8) + 1)};
    }
    template <class U> U times_reciprocal(U x) const
    {
        const auto factor = reinterpret_cast<Register<U>>(splatn<sizeof(U) / 2>(multiplier));
        return reinterpret_cast<U>(high_product(reinterpret_cast<Register<U>>(x), factor, u16{}));
    }
    template <class V> V quotient(Halves<V> q) const { return reinterpret_cast<V>(q.even | q.odd << 8); }
    template <class V> V remainder(V x, Halves<V> q) const
    {
        return x - reinterpret_cast<V>(q.even * magnitude | q.odd * static_cast<u16>(magnitude << 8));
    }
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
#endif
