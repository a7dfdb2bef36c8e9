// Comparisons: masks, positions and counts against the rules told one by one.
#include "matrix/guarded.h"
#include <cmath>
#include <random>

using matrix_tests::Guarded;
using matrix_tests::inEveryVariant;

namespace {

std::mt19937 engine(5);
unsigned below(size_t n) { return static_cast<unsigned>(engine() % n); }

constexpr double inf = INFINITY, notANumber = NAN;

// +1, -1: the infinities, by their bits.
int infinity(double x)
{
    uint64_t bits;
    std::memcpy(&bits, &x, sizeof bits);
    return bits == 0x7FF0000000000000 ? 1 : bits == 0xFFF0000000000000 ? -1 : 0;
}

int maskOf(unsigned code, double x, double y)
{
    if (std::isnan(y) && code == 4) return std::isnan(x);
    if (std::isnan(y) && code == 5) return !std::isnan(x);
    if (infinity(y) && code == 4) return infinity(x);
    if (infinity(y) && code == 5) return !infinity(x);
    switch (code) {
    case 0:
        return x < y;
    case 1:
        return x <= y;
    case 2:
        return x > y;
    case 3:
        return x >= y;
    case 4:
        return x == y;
    default:
        return !(x == y);
    }
}

// The functions of one element type.
template <class T> struct Functions {
    using Element = T;
    void (*maskC)(unsigned, const T*, int, T, Ipp32s*, int, unsigned);
    void (*mask)(unsigned, const T*, int, const T*, int, Ipp32s*, int, unsigned);
    void (*indexesC)(unsigned, const T*, int, T, Ipp32u*, int, unsigned, unsigned*);
    void (*indexes)(unsigned, const T*, int, const T*, int, Ipp32u*, int, unsigned, unsigned*);
};

template <class Test> void forEveryType(Test test)
{
    test(Functions<Ipp8u>{FindMaskC_8u_Idx, FindMask_8u_Idx, FindIndexesC_8u_Idx, FindIndexes_8u_Idx});
    test(Functions<Ipp16s>{FindMaskC_16s_Idx, FindMask_16s_Idx, FindIndexesC_16s_Idx, FindIndexes_16s_Idx});
    test(Functions<Ipp32s>{FindMaskC_32s_Idx, FindMask_32s_Idx, FindIndexesC_32s_Idx, FindIndexes_32s_Idx});
    test(Functions<Ipp64f>{FindMaskC_64f_Idx, FindMask_64f_Idx, FindIndexesC_64f_Idx, FindIndexes_64f_Idx});
}

template <class T> T someValue()
{
    if constexpr (std::is_floating_point_v<T>) {
        static const double kinds[] = {
            notANumber, -notANumber, inf, -inf, 0.0, -0.0, 1, -1, 5e-324, 1.7976931348623157e308, 2, -2};
        return kinds[below(12)];
    } else {
        static const long long kinds[] = {0, 1, 127, 128, 200, 255, -1, -128, 32767, -32768, 2147483647, -2147483648LL};
        return static_cast<T>(kinds[below(12)]);
    }
}
template <class T> std::vector<T> someValues(size_t n, bool onlyTwo)
{
    std::vector<T> x(n);
    const T a = someValue<T>(), b = someValue<T>();
    for (auto& e : x) e = onlyTwo ? (below(16) ? a : b) : someValue<T>();
    return x;
}

} // namespace

TEST(Find, FollowsTheRules)
{
    inEveryVariant([] {
        forEveryType([](auto f) {
            using T = typename decltype(f)::Element;
            for (int round = 0; round < 600; ++round) {
                const unsigned n = round < 200 ? round : below(600), code = below(6);
                const auto xs = someValues<T>(n, round % 2), ys = someValues<T>(n, round % 2);
                const Guarded<T> x(xs), y(ys);
                const T value = someValue<T>();
                std::vector<Ipp32s> maskC, mask;
                std::vector<Ipp32u> listC, list;
                for (unsigned k = 0; k < n; ++k) {
                    maskC.push_back(maskOf(code, xs[k], value));
                    mask.push_back(maskOf(code, xs[k], ys[k]));
                    if (maskC[k]) listC.push_back(k);
                    if (mask[k]) list.push_back(k);
                }
                const Guarded<Ipp32s> m(std::vector<Ipp32s>(n, 77));
                f.maskC(code, x.data(), 0, value, m.data(), 0, n);
                EXPECT_EQ(m.now(), maskC) << "code " << code << " value " << +value << " n " << n;
                f.mask(code, x.data() + 5, -5, y.data(), 0, m.data() - 2, 2, n);
                EXPECT_EQ(m.now(), mask) << "code " << code << " n " << n;

                unsigned count = 77;
                const Guarded<Ipp32u> foundC(std::vector<Ipp32u>(listC.size(), 77));
                f.indexesC(code, x.data() - 10, 10, value, foundC.data() + 1, -1, n, &count);
                EXPECT_EQ(count, listC.size());
                EXPECT_EQ(foundC.now(), listC) << "code " << code << " value " << +value << " n " << n;
                const Guarded<Ipp32u> found(std::vector<Ipp32u>(list.size(), 77));
                f.indexes(code, x.data(), 0, y.data() + 3, -3, found.data(), 0, n, &count);
                EXPECT_EQ(count, list.size());
                EXPECT_EQ(found.now(), list) << "code " << code << " n " << n;
                if (::testing::Test::HasFailure()) return;
            }
        });
    });
}

TEST(Find, UnknownCodesFindNothingAndLeaveTheMask)
{
    inEveryVariant([] {
        forEveryType([](auto f) {
            using T = typename decltype(f)::Element;
            const std::vector<T> x(70);
            for (unsigned code : {6u, 7u, 0x80000000u, 0xFFFFFFFFu}) {
                std::vector<Ipp32s> mask(70, 77);
                f.maskC(code, x.data(), 0, 0, mask.data(), 0, 70);
                f.mask(code, x.data(), 0, x.data(), 0, mask.data(), 0, 70);
                EXPECT_EQ(mask, std::vector<Ipp32s>(70, 77)) << code;
                std::vector<Ipp32u> list(70, 77);
                unsigned count = 77, countC = 77;
                f.indexes(code, x.data(), 0, x.data(), 0, list.data(), 0, 70, &count);
                f.indexesC(code, x.data(), 0, 0, list.data(), 0, 70, &countC);
                EXPECT_EQ(count + countC, 0u);
                EXPECT_EQ(list, std::vector<Ipp32u>(70, 77)) << code;
            }
        });
    });
}

TEST(Find, InfinitiesByKindAndSign)
{
    inEveryVariant([] {
        const double x[] = {inf, 1, -inf, notANumber, -1, -inf};
        Ipp32s mask[6];
        FindMaskC_64f_Idx(4, x, 0, -inf, mask, 0, 6);
        EXPECT_EQ(std::vector<Ipp32s>(mask, mask + 6), (std::vector<Ipp32s>{1, 0, -1, 0, 0, -1}));
        double kept[6];
        EXPECT_EQ(PackByMask(6, x, kept, mask), 1u); // a pack keeps +infinity only
        EXPECT_EQ(kept[0], inf);
        Ipp32u list[6];
        unsigned count;
        FindIndexesC_64f_Idx(4, x, 0, inf, list, 0, 6, &count);
        EXPECT_EQ(std::vector<Ipp32u>(list, list + count), (std::vector<Ipp32u>{0, 2, 5}));
        FindMaskC_64f_Idx(5, x, 0, inf, mask, 0, 6);
        EXPECT_EQ(std::vector<Ipp32s>(mask, mask + 6), (std::vector<Ipp32s>{0, 1, 0, 1, 1, 0}));

        const double y[] = {notANumber, 1, notANumber, notANumber, inf, inf};
        FindMask_64f_Idx(4, x, 0, y, 0, mask, 0, 6);
        EXPECT_EQ(std::vector<Ipp32s>(mask, mask + 6), (std::vector<Ipp32s>{0, 1, 0, 1, 0, -1}));
    });
}

TEST(Find, CountsWhatIsGreater)
{
    inEveryVariant([] {
        unsigned count = 77;
        CountGT(nullptr, 0, &count, 0);
        EXPECT_EQ(count, 0u);
        for (unsigned n = 0; n < 300; ++n) {
            const auto xs = someValues<double>(n, false);
            const Guarded<double> x(xs, n % 16);
            for (double value : {0.0, -inf, inf, notANumber, 1.0}) {
                unsigned expected = 0;
                for (double e : xs) expected += e > value;
                CountGT_Idx(x.data() + 2, -2, value, &count, n);
                EXPECT_EQ(count, expected) << value;
            }
        }
    });
}
