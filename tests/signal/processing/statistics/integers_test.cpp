// Sums, means and dot products of integers: exact, and rounded once.
#include "signal/processing/statistics/arrays.h"

using namespace statistics;

namespace {

// The nearest integer, ties to the even one, within the limits. All that is asked of it is exact in 113 bits, or so far
// from a tie that they tell.
Ipp32s rounded(Wide x)
{
    if (x > 3e9) return 2147483647;
    if (x < -3e9) return -2147483647 - 1;
    long long floor = static_cast<long long>(x);
    if (Wide(floor) > x) --floor;
    const Wide rest = x - Wide(floor);
    floor += rest > 0.5 || (rest == 0.5 && floor % 2 != 0);
    return static_cast<Ipp32s>(std::clamp(floor, -2147483648ll, 2147483647ll));
}
Wide power(int e)
{
    Wide p = 1;
    for (; e > 0; --e) p *= 2;
    for (; e < 0; ++e) p /= 2;
    return p;
}

const int scaleFactors[] = {-2147483647 - 1,
                            -70,
                            -33,
                            -32,
                            -31,
                            -30,
                            -5,
                            -1,
                            0,
                            1,
                            2,
                            7,
                            15,
                            29,
                            30,
                            31,
                            32,
                            33,
                            34,
                            40,
                            61,
                            62,
                            63,
                            64,
                            93,
                            94,
                            100,
                            2147483647};
int bounded(int s) { return std::clamp(s, -200, 200); }

template <class T> Ipp32s scaledOf(const char* name, const std::vector<T>& x, int s)
{
    Ipp32s r = 7;
    EXPECT_EQ(call(name, (const void*)x.data(), static_cast<int>(x.size()), (void*)&r, s), ippStsNoErr);
    return r;
}
template <class T> Wide exactSum(const std::vector<T>& x)
{
    Wide sum = 0;
    for (T v : x) sum += v;
    return sum;
}

void checkSums(const std::vector<Ipp32s>& x)
{
    const Wide total = exactSum(x);
    for (int s : scaleFactors) {
        const Wide scaled = total * power(-bounded(s));
        EXPECT_EQ(scaledOf("ippsSum_32s_Sfs", x, s), rounded(scaled)) << x.size() << ", scale factor " << s;
        EXPECT_EQ(scaledOf("ippsMean_32s_Sfs", x, s), rounded(scaled / static_cast<Wide>(x.size())))
            << x.size() << ", scale factor " << s;
    }
}
void checkSums(const std::vector<Ipp16s>& x)
{
    const Wide total = exactSum(x);
    for (int s : scaleFactors)
        EXPECT_EQ(scaledOf("ippsSum_16s32s_Sfs", x, s), rounded(total * power(-bounded(s)))) << x.size() << ' ' << s;
}
void checkDot(const std::vector<Ipp32s>& x, const std::vector<Ipp32s>& y)
{
    Wide total = 0;
    for (size_t i = 0; i < x.size(); ++i) total += Wide(x[i]) * y[i];
    for (int s : scaleFactors) {
        Ipp32s r = 7;
        EXPECT_EQ(call("ippsDotProd_32s_Sfs", (const void*)x.data(), (const void*)y.data(), static_cast<int>(x.size()),
                       (void*)&r, s),
                  ippStsNoErr);
        EXPECT_EQ(r, rounded(total * power(-bounded(s)))) << x.size() << ", scale factor " << s;
    }
}

// Of any size, of few bits, or all alike.
template <class T> std::vector<std::vector<T>> arrays(size_t n, unsigned seed)
{
    std::mt19937_64 random(seed);
    using L = std::numeric_limits<T>;
    std::vector<std::vector<T>> all(6, std::vector<T>(n));
    for (size_t i = 0; i < n; ++i) {
        all[0][i] = static_cast<T>(random());
        all[1][i] = static_cast<T>(random() % 7 - 3);
        all[2][i] = static_cast<T>(static_cast<T>(random()) >> random() % (8 * sizeof(T)));
        all[3][i] = L::min();
        all[4][i] = L::max();
        all[5][i] = i % 2 ? L::min() : L::max();
    }
    return all;
}

} // namespace

TEST(IntegerSums, AreExact)
{
    inEveryVariant([] {
        for (size_t n : lengths) {
            const auto x = arrays<Ipp32s>(n, static_cast<unsigned>(n));
            for (size_t k = 0; k < x.size(); ++k) {
                checkSums(x[k]);
                checkDot(x[k], x[(k + n) % x.size()]);
            }
            for (const auto& y : arrays<Ipp16s>(n, static_cast<unsigned>(n))) checkSums(y);
        }
    });
}

// More than the lanes of vectors could hold.
TEST(IntegerSums, OfLongArrays)
{
    inEveryVariant([] {
        for (size_t n : {70000u, 300001u, 2000003u})
            for (Ipp32s v : {-2147483647 - 1, 2147483647, -1}) {
                const std::vector<Ipp32s> x(n, v);
                checkSums(x);
                checkDot(x, x);
                checkDot(x, std::vector<Ipp32s>(n, -2147483647 - 1));
            }
        checkSums(std::vector<Ipp16s>(3000001, -32768));
        checkSums(std::vector<Ipp16s>(3000001, 32767));
    });
}

TEST(IntegerSums, MeansThatAreTies)
{
    inEveryVariant([] {
        for (Ipp32s k : {-5, -4, -3, -2, -1, 0, 1, 2, 3, 1000000, 2147483646}) {
            checkSums(std::vector<Ipp32s>{k, k + 1});
            checkSums(std::vector<Ipp32s>{k, k, k + 1, k + 1});
            checkSums(std::vector<Ipp32s>{k, k, k, k + 1});
            checkSums(std::vector<Ipp32s>{k, k + 1, k + 1});
        }
    });
}

TEST(CountInRange, BothBoundsIncluded)
{
    inEveryVariant([] {
        const Ipp32s least = -2147483647 - 1, most = 2147483647;
        for (size_t n : lengths)
            for (const auto& x : arrays<Ipp32s>(n, static_cast<unsigned>(n)))
                for (const auto& [lower, upper] : {std::pair<Ipp32s, Ipp32s>{-1, 1},
                                                   {0, 0},
                                                   {1, 0},
                                                   {most, least},
                                                   {least, most},
                                                   {least, least},
                                                   {most, most},
                                                   {x[0], most},
                                                   {least, x[n / 2]},
                                                   {-1000000000, 2000000000}}) {
                    int found = -1, right = 0;
                    for (Ipp32s v : x) right += lower <= v && v <= upper;
                    EXPECT_EQ(call("ippsCountInRange_32s", (const void*)x.data(), static_cast<int>(n), (void*)&found,
                                   lower, upper),
                              ippStsNoErr);
                    EXPECT_EQ(found, right) << n << ": " << lower << " to " << upper;
                }
    });
}
