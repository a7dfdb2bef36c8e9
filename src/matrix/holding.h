// The elements of an array for which a comparison holds: as bits, or as lanes of a mask.
#pragma once
#include "kernel/map.h"
#include "matrix/comparison.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

#if SIG5D_LEVEL > 0
// What a comparison's other side looks like in vectors of n elements.
template <int n, class T> inline auto vector_of(const T* y) { return loadn<n>(y); }
template <int n, class T> inline auto vector_of(OneValue<T> y) { return splatn<n>(y.value); }
// The same, of so many bytes in the low end of a register.
template <int bytes, class T> inline auto part_of(const T* y) { return load_part<bytes>(y); }
template <int bytes, class T> inline auto part_of(OneValue<T> y) { return splatn<16 / sizeof(T)>(y.value); }
#endif

// Elements x[k] for which the test with y[k] holds.
template <class T, class Y, class Test> struct Holding {
    const T* x;
    Y y;
    Test test;

    bool at(size_t k) const { return test(x[k], y[k]); }

#if SIG5D_LEVEL > 0
    static constexpr bool wordsFirst = sizeof(T) <= 2; // eight bits cost as much as 32

    u32 byte(size_t k) const // elements k .. k+7 as bits
    {
        if constexpr (sizeof(T) == 8 && SIG5D_LEVEL >= 4)
            return static_cast<u32>(_mm256_movemask_pd(mask<32>(k)) | _mm256_movemask_pd(mask<32>(k + 4)) << 4);
        else if constexpr (sizeof(T) == 4 && SIG5D_LEVEL >= 5)
            return static_cast<u32>(_mm256_movemask_ps(_mm256_castsi256_ps(mask<32>(k))));
        else if constexpr (sizeof(T) >= 2)
            return static_cast<u32>(_mm_movemask_epi8(_mm_packs_epi16(narrow<2>(k), _mm_setzero_si128())));
        else
            return static_cast<u32>(
                       _mm_movemask_epi8(reinterpret_cast<__m128i>(test(load_part<8>(x + k), part_of<8>(y + k))))) &
                   255;
    }
    u32 word(size_t k) const // elements k .. k+31
    {
        if constexpr (SIG5D_LEVEL >= 5 && sizeof(T) == 1) {
            return static_cast<u32>(_mm256_movemask_epi8(mask<32>(k)));
        } else if constexpr (SIG5D_LEVEL >= 5 && sizeof(T) == 2) {
            const __m256i both = _mm256_packs_epi16(mask<32>(k), mask<32>(k + 16));
            return static_cast<u32>(_mm256_movemask_epi8(_mm256_permute4x64_epi64(both, 0xD8)));
        } else if constexpr (SIG5D_LEVEL >= 5 && sizeof(T) == 4) {
            const __m256i low = _mm256_packs_epi32(mask<32>(k), mask<32>(k + 8));
            const __m256i high = _mm256_packs_epi32(mask<32>(k + 16), mask<32>(k + 24));
            const __m256i order = _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7);
            return static_cast<u32>(
                _mm256_movemask_epi8(_mm256_permutevar8x32_epi32(_mm256_packs_epi16(low, high), order)));
        } else if constexpr (SIG5D_LEVEL >= 5 && sizeof(T) == 8) {
            const __m256i low = _mm256_packs_epi32(two(k), two(k + 8)),
                          high = _mm256_packs_epi32(two(k + 16), two(k + 24));
            // The lower lane has the first two elements of each four, the upper one the others.
            const __m256i half = _mm256_permute4x64_epi64(_mm256_packs_epi16(low, high), 0xD8);
            const __m256i order =
                _mm256_broadcastsi128_si256(_mm_setr_epi8(0, 1, 8, 9, 2, 3, 10, 11, 4, 5, 12, 13, 6, 7, 14, 15));
            return static_cast<u32>(_mm256_movemask_epi8(_mm256_shuffle_epi8(half, order)));
        } else if constexpr (SIG5D_LEVEL >= 4 && sizeof(T) == 8) {
            return byte(k) | byte(k + 8) << 8 | byte(k + 16) << 16 | byte(k + 24) << 24;
        } else {
            return static_cast<u32>(_mm_movemask_epi8(narrow<1>(k)) | _mm_movemask_epi8(narrow<1>(k + 16)) << 16);
        }
    }

private:
    // A vector of so many bytes of elements from k on: all bits set where the test holds.
    template <int bytes> auto mask(size_t k) const
    {
        constexpr int n = bytes / static_cast<int>(sizeof(T));
        const auto m = test(loadn<n>(x + k), vector_of<n>(y + k));
        if constexpr (bytes == 16)
            return reinterpret_cast<__m128i>(m);
        else if constexpr (sizeof(T) == 8)
            return reinterpret_cast<__m256d>(m);
        else
            return reinterpret_cast<__m256i>(m);
    }

    // Eight doubles as lanes of 32 bits: 0 1 4 5 2 3 6 7.
    __m256i two(size_t k) const
    {
        const __m256 a = _mm256_castpd_ps(mask<32>(k)), b = _mm256_castpd_ps(mask<32>(k + 4));
        return _mm256_castps_si256(_mm256_shuffle_ps(a, b, 0x88));
    }

    // The elements from k on, so many bytes for each in a vector of 16.
    template <size_t lane> __m128i narrow(size_t k) const
    {
        if constexpr (lane == sizeof(T)) {
            return mask<16>(k);
        } else {
            const __m128i a = narrow<2 * lane>(k), b = narrow<2 * lane>(k + 8 / lane);
            if constexpr (lane == 1)
                return _mm_packs_epi16(a, b);
            else if constexpr (lane == 2)
                return _mm_packs_epi32(a, b);
            else
                return _mm_castps_si128(_mm_shuffle_ps(_mm_castsi128_ps(a), _mm_castsi128_ps(b), 0x88));
        }
    }
#endif
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
