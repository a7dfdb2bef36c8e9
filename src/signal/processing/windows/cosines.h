// Weights mean - a1 cos t - a2 cos 2t with t = 2 pi i / (n - 1), each within 2^-52 (1 + |2 a2|) of that, at any length.
//
// In blocks: the weight at the block's start s is computed in twice the precision, and those behind it are
//     w(s + k) = w(s) + sum of a_h ((1 - cos h t_k) cos h t_s + sin h t_k sin h t_s),
// where a table has the sines, and the cosines as their small distances from 1. What is added is small as blocks are
// short, and so are its rounding errors.
#pragma once
#include "kernel/indexes.h"
#include "kernel/turns.h"
#include "signal/processing/windows/both_ends.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr size_t startsAtOnce = 16;

// A factor whose products are wanted exactly.
struct ExactFactor {
    f64 value, head, tail;
    explicit ExactFactor(f64 x) : value(x), head(front(x)), tail(x - head) {}

    template <class V> static V front(V x) { return keep_bits(x, ~u64{0x7FFFFFF}); }
    // x times the factor, and what rounding lost.
    template <class V> Complex<V> times(V x) const
    {
        const V product = x * all_lanes<V>(value), xHead = front(x), xTail = x - xHead, a = all_lanes<V>(head),
                b = all_lanes<V>(tail);
        return {product, ((xHead * a - product) + (xTail * a + xHead * b)) + xTail * b};
    }
};

// The weights of a block, by its start.
template <int terms> struct CosineBlock {
    using V = Vec<f64>;
    V high, low, cosine[terms], sine[terms];
    const f64 *lessThanOnes[terms], *sines[terms];

    V at(size_t k) const
    {
        V more{};
        for (int h = 0; h < terms; ++h) {
            const V term = load(lessThanOnes[h] + k) * cosine[h] + load(sines[h] + k) * sine[h];
            more = h == 0 ? term : more + term;
        }
        return high + (low + more);
    }
};

// Sines, or distances of cosines from 1, behind a block's start. In two frames of the stack: one of a page or more
// would have to touch its pages on Windows.
template <int terms> struct CosineTable {
    alignas(64) f64 of[terms][mostWeights];
};

template <int terms> class CosineWeights
{
public:
    // n: elements of the window. Of few weights each is a block of its own; more have up to 16 blocks, or such of 128
    // weights.
    [[gnu::noinline]] CosineWeights(size_t n, sig5d::Doubled mean, const f64 (&amplitudes)[terms],
                                    CosineTable<terms>& sines, CosineTable<terms>& lessThanOnes)
        : weights_(n / 2), circle_(static_cast<f64>(static_cast<i32>(n - 1))), mean_(mean), sines_(sines),
          lessThanOnes_(lessThanOnes)
    {
        for (int h = 0; h < terms; ++h) amplitudes_[h] = amplitudes[h];
        if (weights_ <= 4 * startsAtOnce) return;
        for (shift_ = 3; block() < mostWeights && startsAtOnce * block() < weights_;) ++shift_;
        makeTable();
    }

    size_t length() const { return shift_ == 0 ? startsAtOnce : block(); }
    template <class Use> void stretch(size_t first, size_t, Use use)
    {
        find(first);
        if (shift_ == 0)
            use(StoredWeights{high_});
        else
            use(here_);
    }

private:
    using V = Vec<f64>;
    static constexpr size_t L = lanes<f64>;

    // The block that begins with this weight.
    void find(size_t first)
    {
        const size_t start = (first >> shift_) % startsAtOnce;
        if (start == 0) makeStarts(first);
        here_.high = splat(high_[start]);
        here_.low = splat(low_[start]);
        for (int h = 0; h < terms; ++h) {
            here_.cosine[h] = splat(startCosine_[h][start]);
            here_.sine[h] = splat(startSine_[h][start]);
            here_.lessThanOnes[h] = lessThanOnes_.of[h];
            here_.sines[h] = sines_.of[h];
        }
    }

    [[gnu::noinline]] void makeTable()
    {
        for (size_t k = 0; k < block(); k += L)
            for (int h = 0; h < terms; ++h) {
                const QuarterAngle<V> angle = circle_.small_angle(indexes_from(k) * all_lanes<V>(h + 1));
                const NearZero<V> a = near_zero(angle.rest, angle.below);
                store(sines_.of[h] + k, angle.rest - a.sine_rest);
                store(lessThanOnes_.of[h] + k, a.half - a.cosine_rest);
            }
    }

    [[gnu::noinline]] void makeStarts(size_t first)
    {
        const size_t left = (weights_ - first + block() - 1) >> shift_, n = left < startsAtOnce ? left : startsAtOnce;
#pragma GCC unroll 1
        for (size_t i = 0; i < n; i += L) {
            const V at = indexes_from(i) * all_lanes<V>(static_cast<f64>(static_cast<i32>(block()))) +
                         all_lanes<V>(static_cast<f64>(static_cast<i32>(first)));
            V high = all_lanes<V>(mean_.hi), low = all_lanes<V>(mean_.lo);
            for (int h = 0; h < terms; ++h) {
                const ExactFactor amplitude(amplitudes_[h]);
                const WideCosSin<V> a = wide_cos_sin(circle_.angle(at * all_lanes<V>(h + 1)));
                const Complex<V> cosine = amplitude.times(a.value.re);
                const V less = high - cosine.re, part = less - high;
                const V more = cosine.im + a.left.re * all_lanes<V>(amplitude.value);
                low = low + (((high - (less - part)) - (cosine.re + part)) - more);
                high = less;
                store(startCosine_[h] + i, cosine.re + more);
                store(startSine_[h] + i, (a.value.im + a.left.im) * all_lanes<V>(amplitude.value));
            }
            const V sum = high + low;
            store(high_ + i, sum);
            store(low_ + i, (high - sum) + low);
        }
    }

    size_t block() const { return size_t{1} << shift_; }

    size_t weights_, shift_ = 0;
    Circle circle_;
    sig5d::Doubled mean_;
    f64 amplitudes_[terms];
    CosineTable<terms>&sines_, &lessThanOnes_;
    alignas(64) f64 high_[startsAtOnce], low_[startsAtOnce];
    alignas(64) f64 startCosine_[terms][startsAtOnce], startSine_[terms][startsAtOnce];
    CosineBlock<terms> here_;
};

// Both ends of an array times these weights.
template <int terms, class T>
[[gnu::noinline]] void weigh_by_cosines(const T* a, T* d, size_t n, sig5d::Doubled mean, const f64 (&amplitudes)[terms],
                                        CosineTable<terms>& sines)
{
    CosineTable<terms> lessThanOnes;
    CosineWeights<terms> weights(n, mean, amplitudes, sines, lessThanOnes);
    weigh(a, d, n, weights);
}
template <int terms, class T>
inline void weigh_by_cosines(const T* a, T* d, size_t n, sig5d::Doubled mean, const f64 (&amplitudes)[terms])
{
    CosineTable<terms> sines;
    weigh_by_cosines(a, d, n, mean, amplitudes, sines);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
