#include "support/arena.h"
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#ifdef _WIN32
#include <windows.h>
#else
#include <csignal>
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace support {
namespace {

constexpr size_t granule = 65536; // what mappings are aligned to on Windows

[[noreturn]] void fail(const char* text)
{
    std::fprintf(stderr, "guarded memory: %s\n", text);
    std::abort();
}

const char* (*describe)() = nullptr;

#ifdef _WIN32
// The middle of a file mapping, its first and last granule made inaccessible.
uint8_t* view(HANDLE mapping, size_t bytes, bool writable)
{
    auto* base = static_cast<uint8_t*>(MapViewOfFile(mapping, FILE_MAP_WRITE, 0, 0, bytes + 2 * granule));
    DWORD old;
    if (!base || !VirtualProtect(base, granule, PAGE_NOACCESS, &old) ||
        !VirtualProtect(base + granule + bytes, granule, PAGE_NOACCESS, &old))
        fail("no mapping");
    if (!writable && !VirtualProtect(base + granule, bytes, PAGE_READONLY, &old)) fail("not read-only");
    return base + granule;
}

void unmap(uint8_t* middle, size_t)
{
    if (!UnmapViewOfFile(middle - granule)) fail("not unmapped");
}

LONG CALLBACK handler(EXCEPTION_POINTERS* info)
{
    const EXCEPTION_RECORD* r = info->ExceptionRecord;
    const bool floating =
        (r->ExceptionCode >= EXCEPTION_FLT_DENORMAL_OPERAND && r->ExceptionCode <= EXCEPTION_FLT_UNDERFLOW) ||
        r->ExceptionCode == STATUS_FLOAT_MULTIPLE_TRAPS || r->ExceptionCode == STATUS_FLOAT_MULTIPLE_FAULTS;
    if (r->ExceptionCode != EXCEPTION_ACCESS_VIOLATION && r->ExceptionCode != EXCEPTION_ILLEGAL_INSTRUCTION &&
        !floating)
        return EXCEPTION_CONTINUE_SEARCH;
    std::fprintf(stderr, "FAULT %lx (%s) at %p, address %p, in %s\n", r->ExceptionCode,
                 r->ExceptionInformation[0] ? "write" : "read", r->ExceptionAddress,
                 reinterpret_cast<void*>(r->ExceptionInformation[1]), describe ? describe() : "?");
    std::fflush(stderr);
    TerminateProcess(GetCurrentProcess(), 3);
    return EXCEPTION_CONTINUE_SEARCH;
}
#else
uint8_t* view(int file, size_t bytes, bool writable)
{
    void* base = mmap(nullptr, bytes + 2 * granule, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (base == MAP_FAILED) fail("no address space");
    auto* middle = static_cast<uint8_t*>(base) + granule;
    const int access = writable ? PROT_READ | PROT_WRITE : PROT_READ;
    if (mmap(middle, bytes, access, MAP_SHARED | MAP_FIXED, file, 0) == MAP_FAILED) fail("no mapping");
    return middle;
}

void unmap(uint8_t* middle, size_t bytes)
{
    if (munmap(middle - granule, bytes + 2 * granule)) fail("not unmapped");
}

void handler(int signal, siginfo_t* info, void*)
{
    std::fprintf(stderr, "FAULT: signal %d at address %p, in %s\n", signal, info->si_addr, describe ? describe() : "?");
    std::fflush(stderr);
    std::_Exit(3);
}
#endif

} // namespace

GuardedRegion::GuardedRegion(size_t bytes) : size_((bytes + granule - 1) / granule * granule)
{
#ifdef _WIN32
    const DWORD whole = static_cast<DWORD>(size_ + 2 * granule);
    const HANDLE file = CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, whole, nullptr);
    if (!file) fail("no file mapping");
#else
    const int file = memfd_create("guarded", 0);
    if (file < 0 || ftruncate(file, static_cast<off_t>(size_))) fail("no file");
#endif
    own_ = view(file, size_, true);
    readWrite_ = view(file, size_, true);
    readOnly_ = view(file, size_, false);
#ifdef _WIN32
    CloseHandle(file);
#else
    close(file);
#endif
}

GuardedRegion::~GuardedRegion()
{
    for (uint8_t* view : {own_, readWrite_, readOnly_}) unmap(view, size_);
}

void GuardedRegion::lock(bool locked) const
{
#ifdef _WIN32
    DWORD old;
    if (!VirtualProtect(readWrite_, size_, locked ? PAGE_READONLY : PAGE_READWRITE, &old)) fail("not locked");
#else
    if (mprotect(readWrite_, size_, locked ? PROT_READ : PROT_READ | PROT_WRITE)) fail("not locked");
#endif
}

void onFault(const char* (*what)())
{
    describe = what;
#ifdef _WIN32
    AddVectoredExceptionHandler(1, handler);
#else
    struct sigaction action = {};
    action.sa_sigaction = handler;
    action.sa_flags = SA_SIGINFO;
    for (int s : {SIGSEGV, SIGBUS, SIGILL, SIGFPE}) sigaction(s, &action, nullptr);
#endif
}

} // namespace support
