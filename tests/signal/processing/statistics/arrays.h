// Arrays and calls for the tests of statistics.
#pragma once
#include "support/wide.h"

namespace statistics {

using namespace support;

// A function of one array or two that gives one number.
template <class R, class T> R valueOf(const std::string& name, const std::vector<T>& x)
{
    R r{};
    EXPECT_EQ(call(name, (const void*)x.data(), static_cast<int>(x.size()), (void*)&r), ippStsNoErr) << name;
    return r;
}
template <class R, class T, class U>
R valueOf(const std::string& name, const std::vector<T>& x, const std::vector<U>& y)
{
    R r{};
    EXPECT_EQ(call(name, (const void*)x.data(), (const void*)y.data(), static_cast<int>(x.size()), (void*)&r),
              ippStsNoErr)
        << name;
    return r;
}

inline const std::vector<size_t> lengths = [] {
    std::vector<size_t> all;
    for (size_t n = 1; n <= 70; ++n) all.push_back(n);
    for (size_t n :
         {100, 511, 512, 513, 767, 1023, 1024, 1025, 1040, 1056, 1536, 2047, 2048, 2049, 3000, 5120, 5121, 7168})
        all.push_back(n);
    return all;
}();

// Numbers between -1 and 1.
inline std::vector<double> fractions(size_t n, unsigned seed)
{
    std::mt19937_64 random(seed);
    std::vector<double> x(n);
    for (double& v : x) v = static_cast<double>(static_cast<int64_t>(random())) * 0x1p-63;
    return x;
}
inline std::vector<Ipp64fc> complexFractions(size_t n, unsigned seed)
{
    const std::vector<double> parts = fractions(2 * n, seed);
    std::vector<Ipp64fc> z(n);
    for (size_t i = 0; i < n; ++i) z[i] = {parts[2 * i], parts[2 * i + 1]};
    return z;
}

} // namespace statistics
