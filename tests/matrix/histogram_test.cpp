// Histograms: exact counts whatever the data, the limits of bins, and the pairs in which values are added.
#include "matrix/guarded.h"
#include <cmath>
#include <random>

using matrix_tests::Guarded;
using matrix_tests::inEveryVariant;

namespace {

std::mt19937 engine(7);
unsigned below(size_t n) { return static_cast<unsigned>(engine() % n); }

// Data that provoke conflicts between neighbours: random, equal, alternating, in runs, mostly equal, far apart.
std::vector<Ipp32u> someBins(size_t n, unsigned size, int kind)
{
    std::vector<Ipp32u> bins(n);
    for (size_t k = 0; k < n; ++k) switch (kind) {
        case 0:
            bins[k] = below(size);
            break;
        case 1:
            bins[k] = size - 1;
            break;
        case 2:
            bins[k] = k % 2 ? size / 2 : size - 1;
            break;
        case 3:
            bins[k] = k && below(9) ? bins[k - 1] : below(size);
            break;
        case 4:
            bins[k] = below(3) ? size / 3 : below(size);
            break;
        default:
            bins[k] = static_cast<unsigned>(k / 1000 * 700 + below(3)) % size;
            break;
        }
    return bins;
}
constexpr int kinds = 6;

Ipp32s binOf(double x, double scale, double offset, int nBins)
{
    const double t = (x - offset) * scale;
    Ipp32s b = INT32_MIN;
    if (t > -2147483649.0 && t < 2147483648.0) b = static_cast<Ipp32s>(t);
    return nBins < 1 ? b : b < 0 ? 0 : b < nBins ? b : nBins - 1;
}

// Pairs as the interface tells them: [begin, end), the rest single.
struct Pairs {
    size_t begin, end;
};
Pairs plainPairs(uintptr_t address, size_t n)
{
    if (n < 8 || address % 8) return {0, 0};
    const size_t p = address % 16 ? 1 : 0;
    if (n < p + 8) return {0, 0};
    return {p, p + 8 * ((n - p) / 8)};
}
Pairs indexedPairs(uintptr_t address, size_t n)
{
    if (n < 2) return {0, 0};
    if (n < 34) return {0, n / 2 * 2};
    if (address % 8) return {0, 0};
    const size_t p = address % 16 ? 1 : 0;
    return {p, n - (n - p) % 2};
}
void addUp(const std::vector<Ipp32u>& bins, const std::vector<double>& values, std::vector<double>& sums, Pairs pairs)
{
    for (size_t k = 0; k < bins.size(); ++k) {
        const bool lost = k >= pairs.begin && k < pairs.end && (k - pairs.begin) % 2 == 0 && bins[k] == bins[k + 1];
        if (!lost) sums[bins[k]] += values[k];
    }
}

} // namespace

TEST(Histogram, CountsGivenBinsExactly)
{
    inEveryVariant([] {
        for (size_t n : {0, 1, 2, 7, 100, 1023, 3000, 40000})
            for (unsigned size : {1u, 2u, 100u, 256u, 300u, 5000u})
                for (int kind = 0; kind < kinds; ++kind) {
                    const auto bins = someBins(n, size, kind);
                    std::vector<Ipp32s> expected(size, 3);
                    for (unsigned b : bins) ++expected[b];
                    const Guarded<Ipp32u> source(bins, kind);
                    const Guarded<Ipp32s> counts(std::vector<Ipp32s>(size, 3), kind);
                    HistoCount(source.data(), counts.data(), static_cast<unsigned>(n));
                    ASSERT_EQ(counts.now(), expected) << n << " values, " << size << " bins, kind " << kind;
                }
    });
}

// More equal bins than a 16-bit counter holds.
TEST(Histogram, CountsManyEqualBins)
{
    inEveryVariant([] {
        const unsigned n = 1200000;
        const std::vector<Ipp32u> bins(n, 7);
        std::vector<Ipp32s> counts(8);
        HistoCount(bins.data(), counts.data(), n);
        EXPECT_EQ(counts[7], static_cast<int>(n));
        const std::vector<double> x(n, 7.5);
        HistogramCount(x.data(), 1, 0, counts.data(), 8, n);
        EXPECT_EQ(counts[7], static_cast<int>(2 * n));
    });
}

// Bins that are counted from elsewhere: counters that no bin names need not exist.
TEST(Histogram, TouchesOnlyTheCountersOfItsBins)
{
    inEveryVariant([] {
        for (size_t n : {10, 5000})
            for (int kind = 0; kind < kinds; ++kind) {
                auto bins = someBins(n, 50, kind);
                for (auto& b : bins) b += 30;
                const Guarded<Ipp32s> counts(std::vector<Ipp32s>(50));
                HistoCount(bins.data(), counts.data() - 30, static_cast<unsigned>(n)); // the last bin ends at the page
                Ipp32s* first = counts.firstAccessible();
                std::fill(first, first + 50, 0);
                HistoCount(bins.data(), first - 30, static_cast<unsigned>(n)); // the first begins at the other
                int sum = 0;
                for (int i = 0; i < 50; ++i) sum += first[i];
                EXPECT_EQ(sum, static_cast<int>(n));
            }
    });
}

TEST(Histogram, EqualWidthLimits)
{
    inEveryVariant([] {
        const double inf = INFINITY;
        const struct {
            double x;
            int bin;
        } cases[] = {{0.95, 9}, {1.5, 9},         {-0.05, 0},       {-3, 0},    {NAN, 0},   {0, 0},
                     {-0.0, 0}, {0.1, 1},         {0.999, 9},       {1.0, 9},   {inf, 0},   {-inf, 0},
                     {2e9, 0},  {-2e9, 0},        {2e8, 9},         {-2e8, 0},  {1e308, 0}, {0.29, 2},
                     {0.3, 3},  {214748364.7, 9}, {214748364.8, 0}, {5e-324, 0}};
        for (const auto& c : cases)
            for (unsigned n : {1u, 40u, 3000u}) {
                const std::vector<double> x(n, c.x);
                std::vector<Ipp32s> counts(10), expected(10);
                expected[c.bin] = static_cast<int>(n);
                HistogramCount(x.data(), 10, 0, counts.data(), 10, n);
                EXPECT_EQ(counts, expected) << c.x;
                std::vector<double> last(10, 77);
                HistogramSum(x.data(), 10, 0, last.data(), 10, n);
                EXPECT_FALSE(std::memcmp(&last[c.bin], &c.x, sizeof(double))) << c.x;
            }
    });
}

TEST(Histogram, EqualWidthCountsAndStoresExactly)
{
    inEveryVariant([] {
        for (size_t n : {0, 1, 5, 31, 100, 1500, 9000})
            for (int nBins : {1, 2, 10, 255, 256, 257, 512, 3000, 0, -5})
                for (int kind = 0; kind < kinds; ++kind) {
                    const unsigned size = nBins < 1 ? 40 : static_cast<unsigned>(nBins);
                    const double scale = nBins < 1 || kind % 2 ? 1 : -2.5, offset = nBins < 1 ? 0 : 3.75;
                    std::vector<double> xs;
                    for (unsigned b : someBins(n, size, kind)) {
                        const double wide = nBins >= 1 && below(10) == 0 ? 2.0 * b - size / 2.0 : b;
                        xs.push_back(offset + (wide + below(64) / 64.0) / scale);
                    }
                    std::vector<Ipp32s> expected(size, -1);
                    std::vector<double> expectedLast(size, 77);
                    for (double x : xs) {
                        ++expected[static_cast<size_t>(binOf(x, scale, offset, nBins))];
                        expectedLast[static_cast<size_t>(binOf(x, scale, offset, nBins))] = x;
                    }
                    const Guarded<double> x(xs, kind);
                    const Guarded<Ipp32s> counts(std::vector<Ipp32s>(size, -1));
                    HistogramCount(x.data(), scale, offset, counts.data(), nBins, static_cast<unsigned>(n));
                    ASSERT_EQ(counts.now(), expected) << n << " values, " << nBins << " bins, kind " << kind;
                    const Guarded<double> last(std::vector<double>(size, 77));
                    HistogramSum(x.data(), scale, offset, last.data(), nBins, static_cast<unsigned>(n));
                    ASSERT_EQ(last.now(), expectedLast) << n << " values, " << nBins << " bins, kind " << kind;
                }
    });
}

// Without limits a bin may be any 32-bit number, -2147483648 for what has none.
TEST(Histogram, WithoutLimitsBinsMayBeNegative)
{
    inEveryVariant([] {
        for (unsigned n : {1u, 100u, 3000u}) {
            std::vector<double> x(n, -2.9);
            Ipp32s counts[5] = {};
            HistogramCount(x.data(), 1, 0, counts + 4, 0, n);
            EXPECT_EQ(counts[2], static_cast<int>(n));
            double last[5] = {};
            HistogramSum(x.data(), 1, 0, last + 4, -1, n);
            EXPECT_EQ(last[2], -2.9);
        }
    });
}

TEST(Histogram, SumsByPairsAtEveryAddress)
{
    inEveryVariant([] {
        for (size_t phase = 0; phase < 32; ++phase)
            for (size_t n = 0; n < 80; ++n)
                for (unsigned size : {1u, 2u, 5u}) {
                    const auto bins = someBins(n, size, below(kinds));
                    std::vector<double> values(n), start(size);
                    for (auto& v : values) v = below(1000) / 7.0 - 70;
                    for (auto& s : start) s = below(1000) / 3.0;
                    const Guarded<Ipp32u> b(bins, below(8));
                    const Guarded<double> v(values, phase);
                    const auto address = reinterpret_cast<uintptr_t>(v.data());

                    auto expected = start;
                    addUp(bins, values, expected, plainPairs(address, n));
                    const Guarded<double> sums(start, below(16));
                    HistoSum(b.data(), v.data(), sums.data(), static_cast<unsigned>(n));
                    ASSERT_EQ(sums.now(), expected) << "address modulo 16: " << address % 16 << ", n " << n;

                    expected = start;
                    addUp(bins, values, expected, indexedPairs(address, n));
                    const Guarded<double> sumsIndexed(start, below(16));
                    HistoSum_Idx(b.data() - 3, 3, v.data() + 1, -1, sumsIndexed.data() - 7, 7,
                                 static_cast<unsigned>(n));
                    ASSERT_EQ(sumsIndexed.now(), expected)
                        << "indexed, address modulo 16: " << address % 16 << ", n " << n;
                }
    });
}

TEST(Histogram, SumsLoseTheFirstOfAnEqualPair)
{
    inEveryVariant([] {
        alignas(16) const double ones[34] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1,
                                             1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
        const Ipp32u bins[34] = {};
        const auto plain = [&](unsigned from, unsigned n) {
            double sum = 0;
            HistoSum(bins, ones + from, &sum, n);
            return sum;
        };
        EXPECT_EQ(plain(0, 8), 4);
        EXPECT_EQ(plain(0, 7), 7);
        EXPECT_EQ(plain(1, 8), 8);
        EXPECT_EQ(plain(1, 9), 5);
        EXPECT_EQ(plain(0, 15), 11);
        const auto indexed = [&](int from, unsigned n) {
            double sum = 0;
            HistoSum_Idx(bins, 0, ones, from, &sum, 0, n);
            return sum;
        };
        EXPECT_EQ(indexed(0, 1), 1);
        EXPECT_EQ(indexed(0, 2), 1);
        EXPECT_EQ(indexed(1, 33), 17);
        EXPECT_EQ(indexed(0, 34), 17);
    });
}
