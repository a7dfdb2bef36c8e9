// Extremes against a walk over the elements: which of equal ones, which zero, what becomes of NaN; orders of magnitude.
#include "signal/processing/statistics/arrays.h"

using namespace statistics;

namespace {

template <class T> struct Extreme {
    T value{};
    int index = -1;
};
template <class T> struct Extremes {
    Extreme<T> min, max;
};
template <class T> Extremes<T> walked(const std::vector<T>& x)
{
    Extremes<T> e{{x[0], 0}, {x[0], 0}};
    for (size_t i = 1; i < x.size(); ++i) {
        if (x[i] < e.min.value) e.min = {x[i], static_cast<int>(i)};
        if (x[i] > e.max.value) e.max = {x[i], static_cast<int>(i)};
    }
    return e;
}

template <class T> bool same(const Extreme<T>& x, const Extreme<T>& y)
{
    if (x.index != y.index) return false;
    if constexpr (std::is_same_v<T, double>)
        return support::same(x.value, y.value);
    else
        return x.value == y.value;
}
template <class T> std::ostream& operator<<(std::ostream& out, const Extreme<T>& e)
{
    return out << e.value << " at " << e.index;
}

template <class T>
void expect(const std::string& name, const std::string& type, const std::vector<T>& x, Extreme<T> right)
{
    const void* const p = x.data();
    const int n = static_cast<int>(x.size());
    Extreme<T> found, unasked{{}, right.index}, alone{{}, right.index};
    EXPECT_EQ(call(name + "Indx" + type, p, n, (void*)&found.value, (void*)&found.index), ippStsNoErr);
    EXPECT_EQ(call(name + "Indx" + type, p, n, (void*)&unasked.value, static_cast<void*>(nullptr)), ippStsNoErr);
    EXPECT_EQ(call(name + type, p, n, (void*)&alone.value), ippStsNoErr);
    EXPECT_TRUE(same(found, right)) << name << type << ", " << n << ": " << found << ", not " << right;
    EXPECT_TRUE(same(unasked, right)) << name << type << ", " << n << ": " << unasked << ", not " << right;
    EXPECT_TRUE(same(alone, right)) << name << type << ", " << n << ": " << alone << ", not " << right;
}
template <class T> void check(const std::string& type, const std::vector<T>& x)
{
    const auto right = walked(x);
    expect("ippsMin", type, x, right.min);
    expect("ippsMax", type, x, right.max);
    Extremes<T> found, alone = right;
    const void* const p = x.data();
    const int n = static_cast<int>(x.size());
    EXPECT_EQ(call("ippsMinMaxIndx" + type, p, n, (void*)&found.min.value, (void*)&found.min.index,
                   (void*)&found.max.value, (void*)&found.max.index),
              ippStsNoErr);
    EXPECT_EQ(call("ippsMinMax" + type, p, n, (void*)&alone.min.value, (void*)&alone.max.value), ippStsNoErr);
    EXPECT_TRUE(same(found.min, right.min) && same(found.max, right.max)) << type << n << found.min << found.max;
    EXPECT_TRUE(same(alone.min, right.min) && same(alone.max, right.max)) << type << n << alone.min << alone.max;
}

void checkMagnitudes(const std::vector<Ipp32s>& x)
{
    std::vector<long long> sizes;
    for (long long v : x) sizes.push_back(v < 0 ? -v : v);
    const auto right = walked(sizes);
    const auto stored = [](Extreme<long long> e) {
        return Extreme<Ipp32s>{static_cast<Ipp32s>(std::min(e.value, 2147483647ll)), e.index};
    };
    expect("ippsMinAbs", "_32s", x, stored(right.min));
    expect("ippsMaxAbs", "_32s", x, stored(right.max));
    int order = 0;
    while (right.max.value >> order) ++order;
    EXPECT_EQ(valueOf<int>("ippsMaxOrder_32s", x), order);
}

// Few different values, so that extremes come several times.
template <class T> std::vector<T> levels(size_t n, unsigned count, unsigned seed)
{
    std::mt19937 random(seed);
    std::vector<T> x(n);
    for (T& v : x) v = static_cast<T>(static_cast<int>(random() % count) - static_cast<int>(count / 2));
    return x;
}

const std::vector<size_t> manyLengths = [] {
    std::vector<size_t> all = lengths;
    for (size_t n : {2048, 2050, 4095, 4096, 4100, 8193, 20000}) all.push_back(n);
    return all;
}();

} // namespace

TEST(Extremes, OfEveryLength)
{
    inEveryVariant([] {
        for (size_t n : manyLengths)
            for (unsigned count : {1u, 2u, 5u, 60000u}) {
                const unsigned seed = static_cast<unsigned>(n) + count;
                check("_64f", levels<double>(n, count, seed));
                check("_32s", levels<Ipp32s>(n, count, seed));
                check("_16s", levels<Ipp16s>(n, count, seed));
                checkMagnitudes(levels<Ipp32s>(n, count, seed));
            }
    });
}

TEST(Extremes, InEveryPlace)
{
    inEveryVariant([] {
        for (size_t n : {19u, 70u, 2500u, 4500u})
            for (size_t i = 0; i < n; i += n < 100 ? 1 : 97) {
                std::vector<double> x(n, -1);
                std::vector<Ipp32s> y(n, -1);
                std::vector<Ipp16s> z(n, -1);
                x[i] = 1e300;
                y[i] = 2147483647;
                z[i] = 32767;
                x[n - 1 - i] = -infinity;
                y[n - 1 - i] = -2147483647 - 1;
                z[n - 1 - i] = -32768;
                check("_64f", x);
                check("_32s", y);
                check("_16s", z);
                checkMagnitudes(y);
            }
    });
}

TEST(Extremes, ZerosAndNaN)
{
    inEveryVariant([] {
        std::mt19937 random(4);
        const double values[] = {0.0, -0.0, quietNaN, 1, -1, infinity, -infinity};
        for (size_t n : manyLengths)
            for (size_t kinds : {2u, 3u, 4u, 5u, 7u})
                for (int from = 0; from < 3; ++from) {
                    std::vector<double> x(n);
                    for (double& v : x) v = values[random() % kinds];
                    // Only above, or below, zero; a NaN first.
                    if (from == 1)
                        for (double& v : x) v = std::signbit(v) && v != 0 ? 3 : v;
                    if (from == 2 && n % 3 == 0) x[0] = quietNaN;
                    check("_64f", x);
                }
    });
}

TEST(MaxOrder, OfDoubles)
{
    const struct {
        std::vector<double> x;
        int order;
        IppStatus status;
    } cases[] = {
        {{0.75}, 0, ippStsNoErr},
        {{1.0}, 1, ippStsNoErr},
        {{-8.0, 0.5}, 4, ippStsNoErr},
        {{0.0, -0.0}, 0, ippStsNoErr},
        {{1.7976931348623157e308}, 1024, ippStsNoErr},
        {{0x1p-1022}, -1021, ippStsNoErr},
        {{0x1p-1023, 0}, -1022, ippStsNanArg},
        {{-0x1p-1074}, -1022, ippStsNanArg},
        {{3, infinity, 5}, 3, ippStsNanArg},
        {{quietNaN, -5, -infinity}, 3, ippStsNanArg},
        {{quietNaN, quietNaN}, 0, ippStsNanArg},
        {{infinity}, 0, ippStsNanArg},
        {{infinity, 0x1p-1050}, -1022, ippStsNanArg},
    };
    inEveryVariant([&] {
        for (const auto& c : cases)
            for (size_t zeros : {0u, 1u, 3u, 17u, 64u, 100u}) {
                std::vector<double> x = c.x;
                x.insert(x.begin() + static_cast<long>(zeros % (c.x.size() + 1)), zeros, 0.0);
                int order = -9;
                EXPECT_EQ(call("ippsMaxOrder_64f", (const void*)x.data(), static_cast<int>(x.size()), (void*)&order),
                          c.status);
                EXPECT_EQ(order, c.order) << c.x[0] << ' ' << zeros;
            }
    });
}
