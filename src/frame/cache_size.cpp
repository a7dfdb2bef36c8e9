// The largest data or unified cache: from the list of leaf 4, the descriptors of leaf 2, or the extended leaves.
#include "frame/topology.h"

namespace sig5d {
namespace {

using Bytes = u64;

Bytes larger(Bytes a, Bytes b) { return a > b ? a : b; }

// Leaf 4, and leaf 0x8000001D in the same layout: a subleaf per cache, until one of type 0.
Bytes largestListed(const Identity& id, u32 leaf)
{
    enum { none, data, instruction, unified };
    Bytes largest = 0;
    for (u32 subleaf = 0; subleaf < 32; ++subleaf) {
        const CpuidRegs r = id.leaf(leaf, subleaf);
        const u32 type = r.eax & 31;
        if (type == none) break;
        if (type != data && type != unified) continue;
        const Bytes ways = (r.ebx >> 22) + 1, partitions = (r.ebx >> 12 & 0x3FF) + 1, line = (r.ebx & 0xFFF) + 1;
        largest = larger(largest, ways * partitions * line * (r.ecx + Bytes(1)));
    }
    return largest;
}

// The data and unified caches among the descriptors of leaf 2. Those of instruction and trace caches, translation
// buffers and prefetchers are left out, and 0x40, which says that there is no cache beyond the ones listed. 0x49 is a
// second-level cache on some processors and a third-level one on others, of the same size.
constexpr struct {
    u8 code;
    u16 kilobytes;
} descriptors[] = {{0x0A, 8},     {0x0C, 16},    {0x0D, 16},   {0x0E, 24},    {0x10, 16},    {0x1A, 96},   {0x1D, 128},
                   {0x21, 256},   {0x22, 512},   {0x23, 1024}, {0x24, 1024},  {0x25, 2048},  {0x29, 4096}, {0x2C, 32},
                   {0x39, 128},   {0x3A, 192},   {0x3B, 128},  {0x3C, 256},   {0x3D, 384},   {0x3E, 512},  {0x41, 128},
                   {0x42, 256},   {0x43, 512},   {0x44, 1024}, {0x45, 2048},  {0x46, 4096},  {0x47, 8192}, {0x48, 3072},
                   {0x49, 4096},  {0x4A, 6144},  {0x4B, 8192}, {0x4C, 12288}, {0x4D, 16384}, {0x4E, 6144}, {0x60, 16},
                   {0x66, 8},     {0x67, 16},    {0x68, 32},   {0x78, 1024},  {0x79, 128},   {0x7A, 256},  {0x7B, 512},
                   {0x7C, 1024},  {0x7D, 2048},  {0x7E, 256},  {0x7F, 512},   {0x80, 512},   {0x81, 128},  {0x82, 256},
                   {0x83, 512},   {0x84, 1024},  {0x85, 2048}, {0x86, 512},   {0x87, 1024},  {0x88, 2048}, {0x89, 4096},
                   {0x8A, 8192},  {0x8D, 3072},  {0xD0, 512},  {0xD1, 1024},  {0xD2, 2048},  {0xD6, 1024}, {0xD7, 2048},
                   {0xD8, 4096},  {0xDC, 1536},  {0xDD, 3072}, {0xDE, 6144},  {0xE2, 2048},  {0xE3, 4096}, {0xE4, 8192},
                   {0xEA, 12288}, {0xEB, 18432}, {0xEC, 24576}};

Bytes described(const Identity& id, u32 code)
{
    if (code == 0xFF) return id.maxLeaf >= 4 ? largestListed(id, 4) : 0; // "leaf 4 has the caches"
    for (const auto& d : descriptors)
        if (d.code == code) return d.kilobytes * Bytes(1024);
    return 0;
}

// Leaf 2: up to 15 descriptors in the bytes of the four registers, and how often to ask in the lowest byte. A register
// with its highest bit set holds none.
Bytes largestDescribed(const Identity& id)
{
    Bytes largest = 0;
    u32 rounds = 1;
    for (u32 round = 0; round < rounds; ++round) {
        const CpuidRegs r = id.leaf(2);
        rounds = r.eax & 0xFF;
        const u32 regs[] = {r.eax & ~0xFFu, r.ebx, r.ecx, r.edx};
        for (u32 reg : regs)
            for (int shift = 0; shift < 32 && !(reg >> 31); shift += 8)
                largest = larger(largest, described(id, reg >> shift & 0xFF));
    }
    return largest;
}

// The extended leaves: 0x8000001D where topology extensions are reported, otherwise, or where its list is empty, the
// sizes of 0x80000005 and 0x80000006, where an associativity of 0 says that the cache is off.
Bytes largestExtended(const Identity& id)
{
    constexpr Bytes kilobyte = 1024;
    Bytes largest = 0;
    if (id.maxExtended >= 0x8000001D && id.topologyExtensions()) largest = largestListed(id, 0x8000001D);
    if (largest != 0) return largest;
    if (id.maxExtended >= 0x80000005) largest = (id.leaf(0x80000005).ecx >> 24) * kilobyte;
    if (id.maxExtended >= 0x80000006) {
        const CpuidRegs r = id.leaf(0x80000006);
        if (r.ecx >> 12 & 15) largest = larger(largest, (r.ecx >> 16) * kilobyte);
        if (r.edx >> 12 & 15) largest = larger(largest, (r.edx >> 18) * (512 * kilobyte));
    }
    return largest;
}

} // namespace

CacheSize readCacheSize(const Identity& id)
{
    if (!id.processor.identifiable()) return {-1, StsNotSupportedCpu};
    Bytes largest = 0;
    if (id.intel && id.maxLeaf >= 4)
        largest = largestListed(id, 4);
    else if (id.maxLeaf >= 2)
        largest = largestDescribed(id);
    if (largest == 0) largest = largestExtended(id);
    if (largest == 0) return {0, StsUnknownCacheSize};
    return {static_cast<i32>(largest < 0x7FFFFFFF ? largest : 0x7FFFFFFF), StsNoErr};
}

// Beyond the largest cache, but between 1 and 32 MB: virtual machines report the whole of a cache of which a core gets
// a share (docs/dispatch.md has figures), or hardly any.
size_t streamBytes(CacheSize largest)
{
    constexpr size_t low = size_t(1) << 20, high = size_t(32) << 20;
    if (largest.bytes <= 0) return ~size_t(0);
    const size_t bytes = static_cast<size_t>(largest.bytes);
    return bytes < low ? low : bytes < high ? bytes : high;
}

} // namespace sig5d
