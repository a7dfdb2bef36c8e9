// Windows: an array, real or complex, times weights that are made from its length.
#include "frame/entry.h"
#include "signal/processing/windows/both_ends.h"
#include "signal/processing/windows/cosines.h"
#include "signal/processing/windows/kaiser.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Multiples of the step by adding it again and again, which fixes their rounding.
struct BartlettWeights {
    f64 step, next = 0.0;
    alignas(64) f64 w[mostWeights];

    explicit BartlettWeights(f64 each) : step(each) {}
    size_t length() const { return mostWeights; }
    template <class Use> void stretch(size_t, size_t n, Use use)
    {
        for (size_t i = 0; i < n; ++i) {
            w[i] = next;
            next += step;
        }
        use(StoredWeights{w});
    }
};

// Three elements of which the outer ones become zero.
template <class T> void keep_middle(const T* a, T* d)
{
    d[0] = T{};
    d[1] = a[1];
    d[2] = T{};
}

template <class T> void bartlett(const T* a, T* d, int n)
{
    if (n == 3) return keep_middle(a, d);
    const size_t all = static_cast<size_t>(n);
    BartlettWeights weights(2.0 / static_cast<f64>(n - 1));
    weigh(a, d, all, weights);
    copy_middle(a, d, all);
}

// mean - amplitude * cos(2 pi i / (n - 1)); 1 in the middle.
template <class T> void raised_cosine(const T* a, T* d, int n, f64 mean, f64 amplitude)
{
    const size_t all = static_cast<size_t>(n);
    weigh_by_cosines<1>(a, d, all, {mean, 0.0}, {amplitude});
    copy_middle(a, d, all);
}
template <class T> void hann(const T* a, T* d, int n) { raised_cosine(a, d, n, 0.5, 0.5); }
template <class T> void hamming(const T* a, T* d, int n) { raised_cosine(a, d, n, 0.54, 0.46); }

template <class T> void blackman(const T* a, T* d, int n, f64 alpha)
{
    if (n == 3) return keep_middle(a, d);
    const size_t all = static_cast<size_t>(n);
    const sig5d::Doubled twiceMean = twoSum(alpha, 1.0);
    weigh_by_cosines<2>(a, d, all, {twiceMean.hi * 0.5, twiceMean.lo * 0.5}, {0.5, alpha * 0.5});
    if (n % 2) d[n / 2] = weighted(a[n / 2], 1.0 + (alpha - alpha)); // 1, if there is a sum at all
}
template <class T> void standard_blackman(const T* a, T* d, int n) { blackman(a, d, n, -0.16); }
// -1 / (2 cos(pi/(n-1)))^2
template <class T> void optimal_blackman(const T* a, T* d, int n)
{
    blackman(a, d, n, -0.5 / (1.0 + libm::cosSinTurn(1, n - 1).cos));
}

template <class T> void kaiser(const T* a, T* d, int n, f64 alpha)
{
    const size_t all = static_cast<size_t>(n);
    KaiserWeights weights(all, alpha);
    weigh(a, d, all, weights);
    copy_middle(a, d, all);
}

} // namespace
#include "entries/signal/processing/windows/windows.inc"
} // namespace sig5d::SIG5D_VARIANT
