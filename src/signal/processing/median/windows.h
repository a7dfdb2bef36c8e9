// Medians of several windows at a time, each in a lane of its own (Adams, Fast median filters using separable sorting
// networks, 2021, for one dimension). Results stand in blocks. The samples that all windows of a block have in common
// are sorted; of these only so many in the middle can still become a median as there are samples to come, so that each
// further sample is put in its place while the lowest and the highest one drop out. Then the block is divided: each
// half of it has more samples in common.
#pragma once
#include "signal/processing/median/keys.h"
#include "signal/processing/median/specials.h"
#include "signal/processing/median/stream.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

#if SIG5D_LEVEL > 0

constexpr int longestInLanes = 63, longestBlock = 16;
// The results of a block: every mask leaves at least as many samples that its windows have in common.
inline int block_of(int mask) { return mask >= 31 ? 16 : mask >= 15 ? 8 : 4; }

// The samples of as many blocks as a vector has lanes, those at the same place of each block beside each other: sample
// k of the windows is a vector, with a lane for each block.
template <class K> struct Rows {
    static constexpr int L = lanes<K>;
    alignas(vectorBytes) K of[longestBlock * (L + (longestInLanes + longestBlock - 2) / longestBlock)];
    int mask, block, shift, blocks;
    explicit Rows(int m)
        : mask(m), block(block_of(m)), shift(block == 16  ? 4
                                             : block == 8 ? 3
                                                          : 2),
          blocks(L + ((m + block - 2) >> shift))
    {
    }

    Vec<K> operator[](int k) const { return load(of + (k & (block - 1)) * blocks + (k >> shift)); }

    // sample(i): the i-th of the first window and of those behind it.
    template <class Sample> [[gnu::always_inline]] inline void fill(Sample sample)
    {
        int left = L * block + mask - 1;
        for (int b = 0, i = 0; left > 0; ++b, left -= block) {
            const int some = left < block ? left : block;
            K* d = of + b;
#pragma GCC unroll 4
            for (int j = 0; j < some; ++j, ++i, d += blocks) *d = sample(i);
        }
    }
};

// low <= high: the middle one of all three.
template <class V> inline V between(V low, V x, V high) { return larger(low, smaller(x, high)); }

// n elements in order and one more.
template <class V> inline void insert(V* list, int n, V x)
{
    V before = list[0];
    list[0] = smaller(before, x);
#pragma GCC unroll 4
    for (int i = 1; i < n; ++i) {
        const V here = list[i];
        list[i] = between(before, x, here);
        before = here;
    }
    list[n] = larger(before, x);
}
// The same without the lowest and the highest one: n - 1 elements. d may be the list.
template <class V> [[gnu::always_inline]] inline void insert_between(const V* list, int n, V x, V* d)
{
    V low = list[0];
#pragma GCC unroll 8
    for (int i = 0; i + 1 < n; ++i) {
        const V high = list[i + 1];
        d[i] = between(low, x, high);
        low = high;
    }
}

// The results from "first" on, as many as the list has elements: in registers, or from 16 on in memory.
template <int n, class V, class K>
[[gnu::always_inline]] inline void divide_inline(const V* list, const Rows<K>& x, int first, K* out)
{
    constexpr int half = n / 2;
#pragma GCC unroll 2
    for (int k = 0; k < 2; ++k) {
        const int from = k == 0 ? first + half - 1 : first + x.mask;
        V d[n];
        insert_between(list, n, x[from], d);
#pragma GCC unroll 4
        for (int i = 1; i < half; ++i) insert_between(d, n - i, x[from + i], d);
        if constexpr (half == 1)
            store(out + (first + k) * lanes<K>, d[0]);
        else
            divide_inline<half>(d, x, first + k * half, out);
    }
}
template <int n, class V, class K> [[gnu::noinline]] void divide_few(const V* list, const Rows<K>& x, int first, K* out)
{
    divide_inline<n>(list, x, first, out);
}
template <class V, class K> inline void divide_sixteen(const V* list, const Rows<K>& x, K* out)
{
    for (int k = 0; k < 2; ++k) {
        const int from = k == 0 ? 7 : x.mask;
        V d[16];
        insert_between(list, 16, x[from], d);
        for (int i = 1; i < 8; ++i) insert_between(d, 16 - i, x[from + i], d);
        divide_few<8>(d, x, 8 * k, out);
    }
}

// The medians of all blocks.
template <class K> [[gnu::noinline]] void medians(const Rows<K>& x, K* out)
{
    Vec<K> list[(longestInLanes + 1) / 2];
    const int most = (x.mask + 1) / 2;
    int k = x.block - 1, n = 1;
    list[0] = x[k];
    for (; n < most; ++n) insert(list, n, x[++k]);
    for (; n > x.block; --n) insert_between(list, n, x[++k], list);
    if (n == 16)
        divide_sixteen(list, x, out);
    else if (n == 8)
        divide_few<8>(list, x, 0, out);
    else
        divide_few<4>(list, x, 0, out);
}

// So many results from the t-th on, of which some may be of no use: those before the first.
template <class K, class T> [[gnu::noinline]] void some_windows(const Stream<T>& x, T* d, ptrdiff_t t, int mask)
{
    constexpr int L = lanes<K>;
    Rows<K> rows(mask);
    alignas(vectorBytes) K out[longestBlock * L];
    const ptrdiff_t begin = t - x.delay;
    const auto as_compared = [](T sample) {
        if constexpr (std::is_same_v<K, T>)
            return sample;
        else
            return key_of(sample);
    };
    if (begin >= 0)
        rows.fill([p = x.src + begin, as_compared](int i) { return as_compared(p[i]); });
    else
        rows.fill([&x, begin, as_compared](int i) { return as_compared(x.nearest(begin + i)); });
    medians(rows, out);
    int lane = t < 0 ? static_cast<int>(-t) >> rows.shift : 0;
    for (; lane < L; ++lane) {
        const ptrdiff_t start = t + lane * rows.block;
        for (int j = start < 0 ? static_cast<int>(-start) : 0; j < rows.block; ++j) {
            const K result = out[j * L + lane];
            if constexpr (std::is_same_v<K, T>)
                d[start + j] = result;
            else
                set_element(d[start + j], result);
        }
    }
}

// Whether some of n samples from the t-th on are not ordered as numbers are.
inline bool any_special(const Stream<f64>& x, ptrdiff_t t, ptrdiff_t n)
{
    if (t >= 0) {
        auto found = special_bits(load(x.src + t));
        for (ptrdiff_t i = lanes<f64>; i < n; i += lanes<f64>) {
            const ptrdiff_t from = i < n - lanes<f64> ? i : n - lanes<f64>;
            found = either(found, special_bits(load(x.src + t + from)));
        }
        return any_bit(bits(found));
    }
    for (ptrdiff_t i = 0; i < n; ++i)
        if (is_special(x.nearest(t + i))) return true;
    return false;
}

template <class T> void windows(const Stream<T>& x, T* d, int mask)
{
    const ptrdiff_t each = lanes<T> * block_of(mask);
    for (ptrdiff_t t = x.length; t > 0;) {
        t -= each;
        if constexpr (std::is_same_v<T, f64>)
            if (any_special(x, t - x.delay, each + x.delay)) {
                some_windows<i64>(x, d, t, mask);
                continue;
            }
        some_windows<T>(x, d, t, mask);
    }
}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
