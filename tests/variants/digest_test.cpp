// One digest per function over fixed inputs: the same bits on every platform, compiler and processor, for ever.
// With SIG5D_UPDATE_DIGESTS set the committed list is written instead of compared.
#include "support/sha256.h"
#include "support/stage.h"
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <map>

namespace {

using registry::Arguments;
using registry::Element;
using registry::Function;

// A NaN that arithmetic made has no payload worth keeping.
template <class F> void canonicalise(std::vector<uint8_t>& bytes)
{
    for (size_t i = 0; i + sizeof(F) <= bytes.size(); i += sizeof(F)) {
        F x;
        std::memcpy(&x, &bytes[i], sizeof x);
        if (!std::isnan(x)) continue;
        x = std::numeric_limits<F>::quiet_NaN();
        std::memcpy(&bytes[i], &x, sizeof x);
    }
}

void addOutputs(support::Sha256& sum, const Arguments& a, const support::Stage& stage)
{
    for (int i = 0; i < a.f.argCount; ++i) {
        const registry::Arg& arg = a.f.args[i];
        if (!support::isOutput(arg) || a.null[i]) continue;
        std::vector<uint8_t> bytes(stage.now(i), stage.now(i) + a.bytes(i));
        if (!a.f.movesBits) {
            if (arg.element == Element::f32 || arg.element == Element::c32f) canonicalise<float>(bytes);
            if (arg.element == Element::f64 || arg.element == Element::c64f) canonicalise<double>(bytes);
        }
        sum.add(bytes.data(), bytes.size());
    }
}

// Numbers that the function has refused to work on would be a digest of nothing.
std::string digest(const Function& f)
{
    int calls = 0;
    support::Stage stage;
    support::Sha256 sum;
    registry::Random random(2017);
    for (int round = 0; round < 60; ++round) {
        const long long length = round < 40 ? 1 + random.below(70) : 200 + random.below(1500);
        const auto pattern = static_cast<registry::Pattern>(round % static_cast<int>(registry::Pattern::count));
        Arguments a = registry::build(f, random, length, pattern, 0);
        if (!a.valid()) continue;
        stage.put(a, {true, 0});
        const auto answer = stage.call(a, support::entryOf(f));
        sum.add(&answer.status, sizeof answer.status);
        if (f.result == registry::Result::f64) sum.add(&answer.number, sizeof answer.number);
        calls += f.result != registry::Result::status || answer.status >= 0;
        addOutputs(sum, a, stage);
    }
    EXPECT_GE(calls, 30) << support::nameOf(f) << " refuses most of its calls";
    return sum.hex();
}

std::string path() { return std::string(SIG5D_SOURCE_DIR) + "/tests/variants/digests.tsv"; }

} // namespace

TEST(Digests, AreTheCommittedOnes)
{
    std::map<std::string, std::string> found;
    for (const Function& f : registry::functions())
        if (*f.bodies && support::generallyCallable(f) && f.result != registry::Result::pointer)
            found[support::nameOf(f)] = digest(f);

    if (std::getenv("SIG5D_UPDATE_DIGESTS")) {
        std::ofstream file(path(), std::ios::binary);
        for (const auto& [name, value] : found) file << name << '\t' << value << '\n';
        return;
    }
    std::map<std::string, std::string> committed;
    std::ifstream file(path());
    ASSERT_TRUE(file);
    for (std::string name, value; file >> name >> value;) committed[name] = value;
    for (const auto& [name, value] : found) EXPECT_EQ(committed[name], value) << name;
    EXPECT_EQ(committed.size(), found.size());
}
