// Conversions between integers of 64 bits and double precision, for which there are no instructions before AVX-512, and
// in 32-bit code none but those of the old floating-point unit.
#include "frame/entry.h"
#include "kernel/convert_loop.h"
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
#if SIG5D_LEVEL > 0
    template <int n> auto to(const i64* p) const
    {
        const auto x = reinterpret_cast < Vec<u64, n<2 ? 2 : n>>(load_lanes<n>(p));
        using F = Vec<f64, sizeof(x) / 8>;
        return reinterpret_cast<F>((x >> 32) ^ bits84) - offsets + reinterpret_cast<F>((x & 0xFFFFFFFF) | bits52);
    }
#endif
};

void convert(const i64* a, f64* d, int n) { convert_all(static_cast<size_t>(n), a, d, ToDouble{}); }

// The nearest integer by the bits of a double: its significand moved to where the units are.
constexpr f64 limit = 0x1p63;
constexpr u64 significand = (u64(1) << 52) - 1, leading = u64(1) << 52;

inline i64 rounded_long(f64 x, Scale scale, int mode)
{
    const f64 y = x * scale.first * scale.second;
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

#if SIG5D_LEVEL >= 5

inline Vec<u64> left(Vec<u64> x, Vec<u64> count) // counts of 64 and more give 0
{
    return reinterpret_cast<Vec<u64>>(
        _mm256_sllv_epi64(reinterpret_cast<__m256i>(x), reinterpret_cast<__m256i>(count)));
}
inline Vec<u64> right(Vec<u64> x, Vec<u64> count)
{
    return reinterpret_cast<Vec<u64>>(
        _mm256_srlv_epi64(reinterpret_cast<__m256i>(x), reinterpret_cast<__m256i>(count)));
}

// The same for four numbers. What is cut off is compared with "half" of a unit or, where that is not enough for a tie,
// one less: with even results, "odd" decides.
struct RoundedLong {
    f64 factor;
    u64 up;  // 0: toward zero
    u64 odd; // 1: ties to even, 0: away from zero

    Vec<i64> rounded(Vec<f64> x) const
    {
        const Vec<f64> y = x * factor;
        const auto bits = reinterpret_cast<Vec<u64>>(y);
        const Vec<u64> m = (bits & significand) | leading;
        const Vec<u64> down = 1075 - (bits >> 52 & 0x7FF); // negative ones are large counts
        const Vec<u64> floor = right(m, down);
        const Vec<u64> whole = floor | left(m, -down);
        const Vec<u64> unit = left(splat(u64(1)), down), half = unit >> 1;
        const Vec<u64> rest = m & (unit - 1) & reinterpret_cast<Vec<u64>>(unit != 0);
        const Vec<u64> tie = half - 1 + (odd & ~floor & 1);
        const auto above =
            reinterpret_cast<Vec<u64>>(reinterpret_cast<Vec<i64>>(rest) > reinterpret_cast<Vec<i64>>(tie));
        const Vec<u64> magnitude = whole + (above & reinterpret_cast<Vec<u64>>(half != 0) & up);
        const auto sign = reinterpret_cast<Vec<u64>>(reinterpret_cast<Vec<i64>>(bits) < 0);
        const auto value = reinterpret_cast<Vec<i64>>((magnitude ^ sign) - sign);
        constexpr i64 most = 0x7FFFFFFFFFFFFFFF;
        const auto limited = y >= limit ? splat(most) : value;
        return y > -limit ? limited : splat(-most - 1);
    }
    template <int n> auto to(const f64* p) const
    {
        if constexpr (n == 4) {
            return rounded(loadn<4>(p));
        } else {
            const Vec<f64, 2> x = load_lanes<n>(p);
            const Vec<i64> y = rounded(Vec<f64>{x[0], x[1], x[0], x[1]});
            return Vec<i64, 2>{y[0], y[1]};
        }
    }
};

#endif

void convert(const f64* a, i64* d, int n, int mode, int s)
{
    const Scale scale(s);
#if SIG5D_LEVEL >= 5
    if (scale.simple())
        return convert_compact(static_cast<size_t>(n), a, d,
                               RoundedLong{scale.first, mode != TowardZero, mode == NearestEven});
#endif
    convert_plain(a, d, n, mode, scale);
}

} // namespace
#include "entries/signal/elementwise/convert_long.inc"
} // namespace sig5d::SIG5D_VARIANT
