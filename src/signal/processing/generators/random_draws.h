// The integers that all random numbers are made of, a block at a time: the subtraction with borrow one by one, since
// each borrow decides the next, and the linear congruence, of which any number of steps are one, in vectors.
#pragma once
#include "kernel/lanes.h"
#include "kernel/sources.h"
#include "signal/processing/generators/random_states.h"
#include <cstddef>

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr size_t drawsAtOnce = 128;

// 1, 2, ... steps of the congruence in lanes: lcg * factor + increment.
struct LcgSteps {
    static constexpr int count = lanes<u32>;
    u32 factor[count], increment[count];
    constexpr LcgSteps() : factor{}, increment{}
    {
        u32 f = 1, c = 0;
        for (int i = 0; i < count; ++i) {
            f *= lcgFactor;
            c = c * lcgFactor + lcgIncrement;
            factor[i] = f;
            increment[i] = c;
        }
    }
};
constexpr LcgSteps lcgSteps;

// The subtraction with borrow. A step waits for its difference, s2 - s3, and for the borrow before it: two operations a
// draw. The difference of the next step but one waits for the 18 that this step takes off, or not; for that it must not
// be made of the step's result, which is the sum of the same parts in another order.
struct BorrowChain {
    u32 newest, difference, following; // the differences of the next two steps
    i32 borrow;

    u32 step(u32& difference_) // becomes the one of the next step but one
    {
        const u32 t = difference_ + static_cast<u32>(borrow);
        borrow = static_cast<i32>(t) >> 31;
        const u32 reduction = static_cast<u32>(borrow & -18);
        u32 unreduced = t - newest;
        asm("" : "+r"(unreduced)); // compilers would subtract from the result
        difference_ = unreduced + reduction;
        return newest = t + reduction;
    }
};

// The next n draws, n <= drawsAtOnce. What d has behind them, up to a whole vector, gets any values.
[[gnu::noinline]] void draw(RandomCore& core, u32* d, size_t n)
{
    BorrowChain chain = {core.s1, core.s2 - core.s3, core.s1 - core.s2, core.borrow};
    size_t done = 0;
    for (; done + 2 <= n; done += 2) {
        d[done] = chain.step(chain.difference);
        d[done + 1] = chain.step(chain.following);
    }
    if (done < n) {
        d[done] = chain.step(chain.difference);
        const u32 next = chain.following;
        chain.following = chain.difference;
        chain.difference = next;
    }
    core.s1 = chain.newest;
    core.s2 = core.s1 - chain.following;
    core.s3 = core.s2 - chain.difference;
    core.borrow = chain.borrow;

    using V = Vec<u32>;
    constexpr int L = lanes<u32>;
    const V factor = load(lcgSteps.factor), increment = load(lcgSteps.increment);
    V lcg = factor * splat(core.lcg) + increment;
    for (size_t i = 0; i < n; i += L) {
        store(d + i, load(d + i) + lcg);
        lcg = lcg * splat(lcgSteps.factor[L - 1]) + splat(lcgSteps.increment[L - 1]);
    }
    core.lcg = d[n - 1] - core.s1;
}

// Draws as numbers with a sign.
struct SignedNumber {
    f64 one(u32 x) const { return static_cast<i32>(x); }
    template <int n> auto to(const u32* p) const { return doubles<n>(load_as_32<n>(reinterpret_cast<const i32*>(p))); }
};
inline auto signed_numbers(const u32* draws) { return converted(draws, SignedNumber{}); }

} // namespace
} // namespace sig5d::SIG5D_VARIANT
