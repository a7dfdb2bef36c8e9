// G.711 encoding: samples of 16 bits, and fractions by way of these, to codes of eight bits.
#include "frame/entry.h"
#include "kernel/map.h"
#include "kernel/rounding.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The exponent of a positive integer and the four bits after its first one, as one number: a single-precision number's
// own bits. An exponent of 7 counts as 0.
constexpr i32 exponentOf7 = (127 + 7) << 4;
inline i32 exponent_and_fraction(i32 x)
{
    return static_cast<i32>(__builtin_bit_cast(u32, static_cast<f32>(x)) >> 19) - exponentOf7;
}
#if SIG5D_LEVEL > 0
template <class V> inline V exponent_and_fraction(V x)
{
    const auto half = [](Unsigned<V> wide) {
        const auto numbers = singles(as<Vec<i32, sizeof(V) / 4>>(wide));
        return as<Vec<i32, sizeof(V) / 4>>(as<Vec<u32, sizeof(V) / 4>>(numbers) >> 19);
    };
    const auto positive = as<Unsigned<V>>(x);
    return packed(half(interleaved_low(positive, Unsigned<V>{})), half(interleaved_high(positive, Unsigned<V>{}))) -
           static_cast<i16>(exponentOf7);
}
#endif

// Of a sample, a number or a vector: the magnitude of a negative one is that of its complement.
struct ALaw {
    template <class V> V operator()(V x) const
    {
        const V sign = x >> 15, magnitude = x ^ sign;
        // Below 256 the steps are as long as in the segment from there on, which begins with 16.
        const V code = exponent_and_fraction(larger(magnitude, all_lanes<V>(256))) - all_lanes<V>(16) +
                       smaller(magnitude >> 4, all_lanes<V>(16));
        return code ^ all_lanes<V>(0xD5) ^ (sign & all_lanes<V>(0x80));
    }
};
struct MuLaw {
    template <class V> V operator()(V x) const
    {
        const V sign = x >> 15, magnitude = smaller(x ^ sign, all_lanes<V>(32635));
        return exponent_and_fraction(magnitude + all_lanes<V>(132)) ^ all_lanes<V>(0xFF) ^ (sign & all_lanes<V>(0x80));
    }
};

template <class Law> struct Encoded {
    u8 one(i16 x) const { return static_cast<u8>(Law{}(i32{x})); }
    template <int n> auto to(const i16* p) const
    {
        return gather<u8, n>(p, []<int k>(const i16* q) { return Law{}(load_lanes<k>(q)); });
    }
};
template <class Law> [[gnu::noinline]] void encode(const i16* a, u8* d, int n)
{
    map<Medium>(static_cast<size_t>(n), d, Same{}, converted(a, Encoded<Law>{}));
}

inline f64 number_or_zero(f64 x) { return x == x ? x : 0.0; }
template <class V> inline V number_or_zero(V x) { return both(x, same(x, x)); }

// A fraction as a sample: within its limits before it is multiplied and converted, to the nearest one, ties away from
// zero.
struct Sample {
    template <class V> static auto of(V x)
    {
        const V y = smaller(larger(number_or_zero(x), constant<V>(-1.0)), constant<V>(1.0)) * constant<V>(32767.0);
        return truncated(y + with_sign(constant<V>(0.5), y));
    }
    template <class F> i16 one(F x) const { return static_cast<i16>(of(static_cast<f64>(x))); }
    // n integers, in a register at least.
    template <int n, class F> auto to(const F* p) const
    {
        if constexpr (n > lanes<f64>)
            return low_halves(to<n / 2>(p), to<n / 2>(p + n / 2));
        else if constexpr (sizeof(F) == 4)
            return of(doubles<n>(load_lanes<n>(p)));
        else
            return of(load_lanes<n>(p));
    }
};
template <class F> [[gnu::noinline]] void samples(const F* a, i16* d, size_t n)
{
    if constexpr (lanes<u8> == 1)
        for (size_t i = 0; i < n; ++i) d[i] = Sample{}.one(a[i]);
    else // doubles become integers in 16 bytes
        map<InFlight<2, false, 16>>(n, d, Same{}, converted(a, AsElements<i16, Sample>{}));
}

template <class Law, class F> void encode(const F* a, u8* d, int n)
{
    constexpr int block = 512;
    i16 some[block];
    for (int i = 0; i < n; i += block) {
        const int count = n - i < block ? n - i : block;
        samples(a + i, some, static_cast<size_t>(count));
        encode<Law>(some, d + i, count);
    }
}

} // namespace
#include "entries/signal/processing/companding/encode.inc"
} // namespace sig5d::SIG5D_VARIANT
