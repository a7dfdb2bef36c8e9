// Histograms over given bins and over bins of equal width.
#include "frame/entry.h"
#include "kernel/vec.h"
#include <cstddef>
#include <cstdint>
#include <immintrin.h>

namespace sig5d::SIG5D_VARIANT {
namespace {

// Bin numbers, in groups of eight: eight(k) are those from k on, which prepare(k) has made ready some time before.

constexpr size_t ahead = 128;

struct Given {
    const u32* bins;

    u32 at(size_t k) const { return bins[k]; }
    void prepare(size_t) const {}
    const u32* eight(size_t k) const { return bins + k; }
};

// (x - offset)*scale toward zero, between limits. Groups stand in a ring from which they are read when their stores are
// long done: loads that follow a store closely hold up those of the counters.
struct EqualWidth {
    const f64* x;
    size_t n;
    f64 scale, offset;
    i32 least, greatest;
    i32 ring[2 * ahead];

    EqualWidth(const f64* values, size_t count, f64 perUnit, f64 first, i32 bins)
        : x(values), n(count), scale(perUnit), offset(first), least(bins < 1 ? INT32_MIN : 0),
          greatest(bins < 1 ? INT32_MAX : bins - 1)
    {
        for (size_t k = 0; k < ahead && k < n; k += 8) prepare(k);
    }

    i32 at(size_t k) const { return limited(_mm_cvttsd_si32(_mm_set_sd((x[k] - offset) * scale))); }
    const i32* eight(size_t k) const { return ring + k % (2 * ahead); }

    void prepare(size_t k)
    {
        if (k >= n || n - k < 8) return;
        i32* const d = ring + k % (2 * ahead);
#if SIG5D_LEVEL == 0
        for (size_t i = 0; i < 8; ++i) d[i] = at(k + i);
#elif SIG5D_LEVEL >= 5
        storen<8>(d, limited(reinterpret_cast<Vec<i32, 8>>(_mm256_set_m128i(four(k + 4), four(k)))));
#else
        for (size_t i = 0; i < 8; i += 4) storen<4>(d + i, limited(reinterpret_cast<Vec<i32, 4>>(four(k + i))));
#endif
    }

private:
    template <class V> V limited(V b) const
    {
        b = b < least ? least : b;
        return b > greatest ? greatest : b;
    }
#if SIG5D_LEVEL > 0
    __m128i four(size_t k) const
    {
        const auto product = [&](auto v) { return (v - offset) * scale; };
#if SIG5D_LEVEL >= 4
        return _mm256_cvttpd_epi32(reinterpret_cast<__m256d>(product(loadn<4>(x + k))));
#else
        const __m128i b0 = _mm_cvttpd_epi32(reinterpret_cast<__m128d>(product(loadn<2>(x + k))));
        const __m128i b1 = _mm_cvttpd_epi32(reinterpret_cast<__m128d>(product(loadn<2>(x + k + 2))));
        return _mm_unpacklo_epi64(b0, b1);
#endif
    }
#endif
};

#if SIG5D_LEVEL > 0

// For each of four bins: how many up to it are the same, itself included.
template <class Bin> inline Vec<i32, 4> ranks(const Bin* four)
{
    const auto b = reinterpret_cast<__m128i>(loadn<4>(four));
    const auto same = [=](__m128i other) { return reinterpret_cast<Vec<i32, 4>>(_mm_cmpeq_epi32(b, other)); };
    // Each lane with those one, two and three before it; where there is none, with itself.
    const auto all = same(_mm_shuffle_epi32(b, _MM_SHUFFLE(2, 1, 0, 0))) +
                     same(_mm_shuffle_epi32(b, _MM_SHUFFLE(1, 0, 1, 0))) +
                     same(_mm_shuffle_epi32(b, _MM_SHUFFLE(0, 2, 1, 0)));
    return Vec<i32, 4>{-2, -1, 0, 1} - all;
}

// Four counters are read before any is stored: the last one of a bin has counted all of it.
template <class Bin> inline void count_four(const Bin* b, i32* counts)
{
    const auto added = ranks(b);
    const i32 c0 = counts[b[0]] + 1, c1 = counts[b[1]] + added[1];
    const i32 c2 = counts[b[2]] + added[2], c3 = counts[b[3]] + added[3];
    counts[b[0]] = c0;
    counts[b[1]] = c1;
    counts[b[2]] = c2;
    counts[b[3]] = c3;
}

// Whether counters return soon after they were stored, as far as these 16 bins tell: a load that waits for such a store
// takes seven times as long.
template <class Bin> inline bool repetitive(const Bin* a, const Bin* b)
{
    const auto sum = ranks(a) + ranks(a + 4) + ranks(b) + ranks(b + 4);
    return sum[0] + sum[1] + sum[2] + sum[3] > 16 + 3;
}

#endif

template <class Bins> inline void count_bins(Bins bins, size_t n, i32* counts)
{
    size_t k = 0;
#if SIG5D_LEVEL > 0
    constexpr size_t block = 256; // has one way of counting
    while (n - k >= 16) {
        const size_t end = n - k < block ? k + (n - k) / 8 * 8 : k + block;
        if (repetitive(bins.eight(k), bins.eight(k + 8))) {
            for (; k < end; k += 8) {
                const auto* const b = bins.eight(k);
                count_four(b, counts);
                count_four(b + 4, counts);
                bins.prepare(k + ahead);
            }
        } else {
            for (; k < end; k += 8) {
                const auto* const b = bins.eight(k);
#pragma GCC unroll 8
                for (size_t i = 0; i < 8; ++i) ++counts[b[i]];
                bins.prepare(k + ahead);
            }
        }
    }
#endif
    for (; k < n; ++k) ++counts[bins.at(k)];
}

void histo_count(const u32* bins, i32* counts, u32 n) { count_bins(Given{bins}, n, counts); }

void histogram_count(const f64* x, f64 scale, f64 offset, i32* counts, i32 bins, u32 n)
{
    count_bins(EqualWidth(x, n, scale, offset, bins), n, counts);
}

void histogram_store(const f64* x, f64 scale, f64 offset, f64* d, i32 bins, u32 n)
{
    EqualWidth bin(x, n, scale, offset, bins);
    size_t k = 0;
    for (; n - k >= 8; k += 8) {
        const i32* const b = bin.eight(k);
#pragma GCC unroll 8
        for (size_t i = 0; i < 8; ++i) d[b[i]] = x[k + i];
        bin.prepare(k + ahead);
    }
    for (; k < n; ++k) d[bin.at(k)] = x[k];
}

void add_single(const u32* bins, const f64* values, f64* sums, size_t begin, size_t end)
{
    for (size_t k = begin; k < end; ++k) sums[bins[k]] += values[k];
}

// Single values before "begin" and from "end" on, pairs between.
void add_pairs(const u32* bins, const f64* values, f64* sums, size_t begin, size_t end, size_t n)
{
    add_single(bins, values, sums, 0, begin);
    for (size_t k = begin; k < end; k += 2) {
        f64 &first = sums[bins[k]], &second = sums[bins[k + 1]];
        const f64 a = first + values[k], b = second + values[k + 1];
        first = a;
        second = b;
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
