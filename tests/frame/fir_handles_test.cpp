#include "signal/processing/fir/filters.h"
#include "support/heap.h"
#include <gtest/gtest.h>

using namespace fir;
namespace {

template <class T> struct Handles;
template <> struct Handles<Ipp64f> {
    using Handle = IppsFIRHandle_64f;
    static constexpr auto single = ippsFIRSRInitAlloc_64f_Idx;
    static constexpr auto multi = ippsFIRMRInitAlloc_64f_Idx;
    static constexpr auto filter = ippsFIRSR_64f_Idx;
    static constexpr auto filterInPlace = ippsFIRSR_64f_I_Idx;
    static constexpr auto multiFilter = ippsFIRMR_64f_Idx;
    static constexpr auto multiFilterInPlace = ippsFIRMR_64f_I_Idx;
    static constexpr auto one = ippsFIROne_64f_Idx;
};
template <> struct Handles<Ipp64fc> {
    using Handle = IppsFIRHandle_64fc;
    static constexpr auto single = ippsFIRSRInitAlloc_64fc_Idx;
    static constexpr auto multi = ippsFIRMRInitAlloc_64fc_Idx;
    static constexpr auto filter = ippsFIRSR_64fc_Idx;
    static constexpr auto filterInPlace = ippsFIRSR_64fc_I_Idx;
    static constexpr auto multiFilter = ippsFIRMR_64fc_Idx;
    static constexpr auto multiFilterInPlace = ippsFIRMR_64fc_I_Idx;
    static constexpr auto one = ippsFIROne_64fc_Idx;
};

template <class T> class FirHandles : public testing::Test
{
protected:
    using H = Handles<T>;
    std::mt19937 g{99};
    typename H::Handle* handle = reinterpret_cast<typename H::Handle*>(8);
};
using Types = testing::Types<Ipp64f, Ipp64fc>;
TYPED_TEST_SUITE(FirHandles, Types);

TYPED_TEST(FirHandles, SuccessiveCallsContinueOneStream)
{
    using T = TypeParam;
    using H = Handles<T>;
    const auto h = noise<T>(this->g, 30), x = noise<T>(this->g, 200);
    const std::vector<T> taps(h.begin() + 3, h.end());
    const auto expected = oracle::filter(taps, std::vector<T>(26), x);
    for (const auto& v : support::supported()) {
        support::force(v);
        ASSERT_EQ(H::single(h.data(), 3, 27, 1, &this->handle), 0);
        std::vector<T> y = x, z(200);
        int i = 0;
        for (const int n : {1, 9, 90, 3, 97}) {
            ASSERT_EQ(H::filterInPlace(y.data(), i, n, this->handle), 0);
            i += n;
        }
        EXPECT_EQ(difference(y, expected), -1) << v.code;
        ippsFIRSRFree_Idx(this->handle);

        ASSERT_EQ(H::single(h.data() + 5, -2, 27, 1, &this->handle), 0);
        ASSERT_EQ(H::filter(x.data(), 0, z.data(), 0, 120, this->handle), 0);
        ASSERT_EQ(H::filter(x.data() + 130, -10, z.data() + 110, 10, 80, this->handle), 0);
        EXPECT_EQ(difference(z, expected), -1) << v.code;
        ippsFIRSRFree_Idx(this->handle);
    }
}

TYPED_TEST(FirHandles, MultiRateCallsContinueOneStream)
{
    using T = TypeParam;
    using H = Handles<T>;
    // A handle carries as many samples as the filter has taps: all of them where the up-sampling factor is 1.
    for (const oracle::Rates r : {oracle::Rates{3, 2, 2, 1}, {1, 0, 2, 0}, {1, 0, 3, 2}, {2, 1, 1, 0}, {5, 0, 4, 3}})
        for (const int taps : {1, 2, 3, 20}) {
            const int total = 30;
            const auto h = noise<T>(this->g, taps), x = noise<T>(this->g, total * r.down);
            const auto expected = oracle::filter(h, r, std::vector<T>((taps + r.up - 1) / r.up), x);
            ASSERT_EQ(H::multi(h.data() - 4, 4, taps, r.up, r.upPhase, r.down, r.downPhase, &this->handle), 0);
            std::vector<T> y(total * r.up), block(x.begin() + 20 * r.down, x.end());
            block.resize(10 * std::max(r.up, r.down));
            int i = 0;
            for (const int n : {1, 1, 3, 15}) {
                ASSERT_EQ(H::multiFilter(x.data(), i * r.down, y.data(), i * r.up, n, this->handle), 0);
                i += n;
            }
            ASSERT_EQ(H::multiFilterInPlace(block.data() - 1, 1, 10, this->handle), 0);
            std::copy_n(block.begin(), 10 * r.up, y.begin() + 20 * r.up);
            EXPECT_EQ(difference(y, expected), -1) << r.up << '/' << r.down << ", " << taps << " taps";
            ippsFIRMRFree_Idx(this->handle);
        }
}

TYPED_TEST(FirHandles, OneSampleAtATimeAndNullDelayLines)
{
    using T = TypeParam;
    using H = Handles<T>;
    const auto h = noise<T>(this->g, 9), x = noise<T>(this->g, 40);
    const auto expected = oracle::filter(h, std::vector<T>(8), x);
    Filter<T> filter(h, 1);
    filter.work.resize(filter.work.size() + 5);
    std::vector<T> y(40), dly(10);
    for (int i = 0; i < 40; ++i)
        ASSERT_EQ(H::one(x[i], &y[i], filter.spec(), dly.data(), 2, dly.data() + 4, -2, filter.work.data(), 5), 0);
    EXPECT_EQ(difference(y, expected), -1);

    ASSERT_EQ(H::one(x[0], &y[7], filter.spec(), nullptr, 1000, nullptr, -1000, filter.work.data(), 0), 0);
    EXPECT_TRUE(support::sameBits(y[7], expected[0]));
    EXPECT_EQ(H::one(x[0], &y[7], filter.spec(), nullptr, 0, nullptr, 0, nullptr, 3), ippStsNullPtrErr);
    EXPECT_EQ(H::one(x[0], nullptr, filter.spec(), nullptr, 0, nullptr, 0, filter.work.data(), 0), ippStsNullPtrErr);
}

TYPED_TEST(FirHandles, StatusesAndNullHandles)
{
    using T = TypeParam;
    using H = Handles<T>;
    const auto h = noise<T>(this->g, 5);
    T x{};
    auto& handle = this->handle;
    const auto refused = [&](int status) { // nothing is left in the handle
        const bool cleared = handle == nullptr;
        handle = reinterpret_cast<typename H::Handle*>(8);
        return cleared ? status : 0;
    };
    EXPECT_EQ(H::single(nullptr, 0, 0, 9, nullptr), ippStsNullPtrErr);
    EXPECT_EQ(refused(H::single(nullptr, 0, 0, 9, &handle)), ippStsSizeErr);
    EXPECT_EQ(refused(H::single(nullptr, 6, 5, 9, &handle)), ippStsNullPtrErr);
    EXPECT_EQ(refused(H::single(h.data(), 0, 5, 3, &handle)), ippStsAlgTypeErr);
    EXPECT_EQ(refused(H::single(h.data(), 0, 0x7fffffff, 0, &handle)), ippStsSizeErr);
    EXPECT_EQ(H::multi(nullptr, 0, 0, 9, 9, 9, 9, nullptr), ippStsNullPtrErr);
    EXPECT_EQ(refused(H::multi(nullptr, 0, 0, -1, 0, 1, 0, &handle)), ippStsFIRLenErr);
    EXPECT_EQ(refused(H::multi(nullptr, 0, 5, -1, 0, 1, 0, &handle)), ippStsFIRMRFactorErr);
    EXPECT_EQ(refused(H::multi(nullptr, 0, 5, 0, 0, 1, 0, &handle)), ippStsFIRMRPhaseErr);
    EXPECT_EQ(refused(H::multi(nullptr, 0, 5, 2, 2, 1, 0, &handle)), ippStsFIRMRPhaseErr);
    EXPECT_EQ(refused(H::multi(nullptr, 9, 5, 2, 1, 1, 0, &handle)), ippStsNullPtrErr);
    EXPECT_EQ(refused(H::multi(h.data(), 0, 0x7fffffff, 2, 1, 1, 0, &handle)), ippStsFIRLenErr);

    EXPECT_EQ(H::filter(&x, 0, &x, 0, 1, nullptr), ippStsNullPtrErr);
    EXPECT_EQ(H::multiFilterInPlace(&x, 0, 1, nullptr), ippStsNullPtrErr);
    ippsFIRSRFree_Idx(nullptr);
    ippsFIRMRFree_Idx(nullptr);
    ASSERT_EQ(H::single(h.data(), 0, 5, 1, &handle), 0);
    EXPECT_EQ(H::filter(nullptr, 0, &x, 0, 1, handle), ippStsNullPtrErr);
    EXPECT_EQ(H::filterInPlace(&x, 0, 0, handle), ippStsSizeErr);
    EXPECT_EQ(H::multiFilterInPlace(&x, 0, 1, handle), ippStsContextMatchErr);
    ippsFIRSRFree_Idx(handle);
}

// Each allocation that a filter by handle needs fails once: nothing stays allocated. When none fails the handle takes
// some blocks, filtering takes none, and releasing the handle gives all of them back.
TYPED_TEST(FirHandles, NoMemoryLeavesNothingBehind)
{
    if (!support::heapIsCounted) GTEST_SKIP() << "the sanitizer has a heap of its own";
    using T = TypeParam;
    using H = Handles<T>;
    std::vector<T> taps(200), x(64);
    auto& handle = this->handle;
    const std::function<int(int)> constructors[] = {
        [&](int n) { return H::single(taps.data(), 0, n, 1, &handle); },
        [&](int n) { return H::single(taps.data(), 0, n, 2, &handle); },
        [&](int n) { return H::multi(taps.data(), 0, n, 1, 0, 1, 0, &handle); },
        [&](int n) { return H::multi(taps.data(), 0, n, 3, 1, 2, 0, &handle); }};
    for (const auto& construct : constructors)
        for (const int n : {1, 7, 200}) {
            const bool multi = &construct == &constructors[3];
            int status = 0;
            const auto made = support::failingEachAllocation(handle, [&] { return construct(n); });
            ASSERT_EQ(made.status, 0);
            EXPECT_GE(made.failures, 1);
            const auto filtering = support::onCountedHeap([&] {
                status =
                    multi ? H::multiFilterInPlace(x.data(), 0, 20, handle) : H::filterInPlace(x.data(), 0, 64, handle);
            });
            EXPECT_EQ(status, 0);
            EXPECT_EQ(filtering.allocations, 0);
            EXPECT_EQ(filtering.held, made.failures);
            const auto released =
                support::onCountedHeap([&] { multi ? ippsFIRMRFree_Idx(handle) : ippsFIRSRFree_Idx(handle); });
            EXPECT_EQ(released.held, 0);
            EXPECT_EQ(released.strange, 0);
        }
    const auto refused = support::onCountedHeap([&] { H::single(taps.data(), 0, 5, 3, &handle); });
    EXPECT_EQ(refused.held, 0);
}

} // namespace
