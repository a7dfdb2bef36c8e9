// The phases of the Jaehne signal, stretch by stretch.
#pragma once
#include "kernel/turns.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr size_t elementsAtOnce = 128;

// i*i is a number of angles of pi/2 / n, of which a turn has 4n. What counts of it is computed exactly, in whole
// numbers: with i = b + k, where b begins a stretch of elements, it is b*b + (2b + k) k.
class Jaehne
{
public:
    Jaehne(f64 magn, int n)
        : magnitude_(magn), quarter_(static_cast<f64>(n)), quartersEach_(1.0 / quarter_),
          unit_(fraction_of(quarterTurn, quarter_))
    {
    }
    template <class V> V operator()(V k) const
    {
        const V shift = constant<V>(0x1.8p52), units = (all_lanes<V>(twice_) + k) * k + all_lanes<V>(square_);
        const V shifted = units * all_lanes<V>(quartersEach_) + shift;
        QuarterAngle<V> angle = unit_.times(units - (shifted - shift) * all_lanes<V>(quarter_));
        angle.quarter = BitsOf<V>::of(shifted);
        return cos_sin(angle).im * all_lanes<V>(magnitude_);
    }
    void nextStretch()
    {
        constexpr f64 n = elementsAtOnce;
        square_ = withinTurn(square_ + n * (twice_ + n));
        twice_ = withinTurn(twice_ + 2 * n);
    }

private:
    // units modulo 4n, for less than 2^31 turns.
    f64 withinTurn(f64 units) const
    {
        const f64 turn = 4.0 * quarter_, left = units - truncated(units * (0.25 * quartersEach_)) * turn;
        return left < 0 ? left + turn : left >= turn ? left - turn : left;
    }

    f64 magnitude_, quarter_, quartersEach_;
    AngleFactor unit_;
    f64 square_ = 0.0, twice_ = 0.0; // of the stretch: b*b, 2b
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
