// Copies, logic, shifts and byte swaps against the machine: bytes written per cycle, per cent of what the same
// pattern of loads and stores reaches with a single operation in between, or none for copies (measured in the same
// rounds), and the ratio to memcpy or memset. Arguments: the beginnings of names of functions to measure.
#include "support/library.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>
#ifdef _WIN32
#include <windows.h>
static double seconds()
{
    LARGE_INTEGER t, f;
    QueryPerformanceCounter(&t);
    QueryPerformanceFrequency(&f);
    return static_cast<double>(t.QuadPart) / static_cast<double>(f.QuadPart);
}
#else
#include <ctime>
static double seconds()
{
    timespec t;
    clock_gettime(CLOCK_MONOTONIC, &t);
    return static_cast<double>(t.tv_sec) + 1e-9 * static_cast<double>(t.tv_nsec);
}
#endif

namespace {

using u8 = unsigned char;

// Cycles per second of the core: a chain of multiplications takes three cycles each on all processors of interest.
double clockRate()
{
    double best = 0;
    for (int round = 0; round < 7; ++round) {
        const double start = seconds();
        int x = 1;
        for (int i = 0; i < 500000; ++i) asm volatile("imul %0,%0\n imul %0,%0\n imul %0,%0\n imul %0,%0\n" : "+r"(x));
        best = std::max(best, 6e6 / (seconds() - start));
    }
    return best;
}

// The limits: n bytes written (a multiple of 256), from no array, from one, from two, from one with an operation. In
// assembler, so that both compilers time the same.
using Limit = void (*)(u8*, const u8*, const u8*, size_t);

#define EACH(part, w, r) part(0, w, r) part(1, w, r) part(2, w, r) part(3, w, r)
#define NONE(i, w, r)
#define LOAD(i, w, r) LOAD_##w " " #i "*" #w "(%[a]),%%" #r #i "\n"
#define OR(i, w, r) LOAD_##w " " #i "*" #w "(%[b]),%%" #r "7\n" CONSTANT(i, w, r)
#define CONSTANT(i, w, r) OR_##w("%%" #r "7", #r #i) "\n"
#define STORE(i, w, r) STORE_##w " %%" #r #i "," #i "*" #w "(%[d])\n"
#define STREAM(i, w, r) STREAM_##w " %%" #r #i "," #i "*" #w "(%[d])\n"
#define LOAD_16 "movdqu"
#define LOAD_32 "vmovdqu"
#define OR_16(x, y) "por " x ",%%" y
#define OR_32(x, y) "vpor " x ",%%" y ",%%" y
#define STORE_16 "movdqu"
#define STORE_32 "vmovdqu"
#define STREAM_16 "movntdq"
#define STREAM_32 "vmovntdq"
#define FENCE_STORE ""
#define FENCE_STREAM "sfence\n"
#define END_16 ""
#define END_32 "vzeroupper\n"
#define LIMIT(load, operation, store, w, r)                                                           \
    [](u8* d, const u8* a, const u8* b, size_t n) {                                                   \
        asm volatile(".p2align 6\n1:\n" EACH(load, w, r) EACH(operation, w, r)                        \
                         EACH(store, w, r) "add $4*" #w ",%[a]\n add $4*" #w ",%[b]\n add $4*" #w     \
                                           ",%[d]\n cmp %[d],%[end]\n jne 1b\n" FENCE_##store END_##w \
                     : [d] "+r"(d), [a] "+r"(a), [b] "+r"(b)                                          \
                     : [end] "r"(d + n)                                                               \
                     : "memory", "xmm0", "xmm1", "xmm2", "xmm3", "xmm7");                             \
    }
#define LIMITS(load, operation)                                                             \
    {                                                                                       \
        {LIMIT(load, operation, STORE, 16, xmm), LIMIT(load, operation, STREAM, 16, xmm)},  \
        {                                                                                   \
            LIMIT(load, operation, STORE, 32, ymm), LIMIT(load, operation, STREAM, 32, ymm) \
        }                                                                                   \
    }
const Limit limits[4][2][2] = {LIMITS(NONE, NONE), LIMITS(LOAD, NONE), LIMITS(LOAD, OR), LIMITS(LOAD, CONSTANT)};

#define CALL SIG5D_STDCALL
using Unary = int(CALL*)(const u8*, u8*, int);
using InPlace = int(CALL*)(u8*, int);
using Binary = int(CALL*)(const u8*, const u8*, u8*, int);
using BinaryInPlace = int(CALL*)(const u8*, u8*, int);
using WithInt = int(CALL*)(const u8*, int, u8*, int);
using WithIntInPlace = int(CALL*)(int, u8*, int);
using SetInt = int(CALL*)(int, u8*, int);
using SetReal = int(CALL*)(double, u8*, int);
using SetComplex = int(CALL*)(Ipp64fc, u8*, int);
using Bits = int(CALL*)(const u8*, int, u8*, int, int);

enum Shape { unary, inPlace, binary, binaryInPlace, withInt, withIntInPlace, setInt, setReal, setComplex, zero, bits };

struct Case {
    const char* name;
    Shape shape;
    int bytes; // of an element
    int value; // the argument beside the arrays
};
const Case cases[] = {
    {"ippsCopy_8u", unary, 1, 0},
    {"ippsCopy_64f", unary, 8, 0},
    {"ippsMove_64f", unary, 8, 0},
    {"ippsSet_8u", setInt, 1, 3},
    {"ippsSet_64f", setReal, 8, 3},
    {"ippsSet_64fc", setComplex, 16, 3},
    {"ippsZero_64f", zero, 8, 0},
    {"ippsFlip_8u", unary, 1, 0},
    {"ippsFlip_16u", unary, 2, 0},
    {"ippsFlip_32f", unary, 4, 0},
    {"ippsFlip_64f", unary, 8, 0},
    {"ippsFlip_64fc", unary, 16, 0},
    {"ippsFlip_8u_I", inPlace, 1, 0},
    {"ippsFlip_64f_I", inPlace, 8, 0},
    {"ippsAnd_8u", binary, 1, 0},
    {"ippsXor_32u", binary, 4, 0},
    {"ippsOr_16u_I", binaryInPlace, 2, 0},
    {"ippsAndC_16u", withInt, 2, 0x0FF0},
    {"ippsXorC_8u_I", withIntInPlace, 1, 0x55},
    {"ippsNot_32u", unary, 4, 0},
    {"ippsLShiftC_8u", withInt, 1, 3},
    {"ippsLShiftC_16s", withInt, 2, 3},
    {"ippsRShiftC_8u", withInt, 1, 3},
    {"ippsRShiftC_16s_I", withIntInPlace, 2, 3},
    {"ippsRShiftC_32s", withInt, 4, 3},
    {"ippsSwapBytes_16u", unary, 2, 0},
    {"ippsSwapBytes_24u", unary, 3, 0},
    {"ippsSwapBytes_24u_I", inPlace, 3, 0},
    {"ippsSwapBytes_32u", unary, 4, 0},
    {"ippsSwapBytes_64u", unary, 8, 0},
    {"ippsCopyLE_1u", bits, 1, 3},
    {"ippsCopyBE_1u", bits, 1, 3},
};

void call(const Case& c, support::Entry f, u8* d, const u8* a, const u8* b, int n)
{
    switch (c.shape) {
    case unary:
        reinterpret_cast<Unary>(f)(a, d, n);
        break;
    case zero:
    case inPlace:
        reinterpret_cast<InPlace>(f)(d, n);
        break;
    case binary:
        reinterpret_cast<Binary>(f)(a, b, d, n);
        break;
    case binaryInPlace:
        reinterpret_cast<BinaryInPlace>(f)(a, d, n);
        break;
    case withInt:
        reinterpret_cast<WithInt>(f)(a, c.value, d, n);
        break;
    case withIntInPlace:
        reinterpret_cast<WithIntInPlace>(f)(c.value, d, n);
        break;
    case setInt:
        reinterpret_cast<SetInt>(f)(c.value, d, n);
        break;
    case setReal:
        reinterpret_cast<SetReal>(f)(c.value, d, n);
        break;
    case setComplex:
        reinterpret_cast<SetComplex>(f)({1.0, 2.0}, d, n);
        break;
    case bits:
        reinterpret_cast<Bits>(f)(a, c.value, d, 0, 8 * n - 8);
        break;
    }
}
bool fills(Shape s) { return s == setInt || s == setReal || s == setComplex || s == zero; }
bool overwrites(Shape s) { return s == inPlace || s == binaryInPlace || s == withIntInPlace; }
int pattern(const Case& c)
{
    if (fills(c.shape)) return 0;
    if (c.shape == binary || c.shape == binaryInPlace || c.shape == bits) return 2;
    return std::strstr(c.name, "Copy") || std::strstr(c.name, "Move") ? 1 : 3;
}

// Seconds of one call: enough of them to fill a fraction of a millisecond.
template <class F> double time(size_t bytes, F f)
{
    const size_t calls = 1 + (size_t(1) << 20) / (bytes + 64);
    f();
    const double start = seconds();
    for (size_t i = 0; i < calls; ++i) f();
    return (seconds() - start) / static_cast<double>(calls);
}

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

void measure(const Case& c, size_t bytes, const char* level, double hertz, u8* pool)
{
    const size_t step = (bytes + 8191) / 4096 * 4096;
    u8 *const d = pool, *const a = pool + step + 128, *const b = pool + 2 * step + 256; // no false dependences
    const int n = static_cast<int>(bytes / static_cast<size_t>(c.bytes));
    const support::Entry f = support::find(c.name);
    const auto variants = support::supported();
    const size_t peer = variants.size(), floor16 = peer + 1, floor32 = peer + 2;
    const bool wide = variants.back().index >= 4;
    std::vector<std::vector<double>> times(peer + 3);
    const int rounds = bytes > (size_t(1) << 24) ? 5 : 21;
    const u8* const first = overwrites(c.shape) ? d : a;
    const u8* const second = overwrites(c.shape) ? a : c.shape == bits ? a + 1 : b;
    for (int round = 0; round < rounds; ++round) {
        for (int w = 0; w < (wide ? 2 : 1) && bytes >= 256; ++w) {
            double best = 1e9;
            for (int way = 0; way < (bytes > (size_t(1) << 20) && !overwrites(c.shape) ? 2 : 1); ++way) {
                const Limit limit = limits[pattern(c)][w][way];
                best = std::min(best, time(bytes, [&] { limit(d, first, second, bytes / 256 * 256); }));
            }
            times[w ? floor32 : floor16].push_back(best);
        }
        times[peer].push_back(time(bytes, [&] {
            if (!fills(c.shape))
                memcpy(d, a, bytes);
            else
                memset(d, c.value, bytes);
            asm volatile("" : : "r"(d) : "memory");
        }));
        for (size_t v = 0; v < peer; ++v) {
            support::force(variants[v]);
            times[v].push_back(time(bytes, [&] { call(c, f, d, a, b, n); }));
        }
    }
    printf("%-20s %-5s", c.name, level);
    for (size_t v = 0; v < peer; ++v) {
        const double t = median(times[v]);
        if (bytes < 256) {
            printf(" | %s %5.1f cy %4.2f", variants[v].code, t * hertz, median(times[peer]) / t);
            continue;
        }
        const double limit = median(times[variants[v].index >= 4 ? floor32 : floor16]);
        printf(" | %s %5.2f B/cy %3.0f%% %4.2f", variants[v].code, static_cast<double>(bytes) / (t * hertz),
               100 * limit / t, median(times[peer]) / t);
    }
    printf("\n");
}

} // namespace

int main(int count, char** names)
{
    const struct {
        const char* name;
        size_t bytes;
    } levels[] = {{"8", 8},        {"24", 24},        {"96", 96},      {"1K", 1 << 10},
                  {"L1", 8 << 10}, {"L2", 256 << 10}, {"L3", 8 << 20}, {"mem", 96 << 20}};
    const size_t room = 3 * (levels[7].bytes + 8192);
    u8* const pool =
        reinterpret_cast<u8*>((reinterpret_cast<uintptr_t>(std::malloc(room + 4096)) + 4095) / 4096 * 4096);
    for (size_t i = 0; i < room; ++i) pool[i] = static_cast<u8>(i * 7 >> 3);
    const double hertz = clockRate();
    printf("core clock %.2f GHz; bytes written per cycle (short arrays: cycles a call), per cent of the limit,"
           " ratio to memcpy or memset\n",
           hertz * 1e-9);
    for (const Case& c : cases) {
        bool wanted = count < 2;
        for (int i = 1; i < count; ++i) wanted |= !std::strncmp(c.name, names[i], std::strlen(names[i]));
        if (!wanted) continue;
        for (const auto& level : levels) measure(c, level.bytes, level.name, hertz, pool);
    }
}
