// Half precision: five bits of exponent, ten of significand. By integers, or where AVX2 is by the processor's own
// conversions, which no mode of the thread influences.
#include "frame/entry.h"
#include "kernel/map.h"
#include "kernel/rounding.h"
#include "kernel/saturate.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Half and single precision with the same significand differ by 13 bits in its place and by 112 in the exponent.
constexpr i32 halfInfinity = 0x7C00;
constexpr u32 rebias = 112u << 23, singleInfinity = 0x7F800000, singleSign = 0x80000000,
              leastNormal = 113u << 23; // of half precision: 2^-14

#if SIG5D_LEVEL == 0

struct FromHalf {
    f32 one(f16 h) const
    {
        const u32 sign = static_cast<u32>(h.bits & 0x8000) << 16, magnitude = h.bits & 0x7FFF;
        if (magnitude >= halfInfinity) {
            const u32 quiet = magnitude > halfInfinity ? 1u << 22 : 0;
            return __builtin_bit_cast(f32, sign | singleInfinity | magnitude << 13 | quiet);
        }
        if (magnitude >= 0x400) return __builtin_bit_cast(f32, sign | (rebias + (magnitude << 13)));
        const f32 x = static_cast<f32>(magnitude) * 0x1p-24f;
        return sign ? -x : x;
    }
};

#elif SIG5D_LEVEL < 5

// The processor's numbers below the normal ones may be slow or switched off: half precision's come by way of a
// difference of normal ones.
template <class V> inline auto from_half(V h)
{
    constexpr int n = sizeof(V) / 4;
    using Signed = Vec<i32, n>;
    const V magnitude = h & 0x7FFF, sign = (h ^ magnitude) << 16;
    const V special = reinterpret_cast<V>(reinterpret_cast<Signed>(magnitude) > 0x7BFF);
    const V small = reinterpret_cast<V>(reinterpret_cast<Signed>(magnitude) < 0x400);
    const V x = (magnitude << 13) + rebias + (special & rebias) + (small & (1u << 23));
    const auto y = reinterpret_cast<Vec<f32, n>>(x) - reinterpret_cast<Vec<f32, n>>(small & leastNormal);
    // The difference made NaNs quiet; one of zero would be -0 where the thread rounds downward.
    return reinterpret_cast<Vec<f32, n>>((reinterpret_cast<V>(y) & ~singleSign) | sign);
}

struct FromHalf {
    template <int n> auto to(const f16* p) const
    {
        const auto h = load_as_32<n>(reinterpret_cast<const u16*>(p));
        return from_half(reinterpret_cast<Vec<u32, sizeof(h) / 4>>(h));
    }
};

#else

struct FromHalf {
    template <int n> auto to(const f16* p) const
    {
        const __m128i h = bits(load_part<2 * n>(reinterpret_cast<const u16*>(p)));
        if constexpr (n == 8)
            return _mm256_cvtph_ps(h);
        else
            return _mm_cvtph_ps(h);
    }
};

#endif

void convert(const f16* a, f32* d, int n) { map(static_cast<size_t>(n), d, Same{}, converted(a, FromHalf{})); }

#if SIG5D_LEVEL >= 5

// By the processor, which knows neither ties away from zero nor an overflow to infinity when rounding toward zero, and
// would raise an exception at any overflow.
template <Rounding mode> struct ToHalf {
    // Where no magnitude reaches 2, which takes one test to see, little is left to do.
    template <class V> static V prepared(V x, bool small)
    {
        using I = Vec<i32, sizeof(V) / 4>;
        constexpr i32 infinite = static_cast<i32>(singleInfinity);
        constexpr f32 beyond = mode == TowardZero ? 0x1p16f : 0x1.ffep15f; // the least that becomes infinite
        const I bits = reinterpret_cast<I>(x);
        if (small) return mode == NearestAway ? reinterpret_cast<V>(bits | 1) : x;
        const I magnitude = bits & 0x7FFFFFFF;
        const I overflow = magnitude > all_lanes<I>(__builtin_bit_cast(i32, beyond) - 1);
        I y = (bits ^ magnitude) | larger(magnitude, overflow & infinite); // NaNs stay
        // The last bit, far below those that stay, makes more than a tie of a tie.
        if constexpr (mode == NearestAway) y |= ~overflow & 1;
        return reinterpret_cast<V>(y);
    }

    template <int n> auto to(const f32* p) const
    {
        constexpr int direction = mode == TowardZero ? _MM_FROUND_TO_ZERO : _MM_FROUND_TO_NEAREST_INT;
        if constexpr (n == 16) {
            auto low = loadn<8>(p), high = loadn<8>(p + 8);
            const bool small =
                _mm256_testz_si256(_mm256_or_si256(bits(low), bits(high)), _mm256_set1_epi32(0x40000000));
            if (small) {
                low = prepared(low, true);
                high = prepared(high, true);
            } else {
                low = prepared(low, false);
                high = prepared(high, false);
            }
            return reinterpret_cast<Vec<i16, 16>>(
                _mm256_set_m128i(_mm256_cvtps_ph(high, direction), _mm256_cvtps_ph(low, direction)));
        } else if constexpr (n == 8) {
            return reinterpret_cast<Vec<i16, 8>>(_mm256_cvtps_ph(prepared(loadn<8>(p), false), direction));
        } else {
            return reinterpret_cast<Vec<i16, 8>>(_mm_cvtps_ph(prepared(load_lanes<n>(p), false), direction));
        }
    }
};

template <Rounding mode> void to_half(const f32* a, f16* d, int n)
{
    map<Medium>(static_cast<size_t>(n), reinterpret_cast<i16*>(d), Same{}, converted(a, ToHalf<mode>{}));
}

void convert(const f32* a, f16* d, int n, int mode)
{
    if (mode == TowardZero) return to_half<TowardZero>(a, d, n);
    if (mode == NearestEven) return to_half<NearestEven>(a, d, n);
    to_half<NearestAway>(a, d, n);
}

#else

// Single precision to half: magnitudes by their bits, as integers.
// Normal numbers: half a unit of the last place that stays, or what the mode wants instead, is added to the bits before
// the others are cut off; a carry goes on into the exponent and from the largest one to infinity.
// Below 2^-14 the result is a multiple of 2^-24: rounded like any other integer.

// The plain form, for any mode.
inline f16 half_of(f32 x, int mode)
{
    const u32 bits = __builtin_bit_cast(u32, x), sign = bits >> 16 & 0x8000, magnitude = bits & ~singleSign;
    u32 h;
    if (magnitude > singleInfinity)
        h = halfInfinity | 0x200 | (magnitude >> 13 & 0x3FF);
    else if (magnitude < leastNormal)
        h = static_cast<u32>(rounded<Limits<16, true>>(__builtin_bit_cast(f32, magnitude), Scale(-24), mode));
    else {
        const u32 r = magnitude - rebias;
        h = (r + (mode == NearestEven ? 0xFFF + (r >> 13 & 1) : mode == NearestAway ? 0x1000 : 0)) >> 13;
        h = h < halfInfinity ? h : halfInfinity;
    }
    return {static_cast<u16>(sign | h)};
}

void to_half_plain(const f32* a, f16* d, int n, int mode)
{
    for (int i = 0; i < n; ++i) d[i] = half_of(a[i], mode);
}

#if SIG5D_LEVEL > 0

template <bool even> struct ToHalf {
    i32 carry; // what rounding adds to normal numbers, besides the last bit if "even"
    f32 bias;  // what rounding adds to small ones

    // Without the sign. Where a number is normal the first way gives more than the second, otherwise less.
    template <class V> auto magnitudes(V bits) const
    {
        constexpr i32 least = static_cast<i32>(leastNormal), infinite = static_cast<i32>(singleInfinity);
        using F = Vec<f32, sizeof(V) / 4>;
        const V magnitude = bits & 0x7FFFFFFF;
        V r = magnitude - static_cast<i32>(rebias);
        if constexpr (even) r += r >> 13 & 1;
        const V normal = (r + carry) >> 13;
        const F y = reinterpret_cast<F>(smaller(magnitude, all_lanes<V>(least))) * 0x1p24f;
        const V small = even ? nearest(y) : truncated(y + bias);
        const V h = smaller(larger(normal, small), all_lanes<V>(halfInfinity));
        return h | (((magnitude >> 13 & 0x3FF) | 0x200) & (magnitude > infinite));
    }

    template <int n> auto to(const f32* p) const
    {
        const auto signless = gather<i16, n>(p, [this]<int k>(const f32* q) {
            const auto x = load_lanes<k>(q);
            return magnitudes(reinterpret_cast<Vec<i32, sizeof(x) / 4>>(x));
        });
        const auto high = gather<i16, n>(p, []<int k>(const f32* q) {
            const auto x = load_lanes<k>(q);
            return reinterpret_cast<Vec<i32, sizeof(x) / 4>>(x) >> 16;
        });
        return signless | (high & static_cast<i16>(-32768));
    }
};

#endif

void convert(const f32* a, f16* d, int n, int mode)
{
#if SIG5D_LEVEL > 0
    i16* const to = reinterpret_cast<i16*>(d);
    if (mode == NearestEven && rounds_to_nearest())
        return map<Medium>(static_cast<size_t>(n), to, Same{}, converted(a, ToHalf<true>{0xFFF, 0}));
    if (mode != NearestEven && rounds_to_nearest())
        return map<Medium>(
            static_cast<size_t>(n), to, Same{},
            converted(a, ToHalf<false>{mode == NearestAway ? 0x1000 : 0, mode == NearestAway ? belowHalf<f32> : 0}));
#endif
    to_half_plain(a, d, n, mode);
}

#endif

} // namespace
#include "entries/signal/elementwise/convert_half.inc"
} // namespace sig5d::SIG5D_VARIANT
