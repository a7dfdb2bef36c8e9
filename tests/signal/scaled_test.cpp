// Integer arithmetic with scale factors against a slow, literal form of the rule: exact result, halved or doubled once
// for each step of the scale factor, ties to even, limited.
#include "support/bytes.h"
#include <climits>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>

using namespace support;

namespace {

// Any result has up to 64 bits and a sign.
struct Exact {
    bool negative;
    uint64_t magnitude;
    Exact(int64_t x) : negative(x < 0), magnitude(x < 0 ? -static_cast<uint64_t>(x) : static_cast<uint64_t>(x)) {}
    Exact(bool sign, uint64_t size) : negative(sign), magnitude(size) {}
};
Exact operator-(Exact x) { return {!x.negative, x.magnitude}; }
Exact operator+(Exact x, Exact y)
{
    if (x.negative == y.negative) return {x.negative, x.magnitude + y.magnitude};
    if (x.magnitude < y.magnitude) std::swap(x, y);
    return {x.negative, x.magnitude - y.magnitude};
}

template <class T> T limited(Exact r)
{
    using L = std::numeric_limits<T>;
    const auto highest = static_cast<uint64_t>(L::max());
    if (!r.negative) return r.magnitude > highest ? L::max() : static_cast<T>(r.magnitude);
    if (L::min() == 0) return 0;
    return r.magnitude > highest ? L::min() : static_cast<T>(-static_cast<int64_t>(r.magnitude));
}

template <class T> T scaled(Exact r, int scaleFactor)
{
    bool last = false, before = false; // the last bit cut off; any before it
    for (int i = 0; i < scaleFactor && i < 70; ++i) {
        before |= last;
        last = r.magnitude % 2;
        r.magnitude /= 2;
    }
    if (last && (before || r.magnitude % 2)) ++r.magnitude;
    for (int i = 0; i > scaleFactor && r.magnitude && r.magnitude < uint64_t(1) << 60; --i) r.magnitude *= 2;
    return limited<T>(r);
}

// a / b * 2^-scaleFactor by the remainder.
template <class T> T scaledQuotient(T a, T b, int scaleFactor)
{
    const Exact x(a), y(b);
    uint64_t up = x.magnitude, down = y.magnitude;
    for (int i = 0; i > scaleFactor && up && up < uint64_t(1) << 62; --i) up *= 2;
    for (int i = 0; i < scaleFactor && down && down < uint64_t(1) << 62; ++i) down *= 2;
    const bool negative = x.negative != y.negative;
    if (down == 0) return limited<T>({negative, up == 0 ? 0 : ~uint64_t(0)});
    const uint64_t q = up / down, rest = up % down;
    return limited<T>({negative, q + (rest > down - rest || (rest == down - rest && q % 2))});
}

template <class T> std::vector<T> special()
{
    using L = std::numeric_limits<T>;
    std::vector<T> v;
    for (int k = 0; k < 4; ++k) v.insert(v.end(), {T(L::min() + k), T(L::max() - k), T(k), T(-k), T(L::max() / 2 + k)});
    return v;
}

// Every special value with every other, and noise of all sizes.
template <class T> struct Pairs {
    std::vector<T> a, b;
    Pairs()
    {
        for (T x : special<T>())
            for (T y : special<T>()) a.push_back(x), b.push_back(y);
        std::mt19937_64 random(7);
        for (int i = 0; i < 301; ++i)
            for (auto* v : {&a, &b})
                v->push_back(static_cast<T>(static_cast<T>(random()) >> random() % (8 * sizeof(T))));
        a.push_back(0), b.push_back(0); // complex numbers take two
    }
};

std::vector<int> scaleFactors()
{
    std::vector<int> all = {INT_MIN, INT_MIN + 1, INT_MIN + 30, -65536, -1000, -257,
                            -256,    INT_MAX - 1, INT_MAX,      256,    1000,  65536};
    for (int s = -66; s <= 96; ++s) all.push_back(s);
    return all;
}

template <class T>
void expectEqual(const std::vector<T>& found, const std::vector<T>& expected, const std::string& name)
{
    for (size_t i = 0; i < expected.size(); ++i) ASSERT_EQ(+found[i], +expected[i]) << name << " [" << i << ']';
}

// Functions of two arrays, plain and in place: of the elements of the first and the second array.
template <class T, class F> void ofArrays(const std::string& name, int parts, F result)
{
    const Pairs<T> data;
    const int n = static_cast<int>(data.a.size()) / parts;
    for (int s : scaleFactors()) {
        SCOPED_TRACE(name + " scaled by " + std::to_string(s));
        std::vector<T> expected(data.a.size());
        IppStatus status = 0;
        for (size_t i = 0; i < expected.size(); ++i) expected[i] = result(data.a[i], data.b[i], s, status);
        inEveryVariant([&] {
            std::vector<T> plain(expected.size()), inPlace = data.b;
            EXPECT_EQ(call(name + "_Sfs", data.a.data(), data.b.data(), plain.data(), n, s), status);
            expectEqual(plain, expected, "plain");
            EXPECT_EQ(call(name + "_ISfs", data.a.data(), inPlace.data(), n, s), status);
            expectEqual(inPlace, expected, "in place");
        });
        if (testing::Test::HasFailure()) return;
    }
}
template <class T, class F> void exactOfArrays(const std::string& name, int parts, F exact)
{
    ofArrays<T>(name, parts, [=](T x, T y, int s, IppStatus&) { return scaled<T>(exact(x, y), s); });
}

// Functions of an array and a value: the elements at "i" of the result, out of the whole array.
template <class T, class Value, class F>
void ofValue(const std::string& name, int parts, const std::vector<Value>& values, F result)
{
    const std::vector<T> a = Pairs<T>().a;
    const int n = static_cast<int>(a.size()) / parts;
    for (Value value : values)
        for (int s : scaleFactors()) {
            SCOPED_TRACE(name + " scaled by " + std::to_string(s));
            std::vector<T> expected(a.size());
            for (size_t i = 0; i < a.size(); ++i) expected[i] = result(a.data(), i, value, s);
            inEveryVariant([&] {
                std::vector<T> plain(a.size()), inPlace = a;
                EXPECT_EQ(call(name + "_Sfs", a.data(), value, plain.data(), n, s), 0);
                expectEqual(plain, expected, "plain");
                EXPECT_EQ(call(name + "_ISfs", value, inPlace.data(), n, s), 0);
                expectEqual(inPlace, expected, "in place");
            });
            if (testing::Test::HasFailure()) return;
        }
}
template <class T, class F> void exactOfValue(const std::string& name, F exact)
{
    ofValue<T, T>(name, 1, {T(-1), T(3), T(100), std::numeric_limits<T>::min(), std::numeric_limits<T>::max()},
                  [=](const T* a, size_t i, T v, int s) { return scaled<T>(exact(a[i], v), s); });
}
const std::vector<Ipp32sc> complexValues = {{INT_MIN, INT_MIN}, {INT_MIN, INT_MAX}, {INT_MAX, INT_MIN},
                                            {INT_MAX, INT_MAX}, {INT_MIN, 0},       {-3, 70000}};
template <class F> void exactOfComplexValue(const std::string& name, F exactPart)
{
    ofValue<Ipp32s, Ipp32sc>(name, 2, complexValues, [=](const Ipp32s* a, size_t i, Ipp32sc v, int s) {
        return scaled<Ipp32s>(exactPart(a, i, v), s);
    });
}

int64_t sum(int64_t x, int64_t y) { return x + y; }
int64_t difference(int64_t x, int64_t y) { return x - y; }
int64_t reversed(int64_t x, int64_t y) { return y - x; }
int64_t product(int64_t x, int64_t y) { return x * y; }
int64_t part(Ipp32sc v, size_t i) { return i % 2 ? v.im : v.re; }

template <class T> void sumsAndProducts(const std::string& type)
{
    exactOfArrays<T>("ippsAdd_" + type, 1, sum);
    exactOfArrays<T>("ippsSub_" + type, 1, reversed);
    exactOfArrays<T>("ippsMul_" + type, 1, product);
    exactOfValue<T>("ippsAddC_" + type, sum);
    exactOfValue<T>("ippsSubC_" + type, difference);
    exactOfValue<T>("ippsSubCRev_" + type, reversed);
    exactOfValue<T>("ippsMulC_" + type, product);
}

template <class T, class F> void quotients(const std::string& type, F quotient)
{
    ofArrays<T>("ippsDiv_" + type, 1, [=](T x, T y, int s, IppStatus& status) {
        if (x == 0) status = ippStsDivByZero;
        return x == 0 ? scaledQuotient(y, x, s) : quotient(y, x, s);
    });
}
// Of 32 bits scaled up a double may take the quotient to a tie that it is not on.
Ipp32s quotientOfDoubles(Ipp32s x, Ipp32s y, int s)
{
    const double q = std::nearbyint(std::ldexp(x, s < -1000 ? 1000 : s > 1000 ? -1000 : -s) / y);
    return q < INT_MIN ? INT_MIN : q > INT_MAX ? INT_MAX : static_cast<Ipp32s>(q);
}

} // namespace

TEST(Scaled, SumsAndProducts)
{
    sumsAndProducts<Ipp8u>("8u");
    sumsAndProducts<Ipp16s>("16s");
    sumsAndProducts<Ipp32s>("32s");
}

TEST(Scaled, ComplexNumbers)
{
    exactOfArrays<Ipp32s>("ippsAdd_32sc", 2, sum);
    exactOfArrays<Ipp32s>("ippsSub_32sc", 2, reversed);
    exactOfComplexValue("ippsAddC_32sc", [](auto a, size_t i, Ipp32sc v) { return a[i] + part(v, i); });
    exactOfComplexValue("ippsSubC_32sc", [](auto a, size_t i, Ipp32sc v) { return a[i] - part(v, i); });
    exactOfComplexValue("ippsSubCRev_32sc", [](auto a, size_t i, Ipp32sc v) { return part(v, i) - a[i]; });
    exactOfComplexValue("ippsMulC_32sc", [](auto a, size_t i, Ipp32sc v) {
        const Exact straight = product(a[i], v.re), crossed = product(a[i ^ 1], v.im);
        return i % 2 ? straight + crossed : straight + -crossed;
    });
}

TEST(Scaled, SumOfProducts)
{
    const Pairs<Ipp32s> data;
    const int n = static_cast<int>(data.a.size());
    for (int shift : {1, 20, 190})
        for (int s : scaleFactors()) {
            SCOPED_TRACE(s);
            std::vector<Ipp32s> before = data.b, expected = data.b;
            std::rotate(before.begin(), before.begin() + shift, before.end());
            for (size_t i = 0; i < expected.size(); ++i)
                expected[i] = scaled<Ipp32s>(before[i] + product(data.a[i], data.b[i]), s);
            inEveryVariant([&] {
                auto found = before;
                EXPECT_EQ(call("ippsAddProduct_32s_Sfs", data.a.data(), data.b.data(), found.data(), n, s), 0);
                expectEqual(found, expected, "ippsAddProduct_32s_Sfs");
            });
        }
}

TEST(Scaled, Quotients)
{
    quotients<Ipp8u>("8u", scaledQuotient<Ipp8u>);
    quotients<Ipp16s>("16s", scaledQuotient<Ipp16s>);
    quotients<Ipp32s>("32s", quotientOfDoubles);
    ofValue<Ipp8u, Ipp8u>("ippsDivC_8u", 1, {1, 2, 3, 6, 254, 255},
                          [](auto a, size_t i, Ipp8u v, int s) { return scaledQuotient(a[i], v, s); });
    ofValue<Ipp16s, Ipp16s>("ippsDivC_16s", 1, {1, -1, 2, -6, 32767, -32768},
                            [](auto a, size_t i, Ipp16s v, int s) { return scaledQuotient(a[i], v, s); });
}

// All elements are computed, also before and after the zero divisor; a tie that only doubles see is one.
TEST(Scaled, QuotientsByZeroAndBetweenTies)
{
    inEveryVariant([] {
        for (int n : {1, 2, 7, 16, 33, 100})
            for (int zero = 0; zero < n; ++zero) {
                const auto size = static_cast<size_t>(n);
                std::vector<Ipp16s> a(size, 3), b(size, 9), expected(size, 3);
                a[static_cast<size_t>(zero)] = 0;
                b[static_cast<size_t>(zero)] = -1;
                expected[static_cast<size_t>(zero)] = -32768;
                EXPECT_EQ(call("ippsDiv_16s_ISfs", a.data(), b.data(), n, 0), ippStsDivByZero);
                EXPECT_EQ(b, expected);
                EXPECT_EQ(call("ippsDiv_16s_ISfs", expected.data(), b.data(), n, 0), 0);
            }
        const Ipp32s divisor = INT_MAX, one = 1;
        Ipp32s q = 0;
        EXPECT_EQ(call("ippsDiv_32s_Sfs", &divisor, &one, &q, 1, -61), 0);
        EXPECT_EQ(q, 1 << 30); // of 2^30 + 1/2 + 2^-32
        Ipp8u byte = 7;
        EXPECT_EQ(call("ippsDivC_8u_ISfs", Ipp8u(0), &byte, 1, 0), ippStsDivByZeroErr);
        EXPECT_EQ(call("ippsDivC_8u_ISfs", Ipp8u(0), &byte, 0, 0), ippStsSizeErr);
        EXPECT_EQ(byte, 7);
    });
}

// Every pair of bytes.
TEST(Scaled, AllBytes)
{
    std::vector<Ipp8u> a, b;
    for (int i = 0; i < 65536; ++i) a.push_back(static_cast<Ipp8u>(i)), b.push_back(static_cast<Ipp8u>(i >> 8));
    for (int s = -9; s <= 18; ++s) {
        const auto compare = [&](const std::string& name, auto result) {
            std::vector<Ipp8u> expected(a.size()), found(a.size());
            for (size_t i = 0; i < a.size(); ++i) expected[i] = result(a[i], b[i]);
            inEveryVariant([&] {
                EXPECT_GE(call(name, a.data(), b.data(), found.data(), 65536, s), 0);
                expectEqual(found, expected, name + " scaled by " + std::to_string(s));
            });
        };
        compare("ippsAdd_8u_Sfs", [=](Ipp8u x, Ipp8u y) { return scaled<Ipp8u>(sum(x, y), s); });
        compare("ippsSub_8u_Sfs", [=](Ipp8u x, Ipp8u y) { return scaled<Ipp8u>(reversed(x, y), s); });
        compare("ippsMul_8u_Sfs", [=](Ipp8u x, Ipp8u y) { return scaled<Ipp8u>(product(x, y), s); });
        compare("ippsDiv_8u_Sfs", [=](Ipp8u x, Ipp8u y) { return scaledQuotient<Ipp8u>(y, x, s); });
    }
}

// Every byte by every other, and dividends of 16 bits that give ties or come next to one.
TEST(Scaled, QuotientsByAValue)
{
    std::vector<Ipp8u> bytes;
    for (int i = 0; i < 256; ++i) bytes.push_back(static_cast<Ipp8u>(i));
    std::mt19937 random(11);
    for (int s = -9; s <= 10; ++s) {
        SCOPED_TRACE(s);
        for (int v = 1; v < 256; ++v) {
            std::vector<Ipp8u> expected, found(bytes.size());
            for (Ipp8u x : bytes) expected.push_back(scaledQuotient(x, static_cast<Ipp8u>(v), s));
            inEveryVariant([&] {
                EXPECT_EQ(call("ippsDivC_8u_Sfs", bytes.data(), Ipp8u(v), found.data(), 256, s), 0);
                expectEqual(found, expected, "by " + std::to_string(v));
            });
        }
        for (int k = 0; k < 100; ++k) {
            const int step = static_cast<int>(random() % 65535) - 32767;
            const auto v = static_cast<Ipp16s>(step == 0 ? 1 : step >> random() % 15 | 1 << random() % 3);
            std::vector<Ipp16s> a;
            for (double tie = 0.5; tie * std::abs(v) * std::ldexp(1, s) < 32767 && a.size() < 600; tie += 1)
                for (int next : {-1, 0, 1}) a.push_back(static_cast<Ipp16s>(tie * v * std::ldexp(1, s) + next));
            if (a.empty()) continue;
            std::vector<Ipp16s> expected, found(a.size());
            for (Ipp16s x : a) expected.push_back(scaledQuotient(x, v, s));
            inEveryVariant([&] {
                EXPECT_EQ(call("ippsDivC_16s_Sfs", a.data(), v, found.data(), static_cast<int>(a.size()), s), 0);
                expectEqual(found, expected, "by " + std::to_string(v));
            });
        }
    }
}

TEST(Absolute, TheLowestBecomesTheHighest)
{
    const auto check = [](const std::string& name, auto type) {
        using T = decltype(type);
        const std::vector<T> a = Pairs<T>().a;
        const int n = static_cast<int>(a.size());
        std::vector<T> expected = a, plain(a.size()), inPlace = a;
        for (T& x : expected)
            if (x < 0) x = x == std::numeric_limits<T>::min() ? std::numeric_limits<T>::max() : static_cast<T>(-x);
        inEveryVariant([&] {
            inPlace = a;
            EXPECT_EQ(call(name, a.data(), plain.data(), n), 0);
            EXPECT_EQ(plain, expected);
            EXPECT_EQ(call(name + "_I", inPlace.data(), n), 0);
            EXPECT_EQ(inPlace, expected);
        });
    };
    check("ippsAbs_16s", Ipp16s());
    check("ippsAbs_32s", Ipp32s());
}
