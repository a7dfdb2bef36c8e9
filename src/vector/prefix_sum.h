// Running sums of unsigned integers in vectors: d[i] = a[i] + d[i-lag] for lag <= i < n, where d[0] to d[lag-1] hold
// their values. The destination must not begin inside the source.
#pragma once
#include "kernel/simd.h"
#if SIG5D_LEVEL > 0

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

// The elements so many bytes before those of v, where "before" are the ones before v.
template <int bytes, class V> inline V moved(V before, V v)
{
    if constexpr (bytes == 8)
        return as<V>(pairs_shifted_in(as<Vec<f64>>(before), as<Vec<f64>>(v)));
    else
        return as<V>(shifted_in<bytes>(bits(before), bits(v)));
}

// Makes, of the sums of the last elements, so many bytes of them, those of a whole vector's: each time of twice as
// many.
template <class T, int bytes> struct Windows {
    Vec<T> before{};
    Windows<T, 2 * bytes> wider;

    Vec<T> operator()(Vec<T> v)
    {
        const Vec<T> sums = v + moved<bytes>(before, v);
        before = v;
        return wider(sums);
    }
};
template <class T> struct Windows<T, vectorBytes> {
    Vec<T> operator()(Vec<T> v) { return v; }
};

// Lag 1. Each sum is that of a whole vector before it and the elements since: one addition from vector to vector. The
// elements just before a vector are loaded, the other ones shuffled; always before the sums are stored, in place over
// them.
template <class T> void prefix_sum(size_t n, const T* a, T* d)
{
    constexpr size_t L = lanes<T>;
    constexpr bool four = sizeof(T) == 1;
    const auto last_ones = [](const T* p) {
        const Vec<T> two = load(p) + load(p - 1);
        if constexpr (four)
            return two + (load(p - 2) + load(p - 3));
        else
            return two;
    };
    u32 sum = 0;
    if (n >= L) {
        const Vec<T> none{};
        Vec<T> last = load(a);
        last += moved<sizeof(T)>(none, last);
        if constexpr (four) last += moved<2>(none, last);
        Windows<T, (four ? 4 : 2) * sizeof(T)> windows;
        Vec<T> sums{};
        const auto step = [&] {
            const Vec<T> next = last_ones(a += L);
            sums += windows(last);
            store(d, sums);
            d += L;
            last = next;
        };
        for (; n >= 3 * L; n -= 2 * L) {
            _mm_prefetch(a + 512 / sizeof(T), _MM_HINT_T0); // of every line: loads across two wait longer for both
            step();
            step();
        }
        for (; n >= 2 * L; n -= L) step();
        sums += windows(last);
        store(d, sums);
        n -= L;
        a += L;
        d += L;
        sum = sums[L - 1];
    }
    for (size_t i = 0; i < n; ++i) d[i] = static_cast<T>(sum += a[i]);
}

using Bytes = Vec<u8, 16>;
template <class T> inline Vec<T, 16 / sizeof(T)> shuffled(Vec<T, 16 / sizeof(T)> v, Bytes order)
{
    return as<Vec<T, 16 / sizeof(T)>>(bytes_at(bits(v), bits(order)));
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

} // namespace
} // namespace sig5d::SIG5D_VARIANT
#endif
