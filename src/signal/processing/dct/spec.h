// The block that describes a cosine transform, and where everything lies in it and in the work buffer. What is laid out
// and filled here is compiled once; every variant reads the same block.
//
//   y[k] = c(k) * sum over n of x[n] cos(pi (2n + 1) k / 2N),   c(0) = 1/sqrt(N), c(k) = sqrt(2)/sqrt(N)
//
// All methods for longer signals transform v, the even elements of x forwards and the odd ones backwards behind them,
// by Fourier: with V that spectrum, y[k] - i y[N - k] = c(k) exp(-pi i k / 2N) V[k] for 0 < k < N (Makhoul, 1980).
#pragma once
#include "frame/types.h"

namespace sig5d {

enum class DctMethod : i32 {
    small,  // 1, 2, 4 and 8 points: formulas of their own
    direct, // the sum as it stands
    power,  // powers of two: real transform in natural order
    mixed,  // products of small primes: real transform of mixed radices
    prime,  // primes: by a circular convolution of N - 1 values (Rader, 1968)
    chirp,  // all others: by a complex convolution with a chirp (Bluestein, 1970)
};

// The head of a specification, at a multiple of 64. What it refers to is told by offsets from it, so that a block may
// be moved by multiples of 64 bytes.
struct DctSpec {
    i32 tag; // dctTag
    i32 len, hint;
    i32 work; // bytes of the work buffer; 0: none
    i32 reserved;
    DctMethod method;
    f64 first, other; // c(0) and c(k)
    i32 padded;       // the points of the convolution, which is of mixed radices or of a power of two
    i32 byMixed;
    u32 plan, turns, places, kernel;
};
static_assert(sizeof(DctSpec) == 64);

constexpr i32 dctTag = 23;

struct DctSizes {
    i64 spec, init, work;
    bool fit;
};
// What GetSize tells, and what Init accepts.
constexpr int dctLongest = 0xFFFFFF, dctLongestToInit = 0x1FFFFFF; // lengths that are no powers of two
DctSizes dctSizes(int len);

// Fills a block but for the spectra of the methods by convolution: dctSignal gives the signal that a spectrum is of,
// with all its `padded` values.
void dctBuild(DctSpec* spec, int len, int hint);
void dctSetTables(DctSpec* spec);                  // a part of that
void dctSignal(const DctSpec* spec, f64* signal);  // prime
void dctSignal(const DctSpec* spec, c64f* signal); // chirp

namespace {

template <class P> inline P dctAligned(P p)
{
    return reinterpret_cast<P>((reinterpret_cast<uintptr_t>(p) + 63) & ~uintptr_t(63));
}
template <class T> inline const T* dctPart(const DctSpec* spec, u32 offset)
{
    return reinterpret_cast<const T*>(reinterpret_cast<uintptr_t>(spec) + offset);
}
constexpr i64 dctRounded(i64 bytes) { return (bytes + 63) & -64; }

// Where element n of v is in x.
inline i64 dctSource(i64 n, i64 len) { return 2 * n < len ? 2 * n : 2 * (len - n) - 1; }

} // namespace
} // namespace sig5d
