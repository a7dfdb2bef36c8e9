// The phases of the Jaehne signal, stretch by stretch.
#pragma once
#include "kernel/turns.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr size_t elementsAtOnce = 128;

// A whole number of halves of a turn, in the low bits of the first, and the rest in radians.
template <class V> struct HalvesAndRest {
    V halves, rest;
};

// The sine of |x| <= pi/2, within 2.5 units of the last place: x - x^3 times a minimax polynomial in x^2. One
// polynomial for a whole half turn takes half as long as those of sine and cosine for its quarters.
template <class V> inline V sine_of_half(V x)
{
    static constexpr f64 series[] = {0x1.5555555555555p-3,   -0x1.1111111111107p-7, 0x1.a01a01a018aaap-13,
                                     -0x1.71de3a54564dfp-19, 0x1.ae6455a1c0795p-26, -0x1.612401540ed0fp-33,
                                     0x1.ae51366b753a9p-41,  -0x1.89a43bea5b135p-49};
    const V z = x * x;
    return x - x * (z * polynomial(series, z));
}

// i*i is a number of angles of pi/2 / n, of which a turn has 4n. What counts of it is computed exactly, in whole
// numbers: with i = b + k, where b begins a stretch of elements, it is b*b + (2b + k) k.
class Jaehne
{
public:
    Jaehne(f64 magn, int n)
        : magnitude_(magn), quarter_(static_cast<f64>(n)), halvesEach_(0.5 / quarter_),
          unit_(fraction_of(quarterTurnInTwo, quarter_))
    {
    }
    template <class V> HalvesAndRest<V> first(V k) const
    {
        const V shift = constant<V>(0x1.8p52), units = (all_lanes<V>(twice_) + k) * k + all_lanes<V>(square_);
        const V halves = units * all_lanes<V>(halvesEach_) + shift;
        return {halves, unit_.times(units - (halves - shift) * all_lanes<V>(2.0 * quarter_)).rest};
    }
    template <class V> V second(const HalvesAndRest<V>& angle) const
    {
        using B = BitsOf<V>;
        const V sine = sine_of_half(angle.rest) * all_lanes<V>(magnitude_);
        return B::back(B::of(sine) ^ (B::of(angle.halves) << 63));
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
        const f64 turn = 4.0 * quarter_, left = units - truncated(units * (0.5 * halvesEach_)) * turn;
        return left < 0 ? left + turn : left >= turn ? left - turn : left;
    }

    f64 magnitude_, quarter_, halvesEach_;
    AngleFactor unit_;
    f64 square_ = 0.0, twice_ = 0.0; // of the stretch: b*b, 2b
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
