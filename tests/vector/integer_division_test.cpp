// Integer division against 64-bit arithmetic.
#include "support/bytes.h"
#include <limits>
#include <type_traits>

using namespace support;

namespace {

template <class T> const char* const suffix = sizeof(T) == 4 ? "_32s" : sizeof(T) == 2 ? "_16s" : "_8u";
template <class T> std::string sfs(const std::string& family) { return family + suffix<T> + "_SFS"; }
template <class T> std::string isfs(const std::string& family) { return family + suffix<T> + "_ISFS"; }

template <class T> T quotient(T x, T y) { return static_cast<T>(static_cast<long long>(x) / y); }
template <class T> T remainder(T x, T y) { return static_cast<T>(static_cast<long long>(x) % y); }

// All forms of the division of a by one value.
template <class T> void byValue(const std::vector<T>& a, T value)
{
    const int n = static_cast<int>(a.size());
    std::vector<T> q(a.size()), r(a.size()), mod(a.size()), inPlace = a, expectedQ(a.size()), expectedR(a.size());
    for (size_t i = 0; i < a.size(); ++i) {
        expectedQ[i] = quotient(a[i], value);
        expectedR[i] = remainder(a[i], value);
    }
    callIndexed(sfs<T>("RemDivC") + "_Idx", a.data(), 0, q.data(), 0, r.data(), 0, value, n);
    callIndexed(sfs<T>("ModC"), a.data(), value, mod.data(), n);
    callIndexed(isfs<T>("ModC"), inPlace.data(), value, n);
    ASSERT_EQ(q, expectedQ) << "by " << +value;
    ASSERT_EQ(r, expectedR) << "by " << +value;
    ASSERT_EQ(mod, expectedR) << "by " << +value;
    ASSERT_EQ(inPlace, expectedR) << "by " << +value;
    if constexpr (sizeof(T) == 4) {
        inPlace = a;
        callIndexed("DivC_32s_SFS", a.data(), value, q.data(), n);
        callIndexed("DivC_32s_ISFS_Idx", inPlace.data(), 0, value, n);
        ASSERT_EQ(q, expectedQ) << "by " << +value;
        ASSERT_EQ(inPlace, expectedQ) << "by " << +value;
    }
}

// All forms of the division of one value by b.
template <class T> void ofValue(T value, const std::vector<T>& b)
{
    const int n = static_cast<int>(b.size());
    std::vector<T> q(b.size()), r(b.size()), plain(b.size()), inPlace = b, expectedQ(b.size()), expectedR(b.size());
    for (size_t i = 0; i < b.size(); ++i) {
        expectedQ[i] = quotient(value, b[i]);
        expectedR[i] = remainder(value, b[i]);
    }
    callIndexed(sfs<T>("RemDivCREV") + "_Idx", b.data(), 0, q.data(), 0, r.data(), 0, value, n);
    callIndexed(sfs<T>("DivCREV"), b.data(), value, plain.data(), n);
    callIndexed(isfs<T>("DivCREV"), inPlace.data(), value, n);
    ASSERT_EQ(q, expectedQ) << +value;
    ASSERT_EQ(r, expectedR) << +value;
    ASSERT_EQ(plain, expectedQ) << +value;
    ASSERT_EQ(inPlace, expectedQ) << +value;
}

template <class T> void byArray(const std::vector<T>& a, const std::vector<T>& b)
{
    const int n = static_cast<int>(a.size());
    std::vector<T> q(a.size()), r(a.size()), expectedQ(a.size()), expectedR(a.size());
    for (size_t i = 0; i < a.size(); ++i) {
        expectedQ[i] = quotient(a[i], b[i]);
        expectedR[i] = remainder(a[i], b[i]);
    }
    callIndexed(sfs<T>("RemDiv") + "_Idx", a.data(), 0, q.data(), 0, r.data(), 0, b.data(), 5, n);
    ASSERT_EQ(q, expectedQ);
    ASSERT_EQ(r, expectedR);
}

// Extremes, their neighbours, powers of two and what lies next to them, and numbers of every size; never 0.
std::vector<Ipp32s> manySizes(size_t n, unsigned seed)
{
    std::mt19937 random(seed);
    std::vector<Ipp32s> v(n);
    for (Ipp32s& x : v) {
        const unsigned bits = random() % 32, kind = random() % 3;
        x = static_cast<Ipp32s>(kind ? random() >> bits : (1u << bits) + random() % 5 - 2);
        if (random() & 1) x = static_cast<Ipp32s>(0u - static_cast<unsigned>(x));
        if (x == 0) x = 1;
    }
    return v;
}

template <class T> std::vector<T> all()
{
    std::vector<T> v;
    for (long i = std::numeric_limits<T>::min(); i <= std::numeric_limits<T>::max(); ++i)
        v.push_back(static_cast<T>(i));
    return v;
}
template <class T> std::vector<T> allButZero()
{
    auto v = all<T>();
    v.erase(v.begin() - static_cast<long>(std::numeric_limits<T>::min()));
    return v;
}

} // namespace

TEST(IntegerDivision, OfBytesForEveryPair)
{
    inEveryVariant([] {
        for (int value = 0; value < 256; ++value) {
            if (value) byValue(all<Ipp8u>(), static_cast<Ipp8u>(value));
            ofValue(static_cast<Ipp8u>(value), allButZero<Ipp8u>());
            byArray(std::vector<Ipp8u>(255, static_cast<Ipp8u>(value)), allButZero<Ipp8u>());
        }
    });
}

// Quotients rise with the dividend, those from a reciprocal too, so that it is enough to see them on both sides of
// every multiple: then every dividend is right, for every divisor.
TEST(IntegerDivision, OfShortsByEveryValue)
{
    inEveryVariant([] {
        for (int value = -32768; value < 32768 && !testing::Test::HasFatalFailure(); ++value) {
            if (value == 0) continue;
            std::vector<Ipp16s> a = {-32768, 32767, -1, 0, 1, 2, 3, 4};
            const int step = value < 0 ? -value : value;
            for (int multiple = step; multiple <= 32768; multiple += step)
                for (int x : {multiple - 1, multiple}) {
                    if (x < 32768) a.push_back(static_cast<Ipp16s>(x));
                    a.push_back(static_cast<Ipp16s>(-x));
                }
            byValue(a, static_cast<Ipp16s>(value));
        }
    });
}

TEST(IntegerDivision, OfShortsByShorts)
{
    inEveryVariant([] {
        const auto b = allButZero<Ipp16s>();
        for (int value : {-32768, -32767, -12345, -100, -1, 0, 1, 2, 3, 100, 255, 256, 4099, 32766, 32767}) {
            ofValue(static_cast<Ipp16s>(value), b);
            std::vector<Ipp16s> a = b;
            for (Ipp16s& x : a) x = static_cast<Ipp16s>(x * 31 + value);
            byArray(a, b);
            byArray(std::vector<Ipp16s>(b.size(), static_cast<Ipp16s>(value)), b);
        }
    });
}

TEST(IntegerDivision, Of32Bits)
{
    constexpr Ipp32s lowest = std::numeric_limits<Ipp32s>::min(), highest = std::numeric_limits<Ipp32s>::max();
    inEveryVariant([=] {
        std::vector<Ipp32s> divisors = manySizes(500, 1);
        for (Ipp32s x : {1, -1, 2, -2, 3, 7, 10, 641, highest, highest - 1, -highest, lowest, lowest + 2})
            divisors.push_back(x);
        for (Ipp32s value : divisors) {
            auto a = manySizes(300, 2);
            for (Ipp32s x : {0, highest, highest - 1, -highest, lowest}) a.push_back(x);
            const long long step = value;
            for (long long k = -40; k <= 40; ++k) // around multiples, also the largest ones
                for (long long multiple : {k * step, (0x7FFFFFFF / step - k) * step})
                    for (long long x : {multiple - 1, multiple, multiple + 1})
                        if (x >= lowest && x <= highest) a.push_back(static_cast<Ipp32s>(x));
            for (Ipp32s& x : a)
                if (value == -1 && x == lowest) x = 0;
            byValue(a, value);
        }
        auto a = manySizes(100000, 3), b = manySizes(100000, 4);
        for (size_t i = 0; i < a.size(); ++i) {
            if (i % 2) a[i] = static_cast<Ipp32s>((static_cast<long long>(a[i]) / b[i]) * b[i] - (i % 4 == 1));
            if (a[i] == lowest && b[i] == -1) b[i] = 1;
        }
        byArray(a, b);
        for (Ipp32s value : {highest, -highest, 1000000007, -1, 0, 65536, 3}) ofValue(value, b);
        for (size_t i = 0; i < b.size(); ++i)
            if (b[i] == -1) b[i] = 1;
        ofValue(lowest, b);
    });
}

TEST(IntegerDivision, OnlyTheLowBitsOfAValueCount)
{
    inEveryVariant([] {
        for (int n : {3, 100}) {
            std::vector<Ipp8u> a(static_cast<size_t>(n), 255), d(a.size(), 9);
            callIndexed("ModC_8u_SFS", a.data(), 511, d.data(), n);
            EXPECT_EQ(d, std::vector<Ipp8u>(a.size(), 0));
            std::vector<Ipp16s> b(static_cast<size_t>(n), 100), e(b.size());
            callIndexed("ModC_16s_SFS", b.data(), 0x1FFF9, e.data(), n); // -7
            EXPECT_EQ(e, std::vector<Ipp16s>(b.size(), 2));
        }
    });
}

// One element after the other, whatever overlaps: the remainder is that of the elements as they are by then.
TEST(IntegerDivision, BothResultsInOverlappingArrays)
{
    inEveryVariant([] {
        for (int n : {5, 40, 100})
            for (int quot : {0, 1, -1, 3, 130})
                for (int rem : {0, 1, -1, 2, 260}) {
                    const auto start = manySizes(400, static_cast<unsigned>(n));
                    auto found = start, expected = start;
                    Ipp32s *a = expected.data() + 10, *q = a + quot, *r = a + rem;
                    for (int i = 0; i < n; ++i) {
                        q[i] = quotient(a[i], 7);
                        r[i] = remainder(a[i], 7);
                    }
                    Ipp32s* const p = found.data();
                    callIndexed("RemDivC_32s_SFS_Idx", p, 10, p, 10 + quot, p, 10 + rem, 7, n);
                    EXPECT_EQ(found, expected) << n << ' ' << quot << ' ' << rem;
                }
        Ipp16s src[] = {9, 7, 9, 7}, both[4] = {};
        callIndexed("RemDivCREV_16s_SFS_Idx", src, 1, src, 1, both, 0, 100, 1); // quot is src: 100 mod 14
        EXPECT_EQ(src[1], 14);
        EXPECT_EQ(both[0], 2);
    });
}

#ifndef _WIN32
TEST(IntegerDivision, ByZeroFaultsUnlessThereIsNothingToDivide)
{
    inEveryVariant([] {
        for (int n : {1, 100}) {
            std::vector<Ipp8u> a(100, 5);
            EXPECT_DEATH(callIndexed("ModC_8u_ISFS", a.data(), 256, n), "");
            std::vector<Ipp32s> b(100, 5);
            EXPECT_DEATH(callIndexed("DivC_32s_ISFS", b.data(), 0, n), "");
        }
        Ipp16s untouched = 4;
        callIndexed("ModC_16s_ISFS", &untouched, 0, 0);
        EXPECT_EQ(untouched, 4);
    });
}
#endif
