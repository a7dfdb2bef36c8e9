// Machine code for the limit kernels: exactly the loads, stores and operations asked for, for any combination of
// streams, and nothing that a compiler could move, merge or leave out.
#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

namespace bench {

// Runs over up to six arrays; the arithmetic kernels read constants from the first.
using Kernel = void (*)(void* const* arrays, size_t steps);

struct Stream {
    int vectors; // of the kernel's width, that one step moves on
    bool load, store;
};
enum class Operation { multiplyAdd, divide, squareRoot }; // of doubles

class Emitter
{
public:
    static constexpr size_t maxStreams = 6;

    Emitter();
    ~Emitter();
    Emitter(const Emitter&) = delete;
    Emitter& operator=(const Emitter&) = delete;

    // width: 16 (SSE2) or 32 (AVX) bytes. Streaming stores need arrays aligned to the width.
    Kernel streams(int width, const std::vector<Stream>& all, bool streamingStores);
    // A step is operationsPerStep operations on vectors (pairs of multiplication and addition).
    Kernel arithmetic(int width, Operation operation, int registers);
    static constexpr int operationsPerStep = 60;
    // A step is linksPerStep times so many multiplications and additions, each of which waits for the one before.
    Kernel chain(int multiplications, int additions);
    static constexpr int linksPerStep = 8;
    // Returns at once, taking its arguments off the stack.
    using Function = void (*)();
    Function nothing(size_t poppedBytes);

private:
    void bytes(std::initializer_list<int> list);
    void word(uint32_t value);
    void wide(); // the instruction that follows works on whole pointers
    uint8_t* begin(size_t arrays);
    void loopWhileSteps(const uint8_t* top);
    Kernel end(const uint8_t* start, bool avx, bool fence);
    void transfer(int width, int opcode, int reg, int base, int displacement);
    void operate(int width, int opcode, int destination, int source1, int source2);

    uint8_t* memory_;
    uint8_t* at_;
    uint8_t* start_ = nullptr;
};

} // namespace bench
