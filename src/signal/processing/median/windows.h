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

constexpr int longestInLanes = 127, longestBlock = 32;
// The results of a block, a power of two: every mask leaves at least as many samples that its windows have in common.
inline int block_shift(int mask) { return mask >= 63 ? 5 : mask >= 31 ? 4 : mask >= 15 ? 3 : 2; }

// The samples of as many blocks as a vector has lanes, those at the same place of each block beside each other: sample
// k of the windows is a vector, with a lane for each block.
template <class K> struct Rows {
    static constexpr int L = lanes<K>;
    alignas(vectorBytes) K of[longestBlock * (L + (longestInLanes + longestBlock - 2) / longestBlock)];
    int mask, shift, block, blocks;
    explicit Rows(int m) : mask(m), shift(block_shift(m)), block(1 << shift), blocks(L + ((m + block - 2) >> shift)) {}

    const K* at(int k) const { return of + (k & (block - 1)) * blocks + (k >> shift); }
    Vec<K> operator[](int k) const { return load(at(k)); }

    // sample(i): the i-th of the first window and of those behind it.
    template <class Sample> [[gnu::always_inline]] inline void fill(Sample sample)
    {
        int left = L * block + mask - 1;
        K* column = of;
        for (int i = 0; left > 0; ++column, left -= block) {
            K* d = column;
            const int end = i + (left < block ? left : block);
#pragma GCC unroll 2
            for (; i < end; ++i, d += blocks) {
                *d = sample(i);
                asm volatile("" : "+r"(d)); // one by one: what compilers make vectors of is no faster here
            }
        }
    }
};

// low <= high: the middle one of all three.
template <class V> inline V between(V low, V x, V high) { return larger(low, smaller(x, high)); }

// In order (Batcher's merge exchange, for any n).
template <class V> [[gnu::noinline]] void sort_lanes(V* list, int n)
{
    int top = 1;
    while (2 * top < n) top *= 2;
    for (int p = top; p > 0; p /= 2)
        for (int q = top, r = 0, d = p;; d = q - p, q /= 2, r = p) {
            for (int i = r; i < n - d; i += 2 * p) {
                const int end = i + p < n - d ? i + p : n - d;
#pragma GCC unroll 2
                for (int k = i; k < end; ++k) {
                    const V x = list[k], y = list[k + d];
                    list[k] = smaller(x, y);
                    list[k + d] = larger(x, y);
                }
            }
            if (q == p) break;
        }
}

// n elements in order and two more, without the two lowest and the two highest: n - 2 elements. d may be the list. By
// address, since vectors of 32 bytes as arguments would leave the upper halves of registers in use.
template <class V, class K>
[[gnu::noinline]] void insert_two(const V* list, int n, const K* first, const K* second, V* d)
{
    const V x = load(first), y = load(second);
    V low = list[0], here = list[1], next = between(low, x, here);
#pragma GCC unroll 4
    for (int i = 0; i + 2 < n; ++i) {
        const V high = list[i + 2], after = between(here, x, high);
        d[i] = between(next, y, after);
        here = high;
        next = after;
    }
}

// The results from "first" on, as many as the list has elements: of two and four in registers, of more in memory, where
// behind the list there is room for those of its parts.
template <class V> inline void divide_two(V low, V high, V before, V behind, Lane<V>* out)
{
    storen<sizeof(V) / sizeof(Lane<V>)>(out, between(low, before, high));
    storen<sizeof(V) / sizeof(Lane<V>)>(out + sizeof(V) / sizeof(Lane<V>), between(low, behind, high));
}
template <class V, class K> [[gnu::noinline]] void divide(V* list, int n, const Rows<K>& x, int first, K* out)
{
    const int half = n / 2;
    for (int k = 0; k < 2; ++k) {
        const int from = k == 0 ? first + half - 1 : first + x.mask, start = first + k * half;
        V* const part = list + n;
        const V* source = list;
        for (int i = 0; i < half; i += 2, source = part)
            insert_two(source, n - i, x.at(from + i), x.at(from + i + 1), part);
        if (half == 2)
            divide_two(part[0], part[1], x[start], x[start + x.mask], out + start * lanes<K>);
        else
            divide(part, half, x, start, out);
    }
}

// The medians of all blocks.
template <class K> [[gnu::noinline]] void medians(const Rows<K>& x, K* out)
{
    Vec<K> room[longestBlock * 5 / 2], *list = room;
    const int from = x.block - 1, half = (x.mask + 1) / 2, odd = (half - x.block) & 1;
    int n = half + odd, k = from + n;
    for (int i = 0; i < n; ++i) list[i] = x[from + i];
    sort_lanes(list, n);
    if (odd) { // the lowest and the highest one drop out already
        ++list;
        n -= 2;
    }
    for (; n > x.block; n -= 2, k += 2) insert_two(list, n, x.at(k), x.at(k + 1), list);
    divide(list, n, x, 0, out);
}

// Samples as they are, or doubles as their keys.
template <class K> struct Compared {
    K operator()(K x) const { return x; }
};
template <> struct Compared<i64> {
    i64 operator()(f64 x) const { return key_of(x); }
};
template <class K, class T> [[gnu::noinline]] void fill_from_history(Rows<K>& rows, const Stream<T>& x, ptrdiff_t t)
{
    rows.fill([&x, t](int i) { return Compared<K>{}(x[t + i < -x.delay ? -x.delay : t + i]); });
}

// So many results from the t-th on, of which some may be of no use: those before the first.
template <class K, class T> [[gnu::noinline]] void some_windows(const Stream<T>& x, T* d, ptrdiff_t t, int mask)
{
    constexpr int L = lanes<K>;
    Rows<K> rows(mask);
    alignas(vectorBytes) K out[longestBlock * L];
    const ptrdiff_t begin = t - x.delay;
    if (begin >= 0)
        rows.fill([p = x.src + begin, compared = Compared<K>{}](int i) { return compared(p[i]); });
    else
        fill_from_history(rows, x, begin);
    medians(rows, out);
    for (int lane = t < 0 ? static_cast<int>(-t) >> rows.shift : 0; lane < L; ++lane) {
        const ptrdiff_t start = t + (ptrdiff_t{lane} << rows.shift);
        int j = start < 0 ? static_cast<int>(-start) : 0;
        const K* from = out + j * L + lane;
#pragma GCC unroll 2
        for (; j < rows.block; ++j, from += L) {
            if constexpr (std::is_same_v<K, T>)
                d[start + j] = *from;
            else
                set_element(d[start + j], *from);
            asm volatile("" : "+r"(from));
        }
    }
}

// Whether some of n samples from the t-th on, more than a vector has, are not ordered as numbers are.
[[gnu::noinline]] inline bool any_special(const Stream<f64>& x, ptrdiff_t t, ptrdiff_t n)
{
    for (; t < 0; ++t, --n)
        if (is_special(x[t < -x.delay ? -x.delay : t])) return true;
    if (n < lanes<f64>) {
        for (; n > 0; ++t, --n)
            if (is_special(x.src[t])) return true;
        return false;
    }
    constexpr ptrdiff_t L = lanes<f64>;
    auto found = special_bits(load(x.src + t + n - L));
    for (ptrdiff_t i = 0; i < n - L; i += L) found = either(found, special_bits(load(x.src + t + i)));
    return any_bit(bits(found));
}

template <class T> [[gnu::noinline]] void windows(const Stream<T>& x, T* d)
{
    const int mask = static_cast<int>(x.delay + 1);
    const ptrdiff_t each = ptrdiff_t{lanes<T>} << block_shift(mask);
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

// The masks that windows in lanes are faster for; many bytes are counted faster.
template <class T> inline bool fitsLanes(ptrdiff_t mask) { return mask <= (sizeof(T) == 1 ? 95 : longestInLanes); }

#else

template <class T> inline bool fitsLanes(ptrdiff_t) { return false; }
template <class T> inline void windows(const Stream<T>&, T*) {}

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
