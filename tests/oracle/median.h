// Running medians by sorting each window for itself.
#pragma once
#include "sig5d.h"
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace oracle {

// Doubles in order: numbers, zeros by their signs, then NaN without a sign by their bits, then those with one, the
// larger bits first.
inline bool comesBefore(double x, double y)
{
    const auto rank = [](double v) { return v != v ? (std::signbit(v) ? 2 : 1) : 0; };
    if (rank(x) != rank(y)) return rank(x) < rank(y);
    if (rank(x) == 0) return x < y || (x == y && std::signbit(x) && !std::signbit(y));
    uint64_t a, b;
    std::memcpy(&a, &x, sizeof a);
    std::memcpy(&b, &y, sizeof b);
    return rank(x) == 1 ? a < b : a > b;
}
template <class T> bool comesBefore(T x, T y) { return x < y; }

// Of a stream with its history in front: as many results as there are samples behind it.
template <class T> std::vector<T> medians(const std::vector<T>& stream, size_t mask)
{
    std::vector<T> results;
    for (size_t end = mask; end <= stream.size(); ++end) {
        std::vector<T> window(stream.begin() + static_cast<ptrdiff_t>(end - mask),
                              stream.begin() + static_cast<ptrdiff_t>(end));
        const auto middle = window.begin() + static_cast<ptrdiff_t>(mask / 2);
        std::nth_element(window.begin(), middle, window.end(), [](T a, T b) { return comesBefore(a, b); });
        results.push_back(*middle);
    }
    return results;
}

} // namespace oracle
