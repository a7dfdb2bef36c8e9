#include "signal/processing/correlation/calls.h"

using namespace correlation;
namespace {

// Each call fails for several reasons; the first in the order of checks is told, and nothing is written.
TEST(CorrelationSizes, StatusesInTheirOrder)
{
    for (const auto& v : support::supported()) {
        support::force(v);
        int bytes = -7;
        EXPECT_EQ(ippsAutoCorrNormGetBufferSize(0, 0, 0, 3, nullptr), ippStsNullPtrErr);
        EXPECT_EQ(ippsAutoCorrNormGetBufferSize(0, 1, 0, 3, &bytes), ippStsSizeErr);
        EXPECT_EQ(ippsAutoCorrNormGetBufferSize(1, 0, 0, 3, &bytes), ippStsSizeErr);
        EXPECT_EQ(ippsAutoCorrNormGetBufferSize(1, 1, 18, 3, &bytes), ippStsDataTypeErr);
        EXPECT_EQ(ippsAutoCorrNormGetBufferSize(0x7fffffff, 1, 19, 0x103, &bytes), ippStsAlgTypeErr);
        EXPECT_EQ(ippsCrossCorrNormGetBufferSize(0, 1, 1, 0, 0, 3, nullptr), ippStsNullPtrErr);
        EXPECT_EQ(ippsCrossCorrNormGetBufferSize(1, 0, 1, 0, 0, 3, &bytes), ippStsSizeErr);
        EXPECT_EQ(ippsCrossCorrNormGetBufferSize(1, 1, 1, 0, 21, 3, &bytes), ippStsDataTypeErr);
        EXPECT_EQ(ippsCrossCorrNormGetBufferSize(1, 1, 1, 0, 20, -1, &bytes), ippStsAlgTypeErr);
        EXPECT_EQ(ippsConvolveGetBufferSize(0, 1, 0, 3, nullptr), ippStsNullPtrErr);
        EXPECT_EQ(ippsConvolveGetBufferSize(1, 0, 0, 3, &bytes), ippStsSizeErr);
        EXPECT_EQ(ippsConvolveGetBufferSize(1, 1, 0, 3, &bytes), ippStsDataTypeErr);
        for (const int algType : {-1, 3, 0x100, 0x200})
            EXPECT_EQ(ippsConvolveGetBufferSize(1, 1, 19, algType, &bytes), ippStsAlgTypeErr);
        EXPECT_EQ(bytes, -7);
        // Normalisations, known or not, are no matter of the buffer.
        for (const int algType : {0, 0x100, 0x200, 0x300, -0x100})
            EXPECT_EQ(ippsAutoCorrNormGetBufferSize(9, 9, 19, algType, &bytes), ippStsNoErr);

        const Ipp64f x[3] = {1, 2, 3};
        Ipp64f y[5] = {-7, -7, -7, -7, -7};
        Ipp8u buffer[64];
        const int huge = 0x40000000; // too long for any transform, and never read
        EXPECT_EQ(ippsAutoCorrNorm_64f(nullptr, 0, y, 3, 3, buffer), ippStsNullPtrErr);
        EXPECT_EQ(ippsAutoCorrNorm_64f(x, 0, y, 3, 3, nullptr), ippStsNullPtrErr);
        EXPECT_EQ(ippsAutoCorrNorm_64f(x, 0, y, 3, 3, buffer), ippStsSizeErr);
        EXPECT_EQ(ippsAutoCorrNorm_64f(x, 3, y, 0, 3, buffer), ippStsSizeErr);
        EXPECT_EQ(ippsAutoCorrNorm_64f(x, huge, y, 3, 3, buffer), ippStsAlgTypeErr);
        EXPECT_EQ(ippsAutoCorrNorm_64f(x, huge, y, 3, 0x302, buffer), ippStsSizeErr);
        EXPECT_EQ(ippsCrossCorrNorm_64f(x, 0, nullptr, 3, y, 3, 0, 3, buffer), ippStsNullPtrErr);
        EXPECT_EQ(ippsCrossCorrNorm_64f(x, 3, x, 0, y, 3, 0, 3, buffer), ippStsSizeErr);
        EXPECT_EQ(ippsCrossCorrNorm_64f(x, 3, x, 3, y, 0, 0, 3, buffer), ippStsSizeErr);
        EXPECT_EQ(ippsCrossCorrNorm_64f(x, huge, x, huge, y, 3, 0, 0x103, buffer), ippStsAlgTypeErr);
        EXPECT_EQ(ippsCrossCorrNorm_64f(x, huge, x, huge, y, 3, 0, 2, buffer), ippStsSizeErr);
        EXPECT_EQ(ippsConvolve_64f(x, 3, x, 0, nullptr, 3, buffer), ippStsNullPtrErr);
        EXPECT_EQ(ippsConvolve_64f(x, 3, x, 0, y, 3, buffer), ippStsSizeErr);
        EXPECT_EQ(ippsConvolve_64f(x, huge, x, huge + 2, y, 0x100, buffer), ippStsAlgTypeErr);
        EXPECT_EQ(ippsConvolve_64f(x, huge, x, huge + 2, y, 0, buffer), ippStsSizeErr); // results beyond an int
        for (const Ipp64f value : y) EXPECT_EQ(value, -7);
    }
}

// What a transform of N values takes: twice the values (once for an autocorrelation) and its tables and work.
TEST(CorrelationSizes, NeverWrap)
{
    std::mt19937 g(8);
    std::vector<int> lengths = {1, 2, 0x7fffffff, 0x7ffffffe, 0x3fffffff, 0x40000001};
    for (int k = 2; k < 31; ++k)
        for (const int d : {-1, 0, 1}) lengths.push_back((1 << k) + d);
    for (int i = 0; i < 20000; ++i) lengths.push_back(1 + static_cast<int>((g() & 0x7fffffff) >> (g() % 31)));
    for (const int n : lengths) {
        if (n < 1) continue;
        for (const int type : {13, 14, 19, 20}) {
            const long long e = type == 13 ? 4 : type == 20 ? 16 : 8, other = lengths[g() % lengths.size()];
            long long points = 2;
            while (points < 2LL * n) points *= 2;
            int bytes = 0;
            int status = ippsAutoCorrNormGetBufferSize(n, 1, type, 2, &bytes);
            if (status) {
                ASSERT_EQ(status, ippStsSizeErr);
                ASSERT_GT(64 + points * (e + 28), 0x7fffffff) << n;
            } else {
                ASSERT_TRUE(bytes >= 64 + points * e && bytes <= 1200 + points * (e + 28)) << n << " " << bytes;
            }
            status = ippsAutoCorrNormGetBufferSize(n, 1, type, 1, &bytes);
            if (status) {
                ASSERT_GT(64 + n * e, 0x7fffffff) << n;
            } else {
                ASSERT_EQ(bytes, 64 + (type % 2 ? 0 : n * e)) << n;
            }
            status = ippsConvolveGetBufferSize(n, static_cast<int>(other > 0 ? other : 1), type, 0, &bytes);
            if (status) {
                ASSERT_TRUE(n + other - 1 > 0x7fffffff || std::min<long long>(n, other) * e + 64 > 0x7fffffff) << n;
            } else {
                ASSERT_GE(bytes, 64 + std::min<long long>(n, std::max(other, 1LL)) * e) << n << " " << other;
            }
            status = ippsCrossCorrNormGetBufferSize(n, 0x7fffffff, 0x7fffffff, static_cast<int>(g()), type, 2, &bytes);
            ASSERT_TRUE(status == ippStsSizeErr || (status == 0 && bytes >= 64)) << n;
        }
    }
}

} // namespace
