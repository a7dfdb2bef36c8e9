// What a call needs and leaves: little stack, for hosts with many threads, and nothing in the library's own memory.
#include "support/module.h"
#include "variants/subject.h"
#include <cstring>
#include <gtest/gtest.h>
#include <map>

namespace {

using registry::Function;

constexpr size_t paintedBytes = 64 * 1024, mostStackBytes = 8 * 1024;

// What selecting a variant, or asking for the processor, sets. Whatever else a function keeps would be shared by
// threads.
const char* const kept[] = {"sig5d_variant", "sig5d_stream_bytes", "7enabledE", "5cacheE", "8featuresE"};

using Snapshot = std::vector<std::vector<uint8_t>>;
Snapshot snapshot()
{
    Snapshot all;
    for (const support::Variable& v : support::libraryVariables()) all.emplace_back(v.at, v.at + v.bytes);
    return all;
}

bool mayChange(const std::string& name)
{
    for (const char* part : kept)
        if (name.find(part) != std::string::npos) return true;
    return false;
}

// The same call with all lengths, strides and numbers of rows of one size: matrices larger than the registry draws.
registry::Arguments resized(registry::Arguments a, int size)
{
    for (int i = 0; i < a.f.argCount; ++i) {
        const registry::Arg& arg = a.f.args[i];
        if (arg.inExtent && arg.kind == registry::Kind::scalar) a.values[i].i = size;
    }
    for (int i = 0; i < a.f.argCount; ++i) {
        if (!a.f.args[i].extent) continue;
        a.extent[i] = a.f.args[i].extent(a.values.data());
        a.content[i].resize(a.null[i] ? 0 : a.bytes(i), 1);
    }
    return a;
}

// Sizes beyond those that the registry draws for several lengths; rows that begin at the same place of a cache line;
// squares beyond the caches whose rows share few sets of them.
std::vector<int> sizes(const Function& f)
{
    std::vector<int> all = {130, 301, 320};
    if (std::strstr(f.name, "Square")) all.push_back(std::strchr(f.name, 'c') ? 512 : 2048);
    return all;
}

class Footprint
{
public:
    void probe(const Function& f, const support::Variant& v)
    {
        registry::Random random(3);
        for (int length : {5, 67, 1100}) {
            registry::Arguments a = registry::build(f, random, length, registry::Pattern::tame, 0);
            call(a, v);
            if (!f.ruleCount && !f.namedCount && length == 67)
                for (int size : sizes(f)) {
                    registry::Arguments large = resized(a, size);
                    if (large.valid()) call(large, v);
                }
        }
    }

    size_t most = 0, calls = 0;
    std::string deepest;

private:
    void call(registry::Arguments& a, const support::Variant& v)
    {
        const std::string name = support::nameOf(a.f) + " in " + v.code;
        const support::Variable& threshold = support::libraryVariable("sig5d_stream_bytes");
        if (a.f.dispatched) std::memset(threshold.at, 0, threshold.bytes); // all loops there are
        stage_.put(a, {false, 0});
        const Snapshot before = snapshot();
        const registry::Answer answer = stage_.call(a, support::entryOf(a.f));
        const Snapshot after = snapshot();
        ++calls;
        for (size_t i = 0; i < before.size(); ++i) {
            const std::string& variable = support::libraryVariables()[i].name;
            EXPECT_TRUE(before[i] == after[i] || (!a.f.dispatched && mayChange(variable)))
                << name << " changes " << variable;
        }
        EXPECT_LE(answer.stackBytes, mostStackBytes) << name;
        if (answer.stackBytes <= most) return;
        most = answer.stackBytes;
        deepest = name;
    }

    support::Stage stage_;
};

} // namespace

TEST(Footprint, IsSmall)
{
    registry::surroundings.paintedStack = paintedBytes;
    Footprint footprint;
    for (const Function& f : registry::functions()) {
        if (!support::generallyCallable(f) || f.result == registry::Result::pointer) continue;
        const auto variants = f.dispatched ? support::bodiesOf(f) : std::vector<support::Variant>{support::variants[0]};
        for (const support::Variant& v : variants) {
            support::force(v);
            footprint.probe(f, v);
        }
    }
    registry::surroundings = {};
    std::printf("%zu calls; the deepest stack has %zu bytes: %s\n", footprint.calls, footprint.most,
                footprint.deepest.c_str());
    EXPECT_GT(footprint.calls, 5000u);
    EXPECT_GT(footprint.most, 1000u) << "the stack was not looked at";
    EXPECT_GE(support::libraryVariables().size(), std::size(kept));
}
