// Integer results that are scaled: multiplied by 2^-scaleFactor, rounded to the nearest integer (ties to the even one)
// and limited to the destination's type. All of that stands here; an operation gives its exact result only.
//
// An operation is a record with
//     bits<T>          so that no result is larger than 2^bits in magnitude: larger scale factors give zeros;
//     exact(x...)      the result: of elements (in px) a 64-bit integer, of vectors one of the representations below;
//     saturated(x...)  optional, for vectors: the result with scale factor 0;
//     quick<T, s>, quickly<s>(x...)  optional, for vectors: there is a shorter way to the result with scale factor s, 1
//                      or 15.
#pragma once
#include "kernel/lane_shifts.h"
#include "kernel/repeated.h"
#include "kernel/saturate.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// By how many bits a result that is within the limits goes up with scale factor s <= 0: from some count on, whatever is
// not zero goes to a limit.
template <class T> inline int raise_count(int s)
{
    constexpr int most = width<T> - isSigned<T>;
    return s < -most ? most : -s;
}

// The plain form of everything below: r * 2^-s.
template <class T> inline T scaled(i64 r, int s)
{
    if (s > 63) return 0; // a half at most
    if (s <= 0) return saturated<T>(saturated<T>(r) * (i64(1) << raise_count<T>(s)));
    const u64 half = u64(1) << (s - 1), rest = static_cast<u64>(r) & (2 * half - 1);
    const i64 floor = r >> s;
    return saturated<T>(floor + (rest > half || (rest == half && floor % 2 != 0)));
}

#if SIG5D_LEVEL == 0

template <class T> inline c32s scaled(c64s r, int s) { return {scaled<T>(r.re, s), scaled<T>(r.im, s)}; }

template <class T, class Op> struct Scaled {
    Op op;
    int s;
    template <class... X> auto operator()(X... x) const { return scaled<T>(op.exact(x...), s); }
};

// d[i] = op(a[i], ...) * 2^-s for 0 <= i < n.
template <class T, class Op, class D, class... A> void map_scaled(Op op, int s, size_t n, D* d, A... a)
{
    map<Heavy<2>>(n, d, Scaled<T, Op>{op, s}, a...);
}

#else

// Representations of an exact result r.

template <class V> struct Halves { // in lanes as wide as the elements, which r may exceed by a bit
    V half;                        // r / 2, rounded down
    V low;                         // r, without bits that do not fit
};
template <class V> struct Byte { // in bytes, which r does not exceed
    V r;
};
template <class V> struct ByteAndBit { // in bytes, which r may exceed by a bit
    V half;                            // r / 2, rounded up
    V low;                             // r, of which the last bit counts
};
template <class V> struct Words { // of bytes: in unsigned 16-bit lanes, for the even and the odd elements
    V even, odd;
};
template <class V> Words(V, V) -> Words<V>;
template <class V> struct Doubled { // of 16 bits: in 32-bit lanes, in the order of unpacking and packing
    V low, high;
};
template <class V> Doubled(V, V) -> Doubled<V>;
template <class V> struct Split { // of 32 bits: in two 32-bit lanes
    V low, high;
};

// From the lower and the upper halves of the results of 16-bit lanes.
template <class V> inline auto unpacked(V low, V high)
{
    using W = Vec<i32, sizeof(V) / 4>;
    using U = Vec<u16, sizeof(V) / 2>;
    const U l = as<U>(low), h = as<U>(high);
    return Doubled<W>{as<W>(interleaved_low(l, h)), as<W>(interleaved_high(l, h))};
}

// From the results of the even and of the odd 32-bit lanes.
template <class V, class W> inline Split<V> split(W even, W odd)
{
    using U = Vec<u32, sizeof(V) / 4>;
    return {as<V>(even_and_odd(as<U>(even), as<U>(odd << 32))),
            as<V>(even_and_odd(odd_lanes(as<U>(even)), as<U>(odd)))};
}

// Lane by lane to the right, 0 <= count < width, arithmetic for signed lanes.
template <class V> inline V down(V x, int count)
{
    using T = Lane<V>;
    if constexpr (sizeof(T) == 4)
        return shift_right<T>(x, count);
    else if constexpr (sizeof(T) == 2)
        return shift_right<T>(x, count);
    else
        return shift_right<u64>(x, count) & all_lanes<V>(static_cast<u8>(0xFF >> count));
}

template <class V> inline V up(V x, int count)
{
    using T = Lane<V>;
    if constexpr (sizeof(T) == 4)
        return shift_left<u32>(x, count);
    else if constexpr (sizeof(T) == 2)
        return shift_left_16(x, count);
    else
        return shift_left_16(x, count) & all_lanes<V>(static_cast<u8>(0xFF << count));
}

// x / 2 to the nearest integer, halves up.
template <class V> inline V halved(V x)
{
    if constexpr (!isSigned<Lane<V>> && sizeof(Lane<V>) < 4)
        return average(x, V{});
    else
        return x - (x >> 1);
}

// 2^s - 1 and 2^(s-1): what is cut off, and the tie.
template <class V> inline V rest_mask(int s) { return all_lanes<V>(static_cast<Lane<V>>((u64(1) << s) - 1)); }
template <class V> inline V half_unit(int s) { return all_lanes<V>(static_cast<Lane<V>>(u64(1) << (s - 1))); }

// Ties were rounded up, to an odd integer half of the time: then the even one is that below.
template <class V, class M> inline V ties_to_even(V up, M tie) { return without(up, as<V>(tie) & all_lanes<V>(1)); }

// r * 2^-s for each representation, 0 < s <= bits of the operation.

template <class V> inline V scaled(Halves<V> r, int s) // s > 1
{
    V up;
    if constexpr (sizeof(Lane<V>) == 2 && hasByteShuffle)
        up = rounded_product(r.half, all_lanes<V>(static_cast<i16>(1 << (16 - s)))); // half * 2^(16-s) * 2^-15
    else
        up = halved(down(r.half, s - 2));
    return ties_to_even(up, (r.low & rest_mask<V>(s)) == half_unit<V>(s));
}

template <class V> inline auto saturated(Words<V> r)
{
    const V limit = all_lanes<V>(255);
    return as<Vec<u8, sizeof(V)>>(smaller(r.even, limit) | smaller(r.odd, limit) << 8);
}
// Bit s of bytes or words in the place of the last, 0 < s <= width; other bits come along.
template <class V> inline V bit(V r, int s) { return shift_right_16<u16>(r, s < width<Lane<V>> ? s : 16); }
// r * 2^-s of bytes and of words, 0 < s <= width, s > 1 for words; where "above" is odd, r is a half above a number
// that is no tie. It is the floor of (r + 2^(s-1) - 1 + odd) / 2^s if odd is the last bit of the floor of r / 2^s and,
// at ties, makes the sum reach the next integer. Averages do not lose the sum's carry. (Of r = 0 nothing is subtracted,
// which makes no difference.)
template <class V> inline V scaled_unsigned(V r, int s, V above = V{})
{
    const V even = without(all_lanes<V>(1), bit(r, s) & ~above),
            sum = average(subtract_saturated(r, even), rest_mask<V>(s - 1));
    if constexpr (sizeof(Lane<V>) == 2)
        return shift_right_16<u16>(sum, s - 1);
    else
        return down(sum, s - 1);
}
template <class V> inline V scaled(Byte<V> r, int s) { return scaled_unsigned(r.r, s); }
template <class V> inline V scaled(ByteAndBit<V> r, int s) { return scaled_unsigned(r.half, s - 1, r.low); } // s > 1
template <class V> inline auto scaled(Words<V> r, int s)
{
    return saturated(Words<V>{scaled_unsigned(r.even, s), scaled_unsigned(r.odd, s)});
}

template <class V> inline auto saturated(Doubled<V> r) { return packed(r.low, r.high); }
template <class V> inline V scaled_double(V r, int s)
{
    const V odd = down(r, s) & 1;
    return down(r + odd + ((1 << (s - 1)) - 1), s); // r is small enough for the sum
}
template <class V> inline auto scaled(Doubled<V> r, int s)
{
    return saturated(Doubled<V>{scaled_double(r.low, s), scaled_double(r.high, s)});
}

template <class V> inline V saturated(Split<V> r) { return r.high == r.low >> 31 ? r.low : limit_of(r.high); }
template <class V> inline V scaled(Split<V> r, int s)
{
    if (s > 32) {
        const V tie = ((r.high & rest_mask<V>(s - 32)) == half_unit<V>(s - 32)) & (r.low == 0);
        return ties_to_even(halved(down(r.high, s - 33)), tie);
    }
    using U = Vec<u32, sizeof(V) / 4>;
    const V carried = as<V>(halved(down(as<U>(r.low), s - 1)));
    const V q = ties_to_even(sum_modulo(up(r.high, 32 - s), carried), (r.low & rest_mask<V>(s)) == half_unit<V>(s));
    // It does not fit if the bits above it differ, or if rounding made a negative number of a positive one.
    const V sign = r.high >> 31, fits = (down(r.high, s - 1) == sign) & (sign | ~q);
    return where_negative(fits, q, limit_of(sign));
}

// x * 2^count within the limits, 0 < count <= width, for signed lanes < width. The number that goes just beyond the
// upper limit becomes a single bit above the element, or its sign: one less is the limit.
template <class V> inline V raised(V x, int count)
{
    using T = Lane<V>;
    const V beyond = all_lanes<V>(static_cast<T>(u64(1) << (width<T> - isSigned<T> - count)));
    x = smaller(x, beyond);
    if constexpr (isSigned<T>) x = larger(x, -beyond);
    return sum_modulo(up(x, count), as<V>(x == beyond));
}

// Operations on vectors, for the three ranges of s. What they work on may be a pair of elements.
template <class Op> struct Saturated {
    Op op;
    template <class... V> auto result(V... x) const
    {
        if constexpr (requires { op.saturated(x...); })
            return op.saturated(x...);
        else
            return saturated(op.exact(x...));
    }
    template <class V, class... W> V operator()(V x, W... y) const { return as<V>(result(x, y...)); }
};
template <class Op> struct Raised {
    Op op;
    int count;
    template <class V, class... W> V operator()(V x, W... y) const
    {
        return as<V>(raised(Saturated<Op>{op}.result(x, y...), count));
    }
};
template <class Op> struct Scaled {
    Op op;
    int s;
    template <class V, class... W> V operator()(V x, W... y) const { return as<V>(scaled(op.exact(x, y...), s)); }
};
template <class Op, int s> struct Quick {
    Op op;
    template <class V, class... W> V operator()(V x, W... y) const { return op.template quickly<s>(x, y...); }
};
template <class Op, class T, int s> constexpr bool hasQuick = requires { requires Op::template quick<T, s>; };

inline void clear(size_t bytes, u8* d)
{
    map(bytes, d, [] { return Vec<u8>{}; });
}

// Vectors in flight where operations on them are few.
template <class T> using FewSteps = Heavy<sizeof(T) < 4 ? 4 : 2>;

// d[i] = op(a[i], ...) for 0 <= i < n, within the limits.
template <class T, class Op, class D, class... A> void map_saturated(Op op, size_t n, D* d, A... a)
{
    map<FewSteps<T>>(n, d, Saturated<Op>{op}, a...);
}
// d[i] = op(a[i], ...) * 2^-s for 0 <= i < n, s not 0.
template <class T, class Op, class D, class... A> void map_rescaled(Op op, int s, size_t n, D* d, A... a)
{
    if constexpr (hasQuick<Op, T, 1>)
        if (s == 1) return map<FewSteps<T>>(n, d, Quick<Op, 1>{op}, a...);
    if constexpr (hasQuick<Op, T, 15>)
        if (s == 15) return map<FewSteps<T>>(n, d, Quick<Op, 15>{op}, a...);
    if (s < 0)
        map<Heavy<2>>(n, d, Raised<Op>{op, raise_count<T>(s)}, a...);
    else if (s <= Op::template bits<T>)
        map<Heavy<2>>(n, d, Scaled<Op>{op, s}, a...);
    else
        clear(n * sizeof(D), reinterpret_cast<u8*>(d));
}
template <class T, class Op, class D, class... A> void map_scaled(Op op, int s, size_t n, D* d, A... a)
{
    if (s == 0) return map_saturated<T>(op, n, d, a...);
    map_rescaled<T>(op, s, n, d, a...);
}

// The one place for each operation and type where the loops for scale factors are made.
template <class Op, class T, class... A> [[gnu::noinline]] void run_rescaled(size_t n, T* d, int s, A... a)
{
    map_rescaled<T>(Op{}, s, n, d, a...);
}

#endif

// The same. Without a scale factor a value stays in its register, and its side of the operation may have a better form;
// else arrays and values share a loop.
template <class Op, class Saturating = Op, class T, class... A>
[[gnu::noinline]] void run_scaled(size_t n, T* d, int s, A... a)
{
#if SIG5D_LEVEL == 0
    map_scaled<T>(Op{}, s, n, d, a...);
#else
    if (s == 0) return map_saturated<T>(Saturating{}, n, d, a...);
    run_rescaled<Op>(n, d, s, InMemory<A>(a).source...);
#endif
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
