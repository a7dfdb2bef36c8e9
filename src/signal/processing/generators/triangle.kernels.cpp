// Triangles: waves that fall linearly from magn to -magn and rise again, each in its part of the period.
#include "frame/entry.h"
#include "signal/processing/generators/by_index.h"
#include "signal/processing/generators/phase.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

class Triangle
{
public:
    Triangle(f64 magn, f64 frequency, f64 asymmetry, f64 phase)
        : turns_(frequency), magnitude_(magn), start_(phase * turnsEach)
    {
        const f64 falling = (halfTurn + asymmetry) * turnsEach, rising = (halfTurn - asymmetry) * turnsEach;
        fall_ = 2.0 / (falling > 0x1p-1000 ? falling : 0x1p-1000); // no number of elements is in less
        rise_ = 2.0 / rising;
        quarter_ = 0.5 * rising;
    }
    // The part of a period, from 0 to 1, at element i.
    template <class V> V first(V i) const
    {
        const V shift = constant<V>(0x1.8p52);
        const Fraction<V> f = turns_.fraction(i);
        const V turns = (f.high + f.low) + all_lanes<V>(start_), part = turns - ((turns + shift) - shift);
        return part < V{} ? part + constant<V>(1.0) : part;
    }
    template <class V> V value(V part) const { return between(part, constant<V>(1.0) - part); }
    // Later by half the rise, so that the wave begins in its middle.
    template <class V> V later(V part) const
    {
        const V behind = part - all_lanes<V>(quarter_), one = constant<V>(1.0);
        const auto before = behind < V{};
        return between(before ? one + behind : behind, before ? all_lanes<V>(quarter_) - part : one - behind);
    }

private:
    static constexpr f64 halfTurn = 3.141592653589793;
    // So far behind one peak and before the next: of the two lines the higher one.
    template <class V> V between(V behind, V before) const
    {
        const V one = constant<V>(1.0);
        return larger(one - behind * all_lanes<V>(fall_), one - before * all_lanes<V>(rise_)) *
               all_lanes<V>(magnitude_);
    }

    ExactMultiples turns_;
    f64 magnitude_, start_, fall_, rise_, quarter_;
};

struct RealTriangle : Triangle {
    template <class V> V second(V part) const { return value(part); }
};
struct ComplexTriangle : Triangle {
    template <class V> Complex<V> second(V part) const { return {value(part), later(part)}; }
};

void triangle(f64* d, int n, f64 magn, f64 frequency, f64 asymmetry, f64* pPhase)
{
    const Triangle wave(magn, frequency, asymmetry, *pPhase);
    *pPhase = advanced(*pPhase, n, frequency);
    generate(d, static_cast<size_t>(n), RealTriangle{wave});
}
void triangle(c64f* d, int n, f64 magn, f64 frequency, f64 asymmetry, f64* pPhase)
{
    const Triangle wave(magn, frequency, asymmetry, *pPhase);
    *pPhase = advanced(*pPhase, n, frequency);
    generate(d, static_cast<size_t>(n), ComplexTriangle{wave});
}

} // namespace
#include "entries/signal/processing/generators/triangle.inc"
} // namespace sig5d::SIG5D_VARIANT
