// Between Cartesian and polar coordinates.
#include "frame/entry.h"
#include "kernel/atan2.h"
#include "kernel/sincos.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct Phase {
    template <class V> V operator()(V re, V im) const { return angle(re, im); }
    template <class V> V operator()(Parts<V> z) const { return angle(z.re, z.im); }
};
struct Polar { // magnitude and phase
    template <class V> Parts<V> operator()(V re, V im) const { return {square_root(re * re + im * im), angle(re, im)}; }
    template <class V> Parts<V> operator()(Parts<V> z) const { return (*this)(z.re, z.im); }
};
struct Cartesian {
    template <class V> Parts<V> operator()(V magnitude, V phase) const
    {
        const Parts<V> direction = cos_sin(phase);
        return {magnitude * direction.re, magnitude * direction.im};
    }
};

// d[i] = op(a[i], ...) for 0 <= i < n: for operations so long that only their number counts, and that would fill the
// instruction cache if they stood in many places. The last vector overlaps the one before it.
template <class Op, class D, class... A> [[gnu::always_inline]] inline void map_slowly(size_t n, D d, A... a)
{
    constexpr size_t L = lanes<f64>;
    const Op op;
    if (n < L) {
        for (size_t i = 0; i < n; ++i) store_numbers(Ordinary{}, d + i, op(loadn<1>(a + i)...));
        return;
    }
    const auto last = op(loadn<L>(a + (n - L))...);
    for (size_t i = 0; i + L < n; i += L) store_numbers(Ordinary{}, d + i, op(loadn<L>(a + i)...));
    store_numbers(Ordinary{}, d + (n - L), last);
}

void phase(const f64* re, const f64* im, f64* d, int n) { map_slowly<Phase>(static_cast<size_t>(n), d, re, im); }
void phase(const c64f* a, f64* d, int n) { map_slowly<Phase>(static_cast<size_t>(n), d, complex(a)); }

void to_polar(const f64* re, const f64* im, f64* magnitude, f64* phase, int n)
{
    map_slowly<Polar>(static_cast<size_t>(n), TwoArrays{magnitude, phase}, re, im);
}
void to_polar(const c64f* a, f64* magnitude, f64* phase, int n)
{
    map_slowly<Polar>(static_cast<size_t>(n), TwoArrays{magnitude, phase}, complex(a));
}

void to_cartesian(const f64* magnitude, const f64* phase, f64* re, f64* im, int n)
{
    map_slowly<Cartesian>(static_cast<size_t>(n), TwoArrays{re, im}, magnitude, phase);
}
void to_cartesian(const f64* magnitude, const f64* phase, c64f* d, int n)
{
    map_slowly<Cartesian>(static_cast<size_t>(n), complex(d), magnitude, phase);
}

} // namespace
#include "entries/signal/elementwise/polar.inc"
} // namespace sig5d::SIG5D_VARIANT
