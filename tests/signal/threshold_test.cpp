// Thresholds against their definitions, written out element by element; complex ones in extended precision.
#include "support/bytes.h"
#include "support/stage.h"
#include <cmath>
#include <complex>
#include <cstring>
#include <limits>

using namespace support;

namespace {

constexpr double inf = std::numeric_limits<double>::infinity(), NaN = std::numeric_limits<double>::quiet_NaN();
constexpr Ipp32s lowest32 = -2147483647 - 1;
const int lengths[] = {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 33, 63, 65, 129, 257, 1025};

template <class T> std::vector<T> signalOf(int n);
template <> std::vector<Ipp16s> signalOf(int n)
{
    std::vector<Ipp16s> v = {-32768, 32767, -32767, 0, 100, -100, 101, -101, 99, -99, 1, -1};
    std::mt19937 r(7);
    while (v.size() < static_cast<size_t>(n)) v.push_back(static_cast<Ipp16s>(r() % 512 - 256));
    v.resize(static_cast<size_t>(n));
    return v;
}
template <> std::vector<Ipp32s> signalOf(int n)
{
    std::vector<Ipp32s> v = {lowest32, 2147483647, -2147483647, 0, 100, -100, 101, -101, 99, -99, 1, -1};
    std::mt19937 r(8);
    while (v.size() < static_cast<size_t>(n)) v.push_back(static_cast<Ipp32s>(r() % 512) - 256);
    v.resize(static_cast<size_t>(n));
    return v;
}
template <> std::vector<double> signalOf(int n)
{
    std::vector<double> v = {NaN, inf, -inf, 0.0, -0.0, 100, -100, 1e308, -1e308, 5e-324, -5e-324, 99.5};
    std::mt19937 r(9);
    while (v.size() < static_cast<size_t>(n)) v.push_back((r() % 4096 - 2048.0) / 8);
    v.resize(static_cast<size_t>(n));
    return v;
}

// Bits must agree, but a NaN is a NaN.
bool same(double x, double y) { return std::isnan(x) ? std::isnan(y) : x == y && std::signbit(x) == std::signbit(y); }
template <class T> bool same(T x, T y) { return x == y; }

// The plain and the in-place form of one function, with whatever follows the length.
template <class T, class F, class... P> void check(const std::string& name, int status, F f, P... parameters)
{
    for (int n : lengths) {
        const std::vector<T> a = signalOf<T>(n);
        std::vector<T> plain(a.size()), inPlace = a;
        EXPECT_EQ(call(name, a.data(), plain.data(), n, parameters...), n < 4 ? 0 : status);
        EXPECT_EQ(call(name + "_I", inPlace.data(), n, parameters...), n < 4 ? 0 : status);
        for (size_t i = 0; i < a.size(); ++i) {
            ASSERT_TRUE(same(plain[i], T(f(a[i])))) << name << ' ' << +a[i] << " gives " << +plain[i];
            ASSERT_TRUE(same(inPlace[i], plain[i])) << name << "_I " << +a[i] << " gives " << +inPlace[i];
        }
    }
}

template <class T> void limits(const std::string& type, T level)
{
    check<T>(
        "ippsThreshold_LT_" + type, 0, [=](T x) { return x < level ? level : x; }, level);
    check<T>(
        "ippsThreshold_GT_" + type, 0, [=](T x) { return x > level ? level : x; }, level);
    if (level < 0) return;
    const auto replaced = [=](T x) { return x < 0 ? -level : level; };
    check<T>(
        "ippsThreshold_LTAbs_" + type, 0, [=](T x) { return std::fabs(double(x)) < level ? replaced(x) : x; }, level);
    check<T>(
        "ippsThreshold_GTAbs_" + type, 0, [=](T x) { return std::fabs(double(x)) > level ? replaced(x) : x; }, level);
}

template <class T> void outside(const std::string& type, T low, T lowValue, T high, T highValue)
{
    const auto f = [=](T x) { return x >= low && x <= high ? x : x < low ? lowValue : highValue; };
    check<T>("ippsThreshold_LTValGTVal_" + type, 0, f, low, lowValue, high, highValue);
}

// -2: it is below, 2: above, relative to 1; 0: so near to the level that rounding decides.
using Wide = std::complex<long double>;
int side(Ipp64fc x, double level)
{
    const long double square = (long double)x.re * x.re + (long double)x.im * x.im, limit = (long double)level * level;
    if (std::isnan(square)) return 1;
    return square < limit * (1 - 1e-15L) ? -2 : square > limit * (1 + 1e-15L) ? 2 : 0;
}

std::vector<Ipp64fc> complexSignal(double level)
{
    std::vector<Ipp64fc> v = {{level, 0}, {0, -level}, {1e-160, 3e-160}, {-1e150, 2e153}, {NaN, 1}, {0, NaN}};
    std::mt19937 r(10);
    for (int i = 0; i < 700; ++i) {
        const double size = level * std::ldexp(1 + r() % 1000 * 1e-3, static_cast<int>(r() % 4) - 2);
        const double angle = r() % 6283 * 1e-3;
        v.push_back({size * std::cos(angle), size * std::sin(angle)});
    }
    return v;
}

void expectNear(Ipp64fc found, Wide expected, Ipp64fc x)
{
    const long double tolerance = 8 * std::numeric_limits<double>::epsilon() * std::abs(expected);
    ASSERT_LE(std::fabs(found.re - expected.real()), tolerance) << x.re << ' ' << x.im;
    ASSERT_LE(std::fabs(found.im - expected.imag()), tolerance) << x.re << ' ' << x.im;
}

bool equal(Ipp64fc x, Ipp64fc y) { return same(x.re, y.re) && same(x.im, y.im); }

// "selected" is -2 for LT and 2 for GT.
template <class... P> void checkComplex(const std::string& name, double level, int selected, P... relation)
{
    const std::vector<Ipp64fc> a = complexSignal(level);
    for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 100, 701, 706}) {
        std::vector<Ipp64fc> d(a.size(), Ipp64fc{-7, -7}), inPlace = a;
        EXPECT_EQ(call(name, a.data(), d.data(), n, level, relation...), 0);
        EXPECT_EQ(call(name + "_I", inPlace.data(), n, level, relation...), 0);
        for (size_t i = 0; i < a.size(); ++i) {
            if (i >= static_cast<size_t>(n)) {
                ASSERT_TRUE(equal(d[i], {-7, -7}));
                continue;
            }
            ASSERT_TRUE(equal(d[i], inPlace[i]));
            const Wide x(a[i].re, a[i].im);
            if (side(a[i], level) == selected) {
                expectNear(d[i], x / std::abs(x) * (long double)level, a[i]);
            } else if (side(a[i], level) != 0) {
                ASSERT_TRUE(equal(d[i], a[i])) << a[i].re << ' ' << a[i].im;
            }
        }
    }
}

Ipp64fc one(const std::string& name, Ipp64fc x, double level, int status = 0)
{
    EXPECT_EQ(call(name, &x, 1, level), status);
    return x;
}

} // namespace

TEST(Threshold, LimitsAndMagnitudes)
{
    inEveryVariant([] {
        for (int level : {0, 1, 100, 32767, -1, -100, -32768}) {
            limits<Ipp16s>("16s", static_cast<Ipp16s>(level));
            limits<Ipp32s>("32s", level);
            limits<double>("64f", level);
        }
        limits<Ipp32s>("32s", 2147483647);
        for (double level : {0.25, 5e-324, inf, NaN}) limits<double>("64f", level);
        for (double level : {-100.0, 0.0, 99.75}) {
            check<double>(
                "ippsThreshold_64f", 0, [=](double x) { return x < level ? level : x; }, level, 0);
            check<double>(
                "ippsThreshold_64f", 0, [=](double x) { return x > level ? level : x; }, level, 4);
        }
    });
}

TEST(Threshold, Values)
{
    inEveryVariant([] {
        check<Ipp16s>(
            "ippsThreshold_LTVal_16s", 0, [](Ipp16s x) { return x < -5 ? Ipp16s(7) : x; }, Ipp16s(-5), Ipp16s(7));
        for (double level : {-100.0, 0.0, 99.75, inf}) {
            check<double>(
                "ippsThreshold_LTVal_64f", 0, [=](double x) { return x < level ? NaN : x; }, level, NaN);
            check<double>(
                "ippsThreshold_GTVal_64f", 0, [=](double x) { return x > level ? -0.0 : x; }, level, -0.0);
        }
        outside<Ipp16s>("16s", -100, 30000, 100, -7);
        outside<Ipp16s>("16s", -32768, 1, 32767, 2);
        outside<Ipp32s>("32s", 100, lowest32, 100, 5);
        outside<double>("64f", -99.5, 1.5, 100, -2.5);
        outside<double>("64f", 0, -1, 0, 1); // -0 is neither below nor above
        outside<double>("64f", NaN, 1, 5, 2);
        outside<double>("64f", -5, 1, NaN, 2);
    });
}

TEST(Threshold, GreaterThanValueOf16BitsWithIndicesOnly)
{
    inEveryVariant([] {
        for (int n : lengths) {
            const std::vector<Ipp16s> a = signalOf<Ipp16s>(n + 3);
            std::vector<Ipp16s> d(a.size(), 9), inPlace = a, expected = d;
            for (size_t i = 0; i < static_cast<size_t>(n); ++i) expected[i + 1] = a[i + 3] > 99 ? Ipp16s(-4) : a[i + 3];
            EXPECT_EQ(callIndexed("ippsThreshold_GTVal_16s_Idx", a.data(), 3, d.data(), 1, n, Ipp16s(99), Ipp16s(-4)),
                      0);
            EXPECT_EQ(d, expected);
            EXPECT_EQ(callIndexed("ippsThreshold_GTVal_16s_I_Idx", inPlace.data(), 3, n, Ipp16s(99), Ipp16s(-4)), 0);
            EXPECT_TRUE(std::equal(inPlace.begin() + 3, inPlace.end(), expected.begin() + 1));
        }
        EXPECT_EQ(find("ippsThreshold_GTVal_16s"), nullptr);
    });
}

TEST(Threshold, Reciprocals)
{
    inEveryVariant([] {
        for (double level : {1.0, 100.0, 0.3, 1e-310, inf}) {
            const auto f = [=](double x) {
                return std::fabs(x) > level ? 1 / x : x < 0 ? -1 / level : x >= 0 ? 1 / level : NaN;
            };
            check<double>("ippsThreshold_LTInv_64f", 0, f, level);
        }
        const auto plain = [](double x) { return x == 0 ? inf : 1 / x; };
        check<double>("ippsThreshold_LTInv_64f", ippStsInvZero, plain, 0.0);
        check<double>("ippsThreshold_LTInv_64f", ippStsInvZero, plain, -0.0);
        check<double>(
            "ippsThreshold_LTInv_64f", 0, [](double) { return NaN; }, NaN);
        double none[] = {2, -4, 1e308}; // nothing to warn of
        EXPECT_EQ(call("ippsThreshold_LTInv_64f_I", none, 3, 0.0), 0);
        EXPECT_EQ(none[1], -0.25);
    });
}

TEST(Threshold, ComplexKeepsThePhase)
{
    inEveryVariant([] {
        for (double level : {2.0, 1e-3, 3e100, 1e-150}) {
            checkComplex("ippsThreshold_LT_64fc", level, -2);
            checkComplex("ippsThreshold_GT_64fc", level, 2);
            checkComplex("ippsThreshold_64fc", level, -2, 0);
            checkComplex("ippsThreshold_64fc", level, 2, 4);
        }
        const std::string lt = "ippsThreshold_LT_64fc_I", gt = "ippsThreshold_GT_64fc_I";
        EXPECT_TRUE(equal(one(lt, {-0.0, -0.0}, 3), {3, 0}));
        EXPECT_TRUE(equal(one(lt, {0, 0}, 0), {0, 0}));
        EXPECT_TRUE(equal(one(lt, {0, -5e-324}, 3), {0, -3})); // on the axes without rounding
        EXPECT_TRUE(equal(one(gt, {1.7e308, 0}, 0.7), {0.7, 0}));
        EXPECT_TRUE(equal(one(gt, {5, -7}, 0), {0, -0.0}));
        EXPECT_TRUE(equal(one(gt, {-inf, 1e308}, 3), {-3, 0}));
        const Ipp64fc diagonal = one(gt, {inf, -inf}, 3);
        EXPECT_NEAR(diagonal.re, 3 / std::sqrt(2.0), 1e-15);
        EXPECT_NEAR(diagonal.im, -3 / std::sqrt(2.0), 1e-15);
        EXPECT_TRUE(equal(one(gt, {inf, NaN}, 3), {inf, NaN}));
    });
}

TEST(Threshold, ComplexValues)
{
    inEveryVariant([] {
        const Ipp64fc value = {-0.5, NaN};
        for (double level : {2.0, 1e-3, 1e150}) {
            const std::vector<Ipp64fc> a = complexSignal(level);
            for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 100, 701}) {
                std::vector<Ipp64fc> lt(a.size()), gt = a;
                EXPECT_EQ(call("ippsThreshold_LTVal_64fc", a.data(), lt.data(), n, level, value), 0);
                EXPECT_EQ(call("ippsThreshold_GTVal_64fc_I", gt.data(), n, level, value), 0);
                for (size_t i = 0; i < static_cast<size_t>(n); ++i) {
                    const double square = a[i].re * a[i].re + a[i].im * a[i].im; // in double, as promised
                    ASSERT_TRUE(equal(lt[i], square < level * level ? value : a[i])) << i;
                    ASSERT_TRUE(equal(gt[i], square > level * level ? value : a[i])) << i;
                }
            }
        }
        const Ipp64fc a[] = {{1, 1}, {2, 0}};
        Ipp64fc d[2];
        EXPECT_EQ(call("ippsThreshold_LTVal_64fc", a, d, 2, 2.0, Ipp64fc{9, 8}), 0);
        EXPECT_TRUE(equal(d[0], {9, 8}));
        EXPECT_TRUE(equal(d[1], {2, 0}));
    });
}

TEST(Threshold, ComplexReciprocals)
{
    inEveryVariant([] {
        for (double level : {2.0, 1e-3, 1e100, 0.0}) {
            const std::vector<Ipp64fc> a = complexSignal(level ? level : 1);
            std::vector<Ipp64fc> d(a.size());
            EXPECT_EQ(call("ippsThreshold_LTInv_64fc", a.data(), d.data(), static_cast<int>(a.size()), level), 0);
            for (size_t i = 0; i < a.size(); ++i) {
                const Wide x(a[i].re, a[i].im);
                if (std::isnan(a[i].re) || std::isnan(a[i].im)) {
                    ASSERT_TRUE(std::isnan(d[i].re) && std::isnan(d[i].im));
                } else { // near the level both are the same
                    const bool raised = side(a[i], level) == -2;
                    expectNear(d[i], raised ? std::conj(x) / std::abs(x) / (long double)level : 1.0L / x, a[i]);
                }
            }
        }
        const std::string inv = "ippsThreshold_LTInv_64fc_I";
        EXPECT_TRUE(equal(one(inv, {0, -0.0}, 4), {0.25, 0}));
        EXPECT_TRUE(equal(one(inv, {0, 0}, 0, ippStsInvZero), {inf, 0}));
        EXPECT_TRUE(equal(one(inv, {-0.0, 0}, -0.0, ippStsInvZero), {inf, 0}));
        EXPECT_TRUE(equal(one(inv, {0.5, 0}, 4), {0.25, -0.0}));
        EXPECT_TRUE(equal(one(inv, {0, 0x1p1000}, 0), {0, -0x1p-1000}));
        EXPECT_TRUE(equal(one(inv, {inf, -3}, 1), {0, 0}));
    });
}

TEST(Threshold, StatusesInOrder)
{
    inEveryVariant([] {
        Ipp64fc c[1] = {{1, 1}}, e[1] = {{5, 5}};
        double x[1] = {1}, y[1] = {5};
        const double* const none = nullptr;
        EXPECT_EQ(call("ippsThreshold_64f", none, y, 0, 1.0, 2), ippStsNullPtrErr);
        EXPECT_EQ(call("ippsThreshold_64f", x, y, 0, 1.0, 2), ippStsSizeErr);
        EXPECT_EQ(call("ippsThreshold_64f", x, y, 1, -1.0, 1), ippStsBadArgErr);
        EXPECT_EQ(call("ippsThreshold_64f", x, x, 1, -1.0, 0), 0); // a real level may be negative
        EXPECT_EQ(call("ippsThreshold_64fc", c, e, 1, -1.0, 2), ippStsBadArgErr);
        EXPECT_EQ(call("ippsThreshold_64fc", c, e, 1, -1.0, 4), ippStsThreshNegLevelErr);
        EXPECT_EQ(call("ippsThreshold_LTVal_64fc", c, e, 0, -1.0, e[0]), ippStsSizeErr);
        EXPECT_EQ(call("ippsThreshold_LTVal_64fc", c, e, 1, -1.0, e[0]), ippStsThreshNegLevelErr);
        EXPECT_EQ(call("ippsThreshold_LTAbs_64f", x, y, 1, -1.0), ippStsThreshNegLevelErr);
        EXPECT_EQ(call("ippsThreshold_LTInv_64f", x, y, 1, -5e-324), ippStsThreshNegLevelErr);
        EXPECT_EQ(call("ippsThreshold_LTValGTVal_64f", x, y, 1, 5.0, 0.0, 4.0, 0.0), ippStsThresholdErr);
        EXPECT_EQ(y[0], 5);
        EXPECT_TRUE(equal(e[0], {5, 5}));
    });
}

// Of every type and in both forms.
TEST(Threshold, AMagnitudeIsNotNegativeAndARealLevelMayBe)
{
    support::Stage stage;
    registry::Random random(3);
    int seen = 0;
    for (const registry::Function& f : registry::functions()) {
        const std::string name = f.name;
        if (name.rfind("ippsThreshold", 0)) continue;
        const bool magnitude = name.find("Abs") + 1 || name.find("LTInv") + 1 || name.find("64fc") + 1;
        for (int i = 0; i < f.argCount; ++i) {
            if (std::strcmp(f.args[i].name, "level")) continue;
            ++seen;
            for (int level : {-1, 0}) {
                registry::Arguments a = registry::build(f, random, 9, registry::Pattern::tame, 0);
                stage.put(a, {});
                a.values[static_cast<size_t>(i)].i = level;
                a.values[static_cast<size_t>(i)].re = level;
                const auto status = stage.call(a, support::entryOf(f)).status;
                if (magnitude && level < 0) {
                    EXPECT_EQ(status, ippStsThreshNegLevelErr) << name;
                } else {
                    EXPECT_GE(status, 0) << name;
                }
            }
        }
    }
    EXPECT_GT(seen, 40);
}
