#include "support/heap.h"
#include "support/library.h"
#include <gtest/gtest.h>
#include <vector>

namespace {

using Handle = IppsDCTHandle_64f;

TEST(DctHandles, TransformFromAnyIndexThereAndBack)
{
    // 8 without buffers, 30 direct, 64 and 100 fast, 89 and 206 with something to set up.
    for (int len : {1, 8, 30, 64, 89, 100, 206}) {
        Handle *forward = nullptr, *inverse = nullptr;
        ASSERT_EQ(ippsDCTFwdInitAlloc_64f_Idx(len, 0, &forward), 0);
        ASSERT_EQ(ippsDCTInvInitAlloc_64f_Idx(len, 0, &inverse), 0);
        std::vector<double> x(size_t(len) + 5), y(size_t(len) + 3, 9.0), z(size_t(len) + 1, 9.0);
        for (size_t i = 0; i < x.size(); ++i) x[i] = double(i * i % 17) - 8;
        ASSERT_EQ(ippsDCTFwd_64f_Idx(x.data(), 5, y.data(), 3, forward), 0);
        ASSERT_EQ(ippsDCTInv_64f_Idx(y.data(), 3, z.data() + 3, -2, inverse), 0);
        ASSERT_EQ(ippsDCTFwd_64f_I_Idx(x.data() + 9, -4, inverse), 0); // one handle serves both directions
        for (int i = 0; i < len; ++i) {
            EXPECT_EQ(x[size_t(i) + 5], y[size_t(i) + 3]) << len;
            EXPECT_NEAR(z[size_t(i) + 1], double((i + 5) * (i + 5) % 17) - 8, 1e-12) << len;
        }
        EXPECT_EQ(y[2], 9.0);
        EXPECT_EQ(z[0], 9.0);
        ippsDCTFree_64f_Idx(forward);
        ippsDCTFree_64f_Idx(inverse);
    }
}

TEST(DctHandles, StatusesAndNullHandles)
{
    auto* handle = reinterpret_cast<Handle*>(8);
    double x[8] = {};
    EXPECT_EQ(ippsDCTFwdInitAlloc_64f_Idx(0, 0, nullptr), ippStsNullPtrErr);
    EXPECT_EQ(ippsDCTFwdInitAlloc_64f_Idx(0, 0, &handle), ippStsSizeErr);
    EXPECT_EQ(handle, nullptr);
    EXPECT_EQ(ippsDCTInvInitAlloc_64f_Idx(0x1000001, 0, &handle), ippStsSizeErr); // no size is told for it
    EXPECT_EQ(ippsDCTFwd_64f_Idx(x, 0, x, 0, nullptr), ippStsNullPtrErr);
    ippsDCTFree_64f_Idx(nullptr);
    ASSERT_EQ(ippsDCTFwdInitAlloc_64f_Idx(8, 0, &handle), 0);
    EXPECT_EQ(ippsDCTFwd_64f_Idx(nullptr, 0, x, 0, handle), ippStsNullPtrErr);
    EXPECT_EQ(ippsDCTInv_64f_I_Idx(nullptr, 0, handle), ippStsNullPtrErr);
    ippsDCTFree_64f_Idx(handle);
}

// Each allocation fails once: nothing stays allocated. What is only needed to set up is given back at once.
TEST(DctHandles, NoMemoryLeavesNothingBehind)
{
    if (!support::heapIsCounted) GTEST_SKIP() << "the sanitizer has a heap of its own";
    for (int len : {4, 30, 64, 100, 89, 206})
        for (const auto create : {ippsDCTFwdInitAlloc_64f_Idx, ippsDCTInvInitAlloc_64f_Idx}) {
            Handle* handle = nullptr;
            int status = 0;
            const auto made = support::failingEachAllocation(handle, [&] { return create(len, 0, &handle); });
            ASSERT_EQ(made.status, 0);
            EXPECT_EQ(made.held, len == 4 ? 2 : 3) << len; // handle, specification, buffer
            EXPECT_EQ(made.failures, len == 89 || len == 206 ? 4 : made.held) << len;
            std::vector<double> x(size_t(len), 1.0);
            EXPECT_EQ(support::onCountedHeap([&] { status = ippsDCTFwd_64f_I_Idx(x.data(), 0, handle); }).allocations,
                      0);
            const auto released = support::onCountedHeap([&] { ippsDCTFree_64f_Idx(handle); });
            EXPECT_EQ(released.held, 0);
            EXPECT_EQ(released.strange, 0);
        }
}

} // namespace
