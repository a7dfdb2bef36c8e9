// Copy, move, set, zero.
#include "frame/entry.h"
#include "frame/index.h"
#include "kernel/pairs.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> void copy(const T* a, T* d, int n) { map_as_bytes(n, d, Same{}, a); }

// The mirror image of copy: for a destination that overlaps its source and begins behind it.
#if SIG5D_LEVEL == 0

template <class T> void copy_backwards(size_t n, const T* a, T* d)
{
    while (n-- > 0) d[n] = a[n];
}

#else

// At most four vectors, all loaded before any is stored.
void copy_few(size_t n, const u8* a, u8* d)
{
    constexpr size_t L = lanes<u8>;
    if (n < L) return map_bytes(n, d, Same{}, a);
    const Vec<u8> head = load(a), tail = load(a + (n - L));
    if (n > 2 * L) {
        const Vec<u8> second = load(a + L), third = load(a + (n - 2 * L));
        store_at(d + L, second);
        store_at(d + (n - 2 * L), third);
    }
    store_at(d, head);
    store_at(d + (n - L), tail);
}

[[gnu::noinline]] void copy_backwards(size_t n, const u8* a, u8* d)
{
    constexpr size_t L = lanes<u8>;
    if (n <= 4 * L) return copy_few(n, a, d);
    const Vec<u8> head = load(a), tail = load(a + (n - L));
    const size_t skip = reinterpret_cast<uintptr_t>(d + n) % L;
    size_t left = n - skip;
    u8* p = d + left;
    a += left;
    for (; left >= 4 * L; left -= 4 * L) {
        const Vec<u8> v0 = load(a - L), v1 = load(a - 2 * L), v2 = load(a - 3 * L), v3 = load(a - 4 * L);
        store_at(p - L, v0);
        pin(p);
        store_at(p - 2 * L, v1);
        pin(p);
        store_at(p - 3 * L, v2);
        pin(p);
        store_at(p - 4 * L, v3);
        p -= 4 * L;
        a -= 4 * L;
        pin(p);
    }
    for (; left > L; left -= L) store_at(p -= L, load(a -= L));
    store_at(d, head);
    store_at(d + (n - L), tail);
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

template <class T> T in_every_lane(T v) { return v; }

#else

template <class T> Vec<T> in_every_lane(T v) { return splat(v); }
Vec<u64> in_every_lane(c32s v)
{
    return splat(static_cast<u64>(static_cast<u32>(v.im)) << 32 | static_cast<u32>(v.re));
}

#endif

template <class T> [[gnu::noinline]] void fill(size_t n, T* d, T v)
{
    const auto all = in_every_lane(v);
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
