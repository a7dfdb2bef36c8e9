// Sorted arrays against std::stable_sort with the order spelled out, in every variant: all short lengths, patterns that
// sorting algorithms are known to stumble over, and all kinds of values.
#include "support/bytes.h"
#include "support/wide.h"
#include <algorithm>
#include <cstring>
#include <limits>
#include <numeric>

using namespace support;

namespace {

uint64_t bitsOf(double x)
{
    uint64_t bits;
    std::memcpy(&bits, &x, sizeof bits);
    return bits;
}

// NaN above all numbers, in the order of their bits; -0 below +0.
bool before(double x, double y)
{
    if (std::isnan(x) || std::isnan(y)) return std::isnan(y) && (!std::isnan(x) || bitsOf(x) < bitsOf(y));
    return x < y || (x == y && std::signbit(x) && !std::signbit(y));
}
template <class T> bool before(T x, T y) { return x < y; }

template <class T> const char* const suffix = "";
template <> const char* const suffix<double> = "_64f_I";
template <> const char* const suffix<Ipp32s> = "_32s_I";
template <> const char* const suffix<Ipp16s> = "_16s_I";
template <> const char* const suffix<Ipp8u> = "_8u_I";

template <class T> bool sameBytes(const std::vector<T>& a, const std::vector<T>& b)
{
    return std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
}

// All four forms on the same elements.
template <class T> void check(const std::vector<T>& x, const std::string& what)
{
    const int n = static_cast<int>(x.size());
    for (const bool ascending : {true, false}) {
        std::vector<Ipp32s> places(x.size());
        std::iota(places.begin(), places.end(), 0);
        std::stable_sort(places.begin(), places.end(), [&](Ipp32s i, Ipp32s j) {
            const T a = x[static_cast<size_t>(i)], b = x[static_cast<size_t>(j)];
            return ascending ? before(a, b) : before(b, a);
        });
        std::vector<T> sorted;
        for (Ipp32s i : places) sorted.push_back(x[static_cast<size_t>(i)]);

        std::vector<T> alone = x, withPlaces = x;
        std::vector<Ipp32s> found(x.size(), -1);
        const std::string order = ascending ? "Ascend" : "Descend";
        EXPECT_EQ(call("ippsSort" + order + suffix<T>, (void*)alone.data(), n), ippStsNoErr);
        EXPECT_EQ(call("ippsSortIndex" + order + suffix<T>, (void*)withPlaces.data(), (void*)found.data(), n),
                  ippStsNoErr);
        ASSERT_TRUE(sameBytes(alone, sorted)) << order << suffix<T> << ' ' << what << ", " << n;
        ASSERT_TRUE(sameBytes(withPlaces, sorted)) << order << suffix<T> << " with places, " << what << ", " << n;
        ASSERT_TRUE(found == places) << order << suffix<T> << " places, " << what << ", " << n;
    }
}

// Any value; of doubles any exponent.
template <class T> T anyValue(std::mt19937_64& random)
{
    const uint64_t bits = random();
    T x;
    std::memcpy(&x, &bits, sizeof x);
    return x;
}
template <class T> std::vector<T> anyValues(size_t n, unsigned seed)
{
    std::mt19937_64 random(seed);
    std::vector<T> x(n);
    for (T& v : x) v = anyValue<T>(random);
    return x;
}
// So many different ones.
template <class T> std::vector<T> levels(size_t n, unsigned count, unsigned seed)
{
    std::mt19937 random(seed);
    const std::vector<T> values = anyValues<T>(count, seed + 1);
    std::vector<T> x(n);
    for (T& v : x) v = values[random() % count];
    return x;
}

template <class T, class F> std::vector<T> made(size_t n, F f)
{
    std::vector<T> x(n);
    for (size_t i = 0; i < n; ++i) x[i] = static_cast<T>(f(i));
    return x;
}

template <class T> void checkPatterns(size_t n)
{
    check(made<T>(n, [](size_t i) { return i; }), "rising");
    check(made<T>(n, [=](size_t i) { return n - i; }), "falling");
    check(made<T>(n, [](size_t) { return 7; }), "equal");
    check(made<T>(n, [=](size_t i) { return i < n / 2 ? i : n - i; }), "organ pipe");
    check(made<T>(n, [=](size_t i) { return i < n / 2 ? n - i : i; }), "valley");
    check(made<T>(n, [](size_t i) { return i % 2; }), "in turn");
    check(made<T>(n, [](size_t i) { return i * i % 101; }), "101 values");
    check(made<T>(n, [=](size_t i) { return i % 2 ? i : n - i; }), "two runs in turn");
    check(made<T>(n, [=](size_t i) { return i + 1 == n ? 0 : i + 1; }), "rising, the last one lowest");
    check(made<T>(n, [=](size_t i) { return i == 0 ? n : i - 1; }), "rising, the first one highest");
    check(made<T>(n, [=](size_t i) { return (n - i) / 3; }), "falling in steps");
    // Pivots from fixed places of these divide badly (Musser).
    check(made<T>(n,
                  [=](size_t i) {
                      const size_t half = n / 2;
                      return i < half ? (i % 2 ? half + i : i + 1) : 2 * (i - half + 1);
                  }),
          "against a median of three");
}

// Each value many times smaller than the one before: the middle of the range is never the middle of the elements.
template <class T> void checkScales(size_t n)
{
    std::mt19937_64 random(5);
    std::vector<T> x(n);
    for (T& v : x) v = static_cast<T>(anyValue<T>(random) / static_cast<T>(1ull << random() % (8 * sizeof(T) - 1)));
    check(x, "of all scales");
}

} // namespace

TEST(Sorting, EveryShortLength)
{
    inEveryVariant([] {
        for (size_t n = 1; n <= 300; ++n) {
            const unsigned seed = static_cast<unsigned>(n);
            check(anyValues<double>(n, seed), "any");
            check(anyValues<Ipp32s>(n, seed), "any");
            check(anyValues<Ipp16s>(n, seed), "any");
            check(anyValues<Ipp8u>(n, seed), "any");
            const unsigned count = 1 + seed % 7;
            check(levels<double>(n, count, seed), "few values");
            check(levels<Ipp32s>(n, count, seed), "few values");
            check(levels<Ipp16s>(n, count, seed), "few values");
            check(levels<Ipp8u>(n, count, seed), "few values");
        }
    });
}

TEST(Sorting, LongArrays)
{
    inEveryVariant([] {
        for (size_t n : {511, 700, 1024, 1337, 4095, 4100, 10000, 70001}) {
            const unsigned seed = static_cast<unsigned>(n);
            check(anyValues<double>(n, seed), "any");
            check(anyValues<Ipp32s>(n, seed), "any");
            check(anyValues<Ipp16s>(n, seed), "any");
            check(anyValues<Ipp8u>(n, seed), "any");
            for (unsigned count : {2u, 3u, 10u, 1000u}) {
                check(levels<double>(n, count, seed), "few values");
                check(levels<Ipp32s>(n, count, seed), "few values");
                check(levels<Ipp16s>(n, count, seed), "few values");
            }
            checkScales<double>(n);
            checkScales<Ipp32s>(n);
            checkScales<Ipp16s>(n);
        }
    });
}

TEST(Sorting, Patterns)
{
    inEveryVariant([] {
        for (size_t n : {10, 40, 100, 257, 600, 2000, 5000, 66000}) {
            checkPatterns<double>(n);
            checkPatterns<Ipp32s>(n);
            checkPatterns<Ipp16s>(n);
            checkPatterns<Ipp8u>(n);
        }
    });
}

TEST(Sorting, ZerosInfinitiesAndNaN)
{
    const uint64_t values[] = {0x0000000000000000, 0x8000000000000000, 0x0000000000000001, 0x8000000000000001,
                               0x000FFFFFFFFFFFFF, 0x800FFFFFFFFFFFFF, 0x0010000000000000, 0x8010000000000000,
                               0x7FEFFFFFFFFFFFFF, 0xFFEFFFFFFFFFFFFF, 0x7FF0000000000000, 0xFFF0000000000000,
                               0x7FF0000000000001, 0xFFF0000000000001, 0x7FF8000000000000, 0xFFF8000000000000,
                               0x7FF7FFFFFFFFFFFF, 0xFFF7FFFFFFFFFFFF, 0x7FFFFFFFFFFFFFFF, 0xFFFFFFFFFFFFFFFF};
    inEveryVariant([&] {
        std::mt19937 random(3);
        for (size_t n : {20, 70, 300, 1000, 5000})
            for (unsigned rare : {1u, 10u, 200u}) {
                std::vector<double> x = anyValues<double>(n, rare);
                for (double& v : x)
                    if (random() % rare == 0) std::memcpy(&v, &values[random() % std::size(values)], sizeof v);
                check(x, "special values");
            }
    });
}

// More elements than fit a word of 32 bits beside a key of 16.
TEST(Sorting, PlacesOfManyShortElements)
{
    const size_t n = (1 << 24) + 12345;
    std::mt19937 random(8);
    std::vector<Ipp16s> x(n);
    for (Ipp16s& v : x) v = static_cast<Ipp16s>(random());
    std::vector<size_t> next(65537);
    for (Ipp16s v : x) ++next[static_cast<size_t>(v + 32769)];
    std::partial_sum(next.begin(), next.end(), next.begin());
    std::vector<Ipp32s> right(n), places(n);
    for (size_t i = 0; i < n; ++i) right[next[static_cast<size_t>(x[i] + 32768)]++] = static_cast<Ipp32s>(i);
    force(supported().back());
    std::vector<Ipp16s> sorted = x;
    EXPECT_EQ(call("ippsSortIndexAscend_16s_I", (void*)sorted.data(), (void*)places.data(), static_cast<int>(n)),
              ippStsNoErr);
    EXPECT_TRUE(places == right);
    EXPECT_TRUE(std::is_sorted(sorted.begin(), sorted.end()));
}
