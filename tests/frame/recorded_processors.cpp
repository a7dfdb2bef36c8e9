#include "frame/recorded_processors.h"
#include <gtest/gtest.h>

using namespace sig5d;

namespace {

constexpr CpuidRegs intel(u32 maxLeaf) { return {maxLeaf, 0x756E6547, 0x6C65746E, 0x49656E69}; }
constexpr CpuidRegs amd(u32 maxLeaf) { return {maxLeaf, 0x68747541, 0x444D4163, 0x69746E65}; }

} // namespace

const Recorded recordedProcessors[] = {
    {.name = "no CPUID",
     .leaves = {},
     .identifiable = false,
     .word = 0,
     .variant = 0,
     .enabled = 1,
     .cacheBytes = -1,
     .cores = 1},

    // Answers for the extended leaves with the data of leaf 2.
    {.name = "Pentium III, descriptors only",
     .leaves = {{{0, 0}, intel(2)},
                {{1, 0}, {0x683, 2, 0, 0x0383F9FF}},
                {{2, 0}, {0x03020101, 0, 0, 0x0C040882}},
                {{0x80000000, 0}, {0x03020101, 0, 0, 0x0C040882}}},
     .mxcsrMask = 0xFFBF,
     .word = 0x3,
     .variant = 0,
     .enabled = 0x3,
     .cacheBytes = 256 << 10,
     .cores = 1},

    {.name = "Pentium 4, descriptors only",
     .leaves = {{{0, 0}, intel(2)},
                {{1, 0}, {0xF29, 0x0002080B, 0x4400, 0xBFEBFBFF}},
                {{2, 0}, {0x665B5001, 0, 0, 0x007B7040}},
                {{0x80000000, 0}, {0x80000004, 0, 0, 0}}},
     .word = 0x7,
     .variant = 1,
     .enabled = 0x7,
     .cacheBytes = 512 << 10,
     .cores = 1},

    {.name = "Pentium M, SSE2",
     .leaves = {{{0, 0}, intel(2)},
                {{1, 0}, {0x6D8, 0x816, 0x180, 0xAFE9FBFF}},
                {{2, 0}, {0x02B3B001, 0xF0, 0, 0x2C04307D}},
                {{0x80000000, 0}, {0x80000004, 0, 0, 0}}},
     .word = 0x7,
     .variant = 1,
     .enabled = 0x7,
     .cacheBytes = 2 << 20,
     .cores = 1},

    {.name = "Atom N270, SSSE3 and MOVBE",
     .leaves = {{{0, 0}, intel(10)},
                {{1, 0}, {0x106C2, 0x00020800, 0x0040C39D, 0xBFE9FBFF}},
                {{4, 0}, {0x00004121, 0x0140003F, 0x3F, 1}},
                {{4, 1}, {0x00004122, 0x01C0003F, 0x3F, 1}},
                {{4, 2}, {0x00004143, 0x01C0003F, 0x3FF, 1}},
                {{0x80000000, 0}, {0x80000008, 0, 0, 0}},
                {{0x80000001, 0}, {0, 0, 1, 0}}},
     .word = 0x3F,
     .variant = 2,
     .enabled = 0x3F,
     .cacheBytes = 512 << 10,
     .cores = 1},

    {.name = "Core 2 Duo, cores by leaf 4",
     .leaves = {{{0, 0}, intel(10)},
                {{1, 0}, {0x6F6, 0x00020800, 0xE3BD, 0xBFEBFBFF}},
                {{4, 0}, {0x04000121, 0x01C0003F, 0x3F, 1}},
                {{4, 1}, {0x04000122, 0x01C0003F, 0x3F, 1}},
                {{4, 2}, {0x04004143, 0x03C0003F, 0xFFF, 1}},
                {{0x80000000, 0}, {0x80000008, 0, 0, 0}},
                {{0x80000001, 0}, {0, 0, 1, 0x20100800}}},
     .word = 0x1F,
     .variant = 2,
     .enabled = 0x1F,
     .cacheBytes = 4 << 20,
     .cores = 2},

    {.name = "Core i7-920, SSE4.2",
     .leaves = {{{0, 0}, intel(11)},
                {{1, 0}, {0x106A5, 0x00100800, 0x0098E3BD, 0xBFEBFBFF}},
                {{4, 0}, {0x1C004121, 0x01C0003F, 0x3F, 0}},
                {{4, 1}, {0x1C004122, 0x00C0003F, 0x7F, 0}},
                {{4, 2}, {0x1C004143, 0x01C0003F, 0x1FF, 0}},
                {{4, 3}, {0x1C03C163, 0x03C0003F, 0x1FFF, 2}},
                {{11, 0}, {1, 2, 0x100, 0}},
                {{11, 1}, {4, 8, 0x201, 0}},
                {{0x80000000, 0}, {0x80000008, 0, 0, 0}},
                {{0x80000001, 0}, {0, 0, 1, 0x28100800}}},
     .word = 0xDF,
     .variant = 3,
     .enabled = 0xDF,
     .cacheBytes = 8 << 20,
     .cores = 4},

    {.name = "Core i7-2600, AVX without support of the operating system",
     .leaves = {{{0, 0}, intel(13)},
                {{1, 0}, {0x206A7, 0x00100800, 0x17BAE3FF, 0xBFEBFBFF}},
                {{4, 0}, {0x1C004121, 0x01C0003F, 0x3F, 0}},
                {{4, 1}, {0x1C03C163, 0x03C0003F, 0x1FFF, 6}},
                {{11, 0}, {1, 1, 0x100, 0}},
                {{11, 1}, {4, 4, 0x201, 0}},
                {{0x80000000, 0}, {0x80000008, 0, 0, 0}},
                {{0x80000001, 0}, {0, 0, 1, 0x28100800}}},
     .xcr0 = 7, // must not be read
     .word = 0xDDF,
     .variant = 3,
     .enabled = 0xCDF,
     .cacheBytes = 8 << 20,
     .cores = 4},

    {.name = "Core i7-2600, operating system saves SSE registers only",
     .leaves = {{{0, 0}, intel(13)}, {{1, 0}, {0x206A7, 0x00100800, 0x1FBAE3FF, 0xBFEBFBFF}}},
     .xcr0 = 3,
     .word = 0xDDF,
     .variant = 3,
     .enabled = 0xCDF,
     .cacheBytes = 0,
     .cores = 1},

    {.name = "Core i7-2600, AVX",
     .leaves = {{{0, 0}, intel(13)},
                {{1, 0}, {0x206A7, 0x00100800, 0x1FBAE3FF, 0xBFEBFBFF}},
                {{4, 0}, {0x1C03C163, 0x03C0003F, 0x1FFF, 6}},
                {{11, 0}, {1, 2, 0x100, 0}},
                {{11, 1}, {4, 8, 0x201, 0}}},
     .xcr0 = 7,
     .word = 0xFDF,
     .variant = 4,
     .enabled = 0xFDF,
     .cacheBytes = 8 << 20,
     .cores = 4},

    {.name = "Core i7-4770, AVX2",
     .leaves = {{{0, 0}, intel(13)},
                {{1, 0}, {0x306C3, 0x00100800, 0x7FFAFBBF, 0xBFEBFBFF}},
                {{4, 0}, {0x1C004121, 0x01C0003F, 0x3F, 0}},
                {{4, 1}, {0x1C004122, 0x01C0003F, 0x3F, 0}},
                {{4, 2}, {0x1C004143, 0x01C0003F, 0x1FF, 0}},
                {{4, 3}, {0x1C03C163, 0x03C0003F, 0x1FFF, 6}},
                {{7, 0}, {0, 0x27AB, 0, 0}},
                {{11, 0}, {1, 2, 0x100, 0}},
                {{11, 1}, {4, 8, 0x201, 0}},
                {{0x80000000, 0}, {0x80000008, 0, 0, 0}},
                {{0x80000001, 0}, {0, 0, 0x21, 0x2C100800}}},
     .xcr0 = 7,
     .word = 0xEFFF,
     .variant = 5,
     .enabled = 0xEFFF,
     .cacheBytes = 8 << 20,
     .cores = 4},

    {.name = "Xeon in a virtual machine, AVX-512",
     .leaves = {{{0, 0}, intel(0x24)},
                {{1, 0}, {0x000A0671, 0x00020800, 0xFFFA3203, 0x1F8BFBFF}},
                {{4, 0}, {0x04000121, 0x02C0003F, 0x3F, 0}},
                {{4, 1}, {0x04000122, 0x03C0003F, 0x3F, 0}},
                {{4, 2}, {0x04000143, 0x03C0003F, 0x7FF, 0}},
                {{4, 3}, {0x04004163, 0x03C0003F, 0x7FFFF, 0}},
                {{7, 0}, {2, 0xF1BF2FFB, 0x1A415F46, 0x23C14010}},
                {{11, 0}, {0, 1, 0x100, 0}},
                {{11, 1}, {5, 2, 0x201, 0}},
                {{0x80000000, 0}, {0x80000008, 0, 0, 0}},
                {{0x80000001, 0}, {0, 0, 0x121, 0x2C100800}}},
     .xcr0 = 0x602E7,
     .word = 0x73FEFFF,
     .variant = 5,
     .beyond = true,
     .enabled = 0x73FEFFF,
     .cacheBytes = 512 << 20,
     .cores = 2},

    // One logical processor in a core of two: half of one is none, the older count is taken.
    {.name = "guest with half a core and no list of caches",
     .leaves = {{{0, 0}, intel(11)},
                {{1, 0}, {0x106A5, 0x00100800, 0x0098E3BD, 0xBFEBFBFF}},
                {{11, 0}, {1, 2, 0x100, 0}},
                {{11, 1}, {1, 1, 0x201, 0}}},
     .word = 0xDF,
     .variant = 3,
     .enabled = 0xDF,
     .cacheBytes = 0,
     .cores = 1},

    {.name = "Athlon 64, sizes in the extended leaves",
     .leaves = {{{0, 0}, amd(1)},
                {{1, 0}, {0x00020FF0, 0x00000800, 1, 0x078BFBFF}},
                {{0x80000000, 0}, {0x80000018, 0x68747541, 0x444D4163, 0x69746E65}},
                {{0x80000001, 0}, {0x00020FF0, 0, 1, 0xE3D3FBFF}},
                {{0x80000005, 0}, {0, 0, 0x40020140, 0x40020140}},
                {{0x80000006, 0}, {0, 0x42004200, 0x02008140, 0}},
                {{0x80000008, 0}, {0x3028, 0, 0, 0}}},
     .word = 0xF,
     .variant = 1,
     .enabled = 0xF,
     .cacheBytes = 512 << 10,
     .cores = 1},

    {.name = "Phenom II X4, third level in the extended leaves",
     .leaves = {{{0, 0}, amd(5)},
                {{1, 0}, {0x00100F42, 0x00040800, 0x00802009, 0x178BFBFF}},
                {{0x80000000, 0}, {0x8000001B, 0x68747541, 0x444D4163, 0x69746E65}},
                {{0x80000001, 0}, {0x00100F42, 0, 0x000037FF, 0xEFD3FBFF}},
                {{0x80000005, 0}, {0, 0, 0x40020140, 0x40020140}},
                {{0x80000006, 0}, {0, 0, 0x02008140, 0x0030B140}},
                {{0x80000008, 0}, {0x3030, 0, 0x2003, 0}}},
     .word = 0x4000F,
     .variant = 1,
     .enabled = 0x4000F,
     .cacheBytes = 6 << 20,
     .cores = 4},

    // Two integer cores share a module: they count as cores.
    {.name = "FX-8350, AVX without AVX2",
     .leaves = {{{0, 0}, amd(13)},
                {{1, 0}, {0x00600F20, 0x00080800, 0x3E98320B, 0x178BFBFF}},
                {{7, 0}, {0, 8, 0, 0}},
                {{0x80000000, 0}, {0x8000001E, 0x68747541, 0x444D4163, 0x69746E65}},
                {{0x80000001, 0}, {0x00600F20, 0, 0x01EBBFFF, 0x2FD3FBFF}},
                {{0x80000008, 0}, {0x3030, 0, 0x4007, 0}},
                {{0x8000001D, 0}, {0x00000121, 0x00C0003F, 0x3F, 0}},
                {{0x8000001D, 1}, {0x00004122, 0x0040003F, 0x1FF, 0}},
                {{0x8000001D, 2}, {0x00004143, 0x03C0003F, 0x7FF, 0}},
                {{0x8000001D, 3}, {0x0001C163, 0x0FC0003F, 0x7FF, 1}},
                {{0x8000001E, 0}, {0, 0x100, 0, 0}}},
     .xcr0 = 7,
     .word = 0x44FDF,
     .variant = 4,
     .enabled = 0x44FDF,
     .cacheBytes = 8 << 20,
     .cores = 8},

    {.name = "Ryzen 7 3700X, AVX2",
     .leaves = {{{0, 0}, amd(16)},
                {{1, 0}, {0x00870F10, 0x00100800, 0x7ED8320B, 0x178BFBFF}},
                {{7, 0}, {0, 0x219C91A9, 0x400004, 0}},
                {{0x80000000, 0}, {0x80000020, 0x68747541, 0x444D4163, 0x69746E65}},
                {{0x80000001, 0}, {0x00870F10, 0, 0x75C237FF, 0x2FD3FBFF}},
                {{0x80000008, 0}, {0x3030, 0, 0x700F, 0}},
                {{0x8000001D, 0}, {0x00004121, 0x01C0003F, 0x3F, 0}},
                {{0x8000001D, 1}, {0x00004122, 0x01C0003F, 0x3F, 0}},
                {{0x8000001D, 2}, {0x00004143, 0x01C0003F, 0x3FF, 2}},
                {{0x8000001D, 3}, {0x0001C163, 0x03C0003F, 0x3FFF, 1}},
                {{0x8000001E, 0}, {0, 0x100, 0, 0}}},
     .xcr0 = 7,
     .word = 0xFEFFF,
     .variant = 5,
     .enabled = 0xFEFFF,
     .cacheBytes = 16 << 20,
     .cores = 8},

    // More logical processors than leaf 0x80000008 can count.
    {.name = "192 cores with two threads each",
     .leaves = {{{0, 0}, amd(16)},
                {{1, 0}, {0x00B10F10, 0x00FF0800, 0x7EFA320B, 0x178BFBFF}},
                {{7, 0}, {0, 0x219C91A9, 0, 0}},
                {{0x80000000, 0}, {0x80000028, 0x68747541, 0x444D4163, 0x69746E65}},
                {{0x80000001, 0}, {0x00B10F10, 0, 0x75C237FF, 0x2FD3FBFF}},
                {{0x80000008, 0}, {0x3030, 0, 0x90FF, 0}},
                {{0x8000001D, 0}, {0x0003C163, 0x03C0003F, 0x7FFF, 1}},
                {{0x80000026, 0}, {1, 2, 0x100, 0}},
                {{0x80000026, 1}, {5, 32, 0x201, 0}},
                {{0x80000026, 2}, {5, 32, 0x302, 0}},
                {{0x80000026, 3}, {9, 384, 0x403, 0}}},
     .xcr0 = 0xE7,
     .word = 0xFEFFF,
     .variant = 5,
     .enabled = 0xFEFFF,
     .cacheBytes = 32 << 20,
     .cores = 192},

    // Three rounds of descriptors; the largest cache comes in the last one.
    {.name = "descriptors in three rounds",
     .leaves = {{{0, 0}, intel(3)},
                {{1, 0}, {0x673, 2, 0, 0x0387F9FF}},
                {{2, 0}, {0x02010103, 0, 0, 0x0C040841}},
                {{0x80000000, 0}, {0x00000003, 0, 0, 0}}},
     .rounds = {{0x0C0A0803, 0, 0, 0x80000049}, {0x00000003, 0, 0x00440000, 0}},
     .word = 0x3,
     .variant = 0,
     .enabled = 0x3,
     .cacheBytes = 1 << 20,
     .cores = 1},

    {.name = "guest with one cache for data and no leaf above 4",
     .leaves = {{{0, 0}, intel(4)},
                {{1, 0}, {0x10676, 0x00020800, 0x0008E3BD, 0xBFEBFBFF}},
                {{4, 0}, {0x04000121, 0x01C0003F, 0x3F, 0}},
                {{4, 1}, {0x04000122, 0x01C0003F, 0x7F, 0}},
                {{0x80000000, 0}, {0x80000000, 0, 0, 0}}},
     .word = 0x5F,
     .variant = 2,
     .enabled = 0x5F,
     .cacheBytes = 32 << 10,
     .cores = 2},

    // Firmware hides the leaves above 3; the descriptor that points at leaf 4 is left.
    {.name = "leaf 4 hidden, second level in the extended leaves",
     .leaves = {{{0, 0}, intel(3)},
                {{1, 0}, {0x106A5, 0x00100800, 0x0098E3BD, 0xBFEBFBFF}},
                {{2, 0}, {0x55035A01, 0x00F0B2FF, 0, 0x00CA0000}},
                {{0x80000000, 0}, {0x80000008, 0, 0, 0}},
                {{0x80000001, 0}, {0, 0, 1, 0x28100800}},
                {{0x80000006, 0}, {0, 0, 0x01006040, 0}}},
     .word = 0xDF,
     .variant = 3,
     .enabled = 0xDF,
     .cacheBytes = 256 << 10,
     .cores = 1},

    {.name = "guest whose leaf 4 is empty, second level in the extended leaves",
     .leaves = {{{0, 0}, intel(13)},
                {{1, 0}, {0x306C3, 0x00100800, 0xF7FAFBBF, 0x0F8BFBFF}},
                {{7, 0}, {0, 0x27AB, 0, 0}},
                {{0x80000000, 0}, {0x80000008, 0, 0, 0}},
                {{0x80000001, 0}, {0, 0, 0x21, 0x2C100800}},
                {{0x80000006, 0}, {0, 0, 0x01006040, 0}}},
     .word = 0xEDDF | 0x20, // MOVBE; the system saves no registers for AVX
     .variant = 3,
     .enabled = 0x6CFF,
     .cacheBytes = 256 << 10,
     .cores = 1},

    {.name = "guest of another maker that tells nothing but its features",
     .leaves = {{{0, 0}, {1, 0x746E6543, 0x736C7561, 0x48727561}}, {{1, 0}, {0x6A9, 0, 0x80002000, 0x0789F9FF}}},
     .word = 0x7,
     .variant = 1,
     .enabled = 0x7,
     .cacheBytes = 0,
     .cores = 1},

    {.name = "another maker, extended leaves only",
     .leaves = {{{0, 0}, {1, 0x746E6543, 0x736C7561, 0x48727561}},
                {{1, 0}, {0x6A9, 0x00010800, 0x00000181, 0xA7C9BBFF}},
                {{0x80000000, 0}, {0x80000006, 0, 0, 0}},
                {{0x80000005, 0}, {0, 0, 0x40040140, 0x40040140}},
                {{0x80000006, 0}, {0, 0, 0x0080A140, 0}}},
     .word = 0xF,
     .variant = 1,
     .enabled = 0xF,
     .cacheBytes = 128 << 10,
     .cores = 1},

    // The list is announced and empty; the older leaves have the sizes. Nothing tells the threads of a core.
    {.name = "guest with an empty list in the extended leaves",
     .leaves = {{{0, 0}, amd(13)},
                {{1, 0}, {0x00870F10, 0x00100800, 0xFED8320B, 0x178BFBFF}},
                {{7, 0}, {0, 0x219C91A9, 0, 0}},
                {{0x80000000, 0}, {0x8000001E, 0x68747541, 0x444D4163, 0x69746E65}},
                {{0x80000001, 0}, {0x00870F10, 0, 0x75C237FF, 0x2FD3FBFF}},
                {{0x80000005, 0}, {0, 0, 0x20080140, 0x20080140}},
                {{0x80000006, 0}, {0, 0, 0x02006140, 0x00409140}},
                {{0x80000008, 0}, {0x3030, 0, 0x0003, 0}}},
     .xcr0 = 7,
     .word = 0xFEFFF,
     .variant = 5,
     .enabled = 0xFEFFF,
     .cacheBytes = 8 << 20,
     .cores = 4},

    {.name = "no leaf but the first",
     .leaves = {{{0, 0}, intel(0)}},
     .mxcsrMask = 0,
     .word = 0,
     .variant = 0,
     .enabled = 1,
     .cacheBytes = 0,
     .cores = 1},

    {.name = "AVX2 without AVX: a guest whose host hides AVX",
     .leaves = {{{0, 0}, intel(13)},
                {{1, 0}, {0x306C3, 0x00100800, 0x6FFAFBBF, 0x0F8BFBFF}},
                {{4, 0}, {0x1C03C163, 0x03C0003F, 0x1FFF, 6}},
                {{7, 0}, {0, 0x27AB, 0, 0}}},
     .xcr0 = 7,
     .word = 0xECFF,
     .variant = 3,
     .enabled = 0x6CFF,
     .cacheBytes = 8 << 20,
     .cores = 8},

    {.name = "AVX-512, operating system saves AVX registers only",
     .leaves = {{{0, 0}, intel(13)},
                {{1, 0}, {0x50654, 0x00100800, 0x7FFEFBFF, 0xBFEBFBFF}},
                {{4, 0}, {0x3C03C163, 0x0280003F, 0x7FFF, 4}},
                {{7, 0}, {0, 0xD19FFFFB, 0, 0}}},
     .xcr0 = 7,
     .word = 0x733EFFF,
     .variant = 5,
     .enabled = 0x733EFFF,
     .cacheBytes = 22 << 20,
     .cores = 16},

    {.name = "AVX-512, operating system saves SSE registers only",
     .leaves = {{{0, 0}, intel(13)},
                {{1, 0}, {0x50654, 0x00100800, 0x7FFEFBFF, 0xBFEBFBFF}},
                {{4, 0}, {0x3C03C163, 0x0280003F, 0x7FFF, 4}},
                {{7, 0}, {0, 0xD19FFFFB, 0, 0}}},
     .xcr0 = 3,
     .word = 0x733EDFF,
     .variant = 3,
     .enabled = 0x36CFF,
     .cacheBytes = 22 << 20,
     .cores = 16},
};
const int recordedProcessorCount = sizeof recordedProcessors / sizeof *recordedProcessors;

CpuidRegs Recorded::answer(u32 leaf, u32 subleaf, size_t round) const
{
    if (leaf == 2 && round > 0 && round <= rounds.size()) return rounds[round - 1];
    const auto found = leaves.find({leaf, subleaf});
    return found == leaves.end() ? CpuidRegs{} : found->second;
}

const Recorded& recorded(const char* start)
{
    for (const Recorded& r : recordedProcessors)
        if (r.name.rfind(start, 0) == 0) return r;
    ADD_FAILURE() << start;
    return recordedProcessors[0];
}

namespace {

const Recorded* now;
std::map<std::pair<u32, u32>, size_t> asked;

u32 highest(u32 base)
{
    const auto found = now->leaves.find({base, 0});
    return found == now->leaves.end() ? 0 : found->second.eax;
}

CpuidRegs answer(u32 leaf, u32 subleaf)
{
    EXPECT_TRUE(now->identifiable);
    const size_t before = asked[{leaf, subleaf}]++;
    EXPECT_LE(before, leaf == 2 ? now->rounds.size() : 0) << std::hex << leaf << "." << subleaf << " asked too often";
    if ((leaf == 4 || leaf == 0x8000001D) && subleaf > 0) {
        EXPECT_TRUE(now->answer(leaf, subleaf - 1).eax & 31)
            << std::hex << leaf << "." << subleaf << ": no list goes on";
    }
    const u32 base = leaf & 0x80000000;
    EXPECT_LE(leaf, leaf == base ? base : highest(base)) << std::hex << leaf;
    return now->answer(leaf, subleaf, before);
}

u64 extendedControl()
{
    const CpuidRegs one = now->leaves.at({1, 0});
    EXPECT_TRUE(one.ecx >> 27 & 1) << "XGETBV is not usable";
    return now->xcr0;
}

} // namespace

Processor play(const Recorded& r)
{
    now = &r;
    asked.clear();
    return {[] { return now->identifiable; }, answer, extendedControl, [] { return now->mxcsrMask; }};
}
