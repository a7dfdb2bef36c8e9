// Cosine transforms: accuracy at every length up to 4096 and some beyond, sizes, statuses, and that every variant gives
// the same bits at lengths of every method.
#include "oracle/dct.h"
#include "signal/processing/fir/memory.h"
#include "support/library.h"
#include <cstdio>
#include <cstring>
#include <gtest/gtest.h>
#include <random>

namespace {

using fir::Fenced;
using Numbers = std::vector<double>;

struct Sizes {
    int spec = -1, init = -1, work = -1;
};
Sizes sizesOf(int len)
{
    Sizes s;
    EXPECT_EQ(ippsDCTFwdGetSize_64f(len, 0, &s.spec, &s.init, &s.work), 0) << len;
    return s;
}

// A transform in memory of exactly the sizes asked for, at any offset from a multiple of 64.
struct Transform {
    Sizes sizes;
    Fenced block, setUp, work;
    IppsDCTFwdSpec_64f* spec = nullptr;
    explicit Transform(int len, int offset = 8)
        : sizes(sizesOf(len)), block(sizes.spec, offset), setUp(sizes.init, 64 - offset), work(sizes.work, offset)
    {
        EXPECT_EQ(ippsDCTFwdInit_64f(&spec, len, 0, block.data(), sizes.init ? setUp.data() : nullptr), 0);
        EXPECT_EQ(reinterpret_cast<uintptr_t>(spec) % 64, 0u);
        EXPECT_TRUE(block.intact() && setUp.intact()) << len;
    }
    Ipp8u* buffer() { return sizes.work ? work.data() : nullptr; }
    Numbers forward(const Numbers& x)
    {
        Numbers y(x.size());
        EXPECT_EQ(ippsDCTFwd_64f(x.data(), y.data(), spec, buffer()), 0);
        EXPECT_TRUE(block.intact() && work.intact()) << x.size();
        return y;
    }
    // One specification serves both directions.
    Numbers inverse(const Numbers& y)
    {
        Numbers x(y.size());
        EXPECT_EQ(ippsDCTInv_64f(y.data(), x.data(), reinterpret_cast<IppsDCTInvSpec_64f*>(spec), buffer()), 0);
        EXPECT_TRUE(block.intact() && work.intact()) << y.size();
        return x;
    }
};

Numbers noise(size_t n, unsigned seed)
{
    std::mt19937_64 random(seed);
    std::normal_distribution<double> normal;
    Numbers x(n);
    for (double& v : x) v = normal(random);
    return x;
}
oracle::Values widened(const Numbers& x) { return {x.begin(), x.end()}; }

// |a - b| / |b| in units of 2^-52.
double distance(const Numbers& a, const oracle::Values& b)
{
    long double difference = 0, size = 0;
    for (size_t i = 0; i < a.size(); ++i) {
        difference += (a[i] - b[i]) * (a[i] - b[i]);
        size += b[i] * b[i];
    }
    return double(std::sqrt(difference / size)) * 0x1p52;
}

// The largest errors, as shares of their bounds.
struct Worst {
    double forward = 0, inverse = 0, thereAndBack = 0;
    void see(int len)
    {
        const Numbers x = noise(size_t(len), unsigned(len));
        const oracle::AnyLength exact(x.size());
        Transform transform(len, len % 8 * 8);
        const Numbers y = transform.forward(x);
        const double bound = 1 + std::sqrt(std::log2(double(len)));
        const double there = distance(y, oracle::cosines(widened(x), exact)) / bound;
        // The oracle takes its time: at many lengths the way back is compared with where it began only.
        const double back =
            len < 600 || len > 4096 ? distance(transform.inverse(x), oracle::inverse(widened(x), exact)) / bound : 0;
        const double both = distance(transform.inverse(y), widened(x)) / (2 * bound);
        EXPECT_LE(there, 1) << len;
        EXPECT_LE(back, 1) << len;
        EXPECT_LE(both, 1) << len;
        forward = std::max(forward, there);
        inverse = std::max(inverse, back);
        thereAndBack = std::max(thereAndBack, both);
    }
    void print(const char* what) const
    {
        std::printf("%s: largest errors, of the bound: forward %.3f, inverse %.3f, there and back %.3f\n", what,
                    forward, inverse, thereAndBack);
    }
};

} // namespace

TEST(Dct, OracleIsTheDefinition)
{
    for (size_t n : {1, 2, 3, 8, 30, 37}) {
        const oracle::Values x = widened(noise(n, 3));
        const oracle::AnyLength transform(n);
        const oracle::Values there = oracle::cosines(x, transform), back = oracle::inverse(x, transform);
        EXPECT_LE(distance(Numbers(there.begin(), there.end()), oracle::cosinesByDefinition(x)), 1);
        EXPECT_LE(distance(Numbers(back.begin(), back.end()), oracle::inverseByDefinition(x)), 1);
    }
}

TEST(Dct, AccurateAtEveryLength)
{
    Worst worst;
    for (int len = 2; len <= 4096; ++len) worst.see(len);
    worst.print("2 to 4096");
}

TEST(Dct, AccurateAtLongLengths)
{
    // Powers of two; mixed radices, also 97 * 97 and others with large ones; primes with a smooth and with another
    // predecessor; products with a large prime.
    Worst worst;
    for (int len :
         {8192, 65536, 1 << 20, 9409, 46189, 59049, 100000, 10007, 65537, 163841, 10006, 20026, 99999, 1048574})
        worst.see(len);
    worst.print("up to 2^20");
}

TEST(Dct, ConstantsAndSingleValues)
{
    for (int len : {1, 2, 3, 4, 8, 16, 60, 85, 86, 89, 128, 206, 1000}) {
        Transform transform(len);
        const Numbers y = transform.forward(Numbers(size_t(len), 3.0));
        EXPECT_NEAR(y[0], 3 * std::sqrt(len), 1e-12) << len;
        for (int k = 1; k < len; ++k) EXPECT_NEAR(y[size_t(k)], 0, 1e-12) << len;
    }
    Transform one(1);
    EXPECT_EQ(one.forward({-0.1})[0], -0.1);
    EXPECT_EQ(one.inverse({-0.1})[0], -0.1);
}

TEST(Dct, EveryVariantHasTheSameBitsAtEveryMethod)
{
    std::vector<int> lengths;
    for (int len = 1; len < 300; ++len) lengths.push_back(len);
    for (int len : {343, 512, 605, 1000, 1006, 1009, 1019, 1031, 1680, 2048, 2187, 9409, 10007, 10010})
        lengths.push_back(len);
    for (int len : lengths) {
        const Numbers x = noise(size_t(len), 7);
        support::force(support::supported().front());
        ASSERT_STREQ(support::supported().front().code, "px");
        Transform built(len, 24);
        const Numbers there = built.forward(x), back = built.inverse(x);
        for (const auto& v : support::supported()) {
            support::force(v);
            Transform own(len, 48);
            // Its own specification and that of px, in place and not, at any multiple of 8 bytes.
            for (Transform* t : {&built, &own}) {
                Numbers shifted(x.size() + 3);
                for (size_t away = 0; away < 4; away += t == &own ? 1 : 4) {
                    double* const p = shifted.data() + away;
                    std::memcpy(p, x.data(), x.size() * sizeof(double));
                    ASSERT_EQ(ippsDCTFwd_64f_I(p, t->spec, t->buffer()), 0);
                    ASSERT_EQ(std::memcmp(p, there.data(), x.size() * sizeof(double)), 0) << v.code << " " << len;
                    std::memcpy(p, x.data(), x.size() * sizeof(double));
                    ASSERT_EQ(ippsDCTInv_64f_I(p, reinterpret_cast<IppsDCTInvSpec_64f*>(t->spec), t->buffer()), 0);
                    ASSERT_EQ(std::memcmp(p, back.data(), x.size() * sizeof(double)), 0) << v.code << " " << len;
                }
                ASSERT_EQ(t->forward(x), there) << v.code << " " << len;
                ASSERT_EQ(t->inverse(x), back) << v.code << " " << len;
            }
        }
    }
}

TEST(Dct, SizesByClass)
{
    for (int len : {1, 2, 4, 8}) {
        const Sizes s = sizesOf(len);
        EXPECT_EQ(s.spec, 144);
        EXPECT_EQ(s.init, 0);
        EXPECT_EQ(s.work, 0);
    }
    for (int len = 3; len < 86; ++len) {
        if (!(len & (len - 1))) continue;
        const Sizes s = sizesOf(len);
        EXPECT_EQ(s.spec, 32 * len + 192);
        EXPECT_EQ(s.init, 0);
        EXPECT_EQ(s.work, 8 * len + 64);
    }
    // Others hold at least the values to transform, and do not wrap.
    std::mt19937 random(5);
    for (int i = 0; i < 2000; ++i) {
        const int len = 86 + int(random() % (i % 2 ? 100000u : 0xFFFFFFu - 86));
        const Sizes s = sizesOf(len);
        EXPECT_GT(s.spec, 8 * len) << len;
        EXPECT_GT(s.work, 8 * len) << len;
        EXPECT_GE(s.init, 0) << len;
    }
    for (int len : {0xFFFFFF, 0xFFFFFE, 16777213, 16777216, 1 << 26}) {
        const Sizes s = sizesOf(len);
        EXPECT_GT(s.spec, 8 * len) << len;
        EXPECT_GT(s.work, 8 * len) << len;
    }
}

TEST(Dct, LimitsOfLengthsAndNullBuffers)
{
    int a = 7, b = 7, c = 7;
    alignas(64) Ipp8u block[144];
    IppsDCTFwdSpec_64f* spec = nullptr;
    for (int len : {0x1000001, 0x7FFFFFF, 1 << 27, 1 << 30, 0x7FFFFFFF, 0, -5})
        EXPECT_EQ(ippsDCTFwdGetSize_64f(len, 0, &a, &b, &c), ippStsSizeErr) << len;
    for (int len : {0x2000001, 0x7FFFFFF, 1 << 27, 1 << 30, 0x7FFFFFFF, 0, -5})
        EXPECT_EQ(ippsDCTFwdInit_64f(&spec, len, 0, block, block), ippStsSizeErr) << len;
    EXPECT_EQ(ippsDCTInvGetSize_64f(0x1000001, 0, &a, nullptr, &c), ippStsNullPtrErr); // the class comes last
    EXPECT_EQ(ippsDCTInvInit_64f(nullptr, 0x2000001, 0, block, block), ippStsNullPtrErr);
    EXPECT_EQ(a + b + c, 21);
    EXPECT_EQ(ippsDCTFwdInit_64f(&spec, 1009, 0, block, nullptr), ippStsNullPtrErr); // what sets it up is missing
    EXPECT_EQ(spec, nullptr);

    double x[16] = {};
    for (int len : {3, 16}) {
        Transform transform(len);
        EXPECT_EQ(ippsDCTFwd_64f_I(x, transform.spec, nullptr), ippStsNullPtrErr);
        Numbers copy(200);
        EXPECT_EQ(ippsDCTFwd_64f_I(x, reinterpret_cast<IppsDCTFwdSpec_64f*>(copy.data()), transform.buffer()),
                  ippStsContextMatchErr);
    }
}

TEST(Dct, BlocksMayBeMoved)
{
    for (int len : {8, 20, 64, 100, 206, 1009}) {
        Transform transform(len, 0);
        const Numbers x = noise(size_t(len), 1), y = transform.forward(x);
        Transform other(len, 0);
        std::memcpy(other.block.data(), transform.block.data(), size_t(transform.sizes.spec));
        std::memset(transform.block.data(), 0, size_t(transform.sizes.spec));
        EXPECT_EQ(other.forward(x), y) << len;
    }
}
