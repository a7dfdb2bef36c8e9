// Conversions between integers of different width.
#include "frame/entry.h"
#include "kernel/loops.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

#if SIG5D_LEVEL == 0

struct Converted {
    operator u8() const { return static_cast<u8>(x < 0 ? 0 : x > 255 ? 255 : x); }
    operator i16() const { return static_cast<i16>(x); }
    operator i32() const { return x; }
    i32 x;
};
struct Convert {
    Converted operator()(i32 x) const { return {x}; }
};
template <class D, class T> inline const T* as(const T* a) { return a; }

#else

// What map takes for a pointer to elements of type D: elements of type T, loaded and converted.
template <class T, class D> struct Source {
    const T* p;
    Source operator+(size_t n) const { return {p + n}; }
    void operator+=(size_t n) { p += n; }
};
template <class T, class D> inline const T* lowest(Source<T, D> a, size_t) { return a.p; }
template <class D, class T> inline Source<T, D> as(const T* a) { return {a}; }

inline __m128i at(const void* p) { return _mm_loadu_si128(static_cast<const __m128i_u*>(p)); }
#if SIG5D_LEVEL >= 5
inline __m256i wide_at(const void* p) { return _mm256_loadu_si256(static_cast<const __m256i_u*>(p)); }
// Narrowing instructions work on each half: the quarters into their order.
inline Vec<u8, 32> ordered(__m256i x)
{
    return reinterpret_cast<Vec<u8, 32>>(_mm256_permutevar8x32_epi32(x, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7)));
}
#endif

// To bytes: in two steps that saturate, of which the first keeps what the second needs.
template <int L> inline Vec<u8, L> loadn(Source<i16, u8> a)
{
#if SIG5D_LEVEL >= 5
    if constexpr (L == 32) {
        const __m256i bytes = _mm256_packus_epi16(wide_at(a.p), wide_at(a.p + 16));
        return reinterpret_cast<Vec<u8, 32>>(_mm256_permute4x64_epi64(bytes, 0xD8));
    } else
#endif
        return reinterpret_cast<Vec<u8, 16>>(_mm_packus_epi16(at(a.p), at(a.p + 8)));
}
template <int L> inline Vec<u8, L> loadn(Source<i32, u8> a)
{
#if SIG5D_LEVEL >= 5
    if constexpr (L == 32) {
        const __m256i low = _mm256_packs_epi32(wide_at(a.p), wide_at(a.p + 8));
        const __m256i high = _mm256_packs_epi32(wide_at(a.p + 16), wide_at(a.p + 24));
        return ordered(_mm256_packus_epi16(low, high));
    } else
#endif
    {
        const __m128i low = _mm_packs_epi32(at(a.p), at(a.p + 4)), high = _mm_packs_epi32(at(a.p + 8), at(a.p + 12));
        return reinterpret_cast<Vec<u8, 16>>(_mm_packus_epi16(low, high));
    }
}
template <int bytes> inline Vec<u8, 16> load_part(Source<i16, u8> a)
{
    if constexpr (bytes == 16) return loadn<16>(a);
    const auto x = reinterpret_cast<__m128i>(load_part<2 * (bytes < 16 ? bytes : 8)>(a.p));
    return reinterpret_cast<Vec<u8, 16>>(_mm_packus_epi16(x, x));
}
template <int bytes> inline Vec<u8, 16> load_part(Source<i32, u8> a)
{
    if constexpr (bytes == 16) {
        return loadn<16>(a);
    } else if constexpr (bytes == 8) {
        const __m128i x = _mm_packs_epi32(at(a.p), at(a.p + 4));
        return reinterpret_cast<Vec<u8, 16>>(_mm_packus_epi16(x, x));
    } else {
        __m128i x = reinterpret_cast<__m128i>(load_part<4 * bytes>(a.p));
        x = _mm_packs_epi32(x, x);
        return reinterpret_cast<Vec<u8, 16>>(_mm_packus_epi16(x, x));
    }
}

// From bytes to lanes of D, the first ones of what was loaded.
template <class D> inline Vec<D, 16 / sizeof(D)> widened(__m128i x)
{
    x = _mm_unpacklo_epi8(x, __m128i{});
    if constexpr (sizeof(D) == 4) x = _mm_unpacklo_epi16(x, __m128i{});
    return reinterpret_cast<Vec<D, 16 / sizeof(D)>>(x);
}
template <int bytes, class D> inline Vec<D, 16 / sizeof(D)> load_part(Source<u8, D> a)
{
    return widened<D>(reinterpret_cast<__m128i>(load_part<bytes / sizeof(D)>(a.p)));
}
template <int L, class D> inline Vec<D, L> loadn(Source<u8, D> a)
{
#if SIG5D_LEVEL >= 5
    if constexpr (L * sizeof(D) == 32) {
        const auto x = reinterpret_cast<__m128i>(load_part<L>(a.p));
        if constexpr (sizeof(D) == 2)
            return reinterpret_cast<Vec<D, L>>(_mm256_cvtepu8_epi16(x));
        else
            return reinterpret_cast<Vec<D, L>>(_mm256_cvtepu8_epi32(x));
    } else
#endif
        return load_part<L * sizeof(D)>(a);
}

using Convert = Same;

#endif

template <class T, class D> [[gnu::noinline]] void convert(const T* a, D* d, u32 n) { map(n, d, Convert{}, as<D>(a)); }

} // namespace
#include "entries/vector/integer_conversion.inc"
} // namespace sig5d::SIG5D_VARIANT
