// The Haar wavelet: neighbours as their mean and half of their difference, and back.
#include "frame/entry.h"
#include "kernel/complex.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct Split {
    template <class V> Complex<V> operator()(Complex<V> pair) const // the mean, half of the difference
    {
        const V half = (pair.im - pair.re) * constant<V>(0.5);
        return {pair.re + half, half};
    }
};
struct Join {
    template <class V> Complex<V> operator()(V low, V high) const { return {low - high, low + high}; }
};

// Neighbours stand in memory as the parts of complex numbers do.
inline size_t pairs(int n) { return static_cast<size_t>(n) / 2; }

void forward(const f64* a, int n, f64* low, f64* high)
{
    if (n % 2) low[pairs(n)] = a[n - 1];
    map<Medium>(pairs(n), TwoArrays{low, high}, Split{}, complex(reinterpret_cast<const c64f*>(a)));
}

void inverse(const f64* low, const f64* high, f64* d, int n)
{
    if (n % 2) d[n - 1] = low[pairs(n)];
    map<Medium>(pairs(n), complex(reinterpret_cast<c64f*>(d)), Join{}, low, high);
}

} // namespace
#include "entries/signal/processing/sampling/haar.inc"
} // namespace sig5d::SIG5D_VARIANT
