// Sampling rates and the Haar wavelet, element by element.
#include "support/noise.h"
#include "support/wide.h"

using namespace support;

namespace {

template <class T> struct Calls;
template <> struct Calls<Ipp64f> {
    static constexpr auto up = ippsSampleUp_64f, down = ippsSampleDown_64f;
};
template <> struct Calls<Ipp64fc> {
    static constexpr auto up = ippsSampleUp_64fc, down = ippsSampleDown_64fc;
};

template <class T> class Rates : public testing::Test
{
protected:
    std::mt19937 g{17};
};
using Types = testing::Types<Ipp64f, Ipp64fc>;
TYPED_TEST_SUITE(Rates, Types);

template <class T> bool equal(const std::vector<T>& a, const std::vector<T>& b)
{
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (!same(a[i], b[i])) return false;
    return true;
}

} // namespace

TYPED_TEST(Rates, EverySampleHasItsPlace)
{
    using T = TypeParam;
    for (const int factor : {1, 2, 3, 4, 5, 7, 8, 9, 16, 33})
        for (int phase = 0; phase < factor; phase += 1 + factor / 6)
            for (const int n : {1, 2, 3, 4, 5, 8, 9, 17, 64, 203}) {
                const auto x = noise<T>(this->g, static_cast<size_t>(n));
                std::vector<T> more(static_cast<size_t>(n * factor)), fewer;
                for (size_t i = 0; i < x.size(); ++i)
                    more[i * static_cast<size_t>(factor) + static_cast<size_t>(phase)] = x[i];
                int at = phase;
                for (; at < n; at += factor) fewer.push_back(x[static_cast<size_t>(at)]);
                inEveryVariant([&] {
                    std::vector<T> y(more.size(), x[0]), z(fewer.size());
                    int length = -1, p = phase;
                    ASSERT_EQ(Calls<T>::up(x.data(), n, y.data(), &length, factor, &p), ippStsNoErr);
                    ASSERT_TRUE(equal(y, more)) << factor << " " << phase << " " << n;
                    ASSERT_EQ(length, n * factor);
                    ASSERT_EQ(p, phase);
                    T nothing;
                    ASSERT_EQ(Calls<T>::down(x.data(), n, z.empty() ? &nothing : z.data(), &length, factor, &p),
                              ippStsNoErr);
                    ASSERT_TRUE(equal(z, fewer)) << factor << " " << phase << " " << n;
                    ASSERT_EQ(length, static_cast<int>(fewer.size()));
                    ASSERT_EQ(p, at - n);
                });
            }
}

TYPED_TEST(Rates, StreamsMayBeCutAnywhere)
{
    using T = TypeParam;
    const auto x = noise<T>(this->g, 500);
    for (const int factor : {1, 2, 3, 4, 7, 20, 600})
        for (int partition = 0; partition < 40; ++partition) {
            const int start = static_cast<int>(this->g() % static_cast<unsigned>(factor));
            int length = 0, phase = start;
            std::vector<T> whole(501), cut(501);
            Calls<T>::down(x.data(), 500, whole.data(), &length, factor, &phase);
            int inParts = start, done = 0;
            for (int i = 0; i < 500;) {
                const int n = std::min<int>(500 - i, 1 + static_cast<int>(this->g() % (1u << this->g() % 8)));
                int some = 0;
                Calls<T>::down(x.data() + i, n, cut.data() + done, &some, factor, &inParts);
                i += n;
                done += some;
            }
            ASSERT_EQ(done, length);
            ASSERT_EQ(inParts, phase);
            ASSERT_TRUE(equal(cut, whole)) << factor;
        }
}

TYPED_TEST(Rates, LengthsThatAreNoIntAreRefused)
{
    using T = TypeParam;
    const auto x = noise<T>(this->g, 2);
    inEveryVariant([&] {
        T y = x[0];
        int length = 7, phase = 1;
        EXPECT_EQ(Calls<T>::up(x.data(), 2, &y, &length, 0x40000000, &phase), ippStsSizeErr);
        EXPECT_EQ(Calls<T>::up(x.data(), 0x7FFFFFFF, &y, &length, 0x7FFFFFFF, &phase), ippStsSizeErr);
        EXPECT_TRUE(same(y, x[0]) && length == 7 && phase == 1);
        // A phase far behind the block, and the longest way to the next sample.
        phase = 0x7FFFFFFE;
        EXPECT_EQ(Calls<T>::down(x.data(), 2, &y, &length, 0x7FFFFFFF, &phase), ippStsNoErr);
        EXPECT_TRUE(length == 0 && phase == 0x7FFFFFFC);
        phase = 0;
        EXPECT_EQ(Calls<T>::down(x.data(), 2, &y, &length, 0x7FFFFFFF, &phase), ippStsNoErr);
        EXPECT_TRUE(length == 1 && phase == 0x7FFFFFFD);
    });
}

TEST(Haar, IsTheFormulaAndBack)
{
    for (size_t n = 1; n <= 150; ++n) {
        const auto x = numbers(n, static_cast<unsigned>(n));
        std::vector<double> low, high, back(n);
        for (size_t k = 0; k < n / 2; ++k) {
            high.push_back(product(difference(x[2 * k + 1], x[2 * k]), 0.5));
            low.push_back(sum(x[2 * k], high[k]));
            back[2 * k] = difference(low[k], high[k]);
            back[2 * k + 1] = sum(low[k], high[k]);
        }
        if (n % 2) low.push_back(back[n - 1] = x[n - 1]);
        inEveryVariant([&] {
            std::vector<double> l(low.size()), h(high.size() + 1, 3.0), y(n);
            ASSERT_EQ(ippsWTHaarFwd_64f(x.data(), static_cast<int>(n), l.data(), h.data()), ippStsNoErr);
            ASSERT_EQ(h.back(), 3.0);
            h.pop_back();
            ASSERT_TRUE(equal(l, low) && equal(h, high)) << n;
            ASSERT_EQ(ippsWTHaarInv_64f(l.data(), n > 1 ? h.data() : l.data(), y.data(), static_cast<int>(n)),
                      ippStsNoErr);
            ASSERT_TRUE(equal(y, back)) << n;
        });
    }
}
