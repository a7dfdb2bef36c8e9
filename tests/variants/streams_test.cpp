// States that described functions make: what one variant has made serves every other, and calls that go on with a
// stream give the same bits in all of them. A state has just the memory that was asked for, next to an inaccessible
// page, at any address, and is read-only where a call must not change it.
#include "variants/streams.h"
#include <gtest/gtest.h>
#include <set>

TEST(States, ServeAllVariantsAndContinueTheirStreams)
{
    int functions = 0, updating = 0;
    long long calls = 0;
    for (const registry::Function& f : registry::functions()) {
        if (!registry::takesState(f) || !support::generallyCallable(f)) continue;
        variants::Streams streams(f);
        for (int round = 0; round < 48 && !HasFailure(); ++round) EXPECT_EQ(streams.difference(round), "");
        EXPECT_GE(streams.calls(), 1000) << f.name << " is hardly tested";
        calls += streams.calls();
        ++functions;
        updating += registry::updatesState(f);
        if (HasFailure()) break;
    }
    std::printf("%d functions take states, %d change them: %lld calls\n", functions, updating, calls);
    EXPECT_GE(functions, 10);
    EXPECT_GE(updating, 4);
}

// What no function takes would never be looked at.
TEST(States, WhatIsMadeIsUsed)
{
    std::set<const registry::Function*> used;
    for (const registry::Function& f : registry::functions())
        for (int i = 0; i < f.argCount; ++i)
            for (int k = 0; k < f.args[i].makerCount; ++k)
                used.insert(registry::begin() + f.args[i].makers[k].function);
    for (const registry::Function& f : registry::functions()) {
        if (f.makes.what >= 0) {
            EXPECT_TRUE(used.count(&f)) << f.name;
        }
        for (int i = 0; i < f.argCount; ++i) {
            const bool record = f.args[i].kind == registry::Kind::opaque || f.args[i].kind == registry::Kind::handle;
            EXPECT_FALSE(record && f.makes.what != i && !f.args[i].makers)
                << f.name << ": nobody knows where " << f.args[i].name << " comes from";
        }
    }
}
