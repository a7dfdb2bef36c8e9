// Between Cartesian and polar coordinates.
#include "frame/entry.h"
#include "kernel/atan2.h"
#include "kernel/complex.h"
#include "kernel/sincos.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// In two halves.
struct Phase {
    template <class V> HalfAngle<V> first(V re, V im) const { return half_angle(re, im); }
    template <class V> HalfAngle<V> first(Complex<V> z) const { return half_angle(z.re, z.im); }
    template <class V> V second(const HalfAngle<V>& h) const { return angle(h); }
};
struct Polar : Phase { // magnitude and phase
    template <class V> Complex<V> second(const HalfAngle<V>& h) const
    {
        return {square_root(h.x * h.x + h.y * h.y), angle(h)};
    }
};
template <class V> struct Arm {
    V length;
    ReducedAngle<V> angle;
};
struct Cartesian {
    template <class V> Arm<V> first(V magnitude, V phase) const { return {magnitude, reduced_angle(phase)}; }
    template <class V> Complex<V> second(const Arm<V>& a) const
    {
        const Complex<V> direction = cos_sin(a.angle);
        return {a.length * direction.re, a.length * direction.im};
    }
};

void phase(const f64* re, const f64* im, f64* d, int n) { map_overlapped(static_cast<size_t>(n), d, Phase{}, re, im); }
void phase(const c64f* a, f64* d, int n) { map_overlapped(static_cast<size_t>(n), d, Phase{}, complex(a)); }

void to_polar(const f64* re, const f64* im, f64* magnitude, f64* phase, int n)
{
    map_overlapped(static_cast<size_t>(n), TwoArrays{magnitude, phase}, Polar{}, re, im);
}
void to_polar(const c64f* a, f64* magnitude, f64* phase, int n)
{
    map_overlapped(static_cast<size_t>(n), TwoArrays{magnitude, phase}, Polar{}, complex(a));
}

void to_cartesian(const f64* magnitude, const f64* phase, f64* re, f64* im, int n)
{
    map_overlapped(static_cast<size_t>(n), TwoArrays{re, im}, Cartesian{}, magnitude, phase);
}
void to_cartesian(const f64* magnitude, const f64* phase, c64f* d, int n)
{
    map_overlapped(static_cast<size_t>(n), complex(d), Cartesian{}, magnitude, phase);
}

} // namespace
#include "entries/signal/elementwise/polar.inc"
} // namespace sig5d::SIG5D_VARIANT
