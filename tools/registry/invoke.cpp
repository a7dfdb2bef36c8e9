#include "invoke.h"
#include <cstring>

namespace registry {

Surroundings surroundings;

namespace {

constexpr uint32_t exceptionFlags = 0x3F;

class Words : public CallWords
{
public:
    void integer(uintptr_t value)
    {
#ifdef __x86_64__
        if (integerCount_ < 6) {
            integers[integerCount_++] = value;
            return;
        }
#endif
        stack.push_back(value);
    }
    void floating(double value)
    {
#ifdef __x86_64__
        if (floatCount_ < 8) {
            floats[floatCount_++] = value;
            return;
        }
#endif
        raw(&value, sizeof value);
    }
    void complex(double re, double im)
    {
#ifdef __x86_64__
        if (floatCount_ < 7) { // a record goes into registers whole or not at all
            floating(re);
            floating(im);
            return;
        }
#endif
        raw(&re, sizeof re);
        raw(&im, sizeof im);
    }
    void single(float value)
    {
        double bits = 0;
        std::memcpy(&bits, &value, sizeof value);
#ifdef __x86_64__
        floating(bits);
#else
        raw(&value, sizeof value);
#endif
    }
    // A record of two ints: one register, or the words of both.
    void joined(long long first, long long second)
    {
#ifdef __x86_64__
        integer(static_cast<uintptr_t>((first & 0xFFFFFFFFLL) | second << 32));
#else
        integer(static_cast<uintptr_t>(first));
        integer(static_cast<uintptr_t>(second));
#endif
    }
    void wide(long long value)
    {
        if constexpr (sizeof(uintptr_t) == 8)
            integer(static_cast<uintptr_t>(value));
        else
            raw(&value, sizeof value);
    }

private:
    void raw(const void* data, size_t bytes)
    {
        uintptr_t words[2] = {};
        std::memcpy(words, data, bytes);
        if (bytes > sizeof(uintptr_t) && firstDouble < 0) firstDouble = static_cast<int>(stack.size());
        for (size_t i = 0; i * sizeof(uintptr_t) < bytes; ++i) stack.push_back(words[i]);
    }
    [[maybe_unused]] int integerCount_ = 0, floatCount_ = 0;
};

void add(Words& w, const Arg& a, const Value& v)
{
    if (a.kind != Kind::scalar && a.kind != Kind::index) return w.integer(reinterpret_cast<uintptr_t>(v.p));
    switch (a.element) {
    case Element::f64:
        return w.floating(v.re);
    case Element::f32:
        return w.single(static_cast<float>(v.re));
    case Element::c64f:
        return w.complex(v.re, v.im);
    case Element::u64:
    case Element::i64:
        return w.wide(v.i);
    case Element::c32s:
        return w.wide((v.i & 0xFFFFFFFFLL) | v.i2 << 32);
    case Element::u8:
        return w.integer(static_cast<uint8_t>(v.i));
    case Element::u16:
        return w.integer(static_cast<uint16_t>(v.i));
    case Element::i16:
        return w.integer(static_cast<uintptr_t>(static_cast<intptr_t>(static_cast<int16_t>(v.i))));
    default:
        return w.integer(static_cast<uintptr_t>(static_cast<intptr_t>(static_cast<int32_t>(v.i))));
    }
}

// The arguments from i on that C has as one; how many they are.
int addAt(Words& w, const Function& f, const Value* values, int i)
{
    if (i + 1 < f.argCount && f.args[i + 1].joins) return w.joined(values[i].i, values[i + 1].i), 2;
    return add(w, f.args[i], values[i]), 1;
}

bool hasAvx()
{
    __builtin_cpu_init();
    static const bool has = __builtin_cpu_supports("avx");
    return has;
}

std::string intrusionOf(const CheckedCall& c, uintptr_t poppedBytes, bool returnsFloat)
{
    std::string said;
    if (c.stackAfter != c.stackBefore + poppedBytes) said += "stack pointer; ";
    if (std::memcmp(c.saved, savedPattern, sizeof savedPattern)) said += "saved registers; ";
#ifdef __x86_64__
    if (c.saved15 != savedPattern15) said += "r15; ";
#endif
    if (c.flags & 0x400) said += "direction flag; ";
    if ((c.mxcsrAfter ^ c.mxcsrBefore) & ~exceptionFlags) said += "MXCSR; ";
    if (static_cast<uint16_t>(c.controlAfter) != static_cast<uint16_t>(c.controlBefore)) said += "x87 control word; ";
    int used = 0;
    for (int i = 0; i < 8; ++i) used += (c.tags >> 2 * i & 3) != 3;
    const int allowed = returnsFloat && sizeof(uintptr_t) == 4 ? 1 : 0;
    if (used != allowed) said += "x87 registers; ";
    static const uint8_t clean[sizeof c.upper] = {};
    if (c.avx && std::memcmp(c.upper, clean, sizeof clean)) said += "upper halves of the AVX registers; ";
    return said;
}

Answer run(Entry entry, const Function& f, const CallWords& w, int phase, bool standardCall)
{
    CheckedCall c = {};
#ifdef __x86_64__
    std::memcpy(c.integers, w.integers, sizeof c.integers);
    std::memcpy(c.floats, w.floats, sizeof c.floats);
#endif
    const bool returnsFloat = f.result == Result::f64;
    c.entry = entry;
    c.words = w.stack.data();
    c.wordCount = w.stack.size();
    c.phase = static_cast<uintptr_t>(phase);
    c.returnsFloat = returnsFloat;
    c.avx = hasAvx();
    asm("stmxcsr %0" : "=m"(c.mxcsrBefore)); // by hand: this program need not be compiled for SSE
    asm("fnstcw %0" : "=m"(c.controlBefore));
    if (surroundings.mxcsr) c.mxcsrBefore = surroundings.mxcsr;
    if (surroundings.control) c.controlBefore = surroundings.control;
    c.mxcsrBefore &= ~exceptionFlags;
    c.painted = surroundings.paintedStack / sizeof(uintptr_t);
    checked_call(&c);
    Answer answer;
    const bool popped = standardCall && sizeof(uintptr_t) == 4;
#ifdef _WIN32
    answer.intrusion = intrusionOf(c, popped ? w.stack.size() * 4 : 0, returnsFloat);
#else
    (void)popped;
    answer.intrusion = intrusionOf(c, 0, returnsFloat);
#endif
    answer.number = c.floatResult;
    answer.raised = c.mxcsrAfter & exceptionFlags;
    answer.stackBytes = c.stackBefore - c.deepest;
    long long wide;
    std::memcpy(&wide, c.result, sizeof wide);
    switch (f.result) {
    case Result::status:
    case Result::i32:
        answer.status = static_cast<int32_t>(wide);
        break;
    case Result::u32:
        answer.status = static_cast<uint32_t>(wide);
        break;
    case Result::u64:
        answer.status = wide;
        break;
    case Result::pointer:
        answer.status = static_cast<long long>(c.result[0]);
        break;
    default:
        break;
    }
    return answer;
}

} // namespace

bool takesIndex(const Arg& a) { return a.kind == Kind::array || a.kind == Kind::work; }

CallWords wordsOf(const Function& f, const Value* values)
{
    Words w;
    for (int i = 0; i < f.argCount;) i += addAt(w, f, values, i);
    return w;
}

CallWords wordsOfIndexed(const Function& f, const Value* values, const int* indexes)
{
    Words w;
    for (int i = 0, k = 0; i < f.argCount;) {
        const bool indexed = takesIndex(f.args[i]);
        i += addAt(w, f, values, i);
        if (indexed) w.integer(static_cast<uintptr_t>(static_cast<intptr_t>(indexes[k++])));
    }
    return w;
}

Answer invoke(Entry entry, const Function& f, const Value* values, int stackPhase)
{
    return run(entry, f, wordsOf(f, values), stackPhase, f.standardCall);
}

Answer invokeIndexed(Entry entry, const Function& f, const Value* values, const int* indexes, int stackPhase)
{
    return run(entry, f, wordsOfIndexed(f, values, indexes), stackPhase, false);
}

} // namespace registry
