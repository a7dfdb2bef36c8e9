// Random numbers against the generator step by step, in every variant, however a stream is cut.
#include "oracle/random.h"
#include "support/bytes.h"
#include <algorithm>
#include <cstring>
#include <limits>

using namespace support;

namespace {

// A type's functions and its state, of exactly the size that they tell.
template <class T> struct Name;
template <> struct Name<double> {
    static constexpr const char* suffix = "_64f";
};
template <> struct Name<float> {
    static constexpr const char* suffix = "_32f";
};
template <> struct Name<Ipp16s> {
    static constexpr const char* suffix = "_16s";
};
template <> struct Name<Ipp8u> {
    static constexpr const char* suffix = "_8u";
};
template <class T> std::string uniform(const char* what)
{
    return std::string("ippsRandUniform") + what + Name<T>::suffix;
}
template <class T> std::string normal(const char* what)
{
    return std::string("ippsRandGauss") + what + Name<T>::suffix;
}

template <class T> Bytes made(std::string (*name)(const char*), T first, T second, unsigned seed)
{
    int size = -1;
    EXPECT_EQ(call(name("GetSize"), &size), 0);
    Bytes state(static_cast<size_t>(size), 0xA5);
    EXPECT_EQ(call(name("Init"), static_cast<void*>(state.data()), first, second, seed), 0);
    return state;
}
template <class T> Bytes uniformState(T low, T high, unsigned seed) { return made(uniform<T>, low, high, seed); }
template <class T> Bytes normalState(T mean, T stdDev, unsigned seed) { return made(normal<T>, mean, stdDev, seed); }

template <class T> T field(const Bytes& state, size_t offset)
{
    T x;
    std::memcpy(&x, state.data() + offset, sizeof x);
    return x;
}
template <class T> void setField(Bytes& state, size_t offset, T x) { std::memcpy(state.data() + offset, &x, sizeof x); }

// The state that no export makes, field by field.
template <> Bytes normalState(double mean, double stdDev, unsigned seed)
{
    const oracle::Draws draws(seed);
    Bytes state(80);
    setField(state, 0, 0x2A);
    setField(state, 4, seed);
    setField(state, 8, mean);
    setField(state, 16, stdDev);
    const uint32_t core[] = {draws.lcg, draws.s1, draws.s2, draws.s3, 0xFFFFFFFF, 1};
    std::memcpy(state.data() + 24, core, sizeof core);
    return state;
}

template <class T> std::vector<T> numbers(std::string (*name)(const char*), Bytes& state, int n)
{
    std::vector<T> d(static_cast<size_t>(n));
    EXPECT_EQ(call(name(""), static_cast<void*>(d.data()), n, static_cast<void*>(state.data())), 0);
    return d;
}

// The stream of a state in calls of all lengths.
template <class T>
std::vector<T> inPieces(std::string (*name)(const char*), Bytes state, size_t n, std::mt19937& random)
{
    std::vector<T> all;
    const unsigned longest = 1u << random() % 10;
    while (all.size() < n) {
        const size_t some = std::min<size_t>(1 + random() % longest, n - all.size());
        const auto part = numbers<T>(name, state, static_cast<int>(some));
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

const unsigned seeds[] = {0, 1, 12345, 0x80000000, 0xFFFFFFFF, 0xDEADBEEF};

template <class T> T limited(double x)
{
    return static_cast<T>(oracle::rounded(x, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
}
template <> double limited(double x) { return x; }

template <class T> void uniformStreams(std::vector<std::pair<T, T>> limits)
{
    std::mt19937 random(5);
    for (const auto& [low, high] : limits)
        for (const unsigned seed : seeds) {
            oracle::Uniform stream(low, high, seed);
            std::vector<T> expected(1000);
            for (T& x : expected) x = limited<T>(stream.next());
            Bytes state = uniformState<T>(low, high, seed);
            ASSERT_EQ(inPieces<T>(uniform<T>, state, expected.size(), random), expected) << seed;
            ASSERT_EQ(numbers<T>(uniform<T>, state, 1000), expected) << seed;
        }
}

} // namespace

TEST(Uniform, IsTheGeneratorToTheBitHoweverAStreamIsCut)
{
    inEveryVariant([] {
        uniformStreams<double>({{0, 1}, {-1, 1}, {5, 5}, {3, -2.5}, {-1e300, 1e300}, {0.1, 0.3}});
        uniformStreams<Ipp16s>({{-32768, 32767}, {0, 1}, {7, 7}, {100, -100}, {0, 2}});
        uniformStreams<Ipp8u>({{0, 255}, {0, 1}, {200, 200}, {255, 0}});
    });
}

TEST(Uniform, StateHasItsFieldsWhereTheReferenceSaysSo)
{
    Bytes state = uniformState<double>(-3, 8, 77);
    ASSERT_EQ(state.size(), 64u);
    EXPECT_EQ(field<uint32_t>(state, 0), 0x26u);
    EXPECT_EQ(field<uint32_t>(state, 4), 77u);
    EXPECT_EQ(field<double>(state, 8), -3);
    EXPECT_EQ(field<double>(state, 16), 8);
    EXPECT_EQ(field<double>(state, 24), 2.5);
    EXPECT_EQ(field<double>(state, 32), 11 * 0x1p-32);
    oracle::Draws draws(77);
    for (const int n : {0, 1, 2, 3, 40, 300}) {
        if (n) numbers<double>(uniform<double>, state, n);
        for (int i = 0; i < n; ++i) draws.next();
        EXPECT_EQ(field<uint32_t>(state, 40), draws.lcg);
        EXPECT_EQ(field<uint32_t>(state, 44), draws.s1);
        EXPECT_EQ(field<uint32_t>(state, 48), draws.s2);
        EXPECT_EQ(field<uint32_t>(state, 52), draws.s3);
        EXPECT_EQ(field<int>(state, 56), draws.borrow ? -1 : 0);
    }
    EXPECT_EQ(field<uint32_t>(uniformState<Ipp16s>(0, 1, 0), 0), 0x24u);
    EXPECT_EQ(uniformState<Ipp16s>(0, 1, 0), uniformState<Ipp16s>(0, 1, 0)) << "bytes between the fields";
}

// Differences at which the borrow decides the sign, which no seed is known to reach.
TEST(Uniform, BorrowsDecideAtTheLimits)
{
    const uint32_t values[] = {0, 1, 17, 18, 0x7FFFFFFF, 0x80000000, 0x80000001, 0x80000012, 0xFFFFFFFF};
    inEveryVariant([&] {
        for (const uint32_t s1 : values)
            for (const uint32_t s2 : values)
                for (const uint32_t s3 : values)
                    for (const int borrow : {0, -1}) {
                        Bytes state = uniformState<double>(-0x1p31, 0x1p31, 0);
                        const uint32_t core[] = {0, s1, s2, s3, static_cast<uint32_t>(borrow)};
                        std::memcpy(state.data() + 40, core, sizeof core);
                        oracle::Draws draws(0);
                        draws.lcg = 0;
                        draws.s1 = s1;
                        draws.s2 = s2;
                        draws.s3 = s3;
                        draws.borrow = borrow != 0;
                        for (const double x : numbers<double>(uniform<double>, state, 9)) ASSERT_EQ(x, draws.next());
                    }
    });
}

TEST(Normal, IsThePolarMethodHoweverAStreamIsCut)
{
    const std::pair<double, double> parameters[] = {{0, 1}, {100, 0.25}, {-1e6, -3}, {2, 0}};
    std::mt19937 random(6);
    inEveryVariant([&] {
        for (const auto& [mean, stdDev] : parameters)
            for (const unsigned seed : seeds) {
                Bytes state = normalState<double>(mean, stdDev, seed);
                const auto cut = inPieces<double>(normal<double>, state, 1001, random);
                ASSERT_EQ(cut, numbers<double>(normal<double>, state, 1001)) << seed;
                EXPECT_EQ(field<int>(state, 44), 0) << "one number waits";
                oracle::Normal stream(mean, stdDev, seed);
                for (const double x : cut) {
                    const long double exact = stream.next();
                    // Up to 1.5 ulp of the factor, half an ulp of each product, and the sum's.
                    const long double error = 3.5e-16L * fabsl(exact - mean) + 1.2e-16L * fabsl(exact);
                    ASSERT_LE(fabsl(x - exact), error) << mean << ' ' << stdDev << ' ' << seed;
                }
                EXPECT_EQ(field<uint32_t>(state, 24), stream.draws.lcg);
                EXPECT_EQ(field<uint32_t>(state, 28), stream.draws.s1);
                EXPECT_EQ(field<int>(state, 40), stream.draws.borrow ? -1 : 0);
                EXPECT_EQ(field<double>(state, 48), stream.u1);
            }
    });
}

template <class T> void integerStreams(std::vector<std::pair<T, T>> parameters)
{
    std::mt19937 random(7);
    for (const auto& [mean, stdDev] : parameters)
        for (const unsigned seed : seeds) {
            Bytes state = normalState<T>(mean, stdDev, seed);
            EXPECT_EQ(state.size(), 72u);
            Bytes reference = normalState<double>(mean, stdDev, seed);
            std::vector<T> expected;
            for (const double x : numbers<double>(normal<double>, reference, 777)) expected.push_back(limited<T>(x));
            ASSERT_EQ(inPieces<T>(normal<T>, state, 777, random), expected) << +mean << ' ' << +stdDev;
        }
}

TEST(Normal, IntegersAreTheDoublesRoundedAndSaturated)
{
    inEveryVariant([] {
        integerStreams<Ipp16s>({{0, 100}, {30000, 32767}, {-32768, -32768}, {5, 0}, {0, 1}});
        integerStreams<Ipp8u>({{128, 20}, {250, 255}, {0, 1}, {9, 0}});
    });
}

// Draws that make the centre of the circle, a point on its rim, and the point next to the centre: the first two are
// passed over, and the third gives numbers as large as they come.
TEST(Normal, PointsOnTheRimAndInTheCentreAreRefused)
{
    struct Point {
        int32_t first, second;
        bool accepted;
    };
    const int32_t lowest = std::numeric_limits<int32_t>::min();
    const Point points[] = {{0, 0, false}, {lowest, 0, false}, {0, lowest, false}, {1, 0, true}, {lowest, 1, false}};
    int tried = 0;
    for (const Point& p : points)
        for (uint32_t lcg = 0; lcg < 64; ++lcg) {
            // s1, s2, s3 that lead there by differences that are not negative, where there are any.
            const uint32_t l1 = 69069 * lcg + 1013904243, l2 = 69069 * l1 + 1013904243;
            const uint32_t t1 = static_cast<uint32_t>(p.first) - l1, t2 = static_cast<uint32_t>(p.second) - l2;
            if (t1 >> 31 || t2 >> 31) continue;
            ++tried;
            const uint32_t core[] = {lcg, t1 + t2, t1, 0, 0};
            Bytes state = normalState<double>(0, 1, 0);
            std::memcpy(state.data() + 24, core, sizeof core);
            oracle::Normal stream(0, 1, 0);
            stream.draws.lcg = lcg;
            stream.draws.s1 = core[1];
            stream.draws.s2 = core[2];
            stream.draws.s3 = 0;
            stream.draws.borrow = false;
            inEveryVariant([&] {
                Bytes own = state;
                oracle::Normal expected = stream;
                for (const double x : numbers<double>(normal<double>, own, 20)) {
                    const double exact = static_cast<double>(expected.next());
                    ASSERT_NEAR(x, exact, 5e-16 * std::fabs(exact));
                }
            });
            oracle::Draws two = stream.draws;
            EXPECT_EQ(two.next(), p.first);
            EXPECT_EQ(two.next(), p.second);
            stream.next();
            EXPECT_EQ(stream.draws.s1 == two.s1, p.accepted);
        }
    EXPECT_GT(tried, 20);
}

TEST(Random, OneShotFormsAreTheStreamsAndLeaveTheSeed)
{
    inEveryVariant([] {
        for (const int n : {1, 2, 3, 7, 128, 129, 1000}) {
            const unsigned seed = 4711;
            std::vector<double> a(static_cast<size_t>(n) + 3, 7.0), b = a, c = a;
            ASSERT_EQ(callIndexed("ippsRandUniform_Direct_64f_Idx", a.data(), 2, n, -1.0, 3.0, &seed), 0);
            ASSERT_EQ(callIndexed("ippsRandGauss_Direct_64f_Idx", b.data() + 3, -1, n, -1.0, 3.0, &seed), 0);
            ASSERT_EQ(callIndexed("ippsRandGauss_Direct_64f_Idx", c.data(), 2, n, -1.0, 3.0, &seed), 0);
            EXPECT_EQ(seed, 4711u);
            EXPECT_EQ(b, c);
            Bytes u = uniformState(-1.0, 3.0, seed), g = normalState(-1.0, 3.0, seed);
            EXPECT_EQ(std::vector<double>(a.begin() + 2, a.end() - 1), numbers<double>(uniform<double>, u, n));
            EXPECT_EQ(std::vector<double>(b.begin() + 2, b.end() - 1), numbers<double>(normal<double>, g, n));
            EXPECT_EQ(a[1] + a.back() + b[1] + b.back(), 28);
        }
    });
}

TEST(Random, StatesOfOtherKindsAreRefusedAndStay)
{
    const std::pair<std::string, Bytes> states[] = {
        {uniform<double>(""), uniformState(0.0, 1.0, 1)},
        {uniform<Ipp16s>(""), uniformState<Ipp16s>(0, 9, 1)},
        {uniform<Ipp8u>(""), uniformState<Ipp8u>(0, 9, 1)},
        {normal<double>(""), normalState(0.0, 1.0, 1)},
        {normal<Ipp16s>(""), normalState<Ipp16s>(0, 9, 1)},
        {normal<Ipp8u>(""), normalState<Ipp8u>(0, 9, 1)},
        {"nobody", normalState(0.0f, 1.0f, 1)},
        {"nobody", Bytes(80)},
        {"nobody", {0x26, 0, 0, 1}},
        {"nobody", {0x2A, 1, 0, 0}},
    };
    inEveryVariant([&] {
        for (const auto& [function, own] : states) {
            if (function == "nobody") continue;
            for (const auto& [owner, state] : states) {
                Bytes copy = state;
                std::vector<double> d(5, 3.0);
                const auto status = call(function, static_cast<void*>(d.data()), 5, static_cast<void*>(copy.data()));
                EXPECT_EQ(status, owner == function ? ippStsNoErr : ippStsContextMatchErr) << function << ' ' << owner;
                if (owner == function) continue;
                EXPECT_EQ(copy, state);
                EXPECT_EQ(d, std::vector<double>(5, 3.0));
            }
        }
        // The one function that general tests do not call.
        Bytes state = normalState(0.0, 1.0, 1);
        double x[6] = {3, 3, 3, 3, 3, 3};
        void *const d = x, *const s = state.data(), *const null = nullptr;
        EXPECT_EQ(call("ippsRandGauss_64f", null, 1, s), ippStsNullPtrErr);
        EXPECT_EQ(call("ippsRandGauss_64f", d, 0, null), ippStsNullPtrErr);
        EXPECT_EQ(call("ippsRandGauss_64f", d, 0, s), ippStsSizeErr);
        EXPECT_EQ(state, normalState(0.0, 1.0, 1));
        EXPECT_EQ(callIndexed("ippsRandGauss_64f_Idx", d, 5, 1, s), 0);
        EXPECT_EQ(x[0] + x[4], 6);
        Bytes again = normalState(0.0, 1.0, 1);
        EXPECT_EQ(x[5], numbers<double>(normal<double>, again, 1)[0]);
    });
}

// Not that of a stranger: moments and classes of a long stream, each within five standard errors.
TEST(Random, NumbersAreDistributedAsTheyShould)
{
    constexpr int n = 1 << 20, classes = 256;
    const auto moments = [](const std::vector<double>& x, int order) {
        double sum = 0;
        for (const double v : x) sum += std::pow(v, order);
        return sum / n;
    };
    for (const unsigned seed : {1u, 2u, 3u}) {
        Bytes u = uniformState(0.0, 1.0, seed), g = normalState(0.0, 1.0, seed);
        const auto x = numbers<double>(uniform<double>, u, n), y = numbers<double>(normal<double>, g, n);
        EXPECT_NEAR(moments(x, 1), 0.5, 5 * std::sqrt(1.0 / 12 / n));
        EXPECT_NEAR(moments(x, 2), 1.0 / 3, 5 * std::sqrt(4.0 / 45 / n));
        EXPECT_NEAR(moments(y, 1), 0, 5 * std::sqrt(1.0 / n));
        EXPECT_NEAR(moments(y, 2), 1, 5 * std::sqrt(2.0 / n));
        EXPECT_NEAR(moments(y, 3), 0, 5 * std::sqrt(15.0 / n));
        EXPECT_NEAR(moments(y, 4), 3, 5 * std::sqrt(96.0 / n));
        // Chi squared over classes of equal probability: mean 255, standard deviation 22.6.
        double counts[2][classes] = {}, square[2] = {};
        for (const double v : x) ++counts[0][static_cast<int>(v * classes)];
        for (const double v : y) ++counts[1][static_cast<int>(0.5 * std::erfc(-v / std::sqrt(2)) * classes)];
        for (int k = 0; k < 2; ++k) {
            for (const double c : counts[k]) square[k] += (c - n / classes) * (c - n / classes) / (n / classes);
            EXPECT_NEAR(square[k], 255, 113);
        }
        // Neighbours, and the two numbers of a pair, have nothing to do with one another.
        double product = 0;
        for (int i = 0; i + 1 < n; ++i) product += y[static_cast<size_t>(i)] * y[static_cast<size_t>(i) + 1];
        EXPECT_NEAR(product / n, 0, 5 * std::sqrt(1.0 / n));
    }
}
