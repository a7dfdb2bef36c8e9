#include "oracle/median.h"
#include "signal/processing/median/calls.h"
#include "support/heap.h"

using namespace median;
namespace {

template <class T> struct Handles;
template <> struct Handles<Ipp64f> {
    using Handle = IppsFilterMedianHandle_64f;
    static constexpr auto alloc = ippsFilterMedianAlloc_64f_Idx;
    static constexpr auto filter = ippsFilterMedian_64f_Idx;
    static constexpr auto inPlace = ippsFilterMedian_64f_I_Idx;
};
template <> struct Handles<Ipp32s> {
    using Handle = IppsFilterMedianHandle_32s;
    static constexpr auto alloc = ippsFilterMedianAlloc_32s_Idx;
    static constexpr auto filter = ippsFilterMedian_32s_Idx;
    static constexpr auto inPlace = ippsFilterMedian_32s_I_Idx;
};
template <> struct Handles<Ipp16s> {
    using Handle = IppsFilterMedianHandle_16s;
    static constexpr auto alloc = ippsFilterMedianAlloc_16s_Idx;
    static constexpr auto filter = ippsFilterMedian_16s_Idx;
    static constexpr auto inPlace = ippsFilterMedian_16s_I_Idx;
};
template <> struct Handles<Ipp8u> {
    using Handle = IppsFilterMedianHandle_8u;
    static constexpr auto alloc = ippsFilterMedianAlloc_8u_Idx;
    static constexpr auto filter = ippsFilterMedian_8u_Idx;
    static constexpr auto inPlace = ippsFilterMedian_8u_I_Idx;
};

template <class T> class MedianHandles : public testing::Test
{
};
using Types = testing::Types<Ipp64f, Ipp32s, Ipp16s, Ipp8u>;
TYPED_TEST_SUITE(MedianHandles, Types);

} // namespace

TYPED_TEST(MedianHandles, SuccessiveCallsContinueOneStreamFromZeros)
{
    using T = TypeParam;
    using H = Handles<T>;
    std::mt19937 g(3);
    for (const int mask : {1, 2, 3, 6, 31, 80}) {
        const int m = (mask - 1) | 1, status = m == mask ? ippStsNoErr : ippStsEvenMedianMaskSize;
        auto x = data<T>(g, 300, 0);
        x.insert(x.begin(), static_cast<size_t>(m - 1), T{});
        const auto expected = oracle::medians(x, static_cast<size_t>(m));
        support::inEveryVariant([&] {
            typename H::Handle* handle = nullptr;
            ASSERT_EQ(H::alloc(mask, &handle), status);
            std::vector<T> y(x.begin() + m - 1, x.end());
            const T* const from = x.data() + m - 1;
            for (int i = 0, n = 1; i < 300; i += n, n = std::min(2 * n + 1, 300 - i)) {
                if (n % 4 == 1)
                    ASSERT_EQ(H::inPlace(y.data() - 9, i + 9, n, handle), status);
                else
                    ASSERT_EQ(H::filter(from + 7, i - 7, y.data() - 5, i + 5, n, handle), status);
                if (i + n == 300) break;
            }
            ippsFilterMedianFree_Idx(handle);
            for (size_t i = 0; i < y.size(); ++i) ASSERT_EQ(y[i], expected[i]) << mask << " " << i;
        });
    }
}

TYPED_TEST(MedianHandles, StatusesAndNullHandles)
{
    using T = TypeParam;
    using H = Handles<T>;
    T x{};
    auto* handle = reinterpret_cast<typename H::Handle*>(8);
    EXPECT_EQ(H::alloc(0, nullptr), ippStsNullPtrErr);
    EXPECT_EQ(H::alloc(0, &handle), ippStsMaskSizeErr);
    EXPECT_EQ(H::alloc(134217729, &handle), ippStsMaskSizeErr);
    EXPECT_EQ(handle, nullptr);
    EXPECT_EQ(H::filter(&x, 0, &x, 0, 1, nullptr), ippStsNullPtrErr);
    EXPECT_EQ(H::inPlace(&x, 0, 1, nullptr), ippStsNullPtrErr);
    ippsFilterMedianFree_Idx(nullptr);
    ASSERT_EQ(H::alloc(5, &handle), ippStsNoErr);
    EXPECT_EQ(H::filter(nullptr, 0, &x, 0, 1, handle), ippStsNullPtrErr);
    EXPECT_EQ(H::filter(&x, 0, nullptr, 0, 1, handle), ippStsNullPtrErr);
    EXPECT_EQ(H::inPlace(&x, 0, 0, handle), ippStsSizeErr);
    ippsFilterMedianFree_Idx(handle);
}

TYPED_TEST(MedianHandles, NoMemoryLeavesNothingBehind)
{
    if (!support::heapIsCounted) GTEST_SKIP() << "the sanitizer has a heap of its own";
    using T = TypeParam;
    using H = Handles<T>;
    std::vector<T> x(64);
    typename H::Handle* handle;
    int status = 0;
    const auto made = support::failingEachAllocation(handle, [&] { return H::alloc(31, &handle); });
    EXPECT_EQ(made.status, 0);
    EXPECT_EQ(made.failures, 4); // the handle, two delay lines, the buffer
    const auto filtering = support::onCountedHeap([&] { status = H::inPlace(x.data(), 0, 64, handle); });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(filtering.allocations, 0);
    const auto released = support::onCountedHeap([&] { ippsFilterMedianFree_Idx(handle); });
    EXPECT_EQ(released.held, 0);
    EXPECT_EQ(released.strange, 0);
}
