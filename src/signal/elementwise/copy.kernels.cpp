// Copy, move, set, zero.
#include "frame/entry.h"
#include "frame/index.h"
#include "kernel/loops.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> void copy(const T* a, T* d, int n) { map_bits(n, d, Same{}, a); }

// The mirror image of copy: for a destination that overlaps its source and begins behind it.
#if SIG5D_LEVEL == 0

template <class T> void copy_backwards(size_t n, const T* a, T* d)
{
    while (n-- > 0) d[n] = a[n];
}

#else

[[gnu::noinline]] void copy_backwards(size_t n, const u8* a, u8* d)
{
    constexpr size_t L = lanes<u8>;
    if (n <= 4 * L) return map_bytes(n, d, Same{}, a); // loads everything before it stores
    const Vec<u8> head = load(a), tail = load(a + (n - L));
    const size_t skip = reinterpret_cast<uintptr_t>(d + n) % L;
    size_t left = n - skip;
    u8* p = d + left;
    a += left;
    for (; left >= 4 * L; left -= 4 * L) {
        const Vec<u8> v0 = load(a - L), v1 = load(a - 2 * L), v2 = load(a - 3 * L), v3 = load(a - 4 * L);
        put(p - L, v0);
        keep(p);
        put(p - 2 * L, v1);
        keep(p);
        put(p - 3 * L, v2);
        keep(p);
        put(p - 4 * L, v3);
        p -= 4 * L;
        a -= 4 * L;
        keep(p);
    }
    for (; left > L; left -= L) put(p -= L, load(a -= L));
    put(d, head);
    put(d + (n - L), tail);
}

template <class T> void copy_backwards(size_t n, const T* a, T* d)
{
    copy_backwards(n * sizeof(T), reinterpret_cast<const u8*>(a), reinterpret_cast<u8*>(d));
}

#endif

template <class T> void move(const T* a, T* d, int n)
{
    const size_t distance = reinterpret_cast<uintptr_t>(d) - reinterpret_cast<uintptr_t>(a);
    if (distance >= sizeof(T) * static_cast<size_t>(n))
        copy(a, d, n);
    else
        copy_backwards(static_cast<size_t>(n), a, d);
}

// What map stores again and again: an element, or a vector of them.
#if SIG5D_LEVEL == 0

template <class T> T repeated(T v) { return v; }

#else

template <class T> auto repeated(T v) { return splat(v); }
Vec<u64> repeated(c32s v) { return splat(static_cast<u64>(static_cast<u32>(v.im)) << 32 | static_cast<u32>(v.re)); }
Vec<f64> repeated(c64f v)
{
    // Each part for itself: a caller stores them one by one, and to load both at once right after that takes long.
    asm("" : "+x"(v.re), "+x"(v.im));
    Vec<f64> all;
    for (int i = 0; i < lanes<f64>; ++i) all[i] = i % 2 ? v.im : v.re;
    return all;
}

#endif

template <class T> [[gnu::noinline]] void fill(size_t n, T* d, T v)
{
    const auto all = repeated(v);
    map(n, d, [all] { return all; });
}

template <class T> void set(T v, T* d, int n) { fill(static_cast<size_t>(n), d, v); }

void set(c64f v, c64f* d, int n)
{
    const size_t count = static_cast<size_t>(n);
    if (reinterpret_cast<uintptr_t>(d) % 16 != 8) return fill(count, d, v);
    // An array that begins in the middle of an element's alignment: so that vectors can be aligned all the same.
    d->re = v.re;
    fill(count - 1, reinterpret_cast<c64f*>(&d->im), {v.im, v.re});
    d[count - 1].im = v.im;
}

void set_unchecked(f64 v, f64* d, int idx, int n)
{
    if (n > 0) set(v, element<sizeof(f64)>(d, idx), n);
}

template <class T> void zero(T* d, int n) { set(T{}, d, n); }

} // namespace
#include "entries/signal/elementwise/copy.inc"
} // namespace sig5d::SIG5D_VARIANT
