#include "signal/processing/fir/filters.h"
#include "signal/processing/fir/memory.h"
#include <cmath>
#include <gtest/gtest.h>

using namespace fir;
namespace {

template <class T> class MultiRate : public testing::Test
{
protected:
    std::mt19937 g{54321};
};
using Types = testing::Types<Ipp64f, Ipp64fc>;
TYPED_TEST_SUITE(MultiRate, Types);

TYPED_TEST(MultiRate, EqualsTheDefinedOrderToTheBit)
{
    const oracle::Rates rates[] = {{1, 0, 1, 0},  {2, 0, 1, 0},   {1, 0, 2, 0},    {2, 1, 1, 0},   {1, 0, 2, 1},
                                   {3, 0, 2, 0},  {3, 2, 2, 1},   {4, 3, 1, 0},    {1, 0, 4, 3},   {5, 4, 7, 0},
                                   {7, 0, 5, 4},  {6, 2, 6, 3},   {16, 5, 15, 9},  {17, 16, 3, 0}, {19, 0, 40, 39},
                                   {1, 0, 50, 7}, {50, 49, 1, 0}, {21, 3, 20, 11}, {2, 1, 97, 50}, {15, 1, 16, 0}};
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

// Windows of neighbouring outputs differ: a sample that is infinite or NaN must not reach an output whose taps miss it.
TYPED_TEST(MultiRate, InfiniteAndNaNSamplesReachTheirOutputsOnly)
{
    using T = TypeParam;
    for (const oracle::Rates r :
         {oracle::Rates{3, 1, 2, 0}, {1, 0, 5, 2}, {4, 0, 1, 0}, {20, 7, 17, 3}, {2, 0, 40, 1}}) {
        const int iterations = 40, taps = 30;
        const auto h = noise<T>(this->g, taps), old = noise<T>(this->g, (taps + r.up - 1) / r.up);
        auto x = noise<T>(this->g, iterations * r.down);
        for (size_t i = 3; i < x.size(); i += 11 + i / 2) {
            reinterpret_cast<double*>(&x[i])[i % 2 ? 0 : sizeof(T) / 8 - 1] = i % 3 ? -HUGE_VAL : std::nan("");
        }
        const auto expected = oracle::filter(h, r, old, x);
        for (const auto& v : support::supported()) {
            support::force(v);
            std::vector<T> y(iterations * r.up);
            Filter<T>(h, r)(x.data(), y.data(), iterations, old.data(), nullptr);
            EXPECT_EQ(difference(y, expected), -1) << v.code << " " << r.up << "/" << r.down;
        }
    }
}

TYPED_TEST(MultiRate, StreamsMayBeCutAnywhere)
{
    using T = TypeParam;
    const auto variants = support::supported();
    for (int partition = 0; partition < 1000; ++partition) {
        oracle::Rates r = {1 + static_cast<int>(this->g() % 20), 0, 1 + static_cast<int>(this->g() % 9), 0};
        r.upPhase = static_cast<int>(this->g() % r.up);
        r.downPhase = static_cast<int>(this->g() % r.down);
        if (r.up == 1 && r.down == 1) continue;
        // Some calls are longer than the blocks of an in-place call.
        const int taps = 1 + static_cast<int>(this->g() % 60), total = partition % 50 ? 90 : 9000,
                  scale = 1 << this->g() % 14;
        const auto h = noise<T>(this->g, taps), x = noise<T>(this->g, total * r.down);
        Filter<T> filter(h, r);
        std::vector<T> whole(total * r.up), y(total * r.up), block, dly(filter.history);
        support::force(support::variants[0]);
        ASSERT_EQ(filter(x.data(), whole.data(), total, nullptr, nullptr), 0);
        support::force(variants[partition % variants.size()]);
        for (int i = 0; i < total;) {
            const int n = std::min<int>(total - i, 1 + this->g() % scale);
            block.assign(x.begin() + i * r.down, x.begin() + (i + n) * r.down);
            block.resize(n * std::max(r.up, r.down));
            if (this->g() % 2) {
                filter(block.data(), block.data(), n, dly.data(), dly.data());
                std::copy_n(block.begin(), n * r.up, y.begin() + i * r.up);
            } else {
                filter(block.data(), y.data() + i * r.up, n, dly.data(), dly.data());
            }
            i += n;
        }
        ASSERT_EQ(difference(y, whole), -1) << r.up << "/" << r.down << ", " << taps << " taps";
    }
}

TYPED_TEST(MultiRate, BothFactorsOneIsTheSingleRateFilter)
{
    using T = TypeParam;
    const auto h = noise<T>(this->g, 140), x = noise<T>(this->g, 700);
    Filter<T> single(h, 0), multi(h, oracle::Rates{1, 0, 1, 0});
    EXPECT_EQ(multi.block.size(), single.block.size());
    EXPECT_EQ(multi.work.size(), single.work.size());
    std::vector<T> y(700), z(700), w(700);
    EXPECT_EQ(single(x.data(), y.data(), 700, nullptr, nullptr), 0);
    EXPECT_EQ(multi(x.data(), z.data(), 700, nullptr, nullptr), 0);
    EXPECT_EQ(Functions<T>::filter(x.data(), w.data(), 700, multi.spec(), nullptr, nullptr, multi.work.data()), 0);
    EXPECT_EQ(difference(y, z), -1);
    EXPECT_EQ(difference(y, w), -1);
}

TYPED_TEST(MultiRate, SpecificationMayBeReadOnlyMovedAndMadeByAnyVariant)
{
    using T = TypeParam;
    for (const oracle::Rates r : {oracle::Rates{3, 0, 2, 0}, {18, 3, 1, 0}, {1, 0, 30, 5}}) {
        const auto h = noise<T>(this->g, 50), x = noise<T>(this->g, 33 * r.down);
        std::vector<T> expected(33 * r.up);
        Filter<T> filter(h, r);
        filter(x.data(), expected.data(), 33, nullptr, nullptr);
        for (const auto& maker : support::supported()) {
            support::force(maker);
            const int size = static_cast<int>(filter.block.size()), offset = static_cast<int>(this->g() % 64);
            Fenced place(size, offset);
            using Spec = typename Functions<T>::Spec;
            ASSERT_EQ(Functions<T>::multiInit(h.data(), 50, r.up, r.upPhase, r.down, r.downPhase,
                                              reinterpret_cast<Spec*>(place.data())),
                      0);
            ASSERT_TRUE(place.intact());
            Pages pages(size + 640);
            unsigned char* moved = pages.data() + 512 + offset;
            std::memcpy(moved, place.data(), size);
            pages.makeReadOnly();
            for (const auto& user : support::supported()) {
                support::force(user);
                Fenced work(static_cast<int>(filter.work.size()), static_cast<int>(this->g() % 64));
                std::vector<T> y(33 * r.up);
                ASSERT_EQ(Functions<T>::multiFilter(x.data(), y.data(), 33, reinterpret_cast<const Spec*>(moved),
                                                    nullptr, nullptr, work.data()),
                          0);
                ASSERT_EQ(difference(y, expected), -1) << maker.code << " " << user.code;
                ASSERT_TRUE(work.intact());
            }
        }
    }
}

// Each call fails for several reasons; the first in the order of checks is told, and nothing is written.
TYPED_TEST(MultiRate, StatusesInTheirOrder)
{
    using T = TypeParam;
    using F = Functions<T>;
    const auto h = noise<T>(this->g, 5), x = noise<T>(this->g, 8);
    for (const auto& v : support::supported()) {
        support::force(v);
        int a = -7, b = -7;
        EXPECT_EQ(ippsFIRMRGetSize(0, -1, 0, 99, nullptr, &b), ippStsFIRLenErr);
        EXPECT_EQ(ippsFIRMRGetSize(5, -1, 0, 99, nullptr, &b), ippStsDataTypeErr);
        EXPECT_EQ(ippsFIRMRGetSize(5, 0, 1, 19, nullptr, &b), ippStsFIRMRFactorErr);
        EXPECT_EQ(ippsFIRMRGetSize(5, 1, -3, 19, nullptr, &b), ippStsFIRMRFactorErr);
        EXPECT_EQ(ippsFIRMRGetSize(0x7fffffff, 2, 3, 19, &a, nullptr), ippStsNullPtrErr);
        EXPECT_EQ(ippsFIRMRGetSize(0x7fffffff, 1, 1, 19, nullptr, &b), ippStsNullPtrErr);
        EXPECT_EQ(ippsFIRMRGetSize(0x7fffffff, 2, 3, 19, &a, &b), ippStsFIRLenErr);
        EXPECT_EQ(ippsFIRMRGetSize(0x7fffffff, 1, 1, 19, &a, &b), ippStsSizeErr);
        EXPECT_EQ(a, -7);
        EXPECT_EQ(b, -7);

        Filter<T> filter(h, oracle::Rates{2, 0, 3, 0});
        const auto block = filter.block;
        EXPECT_EQ(F::multiInit(nullptr, 0, -1, 0, 0, 0, nullptr), ippStsFIRLenErr);
        EXPECT_EQ(F::multiInit(nullptr, 5, -1, 9, 1, 9, nullptr), ippStsFIRMRFactorErr);
        EXPECT_EQ(F::multiInit(nullptr, 5, 1, 9, -1, 9, nullptr), ippStsFIRMRFactorErr);
        EXPECT_EQ(F::multiInit(nullptr, 5, 0, 0, 1, 0, nullptr), ippStsFIRMRPhaseErr);
        EXPECT_EQ(F::multiInit(nullptr, 5, 2, 0, 0, 0, nullptr), ippStsFIRMRPhaseErr);
        EXPECT_EQ(F::multiInit(nullptr, 5, 2, 2, 3, 0, filter.spec()), ippStsFIRMRPhaseErr);
        EXPECT_EQ(F::multiInit(nullptr, 5, 2, -1, 3, 0, filter.spec()), ippStsFIRMRPhaseErr);
        EXPECT_EQ(F::multiInit(nullptr, 5, 2, 0, 3, 3, filter.spec()), ippStsFIRMRPhaseErr);
        EXPECT_EQ(F::multiInit(nullptr, 0x7fffffff, 2, 0, 3, 0, filter.spec()), ippStsNullPtrErr);
        EXPECT_EQ(F::multiInit(h.data(), 5, 2, 0, 3, 0, nullptr), ippStsNullPtrErr);
        EXPECT_EQ(F::multiInit(h.data(), 0x7fffffff, 2, 0, 3, 0, filter.spec()), ippStsFIRLenErr);
        EXPECT_EQ(F::multiInit(h.data(), 0x7fffffff, 1, 0, 1, 0, filter.spec()), ippStsSizeErr);
        EXPECT_EQ(filter.block, block);

        std::vector<T> y(8), d(4);
        const auto* spec = filter.spec();
        Ipp8u* work = filter.work.data();
        EXPECT_EQ(F::multiFilter(x.data(), y.data(), 0, nullptr, nullptr, d.data(), work), ippStsNullPtrErr);
        EXPECT_EQ(F::multiFilter(nullptr, y.data(), 0, spec, nullptr, d.data(), work), ippStsNullPtrErr);
        EXPECT_EQ(F::multiFilter(x.data(), nullptr, 0, spec, nullptr, d.data(), work), ippStsNullPtrErr);
        EXPECT_EQ(F::multiFilter(x.data(), y.data(), 0, spec, nullptr, d.data(), nullptr), ippStsNullPtrErr);
        EXPECT_EQ(F::multiFilter(x.data(), y.data(), 0, spec, nullptr, d.data(), work), ippStsSizeErr);
        Filter<T> single(h, 0);
        EXPECT_EQ(F::multiFilter(x.data(), y.data(), 1, single.spec(), nullptr, d.data(), work), ippStsContextMatchErr);
        EXPECT_EQ(F::filter(x.data(), y.data(), 1, spec, nullptr, d.data(), work), ippStsContextMatchErr);
        EXPECT_EQ(difference(y, std::vector<T>(8)), -1);
        EXPECT_EQ(difference(d, std::vector<T>(4)), -1);
    }
}

TEST(MultiRateBlocks, OfAnotherTypeAreRefused)
{
    std::mt19937 g(1);
    Filter<Ipp64f> real(noise<Ipp64f>(g, 5), oracle::Rates{1, 0, 2, 0});
    Filter<Ipp64fc> complex(noise<Ipp64fc>(g, 5), oracle::Rates{1, 0, 2, 0});
    Ipp64fc x[2] = {}, y[2] = {};
    const auto* realAsComplex = reinterpret_cast<const IppsFIRSpec_64fc*>(real.spec());
    const auto* complexAsReal = reinterpret_cast<const IppsFIRSpec_64f*>(complex.spec());
    EXPECT_EQ(ippsFIRMR_64fc(x, y, 1, realAsComplex, nullptr, nullptr, complex.work.data()), ippStsContextMatchErr);
    EXPECT_EQ(ippsFIRMR_64f(&x->re, &y->re, 1, complexAsReal, nullptr, nullptr, complex.work.data()),
              ippStsContextMatchErr);
}

#ifdef __SIZEOF_INT128__
using Wide = __int128;
Wide align64(Wide v) { return (v + 63) / 64 * 64; }

// The stated sums with tables and block as small as they can be: the taps once, two iterations.
TEST(MultiRateSizes, NeverWrap)
{
    std::mt19937 g(8);
    const int extreme[] = {1, 2, 3, 7, 0x10000, 0x1000000, 0x3fffffff, 0x40000000, 0x7ffffffe, 0x7fffffff};
    const auto any = [&] {
        return g() % 2 ? extreme[g() % std::size(extreme)] : 1 + static_cast<int>((g() & 0x7fffffff) >> (g() % 31));
    };
    for (int i = 0; i < 1000000; ++i) {
        const int taps = any(), up = any(), down = any(), type = g() % 2 ? 19 : 20;
        if (up == 1 && down == 1) continue;
        const Wide e = type == 19 ? 8 : 16, l = (Wide(taps) - 1 + up) / up;
        const Wide spec = 127 + 2 * align64(e * taps),
                   work = (l * 32 + 126) / 128 * 128 + 65599 + align64((l + down) * 16);
        int specSize = -7, workSize = -7;
        const int status = ippsFIRMRGetSize(taps, up, down, type, &specSize, &workSize);
        if (status) {
            ASSERT_EQ(status, ippStsFIRLenErr);
            // Not without need: tables take at most this.
            ASSERT_GT(spec + 64 * (6 * Wide(taps) + 3 * Wide(up)) + work + 16 * 10 * (l + down), 0x7fffffff)
                << taps << " " << up << " " << down;
        } else {
            ASSERT_GE(specSize, spec) << taps << " " << up << " " << down;
            ASSERT_GE(workSize, work) << taps << " " << up << " " << down;
        }
    }
}
#endif

} // namespace
