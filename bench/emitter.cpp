#include "emitter.h"
#include <cstdlib>
#include <cstring>
#ifdef _WIN32
#include <windows.h>
#else
#include <sys/mman.h>
#endif

namespace bench {
namespace {

constexpr size_t capacity = 1 << 18;
constexpr bool bits64 = sizeof(void*) == 8;
constexpr int baseRegister[Emitter::maxStreams] = {0, 1, 2, 3, 5, 6}; // eax ecx edx ebx ebp esi; edi counts the steps
enum Opcode {
    load = 0x10,
    store = 0x11,
    streamingStore = 0x2B,
    copy = 0x28,
    squareRoot = 0x51,
    add = 0x58,
    multiply = 0x59,
    divide = 0x5E
};

} // namespace

Emitter::Emitter()
{
#ifdef _WIN32
    memory_ = static_cast<uint8_t*>(VirtualAlloc(nullptr, capacity, MEM_COMMIT | MEM_RESERVE, PAGE_EXECUTE_READWRITE));
    if (!memory_) std::abort();
#else
    void* mapped = mmap(nullptr, capacity, PROT_READ | PROT_WRITE | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED) std::abort();
    memory_ = static_cast<uint8_t*>(mapped);
#endif
    at_ = memory_;
}

Emitter::~Emitter()
{
#ifdef _WIN32
    VirtualFree(memory_, 0, MEM_RELEASE);
#else
    munmap(memory_, capacity);
#endif
}

void Emitter::bytes(std::initializer_list<int> list)
{
    if (at_ + list.size() > memory_ + capacity) std::abort();
    for (int b : list) *at_++ = static_cast<uint8_t>(b);
}

void Emitter::word(uint32_t v)
{
    for (int i = 0; i < 4; ++i) bytes({static_cast<int>(v >> 8 * i & 0xFF)});
}

void Emitter::wide()
{
    if (bits64) bytes({0x48});
}

// Saves registers, loads the array addresses and the number of steps; returns the top of the loop.
uint8_t* Emitter::begin(size_t arrays)
{
    start_ = at_;
    if (bits64)
        bytes({0x53, 0x55, 0x56}); // push rbx, rbp, rsi (the number of steps)
    else
        bytes({0x53, 0x55, 0x56, 0x57, 0x8B, 0x7C, 0x24, 0x14}); // push ebx, ebp, esi, edi; mov edi, [esp + 20]
    for (size_t i = 0; i < arrays; ++i) {
        wide();
        bytes({0x8B, 0x47 | baseRegister[i] << 3, static_cast<int>(i * sizeof(void*))}); // mov base, [edi + i]
    }
    if (bits64)
        bytes({0x5F}); // pop rdi
    else
        bytes({0x8B, 0x7C, 0x24, 0x18}); // mov edi, [esp + 24]
    while (reinterpret_cast<uintptr_t>(at_) % 64) bytes({0x90});
    return at_;
}

void Emitter::loopWhileSteps(const uint8_t* top)
{
    wide();
    bytes({0x83, 0xEF, 0x01, 0x0F, 0x85}); // sub edi, 1; jnz
    word(static_cast<uint32_t>(top - (at_ + 4)));
}

Kernel Emitter::end(const uint8_t* start, bool avx, bool fence)
{
    if (fence) bytes({0x0F, 0xAE, 0xF8}); // sfence
    if (avx) bytes({0xC5, 0xF8, 0x77});   // vzeroupper
    if (bits64)
        bytes({0x5D, 0x5B, 0xC3});
    else
        bytes({0x5F, 0x5E, 0x5D, 0x5B, 0xC3});
    while (reinterpret_cast<uintptr_t>(at_) % 64) bytes({0x90});
    Kernel kernel;
    std::memcpy(&kernel, &start, sizeof kernel);
    return kernel;
}

// Between register and [base + displacement].
void Emitter::transfer(int width, int opcode, int reg, int base, int displacement)
{
    if (width == 32)
        bytes({0xC5, (reg < 8 ? 0x80 : 0) | 0x7C, opcode});
    else if (reg < 8)
        bytes({0x0F, opcode});
    else
        bytes({0x44, 0x0F, opcode});
    bytes({0x80 | (reg & 7) << 3 | base});
    word(static_cast<uint32_t>(displacement));
}

// destination = source1 op source2 on packed doubles; SSE2 has destination == source1. Copies and roots use source2
// only.
void Emitter::operate(int width, int opcode, int destination, int source1, int source2)
{
    const int high = destination >> 3, low = source2 >> 3;
    if (width == 32)
        bytes({0xC4, (high ? 0 : 0x80) | 0x40 | (low ? 0 : 0x20) | 1, (~source1 & 15) << 3 | 4 | 1});
    else if (high || low)
        bytes({0x66, 0x40 | high << 2 | low, 0x0F});
    else
        bytes({0x66, 0x0F});
    bytes({opcode, 0xC0 | (destination & 7) << 3 | (source2 & 7)});
}

Kernel Emitter::streams(int width, const std::vector<Stream>& all, bool streamingStores)
{
    uint8_t* const top = begin(all.size());
    int reg = 0;
    for (size_t s = 0; s < all.size(); ++s)
        for (int k = 0; k < all[s].vectors; ++k) {
            const bool streaming = streamingStores && !all[s].load;
            reg = (reg + 1) % 8;
            if (all[s].load) transfer(width, load, reg, baseRegister[s], k * width);
            if (all[s].store) transfer(width, streaming ? streamingStore : store, reg, baseRegister[s], k * width);
        }
    for (size_t s = 0; s < all.size(); ++s) {
        wide();
        bytes({0x81, 0xC0 | baseRegister[s]}); // add base, bytes of a step
        word(static_cast<uint32_t>(all[s].vectors * width));
    }
    loopWhileSteps(top);
    return end(start_, width == 32, streamingStores);
}

Kernel Emitter::arithmetic(int width, Operation operation, int registers)
{
    begin(1);
    for (int r = 0; r < registers; ++r) transfer(width, load, r, baseRegister[0], r < 2 ? r * 32 : 64);
    uint8_t* const top = at_;
    const int x = 0, y = 1, product = 2, firstSum = 3;
    int sum = firstSum;
    for (int i = 0; i < operationsPerStep; ++i) {
        if (operation == Operation::squareRoot) {
            operate(width, squareRoot, product, width == 32 ? 0 : product, x);
            continue;
        }
        if (width == 16) operate(width, copy, product, 0, x);
        operate(width, operation == Operation::divide ? divide : multiply, product, width == 16 ? product : x, y);
        if (operation == Operation::divide) continue;
        operate(width, add, sum, sum, product);
        sum = sum + 1 < registers ? sum + 1 : firstSum;
    }
    loopWhileSteps(top);
    return end(start_, width == 32, false);
}

// The value in register 0 stays where it is: it is multiplied by less than one, and what is added is small.
Kernel Emitter::chain(int multiplications, int additions)
{
    begin(1);
    for (int r = 0; r < 3; ++r) transfer(16, load, r, baseRegister[0], r * 16);
    uint8_t* const top = at_;
    for (int link = 0; link < linksPerStep; ++link) {
        for (int i = 0; i < multiplications; ++i) operate(16, multiply, 0, 0, 1);
        for (int i = 0; i < additions; ++i) operate(16, add, 0, 0, 2);
    }
    loopWhileSteps(top);
    return end(start_, false, false);
}

Emitter::Function Emitter::nothing(size_t poppedBytes)
{
    uint8_t* const start = at_;
    if (poppedBytes)
        bytes({0xC2, static_cast<int>(poppedBytes & 0xFF), static_cast<int>(poppedBytes >> 8)});
    else
        bytes({0xC3});
    Function function;
    std::memcpy(&function, &start, sizeof function);
    return function;
}

} // namespace bench
