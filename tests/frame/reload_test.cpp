// Loading and unloading for as long as a host likes: the library starts anew each time and leaves nothing behind.
#include "sig5d.h"
#include <cstring>
#include <gtest/gtest.h>
#include <string>
#ifdef _WIN32
#include <windows.h>
// after windows.h
#include <psapi.h>
#else
#include <dlfcn.h>
#include <fstream>
#include <malloc.h>
#endif

namespace {

#ifdef _WIN32
constexpr int rounds = 1000;
using Library = HMODULE;
Library load() { return LoadLibraryA(SIG5D_LIBRARY); }
bool unload(Library library) { return FreeLibrary(library); }
bool loaded() { return GetModuleHandleA(SIG5D_LIBRARY); }
template <class F> F* find(Library library, const char* name)
{
    return reinterpret_cast<F*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}
size_t handles()
{
    DWORD count = 0;
    GetProcessHandleCount(GetCurrentProcess(), &count);
    return count;
}
size_t memory()
{
    PROCESS_MEMORY_COUNTERS counters = {};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage;
}
#else
constexpr int rounds = 10000;
using Library = void*;
Library load() { return dlopen(SIG5D_LIBRARY, RTLD_NOW | RTLD_LOCAL); }
bool unload(Library library) { return dlclose(library) == 0; }
bool loaded() { return dlopen(SIG5D_LIBRARY, RTLD_NOW | RTLD_NOLOAD); }
template <class F> F* find(Library library, const char* name) { return reinterpret_cast<F*>(dlsym(library, name)); }
size_t handles() // mappings
{
    std::ifstream maps("/proc/self/maps");
    size_t lines = 0;
    for (std::string line; std::getline(maps, line);) ++lines;
    return lines;
}
size_t memory() { return mallinfo2().uordblks; }
#endif

// A short life of the library.
void use(Library library)
{
    const auto enabled = find<decltype(ippGetEnabledCpuFeatures)>(library, "ippGetEnabledCpuFeatures");
    const auto allocate = find<decltype(ippsMalloc_64f)>(library, "ippsMalloc_64f");
    const auto release = find<decltype(ippsFree)>(library, "ippsFree");
    ASSERT_TRUE(enabled && allocate && release);
    ASSERT_EQ(enabled(), 3u) << "nothing is left of the life before";
    double* block = allocate(100);
    ASSERT_TRUE(block);
    ASSERT_EQ(enabled() & 7, 7u);
    release(block);
}

} // namespace

TEST(Reload, LeavesNothingBehind)
{
    size_t memoryBefore = 0, handlesBefore = 0;
    for (int i = 0; i < rounds; ++i) {
        if (i == 10) { // what loaders and tests keep for good is there by now
            memoryBefore = memory();
            handlesBefore = handles();
        }
        const Library library = load();
        ASSERT_TRUE(library);
        use(library);
        ASSERT_TRUE(unload(library));
        ASSERT_FALSE(loaded());
        if (HasFatalFailure()) return;
    }
    EXPECT_LE(memory(), memoryBefore + 64 * 1024);
    EXPECT_LE(handles(), handlesBefore + 2);
}
