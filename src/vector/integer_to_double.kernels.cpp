// Integers of up to 16 bits as doubles.
#include "frame/entry.h"
#include "kernel/loops.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

#if SIG5D_LEVEL == 0

struct Convert {
    f64 operator()(i32 x) const { return x; }
};
template <class T> inline const T* doubles(const T* a) { return a; }

#else

// What map takes for a pointer to doubles.
template <class T> struct Doubles {
    const T* p;
    Doubles operator+(size_t n) const { return {p + n}; }
    void operator+=(size_t n) { p += n; }
};
template <class T> inline const T* lowest(Doubles<T> a, size_t) { return a.p; }
template <class T> inline Doubles<T> doubles(const T* a) { return {a}; }

// The first elements in lanes of 32 bits.
inline __m128i widened(Vec<u8, 16> x)
{
    const __m128i pairs = _mm_unpacklo_epi8(reinterpret_cast<__m128i>(x), __m128i{});
    return _mm_unpacklo_epi16(pairs, __m128i{});
}
inline __m128i widened(Vec<i16, 8> x)
{
    return _mm_srai_epi32(_mm_unpacklo_epi16(reinterpret_cast<__m128i>(x), reinterpret_cast<__m128i>(x)), 16);
}

template <int L, class T> inline Vec<f64, L> loadn(Doubles<T> a)
{
    const __m128i x = widened(load_part<L * sizeof(T)>(a.p));
#if SIG5D_LEVEL >= 4
    if constexpr (L == 4)
        return _mm256_cvtepi32_pd(x);
    else
#endif
        return _mm_cvtepi32_pd(x);
}
template <int bytes, class T> inline Vec<f64, 2> load_part(Doubles<T> a)
{
    return _mm_cvtepi32_pd(widened(load_part<bytes / 8 * sizeof(T)>(a.p)));
}

using Convert = Same;

#endif

template <class T> [[gnu::noinline]] void convert(const T* a, f64* d, u32 n) { map(n, d, Convert{}, doubles(a)); }

} // namespace
#include "entries/vector/integer_to_double.inc"
} // namespace sig5d::SIG5D_VARIANT
