// Correlations as the tests call them: one name for the real and the complex functions, and a buffer of exactly the
// size that the library tells, at any offset, with old bytes in it and a fence behind.
#pragma once
#include "oracle/correlation.h"
#include "support/library.h"
#include "support/noise.h"
#include "support/same_bits.h"
#include <cstring>
#include <gtest/gtest.h>

namespace correlation {

using support::difference;
using support::noise;

template <class T> struct Functions;
template <> struct Functions<Ipp64f> {
    static constexpr int type = 19;
    static constexpr auto autoCorrelate = ippsAutoCorrNorm_64f;
    static constexpr auto crossCorrelate = ippsCrossCorrNorm_64f;
};
template <> struct Functions<Ipp64fc> {
    static constexpr int type = 20;
    static constexpr auto autoCorrelate = ippsAutoCorrNorm_64fc;
    static constexpr auto crossCorrelate = ippsCrossCorrNorm_64fc;
};

class Buffer
{
public:
    explicit Buffer(int bytes, int offset)
        : bytes_(bytes), offset_(offset), memory_(static_cast<size_t>(bytes) + 192, old)
    {
    }
    ~Buffer()
    {
        const auto start = memory_.begin() + offset_ % 64;
        const auto untouched = [](Ipp8u b) { return b == old; };
        EXPECT_TRUE(std::all_of(memory_.begin(), start, untouched)) << "before the buffer";
        EXPECT_TRUE(std::all_of(start + bytes_, memory_.end(), untouched)) << "behind the buffer";
    }
    Ipp8u* data() { return memory_.data() + offset_ % 64; }

private:
    static constexpr Ipp8u old = 0xFF; // NaN, as numbers
    int bytes_, offset_;
    std::vector<Ipp8u> memory_;
};

inline int sizeOf(int status, int bytes)
{
    EXPECT_EQ(status, ippStsNoErr);
    return bytes;
}

// dst keeps what it has where a call writes nothing.
template <class T> IppStatus autoCorrelate(const std::vector<T>& x, std::vector<T>& dst, int algType, int offset = 0)
{
    using F = Functions<T>;
    const int n = static_cast<int>(x.size()), lags = static_cast<int>(dst.size());
    int bytes = 0;
    const int status = ippsAutoCorrNormGetBufferSize(n, lags, F::type, algType, &bytes);
    Buffer buffer(sizeOf(status, bytes), offset);
    return F::autoCorrelate(x.data(), n, dst.data(), lags, algType, buffer.data());
}
template <class T>
IppStatus crossCorrelate(const std::vector<T>& a, const std::vector<T>& b, std::vector<T>& dst, int lowLag, int algType,
                         int offset = 0)
{
    using F = Functions<T>;
    const int n = static_cast<int>(a.size()), m = static_cast<int>(b.size()), lags = static_cast<int>(dst.size());
    int bytes = 0;
    const int status = ippsCrossCorrNormGetBufferSize(n, m, lags, lowLag, F::type, algType, &bytes);
    Buffer buffer(sizeOf(status, bytes), offset);
    return F::crossCorrelate(a.data(), n, b.data(), m, dst.data(), lags, lowLag, algType, buffer.data());
}
inline std::vector<double> convolve(const std::vector<double>& a, const std::vector<double>& b, int algType,
                                    int offset = 0)
{
    const int n = static_cast<int>(a.size()), m = static_cast<int>(b.size());
    int bytes = 0;
    const int status = ippsConvolveGetBufferSize(n, m, 19, algType, &bytes);
    Buffer buffer(sizeOf(status, bytes), offset);
    std::vector<double> dst(a.size() + b.size() - 1, 7);
    EXPECT_EQ(ippsConvolve_64f(a.data(), n, b.data(), m, dst.data(), algType, buffer.data()), ippStsNoErr);
    return dst;
}

} // namespace correlation
