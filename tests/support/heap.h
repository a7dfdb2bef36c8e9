// The heap as the library uses it: what its calls allocate and release is counted, and an allocation can be made to
// fail.
#pragma once
#include "sig5d.h"
#include <functional>
#include <gtest/gtest.h>

namespace support {

struct HeapUse {
    int allocations; // that the call asked for
    int held;        // blocks that counted calls, this one and those before, have not released
    int strange;     // releases in the call of what no counted call had
};

// Runs a call of the library; its failing-th allocation finds no memory (0: all find some). Other threads must not
// allocate meanwhile, nor the call anything but what the library does.
HeapUse onCountedHeap(const std::function<void()>& call, int failing = 0);

// Each allocation of "create", which stores a handle and returns a status, fails once: then nothing stays allocated and
// the handle is null. At last none fails.
struct Creation {
    int status, failures;
    int held; // blocks that the handle has now
};
template <class H> Creation failingEachAllocation(H*& handle, const std::function<int()>& create)
{
    for (int failures = 0;; ++failures) {
        handle = reinterpret_cast<H*>(8);
        int status = 0;
        const HeapUse use = onCountedHeap([&] { status = create(); }, failures + 1);
        EXPECT_EQ(use.strange, 0) << failures;
        if (status != ippStsNoMemErr) return {status, failures, use.held};
        EXPECT_EQ(handle, nullptr) << failures;
        EXPECT_EQ(use.held, 0) << failures;
    }
}

// A sanitizer has a heap of its own, and looks for leaks itself.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool heapIsCounted = false;
#else
constexpr bool heapIsCounted = true;
#endif

} // namespace support
