// Arithmetic on doubles and complex doubles against wide arithmetic that is rounded where the formulas say.
#include "support/wide.h"

using namespace support;

namespace {

const int lengths[] = {1, 2, 3, 4, 5, 7, 8, 9, 13, 16, 17, 31, 33, 64, 70, 129, 1001};
template <class T> std::vector<T> any(int n, unsigned seed);
template <> std::vector<double> any(int n, unsigned seed) { return numbers(static_cast<size_t>(n), seed); }
template <> std::vector<Ipp64fc> any(int n, unsigned seed) { return complexNumbers(static_cast<size_t>(n), seed); }

template <class T> void expectSame(const std::vector<T>& got, const std::vector<T>& right, const std::string& name)
{
    for (size_t i = 0; i < right.size(); ++i)
        ASSERT_TRUE(same(got[i], right[i])) << name << " of " << right.size() << ", element " << i;
}

// Every form of a function against its result for each element. Statuses: none but warnings that the elements explain.
template <class T, class F> void binary(const std::string& name, F f)
{
    for (int n : lengths) {
        const auto a = any<T>(n, 1), b = any<T>(n, 2);
        std::vector<T> right, plain = a, inPlace = b;
        for (size_t i = 0; i < a.size(); ++i) right.push_back(f(a[i], b[i]));
        EXPECT_GE(call(name, (const void*)a.data(), (const void*)b.data(), (void*)plain.data(), n), 0);
        expectSame(plain, right, name);
        EXPECT_GE(call(name + "_I", (const void*)a.data(), (void*)inPlace.data(), n), 0);
        expectSame(inPlace, right, name + "_I");
    }
}
template <class T, class F> void withValues(const std::string& name, const std::vector<T>& values, F f)
{
    for (const T value : values)
        for (int n : lengths) {
            const auto a = any<T>(n, 3);
            std::vector<T> right, plain = a, inPlace = a;
            for (const T x : a) right.push_back(f(x, value));
            EXPECT_EQ(call(name, (const void*)a.data(), value, (void*)plain.data(), n), 0);
            expectSame(plain, right, name);
            EXPECT_EQ(call(name + "_I", value, (void*)inPlace.data(), n), 0);
            expectSame(inPlace, right, name + "_I");
        }
}
template <class T, class F> void unary(const std::string& name, F f, bool alsoInPlace = true)
{
    for (int n : lengths) {
        const auto a = any<T>(n, 4);
        std::vector<T> right, plain = a, inPlace = a;
        for (const T x : a) right.push_back(f(x));
        EXPECT_GE(call(name, (const void*)a.data(), (void*)plain.data(), n), 0);
        expectSame(plain, right, name);
        if (!alsoInPlace) continue;
        EXPECT_GE(call(name + "_I", (void*)inPlace.data(), n), 0);
        expectSame(inPlace, right, name + "_I");
    }
}
template <class T, class F> void accumulating(const std::string& name, F f)
{
    for (int n : lengths) {
        const auto a = any<T>(n, 5), b = any<T>(n, 6);
        std::vector<T> d = any<T>(n, 7), right = d;
        for (size_t i = 0; i < d.size(); ++i) right[i] = f(d[i], a[i], b[i]);
        EXPECT_EQ(call(name, (const void*)a.data(), (const void*)b.data(), (void*)d.data(), n), 0);
        expectSame(d, right, name);
    }
}

const std::vector<double> realValues = {2.5, -0.0, 0x1p-1070, -1e300, infinity, quietNaN};
const std::vector<Ipp64fc> complexValues = {{1.5, -2.25}, {0.0, -0.0}, {-1e200, 1e-200}, {infinity, 1}, {quietNaN, 0}};

template <class T> void sumsAndDifferences(const std::string& type, const std::vector<T>& values)
{
    binary<T>("ippsAdd_" + type, [](T x, T y) { return sum(x, y); });
    binary<T>("ippsSub_" + type, [](T x, T y) { return difference(y, x); });
    withValues("ippsAddC_" + type, values, [](T x, T v) { return sum(x, v); });
    withValues("ippsSubC_" + type, values, [](T x, T v) { return difference(x, v); });
    withValues("ippsSubCRev_" + type, values, [](T x, T v) { return difference(v, x); });
}
template <class T> void products(const std::string& type, const std::vector<T>& values)
{
    binary<T>("ippsMul_" + type, [](T x, T y) { return product(x, y); });
    withValues("ippsMulC_" + type, values, [](T x, T v) { return product(x, v); });
    unary<T>("ippsSqr_" + type, [](T x) { return product(x, x); });
    accumulating<T>("ippsAddProduct_" + type, [](T d, T x, T y) { return sum(d, product(x, y)); });
}

} // namespace

TEST(Arithmetic, SumsDifferencesProducts)
{
    inEveryVariant([] {
        sumsAndDifferences("64f", realValues);
        sumsAndDifferences("64fc", complexValues);
        products("64f", realValues);
        products("64fc", complexValues);
    });
}

TEST(Arithmetic, Quotients)
{
    inEveryVariant([] {
        binary<double>("ippsDiv_64f", [](double b, double a) { return b == 0 ? quotient(a, 0) : quotient(a, b); });
        binary<Ipp64fc>("ippsDiv_64fc", [](Ipp64fc b, Ipp64fc a) { return quotient(a, b); });
        withValues<double>("ippsDivC_64f", {3, -0.1, 1e-310, 1e308, infinity, quietNaN},
                           [](double x, double v) { return product(x, quotient(1, v)); });
    });
}

// The reciprocal of a complex number whose square overflows or vanishes is no less exact than others.
TEST(Arithmetic, QuotientByAComplexValue)
{
    inEveryVariant([] {
        for (const Ipp64fc v : {Ipp64fc{3, 4}, Ipp64fc{-0.1, 7e9}, Ipp64fc{1e200, -3e199}, Ipp64fc{2e-220, 5e-220},
                                Ipp64fc{0, 1e-300}, Ipp64fc{-1e307, 1e307}, Ipp64fc{6e-309, 1e-320}}) {
            const Ipp64fc one = {1, 0};
            Ipp64fc r;
            EXPECT_EQ(call("ippsDivC_64fc", (const void*)&one, v, (void*)&r, 1), 0);
            const Wide power = Wide(v.re) * v.re + Wide(v.im) * v.im;
            EXPECT_LE(ulps(r.re, v.re / power), 2.5) << v.re << ' ' << v.im;
            EXPECT_LE(ulps(r.im, -v.im / power), 2.5) << v.re << ' ' << v.im;
            withValues<Ipp64fc>("ippsDivC_64fc", {v}, [=](Ipp64fc x, Ipp64fc) { return product(x, r); });
        }
    });
}

TEST(Arithmetic, ZeroDivisors)
{
    inEveryVariant([] {
        const double strange = fromBits(0x7FF0000000001234);
        for (int n : {8, 9, 37}) { // all in one vector, or the zeros in the remaining elements too
            std::vector<double> b(static_cast<size_t>(n), 2), a(b), d(b);
            EXPECT_EQ(call("ippsDiv_64f", b.data(), a.data(), d.data(), n), ippStsNoErr);
            const double dividends[] = {3, -3, infinity, -infinity};
            for (double zero : {0.0, -0.0}) {
                const size_t at = b.size() - 7;
                for (size_t i = 0; i < 7; ++i) b[at + i] = zero;
                std::copy_n(dividends, 4, &a[at]);
                a[at + 4] = 0, a[at + 5] = -0.0, a[at + 6] = strange;
                EXPECT_EQ(call("ippsDiv_64f", b.data(), a.data(), d.data(), n), ippStsDivByZero);
                for (size_t i = 0; i < at; ++i) EXPECT_EQ(d[i], 1);
                for (size_t i = 0; i < 4; ++i) EXPECT_EQ(d[at + i], std::copysign(infinity, dividends[i]));
                for (size_t i = 4; i < 7; ++i) EXPECT_EQ(bitsOf(d[at + i]), indefinite) << i;
                std::vector<double> inPlace = a;
                EXPECT_EQ(call("ippsDiv_64f_I", b.data(), inPlace.data(), n), ippStsDivByZero);
                expectSame(inPlace, d, "ippsDiv_64f_I");
            }
            b.assign(b.size(), quietNaN);
            EXPECT_EQ(call("ippsDiv_64f", b.data(), a.data(), d.data(), n), ippStsNoErr);
            EXPECT_TRUE(std::isnan(d[0]));

            std::vector<Ipp64fc> q(b.size(), {1, 1}), p(q), r(q);
            EXPECT_EQ(call("ippsDiv_64fc", q.data(), p.data(), r.data(), n), ippStsNoErr);
            for (const Ipp64fc none : {Ipp64fc{0, -0.0}, Ipp64fc{1e-170, 1e-200}}) {
                q.back() = none;
                EXPECT_EQ(call("ippsDiv_64fc", q.data(), p.data(), r.data(), n), ippStsDivByZero);
                EXPECT_EQ(bitsOf(r.back().re), indefinite);
                EXPECT_EQ(bitsOf(r.back().im), indefinite);
                EXPECT_EQ(r[0].re, 1);
                EXPECT_EQ(r[0].im, 0);
            }
        }
        double d = 5;
        Ipp64fc z = {5, 5};
        for (double zero : {0.0, -0.0}) {
            EXPECT_EQ(call("ippsDivC_64f_I", zero, &d, 1), ippStsDivByZeroErr);
            EXPECT_EQ(call("ippsDivC_64fc_I", Ipp64fc{zero, 0}, &z, 1), ippStsDivByZeroErr);
            EXPECT_EQ(call("ippsDivC_64f_I", zero, &d, 0), ippStsSizeErr);
        }
        EXPECT_TRUE(d == 5 && z.re == 5 && z.im == 5);
        EXPECT_EQ(call("ippsDivC_64fc_I", Ipp64fc{0, 2}, &z, 1), ippStsNoErr);
    });
}

// Only the sign bit changes, also that of a NaN.
TEST(Arithmetic, SignBits)
{
    const std::vector<uint64_t> some = {0,          1,  0x8000000000000000, 0xBFF0000000000000, 0xFFF0000000000000,
                                        indefinite, ~0u};
    inEveryVariant([&] {
        std::vector<Ipp64fc> z, conjugates(37), flipped(37);
        std::vector<double> x, positive(37);
        for (size_t i = 0; i < 37; ++i) {
            x.push_back(fromBits(some[i % 7] + i / 7));
            z.push_back({x[i], fromBits(some[i * 3 % 7] + i)});
        }
        EXPECT_EQ(call("ippsAbs_64f", (const void*)x.data(), (void*)positive.data(), 37), 0);
        EXPECT_EQ(call("ippsConj_64fc", (const void*)z.data(), (void*)conjugates.data(), 37), 0);
        EXPECT_EQ(call("ippsConjFlip_64fc", (const void*)z.data(), (void*)flipped.data(), 37), 0);
        for (size_t i = 0; i < 37; ++i) {
            EXPECT_EQ(bitsOf(positive[i]), bitsOf(x[i]) & ~0ull >> 1);
            EXPECT_EQ(bitsOf(conjugates[i].re), bitsOf(z[i].re));
            EXPECT_EQ(bitsOf(conjugates[i].im), bitsOf(z[i].im) ^ 1ull << 63);
            EXPECT_EQ(std::memcmp(&flipped[36 - i], &conjugates[i], 16), 0);
        }
    });
}

TEST(Parts, ApartAndTogether)
{
    inEveryVariant([] {
        for (int n : lengths) {
            const size_t count = static_cast<size_t>(n);
            const Bytes bits = noise(16 * count);
            std::vector<double> re(count), im(count), both[2] = {re, im};
            std::vector<Ipp64fc> z(count), again(count);
            std::memcpy(z.data(), bits.data(), bits.size());
            EXPECT_EQ(call("ippsReal_64fc", (const void*)z.data(), (void*)re.data(), n), 0);
            EXPECT_EQ(call("ippsImag_64fc", (const void*)z.data(), (void*)im.data(), n), 0);
            EXPECT_EQ(
                call("ippsCplxToReal_64fc", (const void*)z.data(), (void*)both[0].data(), (void*)both[1].data(), n), 0);
            for (size_t i = 0; i < count; ++i) {
                ASSERT_EQ(bitsOf(re[i]), bitsOf(z[i].re));
                ASSERT_EQ(bitsOf(im[i]), bitsOf(z[i].im));
            }
            EXPECT_EQ(std::memcmp(both[0].data(), re.data(), 8 * count), 0);
            EXPECT_EQ(std::memcmp(both[1].data(), im.data(), 8 * count), 0);

            const void *const none = nullptr, *const r = re.data(), *const i = im.data();
            EXPECT_EQ(call("ippsRealToCplx_64f", r, i, (void*)again.data(), n), 0);
            EXPECT_EQ(std::memcmp(again.data(), z.data(), 16 * count), 0);
            EXPECT_EQ(call("ippsRealToCplx_64f", r, none, (void*)again.data(), n), 0);
            for (size_t k = 0; k < count; ++k)
                ASSERT_TRUE(bitsOf(again[k].re) == bitsOf(re[k]) && bitsOf(again[k].im) == 0) << n << ' ' << k;
            EXPECT_EQ(call("ippsRealToCplx_64f", none, i, (void*)again.data(), n), 0);
            const std::vector<Ipp64fc> before = again;
            for (size_t k = 0; k < count; ++k)
                ASSERT_TRUE(bitsOf(again[k].re) == 0 && bitsOf(again[k].im) == bitsOf(im[k])) << n << ' ' << k;
            EXPECT_EQ(call("ippsRealToCplx_64f", none, none, (void*)again.data(), n), ippStsNullPtrErr);
            EXPECT_EQ(call("ippsRealToCplx_64f", none, none, (void*)again.data(), 0), ippStsNullPtrErr);
            EXPECT_EQ(call("ippsRealToCplx_64f", r, none, (void*)again.data(), 0), ippStsSizeErr);
            EXPECT_EQ(std::memcmp(again.data(), before.data(), 16 * count), 0);
        }
    });
}

TEST(Parts, MagnitudeAndPower)
{
    inEveryVariant([] {
        for (int n : lengths) {
            const auto z = any<Ipp64fc>(n, 8);
            std::vector<double> re, im, got(z.size()), powers, magnitudes;
            for (const Ipp64fc x : z) {
                re.push_back(x.re);
                im.push_back(x.im);
                powers.push_back(power(x));
                magnitudes.push_back(squareRoot(power(x)));
            }
            EXPECT_EQ(call("ippsPowerSpectr_64fc", (const void*)z.data(), (void*)got.data(), n), 0);
            expectSame(got, powers, "ippsPowerSpectr_64fc");
            EXPECT_EQ(call("ippsMagnitude_64fc", (const void*)z.data(), (void*)got.data(), n), 0);
            expectSame(got, magnitudes, "ippsMagnitude_64fc");
            EXPECT_EQ(call("ippsPowerSpectr_64f", (const void*)re.data(), (const void*)im.data(), (void*)got.data(), n),
                      0);
            expectSame(got, powers, "ippsPowerSpectr_64f");
            EXPECT_EQ(call("ippsMagnitude_64f", (const void*)re.data(), (const void*)im.data(), (void*)got.data(), n),
                      0);
            expectSame(got, magnitudes, "ippsMagnitude_64f");
        }
    });
}
