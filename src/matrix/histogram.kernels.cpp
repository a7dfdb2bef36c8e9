// Histograms over given bins and over bins of equal width.
#include "frame/entry.h"
#include "kernel/simd.h"
#include <cstddef>
#include <cstdint>
#include <immintrin.h>

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
#if SIG5D_LEVEL > 0
        for (size_t m; (m = block_of(n - k)) > 0; k += m) every(bins + k, k, m, Nothing{});
#endif
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
#if SIG5D_LEVEL > 0
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
#endif
        for (; k < n; ++k) one(limited(_mm_cvttsd_si32(_mm_set_sd((x[k] - offset) * scale))), k);
    }

private:
    template <class V> V limited(V b) const
    {
        b = b < least ? least : b;
        return b > greatest ? greatest : b;
    }
#if SIG5D_LEVEL > 0
    void eight(const f64* p, i32* d) const
    {
#if SIG5D_LEVEL >= 5
        storen<8>(d, limited(reinterpret_cast<Vec<i32, 8>>(_mm256_set_m128i(four(p + 4), four(p)))));
#else
        for (size_t i = 0; i < 8; i += 4) storen<4>(d + i, limited(reinterpret_cast<Vec<i32, 4>>(four(p + i))));
#endif
    }
    __m128i four(const f64* p) const
    {
        const auto product = [&](auto v) { return (v - offset) * scale; };
#if SIG5D_LEVEL >= 4
        return _mm256_cvttpd_epi32(reinterpret_cast<__m256d>(product(loadn<4>(p))));
#else
        const __m128i b0 = _mm_cvttpd_epi32(reinterpret_cast<__m128d>(product(loadn<2>(p))));
        const __m128i b1 = _mm_cvttpd_epi32(reinterpret_cast<__m128d>(product(loadn<2>(p + 2))));
        return _mm_unpacklo_epi64(b0, b1);
#endif
    }
#endif
};

#if SIG5D_LEVEL > 0

inline __m128i same(__m128i a, __m128i b) { return _mm_cmpeq_epi32(a, b); }
template <class Bin> inline __m128i four_of(const Bin* b) { return reinterpret_cast<__m128i>(loadn<4>(b)); }

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
inline Vec<u32, 4> ranks(__m128i b)
{
    const auto equal = [=](__m128i other) { return reinterpret_cast<Vec<u32, 4>>(same(b, other)); };
    // Each lane with those one, two and three before it; where there is none, with itself.
    const auto all = equal(_mm_shuffle_epi32(b, _MM_SHUFFLE(2, 1, 0, 0))) +
                     equal(_mm_shuffle_epi32(b, _MM_SHUFFLE(1, 0, 1, 0))) +
                     equal(_mm_shuffle_epi32(b, _MM_SHUFFLE(0, 2, 1, 0)));
    return Vec<u32, 4>{-2u, -1u, 0, 1} - all;
}

// Four counters are read before any is stored: the last one of a bin has counted all of it.
template <class Bin> inline void count_four(const Bin* b, u32* counts)
{
    const auto added = ranks(four_of(b));
    const u32 c0 = counts[b[0]] + 1, c1 = counts[b[1]] + added[1];
    const u32 c2 = counts[b[2]] + added[2], c3 = counts[b[3]] + added[3];
    counts[b[0]] = c0;
    counts[b[1]] = c1;
    counts[b[2]] = c2;
    counts[b[3]] = c3;
}
template <class Bin> inline void count_repeated(const Bin* b, u32* counts)
{
    const __m128i first = _mm_shuffle_epi32(four_of(b), 0);
    if (_mm_movemask_epi8(_mm_and_si128(same(first, four_of(b)), same(first, four_of(b + 4)))) == 0xFFFF) {
        counts[b[0]] += 8;
    } else {
        count_four(b, counts);
        count_four(b + 4, counts);
    }
}

// Whether more than one in six counters returns soon after it was stored, as far as the first 34 bins tell: a load that
// waits for such a store takes seven times as long.
template <class Bin> inline bool repetitive(const Bin* b)
{
    Vec<i32, 4> sum{};
    for (size_t i = 0; i < 32; i += 4) {
        const __m128i bins = four_of(b + i);
        sum -= reinterpret_cast<Vec<i32, 4>>(same(bins, four_of(b + i + 1)));
        sum -= reinterpret_cast<Vec<i32, 4>>(same(bins, four_of(b + i + 2)));
    }
    return sum[0] + sum[1] + (sum[2] + sum[3]) > 64 / 6;
}

#endif

// Counters are without a sign, so that a full one wraps.
template <class Bins> inline void count_bins(Bins bins, size_t n, u32* counts)
{
    [[maybe_unused]] bool often = false;
    const auto every = [&](const auto* b, size_t k, size_t m, auto next) {
#if SIG5D_LEVEL > 0
        if (k % (4 * block) == 0 && m == block) often = repetitive(b);
        if (often) {
            for (size_t i = 0; i < m; i += 8) {
                next(i);
                count_repeated(b + i, counts);
            }
        } else {
            for (size_t i = 0; i < m; i += 8) {
                next(i);
                count_eight(b + i, counts);
            }
        }
#endif
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
