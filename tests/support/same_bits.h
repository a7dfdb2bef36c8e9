// Floating-point results compared as bits, zeros with their sign; all NaN are the same.
#pragma once
#include "sig5d.h"
#include <cmath>
#include <vector>

namespace support {

inline bool sameBits(double x, double y)
{
    return std::isnan(x) ? std::isnan(y) : x == y && std::signbit(x) == std::signbit(y);
}
inline bool sameBits(Ipp64fc x, Ipp64fc y) { return sameBits(x.re, y.re) && sameBits(x.im, y.im); }

// The first place where two arrays differ, not counting what a NaN carries; -1: none.
template <class T> int difference(const std::vector<T>& a, const std::vector<T>& b)
{
    if (a.size() != b.size()) return 0;
    for (size_t i = 0; i < a.size(); ++i)
        if (!sameBits(a[i], b[i])) return static_cast<int>(i);
    return -1;
}

} // namespace support
