// The stage sees what a function does to memory that it must not touch, and gives back the memory that it used.
#include "support/stage.h"
#include <gtest/gtest.h>

namespace {

using registry::Arg;
using registry::Element;
using registry::InPlace;
using registry::Kind;

Arg array(const char* name, bool isConst)
{
    Arg arg = {};
    arg.name = name;
    arg.kind = Kind::array;
    arg.element = Element::u8;
    arg.elementBytes = arg.indexBytes = 1;
    arg.isConst = isConst;
    return arg;
}

// A function of a longer source and a shorter destination.
struct Scene {
    Arg args[2] = {array("src", true), array("dst", false)};
    registry::Function f = {};
    Scene() { f.name = "function", f.args = args, f.argCount = 2; }

    registry::Arguments arguments() const
    {
        registry::Arguments a(f);
        a.extent = {20, 12};
        a.content = {std::vector<uint8_t>(20, 1), std::vector<uint8_t>(12, 2)};
        return a;
    }
};

uint8_t* bytes(const registry::Arguments& a, int i)
{
    return static_cast<uint8_t*>(a.values[static_cast<size_t>(i)].p);
}

} // namespace

TEST(Stage, SeesEveryByteAroundAnArray)
{
    const Scene scene;
    registry::Arguments a = scene.arguments();
    support::Stage stage;
    for (support::Place place :
         {support::Place{true, 0}, support::Place{true, 9}, support::Place{false, 0}, support::Place{false, 9}})
        for (int at = -9; at < 12 + 9; ++at) {
            const bool inside = at >= 0 && at < 12, guarded = place.offset == 0 && !inside && place.atEnd == (at > 0);
            if (guarded) continue; // the process would end here
            stage.put(a, place);
            EXPECT_EQ(stage.changed(a), "");
            bytes(a, 1)[at] = 77;
            EXPECT_EQ(stage.strayWrite(a), inside ? "" : "dst") << at;
            EXPECT_EQ(stage.changed(a), "dst") << at;
            EXPECT_EQ(bytes(a, 0)[19], 1);
        }
}

// The destination is the source's beginning: what lies behind it still belongs to the source.
TEST(Stage, SeesWritesBehindADestinationThatIsItsSource)
{
    const Scene scene;
    registry::Arguments a = scene.arguments();
    support::Stage stage;
    for (int at = 0; at < 20 + 5; ++at) {
        stage.putEach(a, {{false, 3}, {true, 40}}, {InPlace{1, 0}});
        ASSERT_EQ(bytes(a, 0), bytes(a, 1));
        bytes(a, 1)[at] = 77;
        EXPECT_EQ(stage.strayWrite(a), at < 12 ? "" : "dst") << at;
    }
}

TEST(Stage, SharesPairsAloneAndTogether)
{
    const InPlace pairs[] = {{2, 0}, {2, 1}, {3, 0}, {3, 1}}; // of two sources and two destinations
    registry::Function f = {};
    f.inPlace = pairs;
    f.inPlaceCount = 4;
    size_t together = 0;
    for (const support::Shared& shared : support::sharings(f)) {
        together += shared.size() == 2;
        if (shared.size() == 2) {
            EXPECT_NE(shared[0].source, shared[1].source);
        }
    }
    EXPECT_GE(support::sharings(f).size(), 6u);
    EXPECT_GE(together, 2u);
}

// More than a 32-bit process could hold at a time.
TEST(GuardedRegion, GivesItsAddressesBack)
{
    for (int i = 0; i < 300; ++i) {
        support::GuardedRegion region(4 << 20);
        region.own()[region.size() - 1] = static_cast<uint8_t>(i);
        ASSERT_EQ(region.readOnly()[region.size() - 1], static_cast<uint8_t>(i));
    }
}
