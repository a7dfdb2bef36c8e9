// Reversal of the bytes of each element.
#include "frame/entry.h"
#include "kernel/loops.h"
#include <utility>

namespace sig5d::SIG5D_VARIANT {
namespace {

#if SIG5D_LEVEL == 0

struct Swapped {
    u16 operator()(u16 x) const { return __builtin_bswap16(x); }
    u32 operator()(u32 x) const { return __builtin_bswap32(x); }
    u64 operator()(u64 x) const { return __builtin_bswap64(x); }
};

#else

// The units of each group of so many in reverse order.
template <size_t group, class V, size_t... i> inline V reversed(V v, std::index_sequence<i...>)
{
    return __builtin_shufflevector(v, v, (i ^ (group - 1))...);
}

struct Swapped {
    template <class V> V operator()(V v) const
    {
        constexpr size_t bytes = sizeof(V), group = sizeof(v[0]);
#if SIG5D_LEVEL == 1
        // There is no shuffle of bytes: the two of each pair, then the pairs.
        using Pairs = Vec<u16, bytes / 2>;
        const Pairs pairs = reinterpret_cast<Pairs>(v), swapped = pairs << 8 | pairs >> 8;
        return reinterpret_cast<V>(reversed<group / 2>(swapped, std::make_index_sequence<bytes / 2>{}));
#else
        using Bytes = Vec<u8, bytes>;
        return reinterpret_cast<V>(reversed<group>(reinterpret_cast<Bytes>(v), std::make_index_sequence<bytes>{}));
#endif
    }
};

#endif

template <class T> void swap_bytes(const T* a, T* d, int n) { map(static_cast<size_t>(n), d, Swapped{}, a); }

// Elements of three bytes, one at a time.
inline void swap_plain(size_t n, const u24* a, u24* d)
{
    for (size_t i = 0; i < n; ++i) {
        const u8 low = a[i].b[0], middle = a[i].b[1], high = a[i].b[2];
        d[i] = {{high, middle, low}};
    }
}

#if SIG5D_LEVEL < 2

void swap_bytes(const u24* a, u24* d, int n) { swap_plain(static_cast<size_t>(n), a, d); }

#else

// Windows of 16 bytes that hold five elements, 15 bytes from one to the next. The byte beyond is stored as it was read,
// and stored again with its own element.
inline Vec<u8, 16> swapped_window(Vec<u8, 16> v)
{
    return __builtin_shufflevector(v, v, 2, 1, 0, 5, 4, 3, 8, 7, 6, 11, 10, 9, 14, 13, 12, 15);
}

void swap_bytes(const u24* a, u24* d, int n)
{
    if (n < 6) return swap_plain(static_cast<size_t>(n), a, d);
    constexpr size_t step = 15;
    const u8* p = reinterpret_cast<const u8*>(a);
    u8* q = reinterpret_cast<u8*>(d);
    size_t left = 3 * static_cast<size_t>(n);
    u8* const last = q + (left - step);
    // The last five elements, in the upper 15 bytes of what is read.
    const auto tail = swapped_window(
        reinterpret_cast<Vec<u8, 16>>(_mm_srli_si128(reinterpret_cast<__m128i>(loadn<16>(p + (left - 16))), 1)));
    auto v0 = loadn<16>(p);
    for (; left >= 4 * step + 16; left -= 4 * step) { // every window is loaded before its first byte is stored
        const auto v1 = loadn<16>(p + step), v2 = loadn<16>(p + 2 * step), v3 = loadn<16>(p + 3 * step);
        const auto next = loadn<16>(p + 4 * step);
        put(q, swapped_window(v0));
        put(q + step, swapped_window(v1));
        put(q + 2 * step, swapped_window(v2));
        put(q + 3 * step, swapped_window(v3));
        v0 = next;
        p += 4 * step;
        q += 4 * step;
        keep(q);
    }
    for (; left >= step + 16; left -= step) {
        const auto next = loadn<16>(p += step);
        put(q, swapped_window(v0));
        q += step;
        v0 = next;
    }
    put(q, swapped_window(v0));
    store_part<8>(last, tail);
    store_part<8>(last + 7, reinterpret_cast<Vec<u8, 16>>(_mm_srli_si128(reinterpret_cast<__m128i>(tail), 7)));
}

#endif

} // namespace
#include "entries/signal/elementwise/swap_bytes.inc"
} // namespace sig5d::SIG5D_VARIANT
