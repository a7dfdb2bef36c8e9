// Processor cores of a package.
#include "frame/topology.h"

namespace sig5d {
namespace {

// The maker's rule: half the logical processors where a core has two, otherwise the count of leaf 4. A virtual machine
// may report less than one core by the first; then the second counts.
int intelCores(const Identity& id)
{
    if (id.maxLeaf < 4) return 1;
    if (id.maxLeaf >= 11) {
        const u32 threadLevel = id.leaf(11, 0).ebx;
        if (threadLevel) {
            const int logical = id.leaf(11, 1).ebx & 0xFFFF;
            const int cores = (threadLevel & 2) ? logical / 2 : logical;
            if (cores > 0) return cores;
        }
    }
    return static_cast<int>(id.leaf(4, 0).eax >> 26) + 1;
}

// Leaf 0x80000026 counts the logical processors of each level, from a core (type 1) to the socket (type 4), past the
// 256 that the older leaf can tell. 0: it tells nothing.
int amdCoresByLevel(const Identity& id)
{
    int ofCore = 0, ofPackage = 0;
    for (u32 level = 0; level < 8; ++level) {
        const CpuidRegs r = id.leaf(0x80000026, level);
        const int type = r.ecx >> 8 & 0xFF, logical = r.ebx & 0xFFFF;
        if (type == 0) break;
        if (type == 1) ofCore = logical;
        if (logical > ofPackage) ofPackage = logical;
    }
    return ofCore ? ofPackage / ofCore : 0;
}

// Leaf 0x80000008 counts cores up to family 0x16 and logical processors from 0x17 on; 0x8000001E tells how many of
// those share a core (the integer units of family 0x15 that share a module count as cores).
int amdCores(const Identity& id)
{
    if (id.maxExtended >= 0x80000026)
        if (const int cores = amdCoresByLevel(id)) return cores;
    if (id.maxExtended < 0x80000008) return 1;
    const int count = static_cast<int>(id.leaf(0x80000008).ecx & 0xFF) + 1;
    const u32 version = id.leaf(1).eax;
    const u32 family = (version >> 8 & 15) + (version >> 20 & 0xFF);
    if (family < 0x17 || !id.topologyExtensions() || id.maxExtended < 0x8000001E) return count;
    const int threads = static_cast<int>(id.leaf(0x8000001E).ebx >> 8 & 0xFF) + 1;
    return count >= threads ? count / threads : 1;
}

} // namespace

int coresPerPackage(const Identity& id) { return id.intel ? intelCores(id) : id.amd ? amdCores(id) : 1; }

} // namespace sig5d
