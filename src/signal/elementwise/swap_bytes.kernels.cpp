// Reversal of the bytes of each element.
#include "frame/entry.h"
#include "kernel/map.h"
#include "kernel/simd/triples.h"
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
        if constexpr (hasByteShuffle) {
            return as<V>(reversed<group>(as<Vec<u8, bytes>>(v), std::make_index_sequence<bytes>{}));
        } else { // the two of each pair, then the pairs
            using Pairs = Vec<u16, bytes / 2>;
            const Pairs pairs = as<Pairs>(v), swapped = pairs << 8 | pairs >> 8;
            return as<V>(reversed<group / 2>(swapped, std::make_index_sequence<bytes / 2>{}));
        }
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

#if SIG5D_LEVEL == 0

void swap_bytes(const u24* a, u24* d, int n) { swap_plain(static_cast<size_t>(n), a, d); }

#else

// Windows of 16 bytes that hold five elements, 15 bytes from one to the next. The byte beyond is stored as it was read,
// and stored again with its own element.
inline Vec<u8, 16> swapped_window(Vec<u8, 16> v)
{
    return __builtin_shufflevector(v, v, 2, 1, 0, 5, 4, 3, 8, 7, 6, 11, 10, 9, 14, 13, 12, 15);
}

inline void swap_windows(size_t n, const u24* a, u24* d)
{
    constexpr size_t step = 15;
    const u8* p = reinterpret_cast<const u8*>(a);
    u8* q = reinterpret_cast<u8*>(d);
    size_t left = 3 * n;
    u8* const last = q + (left - step);
    // The last five elements, in the upper 15 bytes of what is read.
    const auto tail = swapped_window(bytes_from<1>(loadn<16>(p + (left - 16))));
    auto v0 = loadn<16>(p);
    for (; left >= step + 16; left -= step) { // every window is loaded before its first byte is stored
        const auto next = loadn<16>(p += step);
        store_at(q, swapped_window(v0));
        q += step;
        v0 = next;
    }
    store_at(q, swapped_window(v0));
    store_part<8>(last, tail);
    store_part<8>(last + 7, bytes_from<7>(tail));
}
inline void swap_few(size_t n, const u24* a, u24* d)
{
    if constexpr (hasByteShuffle) {
        if (n >= 6) return swap_windows(n, a, d);
    }
    swap_plain(n, a, d);
}

// The first byte of an element comes from two bytes behind, the last from two before, the middle one stays.
using Bytes = Vec<u8>;
constexpr size_t L = vectorBytes;

// Without a shuffle of bytes: from these places of an element, in the k-th vector of a group.
template <int place, int k, size_t... j> inline Bytes every_third(std::index_sequence<j...>)
{
    return Bytes{static_cast<u8>((j + k) % 3 == place ? 0xFF : 0)...};
}
template <int k> inline Bytes chosen(Bytes behind, Bytes here, Bytes before)
{
    constexpr auto all = std::make_index_sequence<L>{};
    return (behind & every_third<0, k>(all)) | (here & every_third<1, k>(all)) | (before & every_third<2, k>(all));
}
template <class V> inline Triples moved_group(const u8* p, V x0, V x1, V x2)
{
    // Nothing outside the group: in place that would wait for the store just before.
    return {chosen<0>(loadn<L>(p + 2), x0, bytes_up<2>(x0)), chosen<1>(loadn<L>(p + L + 2), x1, loadn<L>(p + L - 2)),
            chosen<2>(bytes_from<2>(x2), x2, loadn<L>(p + 2 * L - 2))};
}

// With it: of each 16 bytes, where the j-th comes from: one of them, or of their neighbours.
constexpr u8 from_here(size_t j, size_t place)
{
    const size_t from = place == 0 ? j + 2 : place == 2 ? j - 2 : j;
    return static_cast<u8>(from < 16 ? from : 0x80);
}
constexpr u8 from_neighbours(size_t j, size_t place)
{
    return static_cast<u8>(from_here(j, place) < 16 ? 0x80 : place == 0 ? j - 14 : j + 14);
}
template <int k, class V, size_t... j> inline V swapped_vector(V here, V other, std::index_sequence<j...>)
{
    return as<V>(bytes_at(bits(here), bits(V{from_here(j % 16, (j + k * L) % 3)...})) |
                 bytes_at(bits(other), bits(V{from_neighbours(j % 16, (j + k * L) % 3)...})));
}
template <class V> inline Triples shuffled_group(V x0, V x1, V x2)
{
    const Triples other = neighbours_of(x0, x1, x2);
    constexpr auto all = std::make_index_sequence<L>{};
    return {swapped_vector<0>(x0, other.v[0], all), swapped_vector<1>(x1, other.v[1], all),
            swapped_vector<2>(x2, other.v[2], all)};
}
inline Triples swapped_group(const u8* p)
{
    const Bytes x0 = in_register(loadn<L>(p)), x1 = in_register(loadn<L>(p + L)), x2 = in_register(loadn<L>(p + 2 * L));
    if constexpr (hasByteShuffle)
        return shuffled_group(x0, x1, x2);
    else
        return moved_group(p, x0, x1, x2);
}

// As many groups as there are. Returns the elements that are left.
template <class Store> inline size_t swap_groups(size_t n, const u8*& p, u8*& q, Store write)
{
    for (; n >= L; n -= L) {
        const Triples group = swapped_group(p);
        for (int k = 0; k < 3; ++k) write(q + k * L, group.v[k]);
        p += 3 * L;
        q += 3 * L;
        pin(q);
    }
    return n;
}

void swap_bytes(const u24* a, u24* d, int n)
{
    size_t left = static_cast<size_t>(n);
    // So many elements reach an aligned address: 3 * 11 is 1 modulo the vector's size.
    const size_t skip = -reinterpret_cast<uintptr_t>(d) * 11 % L;
    if (left >= skip + L) {
        swap_few(skip, a, d);
        const u8* p = reinterpret_cast<const u8*>(a + skip);
        u8* q = reinterpret_cast<u8*>(d + skip);
        left -= skip;
        if (streamingPays(3 * left) && apart(span(d, static_cast<size_t>(n)), span(a, static_cast<size_t>(n)))) {
            left = swap_groups(left, p, q, [](u8* to, Bytes v) { stream(to, v); });
            stream_end();
        } else {
            left = swap_groups(left, p, q, [](u8* to, Bytes v) { store_at(to, v); });
        }
        a = reinterpret_cast<const u24*>(p);
        d = reinterpret_cast<u24*>(q);
    }
    swap_few(left, a, d);
}

#endif

} // namespace
#include "entries/signal/elementwise/swap_bytes.inc"
} // namespace sig5d::SIG5D_VARIANT
