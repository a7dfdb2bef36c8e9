// Which body serves each variant: its own, or the nearest lower one. Read from the tables that the exported stubs jump
// through; equal results would not show a slower body in the wrong place.
#include "support/stage.h"
#include <cstring>
#include <gtest/gtest.h>
#include <set>

namespace {

using registry::Function;

// The slots behind a stub, which is one load of the variant index and one jump; null: it is not that.
const uintptr_t* slotsOf(registry::Entry entry)
{
    const auto* code = reinterpret_cast<const uint8_t*>(reinterpret_cast<uintptr_t>(entry));
    const auto is = [&](int at, std::initializer_list<int> bytes) {
        for (int b : bytes)
            if (code[at++] != b) return false;
        return true;
    };
    int32_t address;
#ifdef __x86_64__
    if (!is(0, {0x48, 0x63, 0x05}) || !is(7, {0x4C, 0x8D, 0x1D}) || !is(14, {0x41, 0xFF, 0x24, 0xC3})) return nullptr;
    std::memcpy(&address, code + 10, sizeof address);
    return reinterpret_cast<const uintptr_t*>(code + 14 + address);
#else
    if (!is(0, {0xA1}) || !is(5, {0xFF, 0x24, 0x85})) return nullptr;
    std::memcpy(&address, code + 8, sizeof address);
    return reinterpret_cast<const uintptr_t*>(static_cast<uintptr_t>(address));
#endif
}

// Of the variants with bodies of their own the highest that is not above v; bodies: "px w7 h9".
int nearest(const char* bodies, int v)
{
    while (v > 0 && !std::strstr(bodies, support::variants[v].code)) --v;
    return v;
}

// The index that a stub loads.
int indexNow(registry::Entry entry)
{
    const auto* code = reinterpret_cast<const uint8_t*>(reinterpret_cast<uintptr_t>(entry));
    int32_t address, index;
#ifdef __x86_64__
    std::memcpy(&address, code + 3, sizeof address);
    std::memcpy(&index, code + 7 + address, sizeof index);
#else
    std::memcpy(&address, code + 1, sizeof address);
    std::memcpy(&index, reinterpret_cast<const void*>(static_cast<uintptr_t>(address)), sizeof index);
#endif
    return index;
}

} // namespace

// Results cannot show it: the body beyond the variants answers as the highest of them.
TEST(Variants, AForcedOneIsTheIndexThatStubsLoad)
{
    const registry::Entry entry = support::find("ippsGetLibVersion");
    ASSERT_TRUE(slotsOf(entry));
    for (const support::Variant& v : support::supported()) {
        support::force(v);
        EXPECT_EQ(indexNow(entry), v.index) << v.code;
    }
}

TEST(Variants, EverySlotHoldsItsOwnBodyOrTheNearestLowerOne)
{
    int functions = 0, bodies = 0;
    for (const Function& f : registry::functions()) {
        if (!f.dispatched || f.index == registry::IndexForm::only) continue; // whose stubs are not exported
        const uintptr_t* slots = slotsOf(support::entryOf(f));
        ASSERT_TRUE(slots) << support::nameOf(f);
        std::set<uintptr_t> different;
        for (const support::Variant& v : support::variants) {
            EXPECT_EQ(slots[v.index], slots[nearest(f.bodies, v.index)]) << support::nameOf(f) << ' ' << v.code;
            different.insert(slots[v.index]);
        }
        const size_t own = (std::strlen(f.bodies) + 1) / 3;
        EXPECT_EQ(different.size(), own ? own : 1) << support::nameOf(f) << " has bodies " << f.bodies;
        ++functions;
        bodies += static_cast<int>(different.size());
    }
    std::printf("%d functions, %d bodies\n", functions, bodies);
    EXPECT_GE(functions, 500);
    EXPECT_GE(bodies, 1500);
}
