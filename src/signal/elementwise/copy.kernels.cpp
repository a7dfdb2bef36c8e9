// Copy, move, set, zero, flip.
#include "frame/entry.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T>
void copy(const T* a, T* d, int n)
{
#pragma GCC ivdep
    for (int i = 0; i < n; ++i) d[i] = a[i];
}

template <class T>
void move(const T* a, T* d, int n)
{
    __builtin_memmove(d, a, sizeof(T) * static_cast<unsigned>(n));
}

template <class T>
void set(T v, T* d, int n)
{
    for (int i = 0; i < n; ++i) d[i] = v;
}
void set_unchecked(f64 v, f64* d, int idx, int n) { set(v, d + idx, n); }
template <class T>
void zero(T* d, int n)
{
    set(T{}, d, n);
}
template <class T>
void flip(const T* a, T* d, int n)
{
    for (int i = 0, j = n - 1; i <= j; ++i, --j) {
        const T x = a[i], y = a[j];
        d[i] = y;
        d[j] = x;
    }
}

} // namespace
#include "entries/signal/elementwise/copy.inc"
} // namespace sig5d::SIG5D_VARIANT
