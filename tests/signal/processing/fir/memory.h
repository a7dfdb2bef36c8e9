// Memory for the filter tests: pages that can be made read-only, and blocks with a fence behind them.
#pragma once
#include <cstdlib>
#include <cstring>
#include <vector>
#ifdef _WIN32
#include <windows.h>
#else
#include <sys/mman.h>
#endif

namespace fir {

class Pages
{
public:
    explicit Pages(size_t bytes) : bytes_((bytes + 4095) / 4096 * 4096)
    {
#ifdef _WIN32
        data_ = VirtualAlloc(nullptr, bytes_, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
#else
        data_ = mmap(nullptr, bytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
#endif
    }
    ~Pages()
    {
#ifdef _WIN32
        VirtualFree(data_, 0, MEM_RELEASE);
#else
        munmap(data_, bytes_);
#endif
    }
    Pages(const Pages&) = delete;
    Pages& operator=(const Pages&) = delete;
    void makeReadOnly()
    {
#ifdef _WIN32
        DWORD before;
        VirtualProtect(data_, bytes_, PAGE_READONLY, &before);
#else
        mprotect(data_, bytes_, PROT_READ);
#endif
    }
    unsigned char* data() { return static_cast<unsigned char*>(data_); }

private:
    size_t bytes_;
    void* data_;
};

// A block at any offset from a multiple of 64, with known bytes on both sides.
class Fenced
{
public:
    Fenced(int bytes, int offset) : bytes_(bytes), memory_(bytes + 256, fence)
    {
        start_ = memory_.data() + 64;
        start_ += (64 - reinterpret_cast<size_t>(start_) % 64) % 64 + offset;
    }
    unsigned char* data() { return start_; }
    bool intact() const
    {
        for (const unsigned char& c : memory_)
            if ((&c < start_ || &c >= start_ + bytes_) && c != fence) return false;
        return true;
    }

private:
    static constexpr unsigned char fence = 0xC3;
    int bytes_;
    std::vector<unsigned char> memory_;
    unsigned char* start_;
};

} // namespace fir
