// Tones: magn * cos(2 pi f i + phase), and the complex exponential.
#include "frame/entry.h"
#include "kernel/pairs.h"
#include "signal/processing/generators/by_index.h"
#include "signal/processing/generators/phase.h"
#include "signal/processing/generators/tone_angle.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// By recurrence: two samples from cosines, two from one step, then each from those two and four before it.
void tone(f64* d, int n, f64 magn, f64 frequency, f64* pPhase, int)
{
    const f64 phase = *pPhase, step = fullTurn * frequency, cosine = libm::cos(step), twice = 2.0 * cosine,
              twiceOfDouble = 4.0 * (cosine * cosine) - 2.0;
    *pPhase = advanced(phase, n, frequency);
    f64 a = magn * libm::cos(phase), b = magn * libm::cos(step + phase), even = twice * b - a, odd = twice * even - b;
    const f64 first[] = {a, b, even, odd};
    for (int i = 0; i < n && i < 4; ++i) d[i] = first[i];
    for (int i = 4; i < n; i += 2) {
        const f64 nextEven = twiceOfDouble * even - a, nextOdd = twiceOfDouble * odd - b;
        a = even;
        b = odd;
        even = nextEven;
        odd = nextOdd;
        asm("" : "+x"(even), "+x"(odd)); // in registers of their own: to make pairs of them takes longer
        d[i] = even;
        if (i + 1 < n) d[i + 1] = odd;
    }
}

constexpr size_t startsAtOnce = 16, longestBlock = 64;

// magn * e^(i angle) of elements at equal distances.
struct Exponentials {
    ToneAngle angle;
    f64 magnitude, start, distance;
    template <class V> QuarterAngle<V> first(V i) const
    {
        return angle(i * all_lanes<V>(distance) + all_lanes<V>(start));
    }
    template <class V> Complex<V> second(const QuarterAngle<V>& angleThere) const
    {
        const Complex<V> a = cos_sin(angleThere);
        return {a.re * all_lanes<V>(magnitude), a.im * all_lanes<V>(magnitude)};
    }
};
[[gnu::noinline]] void fill(c64f* d, size_t n, const Exponentials& e) { generate(d, n, e); }

struct TimesFactor {
    Factor factor;
    template <class V> V operator()(V x) const { return factor.times(x); }
};

// In blocks: the exponential at the start of each times those of the first block's elements without phase and
// magnitude.
void tone(c64f* d, int n, f64 magn, f64 frequency, f64* pPhase, int)
{
    const size_t all = static_cast<size_t>(n);
    const f64 phase = *pPhase;
    *pPhase = advanced(phase, n, frequency);
    size_t block = 8;
    while (block < longestBlock && startsAtOnce * block < all) block *= 2;
    alignas(64) c64f table[longestBlock], starts[startsAtOnce];
    fill(table, block, {ToneAngle(frequency, 0.0), 1.0, 0.0, 1.0});
    Exponentials atStart = {ToneAngle(frequency, phase), magn, 0.0, static_cast<f64>(static_cast<i32>(block))};
    for (size_t i = 0, k = startsAtOnce; i < all; i += block, ++k) {
        if (k == startsAtOnce) {
            atStart.start = static_cast<f64>(static_cast<i32>(i));
            fill(starts, startsAtOnce, atStart);
            k = 0;
        }
        map_pairs<Heavy<2>>(all - i < block ? all - i : block, d + i, TimesFactor{Factor(starts[k])},
                            static_cast<const c64f*>(table));
    }
}

} // namespace
#include "entries/signal/processing/generators/tone.inc"
} // namespace sig5d::SIG5D_VARIANT
