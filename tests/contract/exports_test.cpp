// The export table against a witness that is not made from the interface description.
#include "registry.h"
#include "support/library.h"
#include "support/stage.h"
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>

namespace {

struct Expected {
    std::string half, convention, result, bytes;
};

std::ifstream open(const std::string& name)
{
    std::ifstream file(std::string(SIG5D_SOURCE_DIR) + "/tests/contract/" + name);
    EXPECT_TRUE(file) << name;
    return file;
}

std::map<std::string, Expected> witness()
{
    std::map<std::string, Expected> all;
    auto file = open("expected_exports.tsv");
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
        std::istringstream cells(line);
        std::string name;
        Expected e;
        cells >> name >> e.half >> e.convention >> e.result >> e.bytes;
        all[name] = e;
    }
    return all;
}

std::string resultName(const registry::Function& f)
{
    using registry::Result;
    switch (f.result) {
    case Result::status:
        return "status";
    case Result::none:
        return "void";
    case Result::i32:
        return "32s";
    case Result::u32:
        return "32u";
    case Result::u64:
        return "64u";
    case Result::f64:
        return "64f";
    default:
        return "ptr";
    }
}

int bytes(const registry::Function& f, bool indexed)
{
    int sum = 0;
    for (int i = 0; i < f.argCount; ++i)
        sum += f.args[i].stackBytes + (indexed && registry::takesIndex(f.args[i]) ? 4 : 0);
    return sum;
}

void compare(const Expected& e, const registry::Function& f, bool indexed)
{
    EXPECT_EQ(e.half, f.half == registry::Half::ipp ? "ipp" : "own");
    EXPECT_EQ(e.convention, f.standardCall && !indexed ? "stdcall" : "cdecl");
    EXPECT_EQ(e.result, resultName(f));
    if (e.bytes != "-") { // - : not settled by the witness
        EXPECT_EQ(e.bytes, std::to_string(bytes(f, indexed)));
    }
}

} // namespace

TEST(Exports, AgreeWithTheWitness)
{
    const auto expected = witness();
    EXPECT_EQ(expected.size(), 1437u);
    std::set<std::string> described;
    for (const registry::Function& f : registry::functions()) {
        const std::string plain = f.index == registry::IndexForm::only ? f.name : support::nameOf(f);
        const bool written = f.index == registry::IndexForm::written;
        if (f.hasPlain() || written) {
            SCOPED_TRACE(plain);
            described.insert(plain);
            ASSERT_TRUE(expected.count(plain));
            compare(expected.at(plain), f, false);
            EXPECT_TRUE(support::find(plain.c_str()));
        } else {
            EXPECT_FALSE(support::find(plain.c_str())) << plain;
        }
        if (f.hasIndex() && !written) {
            const std::string name = plain + "_Idx";
            SCOPED_TRACE(name);
            described.insert(name);
            ASSERT_TRUE(expected.count(name));
            compare(expected.at(name), f, true);
            EXPECT_TRUE(support::find(name.c_str()));
        }
    }
    for (const auto& [name, e] : expected) {
        EXPECT_TRUE(described.count(name)) << name;
        EXPECT_TRUE(support::find(name.c_str())) << name;
    }
}

// Nothing is skipped in silence: what the general tests do not call stands in the description with a reason, and here.
TEST(Exports, AllAreTestedButThese)
{
    std::map<std::string, std::string> reasons;
    for (const registry::Function& f : registry::functions())
        if (!support::generallyCallable(f)) reasons[f.name] = f.untested;
    for (const auto& [name, reason] : reasons) std::printf("%s: %s\n", name.c_str(), reason.c_str());
    const std::set<std::string> expected = {"ippGetCpuFeatures", "ippGetCpuFreqMhz", "ippSetCpuFeatures",
                                            "ippSetDenormAreZeros", "ippsRandGauss_64f"};
    std::set<std::string> found;
    for (const auto& [name, reason] : reasons) found.insert(name);
    EXPECT_EQ(found, expected);
}
