// The standard deviation, with the mean or alone: about the means of blocks, which are then merged (Chan, Golub and
// LeVeque, 1979). Where all elements are equal every block's mean can be told exactly, and the deviation is zero.
#include "frame/entry.h"
#include "signal/processing/statistics/terms.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct FromCentre : SumTerms<1> {
    f64 centre;
    explicit FromCentre(f64 c) : centre(c) {}
    template <class V> V operator()(V x) const { return x - all_lanes<V>(centre); }
};
// Squares in shorter blocks: of equal ones beside a much larger one each is rounded in the same direction.
struct SquareFromCentre : SumTerms<1> {
    static constexpr size_t block = 256;
    f64 centre;
    explicit SquareFromCentre(f64 c) : centre(c) {}
    template <class V> V operator()(V x) const
    {
        const V d = x - all_lanes<V>(centre);
        return d * d;
    }
};

struct Spread {
    f64 n, sum;
    f64 mean;    // less that of the first block
    f64 squares; // of the distances from the mean, summed
};
inline Spread joined(const Spread& a, const Spread& b)
{
    const f64 n = a.n + b.n, apart = b.mean - a.mean;
    return {n, a.sum + b.sum, a.mean + apart * (b.n / n), a.squares + b.squares + apart * apart * (a.n * b.n / n)};
}

// What the block's mean lost when it was rounded, and the squares without it. It matters where the elements are so
// close together that the distances are of the size of that loss.
template <class A> [[gnu::noinline]] f64 correction(size_t n, f64 centre, f64& squares, A a)
{
    const f64 rest = block_sums(n, FromCentre{centre}, a).of[0][0],
              without = squares - rest * rest / static_cast<f64>(n);
    squares = larger(0.0, without); // a NaN stays one
    return rest / static_cast<f64>(n);
}

template <class A> [[gnu::always_inline]] inline Spread spread_of(size_t n, A a)
{
    Tree<Spread> tree;
    f64 origin = 0;
    constexpr size_t each = Elements<1>::block;
    for (size_t i = 0;; i += each) {
        const bool last = n - i <= each;
        const size_t m = last ? n - i : each;
        const f64 count = static_cast<f64>(static_cast<int>(m)), sum = block_sums(m, Elements<1>{}, a + i).of[0][0],
                  centre = sum / count;
        f64 squares = sum_of(m, SquareFromCentre{centre}, a + i).of[0][0], rest = 0;
        if (!(squares * 0x1p44 > centre * centre * count)) rest = correction(m, centre, squares, a + i);
        if (i == 0) origin = centre;
        const Spread block = {count, sum, (centre - origin) + rest, squares};
        if (last && i == 0) return block;
        tree.add(block);
        if (last) return tree.total();
    }
}

// The same of numbers whose squares or sums have no place among doubles.
[[gnu::noinline]] Spread scaled_spread(size_t n, const f64* a, f64 by) { return spread_of(n, ScaledReals{a, by}); }

struct MeanAndDeviation {
    f64 mean, deviation;
};
// Too large are squares that overflow; too small those that lose bits, where the mean is as small: a deviation so much
// smaller than the mean is none, but all elements are equal.
[[gnu::noinline]] void mean_and_deviation(const f64* a, int n, MeanAndDeviation& result)
{
    const size_t all = static_cast<size_t>(n);
    Spread s = spread_of(all, a);
    f64 mean = s.sum / n, back = 1;
    if (!is_finite(s.squares)) {
        back = farUp;
        s = scaled_spread(all, a, farDown);
        if (!is_finite(mean)) mean = s.sum / n * back;
    } else if (s.squares < 0x1p-900 && absolute_value(mean) < 0x1p-390) {
        back = farDown;
        s = scaled_spread(all, a, farUp);
    }
    // What is not above zero, as where an element is infinite or NaN, has no root.
    result = {mean, s.squares > 0 ? square_root(s.squares / (n - 1)) * back : 0.0};
}

void mean_deviation(const f64* a, int n, f64* mean, f64* deviation)
{
    MeanAndDeviation both;
    mean_and_deviation(a, n, both);
    *mean = both.mean;
    *deviation = both.deviation;
}
void deviation(const f64* a, int n, f64* result)
{
    MeanAndDeviation both;
    mean_and_deviation(a, n, both);
    *result = both.deviation;
}

} // namespace
#include "entries/signal/processing/statistics/deviation.inc"
} // namespace sig5d::SIG5D_VARIANT
