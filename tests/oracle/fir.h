// FIR filters by definition, one product after the other, oldest input first.
#pragma once
#include "oracle/numbers.h"

namespace oracle {

// y[n] = sum of taps[k] * x[n-k]; history holds the inputs before x[0], the last of them at its end.
template <class T>
std::vector<T> filter(const std::vector<T>& taps, const std::vector<T>& history, const std::vector<T>& x)
{
    std::vector<T> y(x.size());
    const int h = static_cast<int>(history.size());
    for (int n = 0; n < static_cast<int>(x.size()); ++n) {
        T sum{};
        for (int k = static_cast<int>(taps.size()) - 1; k >= 0; --k) {
            add(sum, product(taps[k], n - k < 0 ? history[h + n - k] : x[n - k]));
        }
        y[n] = sum;
    }
    return y;
}

// The up-sampled signal has x[i] at i*up + upPhase and nothing elsewhere; of its filtered form the samples
// j*down + downPhase remain.
struct Rates {
    int up, upPhase, down, downPhase;
};
template <class T>
std::vector<T> filter(const std::vector<T>& taps, Rates r, const std::vector<T>& history, const std::vector<T>& x)
{
    const long long h = static_cast<long long>(history.size());
    std::vector<T> y(x.size() / r.down * r.up);
    for (long long j = 0; j < static_cast<long long>(y.size()); ++j) {
        const long long m = j * r.down + r.downPhase;
        T sum{};
        for (int k = static_cast<int>(taps.size()) - 1; k >= 0; --k) {
            const long long place = m - k - r.upPhase + h * r.up; // in the up-sampled history and input
            if (place < 0 || place % r.up != 0) continue;
            const long long i = place / r.up - h;
            add(sum, product(taps[k], i < 0 ? history[h + i] : x[i]));
        }
        y[j] = sum;
    }
    return y;
}

} // namespace oracle
