// Runs of elements within rows: copied, exchanged, set to zero. Matrices are walked row by row around them.
#pragma once
#include "kernel/map.h"
#include "matrix/overlap.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// d[k] = a[k], k increasing: what overlapping runs must get.
template <class T> inline void copy_in_order(const T* a, T* d, size_t n)
{
    for (size_t k = 0; k < n; ++k) {
        d[k] = a[k];
        one_by_one();
    }
}
template <class T> inline void exchange_in_order(T* a, T* b, size_t n)
{
    for (size_t k = 0; k < n; ++k) {
        const T x = a[k];
        a[k] = b[k];
        b[k] = x;
        one_by_one();
    }
}

inline void copy_bytes(size_t n, const u8* a, u8* d) { map(n, d, Same{}, a); }

// The runs have nothing in common.
template <size_t vector> [[gnu::noinline]] void copy_bytes_past_caches(size_t n, const u8* a, u8* d)
{
    const size_t skip = to_alignment<vector>(d) + vector;
    copy_bytes(skip, a, d);
    const size_t left = map_groups<Light>(n - skip, d + skip, PastCaches{}, Same{}, a + skip);
    stream_end();
    copy_bytes(left, a + (n - left), d + (n - left));
}

// The order of elements shows only where the destination begins inside the source. A run goes past the caches if the
// caller writes more than they hold and if it is so long that the lines at its ends, written in part, do not count.
template <class T> inline void copy_run(const T* a, T* d, size_t n, bool pastCaches)
{
    if constexpr (lanes<u8> == 1) {
        copy_in_order(a, d, n);
    } else {
        const size_t distance = reinterpret_cast<uintptr_t>(d) - reinterpret_cast<uintptr_t>(a), bytes = n * sizeof(T);
        const auto from = reinterpret_cast<const u8*>(a);
        const auto to = reinterpret_cast<u8*>(d);
        if (distance < bytes && distance) return copy_in_order(a, d, n);
        if (pastCaches && bytes >= 4096 && apart(span(a, n), span(d, n)))
            return copy_bytes_past_caches<vectorBytes>(bytes, from, to);
        copy_bytes(bytes, from, to);
    }
}

// Rows of at most two vectors, for which a call each would cost more than the copy. The matrices have nothing in
// common.
template <int bytes> void copy_short_rows(size_t rows, size_t n, const u8* a, u8* d, size_t aStep, size_t dStep)
{
    if constexpr (bytes > 1)
        if (n < bytes) return copy_short_rows<bytes / 2>(rows, n, a, d, aStep, dStep);
    for (; rows; --rows) {
        const auto head = load_lanes<bytes>(a), tail = load_lanes<bytes>(a + (n - bytes));
        store_lanes<bytes>(Ordinary{}, d, head);
        store_lanes<bytes>(Ordinary{}, d + (n - bytes), tail);
        a += aStep;
        d += dStep;
    }
}

template <int bytes> inline void exchange_short(size_t n, u8* a, u8* b)
{
    if (n >= bytes) {
        const auto aHead = load_lanes<bytes>(a), aTail = load_lanes<bytes>(a + (n - bytes));
        const auto bHead = load_lanes<bytes>(b), bTail = load_lanes<bytes>(b + (n - bytes));
        store_lanes<bytes>(Ordinary{}, a, bHead);
        store_lanes<bytes>(Ordinary{}, a + (n - bytes), bTail);
        store_lanes<bytes>(Ordinary{}, b, aHead);
        store_lanes<bytes>(Ordinary{}, b + (n - bytes), aTail);
    } else if constexpr (bytes > 1) {
        exchange_short<bytes / 2>(n, a, b);
    }
}

// As in map, the last vectors overlap the others: they are loaded first and stored at the end.
template <size_t L> inline void exchange_bytes(size_t n, u8* a, u8* b)
{
    if (n < L) return exchange_short<L / 2>(n, a, b);
    const auto aTail = loadn<L>(a + (n - L)), bTail = loadn<L>(b + (n - L));
    size_t k = 0;
    for (; k + 2 * L <= n; k += 2 * L) {
        const auto a0 = loadn<L>(a + k), a1 = loadn<L>(a + k + L), b0 = loadn<L>(b + k), b1 = loadn<L>(b + k + L);
        store_at(a + k, b0);
        store_at(a + k + L, b1);
        store_at(b + k, a0);
        store_at(b + k + L, a1);
    }
    if (k + L <= n) {
        const auto a0 = loadn<L>(a + k);
        store_at(a + k, loadn<L>(b + k));
        store_at(b + k, a0);
    }
    store_at(a + (n - L), bTail);
    store_at(b + (n - L), aTail);
}

template <class T> inline void exchange_runs(T* a, T* b, size_t n)
{
    if constexpr (lanes<u8> == 1) {
        exchange_in_order(a, b, n);
    } else {
        const size_t distance = reinterpret_cast<uintptr_t>(b) - reinterpret_cast<uintptr_t>(a), bytes = n * sizeof(T);
        if (distance == 0) return;
        if (distance < bytes || -distance < bytes) return exchange_in_order(a, b, n);
        exchange_bytes<vectorBytes>(bytes, reinterpret_cast<u8*>(a), reinterpret_cast<u8*>(b));
    }
}

template <class T> inline void zero_run(T* d, size_t n)
{
    if constexpr (lanes<u8> == 1) {
        for (size_t k = 0; k < n; ++k) d[k] = T{};
    } else {
        const Vec<u8> none{};
        map(n * sizeof(T), reinterpret_cast<u8*>(d), [none] { return none; });
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
