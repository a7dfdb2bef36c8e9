#include "sig5d.h"
#include "support/heap.h"
#include <climits>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

namespace {

// Every allocator behind one signature, with its element size.
struct Allocator {
    const char* name;
    void* (*allocate)(int len);
    long long size;
};
const Allocator allocators[] = {
    {"32s", [](int len) -> void* { return ippsMalloc_32s(len); }, 4},
    {"64f", [](int len) -> void* { return ippsMalloc_64f(len); }, 8},
    {"32sc", [](int len) -> void* { return ippsMalloc_32sc(len); }, 8},
    {"64fc", [](int len) -> void* { return ippsMalloc_64fc(len); }, 16},
    {"32s_Idx", [](int len) -> void* { return ippsMalloc_32s_Idx(len); }, 4},
    {"64f_Idx", [](int len) -> void* { return ippsMalloc_64f_Idx(len); }, 8},
    {"32sc_Idx", [](int len) -> void* { return ippsMalloc_32sc_Idx(len); }, 8},
    {"64fc_Idx", [](int len) -> void* { return ippsMalloc_64fc_Idx(len); }, 16},
};

bool aligned(const void* p) { return reinterpret_cast<uintptr_t>(p) % 64 == 0; }

} // namespace

TEST(Memory, BlocksAreAlignedWholeAndApart)
{
    for (const Allocator& a : allocators) {
        std::vector<unsigned char*> blocks;
        for (int len = 1; len <= 300; ++len) {
            auto* p = static_cast<unsigned char*>(a.allocate(len));
            ASSERT_TRUE(p && aligned(p)) << a.name << " " << len;
            std::memset(p, len & 0xFF, static_cast<size_t>(len * a.size));
            blocks.push_back(p);
        }
        for (int len = 1; len <= 300; ++len) {
            const unsigned char* p = blocks[static_cast<size_t>(len - 1)];
            for (long long i = 0; i < len * a.size; ++i) ASSERT_EQ(p[i], len & 0xFF) << a.name << " " << len;
            void* given;
            std::memcpy(&given, p - sizeof given, sizeof given); // what malloc gave stands below
            const long long gap = p - static_cast<unsigned char*>(given);
            EXPECT_TRUE(gap >= static_cast<long long>(sizeof given) && gap < 64 + static_cast<long long>(sizeof given));
        }
        for (size_t i = 0; i < blocks.size(); ++i) i % 2 ? ippsFree(blocks[i]) : ippsFree_Idx(blocks[i]);
    }
    ippsFree(nullptr);
    ippsFree_Idx(nullptr);
}

TEST(Memory, RefusesWhatIsNoLength)
{
    for (const Allocator& a : allocators) {
        for (int len : {0, -1, -268435456, INT_MIN}) EXPECT_EQ(a.allocate(len), nullptr) << a.name;
        // The first refused lengths: of more than 2147483579 bytes, of more than 2^31, of 2^32, and where 32 bits wrap.
        for (long long bytes : {2147483580LL, 2147483648LL, 4294967296LL, 4294967296LL + 64, 8589934592LL}) {
            const long long len = (bytes + a.size - 1) / a.size;
            if (len > INT_MAX) continue;
            EXPECT_EQ(a.allocate(static_cast<int>(len)), nullptr) << a.name << " " << len;
        }
        EXPECT_EQ(a.allocate(INT_MAX), nullptr) << a.name;
    }
}

// The longest arrays that are asked for: the heap may have them or not.
TEST(Memory, TheLargestBlockIsThereOrNot)
{
    for (const Allocator& a : allocators) {
        const long long len = 2147483579 / a.size;
        auto* p = static_cast<unsigned char*>(a.allocate(static_cast<int>(len)));
        if (!p) continue;
        EXPECT_TRUE(aligned(p));
        p[0] = 1;
        p[len * a.size - 1] = 2;
        ippsFree(p);
    }
}

TEST(Memory, BlocksAreOneAllocationEachAndGivenBack)
{
    if (!support::heapIsCounted) GTEST_SKIP() << "the sanitizer has a heap of its own";
    for (const Allocator& a : allocators)
        for (int len : {1, 3, 1000}) {
            void* block = nullptr;
            auto use = support::onCountedHeap([&] { block = a.allocate(len); });
            EXPECT_TRUE(block && use.allocations == 1 && use.held == 1) << a.name << " " << len;
            use = support::onCountedHeap([&] { len % 2 ? ippsFree(block) : ippsFree_Idx(block); });
            EXPECT_TRUE(use.allocations == 0 && use.held == 0 && use.strange == 0) << a.name << " " << len;
            use = support::onCountedHeap([&] { block = a.allocate(len); }, 1);
            EXPECT_TRUE(!block && use.allocations == 1 && use.held == 0) << a.name << " " << len;
            use = support::onCountedHeap([&] { block = a.allocate(-len); });
            EXPECT_TRUE(!block && use.allocations == 0) << a.name << " " << len;
        }
}
