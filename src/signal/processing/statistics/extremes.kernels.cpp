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

// The largest finite magnitude, and whether all are finite.
template <class V> struct LargestFinite {
    static constexpr int lanesOfEach = sizeof(V) / sizeof(f64);
    V largest{};
    decltype(V{} == V{}) finite = V{} == V{};

    void add(V x)
    {
        const V m = absolute_value(x);
        const auto counts = m < constant<V>(__builtin_inf());
        largest = larger(counts ? m : V{}, largest);
        finite &= counts;
    }
    void join(LargestFinite o)
    {
        largest = larger(o.largest, largest);
        finite &= o.finite;
    }
};

[[gnu::noinline]] Status order(const f64* a, int n, int* result)
{
    const auto s = folded_vectors<LargestFinite<Vec<f64>>>(static_cast<size_t>(n), {}, AsItIs{}, a);
    const f64 m = best_lane<Largest>(s.largest);
    const int exponent = static_cast<int>(BitsOf<f64>::of(m) >> 52);
    *result = m == 0 ? 0 : exponent - 1022; // -1022 for what is denormal
    return any(!s.finite) || (m != 0 && exponent == 0) ? StsNanArg : StsNoErr;
}

} // namespace
#include "entries/signal/processing/statistics/extremes.inc"
} // namespace sig5d::SIG5D_VARIANT
