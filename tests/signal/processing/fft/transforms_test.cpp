// Fourier transforms of every body: accuracy against transforms in extended precision, products against convolutions,
// equal bits in all bodies and on all platforms, and nothing touched that is not theirs.
#include "signal/processing/fft/body.h"
#include <cmath>
#include <complex>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <new>
#include <random>
#include <vector>

using namespace sig5d;
using support::fftBodies;
using support::FftBody;
using support::FftFunctions;

namespace {

using Wide = std::complex<long double>;
constexpr double eps = 0x1p-52;
constexpr long double pi = 3.14159265358979323846264338327950288L;

// exp(-2 pi i k / n), from an angle in the first octant.
Wide turn(int64_t k, int64_t n)
{
    const int64_t octant = 8 * k / n, rest = 8 * k % n;
    const long double a = pi / 4 * static_cast<long double>(octant & 1 ? n - rest : rest) / static_cast<long double>(n);
    long double c = std::cos(a), s = std::sin(a);
    if ((octant + 1) & 2) std::swap(c, s);
    if ((octant + 2) & 4) c = -c;
    if (octant & 4) s = -s;
    return {c, -s};
}

// Every step-th value of x, transformed by halves: the definition in another order. turns[k] = turn(k, x.size()).
std::vector<Wide> byHalves(const std::vector<Wide>& x, const std::vector<Wide>& turns, size_t first, size_t step)
{
    const size_t n = x.size() / step;
    if (n == 1) return {x[first]};
    const std::vector<Wide> even = byHalves(x, turns, first, 2 * step),
                            odd = byHalves(x, turns, first + step, 2 * step);
    std::vector<Wide> result(n);
    for (size_t k = 0; k < n / 2; ++k) {
        const Wide a = turns[k * step], b = odd[k];
        const Wide t(a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real());
        result[k] = even[k] + t;
        result[k + n / 2] = even[k] - t;
    }
    return result;
}
std::vector<Wide> reference(const std::vector<Wide>& x)
{
    std::vector<Wide> turns;
    for (size_t k = 0; k < x.size(); ++k) turns.push_back(turn(int64_t(k), int64_t(x.size())));
    return byHalves(x, turns, 0, 1);
}
std::vector<Wide> referenceInverse(std::vector<Wide> x)
{
    for (Wide& v : x) v = std::conj(v);
    x = reference(x);
    for (Wide& v : x) v = std::conj(v) / static_cast<long double>(x.size());
    return x;
}

// What tells real from complex transforms.
template <class T> struct Kind;
template <> struct Kind<f64> {
    static constexpr FftKind kind = FftKind::real;
    static const FftFunctions<f64>& of(const FftBody& b) { return b.real; }
    static f64 random(std::mt19937_64& r) { return std::ldexp(double(int64_t(r())), -63); }
    static Wide wide(f64 x) { return x; }
    // All N values of a packed spectrum.
    static std::vector<Wide> unpacked(const std::vector<f64>& s)
    {
        const size_t n = s.size();
        std::vector<Wide> all(n);
        all[0] = s[0];
        if (n > 1) all[n / 2] = s[1];
        for (size_t k = 1; k < n / 2; ++k) {
            all[k] = {s[2 * k], s[2 * k + 1]};
            all[n - k] = std::conj(all[k]);
        }
        return all;
    }
};
template <> struct Kind<c64f> {
    static constexpr FftKind kind = FftKind::complex;
    static const FftFunctions<c64f>& of(const FftBody& b) { return b.complex; }
    static c64f random(std::mt19937_64& r)
    {
        const f64 re = Kind<f64>::random(r);
        return {re, Kind<f64>::random(r)};
    }
    static Wide wide(c64f x) { return {x.re, x.im}; }
    static std::vector<Wide> unpacked(const std::vector<c64f>& s)
    {
        std::vector<Wide> all;
        for (c64f v : s) all.push_back(wide(v));
        return all;
    }
};

template <class T> std::vector<T> randomSignal(size_t n, unsigned seed)
{
    std::mt19937_64 random(seed);
    std::vector<T> x(n);
    for (T& v : x) v = Kind<T>::random(random);
    return x;
}
template <class T> std::vector<Wide> widened(const std::vector<T>& x)
{
    std::vector<Wide> w;
    for (T v : x) w.push_back(Kind<T>::wide(v));
    return w;
}

// |a - b| / |b|, in units of eps.
double distance(const std::vector<Wide>& a, const std::vector<Wide>& b)
{
    long double difference = 0, size = 0;
    for (size_t i = 0; i < a.size(); ++i) {
        difference += std::norm(a[i] - b[i]);
        size += std::norm(b[i]);
    }
    return double(std::sqrt(difference / size)) / eps;
}

// Memory of exactly this size (so that AddressSanitizer sees what lies beyond) that starts at a multiple of 64.
struct Memory {
    size_t bytes;
    unsigned char* data;
    explicit Memory(int64_t size) : bytes(size_t(size)), data(new (std::align_val_t(64)) unsigned char[size_t(size)])
    {
        std::memset(data, 0xa5, bytes);
    }
    Memory(const Memory&) = delete;
    ~Memory() { operator delete[](data, std::align_val_t(64)); }
};
struct Plan {
    Memory memory, work;
    Plan(FftKind kind, FftSpectrum spectrum, int order)
        : memory(fftPlanBytes(kind, spectrum, order)), work(fftWorkBytes(kind, order))
    {
        EXPECT_EQ(memory.bytes % 64, 0u);
        EXPECT_EQ(work.bytes % 64, 0u);
        fftInit(memory.data, kind, spectrum, order);
    }
};

struct Hash {
    uint64_t value = 14695981039346656037u;
    void add(const void* data, size_t bytes)
    {
        for (size_t i = 0; i < bytes; ++i)
            value = (value ^ static_cast<const unsigned char*>(data)[i]) * 1099511628211u;
    }
};

template <class T> void expectAccurate(const char* what)
{
    const FftBody& body = *fftBodies().back(); // the others have the same bits
    double worstForward = 0, worstInverse = 0, worstThereAndBack = 0;
    for (int order : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 16, 17, 18}) {
        const size_t n = size_t(1) << order;
        const FftFunctions<T>& fft = Kind<T>::of(body);
        const std::vector<T> x = randomSignal<T>(n, unsigned(order));
        const std::vector<Wide> exact = reference(widened(x));
        Plan plan(Kind<T>::kind, FftSpectrum::ordered, order);
        std::vector<T> spectrum(n), back(n), fromOther(n);
        fft.forward(plan.memory.data, x.data(), spectrum.data(), plan.work.data);
        fft.inverse(plan.memory.data, spectrum.data(), back.data(), plan.work.data);
        fft.inverse(plan.memory.data, x.data(), fromOther.data(), plan.work.data); // x as a spectrum
        const double bound = order ? std::sqrt(double(order)) : 0;
        const double forward = distance(Kind<T>::unpacked(spectrum), exact) / (order ? bound : 1);
        const double inverse =
            distance(widened(fromOther), referenceInverse(Kind<T>::unpacked(x))) / (order ? bound : 1);
        const double thereAndBack = distance(widened(back), widened(x)) / (order ? bound : 1);
        EXPECT_LE(forward, order ? 1 : 0) << what << " " << order;
        EXPECT_LE(inverse, order ? 1 : 0) << what << " " << order;
        EXPECT_LE(thereAndBack, order ? 2 : 0) << what << " " << order;
        worstForward = std::max(worstForward, forward);
        worstInverse = std::max(worstInverse, inverse);
        worstThereAndBack = std::max(worstThereAndBack, thereAndBack);
    }
    std::printf("%s: largest errors in eps sqrt(log2 N): forward %.3f, inverse %.3f, there and back %.3f\n", what,
                worstForward, worstInverse, worstThereAndBack);
}

// Circular convolutions and correlations by unordered spectra, and by ordered ones.
template <class T> void expectProducts(int order, FftSpectrum kind)
{
    const size_t n = size_t(1) << order;
    const FftFunctions<T>& fft = Kind<T>::of(*fftBodies().back());
    Plan plan(Kind<T>::kind, kind, order);
    const void* const p = plan.memory.data;
    const std::vector<T> x = randomSignal<T>(n, 1), h = randomSignal<T>(n, 2);
    std::vector<T> X(n), H(n), product(n), result(n);
    fft.forward(p, x.data(), X.data(), plan.work.data);
    fft.forward(p, h.data(), H.data(), plan.work.data);
    const std::vector<Wide> exactX = reference(widened(x)), exactH = reference(widened(h));
    const double bound = 6 * std::sqrt(order + 1.0) + 1;
    auto exact = [&](bool conjugate) {
        std::vector<Wide> values(n);
        for (size_t k = 0; k < n; ++k) values[k] = exactX[k] * (conjugate ? std::conj(exactH[k]) : exactH[k]);
        return referenceInverse(values);
    };
    fft.multiply(p, X.data(), H.data(), product.data());
    fft.inverse(p, product.data(), result.data(), plan.work.data);
    EXPECT_LE(distance(widened(result), exact(false)), bound) << order;

    std::vector<T> overA = X, overB = H;
    fft.multiply(p, overA.data(), H.data(), overA.data());
    fft.multiply(p, X.data(), overB.data(), overB.data());
    EXPECT_EQ(std::memcmp(overA.data(), product.data(), n * sizeof(T)), 0) << order;
    EXPECT_EQ(std::memcmp(overB.data(), product.data(), n * sizeof(T)), 0) << order;

    std::vector<T> twice = product, added = product;
    double* const parts = reinterpret_cast<double*>(twice.data());
    for (size_t k = 0; k < n * sizeof(T) / sizeof(double); ++k) parts[k] += parts[k];
    fft.multiplyAdd(p, X.data(), H.data(), added.data());
    EXPECT_EQ(std::memcmp(added.data(), twice.data(), n * sizeof(T)), 0) << order;

    fft.multiplyConj(p, X.data(), H.data(), product.data());
    fft.inverse(p, product.data(), result.data(), plan.work.data);
    EXPECT_LE(distance(widened(result), exact(true)), bound) << order;

    if (kind == FftSpectrum::unordered) {
        fft.convolve(p, x.data(), H.data(), result.data(), plan.work.data);
        EXPECT_LE(distance(widened(result), exact(false)), bound) << order;
    }
}

// All results of one body for one order, from and to arrays at any multiple of 8 bytes.
template <class T> std::vector<T> everything(const FftBody& body, int order, size_t doublesAway, bool inPlace)
{
    const size_t n = size_t(1) << order;
    const FftFunctions<T>& fft = Kind<T>::of(body);
    const std::vector<T> x = randomSignal<T>(n, 7), h = randomSignal<T>(n, 8);
    Memory from(int64_t(n * sizeof(T) + 8 * doublesAway)), taps(int64_t(n * sizeof(T) + 8 * doublesAway));
    Memory to(int64_t(n * sizeof(T) + 8 * doublesAway));
    auto at = [&](Memory& m) { return reinterpret_cast<T*>(m.data + 8 * doublesAway); };
    std::vector<T> all;
    auto run = [&](auto call) {
        std::memcpy(at(from), x.data(), n * sizeof(T));
        std::memcpy(at(taps), h.data(), n * sizeof(T));
        T* const d = inPlace ? at(from) : at(to);
        call(at(from), at(taps), d);
        all.insert(all.end(), d, d + n);
        EXPECT_TRUE(inPlace || std::memcmp(at(from), x.data(), n * sizeof(T)) == 0);
        EXPECT_EQ(std::memcmp(at(taps), h.data(), n * sizeof(T)), 0);
    };
    for (FftSpectrum spectrum : {FftSpectrum::ordered, FftSpectrum::unordered}) {
        Plan plan(Kind<T>::kind, spectrum, order);
        const std::vector<unsigned char> before(plan.memory.data, plan.memory.data + plan.memory.bytes);
        const void* const p = plan.memory.data;
        run([&](const T* a, const T*, T* d) { fft.forward(p, a, d, plan.work.data); });
        run([&](const T* a, const T*, T* d) { fft.inverse(p, a, d, plan.work.data); });
        run([&](const T* a, const T* b, T* d) { fft.multiply(p, a, b, d); });
        run([&](const T* a, const T* b, T* d) { fft.multiplyConj(p, a, b, d); });
        if (spectrum == FftSpectrum::unordered)
            run([&](const T* a, const T* b, T* d) { fft.convolve(p, a, b, d, plan.work.data); });
        EXPECT_EQ(std::memcmp(before.data(), plan.memory.data, before.size()), 0) << "the plan has changed";
    }
    return all;
}

template <class T> void expectEqualBits(int order)
{
    const std::vector<T> expected = everything<T>(*fftBodies().front(), order, 0, false);
    for (const FftBody* body : fftBodies())
        for (size_t away : {0, 1, 2, 3})
            for (bool inPlace : {false, true}) {
                const std::vector<T> got = everything<T>(*body, order, away, inPlace);
                ASSERT_EQ(std::memcmp(got.data(), expected.data(), got.size() * sizeof(T)), 0)
                    << body->name << " order " << order << " offset " << away << (inPlace ? " in place" : "");
            }
}

} // namespace

TEST(Fft, ReferenceIsTheDefinition)
{
    for (size_t n : {2, 8, 64}) {
        const std::vector<Wide> x = widened(randomSignal<c64f>(n, 3));
        std::vector<Wide> sums(n);
        for (size_t k = 0; k < n; ++k)
            for (size_t i = 0; i < n; ++i) sums[k] += x[i] * turn(int64_t(k * i % n), int64_t(n));
        EXPECT_LE(distance(reference(x), sums), 1e-2);
        EXPECT_LE(std::abs(std::pow(turn(1, int64_t(n)), static_cast<long double>(n)) - Wide(1)), 1e-17L);
    }
}

TEST(Fft, RealIsAccurate) { expectAccurate<f64>("real"); }
TEST(Fft, ComplexIsAccurate) { expectAccurate<c64f>("complex"); }

TEST(Fft, ProductsAreCircularConvolutionsAndCorrelations)
{
    for (int order = 0; order <= 13; ++order)
        for (FftSpectrum kind : {FftSpectrum::ordered, FftSpectrum::unordered}) {
            expectProducts<f64>(order, kind);
            expectProducts<c64f>(order, kind);
        }
}

TEST(Fft, ConstantsAndImpulsesAreExact)
{
    for (int order = 1; order <= 12; ++order) {
        const size_t n = size_t(1) << order;
        Plan plan(FftKind::real, FftSpectrum::ordered, order);
        std::vector<f64> x(n, 3.0), spectrum(n);
        for (const FftBody* body : fftBodies()) {
            body->real.forward(plan.memory.data, x.data(), spectrum.data(), plan.work.data);
            for (size_t k = 0; k < n; ++k) EXPECT_EQ(spectrum[k], k == 0 ? 3.0 * double(n) : 0.0) << order << " " << k;
            std::vector<f64> impulse(n);
            impulse[0] = 1;
            body->real.forward(plan.memory.data, impulse.data(), spectrum.data(), plan.work.data);
            for (size_t k = 0; k < n; ++k) EXPECT_EQ(spectrum[k], k < 2 || k % 2 == 0 ? 1.0 : 0.0) << order << " " << k;
        }
    }
}

TEST(Fft, AllBodiesHaveTheSameBitsInPlaceAndUnaligned)
{
    ASSERT_STREQ(fftBodies().front()->name, "px");
    for (int order : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 15}) {
        expectEqualBits<f64>(order);
        expectEqualBits<c64f>(order);
    }
}

TEST(Fft, PlansAndResultsHaveTheSameBitsOnEveryPlatform)
{
    Hash plans, results;
    for (int order : {0, 3, 4, 5, 8, 13}) {
        for (FftKind kind : {FftKind::real, FftKind::complex})
            for (FftSpectrum spectrum : {FftSpectrum::ordered, FftSpectrum::unordered}) {
                const Plan plan(kind, spectrum, order);
                plans.add(plan.memory.data, size_t(fftPlanBytes(kind, spectrum, order)));
            }
        const std::vector<f64> real = everything<f64>(*fftBodies().back(), order, 0, false);
        const std::vector<c64f> complex = everything<c64f>(*fftBodies().back(), order, 0, false);
        results.add(real.data(), real.size() * sizeof(f64));
        results.add(complex.data(), complex.size() * sizeof(c64f));
    }
    EXPECT_EQ(plans.value, 8435365287196021516u);
    EXPECT_EQ(results.value, 5502066456560870120u);
}

TEST(Fft, SizesOfTheLargestOrder)
{
    const int64_t points = int64_t(1) << fftMaxOrder;
    EXPECT_EQ(fftWorkBytes(FftKind::real, fftMaxOrder), 8 * (points + points / 8));
    EXPECT_EQ(fftWorkBytes(FftKind::complex, fftMaxOrder - 1), 8 * points);
    for (FftSpectrum spectrum : {FftSpectrum::ordered, FftSpectrum::unordered}) {
        const int64_t real = fftPlanBytes(FftKind::real, spectrum, fftMaxOrder);
        const int64_t complex = fftPlanBytes(FftKind::complex, spectrum, fftMaxOrder - 1);
        EXPECT_GT(real, 6 * points);
        EXPECT_LT(real, 8 * points + 4096);
        EXPECT_GT(complex, 6 * points);
        EXPECT_LT(complex, 8 * points + 4096);
    }
}
