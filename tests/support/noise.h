// Uniform numbers between -1 and 1, real or complex.
#pragma once
#include "support/library.h"
#include <random>
#include <vector>

namespace support {

inline void draw(std::mt19937& g, Ipp64f& x) { x = std::uniform_real_distribution<>(-1, 1)(g); }
inline void draw(std::mt19937& g, Ipp64fc& x)
{
    draw(g, x.re);
    draw(g, x.im);
}
template <class T> std::vector<T> noise(std::mt19937& g, size_t n)
{
    std::vector<T> v(n);
    for (T& x : v) draw(g, x);
    return v;
}

} // namespace support
