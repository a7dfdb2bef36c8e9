// Conversions of floating-point numbers to integers of 8, 16 and 32 bits: scaled, rounded, saturated.
#include "frame/entry.h"
#include "kernel/map.h"
#include "kernel/rounding.h"
#include "kernel/saturate.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class S, class D> void convert_plain(const S* a, D* d, int n, int mode, Scale scale)
{
    for (int i = 0; i < n; ++i) d[i] = static_cast<D>(rounded<LimitsOfInteger<D>>(a[i], scale, mode));
}

template <Rounding mode, bool scaled, class S, class D>
void convert_vectors(const S* a, D* d, int n, f64 factor, S half = belowHalf<S>)
{
    // Doubles become integers in 16 bytes: to join those to longer vectors takes more than to store them.
    constexpr int bytes = sizeof(S) == 8 ? 16 : vectorBytes;
    using Shape = InFlight<sizeof(S) / sizeof(D) >= 8 ? 1 : 2, false, bytes>; // each has as many conversions under way
    using Integers = Rounded<S, LimitsOfInteger<D>, mode, scaled>;
    map<Shape>(static_cast<size_t>(n), d, Same{},
               converted(a, AsElements<D, Integers>{Integers(static_cast<S>(factor), half)}));
}

template <class S, class D> [[gnu::noinline]] void convert(const S* a, D* d, int n, int mode, int s)
{
    if constexpr (vectorBytes > 0) {
        const Scale scale(s, mostScaled<S>);
        if (scale.simple() && rounds_to_nearest()) {
            const f64 factor = scale.first;
            if (s == 0 && n >= 64) { // for long arrays only, which saves code
                if (mode == TowardZero) return convert_vectors<TowardZero, false>(a, d, n, factor);
                if (mode == NearestEven) return convert_vectors<NearestEven, false>(a, d, n, factor);
            }
            if (mode == NearestEven) return convert_vectors<NearestEven, true>(a, d, n, factor);
            // Truncation is the same with nothing added.
            return convert_vectors<NearestAway, true>(a, d, n, factor, mode == TowardZero ? S(0) : belowHalf<S>);
        }
    }
    convert_plain(a, d, n, mode, Scale(s));
}

} // namespace
#include "entries/signal/elementwise/convert_round.inc"
} // namespace sig5d::SIG5D_VARIANT
