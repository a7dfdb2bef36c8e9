// Windows and tones as a good engineer writes them in an hour, and the chain of operations that a recurrence is.
#include "case.h"
#include <cmath>
#include <immintrin.h>

namespace {

using bench::addPeer;
using bench::Batch;
using bench::repeated;
using bench::Setup;

constexpr double turn = 6.283185307179586;

// Cosines by rotation, eight at a time, anew every 1024 elements so that rounding errors stay small.
[[gnu::target("avx2,fma")]] void hannByRotation(const double* a, double* d, size_t n)
{
    const double step = turn / static_cast<double>(n - 1);
    const __m256d c = _mm256_set1_pd(std::cos(8 * step)), s = _mm256_set1_pd(std::sin(8 * step)),
                  half = _mm256_set1_pd(0.5);
    size_t i = 0;
    while (i + 8 <= n) {
        double cosines[8], sines[8];
        for (int k = 0; k < 8; ++k) {
            cosines[k] = 0.5 * std::cos(step * static_cast<double>(i + static_cast<size_t>(k)));
            sines[k] = 0.5 * std::sin(step * static_cast<double>(i + static_cast<size_t>(k)));
        }
        __m256d x0 = _mm256_loadu_pd(cosines), x1 = _mm256_loadu_pd(cosines + 4), y0 = _mm256_loadu_pd(sines),
                y1 = _mm256_loadu_pd(sines + 4);
        for (const size_t end = i + 1024; i < end && i + 8 <= n; i += 8) {
            _mm256_storeu_pd(d + i, _mm256_mul_pd(_mm256_loadu_pd(a + i), _mm256_sub_pd(half, x0)));
            _mm256_storeu_pd(d + i + 4, _mm256_mul_pd(_mm256_loadu_pd(a + i + 4), _mm256_sub_pd(half, x1)));
            const __m256d z0 = _mm256_fmsub_pd(x0, c, _mm256_mul_pd(y0, s)),
                          z1 = _mm256_fmsub_pd(x1, c, _mm256_mul_pd(y1, s));
            y0 = _mm256_fmadd_pd(y0, c, _mm256_mul_pd(x0, s));
            y1 = _mm256_fmadd_pd(y1, c, _mm256_mul_pd(x1, s));
            x0 = z0;
            x1 = z1;
        }
    }
    for (; i < n; ++i) d[i] = a[i] * (0.5 - 0.5 * std::cos(step * static_cast<double>(i)));
}
void hannByCosines(const double* a, double* d, size_t n)
{
    const double step = turn / static_cast<double>(n - 1);
    for (size_t i = 0; i < n; ++i) d[i] = a[i] * (0.5 - 0.5 * std::cos(step * static_cast<double>(i)));
}

template <class F> Batch onArrays(const Setup& s, F f)
{
    const auto& a = s.memory().arrays(); // one, in place
    auto* const d = reinterpret_cast<double*>(a.back().data);
    const auto* const x = reinterpret_cast<const double*>(a.front().data);
    const size_t n = a.back().bytes / sizeof(double);
    if (n < 3) return {};
    return repeated([=] { f(x, d, n); });
}

// Two sums of two products' steps each, as a real tone's recurrence goes, without storing them.
Batch chain(const Setup& s)
{
    const size_t n = s.memory().arrays()[0].bytes / sizeof(double);
    return repeated([=] {
        double a = 1, b = 0.9, even = 0.8, odd = 0.7;
        for (size_t i = 4; i < n; i += 2) {
            const double nextEven = 1.5 * even - a, nextOdd = 1.5 * odd - b;
            a = even, b = odd, even = nextEven, odd = nextOdd;
            asm volatile("" : "+x"(even), "+x"(odd));
        }
    });
}

const bench::Cases windows([] {
    if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma"))
        addPeer("ippsWinHann_64f(_I)?", "rotation", [](const Setup& s) { return onArrays(s, hannByRotation); });
    addPeer("ippsWinHann_64f(_I)?", "cos", [](const Setup& s) { return onArrays(s, hannByCosines); });
    addPeer("ippsTone_Direct_64f_Idx", "chain", chain);
});

} // namespace
