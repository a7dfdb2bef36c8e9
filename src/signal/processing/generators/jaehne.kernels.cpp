// The Jaehne signal, a sine whose frequency rises from 0 to a quarter of the sampling rate: magn * sin(pi/2 * i*i / n).
#include "frame/entry.h"
#include "signal/processing/generators/by_index.h"
#include "signal/processing/generators/jaehne.h"
#include "signal/processing/generators/round_to.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

[[gnu::noinline]] void stretch(f64* d, size_t n, const Jaehne& signal) { generate(d, n, signal); }

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
        round_to(d + i, x, count);
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
