// The _Idx rule: the same call with pointers moved by index times unit, work buffers by bytes and only when there are
// any.
#include "support/stage.h"
#include <cstring>
#include <gtest/gtest.h>

namespace {

using registry::Arguments;
using registry::Element;
using registry::Function;
using registry::Kind;

// What an index counts, by the public types and not by the description. 24-bit integers and bit strings have no type of
// their own: their arrays are arrays of bytes.
int unitOf(Element e)
{
    switch (e) {
    case Element::u8:
    case Element::i8:
    case Element::bits:
    case Element::u24:
    case Element::i24:
        return sizeof(Ipp8u);
    case Element::u16:
    case Element::i16:
        return sizeof(Ipp16s);
    case Element::f16:
        return sizeof(Ipp16f);
    case Element::c16s:
        return sizeof(Ipp16sc);
    case Element::u32:
    case Element::i32:
        return sizeof(Ipp32s);
    case Element::f32:
        return sizeof(Ipp32f);
    case Element::c32s:
        return sizeof(Ipp32sc);
    case Element::c32f:
        return sizeof(Ipp32fc);
    case Element::u64:
    case Element::i64:
        return sizeof(Ipp64s);
    case Element::f64:
        return sizeof(Ipp64f);
    case Element::c64s:
        return sizeof(Ipp64sc);
    case Element::c64f:
        return sizeof(Ipp64fc);
    case Element::none:
        break;
    }
    return 0;
}

struct Tally {
    int functions = 0, indexes = 0;
    long long calls = 0;
};

// Never 0, and another one for each argument.
int someIndex(registry::Random& random, int number)
{
    return (static_cast<int>(random.below(100)) * 10 + number + 1) * (random.oneIn(2) ? 1 : -1);
}

// The _Idx form, told of each array by an address elsewhere and the index that leads to it.
registry::Answer callIndexed(const Arguments& a, registry::Entry indexed, support::Stage& stage,
                             registry::Random& random, Tally& tally)
{
    std::vector<registry::Value> moved = a.values;
    std::vector<int> indexes;
    for (int i = 0; i < a.f.argCount; ++i) {
        const registry::Arg& arg = a.f.args[i];
        if (!registry::takesIndex(arg)) continue;
        indexes.push_back(someIndex(random, i));
        const intptr_t unit = arg.kind == Kind::work ? 1 : unitOf(arg.element);
        EXPECT_GT(unit, 0) << a.f.name << ' ' << arg.name;
        if (moved[i].p) {
            const auto step = static_cast<uintptr_t>(indexes.back() * unit);
            moved[i].p = reinterpret_cast<void*>(reinterpret_cast<uintptr_t>(moved[i].p) - step);
            ++tally.indexes;
        } else if (arg.kind == Kind::array) {
            indexes.back() = 0; // null with index 0 reaches the function as null
        }
    }
    return stage.callIndexed(a, indexed, moved.data(), indexes.data());
}

// Whether there was something to compare.
bool compareForms(const Function& f, support::Stage& stage, registry::Random& random, Tally& tally)
{
    Arguments a = registry::build(f, random, 1 + random.below(40), registry::Pattern::adversarial, 0);
    if (!a.valid()) return false;
    const registry::Entry indexed = support::find((std::string(f.name) + "_Idx").c_str());
    EXPECT_TRUE(indexed) << f.name;
    if (!indexed) return false;

    // A form that is not exported is compared with the same call by indexes of 0.
    stage.put(a, {true, 0});
    const auto plain = stage.call(a, support::entryOf(f));
    const support::Outcome expected = support::outcomeOf(a, stage, plain);
    const bool refused = f.result == registry::Result::status && plain.status < 0;
    EXPECT_TRUE(!refused || support::mayRefuse(f)) << f.name << " refuses valid arguments";

    stage.put(a, {true, 0});
    const auto viaIndex = callIndexed(a, indexed, stage, random, tally);
    EXPECT_EQ(viaIndex.intrusion, "") << f.name;
    EXPECT_EQ(stage.strayWrite(a), "") << f.name;
    EXPECT_EQ(support::unlike(expected, a, stage, viaIndex), "") << f.name;
    ++tally.calls;
    return true;
}

} // namespace

TEST(Index, MovesEveryArrayByItsUnit)
{
    support::Stage stage;
    registry::Random random(5);
    Tally tally;
    for (const Function& f : registry::functions()) {
        const bool byRule = f.index == registry::IndexForm::automatic || f.index == registry::IndexForm::only;
        if (!byRule || f.result == registry::Result::pointer || !support::generallyCallable(f)) continue;
        long long compared = 0;
        for (int i = 0; i < 20; ++i) compared += compareForms(f, stage, random, tally);
        EXPECT_GE(compared, 10) << f.name << " is hardly tested";
        ++tally.functions;
    }
    std::printf("%d functions, %lld pairs of calls, %d pointers moved\n", tally.functions, tally.calls, tally.indexes);
    EXPECT_GE(tally.functions, 500);
    EXPECT_GE(tally.indexes, 15000);
}

// What the description says of units and sizes is what the public types say.
TEST(Index, UnitsAreThoseOfThePublicTypes)
{
    for (const Function& f : registry::functions())
        for (int i = 0; i < f.argCount; ++i) {
            const registry::Arg& arg = f.args[i];
            if (arg.kind != Kind::array) continue;
            const bool threeBytes = arg.element == Element::u24 || arg.element == Element::i24;
            EXPECT_EQ(arg.indexBytes, unitOf(arg.element)) << f.name << ' ' << arg.name;
            EXPECT_EQ(arg.elementBytes, threeBytes ? 3 : unitOf(arg.element)) << f.name << ' ' << arg.name;
            EXPECT_EQ(arg.elementBytes, registry::elementBytes(arg.element)) << f.name << ' ' << arg.name;
        }
}

TEST(Index, SameEntryWhereThereIsNothingToIndex)
{
    EXPECT_EQ(support::find("ippsGetLibVersion"), support::find("ippsGetLibVersion_Idx"));
}
