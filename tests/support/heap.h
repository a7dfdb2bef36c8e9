// The heap as the library uses it: what its calls allocate and release is counted, and an allocation can be made to
// fail.
#pragma once
#include <functional>

namespace support {

struct HeapUse {
    int allocations; // that the call asked for
    int held;        // blocks that counted calls, this one and those before, have not released
    int strange;     // releases in the call of what no counted call had
};

// Runs a call of the library; its failing-th allocation finds no memory (0: all find some). Other threads must not
// allocate meanwhile, nor the call anything but what the library does.
HeapUse onCountedHeap(const std::function<void()>& call, int failing = 0);

// A sanitizer has a heap of its own, and looks for leaks itself.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool heapIsCounted = false;
#else
constexpr bool heapIsCounted = true;
#endif

} // namespace support
