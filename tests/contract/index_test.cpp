// The _Idx rule: the same call with pointers moved by index times unit, work buffers by bytes and only when there are any.
#include "support/stage.h"
#include <cstring>
#include <gtest/gtest.h>

namespace {

using registry::Arguments;
using registry::Function;

struct Outcome {
    registry::Answer answer;
    std::vector<std::vector<uint8_t>> outputs;
};

Outcome outcome(const Arguments& a, const support::Stage& stage, const registry::Answer& answer)
{
    Outcome o{answer, {}};
    for (int i = 0; i < a.f.argCount; ++i)
        if (support::isOutput(a.f.args[i]) && !a.null[i]) o.outputs.emplace_back(stage.now(i), stage.now(i) + a.bytes(i));
    return o;
}

void compareForms(const Function& f, support::Stage& stage, registry::Random& random)
{
    Arguments a = registry::build(f, random, 1 + random.below(40), registry::Pattern::adversarial, 0);
    const registry::Entry indexed = support::find((std::string(f.name) + "_Idx").c_str());
    ASSERT_TRUE(indexed) << f.name;

    stage.put(a, {true, 0});
    std::vector<int> indexes;
    Arguments moved = a;
    for (int i = 0; i < f.argCount; ++i)
        if (registry::takesIndex(f.args[i])) {
            const int index = static_cast<int>(random.below(2001)) - 1000;
            indexes.push_back(index);
            if (moved.values[i].p) // the base lies elsewhere, the element where the plain call has it
                moved.values[i].p = reinterpret_cast<void*>(reinterpret_cast<uintptr_t>(a.values[i].p) -
                                                            static_cast<uintptr_t>(static_cast<intptr_t>(index) * f.args[i].indexBytes));
            else if (f.args[i].kind == registry::Kind::array)
                indexes.back() = 0; // null with index 0 reaches the function as null
        }
    const auto viaIndex = outcome(a, stage, stage.callIndexed(a, indexed, moved.values.data(), indexes.data()));
    EXPECT_EQ(viaIndex.answer.intrusion, "") << f.name;
    if (!f.hasPlain()) return; // compared with literal oracles elsewhere

    stage.put(a, {true, 0});
    const auto plain = outcome(a, stage, stage.call(a, support::entryOf(f)));
    EXPECT_EQ(plain.answer.status, viaIndex.answer.status) << f.name;
    EXPECT_EQ(plain.outputs, viaIndex.outputs) << f.name;
}

} // namespace

TEST(Index, MovesEveryArrayByItsUnit)
{
    support::Stage stage;
    registry::Random random(5);
    for (const Function& f : registry::functions()) {
        const bool byRule = f.index == registry::IndexForm::automatic || f.index == registry::IndexForm::only;
        if (!byRule || f.result == registry::Result::pointer || !support::generallyCallable(f)) continue;
        for (int i = 0; i < 20; ++i) compareForms(f, stage, random);
    }
}

TEST(Index, SameEntryWhereThereIsNothingToIndex)
{
    EXPECT_EQ(support::find("ippsGetLibVersion"), support::find("ippsGetLibVersion_Idx"));
}
