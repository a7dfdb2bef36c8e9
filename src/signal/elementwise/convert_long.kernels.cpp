// Conversions between integers of 64 bits and double precision, for which there are no instructions before AVX-512, and
// in 32-bit code none but those of the old floating-point unit.
#include "frame/entry.h"
#include "kernel/map.h"
#include "kernel/rounding.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The halves of a number become the low bits of doubles whose leading bits say 2^52 and 2^84 + 2^63: the second,
// without those, is exact, and the sum rounds once.
constexpr u64 bits52 = 0x4330000000000000, bits84 = 0x4530000080000000;
constexpr f64 offsets = 0x1.00000801p84; // 2^84 + 2^63 + 2^52

struct ToDouble {
    f64 one(i64 x) const
    {
        const u64 low = (static_cast<u64>(x) & 0xFFFFFFFF) | bits52, high = static_cast<u64>(x) >> 32 ^ bits84;
        return __builtin_bit_cast(f64, high) - offsets + __builtin_bit_cast(f64, low);
    }
    template <int n> auto to(const i64* p) const
    {
        const auto x = reinterpret_cast<Vec<u64, (n < 2 ? 2 : n)>>(load_lanes<n>(p));
        using F = Vec<f64, sizeof(x) / 8>;
        return reinterpret_cast<F>((x >> 32) ^ bits84) - offsets + reinterpret_cast<F>((x & 0xFFFFFFFF) | bits52);
    }
};

void convert(const i64* a, f64* d, int n) { map(static_cast<size_t>(n), d, Same{}, converted(a, ToDouble{})); }

// The nearest integer by the bits of a double: its significand moved to where the units are.
constexpr f64 limit = 0x1p63;
constexpr u64 significand = (u64(1) << 52) - 1, leading = u64(1) << 52;

inline i64 rounded_long(f64 x, Scale scale, int mode)
{
    const f64 y = limited_product(x, scale);
    if (!(y > -limit)) return -0x7FFFFFFFFFFFFFFF - 1; // also NaN
    if (y >= limit) return 0x7FFFFFFFFFFFFFFF;
    const u64 bits = __builtin_bit_cast(u64, y), m = (bits & significand) | leading;
    const int down = 1075 - static_cast<int>(bits >> 52 & 0x7FF);
    u64 whole = 0;
    if (down <= 0) {
        whole = m << -down;
    } else if (down <= 53) {
        const u64 rest = m & ((u64(1) << down) - 1), half = u64(1) << (down - 1);
        whole = m >> down;
        if (mode == NearestEven) whole += rest > half || (rest == half && whole % 2 != 0);
        if (mode == NearestAway) whole += rest >= half;
    }
    return static_cast<i64>(bits >> 63 ? -whole : whole);
}

void convert_plain(const f64* a, i64* d, int n, int mode, Scale scale)
{
    for (int i = 0; i < n; ++i) d[i] = rounded_long(a[i], scale, mode);
}

// A rounded double is split into two of 32 bits, whose integers are the last bits of sums. All of that is exact.
template <bool even> struct RoundedLong {
    static constexpr f64 most = 0x1.fffffffffffffp62; // the largest double below the limit
    f64 factor, bias;                                 // bias: unless "even", added in magnitude before truncation
    f64 least, largest;                               // limits of what is scaled
    RoundedLong(f64 f, f64 b) : factor(f), bias(b), least(-limit / f), largest(most / f) {}

    template <class V> auto rounded(V x) const
    {
        constexpr int n = sizeof(V) / sizeof(f64);
        using I = Vec<i64, n>;
        using U = Vec<u64, n>;
        V y = smaller(larger(x, splatn<n>(least)), splatn<n>(largest)) * factor;
        if constexpr (even)
            y = nearest_whole(y);
        else
            y = without_fraction(y + with_sign_of(y, bias));
        const V high = floor(y * 0x1p-32), low = y - high * 0x1p32;
        const U highBits = reinterpret_cast<U>(high + 0x1.8p52) << 32,
                lowBits = reinterpret_cast<U>(low + 0x1p52) ^ bits52;
        const U beyond = reinterpret_cast<U>(x > splatn<n>(largest)) >> 1; // all bits but the sign
        return reinterpret_cast<I>((highBits + lowBits) | beyond);
    }
    template <int n> auto to(const f64* p) const { return rounded(load_lanes<n>(p)); }
};

[[gnu::noinline]] void convert(const f64* a, i64* d, int n, int mode, int s)
{
    if constexpr (hasFloor) {
        const Scale scale(s, mostScaled<f64>);
        const size_t count = static_cast<size_t>(n);
        if (scale.simple() && rounds_to_nearest()) {
            if (mode == NearestEven)
                return map<Medium>(count, d, Same{}, converted(a, RoundedLong<true>(scale.first, 0)));
            const f64 bias = mode == NearestAway ? belowHalf<f64> : 0;
            return map<Medium>(count, d, Same{}, converted(a, RoundedLong<false>(scale.first, bias)));
        }
    }
    convert_plain(a, d, n, mode, Scale(s));
}

} // namespace
#include "entries/signal/elementwise/convert_long.inc"
} // namespace sig5d::SIG5D_VARIANT
