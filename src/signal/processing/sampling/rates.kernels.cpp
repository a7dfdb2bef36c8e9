// Sampling rates by whole factors: zeros put between samples, samples left out.
#include "frame/entry.h"
#include "kernel/complex.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// One element, and two beside each other: in a register each.
template <class T> constexpr int parts = sizeof(T) / sizeof(f64);

template <class T> [[gnu::noinline]] void zeros(T* d, size_t n)
{
    for (size_t i = 0; i < n; ++i) d[i] = T{};
}

#if SIG5D_LEVEL == 0

template <class T> void spread(const T* a, size_t n, T* d, size_t factor)
{
    for (size_t i = 0; i < n; ++i, d += factor) {
        *d = a[i];
        zeros(d + 1, factor - 1);
    }
}

#else

// A vector of 16 bytes that begins with an element, the rest of it zeros. Not a longer one: of those whose upper half
// is known to be zero the compiler leaves the halves of registers in use.
inline Vec<f64, 2> with_zeros(const f64* p)
{
    Vec<f64, 2> v{};
    v[0] = *p;
    return v;
}
inline Vec<f64, 2> with_zeros(const c64f* p)
{
    Vec<f64, 2> v{};
    v[0] = p->re;
    v[1] = p->im;
    return v;
}

// Each sample and the zeros behind it. Whole vectors are stored, as far as the last one ends within the array; what one
// stores too much the next sample stores again.
template <class T> [[gnu::noinline]] void spread(const T* a, size_t n, T* d, size_t factor)
{
    constexpr size_t L = static_cast<size_t>(2 / parts<T>);
    const size_t vectors = (factor + L - 1) / L;
    size_t i = 0;
    for (size_t left = n * factor; left >= vectors * L && i < n; left -= factor, ++i, d += factor) {
        store_at(d, with_zeros(a + i));
        for (size_t k = 1; k < vectors; ++k) store_at(d + k * L, Vec<f64, 2>{});
    }
    for (; i < n; ++i, d += factor) {
        *d = a[i];
        zeros(d + 1, factor - 1);
    }
}

#endif

struct BeforeZero {
    template <class V> Complex<V> operator()(V x) const { return {x, V{}}; }
};
[[gnu::noinline]] void spread_by_two(const f64* a, size_t n, f64* d)
{
    map<Medium>(n, complex(reinterpret_cast<c64f*>(d)), BeforeZero{}, a);
}
inline void spread_by_two(const c64f* a, size_t n, c64f* d) { spread(a, n, d, 2); }

[[gnu::noinline]] void copy(const f64* a, size_t n, f64* d) { map(n, d, Same{}, a); }
inline void copy(const c64f* a, size_t n, c64f* d) { copy(&a->re, 2 * n, &d->re); }

// Zeros up to the first sample, each but the last with those behind it, and the last with what is left.
template <class T> Status up(const T* a, int n, T* d, int* length, int factor, const int* pPhase)
{
    const i64 all = i64{n} * factor;
    if (all > 0x7FFFFFFF) return StsSizeErr;
    const size_t count = static_cast<size_t>(n), each = static_cast<size_t>(factor),
                 phase = static_cast<size_t>(*pPhase);
    *length = static_cast<int>(all);
    if (factor == 1) {
        copy(a, count, d);
        return StsNoErr;
    }
    zeros(d, phase);
    T* const first = d + phase;
    if (factor == 2)
        spread_by_two(a, count - 1, first);
    else
        spread(a, count - 1, first, each);
    T* const last = first + (count - 1) * each;
    *last = a[n - 1];
    zeros(last + 1, each - 1 - phase);
    return StsNoErr;
}

template <class T> void down(const T* a, int n, T* d, int* length, int factor, int* pPhase)
{
    const size_t count = static_cast<size_t>(n), each = static_cast<size_t>(factor);
    size_t i = static_cast<size_t>(*pPhase);
    const size_t kept = (count - i + each - 1) / each; // 0 where the phase lies behind the block
    *length = static_cast<int>(kept);
    *pPhase = static_cast<int>(i + kept * each - count);
    if (factor == 1) return copy(a, count, d);
    for (size_t k = 0; k < kept; ++k, i += each) d[k] = a[i];
}

} // namespace
#include "entries/signal/processing/sampling/rates.inc"
} // namespace sig5d::SIG5D_VARIANT
