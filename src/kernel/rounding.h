// Floating-point numbers times a power of two, rounded to integers in one of three ways, within limits. Not with the
// processor's rounding mode, which belongs to the caller's thread.
#pragma once
#include "kernel/lanes.h"
#include "kernel/minmax.h"
#include "kernel/power_of_two.h"
#if SIG5D_LEVEL > 0
#include <immintrin.h>
#endif

namespace sig5d::SIG5D_VARIANT {
namespace {

enum Rounding { TowardZero, NearestEven, NearestAway };

// The limits of integers of so many bits, 32 at most.
template <int bits, bool isSigned> struct Limits {
    static constexpr f64 high = static_cast<f64>((i64(1) << (bits - isSigned)) - 1), low = isSigned ? -high - 1 : 0;
};

// The plain form. A NaN becomes the lower limit.
template <class Bounds> inline i32 rounded(f64 x, Scale scale, int mode)
{
    f64 y = x * scale.first * scale.second;
    y = smaller(larger(y, Bounds::low), Bounds::high);
    const i32 whole = static_cast<i32>(y);
    const f64 rest = __builtin_fabs(y - whole);
    const bool tie = rest == 0.5, up = mode == NearestAway   ? rest >= 0.5
                                       : mode == NearestEven ? rest > 0.5 || (tie && whole % 2 != 0)
                                                             : false;
    return up ? (y < 0 ? whole - 1 : whole + 1) : whole;
}

#if SIG5D_LEVEL > 0

// The processor rounds to the nearest, ties to even.
inline bool rounds_to_nearest() { return (_mm_getcsr() & _MM_ROUND_MASK) == _MM_ROUND_NEAREST; }

inline Vec<i32, 4> nearest(Vec<f32, 4> x) { return reinterpret_cast<Vec<i32, 4>>(_mm_cvtps_epi32(x)); }
inline Vec<i32, 4> truncated(Vec<f32, 4> x) { return reinterpret_cast<Vec<i32, 4>>(_mm_cvttps_epi32(x)); }
inline Vec<i32, 4> nearest(Vec<f64, 2> x) { return reinterpret_cast<Vec<i32, 4>>(_mm_cvtpd_epi32(x)); }
inline Vec<i32, 4> truncated(Vec<f64, 2> x) { return reinterpret_cast<Vec<i32, 4>>(_mm_cvttpd_epi32(x)); }
#if SIG5D_LEVEL >= 4
inline Vec<i32, 8> nearest(Vec<f32, 8> x) { return reinterpret_cast<Vec<i32, 8>>(_mm256_cvtps_epi32(x)); }
inline Vec<i32, 8> truncated(Vec<f32, 8> x) { return reinterpret_cast<Vec<i32, 8>>(_mm256_cvttps_epi32(x)); }
inline Vec<i32, 4> nearest(Vec<f64, 4> x) { return reinterpret_cast<Vec<i32, 4>>(_mm256_cvtpd_epi32(x)); }
inline Vec<i32, 4> truncated(Vec<f64, 4> x) { return reinterpret_cast<Vec<i32, 4>>(_mm256_cvttpd_epi32(x)); }
#endif

// Two registers of integers that came from doubles.
inline Vec<i32, 4> joined(Vec<i32, 4> low, Vec<i32, 4> high)
{
    return reinterpret_cast<Vec<i32, 4>>(_mm_unpacklo_epi64(bits128(low), bits128(high)));
}

// The largest number below one half: with it, truncation of the sum rounds to the nearest, ties away from zero.
template <class F> constexpr F belowHalf = sizeof(F) == 4 ? F(0x1.fffffep-2) : F(0x1.fffffffffffffp-2);

// A magnitude with the sign of each lane.
template <class F, class V> inline V with_sign_of(V y, F magnitude)
{
    using U = std::conditional_t<sizeof(F) == 4, u32, u64>;
    constexpr int n = sizeof(V) / sizeof(F);
    const auto sign = reinterpret_cast<Vec<U, n>>(y) & (U(1) << (8 * sizeof(F) - 1));
    return reinterpret_cast<V>(sign | reinterpret_cast<Vec<U, n>>(splatn<n>(magnitude)));
}

// Where the processor rounds to the nearest. F: type of the numbers and of the computation. Whatever does not fit
// becomes -2^31 in the conversion, also NaN: narrowing with saturation makes the lower limit of it, so that only the
// upper one takes an instruction. No saturation narrows to 24 bits, nor before SSE4.1 to 16 unsigned ones.
template <class F, class Bounds, Rounding mode, bool scaled = true> struct Rounded {
    F factor; // 1 unless "scaled"

    static constexpr f64 range = Bounds::high - Bounds::low;
    static constexpr bool saturates = range <= 65535 ? SIG5D_LEVEL >= 3 || Bounds::high < 65535 : range > 0x1p30;

    template <class V> auto lanes_of(V x) const
    {
        constexpr int n = sizeof(V) / sizeof(F);
        V y = x;
        if constexpr (scaled) y *= factor;
        if constexpr (mode == NearestAway) y = y + with_sign_of(y, belowHalf<F>);
        const auto whole = [](V z) {
            if constexpr (mode == NearestEven)
                return nearest(z);
            else
                return truncated(z);
        };
        if constexpr (sizeof(F) == 4 && Bounds::high > 0x1p30) {
            const auto beyond = y >= splatn<n>(F(0x1p31)); // single precision has no 2^31 - 1
            return whole(y) ^ reinterpret_cast<decltype(whole(y))>(beyond);
        } else {
            if constexpr (!saturates) y = larger(y, splatn<n>(static_cast<F>(Bounds::low)));
            return whole(smaller(splatn<n>(static_cast<F>(Bounds::high)), y));
        }
    }

    // n integers, in a register at least.
    template <int n> auto to(const f32* p) const { return lanes_of(load_lanes<n>(p)); }
    template <int n> auto to(const f64* p) const
    {
#if SIG5D_LEVEL < 4
        if constexpr (n == 4)
            return joined(to<2>(p), to<2>(p + 2));
        else
#endif
            return lanes_of(load_lanes<n>(p));
    }
};

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
