// The median of a long window: its keys in order (as integers of 64 bits,
// one code for all types), in blocks of equal length (Goodrich and Kloss, Tiered vectors, 1999).
// Each block is a ring: when one sample goes and another comes, those between them move by one place, in the blocks of
// both one after the other, in those between by one element that goes round. So a step costs the root of the mask.
#pragma once
#include "kernel/simd/compress.h"
#include "signal/processing/median/keys.h"
#include "signal/processing/median/stream.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// In place, without recursion.
[[gnu::noinline]] inline void sort(i64* a, size_t n)
{
    const auto sift = [a](i64 x, size_t i, size_t end) { // x goes down from i to its place
        for (size_t child; (child = 2 * i + 1) < end; i = child) {
            if (child + 1 < end && a[child] < a[child + 1]) ++child;
            if (!(x < a[child])) break;
            a[i] = a[child];
        }
        a[i] = x;
    };
    for (size_t i = n / 2; i-- > 0;) sift(a[i], i, n);
    for (size_t end = n; end-- > 1;) {
        const i64 last = a[end];
        a[end] = a[0];
        sift(last, 0, end);
    }
}

// How many of n keys are not above x, in any order.
[[gnu::noinline]] inline size_t count_up_to(const i64* a, size_t n, i64 x)
{
    size_t count = 0;
#if SIG5D_LEVEL > 0
    for (; n >= 16; n -= 16, a += 16)
        count += bit_count(bits_of<16, i64>([a, x]<int m>(int i) { return loadn<m>(a + i) <= splatn<m>(x); }));
#endif
    for (; n > 0; --n) {
        count += *a++ <= x;
        asm volatile("" : "+r"(count)); // no vectors again
    }
    return count;
}

class Tiers
{
    using K = i64;

public:
    // The keys of the window, in any order, where they may stay.
    Tiers(K* keys, size_t n) : keys_(keys), size_(n)
    {
        sort(keys, n);
        while (size_t{1} << 2 * shift_ < n || n >> shift_ >= mostBlocks) ++shift_;
        blocks_ = (n + mask()) >> shift_;
        for (size_t b = 0; b < mostBlocks; ++b) { // they are counted by sixteens
            heads_[b] = 0;
            firsts_[b] = b < blocks_ ? keys[b << shift_] : INT64_MAX;
        }
    }

    K middle() const
    {
        const size_t rank = size_ / 2, b = rank >> shift_;
        return keys_[b << shift_ | ((rank + heads_[b]) & mask())];
    }

    // One of the keys, and what comes in its place.
    [[gnu::noinline]] void replace(K old, K fresh)
    {
        const size_t from = block_of(old), to = block_of(fresh);
        const size_t oldPlace = count_up_to(block(from), length(from), old) - 1;
        size_t place = count_up_to(block(to), length(to), fresh);
        if (from == to) {
            if (oldPlace < place)
                move_down(from, oldPlace, --place);
            else
                move_up(from, place, oldPlace);
        } else if (from < to) {
            move_down(from, oldPlace, mask());
            K* gap = &at(from, mask());
            for (size_t b = from + 1; b < to; ++b) { // the first goes, the last comes
                *gap = firsts_[b];
                gap = &at(b, 0);
                heads_[b] = (heads_[b] + 1) & mask();
                firsts_[b] = at(b, 0);
            }
            *gap = at(to, 0);
            move_down(to, 0, --place);
            firsts_[from] = at(from, 0);
        } else {
            move_up(from, 0, oldPlace);
            K* gap = &at(from, 0);
            for (size_t b = from - 1; b > to; --b) {
                K& last = at(b, mask());
                *gap = last;
                firsts_[b + 1] = last;
                heads_[b] = (heads_[b] - 1) & mask();
                gap = &last;
            }
            if (place > mask()) { // behind the whole block
                *gap = firsts_[to + 1] = fresh;
                return;
            }
            *gap = firsts_[to + 1] = at(to, mask());
            move_up(to, place, mask());
        }
        at(to, place) = fresh;
        firsts_[to] = at(to, 0);
    }

private:
    static constexpr size_t mostBlocks = 128;

    size_t mask() const { return (size_t{1} << shift_) - 1; }
    K* block(size_t b) const { return keys_ + (b << shift_); }
    size_t length(size_t b) const { return b + 1 < blocks_ ? mask() + 1 : size_ - (b << shift_); }
    K& at(size_t b, size_t place) const { return block(b)[(heads_[b] + place) & mask()]; }

    // The last block whose first key is not above x: the last one that has x, or where it belongs.
    size_t block_of(K x) const
    {
        const size_t count = count_up_to(firsts_, (blocks_ + 15) & ~size_t{15}, x);
        return count == 0 ? 0 : count < blocks_ ? count - 1 : blocks_ - 1;
    }
    // Elements between two places of a block by one place: the one at the lower place, or at the upper one, is lost.
    [[gnu::noinline]] void move_down(size_t b, size_t low, size_t high)
    {
        K* const ring = block(b);
        const size_t all = mask(), end = heads_[b] + high;
        for (size_t i = heads_[b] + low; i < end; ++i) ring[i & all] = ring[(i + 1) & all];
    }
    [[gnu::noinline]] void move_up(size_t b, size_t low, size_t high)
    {
        K* const ring = block(b);
        const size_t all = mask(), end = heads_[b] + low;
        for (size_t i = heads_[b] + high; i > end; --i) ring[i & all] = ring[(i - 1) & all];
    }

    K* keys_;
    size_t size_, blocks_;
    unsigned shift_ = 4;
    u32 heads_[mostBlocks];
    K firsts_[mostBlocks];
};

template <class T> [[gnu::noinline]] void tiered(const Stream<T>& x, T* d, i64* keys)
{
    const ptrdiff_t mask = x.delay + 1;
    for (ptrdiff_t i = 0; i < mask; ++i) keys[i] = key_of(x[x.length - mask + i]);
    Tiers window(keys, static_cast<size_t>(mask));
    for (ptrdiff_t t = x.length - 1;; --t) {
        const i64 old = key_of(x.src[t]);
        set_element(d[t], window.middle());
        if (t == 0) return;
        const i64 fresh = key_of(x[t - mask]);
        if (fresh != old) window.replace(old, fresh);
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
