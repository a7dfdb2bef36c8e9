// Tones: magn * cos(2 pi f i + phase), and the complex exponential.
#include "frame/entry.h"
#include "kernel/pairs.h"
#include "signal/processing/generators/by_index.h"
#include "signal/processing/generators/phase.h"
#include "signal/processing/generators/tone_angle.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Each sample from those two and four before it: as many steps as registers need to change no places, since moves from
// one to another would be part of the chain that is waited for.
inline void continue_tone(f64* d, int n, f64 factor, f64 a, f64 b, f64 even, f64 odd)
{
    int i = 0;
    for (; i + 4 <= n; i += 4) {
        a = factor * even - a;
        b = factor * odd - b;
        asm("" : "+x"(a), "+x"(b)); // not as a pair, which takes longer
        d[i] = a;
        d[i + 1] = b;
        even = factor * a - even;
        odd = factor * b - odd;
        asm("" : "+x"(even), "+x"(odd));
        d[i + 2] = even;
        d[i + 3] = odd;
    }
    if (i < n) d[i] = a = factor * even - a;
    if (i + 1 < n) d[i + 1] = factor * odd - b;
    if (i + 2 < n) d[i + 2] = factor * a - even;
}

// Two samples from cosines, two from one step of recurrence, the others from two steps at a time.
void tone(f64* d, int n, f64 magn, f64 frequency, f64* pPhase, int)
{
    const f64 phase = *pPhase, step = fullTurn * frequency, cosine = libm::cos(step), twice = 2.0 * cosine;
    *pPhase = advanced(phase, n, frequency);
    d[0] = magn * libm::cos(phase);
    if (n > 1) d[1] = magn * libm::cos(step + phase);
    if (n > 2) d[2] = twice * d[1] - d[0];
    if (n > 3) d[3] = twice * d[2] - d[1];
    if (n > 4) continue_tone(d + 4, n - 4, 4.0 * (cosine * cosine) - 2.0, d[0], d[1], d[2], d[3]);
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
