// The angles of a complex tone, exact at every index.
#pragma once
#include "kernel/turns.h"
#include "signal/processing/generators/phase.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The angle of element i: 2 pi f i + phase. In quarters of a turn until it is small.
class ToneAngle
{
public:
    ToneAngle(f64 frequency, f64 phase) : quarters_(4.0 * frequency)
    {
        const sig5d::Doubled q = twoProduct(phase, 0x1.45f306dc9c883p-1); // 2/pi
        phase_ = {q.hi, q.lo + phase * -0x1.6b01ec5417056p-55};
    }
    template <class V> QuarterAngle<V> operator()(V i) const
    {
        const V shift = constant<V>(0x1.8p52), phase = all_lanes<V>(phase_.hi);
        const Fraction<V> f = quarters_.fraction(i);
        const V sum = f.high + phase, part = sum - f.high;
        const V low = ((f.high - (sum - part)) + (phase - part)) + (f.low + all_lanes<V>(phase_.lo));
        const V shifted = sum + shift, left = sum - (shifted - shift);
        // Times pi/2, of which the first part has 31 bits: its product with 22 bits is exact.
        const V head = short_head(left), product = head * constant<V>(0x1.921fb544p+0);
        const V more =
            head * constant<V>(0x1.0b4611a626331p-34) + ((left - head) + low) * constant<V>(0x1.921fb54442d18p+0);
        const V rest = product + more;
        return {rest, (rest - product) - more, f.whole + BitsOf<V>::of(shifted)};
    }

private:
    ExactMultiples quarters_;
    sig5d::Doubled phase_;
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
