// The checked call sees what a callee spoils, nests, and runs in several threads.
#include "invoke.h"
#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace {

using registry::Arg;
using registry::Entry;
using registry::Function;
using registry::Value;

// An int function of one int, as the registry would describe it.
Function described()
{
    static const Arg number = [] {
        Arg n = {};
        n.name = "n";
        n.kind = registry::Kind::scalar;
        return n;
    }();
    Function f = {};
    f.name = "function";
    f.result = registry::Result::i32;
    f.args = &number;
    f.argCount = 1;
    return f;
}

registry::Answer call(Entry entry, int n)
{
    const Function f = described();
    Value v;
    v.i = n;
    return registry::invoke(entry, f, &v);
}

// Calls itself through checked calls; every level adds its number.
int nested(int n)
{
    if (n == 0) return 0;
    std::this_thread::yield();
    const registry::Answer inner = call(reinterpret_cast<Entry>(nested), n - 1);
    return inner.intrusion.empty() ? n + static_cast<int>(inner.status) : -1000;
}

#ifdef __x86_64__
#define REG(name) "%r" name
#else
#define REG(name) "%e" name
#endif
#define SPOILER(name, code) \
    __attribute__((naked)) void name() { asm(code); }

SPOILER(keepsAll, "ret")
SPOILER(spoilsRegister, "inc " REG("bx") "\n ret")
SPOILER(spoilsFrame, "xor " REG("bp") ", " REG("bp") "\n ret")
SPOILER(leavesStackLow, "pop " REG("cx") "\n lea -32(" REG("sp") "), " REG("sp") "\n jmp *" REG("cx"))
SPOILER(leavesStackHigh, "pop " REG("cx") "\n lea 4(" REG("sp") "), " REG("sp") "\n jmp *" REG("cx"))
SPOILER(setsDirection, "std\n ret")
SPOILER(roundsUp, "push $0x5f80\n ldmxcsr (" REG("sp") ")\n pop " REG("cx") "\n ret")
SPOILER(roundsShort, "push $0x007f\n fldcw (" REG("sp") ")\n pop " REG("cx") "\n ret")
SPOILER(leavesNumber, "fld1\n ret")
SPOILER(leavesUpperHalf, "vcmptrueps %ymm3, %ymm3, %ymm3\n ret")

} // namespace

TEST(CheckedCall, SeesEverythingThatACalleeSpoils)
{
    __builtin_cpu_init();
    const struct {
        void (*callee)();
        const char* expected;
    } cases[] = {{keepsAll, ""},
                 {spoilsRegister, "saved registers; "},
                 {spoilsFrame, "saved registers; "},
                 {leavesStackLow, "stack pointer; "},
                 {leavesStackHigh, "stack pointer; "},
                 {setsDirection, "direction flag; "},
                 {roundsUp, "MXCSR; "},
                 {roundsShort, "x87 control word; "},
                 {leavesNumber, "x87 registers; "},
                 {leavesUpperHalf, "upper halves of the AVX registers; "}};
    for (const auto& c : cases) {
        if (c.callee == leavesUpperHalf && !__builtin_cpu_supports("avx")) continue;
        const auto answer = call(c.callee, 5);
        const unsigned mxcsr = 0x1f80;
        asm volatile("fninit\n ldmxcsr %0" : : "m"(mxcsr)); // a call leaves the modes as the callee left them
        EXPECT_EQ(answer.intrusion, c.expected);
    }
}

TEST(CheckedCall, NestsAndRunsInThreads)
{
    std::vector<std::thread> threads;
    int found[4] = {};
    for (int& sum : found)
        threads.emplace_back([&sum] {
            for (int i = 0; i < 200 && sum >= 0; ++i) {
                const auto answer = call(reinterpret_cast<Entry>(nested), 20);
                sum = answer.intrusion.empty() ? static_cast<int>(answer.status) : -1;
            }
        });
    for (std::thread& t : threads) t.join();
    for (int sum : found) EXPECT_EQ(sum, 20 * 21 / 2);
}
