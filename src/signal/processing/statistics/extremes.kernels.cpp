// The largest and the smallest of doubles, where they come first, and the binary order of the largest magnitude.
#include "frame/entry.h"
#include "signal/processing/statistics/extremes.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

void maximum(const f64* a, int n, f64* max, i32* index = nullptr) { tell_extreme<Largest>(a, n, max, index); }
void minimum(const f64* a, int n, f64* min, i32* index = nullptr) { tell_extreme<Smallest>(a, n, min, index); }
void both(const f64* a, int n, f64* min, f64* max) { tell_extremes(a, n, min, max); }
void both(const f64* a, int n, f64* min, i32* minIndex, f64* max, i32* maxIndex)
{
    tell_extremes(a, n, min, minIndex, max, maxIndex);
}

struct Magnitudes {
    template <class V> V operator()(V x) const { return absolute_value(x); }
};
[[gnu::noinline]] f64 largest_magnitude(size_t n, const f64* a) { return largest_of(n, Magnitudes{}, a); }
[[gnu::noinline]] f64 largest_finite(size_t n, const f64* a)
{
    f64 largest = 0;
    for (size_t i = 0; i < n; ++i)
        if (const f64 x = absolute_value(a[i]); x < __builtin_inf() && x > largest) largest = x;
    return largest;
}
Status order(const f64* a, int n, int* result)
{
    const size_t all = static_cast<size_t>(n);
    f64 m = largest_magnitude(all, a);
    const bool finite = m < __builtin_inf();
    if (!finite) m = largest_finite(all, a);
    const int exponent = static_cast<int>(BitsOf<f64>::of(m) >> 52);
    *result = m == 0 ? 0 : exponent - 1022; // -1022 for what is denormal
    return finite && (m == 0 || exponent > 0) ? StsNoErr : StsNanArg;
}

} // namespace
#include "entries/signal/processing/statistics/extremes.inc"
} // namespace sig5d::SIG5D_VARIANT
