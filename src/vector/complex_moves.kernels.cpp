// Complex numbers with their parts exchanged, or in reverse order: every bit is kept, but for changes of sign.
#include "frame/entry.h"
#include "vector/pairs.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

#if SIG5D_LEVEL == 0

// Parts as integers: 32-bit code may move doubles through x87 registers, where a signalling NaN becomes a quiet one.
using Moved = c64s;
constexpr i64 sign = static_cast<i64>(signBit);
inline c64s swapped(c64s x) { return {x.im, x.re}; }
inline c64s negated_real(c64s x) { return {x.re ^ sign, x.im}; }
inline c64s negated_imaginary(c64s x) { return {x.re, x.im ^ sign}; }

#else

using Moved = c64f;
template <class V> inline V negated_real(V x) { return negated_firsts(x); }
template <class V> inline V negated_imaginary(V x) { return conjugate(x); }

#endif

struct TimesI {
    template <class V> V operator()(V x) const { return negated_real(swapped(x)); }
};
struct Swapped {
    template <class V> V operator()(V x) const { return swapped(x); }
};
struct SwappedConjugate {
    template <class V> V operator()(V x) const { return negated_imaginary(swapped(x)); }
};

inline const Moved* moved(const c64f* a) { return reinterpret_cast<const Moved*>(a); }
inline Moved* moved(c64f* d) { return reinterpret_cast<Moved*>(d); }

template <class Op> [[gnu::noinline]] void each(size_t n, const c64f* a, c64f* d)
{
    map_pairs(n, moved(d), Op{}, moved(a));
}

void multiply_by_i(const c64f* a, c64f* d, u32 n) { each<TimesI>(n, a, d); }
void flip(const c64f* a, c64f* d, u32 n) { each<Swapped>(n, a, d); }
void flip_conj(const c64f* a, c64f* d, u32 n) { each<SwappedConjugate>(n, a, d); }

// An array read from its end on: a source of map.
struct Backwards {
    const Moved* end;
    Backwards operator+(size_t n) const { return {end - n}; }
};
inline Span span(Backwards a, size_t n) { return span(a.end - n, n); }

#if SIG5D_LEVEL == 0

template <int n> inline Moved load_lanes(Backwards a) { return a.end[-1]; }

[[gnu::noinline]] void reverse_in_place(size_t n, Moved* d)
{
    for (size_t i = 0, k = n - 1; i < n / 2; ++i, --k) {
        const Moved x = d[i];
        d[i] = d[k];
        d[k] = x;
    }
}

#else

// Its pairs in reverse order.
template <class V, size_t... i> inline V reversed_pairs(V v, std::index_sequence<i...>)
{
    return __builtin_shufflevector(v, v, (i ^ (sizeof...(i) - 2))...);
}
template <int n> inline auto load_lanes(Backwards a)
{
    return reversed_pairs(loadn<2 * n>(&(a.end - n)->re), std::make_index_sequence<2 * n>{});
}

// From both ends towards the middle, a vector at a time.
[[gnu::noinline]] void reverse_in_place(size_t n, Moved* d)
{
    constexpr size_t L = lanes<c64f>;
    Moved *p = d, *q = d + n;
    for (; static_cast<size_t>(q - p) >= 2 * L; p += L, q -= L) {
        const auto x = load_lanes<L>(Backwards{q}), y = load_lanes<L>(Backwards{p + L});
        store_at(p, x);
        store_at(q - L, y);
    }
    if (const size_t left = static_cast<size_t>(q - p); left > 1) map(left, p, Same{}, Backwards{q});
}

#endif

[[gnu::noinline]] void reverse(const c64f* a, c64f* d, u32 n)
{
    if (a == d)
        reverse_in_place(n, moved(d));
    else
        map(n, moved(d), Same{}, Backwards{moved(a) + n});
}

} // namespace
#include "entries/vector/complex_moves.inc"
} // namespace sig5d::SIG5D_VARIANT
