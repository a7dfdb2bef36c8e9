// Conversions against a number of 128 bits for every result: x * 2^-scaleFactor as an exact fraction, rounded by
// comparing what is cut off with a half.
#include "support/bytes.h"
#include <cmath>
#include <cstring>
#include <algorithm>
#include <limits>
#include <xmmintrin.h>

using namespace support;

namespace {

// Types as a name, a C++ type of the stored elements, and their limits.
template <int bits, bool isSigned, class Storage> struct Integer {
    using Type = Storage;
    static constexpr int bytes = bits / 8;
    static long double low() { return isSigned ? -std::ldexp(1.0L, bits - 1) : 0; }
    static long double high() { return std::ldexp(1.0L, bits - isSigned) - 1; }
    static long double read(const unsigned char* p)
    {
        long double x = 0;
        for (int i = bytes - 1; i >= 0; --i) x = x * 256 + p[i];
        return isSigned && x > high() ? x - std::ldexp(1.0L, bits) : x;
    }
};
template <class F> struct Floating {
    using Type = F;
    static constexpr int bytes = sizeof(F);
    static long double read(const unsigned char* p)
    {
        F x;
        std::memcpy(&x, p, sizeof x);
        return x;
    }
};
using I8 = Integer<8, true, Ipp8s>;
using U8 = Integer<8, false, Ipp8u>;
using I16 = Integer<16, true, Ipp16s>;
using U16 = Integer<16, false, Ipp16u>;
using I24 = Integer<24, true, Ipp8u>;
using U24 = Integer<24, false, Ipp8u>;
using I32 = Integer<32, true, Ipp32s>;
using U32 = Integer<32, false, Ipp32u>;
using I64 = Integer<64, true, Ipp64s>;
using F32 = Floating<float>;
using F64 = Floating<double>;

// x * 2^-s to an integer. Long doubles hold every x here and every integer; a tie shows in the part after the point.
template <class D> long double expectedInteger(long double x, int mode, int s)
{
    if (std::isnan(x)) return D::low();
    if (x == 0 || (s > 3000 && !std::isinf(x))) return 0;
    const long double y = s < -3000 || std::isinf(x) ? (x < 0 ? D::low() : D::high()) : std::ldexp(x, -s);
    const long double whole = std::trunc(y), rest = std::fabs(y - whole), away = whole + (y < 0 ? -1 : 1);
    long double rounded = whole;
    if (mode == 1 && (rest > 0.5L || (rest == 0.5L && std::fmod(whole, 2) != 0))) rounded = away;
    if (mode == 2 && rest >= 0.5L) rounded = away;
    return rounded < D::low() ? D::low() : rounded > D::high() ? D::high() : rounded;
}

constexpr int extremeScales[] = {127, 149, 253, 500, 899, 900, 901, 970, 1000, 1023, 1075, 2045, 5000, 2147483647};

std::vector<int> scales()
{
    std::vector<int> all = {-2147483647 - 1};
    for (int s = -66; s <= 66; ++s) all.push_back(s);
    for (int s : extremeScales) all.insert(all.end(), {s, -s});
    return all;
}

// Sources: integers of any size, both ends, powers of two and their neighbours.
template <class S> Bytes integers(int n)
{
    Bytes b = noise(static_cast<size_t>(n * S::bytes), 5);
    std::mt19937 r(3);
    for (int i = 0; i < n; ++i) {
        const int bits = static_cast<int>(r() % (8 * S::bytes));
        const uint64_t power = uint64_t(1) << bits;
        const uint64_t x[] = {power, power - 1, ~power, ~power + 1, power + power / 2, 0};
        if (i % 3) std::memcpy(&b[static_cast<size_t>(i * S::bytes)], &x[r() % 6], S::bytes);
    }
    return b;
}

// Numbers around the ties and limits of x * 2^-s, each limit of an integer and its neighbours among them, and some from
// everywhere.
template <class F> Bytes floats(int n, int s)
{
    using L = std::numeric_limits<F>;
    std::vector<F> v = {0,        -F(0),       L::infinity(), -L::infinity(), L::quiet_NaN(),  -L::quiet_NaN(),
                        L::max(), L::lowest(), L::min(),      -L::min(),      L::denorm_min(), -L::denorm_min()};
    const int near = s < -200 ? -200 : s > 200 ? 200 : s;
    std::mt19937_64 r(static_cast<unsigned>(1000 + near));
    for (int power : {7, 8, 15, 16, 23, 24, 31, 32, 63, 64}) {
        const F limit = static_cast<F>(std::ldexp(1.0, power + near));
        for (F x : {limit, std::nextafter(limit, F(0)), std::nextafter(limit, L::infinity())})
            v.insert(v.end(), {x, -x});
    }
    while (v.size() < static_cast<size_t>(n)) {
        const double power = std::ldexp(1.0, static_cast<int>(r() % 66));
        const double numbers[] = {power, power - 0.5, power + 0.5, power - 1.5, static_cast<double>(r() % 4096) / 4,
                                  0.5,   1.5,         2.5};
        F x = static_cast<F>(std::ldexp(numbers[r() % 8], near));
        const int neighbour = static_cast<int>(r() % 6);
        if (neighbour < 2) x = std::nextafter(x, neighbour ? L::infinity() : -L::infinity());
        if (neighbour == 5) {
            const uint64_t any = r();
            std::memcpy(&x, &any, sizeof x);
        }
        v.push_back(r() % 2 ? x : -x);
    }
    std::shuffle(v.begin(), v.end(), r);
    v.resize(static_cast<size_t>(n));
    Bytes b(v.size() * sizeof(F));
    std::memcpy(b.data(), v.data(), b.size());
    return b;
}

template <class D>
void expectIntegers(const std::string& name, const Bytes& d, const std::vector<long double>& expected, int mode, int s)
{
    for (size_t i = 0; i < expected.size(); ++i)
        ASSERT_EQ(D::read(&d[i * D::bytes]), expected[i])
            << name << ' ' << i << " rndMode " << mode << " scaleFactor " << s;
}

// Lengths that end in every way that loops may.
const int lengths[] = {1, 2, 3, 4, 5, 7, 8, 11, 16, 19, 31, 32, 33, 50, 64, 100, 131};

template <class S, class D> void fromFloat(const std::string& type)
{
    const std::string name = "ippsConvert_" + type + "_Sfs";
    int turn = 0;
    for (int s : scales())
        for (int mode : {0, 1, 2}) {
            const int n = s >= -3 && s <= 3 ? 700 : lengths[turn++ % 17];
            const Bytes a = floats<typename S::Type>(n, s);
            Bytes d(static_cast<size_t>(n * D::bytes));
            std::vector<long double> expected;
            for (int i = 0; i < n; ++i)
                expected.push_back(expectedInteger<D>(S::read(&a[static_cast<size_t>(i * S::bytes)]), mode, s));
            EXPECT_EQ(call(name, a.data(), d.data(), n, mode, s), 0);
            expectIntegers<D>(name, d, expected, mode, s);
        }
}

template <class S, class D> void fromInteger(const std::string& type)
{
    const std::string name = "ippsConvert_" + type + "_Sfs";
    int turn = 0;
    for (int s : scales()) {
        const int n = s >= -3 && s <= 3 ? 700 : lengths[turn++ % 17];
        const Bytes a = integers<S>(n);
        Bytes d(static_cast<size_t>(n * D::bytes));
        std::vector<long double> expected;
        for (int i = 0; i < n; ++i)
            expected.push_back(expectedInteger<D>(S::read(&a[static_cast<size_t>(i * S::bytes)]), 1, s));
        EXPECT_EQ(call(name, a.data(), d.data(), n, s), 0);
        expectIntegers<D>(name, d, expected, 1, s);
    }
}

// Without scaling: the number itself, or the one of the new type that the compiler's conversion gives.
template <class S, class D> void plain(const std::string& type, const Bytes& source)
{
    const std::string name = "ippsConvert_" + type;
    for (int n : {1, 2, 3, 5, 9, 17, 33, 70, static_cast<int>(source.size()) / S::bytes}) {
        Bytes d(static_cast<size_t>(n * D::bytes) + 9, 0xCD);
        EXPECT_EQ(call(name, source.data(), d.data(), n), 0);
        for (int i = 0; i < n; ++i) {
            const long double x = S::read(&source[static_cast<size_t>(i * S::bytes)]);
            const auto expected = static_cast<long double>(static_cast<typename D::Type>(x));
            const long double found = D::read(&d[static_cast<size_t>(i * D::bytes)]);
            if (std::isnan(x))
                EXPECT_TRUE(std::isnan(found));
            else
                ASSERT_TRUE(found == expected && std::signbit(found) == std::signbit(expected)) << name << ' ' << i;
        }
        EXPECT_TRUE(std::all_of(d.end() - 9, d.end(), [](unsigned char x) { return x == 0xCD; }));
    }
}

uint32_t bitsOf(float x)
{
    uint32_t b;
    std::memcpy(&b, &x, 4);
    return b;
}

// Half precision by its definition.
double halfValue(unsigned h)
{
    const int exponent = h >> 10 & 31, significand = h & 1023;
    const double magnitude = exponent == 31 ? (significand ? NAN : INFINITY)
                             : exponent     ? std::ldexp(1024 + significand, exponent - 25)
                                            : std::ldexp(significand, -24);
    return h & 0x8000 ? -magnitude : magnitude;
}

unsigned halfOf(float x, int mode)
{
    const unsigned sign = std::signbit(x) ? 0x8000 : 0, bits = bitsOf(x);
    if (std::isnan(x)) return sign | 0x7E00 | (bits >> 13 & 0x3FF);
    const double y = std::fabs(static_cast<double>(x));
    unsigned below = 0; // the largest half not above y, by halving the interval of all of them
    for (unsigned step = 0x4000; step; step /= 2)
        if (below + step <= 0x7C00 && halfValue(below + step) <= y) below += step;
    if (below == 0x7C00) return sign | below;
    const double low = halfValue(below), high = below == 0x7BFF ? 65536 : halfValue(below + 1),
                 middle = (low + high) / 2;
    if (y >= 65536) return sign | 0x7C00;
    const bool up = mode == 1 ? y > middle || (y == middle && below % 2) : mode == 2 ? y >= middle : false;
    return sign | (below + up);
}

} // namespace

TEST(Convert, ExactOrRoundedOnce)
{
    const Bytes doubles = floats<double>(3000, 0), singles = floats<float>(3000, 0);
    inEveryVariant([&] {
        plain<I8, I16>("8s16s", integers<I8>(500));
        plain<I8, F32>("8s32f", integers<I8>(500));
        plain<U8, F32>("8u32f", integers<U8>(500));
        plain<I16, I32>("16s32s", integers<I16>(500));
        plain<I16, F32>("16s32f", integers<I16>(500));
        plain<U16, F32>("16u32f", integers<U16>(500));
        plain<I32, F32>("32s32f", integers<I32>(500));
        plain<I32, F64>("32s64f", integers<I32>(500));
        plain<I64, F64>("64s64f", integers<I64>(500));
        plain<F32, F64>("32f64f", singles);
        plain<F64, F32>("64f32f", doubles);
        plain<U24, F32>("24u32f", integers<U24>(500));
        plain<I24, F32>("24s32f", integers<I24>(500));
        plain<U24, U32>("24u32u", integers<U24>(500));
        plain<I24, I32>("24s32s", integers<I24>(500));
    });
}

TEST(Convert, IntegersScaled)
{
    inEveryVariant([] {
        fromInteger<I16, I8>("16s8s");
        fromInteger<I32, I16>("32s16s");
        fromInteger<I32, I24>("32s24s");
        fromInteger<U32, U24>("32u24u");
        const Bytes a = integers<I32>(300);
        Bytes plain(600), scaled(600);
        EXPECT_EQ(call("ippsConvert_32s16s", a.data(), plain.data(), 300), 0);
        EXPECT_EQ(call("ippsConvert_32s16s_Sfs", a.data(), scaled.data(), 300, 0), 0);
        EXPECT_EQ(plain, scaled);
    });
}

TEST(Convert, FloatsScaledRoundedSaturated)
{
    inEveryVariant([] {
        fromFloat<F32, I8>("32f8s");
        fromFloat<F32, U8>("32f8u");
        fromFloat<F32, I16>("32f16s");
        fromFloat<F32, U16>("32f16u");
        fromFloat<F32, I24>("32f24s");
        fromFloat<F32, U24>("32f24u");
        fromFloat<F32, I32>("32f32s");
        fromFloat<F64, U8>("64f8u");
        fromFloat<F64, I16>("64f16s");
        fromFloat<F64, U16>("64f16u");
        fromFloat<F64, I32>("64f32s");
        fromFloat<F64, I64>("64f64s");
    });
}

// The caller may have set any rounding mode; the argument counts.
TEST(Convert, ThreadsRoundingModeHasNoInfluence)
{
    inEveryVariant([] {
        const unsigned before = _mm_getcsr();
        for (unsigned direction : {0x2000u, 0x4000u, 0x6000u})
            for (int mode : {0, 1, 2}) {
                const float a[] = {0.5f, 1.5f, -2.5f, 0.49999997f, -0.75f, 3, 1e30f, -1e30f};
                const double b[] = {0.5, 1.5, -2.5, 0.49999999999999994, -0.75, 3, 1e30, -1e30};
                Ipp16s fromSingles[8], fromDoubles[8];
                Ipp64s longs[8];
                Ipp16u halves[1];
                const float third = 1 / 3.0f;
                _mm_setcsr((before & ~0x6000u) | direction);
                call("ippsConvert_32f16s_Sfs", a, fromSingles, 8, mode, 0);
                call("ippsConvert_64f16s_Sfs", b, fromDoubles, 8, mode, 0);
                call("ippsConvert_64f64s_Sfs", b, longs, 8, mode, 0);
                call("ippsConvert_32f16f", &third, halves, 1, mode);
                _mm_setcsr(before);
                for (int i = 0; i < 8; ++i) {
                    EXPECT_EQ(fromSingles[i], expectedInteger<I16>(a[i], mode, 0)) << a[i] << ' ' << mode;
                    EXPECT_EQ(fromDoubles[i], expectedInteger<I16>(b[i], mode, 0)) << b[i] << ' ' << mode;
                    EXPECT_EQ(longs[i], expectedInteger<I64>(b[i], mode, 0)) << b[i] << ' ' << mode;
                }
                EXPECT_EQ(halves[0], halfOf(third, mode)) << mode;
            }
    });
}

TEST(Convert, IntegersToScaledDoubles)
{
    inEveryVariant([] {
        int turn = 0;
        std::vector<int> all = scales();
        for (int s = -1110; s < 1110; ++s) all.push_back(s); // until results leave the normal numbers
        for (int s : all) {
            const int n = lengths[turn++ % 17];
            const Bytes a = integers<I16>(n), b = integers<I32>(n);
            std::vector<double> fromShort(static_cast<size_t>(n)), fromLong(static_cast<size_t>(n));
            EXPECT_EQ(call("ippsConvert_16s64f_Sfs", a.data(), fromShort.data(), n, s), 0);
            EXPECT_EQ(call("ippsConvert_32s64f_Sfs", b.data(), fromLong.data(), n, s), 0);
            const int exponent = s < -5000 ? 5000 : s > 5000 ? -5000 : -s;
            for (size_t i = 0; i < fromShort.size(); ++i) {
                ASSERT_EQ(fromShort[i], static_cast<double>(std::ldexp(I16::read(&a[2 * i]), exponent))) << s;
                ASSERT_EQ(fromLong[i], static_cast<double>(std::ldexp(I32::read(&b[4 * i]), exponent))) << s;
            }
        }
    });
}

TEST(Convert, EveryHalf)
{
    inEveryVariant([] {
        std::vector<Ipp16u> all(65536), back(65536);
        for (unsigned h = 0; h < 65536; ++h) all[h] = static_cast<Ipp16u>(h);
        std::vector<float> x(65536);
        EXPECT_EQ(call("ippsConvert_16f32f", all.data(), x.data(), 65536), 0);
        for (unsigned h = 0; h < 65536; ++h) {
            if ((h & 0x7FFF) > 0x7C00) // payload and sign stay, and it is quiet
                ASSERT_EQ(bitsOf(x[h]), (h & 0x8000) << 16 | 0x7FC00000 | (h & 0x3FF) << 13) << h;
            else
                ASSERT_EQ(bitsOf(x[h]), bitsOf(static_cast<float>(halfValue(h)))) << h;
        }
        for (int mode : {0, 1, 2}) {
            EXPECT_EQ(call("ippsConvert_32f16f", x.data(), back.data(), 65536, mode), 0);
            for (unsigned h = 0; h < 65536; ++h) ASSERT_EQ(back[h], (h & 0x7FFF) > 0x7C00 ? h | 0x200 : h) << mode;
        }
    });
}

TEST(Convert, RoundsToHalf)
{
    std::vector<float> x;
    for (unsigned h = 0; h <= 0x7C00; ++h) { // the middle between neighbours, and beside it
        const double next = h >= 0x7BFF ? 65536 : halfValue(h + 1);
        const float middle = static_cast<float>((halfValue(h < 0x7C00 ? h : 0x7BFF) + next) / 2);
        for (float y : {middle, std::nextafter(middle, 0.0f), std::nextafter(middle, 1e9f)})
            x.push_back(h % 3 ? y : -y);
    }
    for (float y : {65536.0f, 65535.99f, 1e30f, -3e38f, 1e-45f, -1e-38f, 2e-38f}) x.push_back(y);
    for (uint32_t b : {0x7F800001u, 0xFF9FFFFFu, 0x7FC01FFFu, 0x7F800000u, 0xFF800000u}) {
        float y;
        std::memcpy(&y, &b, 4);
        x.push_back(y);
    }
    std::vector<unsigned> expected[3];
    for (int mode : {0, 1, 2})
        for (float y : x) expected[mode].push_back(halfOf(y, mode));
    inEveryVariant([&] {
        for (int mode : {0, 1, 2}) {
            std::vector<Ipp16u> d(x.size());
            EXPECT_EQ(call("ippsConvert_32f16f", x.data(), d.data(), static_cast<int>(x.size()), mode), 0);
            for (size_t i = 0; i < x.size(); ++i) ASSERT_EQ(d[i], expected[mode][i]) << x[i] << ' ' << mode;
        }
    });
}

TEST(Convert, BytesOf24BitsAndTheirIndices)
{
    inEveryVariant([] {
        const Ipp8u source[] = {9, 9, 9, 0x01, 0x02, 0x83};
        Ipp32u u[2] = {5, 5};
        Ipp32s s[1];
        EXPECT_EQ(callIndexed("ippsConvert_24u32u_Idx", source, 3, u, 1, 1), 0);
        EXPECT_EQ(u[0], 5u);
        EXPECT_EQ(u[1], 0x830201u);
        EXPECT_EQ(callIndexed("ippsConvert_24s32s_Idx", source, 3, s, 0, 1), 0);
        EXPECT_EQ(s[0], 0x830201 - 0x1000000);
        const Ipp32s x[] = {-2};
        Ipp8u d[5] = {7, 7, 7, 7, 7};
        EXPECT_EQ(callIndexed("ippsConvert_32s24s_Sfs_Idx", x, 0, d, 1, 1, 1), 0);
        EXPECT_TRUE(d[0] == 7 && d[1] == 255 && d[2] == 255 && d[3] == 255 && d[4] == 7);
    });
}
