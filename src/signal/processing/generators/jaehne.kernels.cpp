// The Jaehne signal, a sine whose frequency rises from 0 to a quarter of the sampling rate: magn * sin(pi/2 * i*i / n).
#include "frame/entry.h"
#include "kernel/rounding.h"
#include "kernel/saturate.h"
#include "signal/processing/generators/by_index.h"
#include "signal/processing/generators/jaehne.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

[[gnu::noinline]] void stretch(f64* d, size_t n, const Jaehne& signal) { generate(d, n, signal); }

void to_integers(const f64* a, i32* d, size_t n)
{
    using Whole = Limits<32, true>;
    if constexpr (vectorBytes > 0) {
        map<InFlight<2, false, 16>>(n, d, Same{}, converted(a, Rounded<f64, Whole, NearestEven, false>(1.0)));
    } else {
        const Scale one(0);
        for (size_t i = 0; i < n; ++i) d[i] = rounded<Whole>(a[i], one, NearestEven);
    }
}

// put(i, n) takes the n elements from the i-th on.
template <class Put> inline void in_stretches(size_t n, Jaehne signal, Put put)
{
    for (size_t i = 0, count; i < n; i += count, signal.nextStretch()) {
        count = n - i < elementsAtOnce ? n - i : elementsAtOnce;
        put(i, count, signal);
    }
}
void vector_jaehne(f64* d, int n, f64 magn)
{
    in_stretches(static_cast<size_t>(n), Jaehne(magn, n),
                 [d](size_t i, size_t count, const Jaehne& signal) { stretch(d + i, count, signal); });
}
[[gnu::noinline]] void integer_jaehne(i32* d, int n, i32 magn)
{
    alignas(64) f64 x[elementsAtOnce];
    in_stretches(static_cast<size_t>(n), Jaehne(magn, n), [d, &x](size_t i, size_t count, const Jaehne& signal) {
        stretch(x, count, signal);
        to_integers(x, d + i, count);
    });
}
void vector_jaehne(i32* d, int n, i32 magn)
{
    const NearestMode mode;
    integer_jaehne(d, n, magn);
}

} // namespace
#include "entries/signal/processing/generators/jaehne.inc"
} // namespace sig5d::SIG5D_VARIANT
