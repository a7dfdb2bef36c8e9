// Cosine and sine of parts of a turn in extended precision, by way of an angle of at most an eighth of it.
#pragma once
#include "support/wide.h"
#include <utility>

namespace oracle {

struct CosSin {
    long double cos, sin;
};

// 0 <= part < 1
inline CosSin ofTurn(support::Wide part)
{
    const support::Wide fullTurn = support::Wide(6.283185307179586) + support::Wide(2.4492935982947064e-16);
    const int octant = static_cast<int>(part * 8);
    const support::Wide rest = part - support::Wide(octant) / 8;
    const auto a = static_cast<long double>(fullTurn * (octant % 2 ? support::Wide(0.125) - rest : rest));
    long double c = std::cos(a), s = std::sin(a);
    if ((octant + 1) & 2) std::swap(c, s);
    if ((octant + 2) & 4) c = -c;
    if (octant & 4) s = -s;
    return {c, s};
}
inline CosSin ofTurn(int64_t k, int64_t n) { return ofTurn(support::Wide(k % n) / support::Wide(n)); }

// x less its next lower integer, for 0 <= x < 2^62.
inline support::Wide fraction(support::Wide x) { return x - support::Wide(static_cast<int64_t>(x)); }

} // namespace oracle
