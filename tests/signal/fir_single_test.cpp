#include "signal/fir_filters.h"
#include <gtest/gtest.h>

using namespace fir;
namespace {

template <class T>
class SingleRate : public testing::Test {
protected:
    std::mt19937 g{12345};
};
using Types = testing::Types<Ipp64f, Ipp64fc>;
TYPED_TEST_SUITE(SingleRate, Types);

TYPED_TEST(SingleRate, DirectFormEqualsTheDefinedOrderToTheBit)
{
    for (const int taps : {1, 2, 3, 4, 5, 8, 9, 12, 31, 64, 100}) {
        for (const int n : {1, 2, 3, 4, 5, 7, 8, 9, 13, 17, 29, 30, 36, 37, 41, 63, 64, 71, 72, 73, 100, 307}) {
            const auto h = noise<TypeParam>(this->g, taps), x = noise<TypeParam>(this->g, n);
            const auto old = noise<TypeParam>(this->g, taps - 1);
            const auto expected = oracle::filter(h, old, x), history = tail(old, x);
            for (const auto& v : support::supported()) {
                support::force(v);
                Filter<TypeParam> filter(h, 1);
                std::vector<TypeParam> y(n), d(taps - 1), inPlace = x, dly = old;
                ASSERT_EQ(filter(x.data(), y.data(), n, old.data(), d.data()), 0);
                ASSERT_EQ(difference(y, expected), -1) << v.code << " " << taps << " " << n;
                ASSERT_EQ(difference(d, history), -1) << v.code << " " << taps << " " << n;
                ASSERT_EQ(filter(inPlace.data(), inPlace.data(), n, dly.data(), dly.data()), 0);
                ASSERT_EQ(difference(inPlace, expected), -1) << v.code << " " << taps << " " << n;
                ASSERT_EQ(difference(dly, history), -1) << v.code << " " << taps << " " << n;
            }
        }
    }
}

} // namespace
