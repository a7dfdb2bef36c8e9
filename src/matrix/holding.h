// The elements of an array for which a comparison holds: as bits, or as lanes of a mask.
#pragma once
#include "kernel/map.h"
#include "matrix/comparison.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The value as a source: vectors of it, made of nothing that is read.
template <int n, class T> inline auto load_lanes(OneValue<T> y)
{
    constexpr int atLeast = lanes<T> == 1 ? 1 : 16 / static_cast<int>(sizeof(T));
    return splatn<(n < atLeast ? atLeast : n)>(y.value);
}

// Elements x[k] for which the test with y[k] holds.
template <class T, class Y, class Test> struct Holding {
    const T* x;
    Y y;
    Test test;

    bool at(size_t k) const { return test(x[k], y[k]); }

    static constexpr bool wordsFirst = sizeof(T) <= 2; // eight bits cost as much as 32
    u32 byte(size_t k) const { return bits_from<8>(k); }
    u32 word(size_t k) const { return bits_from<32>(k); }

private:
    // Elements k, k + 1, ... as n bits.
    template <int n> u32 bits_from(size_t k) const
    {
        const auto masks = [this, k]<int m>(int i) {
            const size_t first = k + static_cast<size_t>(i);
            return test(load_lanes<m>(x + first), load_lanes<m>(y + first));
        };
        return bits_of<n, T>(masks);
    }
};

// The same elements, or all others.
template <class Selection> struct MaybeInverted {
    Selection selection;
    bool inverted;

    static constexpr bool wordsFirst = Selection::wordsFirst;
    bool at(size_t k) const { return selection.at(k) != inverted; }
    u32 byte(size_t k) const { return selection.byte(k) ^ (inverted ? 0xFFu : 0u); }
    u32 word(size_t k) const { return selection.word(k) ^ (inverted ? 0xFFFFFFFFu : 0u); }
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
