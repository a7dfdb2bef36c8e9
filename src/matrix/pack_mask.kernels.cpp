// Pack and unpack by mask.
#include "matrix/selected.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// One element after the other: the definition.
template <class T> u32 pack_in_order(size_t n, const T* a, T* d, const i32* mask)
{
    u32 j = 0;
    for (size_t k = 0; k < n; ++k)
        if (mask[k] > 0) d[j++] = a[k];
    return j;
}
template <class T> void unpack_in_order(size_t n, const T* a, T* d, const i32* mask)
{
    for (size_t k = 0; k < n; ++k)
        if (mask[k] > 0) d[k] = *a++;
}

#if SIG5D_LEVEL == 0

template <class T> u32 pack_mask_counted(u32 n, const T* a, T* d, const i32* mask)
{
    return pack_in_order(n, a, d, mask);
}
template <class T> void unpack_mask(u32 n, const T* a, T* d, const i32* mask) { unpack_in_order(n, a, d, mask); }

#else

// compress: the elements of a[0..8) whose bits are set, moved together to d; up to eight elements of d are written.
// expand: the first elements of a, put where the bits are set in d[0..8), in order; up to eight of a are read.
template <class T> inline void compress(const T* a, u32 bits, T* d)
{
#pragma GCC unroll 8
    for (u32 i = 0; i < 8; ++i) {
        *d = a[i];
        d += bits >> i & 1;
    }
}
template <class T> inline void expand(const T* a, u32 bits, T* d)
{
#pragma GCC unroll 8
    for (u32 i = 0; i < 8; ++i) {
        const bool set = bits >> i & 1;
        const T* const from = set ? a : d + i;
        d[i] = *from;
        a += set;
    }
}

#if SIG5D_LEVEL >= 2

inline __m128i load16(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }
inline __m128i load8(const void* p) { return _mm_loadl_epi64(static_cast<const __m128i*>(p)); }
inline void store16(void* p, __m128i v) { _mm_storeu_si128(static_cast<__m128i*>(p), v); }
inline void store8(void* p, __m128i v) { _mm_storel_epi64(static_cast<__m128i*>(p), v); }

// Numbers of 16-bit elements to those of their bytes; negative ones stay negative.
inline __m128i two_bytes(__m128i numbers)
{
    const __m128i twice = _mm_adds_epi8(numbers, numbers);
    return _mm_add_epi8(_mm_unpacklo_epi8(twice, twice), _mm_set1_epi16(0x100));
}
// Where the order is negative b, elsewhere the bytes of a in that order.
inline __m128i shuffled_or(__m128i b, __m128i a, __m128i order)
{
    const __m128i kept = _mm_and_si128(b, _mm_cmpgt_epi8(_mm_setzero_si128(), order));
    return _mm_or_si128(kept, _mm_shuffle_epi8(a, order));
}

inline void compress(const u8* a, u32 bits, u8* d)
{
    store8(d, _mm_shuffle_epi8(load8(a), load8(laneNumbers.of[bits])));
}
inline void compress(const i16* a, u32 bits, i16* d)
{
    store16(d, _mm_shuffle_epi8(load16(a), two_bytes(load8(laneNumbers.of[bits]))));
}
constexpr Ranks<u8, 8, 1> laneRanks;
inline void expand(const u8* a, u32 bits, u8* d)
{
    store8(d, shuffled_or(load8(d), load8(a), load8(laneRanks.of[bits])));
}
inline void expand(const i16* a, u32 bits, i16* d)
{
    store16(d, shuffled_or(load16(d), load16(a), two_bytes(load8(laneRanks.of[bits]))));
}

#if SIG5D_LEVEL >= 5

template <class T> inline __m256i load32(const T* p) { return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p)); }
template <class T> inline void store32(T* p, __m256i v) { _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), v); }

inline void compress(const i32* a, u32 bits, i32* d)
{
    const __m256i order = _mm256_cvtepu8_epi32(load8(laneNumbers.of[bits]));
    store32(d, _mm256_permutevar8x32_epi32(load32(a), order));
}
inline void expand(const i32* a, u32 bits, i32* d)
{
    const __m256i order = _mm256_cvtepi8_epi32(load8(laneRanks.of[bits])); // negative: keep
    store32(d,
            _mm256_blendv_epi8(_mm256_permutevar8x32_epi32(load32(a), order), load32(d), _mm256_srai_epi32(order, 31)));
}
constexpr Numbers<u32, 4, 2> numbersOf4;
inline void compress(const f64* a, u32 bits, f64* d)
{
    const u32 low = bits & 15, high = bits & 0xF0;
    const auto order = [](size_t bytes) { return load32(reinterpret_cast<const u8*>(numbersOf4.of) + bytes); };
    store32(d, _mm256_permutevar8x32_epi32(load32(a), order(low * 32)));
    store32(d + bit_count(low), _mm256_permutevar8x32_epi32(load32(a + 4), order(high * 2)));
}

#else

constexpr Numbers<u8, 4, 4> numbersOf4;
constexpr Ranks<u8, 4, 4> ranksOf4;
inline void compress(const i32* a, u32 bits, i32* d)
{
    const u32 low = bits & 15;
    store16(d, _mm_shuffle_epi8(load16(a), load16(numbersOf4.of[low])));
    store16(d + bit_count(low), _mm_shuffle_epi8(load16(a + 4), load16(numbersOf4.of[bits >> 4])));
}
inline void expand(const i32* a, u32 bits, i32* d)
{
    const u32 low = bits & 15;
    store16(d, shuffled_or(load16(d), load16(a), load16(ranksOf4.of[low])));
    store16(d + 4, shuffled_or(load16(d + 4), load16(a + bit_count(low)), load16(ranksOf4.of[bits >> 4])));
}

#endif
#endif

// The bytes from p on have none in common with those from q on.
inline bool disjoint(const void* p, size_t bytesP, const void* q, size_t bytesQ)
{
    const uintptr_t a = reinterpret_cast<uintptr_t>(p), b = reinterpret_cast<uintptr_t>(q);
    return a < b ? b - a >= bytesP : a - b >= bytesQ;
}

// From how many of 1024 on elements move by eights: sooner where one shuffle moves all of them.
template <class T> constexpr size_t many = SIG5D_LEVEL >= 2 && sizeof(T) <= 2 ? 8 : 32;

inline auto positive(const i32* mask) { return Holding<i32, OneValue<i32>, Greater>{mask, {0}, {}}; }

template <class T> u32 pack_mask_counted(u32 n, const T* a, T* d, const i32* mask)
{
    const size_t bytes = n * sizeof(T);
    const bool behind = reinterpret_cast<uintptr_t>(d) <= reinterpret_cast<uintptr_t>(a);
    if (!disjoint(d, bytes, mask, n * sizeof *mask) || !(behind || disjoint(d, bytes, a, bytes)))
        return pack_in_order(n, a, d, mask);
    const auto group = [=](size_t k) {
        const T* from = a + k;
        asm("" : "+r"(from)); // loads from it take part in other instructions, those with an index do not
        return [=](size_t j, size_t, u32 b, u32 bits) { compress(from + 8 * b, bits, d + j); };
    };
    return static_cast<u32>(for_selected<many<T>>(positive(mask), n, group, [=](size_t j, size_t k) { d[j] = a[k]; }));
}

template <class T> void unpack_mask(u32 n, const T* a, T* d, const i32* mask)
{
    const size_t bytes = n * sizeof(T);
    if (!disjoint(d, bytes, mask, n * sizeof *mask) || !disjoint(d, bytes, a, bytes))
        return unpack_in_order(n, a, d, mask);
    const auto group = [=](size_t) { return [=](size_t j, size_t k, u32, u32 bits) { expand(a + j, bits, d + k); }; };
    for_selected<many<T>>(positive(mask), n, group, [=](size_t j, size_t k) { d[k] = a[j]; });
}

#endif

template <class T> void pack_mask(u32 n, const T* a, const i32* mask, T* d) { pack_mask_counted(n, a, d, mask); }

} // namespace
#include "entries/matrix/pack_mask.inc"
} // namespace sig5d::SIG5D_VARIANT
