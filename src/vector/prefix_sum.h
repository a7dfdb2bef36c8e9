// Running sums of unsigned integers in vectors: d[i] = a[i] + d[i-lag] for lag <= i < n, where d[0] to d[lag-1] hold
// their values. The destination must not begin inside the source.
#pragma once
#include "kernel/vec.h"
#if SIG5D_LEVEL > 0
#include <immintrin.h>

namespace sig5d::SIG5D_VARIANT {
namespace {

// Any lag of so many bytes at least.
template <int bytes, class T> void sum_vectors(size_t n, const T* a, T* d, size_t lag)
{
    constexpr size_t L = bytes / sizeof(T);
    size_t i = lag;
    for (; i + L <= n; i += L) storen<L>(d + i, loadn<L>(a + i) + loadn<L>(d + i - lag));
    for (; i < n; ++i) d[i] = static_cast<T>(a[i] + d[i - lag]);
}

// Towards higher elements, within 16 bytes.
template <int bytes, class V> inline V shifted_up(V v)
{
#if SIG5D_LEVEL >= 5
    if constexpr (sizeof(V) == 32) return reinterpret_cast<V>(_mm256_slli_si256(reinterpret_cast<__m256i>(v), bytes));
#endif
    if constexpr (sizeof(V) == 16) return reinterpret_cast<V>(_mm_slli_si128(reinterpret_cast<__m128i>(v), bytes));
}

// Running sums within each 16 bytes.
template <class T, int step = sizeof(T)> inline Vec<T> summed(Vec<T> v)
{
    if constexpr (step == 16)
        return v;
    else
        return summed<T, 2 * step>(v + shifted_up<step>(v));
}

template <class V, int... i> inline V last_of_16(V v, std::integer_sequence<int, i...>)
{
    constexpr int L = 16 / sizeof(v[0]);
    return __builtin_shufflevector(v, v, (i | (L - 1))...);
}

// Lag 1. The sum of everything before a vector depends on the one before it by additions alone.
template <class T> void prefix_sum(size_t n, const T* a, T* d)
{
    constexpr size_t L = lanes<T>;
    Vec<T> before{};
    size_t i = 0;
    for (; i + L <= n; i += L) {
        Vec<T> sums = summed<T>(load(a + i));
        Vec<T> total = last_of_16(sums, std::make_integer_sequence<int, L>{});
#if SIG5D_LEVEL >= 5
        const auto halves = reinterpret_cast<__m256i>(total);
        sums += reinterpret_cast<Vec<T>>(_mm256_permute2x128_si256(halves, halves, 0x08)); // the lower half's total
        total += reinterpret_cast<Vec<T>>(_mm256_permute2x128_si256(halves, halves, 0x01));
#endif
        store(d + i, sums + before);
        before += total;
    }
    T sum = before[0];
    for (; i < n; ++i) d[i] = sum = static_cast<T>(sum + a[i]);
}

#if SIG5D_LEVEL >= 2

using Bytes = Vec<u8, 16>;
template <class T> inline Vec<T, 16 / sizeof(T)> shuffled(Vec<T, 16 / sizeof(T)> v, Bytes order)
{
    const auto bytes = _mm_shuffle_epi8(reinterpret_cast<__m128i>(v), reinterpret_cast<__m128i>(order));
    return reinterpret_cast<Vec<T, 16 / sizeof(T)>>(bytes);
}

// Lags of 2 to 15 bytes: sums within 16 bytes by shifts of one, two and four lags, then the last lag's bytes of the
// vector before, again and again.
template <class T> void short_lag_sum(size_t n, const T* a, T* d, size_t lag)
{
    constexpr size_t L = 16 / sizeof(T);
    const size_t bytes = lag * sizeof(T);
    Bytes one, two, four, again, start;
    for (size_t k = 0; k < 16; ++k) {
        one[k] = static_cast<u8>(k - bytes); // no byte where the index is negative
        two[k] = static_cast<u8>(k < 2 * bytes ? 128 : k - 2 * bytes);
        four[k] = static_cast<u8>(k < 4 * bytes ? 128 : k - 4 * bytes);
        again[k] = static_cast<u8>(16 - bytes + k % bytes);
        start[k] = reinterpret_cast<const u8*>(d)[k % bytes];
    }
    auto before = reinterpret_cast<Vec<T, L>>(start);
    size_t i = lag;
    for (; i + L <= n; i += L) {
        Vec<T, L> sums = loadn<L>(a + i);
        sums += shuffled<T>(sums, one);
        sums += shuffled<T>(sums, two);
        sums += shuffled<T>(sums, four);
        sums += before;
        storen<L>(d + i, sums);
        before = shuffled<T>(sums, again);
    }
    for (; i < n; ++i) d[i] = static_cast<T>(a[i] + d[i - lag]);
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
#endif
