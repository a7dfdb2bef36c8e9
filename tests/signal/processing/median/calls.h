// Median filters by element type, work buffers of exactly their size, and data of all kinds.
#pragma once
#include "support/bytes.h"
#include <cmath>
#include <cstring>
#include <limits>

namespace median {

template <class T> struct Calls;
template <> struct Calls<Ipp64f> {
    static constexpr auto filter = ippsFilterMedian_64f;
    static constexpr auto inPlace = ippsFilterMedian_64f_I;
};
template <> struct Calls<Ipp32s> {
    static constexpr auto filter = ippsFilterMedian_32s;
    static constexpr auto inPlace = ippsFilterMedian_32s_I;
};
template <> struct Calls<Ipp16s> {
    static constexpr auto filter = ippsFilterMedian_16s;
    static constexpr auto inPlace = ippsFilterMedian_16s_I;
};
template <> struct Calls<Ipp8u> {
    static constexpr auto filter = ippsFilterMedian_8u;
    static constexpr auto inPlace = ippsFilterMedian_8u_I;
};

class Work
{
public:
    explicit Work(int mask) : memory_(static_cast<size_t>(16 * ((mask - 1) | 1))) {}
    Ipp8u* buffer() { return memory_.data(); }

private:
    support::Bytes memory_;
};

constexpr int kinds = 6;
template <class T> std::vector<T> data(std::mt19937& g, size_t n, int kind)
{
    std::vector<T> x(n);
    size_t i = 0;
    for (T& v : x) {
        const auto noise = static_cast<T>(static_cast<int>(g() >> 8) - (1 << 23));
        switch (kind) {
        case 0:
            v = noise;
            break;
        case 1:
            v = static_cast<T>(g() % 3);
            break; // few values
        case 2:
            v = static_cast<T>(i * 5);
            break; // up
        case 3:
            v = static_cast<T>(static_cast<double>(n - i));
            break; // down
        case 4:
            v = i % 50 < 25 ? std::numeric_limits<T>::lowest() : std::numeric_limits<T>::max();
            break;
        default:
            v = i % 7 ? static_cast<T>(1000 * std::sin(0.01 * static_cast<double>(i))) : noise;
            break;
        }
        if constexpr (std::is_same_v<T, double>) { // zeros with signs, NaN of all bits, numbers that are hardly any
            static const double others[] = {0.0, -0.0, HUGE_VAL, -HUGE_VAL, 5e-324, -5e-324, 1e-310, -1e-310};
            if (kind == 1) v = others[g() % 8];
            if (kind == 5 && g() % 20 == 0) v = others[g() % 8];
            if ((kind == 4 && g() % 2) || (kind == 5 && g() % 30 == 0)) {
                const uint64_t bits = 0x7FF8000000000000 | uint64_t(g() % 2) << 63 | g() % 4;
                std::memcpy(&v, &bits, sizeof v);
            }
        }
        ++i;
    }
    return x;
}

} // namespace median
