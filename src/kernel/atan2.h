// The angle of a point, for numbers and vectors of numbers, the same bits for both.
#pragma once
#include "kernel/parts.h"
#include "kernel/polynomial.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The second, if they are equal or one is NaN.
inline f64 minimum(f64 a, f64 b) { return a < b ? a : b; }
inline f64 maximum(f64 a, f64 b) { return a > b ? a : b; }
#if SIG5D_LEVEL > 0
inline Vec<f64, 2> minimum(Vec<f64, 2> a, Vec<f64, 2> b) { return _mm_min_pd(a, b); }
inline Vec<f64, 2> maximum(Vec<f64, 2> a, Vec<f64, 2> b) { return _mm_max_pd(a, b); }
#if SIG5D_LEVEL >= 4
inline Vec<f64, 4> minimum(Vec<f64, 4> a, Vec<f64, 4> b) { return _mm256_min_pd(a, b); }
inline Vec<f64, 4> maximum(Vec<f64, 4> a, Vec<f64, 4> b) { return _mm256_max_pd(a, b); }
#endif
#endif

// A slope between 0 and 1 as the tangent of its angle less an eighth of a turn (pi/4) or none: hi + lo to about 100
// bits.
template <class V> struct Slope {
    V hi, lo, eighths;
};

// smaller / larger, both positive or 0, where nothing over- or underflows. Beyond 1/2 it is
// tan(pi/4 + atan((smaller - larger) / (smaller + larger))), so that the tangent is within [-1/3, 1/2].
template <class V> inline Slope<V> slope(V smaller, V larger)
{
    constexpr u64 upper = ~u64{0} << 27;
    const V zero = V{}, one = constant<V>(1.0);
    const auto beyond = smaller + smaller > larger;
    const V p = smaller - (beyond ? larger : zero); // exact
    const V more = beyond ? smaller : zero, q = larger + more, qLow = more - (q - larger);

    // The residual p - tangent * (q + qLow) is exact but for its last bits, since products of halves are (Dekker,
    // 1971).
    const V inverse = one / q, tangent = p * inverse;
    const V tangentUpper = keep_bits(tangent, upper), qUpper = keep_bits(q, upper);
    const V residual =
        ((p - tangentUpper * qUpper) - tangentUpper * (q - qUpper)) - ((tangent - tangentUpper) * q + tangent * qLow);
    return {tangent, residual * inverse, beyond ? one : zero};
}

// The angle of the point (x, y) whose smaller part in absolute value is the slope times its larger one.
template <class V> inline V angle_of(Slope<V> a, V x, V y)
{
    // (1 - atan(t)/t) / t^2 in z = t^2: minimax polynomial on [0, 1/4], relative error of the arc tangent 2^-57.8.
    static constexpr f64 arc[] = {0x1.5555555555552p-2,  -0x1.99999999990d8p-3, 0x1.2492492452f6ap-3,
                                  -0x1.c71c71aa7769cp-4, 0x1.745d13753eb47p-4,  -0x1.3b135d9d94674p-4,
                                  0x1.110c38d564cacp-4,  -0x1.e17db6c88b3ebp-5, 0x1.ac4beccadf13ep-5,
                                  -0x1.773f420d0a613p-5, 0x1.2de1722847bffp-5,  -0x1.7c072bac43c10p-6,
                                  0x1.06ff505d8686cp-7};
    using Bits = BitsOf<V>;
    const V zero = V{}, one = constant<V>(1.0), z = a.hi * a.hi;
    // The low part counts 1/(1 + z)-fold, to which 1 - z is near enough. The arc tangent is a.hi - low.
    const V low = a.hi * (z * polynomial(arc, z)) - a.lo * (one - z);

    // For t the angle to the nearer axis, that to the positive real axis is 0 + t, pi/2 - t, pi/2 + t or pi - t: a
    // multiple of pi/4, whose upper part has 50 bits so that the product is exact, and the arc tangent or its opposite.
    const auto steep = absolute_value(y) > absolute_value(x);
    const auto behind = Bits::of(x) & Bits::all(signBit), turn = behind ^ Bits::of(steep ? constant<V>(-0.0) : zero);
    const V two = constant<V>(2.0), axis = two - (steep ? zero : with_sign(two, x));
    const V eighths = axis + Bits::back(Bits::of(a.eighths) ^ turn);
    const V start = eighths * constant<V>(0x1.921fb54442d18p-1);
    const V head = Bits::back(Bits::of(a.hi) ^ turn), tail = Bits::back(Bits::of(low) ^ turn);
    const V sum = start + head, lost = head - (sum - start);
    return with_sign(sum + ((lost + eighths * constant<V>(0x1.1a62633145c07p-55)) - tail), y);
}

// Zeros, infinities, NaN, and what the division would lose bits of.
[[gnu::noinline, gnu::cold]] f64 unusual_angle(f64 x, f64 y)
{
    constexpr f64 infinity = __builtin_inf();
    if (x != x || y != y) return x + y;
    const f64 a = absolute_value(x), b = absolute_value(y), smaller = a < b ? a : b, larger = a < b ? b : a;
    if (larger == 0) return angle_of({0.0, 0.0, 0.0}, x, y);
    if (larger == infinity) return angle_of({0.0, 0.0, smaller == infinity ? 1.0 : 0.0}, x, y);
    const f64 ratio = smaller / larger;
    if (ratio < 0x1p-60) return angle_of({ratio, 0.0, 0.0}, x, y);
    const f64 scale = larger < 1.0 ? 0x1p600 : 0x1p-600;
    return angle_of(slope(smaller * scale, larger * scale), x, y);
}

inline void replace_unusual(f64& angle, int, f64 x, f64 y) { angle = unusual_angle(x, y); }
template <class V> inline void replace_unusual(V& angle, int unusual, V x, V y)
{
    for (int i = 0; i < static_cast<int>(sizeof(V) / sizeof(f64)); ++i)
        if (unusual >> i & 1) angle[i] = unusual_angle(x[i], y[i]);
}

// atan2(y, x) in [-pi, pi], with the special values of the C standard.
template <class V> [[gnu::always_inline]] inline V angle(V x, V y)
{
    const V a = absolute_value(x), b = absolute_value(y), smaller = minimum(a, b), larger = maximum(b, a);
    const auto usual = (larger >= constant<V>(0x1p-450)) & (larger <= constant<V>(0x1p450)) &
                       ((smaller >= constant<V>(0x1p-900)) | (smaller == V{}));
    V result = angle_of(slope(smaller, larger), x, y);
    if (const int unusual = lanes_set(usual) ^ allLanes<V>; __builtin_expect(unusual, 0))
        replace_unusual(result, unusual, x, y);
    return result;
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
