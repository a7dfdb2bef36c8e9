// Rotations by whole multiples of a relative frequency, each as exact as its own cosine and sine: the multiple is known
// exactly before its angle is taken.
#pragma once
#include "kernel/turns.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// A frequency in [0, 1), in quarters of a turn, as two parts whose products with whole numbers up to 64 are exact but
// for what is left of a tiny one. Near 1 it turns backwards: then it is as exact as near 0.
struct Multiples {
    f64 high, low;
    explicit Multiples(f64 frequency)
    {
        const f64 quarters = 4.0 * (frequency > 0.5 ? frequency - 1.0 : frequency), shift = 0x1.8p27;
        high = (quarters + shift) - shift; // a multiple of 2^-25
        low = quarters - high;
    }

    // (cos, sin) of so many turns of the frequency.
    template <class V> Complex<V> cos_sin_of(V times) const
    {
        const V shift = constant<V>(0x1.8p52), product = times * all_lanes<V>(high), shifted = product + shift;
        const V rest = product - (shifted - shift), more = times * all_lanes<V>(low);
        // Times pi/2, of which the first part has 31 bits: its product with 22 bits is exact.
        const V left = rest + more, lost = (rest - left) + more;
        const V head = short_head(left), first = head * constant<V>(0x1.921fb544p+0);
        const V second =
            head * constant<V>(0x1.0b4611a626331p-34) + ((left - head) + lost) * constant<V>(0x1.921fb54442d18p+0);
        const V angle = first + second;
        return cos_sin(QuarterAngle<V>{angle, (angle - first) - second, BitsOf<V>::of(shifted)});
    }
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
