// Medians of bytes by counting (Huang, Yang and Tang, 1979): how many of each value there are, and of each sixteen
// values, so that the way from one median to the next is short whatever they are.
#pragma once
#include "signal/processing/median/stream.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

class Histogram
{
public:
    explicit Histogram(u32 rank) : rank_(rank) {}

    void add(u32 value)
    {
        ++counts_[value];
        ++groups_[value / 16];
        below_ += value < middle_;
    }
    void remove(u32 value)
    {
        --counts_[value];
        --groups_[value / 16];
        below_ -= value < middle_;
    }
    u8 middle()
    {
        while (below_ > rank_) {
            if (middle_ % 16 == 0 && below_ - groups_[middle_ / 16 - 1] > rank_) {
                middle_ -= 16;
                below_ -= groups_[middle_ / 16];
            } else {
                below_ -= counts_[--middle_];
            }
        }
        while (below_ + counts_[middle_] <= rank_) {
            if (middle_ % 16 == 0 && below_ + groups_[middle_ / 16] <= rank_) {
                below_ += groups_[middle_ / 16];
                middle_ += 16;
            } else {
                below_ += counts_[middle_++];
            }
        }
        return static_cast<u8>(middle_);
    }

private:
    u32 rank_, middle_ = 0, below_ = 0; // as many values are below the middle one
    u32 counts_[256] = {}, groups_[16] = {};
};

[[gnu::noinline]] void counted(const Stream<u8>& x, u8* d)
{
    const ptrdiff_t mask = x.delay + 1;
    Histogram window(static_cast<u32>(mask / 2));
    for (ptrdiff_t i = 1; i <= mask; ++i) window.add(x[x.length - i]);
    for (ptrdiff_t t = x.length - 1;; --t) {
        const u32 old = x.src[t];
        d[t] = window.middle();
        if (t == 0) return;
        window.remove(old);
        window.add(x[t - mask]);
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
