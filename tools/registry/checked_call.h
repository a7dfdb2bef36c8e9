// A call by argument words, from known registers and floating-point modes, at a chosen stack alignment, with a record
// of what it leaves behind. The modes of "before" are loaded for the call alone; so many words of the stack below it
// are painted, and looked at afterwards.
// Calls may run in several threads and one inside another.
#pragma once
#include <cstddef>
#include <cstdint>

namespace registry {

#if defined(__i386__)
struct CheckedCall {
    void (*entry)();                      // 0
    const uintptr_t* words;               // 4: the argument stack
    uintptr_t wordCount;                  // 8
    uintptr_t phase;                      // 12: of the stack at the call, modulo 16
    uintptr_t returnsFloat;               // 16
    uintptr_t result[2];                  // 20
    double floatResult;                   // 28
    uintptr_t keptStack;                  // 36
    uintptr_t stackBefore, stackAfter;    // 40
    uintptr_t saved[4];                   // 48: ebx esi edi ebp
    uintptr_t flags;                      // 64
    uint32_t mxcsrBefore, mxcsrAfter;     // 68
    uint32_t controlBefore, controlAfter; // 76: x87
    uint32_t tags;                        // 84: x87, 0xffff: all empty
    uintptr_t avx;                        // 88: look at the upper halves of the AVX registers
    uintptr_t outer;                      // 92: the record of the call that this one is made from
    uint8_t upper[8][16];                 // 96
    uint32_t callerMxcsr, callerControl;  // 224
    uintptr_t deepest;                    // 232: the lowest word that changed
    uintptr_t painted;                    // 236: words of stack
} __attribute__((packed));
inline constexpr uintptr_t savedPattern[4] = {0x11b0b0b1, 0x22515152, 0x33d1d1d3, 0x44b9b9b4};
static_assert(offsetof(CheckedCall, painted) == 236);
#else
struct CheckedCall {
    void (*entry)();                                     // 0
    const uintptr_t* words;                              // 8
    uintptr_t wordCount;                                 // 16
    uintptr_t phase;                                     // 24
    uintptr_t returnsFloat;                              // 32
    uintptr_t result[2];                                 // 40
    double floatResult;                                  // 56
    uintptr_t flags;                                     // 64
    uintptr_t keptStack;                                 // 72
    uintptr_t stackBefore, stackAfter;                   // 80
    uintptr_t saved[5];                                  // 96: rbx rbp r12 r13 r14
    uint32_t mxcsrBefore, unused1, mxcsrAfter, unused2;  // 136
    uint32_t controlBefore, unused3, controlAfter, tags; // 152
    uintptr_t saved15;                                   // 168
    uintptr_t avx;                                       // 176
    double floats[8];                                    // 184
    uintptr_t integers[6];                               // 248
    uintptr_t outer;                                     // 296: the record of the call that this one is made from
    uint8_t upper[16][16];                               // 304
    uint32_t callerMxcsr, callerControl;                 // 560
    uintptr_t deepest;                                   // 568
    uintptr_t painted;                                   // 576
};
inline constexpr uintptr_t savedPattern[5] = {0x11b0b0b1, 0x22b9b9b4, 0x33121213, 0x44131314, 0x55141415};
inline constexpr uintptr_t savedPattern15 = 0x66151516;
static_assert(offsetof(CheckedCall, painted) == 576);
#endif

} // namespace registry

extern "C" void checked_call(registry::CheckedCall*);
