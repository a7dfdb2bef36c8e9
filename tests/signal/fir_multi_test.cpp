#include "signal/fir_filters.h"
#include <gtest/gtest.h>

using namespace fir;
namespace {

template <class T>
class MultiRate : public testing::Test {
protected:
    std::mt19937 g{54321};
};
using Types = testing::Types<Ipp64f, Ipp64fc>;
TYPED_TEST_SUITE(MultiRate, Types);

TYPED_TEST(MultiRate, EqualsTheDefinedOrderToTheBit)
{
    const oracle::Rates rates[] = {{1, 0, 1, 0},  {2, 0, 1, 0},     {1, 0, 2, 0},      {2, 1, 1, 0},  {1, 0, 2, 1},
                                   {3, 0, 2, 0},  {3, 2, 2, 1},     {4, 3, 1, 0},      {1, 0, 4, 3},  {5, 4, 7, 0},
                                   {7, 0, 5, 4},  {6, 2, 6, 3},     {16, 5, 15, 9},    {17, 16, 3, 0}, {19, 0, 40, 39},
                                   {1, 0, 50, 7}, {50, 49, 1, 0},   {21, 3, 20, 11},   {2, 1, 97, 50}, {15, 1, 16, 0}};
    for (const auto& r : rates) {
        for (const int taps : {1, 2, 3, 7, 20, 48, 65}) {
            for (const int n : {1, 2, 3, 4, 5, 9, 16, 33, 70}) {
                const auto h = noise<TypeParam>(this->g, taps), x = noise<TypeParam>(this->g, n * r.down);
                const int length = r.up == 1 && r.down == 1 ? taps - 1 : (taps + r.up - 1) / r.up;
                const auto old = noise<TypeParam>(this->g, length);
                const auto expected = oracle::filter(h, r, old, x), history = tail(old, x);
                for (const auto& v : support::supported()) {
                    support::force(v);
                    Filter<TypeParam> filter(h, r);
                    const auto what = [&] {
                        return std::string(v.code) + " " + std::to_string(r.up) + "/" + std::to_string(r.down) + ", " +
                               std::to_string(taps) + " taps, " + std::to_string(n);
                    };
                    std::vector<TypeParam> y(n * r.up), d(length), inPlace = x, dly = old;
                    inPlace.resize(n * std::max(r.up, r.down));
                    ASSERT_EQ(filter(x.data(), y.data(), n, old.data(), d.data()), 0);
                    ASSERT_EQ(difference(y, expected), -1) << what();
                    ASSERT_EQ(difference(d, history), -1) << what();
                    ASSERT_EQ(filter(inPlace.data(), inPlace.data(), n, dly.data(), dly.data()), 0);
                    inPlace.resize(n * r.up);
                    ASSERT_EQ(difference(inPlace, expected), -1) << what();
                    ASSERT_EQ(difference(dly, history), -1) << what();
                }
            }
        }
    }
}

} // namespace
