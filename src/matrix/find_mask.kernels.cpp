// Masks of comparisons, and the count of what is greater.
#include "matrix/holding.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Elements that become mask values, 1 or 0, when they are read; -1 for a negative infinity that is found by kind.
template <class T, class Y, class Test> struct MaskValues {
    const T* x;
    Y y;
    Test test;

    i32 operator[](size_t k) const
    {
        const bool holds = test(x[k], y[k]);
        if constexpr (findsInfinities<Test>)
            return holds ? (x[k] == -infinity ? -1 : 1) : 0;
        else
            return holds;
    }
    MaskValues operator+(size_t k) const { return {x + k, y + k, test}; }
};

template <class T, class Y, class Test> inline Span span(const MaskValues<T, Y, Test>& m, size_t n)
{
    return span(m.x, n);
}

#if SIG5D_LEVEL == 0

template <int n, class T, class Y, class Test> inline i32 load_lanes(const MaskValues<T, Y, Test>& m) { return m[0]; }

#else

// Lanes of 64 bits of which either half will do, as lanes of 32.
inline Vec<i32, 4> halves(Vec<i64, 2> a, Vec<i64, 2> b)
{
    const __m128 low = reinterpret_cast<__m128>(a), high = reinterpret_cast<__m128>(b);
    return reinterpret_cast<Vec<i32, 4>>(_mm_shuffle_ps(low, high, 0x88));
}
#if SIG5D_LEVEL >= 5
inline Vec<i32, 8> halves(Vec<i64, 4> a, Vec<i64, 4> b)
{
    const __m256 mixed = _mm256_shuffle_ps(reinterpret_cast<__m256>(a), reinterpret_cast<__m256>(b), 0x88);
    return reinterpret_cast<Vec<i32, 8>>(_mm256_permute4x64_epi64(_mm256_castps_si256(mixed), 0xD8));
}
#endif

// The first elements of a vector in lanes of 32 bits.
#if SIG5D_LEVEL >= 5
inline Vec<i32, 8> widened(Vec<i16, 8> v)
{
    return reinterpret_cast<Vec<i32, 8>>(_mm256_cvtepi16_epi32(reinterpret_cast<__m128i>(v)));
}
inline Vec<i32, 8> widened(Vec<i8, 16> v)
{
    return reinterpret_cast<Vec<i32, 8>>(_mm256_cvtepi8_epi32(reinterpret_cast<__m128i>(v)));
}
#endif

// All bits of a lane set where the test holds.
template <int L, class T, class Y, class Test> inline Vec<i32, L> lanes_of(const MaskValues<T, Y, Test>& m)
{
    const auto test = m.test;
    if constexpr (sizeof(T) == 8) {
        const auto a = test(loadn<L / 2>(m.x), vector_of<L / 2>(m.y));
        return halves(a, test(loadn<L / 2>(m.x + L / 2), vector_of<L / 2>(m.y + L / 2)));
    } else if constexpr (sizeof(T) == 4) {
        return test(loadn<L>(m.x), vector_of<L>(m.y));
    } else {
        // Compilers differ in the type of a comparison's lanes.
        using Mask = Vec<std::make_signed_t<T>, 16 / static_cast<int>(sizeof(T))>;
        return widened(reinterpret_cast<Mask>(test(load_part<L * sizeof(T)>(m.x), part_of<L * sizeof(T)>(m.y))));
    }
}
struct IsNegativeInfinity {
    auto operator()(auto x, auto) const { return x == -infinity; }
};
template <int n, class T, class Y, class Test> inline auto load_lanes(const MaskValues<T, Y, Test>& m)
{
    if constexpr (n < lanes<i32>) {
        Vec<i32, 4> v = {};
        for (int i = 0; i < n; ++i) v[i] = m[static_cast<size_t>(i)];
        return v;
    } else if constexpr (findsInfinities<Test>) {
        return lanes_of<n>(m) & (lanes_of<n>(MaskValues<T, Y, IsNegativeInfinity>{m.x, m.y, {}}) | 1);
    } else {
        return lanes_of<n>(m) & 1;
    }
}

#endif

template <class T, class Y> void find_mask_by_code(u32 code, const T* x, Y y, i32* mask, size_t n)
{
    // Calls from the loop would load the value and the pointers anew each time.
    const auto write = [=](auto test) __attribute__((flatten))
    {
        const MaskValues<T, Y, decltype(test)> values{x, y, test};
        if constexpr (sizeof(T) < sizeof *mask && SIG5D_LEVEL < 5) { // the compiler takes a whole vector of T at once
#pragma GCC ivdep
            for (size_t k = 0; k < n; ++k) mask[k] = values[k];
        } else {
            map<Medium>(n, mask, Same{}, values);
        }
    };
    with_comparison(code, y, n, write);
}
template <class T> void find_mask(u32 code, const T* x, T y, i32* mask, u32 n)
{
    find_mask_by_code(code, x, OneValue<T>{y}, mask, n);
}
template <class T> void find_mask(u32 code, const T* x, const T* y, i32* mask, u32 n)
{
    find_mask_by_code(code, x, y, mask, n);
}

void count_greater(const f64* x, f64 value, u32* count, u32 n)
{
    size_t k = 0;
    u32 greater = 0;
#if SIG5D_LEVEL > 0
    constexpr size_t L = lanes<f64>;
    Vec<i64> found[4] = {};
    for (; n - k >= 8 * L; k += 8 * L)
#pragma GCC unroll 8
        for (size_t i = 0; i < 8; ++i) found[i % 4] -= splat(value) < load(x + k + i * L);
    for (; n - k >= L; k += L) found[0] -= splat(value) < load(x + k);
    const auto all = reinterpret_cast<Vec<i32>>(found[0] + found[1] + (found[2] + found[3]));
    for (size_t i = 0; i < L; ++i) greater += static_cast<u32>(all[2 * i]);
#endif
    for (; k < n; ++k) greater += x[k] > value;
    *count = greater;
}

} // namespace
#include "entries/matrix/find_mask.inc"
} // namespace sig5d::SIG5D_VARIANT
