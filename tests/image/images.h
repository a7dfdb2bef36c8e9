// Images in memory that ends at an inaccessible page on either side, of any step.
#pragma once
#include "oracle/image.h"
#include "support/arena.h"
#include "support/library.h"
#include "support/same_bits.h"
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>

namespace images {

// So many pixels around a region.
struct Margins {
    int above = 0, below = 0, left = 0, right = 0;
};

// A region and what lies around it in memory, and nothing beyond: its first or its last byte lies at a guarded page.
// What is between rows is never touched. Pixel (0, 0) is the region's first.
template <class T> class Image
{
public:
    Image(int width, int height, const Margins& around, int gap, bool upsideDown, bool atEnd)
        : width_(width), height_(height), around_(around), rowBytes_((width + around.left + around.right) * bytesOf),
          step_((rowBytes_ + gap) * (upsideDown ? -1 : 1)), rows_(height + around.above + around.below),
          bytes_(static_cast<size_t>(rows_ - 1) * std::abs(step_) + rowBytes_), region_(shelf(bytes_)),
          low_(region_.readWrite() + (atEnd ? region_.size() - bytes_ : 0)),
          origin_(low_ + (upsideDown ? rows_ - 1 - around.above : around.above) * std::abs(step_) +
                  around.left * bytesOf)
    {
        std::memset(low_, filler, bytes_);
    }
    T* data() const { return reinterpret_cast<T*>(origin_); }
    int step() const { return step_; }
    T operator()(int x, int y) const
    {
        T value;
        std::memcpy(&value, at(x, y), sizeof value);
        return value;
    }
    void set(int x, int y, T value) { std::memcpy(at(x, y), &value, sizeof value); }
    template <class Value> void fill(Value value)
    {
        for (int y = -around_.above; y < height_ + around_.below; ++y)
            for (int x = -around_.left; x < width_ + around_.right; ++x) set(x, y, value(x, y));
    }
    // Every byte between rows is as it was.
    bool gapsAreIntact() const
    {
        for (size_t k = 0; k < bytes_; ++k)
            if (k % std::abs(step_) >= static_cast<size_t>(rowBytes_) && low_[k] != filler) return false;
        return true;
    }

private:
    static constexpr int bytesOf = sizeof(T);
    static constexpr uint8_t filler = 0xC3;
    uint8_t* at(int x, int y) const { return origin_ + static_cast<ptrdiff_t>(y) * step_ + x * bytesOf; }
    // Memory is mapped once and lent out in turn: two images of a test are never the same one's.
    static support::GuardedRegion& shelf(size_t bytes)
    {
        static support::GuardedRegion regions[] = {support::GuardedRegion(1 << 20), support::GuardedRegion(1 << 20)};
        static int next = 0;
        if (bytes > regions[0].size()) std::abort();
        return regions[next ^= 1];
    }

    int width_, height_;
    Margins around_;
    int rowBytes_, step_, rows_;
    size_t bytes_;
    support::GuardedRegion& region_;
    uint8_t *low_, *origin_;
};

// Memory of exactly so many bytes before an inaccessible page.
class Block
{
public:
    explicit Block(int bytes) : region_(static_cast<size_t>(bytes)), bytes_(bytes) {}
    Ipp8u* data() const { return region_.readWrite() + region_.size() - bytes_; }
    const Ipp8u* readOnly() const { return region_.readOnly() + region_.size() - bytes_; }
    int size() const { return bytes_; }

private:
    support::GuardedRegion region_;
    int bytes_;
};

template <class T> T number(std::mt19937& g) { return static_cast<T>(std::uniform_real_distribution<>(-1, 1)(g)); }

template <class T> oracle::Kernel<T> someKernel(std::mt19937& g, int width, int height)
{
    oracle::Kernel<T> kernel{width, height, std::vector<T>(static_cast<size_t>(width) * height)};
    for (T& x : kernel.values) x = number<T>(g);
    return kernel;
}

inline bool coin(std::mt19937& g) { return g() % 2; }
inline int below(std::mt19937& g, int n) { return static_cast<int>(g() % static_cast<unsigned>(n)); }

template <class Test> void inEveryVariant(Test test)
{
    for (const support::Variant& v : support::supported()) {
        support::force(v);
        SCOPED_TRACE(std::string("variant ") + v.code);
        test();
        if (testing::Test::HasFailure()) return;
    }
}

} // namespace images
