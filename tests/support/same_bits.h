// Floating-point results compared as bits, zeros with their sign; all NaN are the same.
#pragma once
#include "sig5d.h"
#include <cmath>

namespace support {

inline bool sameBits(double x, double y)
{
    return std::isnan(x) ? std::isnan(y) : x == y && std::signbit(x) == std::signbit(y);
}
inline bool sameBits(Ipp64fc x, Ipp64fc y) { return sameBits(x.re, y.re) && sameBits(x.im, y.im); }

} // namespace support
