// G.711 decoding: codes of eight bits to samples of 16 bits, and these as fractions.
#include "frame/entry.h"
#include "kernel/lanes.h"
#include "kernel/map.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// A code is a sign (1: positive), a segment of three bits and a fraction of four; A-law inverts every other bit, mu-law
// all but the sign. A sample lies in the middle of a step, and the steps of a segment are twice as long as those of the
// one before (A-law: from the third on).
struct ALaw {
    static constexpr int inverted = 0x55;
    static constexpr u64 factors = 0x4020100804020101; // of the segments' steps, a byte each
    static constexpr int magnitude(int fraction, int segment)
    {
        return segment == 0 ? 16 * fraction + 8 : (16 * fraction + 264) << (segment - 1);
    }
    template <class V> static V magnitudes(V fractions, V stepFactors, V segments)
    {
        return ((fractions << 4) + 264) * stepFactors + ((segments == 0) << 8);
    }
};
struct MuLaw {
    static constexpr int inverted = 0x7F;
    static constexpr u64 factors = 0x8040201008040201;
    static constexpr int magnitude(int fraction, int segment) { return ((8 * fraction + 132) << segment) - 132; }
    template <class V> static V magnitudes(V fractions, V stepFactors, V)
    {
        return ((fractions << 3) + 132) * stepFactors - 132;
    }
};

// The samples of all codes, where bytes cannot be looked up in a register.
template <class Law> struct Samples {
    i16 of[256];
    constexpr Samples() : of{}
    {
        for (int code = 0; code < 256; ++code) {
            const int bits = code ^ Law::inverted, magnitude = Law::magnitude(bits & 15, bits >> 4 & 7);
            of[code] = static_cast<i16>(code & 0x80 ? magnitude : -magnitude);
        }
    }
};
template <class Law> constexpr Samples<Law> samples;

template <class Law> struct Decoded {
    i16 one(u8 code) const { return samples<Law>.of[code]; }
    template <int n> auto to(const u8* p) const
    {
        const auto codes = load_as_16<n>(p);
        using V = std::remove_const_t<decltype(codes)>;
        const V code = codes ^ static_cast<i16>(0x8000 | Law::inverted);
        // The segment's factor; in the upper byte, whose place is negative, zero.
        const V places = code >> 4 & static_cast<i16>(0x8007);
        const V factors = as<V>(bytes_at(bits(splatn<sizeof(V) / sizeof(u64)>(Law::factors)), bits(places)));
        return with_signs(Law::magnitudes(code & 15, factors, places & 7), ~(codes << 8));
    }
};

template <class Law> void decode(const u8* a, i16* d, int n)
{
    map<Medium>(static_cast<size_t>(n), d, Same{}, converted(a, Decoded<Law>{}));
}

// Samples in units of 2^-15.
template <class F> struct Fraction {
    F one(i16 x) const { return static_cast<F>(x) * F(0x1p-15); }
    template <int n> auto to(const i16* p) const
    {
        if constexpr (sizeof(F) == 4)
            return singles(load_as_32<n>(p)) * F(0x1p-15);
        else
            return doubles<n>(load_as_32<n>(p)) * F(0x1p-15);
    }
};
template <class F> [[gnu::noinline]] void fractions(const i16* a, F* d, size_t n)
{
    map(n, d, Same{}, converted(a, Fraction<F>{}));
}

// By way of samples, of which a vector holds more than of fractions.
template <class Law, class F> void decode(const u8* a, F* d, int n)
{
    constexpr int block = 512;
    i16 some[block];
    for (int i = 0; i < n; i += block) {
        const int count = n - i < block ? n - i : block;
        decode<Law>(a + i, some, count);
        fractions(some, d + i, static_cast<size_t>(count));
    }
}

} // namespace
#include "entries/signal/processing/companding/decode.inc"
} // namespace sig5d::SIG5D_VARIANT
