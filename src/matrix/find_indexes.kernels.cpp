// The positions of elements for which a comparison holds.
#include "matrix/selected.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

#if SIG5D_LEVEL == 0

template <class Holding> size_t list(const Holding& holding, size_t n, u32* indexes)
{
    size_t j = 0;
    for (size_t k = 0; k < n; ++k)
        if (holding.at(k)) indexes[j++] = static_cast<u32>(k);
    return j;
}

#else

// Writes the numbers of the bits that are set, counted from bases + first; eight elements of d, whatever the bits.
template <class V> inline void list_byte(u32 bits, V bases, u32 first, u32* d)
{
    const __m128i numbers = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(laneNumbers.of[bits]));
    const V from = bases + first;
#if SIG5D_LEVEL >= 5
    storen<8>(d, reinterpret_cast<V>(_mm256_cvtepu8_epi32(numbers)) + from);
#else
    const __m128i zero = _mm_setzero_si128(), words = _mm_unpacklo_epi8(numbers, zero);
    storen<4>(d, reinterpret_cast<V>(_mm_unpacklo_epi16(words, zero)) + from);
    storen<4>(d + 4, reinterpret_cast<V>(_mm_unpackhi_epi16(words, zero)) + from);
#endif
}

template <class Holding> size_t list(const Holding& holding, size_t n, u32* indexes)
{
    const auto group = [=](size_t k) {
        auto bases = splat(static_cast<u32>(k));
        asm("" : "+x"(bases)); // a value that the compiler knows it would spread over the lanes anew for each byte
        return [=](size_t j, size_t, u32 b, u32 bits) { list_byte(bits, bases, 8 * b, indexes + j); };
    };
    constexpr size_t many = sizeof(*holding.x) <= 2 ? 8 : 32;
    return for_selected<many>(holding, n, group, [=](size_t j, size_t k) { indexes[j] = static_cast<u32>(k); });
}

#endif

template <class T, class Y> void find_indexes_by_code(u32 code, const T* x, Y y, u32* indexes, size_t n, u32* count)
{
    size_t found = 0;
    with_comparison(code, y, n, [&](auto test) {
        found = list(Holding<T, Y, decltype(test)>{x, y, test}, n, indexes);
    });
    *count = static_cast<u32>(found);
}
template <class T> void find_indexes(u32 code, const T* x, T y, u32* indexes, u32 n, u32* count)
{
    find_indexes_by_code(code, x, OneValue<T>{y}, indexes, n, count);
}
template <class T> void find_indexes(u32 code, const T* x, const T* y, u32* indexes, u32 n, u32* count)
{
    find_indexes_by_code(code, x, y, indexes, n, count);
}

} // namespace
#include "entries/matrix/find_indexes.inc"
} // namespace sig5d::SIG5D_VARIANT
