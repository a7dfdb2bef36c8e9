// Correlation and convolution by definition: each sum one product after the other. Computed in T itself, in the order
// that the interface names, or in a wider type.
#pragma once
#include "oracle/numbers.h"
#include <algorithm>

namespace oracle {

// The indexes into a that meet b[n + lag].
struct Meeting {
    long long from, to;
    Meeting(long long aLen, long long bLen, long long lag)
        : from(std::max(0LL, -lag)), to(std::max(from, std::min(aLen, bLen - lag)))
    {
    }
    long long products() const { return to - from; }
};

// y[k] = sum over n of conj(a[n]) * b[n + lowLag + k]
template <class T>
std::vector<T> correlation(const std::vector<T>& a, const std::vector<T>& b, long long count, long long lowLag)
{
    std::vector<T> y(static_cast<size_t>(count));
    for (long long k = 0; k < count; ++k) {
        const long long lag = lowLag + k;
        const Meeting m(static_cast<long long>(a.size()), static_cast<long long>(b.size()), lag);
        T sum{};
        for (long long n = m.from; n < m.to; ++n)
            add(sum, product(conjugate(a[static_cast<size_t>(n)]), b[static_cast<size_t>(n + lag)]));
        y[static_cast<size_t>(k)] = sum;
    }
    return y;
}

// y[n] = sum over k of a[k] * b[n - k], the longer signal's elements (or a's) in increasing order.
template <class T> std::vector<T> convolution(const std::vector<T>& a, const std::vector<T>& b)
{
    if (a.size() < b.size()) return convolution(b, a);
    std::vector<T> y(a.size() + b.size() - 1);
    for (size_t n = 0; n < y.size(); ++n) {
        const size_t from = n < b.size() ? 0 : n - b.size() + 1, to = std::min(n + 1, a.size());
        for (size_t k = from; k < to; ++k) y[n] += a[k] * b[n - k];
    }
    return y;
}

} // namespace oracle
