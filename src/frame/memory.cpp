#include "frame/memory.h"
#include "frame/types.h"
#include <limits.h>
#include <stdlib.h>

namespace sig5d {
namespace {

constexpr int alignment = 64;

// Every block lies between the address that the heap gave, stored just below it, and the end of what the heap gave: 68
// bytes are added on 32-bit systems, 72 on 64-bit ones.
constexpr int overhead = alignment + static_cast<int>(sizeof(void*));

// The same on all systems, so that the same lengths are refused.
constexpr int largest = INT_MAX - 68;

} // namespace

void* allocateAligned(int n)
{
    if (n < 1 || n > largest) return nullptr;
    void* given = malloc(static_cast<size_t>(n) + overhead);
    if (!given) return nullptr;
    const uintptr_t block = (reinterpret_cast<uintptr_t>(given) + overhead - 1) & ~uintptr_t(alignment - 1);
    reinterpret_cast<void**>(block)[-1] = given;
    return reinterpret_cast<void*>(block);
}

void freeAligned(void* block)
{
    if (block) free(static_cast<void**>(block)[-1]);
}

namespace {

template <class T> T* allocate(int len)
{
    if (len < 1) return nullptr;
    const i64 bytes = i64(len) * static_cast<int>(sizeof(T));
    return bytes > INT_MAX ? nullptr : static_cast<T*>(allocateAligned(static_cast<int>(bytes)));
}

} // namespace

#include "entries/frame/memory.inc"
} // namespace sig5d
