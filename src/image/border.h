// Rows of an image with what is beyond its edges.
#pragma once
#include "image/layout.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// What stands for pixels outside a region, and the sides on which they lie in memory.
enum class Border { replicated = 1, mirrored = 3, constant = 6 };
constexpr int inMemoryAbove = 0x10, inMemoryBelow = 0x20, inMemoryLeft = 0x40, inMemoryRight = 0x80;
constexpr int everySide = inMemoryAbove | inMemoryBelow | inMemoryLeft | inMemoryRight;

constexpr int nowhere = -0x7fffffff - 1;

// One dimension of a region: so many pixels, and so many before and behind them that the kernel reaches.
struct Extent {
    int n, before, behind;
    bool beforeInMemory, behindInMemory;

    // The place of what stands for pixel i; nowhere: the constant.
    [[gnu::noinline]] int source(int i, Border type) const
    {
        if ((i >= 0 || beforeInMemory) && (i < n || behindInMemory)) return i;
        if (type == Border::constant) return nowhere;
        if (n == 1) return 0;
        if (type == Border::replicated) return i < 0 ? 0 : n - 1;
        const unsigned period = 2 * (static_cast<unsigned>(n) - 1);
        const int k = static_cast<int>(static_cast<unsigned>(i < 0 ? -i : i) % period);
        return k < n ? k : static_cast<int>(period) - k;
    }
};

struct BorderedImage {
    const f32* src;
    ptrdiff_t srcStep;
    Extent x, y;
    Border type;
    f32 value;

    const f32* row(int place) const { return at<const f32>(src, place * srcStep); }

    // Row i with its borders, as T: x.before pixels, those of the region, x.behind pixels.
    template <class T> [[gnu::noinline]] void copy_row(int i, T* d) const
    {
        const int place = y.source(i, type), end = x.n + x.behind;
        d += x.before;
        if (place == nowhere) {
            for (int j = -x.before; j < end; ++j) d[j] = static_cast<T>(value);
            return;
        }
        const f32* const from = row(place);
        for (int j = -x.before; j < 0; ++j) d[j] = pixel<T>(from, j);
        for (int j = x.n; j < end; ++j) d[j] = pixel<T>(from, j);
#pragma GCC ivdep
        for (ptrdiff_t j = 0; j < x.n; ++j) d[j] = static_cast<T>(from[j]);
    }

private:
    template <class T> T pixel(const f32* from, int j) const
    {
        const int k = x.source(j, type);
        return static_cast<T>(k == nowhere ? value : from[k]);
    }
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
