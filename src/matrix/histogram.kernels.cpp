// Histograms over given bins and over bins of equal width.
#include "frame/entry.h"
#include <cstddef>
#include <cstdint>
#include <emmintrin.h>

namespace sig5d::SIG5D_VARIANT {
namespace {

void histo_count(const u32* bins, i32* counts, u32 n)
{
    for (size_t k = 0; k < n; ++k) ++counts[bins[k]];
}

struct EqualWidth {
    f64 scale, offset;
    i32 bins;
    i32 operator()(f64 x) const
    {
        const i32 b = _mm_cvttsd_si32(_mm_set_sd((x - offset) * scale));
        return bins < 1 ? b : b < 0 ? 0 : b >= bins ? bins - 1 : b;
    }
};

void histogram_count(const f64* x, f64 scale, f64 offset, i32* counts, i32 bins, u32 n)
{
    const EqualWidth bin{scale, offset, bins};
    for (size_t k = 0; k < n; ++k) ++counts[bin(x[k])];
}

void histogram_store(const f64* x, f64 scale, f64 offset, f64* d, i32 bins, u32 n)
{
    const EqualWidth bin{scale, offset, bins};
    for (size_t k = 0; k < n; ++k) d[bin(x[k])] = x[k];
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
