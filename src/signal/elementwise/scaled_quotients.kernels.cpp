// Quotients of integers, of two arrays or of an array and a value, scaled. A divisor of zero is a warning, after all
// elements have been computed.
//
// The rounded quotient of two floating-point numbers is on the same side of every tie as the exact one, or on it like
// that, if the significand has more bits than dividend, divisor and result leave open: doubles always do, single
// precision does for 8 bits, and for 16 bits while results are not scaled up.
#include "frame/entry.h"
#include "kernel/plain_rounding.h"
#include "kernel/repeated.h"
#include "kernel/scale.h"
#include <emmintrin.h>

namespace sig5d::SIG5D_VARIANT {
namespace {

// Beyond these scale factors all results are zero or limits. A zero divisor is taken for a number so small that any
// quotient is far beyond the limits, and that of zero is zero: no exceptions, and no infinity, which has no integer.
template <class F> constexpr int mostScaled = sizeof(F) == 4 ? 24 : 64;
template <class F> constexpr F insteadOfZero = sizeof(F) == 4 ? F(0x1p-60) : F(0x1p-200);

template <class F> inline F scale_of(int s)
{
    constexpr int most = mostScaled<F>;
    s = s < -most ? -most : s > most ? most : s;
    return static_cast<F>(__builtin_bit_cast(f64, static_cast<u64>(1023 - s) << 52));
}

// The plain form, for any rounding direction of the thread: that may change the last bit of the quotient only, which
// lies on the same side of ties as before.
template <class T> struct PlainQuotient {
    f64 scale;
    int& zeroDivisors;
    T operator()(T x, T y) const
    {
        zeroDivisors |= y == 0;
        const f64 q = x * scale / (y == 0 ? insteadOfZero<f64> : y);
        return saturated<T>(rounded<Limits<32, true>>(q, Scale(0), NearestEven));
    }
};
template <class T, class... A> [[gnu::noinline]] Status run_plain(size_t n, T* d, int s, A... a)
{
    int zeroDivisors = 0;
    const PlainQuotient<T> quotient{scale_of<f64>(s), zeroDivisors};
    for (size_t i = 0; i < n; ++i) d[i] = quotient(a[i]...);
    return zeroDivisors ? StsDivByZero : StsNoErr;
}

#if SIG5D_LEVEL > 0

// Within the range of 32-bit integers (nearly, in single precision, but no result is that large).
template <class F, class V> inline V quotient(V x, V y, F scale)
{
    const V least = all_lanes<V>(static_cast<F>(lowest_of<i32>)),
            most = all_lanes<V>(sizeof(F) == 4 ? F(0x1p30) : F(highest<i32>));
    const auto tiny = bits(all_lanes<V>(insteadOfZero<F>)) & bits(y == V{}); // zero has no bits of its own
    const V q = x * scale / as<V>(bits(y) | tiny);
    return smaller(larger(q, least), most);
}

// op of elements as floating-point numbers: of those that stand in 32-bit lanes; in lanes half as wide; a quarter.
template <class F, class Op, class V, class... W> inline V nearest_of(Op op, V x, W... y)
{
    if constexpr (sizeof(Lane<V>) == 1) {
        using H = Vec<i16, sizeof(V) / 2>;
        const H low = nearest_of<F>(op, as<H>(interleaved_low(x, V{})), as<H>(interleaved_low(y, V{}))...);
        const H high = nearest_of<F>(op, as<H>(interleaved_high(x, V{})), as<H>(interleaved_high(y, V{}))...);
        return packed(low, high);
    } else if constexpr (sizeof(Lane<V>) == 2) {
        const auto p = unpacked(x, x >> 15);
        return packed(nearest_of<F>(op, p.low, unpacked(y, y >> 15).low...),
                      nearest_of<F>(op, p.high, unpacked(y, y >> 15).high...));
    } else if constexpr (sizeof(F) == 4) {
        return nearest(op(singles(x), singles(y)...));
    } else {
        return nearest(op(lower_doubles(x), lower_doubles(y)...), op(upper_doubles(x), upper_doubles(y)...));
    }
}

template <class T, class F> struct Quotient {
    F scale;
    int& zeroDivisors;
    template <class V> V operator()(V x, V y) const
    {
        zeroDivisors |= byte_signs(bits(as<V>(y == V{}))) != 0;
        return nearest_of<F>([this](auto a, auto b) { return quotient(a, b, scale); }, x, y);
    }
};

// By a value of 8 or 16 bits that is not zero: the product with the reciprocal, which two roundings put off by at most
// 2^-8 / unit where it matters, with unit = |v| 2^s or, of quotients that are scaled up, |v|. Ties are multiples of
// 1/2, and a quotient that is none is at least 2^-1 / unit away from them. So rounding first to multiples of a power of
// two between 2^-4 / unit and 2^-3 / unit, by adding a large number, puts ties back in their places and makes no new
// ones.
template <class T, class F> struct QuotientByValue {
    F reciprocal, large;
    QuotientByValue(T v, int s)
    {
        using Bits = std::conditional_t<sizeof(F) == 4, u32, u64>;
        constexpr int digits = sizeof(F) == 4 ? 24 : 53;
        const F divisor = static_cast<F>(v), scale = scale_of<F>(s);
        const F perUnit = (scale < 1 ? scale : 1) / (divisor < 0 ? -divisor : divisor);
        const Bits exponent = __builtin_bit_cast(Bits, perUnit) >> (digits - 1) << (digits - 1);
        reciprocal = scale / divisor;
        large = __builtin_bit_cast(F, exponent) * static_cast<F>(u64(3) << (digits - 5)); // 1.5 * 2^(digits - 4)
    }
    template <class V> V operator()(V x) const
    {
        return nearest_of<F>([this](auto a) { return on_grid(a * all_lanes<decltype(a)>(reciprocal)); }, x);
    }
    template <class V> V on_grid(V q) const
    {
        // Beyond the limits by as much as makes no difference. Single precision gets nothing of 16 bits to scale up.
        if constexpr (sizeof(T) == 1 || sizeof(F) == 8) q = smaller(q, all_lanes<V>(static_cast<F>(highest<T> + 1)));
        if constexpr (sizeof(F) == 8) q = larger(q, all_lanes<V>(static_cast<F>(lowest_of<T> - 1)));
        return q + all_lanes<V>(large) - all_lanes<V>(large);
    }
};

template <class F, class T, class... A> [[gnu::noinline]] Status run(size_t n, T* d, int s, A... a)
{
    int zeroDivisors = 0;
    map<Heavy<2>>(n, d, Quotient<T, F>{scale_of<F>(s), zeroDivisors}, a...);
    return zeroDivisors ? StsDivByZero : StsNoErr;
}
template <class F, class T> [[gnu::noinline]] void run_by_value(size_t n, const T* a, T v, T* d, int s)
{
    map<Heavy<2>>(n, d, QuotientByValue<T, F>{v, s}, a);
}

// Single precision is enough.
template <class T> constexpr bool isShort(int s) { return sizeof(T) == 1 || (sizeof(T) == 2 && s >= 0); }

#endif

// b / a: the divisor comes first. Vectors need a processor that rounds to the nearest.
template <class T> Status divide(const T* a, const T* b, T* d, int n, int s)
{
#if SIG5D_LEVEL > 0
    if (rounds_to_nearest())
        return isShort<T>(s) ? run<f32>(part_count(d, n), d, s, b, a) : run<f64>(part_count(d, n), d, s, b, a);
#endif
    return run_plain(part_count(d, n), d, s, b, a);
}
template <class T> void divide(const T* a, T v, T* d, int n, int s)
{
#if SIG5D_LEVEL > 0
    if (rounds_to_nearest())
        return isShort<T>(s) ? run_by_value<f32>(part_count(d, n), a, v, d, s)
                             : run_by_value<f64>(part_count(d, n), a, v, d, s);
#endif
    run_plain(part_count(d, n), d, s, a, repeated(v));
}

} // namespace
#include "entries/signal/elementwise/scaled_quotients.inc"
} // namespace sig5d::SIG5D_VARIANT
