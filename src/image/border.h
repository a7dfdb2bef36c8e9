// Rows of an image with what is beyond its edges.
#pragma once
#include "image/layout.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// What stands for pixels outside a region, and the sides on which they lie in memory.
enum class Border { replicated = 1, mirrored = 3, constant = 6 };
constexpr int inMemoryAbove = 0x10, inMemoryBelow = 0x20, inMemoryLeft = 0x40, inMemoryRight = 0x80;
constexpr int everySide = inMemoryAbove | inMemoryBelow | inMemoryLeft | inMemoryRight;

// One dimension of a region: so many pixels, and so many before and behind them that the kernel reaches.
struct Extent {
    int n, before, behind;
    bool beforeInMemory, behindInMemory;

    bool inMemory(int i) const { return (i >= 0 || beforeInMemory) && (i < n || behindInMemory); }
    // The pixel that stands for one that is not in memory; -1: the constant.
    int substitute(int i, Border type) const
    {
        if (type == Border::constant) return -1;
        if (n == 1) return 0;
        if (type == Border::replicated) return i < 0 ? 0 : n - 1;
        const unsigned period = 2 * (static_cast<unsigned>(n) - 1);
        const int k = static_cast<int>(static_cast<unsigned>(i < 0 ? -i : i) % period);
        return k < n ? k : static_cast<int>(period) - k;
    }
    int source(int i, Border type) const { return inMemory(i) ? i : substitute(i, type); }
};

template <class T> inline void copy_pixels(const f32* a, T* d, ptrdiff_t n)
{
#pragma GCC ivdep
    for (ptrdiff_t i = 0; i < n; ++i) d[i] = static_cast<T>(a[i]);
}

struct BorderedImage {
    const f32* src;
    ptrdiff_t srcStep;
    Extent x, y;
    Border type;
    f32 value;

    // Row i with its borders: x.before pixels, those of the region, x.behind pixels.
    template <class T> [[gnu::noinline]] void copy_row(int i, T* d) const
    {
        T* const origin = d + x.before;
        const int k = y.source(i, type);
        if (k == -1 && !y.inMemory(i)) return put_substitutes<T>(nullptr, origin, -x.before, x.n + x.behind);
        const f32* const from = at<const f32>(src, k * srcStep);
        const int first = x.beforeInMemory ? -x.before : 0, last = x.n + (x.behindInMemory ? x.behind : 0);
        put_substitutes(from, origin, -x.before, first);
        copy_pixels(from + first, origin + first, last - first);
        put_substitutes(from, origin, last, x.n + x.behind);
    }

private:
    // In columns `from` to `to`; without a row, the constant.
    template <class T> [[gnu::noinline]] void put_substitutes(const f32* row, T* d, int from, int to) const
    {
        for (int j = from; j < to; ++j) {
            const int k = row ? x.substitute(j, type) : -1;
            d[j] = static_cast<T>(k < 0 ? value : row[k]);
            asm volatile("" ::: "memory"); // a few pixels: vectors of them would be much code for nothing
        }
    }
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
