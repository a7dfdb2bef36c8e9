// Block 0 of a real signal: the values at y = 1 and y = -1, which are real, so that lane j of them is a coefficient of
// a real polynomial modulo z^4 - 1 or z^4 + 1. In an unordered spectrum they stay that, in lane 0 of the first group.
#pragma once
#include "signal/processing/fft/layout.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct Ends {
    f64 plus[4], minus[4];
};

inline Ends endsAt(const f64* p, Count apart)
{
    Ends e;
    for (int j = 0; j < 4; ++j) {
        e.plus[j] = p[j * apart];
        e.minus[j] = p[j * apart + 4];
    }
    return e;
}
inline void putEndsAt(f64* p, Count apart, const Ends& e)
{
    for (int j = 0; j < 4; ++j) {
        p[j * apart] = e.plus[j];
        p[j * apart + 4] = e.minus[j];
    }
}
inline Ends endsOfBlock(const f64* work) { return endsAt(work, 1); }
inline Ends endsOfSpectrum(const f64* spectrum) { return endsAt(spectrum, blockSize); }
inline void putEndsOfBlock(f64* work, const Ends& e) { putEndsAt(work, 1, e); }
inline void putEndsOfSpectrum(f64* spectrum, const Ends& e) { putEndsAt(spectrum, blockSize, e); }

// The polynomial of 1/z.
inline Ends conjugate(const Ends& e)
{
    return {{e.plus[0], e.plus[3], e.plus[2], e.plus[1]}, {e.minus[0], -e.minus[3], -e.minus[2], -e.minus[1]}};
}

// The product of polynomials, `scale` times.
inline Ends multiplyEnds(const Ends& a, const Ends& b, f64 scale)
{
    Ends d;
    for (int k = 0; k < 4; ++k) {
        f64 plus = 0, minus = 0;
        for (int j = 0; j < 4; ++j) {
            plus += a.plus[j] * b.plus[(k - j) & 3];
            const f64 product = a.minus[j] * b.minus[(k - j) & 3];
            minus += j > k ? -product : product;
        }
        d.plus[k] = plus * scale;
        d.minus[k] = minus * scale;
    }
    return d;
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
