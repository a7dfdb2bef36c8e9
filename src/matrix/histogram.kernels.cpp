// Histograms over given bins and over bins of equal width.
#include "frame/entry.h"
#include "kernel/simd.h"
#include <cstddef>
#include <cstdint>

namespace sig5d::SIG5D_VARIANT {
namespace {

// Walks over bin numbers: every(b, k, m, next) for blocks of them, b[i] that of element k + i, m a multiple of eight;
// one(b, k) for what is left over. next(i) is to be called for each eight elements from i on, between the others: it
// prepares those of the block after it.

constexpr size_t block = 64;
inline size_t block_of(size_t n) { return n < block ? n - n % 8 : block; }
struct Nothing {
    void operator()(size_t) const {}
};

struct Given {
    const u32* bins;

    template <class Every, class One> void walk(size_t n, [[maybe_unused]] Every every, One one) const
    {
        size_t k = 0;
        if constexpr (lanes < u32 >> 1)
            for (size_t m; (m = block_of(n - k)) > 0; k += m) every(bins + k, k, m, Nothing{});
        for (; k < n; ++k) one(bins[k], k);
    }
};

// (x - offset)*scale toward zero, between limits.
struct EqualWidth {
    const f64* x;
    f64 scale, offset;
    i32 least, greatest;

    EqualWidth(const f64* values, f64 perUnit, f64 first, i32 bins)
        : x(values), scale(perUnit), offset(first), least(bins < 1 ? INT32_MIN : 0),
          greatest(bins < 1 ? INT32_MAX : bins - 1)
    {
    }

    template <class Every, class One> void walk(size_t n, [[maybe_unused]] Every every, One one) const
    {
        size_t k = 0;
        if constexpr (lanes < f64 >> 1) k = walk_blocks(n, every);
        for (; k < n; ++k) one(limited(truncated(scaled(x[k]))), k);
    }

private:
    // As many eights as there are; returns how many elements those are.
    template <class Every> size_t walk_blocks(size_t n, Every every) const
    {
        size_t k = 0;
        // Bin numbers are stored a block before they are read: loads that follow a store closely hold up those of the
        // counters. And little by little: conversions and counting keep different parts of the processor busy.
        alignas(64) i32 numbers[2 * block];
        i32 *now = numbers, *later = numbers + block;
        size_t ready = block_of(n);
        for (size_t i = 0; i < ready; i += 8) eight(x + i, now + i);
        while (ready > 0) {
            const f64* const ahead = x + k + ready;
            const size_t coming = block_of(n - k - ready);
            if (coming == block) {
                every(now, k, block, [=, *this](size_t i) { eight(ahead + i, later + i); });
            } else {
                for (size_t i = 0; i < coming; i += 8) eight(ahead + i, later + i);
                every(now, k, ready, Nothing{});
            }
            k += ready;
            ready = coming;
            i32* const read = now;
            now = later;
            later = read;
        }
        return k;
    }

    template <class V> V scaled(V v) const { return (v - offset) * scale; }
    template <class V> V limited(V b) const
    {
        b = b < least ? least : b;
        return b > greatest ? greatest : b;
    }
    template <class T> void eight(const T* p, i32* d) const
    {
        constexpr int n = integerBytes >= 32 ? 8 : 4, L = lanes<T> < n ? lanes<T> : n;
        for (size_t i = 0; i < 8; i += n) {
            if constexpr (L == n)
                storen<n>(d + i, limited(truncated(scaled(loadn<n>(p + i)))));
            else
                storen<n>(d + i, limited(truncated(scaled(loadn<L>(p + i)), scaled(loadn<L>(p + i + L)))));
        }
    }
};

template <class Bin> inline void count_eight(const Bin* b, u32* counts)
{
#pragma GCC unroll 8
    for (size_t i = 0; i < 8; ++i) {
        u32* counter = counts + b[i];
        asm("" : "+r"(counter)); // an address by itself costs two steps less than one with an index
        ++*counter;
    }
}

// For each of four bins: how many up to it are the same, itself included.
template <class V> inline Vec<u32, 4> ranks(V b)
{
    const auto equal = [b](V other) { return as<Vec<u32, 4>>(b == other); };
    // Each lane with those one, two and three before it; where there is none, with itself.
    const auto all = equal(__builtin_shufflevector(b, b, 0, 0, 1, 2)) +
                     equal(__builtin_shufflevector(b, b, 0, 1, 0, 1)) +
                     equal(__builtin_shufflevector(b, b, 0, 1, 2, 0));
    return Vec<u32, 4>{-2u, -1u, 0, 1} - all;
}

// Four counters are read before any is stored: the last one of a bin has counted all of it.
template <class Bin> inline void count_four(const Bin* b, u32* counts)
{
    const Vec<u32, 4> added = ranks(loadn<4>(b));
    const u32 c0 = counts[b[0]] + 1, c1 = counts[b[1]] + added[1];
    const u32 c2 = counts[b[2]] + added[2], c3 = counts[b[3]] + added[3];
    counts[b[0]] = c0;
    counts[b[1]] = c1;
    counts[b[2]] = c2;
    counts[b[3]] = c3;
}
template <class Bin> inline void count_mostly_equal(const Bin* b, u32* counts)
{
    const auto bins = loadn<4>(b), first = __builtin_shufflevector(bins, bins, 0, 0, 0, 0);
    if (byte_signs(bits((first == bins) & (first == loadn<4>(b + 4)))) == 0xFFFF) {
        counts[b[0]] += 8;
    } else {
        count_four(b, counts);
        count_four(b + 4, counts);
    }
}

// Whether more than one in six counters returns soon after it was stored, as far as the first 34 bins tell: a load that
// waits for such a store takes seven times as long.
template <class Bin> inline bool often_equal(const Bin* b)
{
    Vec<i32, 4> sum{};
    for (size_t i = 0; i < 32; i += 4) {
        const auto bins = loadn<4>(b + i);
        sum -= bins == loadn<4>(b + i + 1);
        sum -= bins == loadn<4>(b + i + 2);
    }
    return sum[0] + sum[1] + (sum[2] + sum[3]) > 64 / 6;
}

// Counters are without a sign, so that a full one wraps.
template <class Bins> inline void count_bins(Bins bins, size_t n, u32* counts)
{
    bool equal = false;
    const auto every = [&](const auto* b, size_t k, size_t m, auto next) {
        if (k % (4 * block) == 0 && m == block) equal = often_equal(b);
        if (equal) {
            for (size_t i = 0; i < m; i += 8) {
                next(i);
                count_mostly_equal(b + i, counts);
            }
        } else {
            for (size_t i = 0; i < m; i += 8) {
                next(i);
                count_eight(b + i, counts);
            }
        }
    };
    bins.walk(n, every, [=](auto bin, size_t) { ++counts[bin]; });
}

void histo_count(const u32* bins, i32* counts, u32 n) { count_bins(Given{bins}, n, reinterpret_cast<u32*>(counts)); }

void histogram_count(const f64* x, f64 scale, f64 offset, i32* counts, i32 bins, u32 n)
{
    count_bins(EqualWidth(x, scale, offset, bins), n, reinterpret_cast<u32*>(counts));
}

void histogram_store(const f64* x, f64 scale, f64 offset, f64* d, i32 bins, u32 n)
{
    const auto every = [=](const i32* b, size_t k, size_t m, auto next) {
        for (size_t i = 0; i < m; i += 8) {
            next(i);
#pragma GCC unroll 8
            for (size_t j = 0; j < 8; ++j) d[b[i + j]] = x[k + i + j];
        }
    };
    EqualWidth(x, scale, offset, bins).walk(n, every, [=](i32 bin, size_t k) { d[bin] = x[k]; });
}

void add_single(const u32* bins, const f64* values, f64* sums, size_t begin, size_t end)
{
    for (size_t k = begin; k < end; ++k) sums[bins[k]] += values[k];
}

// Single values before "begin" and from "end" on, pairs between.
void add_pairs(const u32* bins, const f64* values, f64* sums, size_t begin, size_t end, size_t n)
{
    add_single(bins, values, sums, 0, begin);
    const u32* b = bins + begin;
    const f64 *v = values + begin, *const last = values + end;
#pragma GCC unroll 4
    for (; v < last; v += 2, b += 2) {
        f64 &first = sums[b[0]], &second = sums[b[1]];
        const f64 x = first + v[0], y = second + v[1];
        first = x;
        second = y;
    }
    add_single(bins, values, sums, end, n);
}

bool aligned(const f64* p, uintptr_t bytes) { return reinterpret_cast<uintptr_t>(p) % bytes == 0; }

void histo_sum(const u32* bins, const f64* values, f64* sums, u32 n)
{
    const size_t begin = aligned(values, 16) ? 0 : 1;
    if (n < begin + 8 || !aligned(values, 8)) return add_single(bins, values, sums, 0, n);
    add_pairs(bins, values, sums, begin, begin + (n - begin) / 8 * 8, n);
}

void histo_sum_indexed(const u32* bins, int binsIdx, const f64* values, int valuesIdx, f64* sums, int sumsIdx, u32 n)
{
    bins += binsIdx;
    values += valuesIdx;
    sums += sumsIdx;
    const size_t begin = n < 34 || aligned(values, 16) ? 0 : 1;
    if (n < 2 || (n >= 34 && !aligned(values, 8))) return add_single(bins, values, sums, 0, n);
    add_pairs(bins, values, sums, begin, n - (n - begin) % 2, n);
}

} // namespace
#include "entries/matrix/histogram.inc"
} // namespace sig5d::SIG5D_VARIANT
