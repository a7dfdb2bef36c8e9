// Lines, Jaehne signals, tones and triangles against their formulas in extended precision.
#include "oracle/circle.h"

using namespace support;

namespace {

constexpr double turn = 6.283185307179586, pi = 3.141592653589793;

template <class T> std::vector<T> slope(const char* type, int n, double offset, double step)
{
    std::vector<T> d(static_cast<size_t>(n));
    EXPECT_EQ(call(std::string("ippsVectorSlope_") + type, (void*)d.data(), n, offset, step), ippStsNoErr);
    return d;
}
// The nearest integer, ties to even, within the limits of T.
template <class T> T nearest(double x)
{
    using L = std::numeric_limits<T>;
    if (!(x > L::lowest())) return L::lowest();
    if (x >= L::max()) return L::max();
    double whole = std::floor(x);
    const double rest = x - whole;
    if (rest > 0.5 || (rest == 0.5 && std::fmod(whole, 2) != 0)) ++whole;
    return static_cast<T>(whole);
}
template <class T> void compareSlopes(const char* type, double offset, double step)
{
    const std::vector<T> d = slope<T>(type, 700, offset, step);
    for (int i = 0; i < 700; ++i) {
        const double x = sum(offset, product(step, i));
        const T right = std::is_floating_point_v<T> ? static_cast<T>(x) : nearest<T>(x);
        if (x != x && std::is_floating_point_v<T>)
            ASSERT_TRUE(d[static_cast<size_t>(i)] != d[static_cast<size_t>(i)]);
        else
            ASSERT_EQ(d[static_cast<size_t>(i)], right) << type << ' ' << offset << ' ' << step << ' ' << i;
    }
}

struct Tone {
    std::vector<double> real;
    std::vector<Ipp64fc> complex;
    double phase;
};
Tone tone(const char* type, int n, double magn, double frequency, double phase)
{
    Tone t{{}, {}, phase};
    void* d;
    if (type[3] == 'c')
        t.complex.resize(static_cast<size_t>(n)), d = t.complex.data();
    else
        t.real.resize(static_cast<size_t>(n)), d = t.real.data();
    EXPECT_EQ(callIndexed(std::string("ippsTone_Direct_") + type + "_Idx", d, 0, n, magn, frequency, &t.phase, 7),
              ippStsNoErr);
    return t;
}
double advanced(double phase, int n, double frequency)
{
    const double v = phase + n * (turn * frequency), left = v - std::floor(v * 0.15915494309189535) * turn;
    return left < 0 || left >= turn ? 0 : left;
}

const Wide fullTurn = Wide(6.283185307179586) + Wide(2.4492935982947064e-16);
Wide partOfTurn(double frequency, double phase, int64_t i)
{
    return oracle::fraction(Wide(frequency) * Wide(i) + Wide(phase) / fullTurn);
}

} // namespace

TEST(Slope, IsTheFormulaRoundedOnce)
{
    inEveryVariant([] {
        const double values[] = {0,   0.5,  -0.5,       1,     -1,     1.0 / 3, -7.25,    100.3,    -1000,
                                 3e6, -4e7, 2147483646, 1e300, -1e300, 1e-310,  quietNaN, infinity, -infinity};
        for (double offset : values)
            for (double step : values) {
                compareSlopes<double>("64f", offset, step);
                compareSlopes<float>("32f", offset, step);
                compareSlopes<int32_t>("32s", offset, step);
                compareSlopes<int16_t>("16s", offset, step);
                compareSlopes<uint8_t>("8u", offset, step);
            }
    });
}

TEST(Jaehne, SinesAreExactAtEveryIndex)
{
    double worst = 0;
    inEveryVariant([&] {
        for (int n : {1, 2, 3, 4, 5, 8, 9, 16, 17, 127, 128, 129, 255, 256, 257, 1000, 4097, 100003}) {
            std::vector<double> d(static_cast<size_t>(n)), minus(d);
            std::vector<int32_t> whole(d.size());
            const int32_t magn = std::numeric_limits<int32_t>::min();
            ASSERT_EQ(call("ippsVectorJaehne_64f", (void*)d.data(), n, 1.0), ippStsNoErr);
            ASSERT_EQ(call("ippsVectorJaehne_64f", (void*)minus.data(), n, double(magn)), ippStsNoErr);
            ASSERT_EQ(call("ippsVectorJaehne_32s", (void*)whole.data(), n, magn), ippStsNoErr);
            for (int64_t i = 0; i < n; ++i) {
                const auto k = static_cast<size_t>(i);
                const long double right = oracle::ofTurn(i * i, 4 * int64_t{n}).sin;
                worst = std::max(worst, ulps(d[k], Wide(right)));
                ASSERT_LE(ulps(d[k], Wide(right)), 2.5) << n << ' ' << i;
                ASSERT_EQ(minus[k], d[k] * magn) << n << ' ' << i;
                ASSERT_EQ(whole[k], nearest<int32_t>(minus[k])) << n << ' ' << i;
            }
        }
    });
    std::printf("largest error of a Jaehne signal: %.3f ulp\n", worst);
}

// With c = cos(2 pi f), which may be rounded either way.
TEST(Tone, RealIsTheRecurrence)
{
    inEveryVariant([] {
        for (double frequency : {0.0, 0.1, 0.25, 1e-7, 0.3333, 0.4999})
            for (double phase : {0.0, 1.0, 6.2}) {
                const double magn = 2.5, step = turn * frequency;
                const auto near = static_cast<double>(oracle::ofTurn(Wide(step) / fullTurn).cos);
                const Tone t = tone("64f", 500, magn, frequency, phase);
                bool any = false;
                for (double c : {near, std::nextafter(near, 2), std::nextafter(near, -2)}) {
                    std::vector<double> y = {t.real[0], t.real[1]};
                    for (size_t i = 2; i < 500; ++i)
                        y.push_back(i < 4 ? 2 * c * y[i - 1] - y[i - 2] : (4 * c * c - 2) * y[i - 2] - y[i - 4]);
                    any |= y == t.real;
                }
                EXPECT_TRUE(any) << frequency << ' ' << phase;
                EXPECT_NEAR(t.real[0], magn * std::cos(phase), 1e-15);
                EXPECT_NEAR(t.real[1], magn * std::cos(turn * frequency + phase), 2e-15);
                EXPECT_EQ(bitsOf(t.phase), bitsOf(advanced(phase, 500, frequency)));
            }
    });
}

TEST(Tone, PartsOfEveryLengthBeginAlike)
{
    inEveryVariant([] {
        const Tone whole = tone("64f", 40, 1.5, 0.17, 2), wholeToo = tone("64fc", 40, 1.5, 0.17, 2);
        for (int n = 1; n < 40; ++n) {
            const Tone t = tone("64f", n, 1.5, 0.17, 2), c = tone("64fc", n, 1.5, 0.17, 2);
            for (size_t i = 0; i < static_cast<size_t>(n); ++i) {
                ASSERT_EQ(bitsOf(t.real[i]), bitsOf(whole.real[i])) << n;
                ASSERT_TRUE(same(c.complex[i], wholeToo.complex[i])) << n;
            }
        }
    });
}

TEST(Tone, ComplexIsWithinFourUlpOfItsMagnitude)
{
    double worst = 0;
    inEveryVariant([&] {
        for (double magn : {1.0, 1.9999999, 3e-5})
            for (double frequency : {0.0, 0.1, 0.75, 1 / 3.0, 1e-9, 0.99999999999, 1e-300, 0.123456789})
                for (double phase : {0.0, 2.2, 6.283185307179585}) {
                    const int n = 3000;
                    const Tone t = tone("64fc", n, magn, frequency, phase);
                    const double unit = std::nextafter(magn, 9) - magn;
                    for (int64_t i = 0; i < n; ++i) {
                        const oracle::CosSin right = oracle::ofTurn(partOfTurn(frequency, phase, i));
                        const Ipp64fc z = t.complex[static_cast<size_t>(i)];
                        worst = std::max(worst, static_cast<double>(std::fabs(z.re - magn * right.cos)) / unit);
                        worst = std::max(worst, static_cast<double>(std::fabs(z.im - magn * right.sin)) / unit);
                    }
                    EXPECT_EQ(bitsOf(t.phase), bitsOf(advanced(phase, n, frequency)));
                }
    });
    std::printf("largest error of a complex tone: %.3f ulp of its magnitude\n", worst);
    EXPECT_LE(worst, 4);
}

TEST(Tone, NaNPassesAndComesThrough)
{
    inEveryVariant([] {
        for (const double x : tone("64f", 9, quietNaN, 0.1, 0).real) EXPECT_TRUE(std::isnan(x));
        for (const Ipp64fc z : tone("64fc", 9, 1, quietNaN, 0).complex)
            EXPECT_TRUE(std::isnan(z.re) && std::isnan(z.im));
        EXPECT_TRUE(std::isnan(tone("64f", 9, 1, 0.1, quietNaN).phase));
    });
}

namespace {

// The wave at a part of its period.
Wide wave(Wide part, double asymmetry)
{
    const Wide falling = (fullTurn / 2 + Wide(asymmetry)) / fullTurn;
    return part < falling || part == 0 ? (part == 0 ? Wide(1) : 1 - 2 * part / falling)
                                       : 2 * (part - falling) / (1 - falling) - 1;
}
struct Triangle {
    std::vector<double> real;
    std::vector<Ipp64fc> complex;
    double phase, phaseToo;
};
Triangle triangle(int n, double magn, double frequency, double asymmetry, double phase)
{
    Triangle t{std::vector<double>(static_cast<size_t>(n)), std::vector<Ipp64fc>(static_cast<size_t>(n)), phase, phase};
    EXPECT_EQ(
        callIndexed("ippsTriangle_Direct_64f_Idx", (void*)t.real.data(), 0, n, magn, frequency, asymmetry, &t.phase),
        ippStsNoErr);
    EXPECT_EQ(callIndexed("ippsTriangle_Direct_64fc_Idx", (void*)t.complex.data(), 0, n, magn, frequency, asymmetry,
                          &t.phaseToo),
              ippStsNoErr);
    return t;
}

} // namespace

TEST(Triangle, FollowsItsWave)
{
    double worst = 0;
    inEveryVariant([&] {
        for (double asymmetry : {0.0, 1.0, -1.0, 3.0, -3.1, -pi, std::nextafter(pi, 0)})
            for (double frequency : {0.0, 0.1, 1 / 3.0, 1e-9, 0.49999999})
                for (double phase : {0.0, 1.1, pi, 6.28}) {
                    const double magn = 3.5;
                    const Triangle t = triangle(1000, magn, frequency, asymmetry, phase);
                    // What an error of the phase of 2^-51 makes of the wave where it is steeper.
                    const double steep = 4 * turn / std::max(pi - std::fabs(asymmetry), 0.01);
                    for (int64_t i = 0; i < 1000; ++i) {
                        const auto k = static_cast<size_t>(i);
                        const Wide part = partOfTurn(frequency, phase, i);
                        const Wide later = part - (fullTurn / 2 - Wide(asymmetry)) / (2 * fullTurn);
                        const double cosine = static_cast<double>(magn * wave(part, asymmetry)),
                                     sine = static_cast<double>(magn * wave(later < 0 ? later + 1 : later, asymmetry));
                        ASSERT_TRUE(same(t.real[k], t.complex[k].re));
                        if (std::fabs(asymmetry) > 3.14) continue; // a step, on either side of which it may be
                        worst = std::max(worst, std::fabs(t.real[k] - cosine) / (magn * steep * 0x1p-52));
                        worst = std::max(worst, std::fabs(t.complex[k].im - sine) / (magn * steep * 0x1p-52));
                    }
                    EXPECT_EQ(bitsOf(t.phase), bitsOf(advanced(phase, 1000, frequency)));
                    EXPECT_EQ(bitsOf(t.phaseToo), bitsOf(t.phase));
                }
    });
    std::printf("largest error of a triangle: %.3f of what 2^-51 of a period make\n", worst);
    EXPECT_LE(worst, 1);
}

TEST(Triangle, BeginsAtItsMagnitudeWhateverItsShape)
{
    inEveryVariant([] {
        for (double asymmetry : {0.0, 2.0, -pi, std::nextafter(pi, 0)}) {
            const Triangle t = triangle(3, 2, 0.25, asymmetry, 0);
            EXPECT_EQ(t.real[0], 2);
            EXPECT_NEAR(t.complex[0].im, 0, 1e-15);
            if (asymmetry == 0) {
                EXPECT_EQ(t.real, (std::vector<double>{2, 0, -2}));
            }
            if (asymmetry == -pi) {
                EXPECT_EQ(t.real, (std::vector<double>{2, -1, 0}));
            } // rises from -2
        }
    });
}
