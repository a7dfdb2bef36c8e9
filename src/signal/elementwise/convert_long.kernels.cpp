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
        const auto x = reinterpret_cast<Vec<u64, (n < 2 ? 2 : n)>>(load_lanes<n>(p));
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

#if SIG5D_LEVEL >= 3

inline __m128d integral(__m128d x, int) { return _mm_round_pd(x, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC); }
inline __m128d integral(__m128d x) { return _mm_round_pd(x, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC); }
inline __m128d floor(__m128d x) { return _mm_floor_pd(x); }
#if SIG5D_LEVEL >= 5
inline __m256d integral(__m256d x, int) { return _mm256_round_pd(x, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC); }
inline __m256d integral(__m256d x) { return _mm256_round_pd(x, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC); }
inline __m256d floor(__m256d x) { return _mm256_floor_pd(x); }
#endif

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
            y = integral(y, 0);
        else
            y = integral(y + with_sign_of(y, bias));
        const V high = floor(y * 0x1p-32), low = y - high * 0x1p32;
        const U highBits = reinterpret_cast<U>(high + 0x1.8p52) << 32,
                lowBits = reinterpret_cast<U>(low + 0x1p52) ^ bits52;
        const U beyond = reinterpret_cast<U>(x > splatn<n>(largest)) >> 1; // all bits but the sign
        return reinterpret_cast<I>((highBits + lowBits) | beyond);
    }
    template <int n> auto to(const f64* p) const { return rounded(load_lanes<n>(p)); }
};

#endif

[[gnu::noinline]] void convert(const f64* a, i64* d, int n, int mode, int s)
{
#if SIG5D_LEVEL >= 3
    const Scale scale(s, mostScaled<f64>);
    if (scale.simple() && rounds_to_nearest()) {
        const size_t count = static_cast<size_t>(n);
        if (mode == NearestEven) return convert_compact(count, a, d, RoundedLong<true>(scale.first, 0));
        return convert_compact(count, a, d, RoundedLong<false>(scale.first, mode == NearestAway ? belowHalf<f64> : 0));
    }
#endif
    convert_plain(a, d, n, mode, Scale(s));
}

} // namespace
#include "entries/signal/elementwise/convert_long.inc"
} // namespace sig5d::SIG5D_VARIANT
