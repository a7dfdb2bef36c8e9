// Logic, shifts and byte order, element by element as their definitions say.
#include "support/bytes.h"
#include <cstring>

using namespace support;

namespace {

const int lengths[] = {1, 2, 3, 5, 8, 15, 16, 17, 31, 33, 64, 65, 127, 129, 260, 1025};

template <class T> std::vector<T> elements(int n, unsigned seed)
{
    const Bytes b = noise(static_cast<size_t>(n) * sizeof(T), seed);
    std::vector<T> v(static_cast<size_t>(n));
    std::memcpy(v.data(), b.data(), b.size());
    return v;
}

// The plain and the in-place form of a function of two arrays, of one and a value, of one.
template <class T, class F> void binary(const std::string& name, F f)
{
    for (int n : lengths) {
        const auto a = elements<T>(n, 1), b = elements<T>(n, 2);
        std::vector<T> expected = a, plain(a.size()), first = a, second = b;
        for (size_t i = 0; i < a.size(); ++i) expected[i] = static_cast<T>(f(a[i], b[i]));
        EXPECT_EQ(call(name, a.data(), b.data(), plain.data(), n), 0);
        EXPECT_EQ(plain, expected) << name << ' ' << n;
        EXPECT_EQ(call(name + "_I", a.data(), second.data(), n), 0);
        EXPECT_EQ(second, expected) << name << "_I " << n;
        EXPECT_EQ(call(name, first.data(), b.data(), first.data(), n), 0);
        EXPECT_EQ(first, expected) << name << " into its first source, " << n;
    }
}
template <class T, class V, class F> void withValue(const std::string& name, V value, F f)
{
    for (int n : lengths) {
        const auto a = elements<T>(n, 3);
        std::vector<T> expected = a, plain(a.size()), inPlace = a;
        for (T& x : expected) x = static_cast<T>(f(x));
        EXPECT_EQ(call(name, a.data(), value, plain.data(), n), 0);
        EXPECT_EQ(plain, expected) << name << ' ' << +value << ' ' << n;
        EXPECT_EQ(call(name + "_I", value, inPlace.data(), n), 0);
        EXPECT_EQ(inPlace, expected) << name << "_I " << +value << ' ' << n;
    }
}
template <class T, class F> void unary(const std::string& name, F f)
{
    for (int n : lengths) {
        const auto a = elements<T>(n, 4);
        std::vector<T> expected = a, plain(a.size()), inPlace = a;
        for (T& x : expected) x = static_cast<T>(f(x));
        EXPECT_EQ(call(name, a.data(), plain.data(), n), 0);
        EXPECT_EQ(plain, expected) << name << ' ' << n;
        EXPECT_EQ(call(name + "_I", inPlace.data(), n), 0);
        EXPECT_EQ(inPlace, expected) << name << "_I " << n;
    }
}

template <class T> void logic(const std::string& type, T value)
{
    binary<T>("ippsAnd_" + type, [](T x, T y) { return x & y; });
    binary<T>("ippsOr_" + type, [](T x, T y) { return x | y; });
    binary<T>("ippsXor_" + type, [](T x, T y) { return x ^ y; });
    withValue<T>("ippsAndC_" + type, value, [=](T x) { return x & value; });
    withValue<T>("ippsOrC_" + type, value, [=](T x) { return x | value; });
    withValue<T>("ippsXorC_" + type, value, [=](T x) { return x ^ value; });
    unary<T>("ippsNot_" + type, [](T x) { return ~x; });
}

// By division and multiplication: nothing of the processor's shifts, whose counts wrap around.
template <class T> T left(T x, int count)
{
    unsigned long long u = static_cast<unsigned long long>(x);
    for (int i = 0; i < count && i < 64; ++i) u *= 2;
    return static_cast<T>(u);
}
template <class T> T right(T x, int count)
{
    long long v = x;
    for (int i = 0; i < count && i < 64; ++i) v = v >= 0 ? v / 2 : -((1 - v) / 2);
    return static_cast<T>(v);
}

template <class T> void shifts(const std::string& type)
{
    for (int count = 0; count < 40; ++count) {
        withValue<T>("ippsLShiftC_" + type, count, [=](T x) { return left(x, count); });
        withValue<T>("ippsRShiftC_" + type, count, [=](T x) { return right(x, count); });
    }
    for (int count : {64, 256, 65536, 2147483647}) {
        withValue<T>("ippsLShiftC_" + type, count, [](T) { return T(0); });
        withValue<T>("ippsRShiftC_" + type, count, [](T x) { return x < 0 ? T(-1) : T(0); });
    }
}

template <class T> T swapped(T x)
{
    T y = 0;
    for (size_t i = 0; i < sizeof(T); ++i) y = static_cast<T>(y | (x >> (8 * i) & 0xFF) << (8 * (sizeof(T) - 1 - i)));
    return y;
}

} // namespace

TEST(Logic, EveryTypeAndForm)
{
    inEveryVariant([] {
        logic<Ipp8u>("8u", 0x5C);
        logic<Ipp16u>("16u", 0x0FF3);
        logic<Ipp32u>("32u", 0x80FF0134u);
    });
}

TEST(Shift, EveryCount)
{
    inEveryVariant([] {
        shifts<Ipp8u>("8u");
        shifts<Ipp16s>("16s");
        shifts<Ipp32s>("32s");
    });
}

TEST(Shift, SignStaysAndNothingSaturates)
{
    inEveryVariant([] {
        Ipp16s a[] = {-5, 5};
        EXPECT_EQ(call("ippsRShiftC_16s_I", 20, a, 2), 0);
        EXPECT_EQ(a[0], -1);
        EXPECT_EQ(a[1], 0);
        Ipp32s b[] = {-1, 0x40000001};
        EXPECT_EQ(call("ippsLShiftC_32s_I", 1, b, 2), 0);
        EXPECT_EQ(b[0], -2);
        EXPECT_EQ(b[1], -2147483646);
    });
}

// A count of 0 is a copy and a huge one to the left a zero fill: neither ever reports the count. A negative one comes
// after the pointers and the length.
TEST(Shift, StatusesInOrder)
{
    inEveryVariant([] {
        for (const char* type : {"8u", "16s", "32s"})
            for (const char* family : {"ippsLShiftC_", "ippsRShiftC_"}) {
                const std::string name = std::string(family) + type;
                const Bytes before = noise(16);
                Bytes a = before, d = before;
                const void* const none = nullptr;
                for (int count : {0, 1, 7, 40, 2147483647, -1, -2147483647 - 1}) {
                    EXPECT_EQ(call(name, none, count, (void*)d.data(), 0), ippStsNullPtrErr);
                    EXPECT_EQ(call(name, (const void*)a.data(), count, (void*)nullptr, 0), ippStsNullPtrErr);
                    EXPECT_EQ(call(name, (const void*)a.data(), count, (void*)d.data(), 0), ippStsSizeErr);
                    EXPECT_EQ(call(name + "_I", count, (void*)nullptr, 0), ippStsNullPtrErr);
                    EXPECT_EQ(call(name + "_I", count, (void*)d.data(), -3), ippStsSizeErr);
                }
                EXPECT_EQ(call(name, (const void*)a.data(), -1, (void*)d.data(), 1), ippStsShiftErr);
                EXPECT_EQ(call(name + "_I", -1, (void*)d.data(), 1), ippStsShiftErr);
                EXPECT_EQ(d, before);
            }
    });
}

TEST(SwapBytes, EveryType)
{
    inEveryVariant([] {
        unary<Ipp16u>("ippsSwapBytes_16u", swapped<Ipp16u>);
        unary<Ipp32u>("ippsSwapBytes_32u", swapped<Ipp32u>);
        unary<Ipp64u>("ippsSwapBytes_64u", swapped<Ipp64u>);
    });
}

TEST(SwapBytes, OfThreeExchangesTheOuterTwo)
{
    inEveryVariant([] {
        for (int n = 1; n < 200; ++n) {
            const size_t count = 3 * static_cast<size_t>(n);
            const Bytes source = noise(count + 6);
            Bytes expected = source, plain = noise(count + 6, 2), inPlace = source;
            for (size_t i = 3; i < 3 + count; i += 3) std::swap(expected[i], expected[i + 2]);
            EXPECT_EQ(call("ippsSwapBytes_24u", &source[3], &plain[3], n), 0);
            EXPECT_TRUE(std::equal(plain.begin() + 3, plain.end() - 3, expected.begin() + 3)) << n;
            const Bytes untouched = noise(count + 6, 2);
            EXPECT_TRUE(std::equal(plain.begin(), plain.begin() + 3, untouched.begin()));
            EXPECT_TRUE(std::equal(plain.end() - 3, plain.end(), untouched.end() - 3)) << n;
            EXPECT_EQ(call("ippsSwapBytes_24u_I", &inPlace[3], n), 0);
            EXPECT_EQ(inPlace, expected) << n;
        }
        Bytes b = {9, 1, 2, 3, 9};
        EXPECT_EQ(callIndexed("ippsSwapBytes_24u_I_Idx", b.data(), 1, 1), 0); // the index counts bytes
        EXPECT_EQ(b, (Bytes{9, 3, 2, 1, 9}));
    });
}
