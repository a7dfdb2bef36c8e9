// The draws that all random numbers are made of: the subtraction with borrow one by one, since each borrow decides the
// next, and the linear congruence, of which any number of steps are one, in vectors.
#pragma once
#include "kernel/lanes.h"
#include "kernel/map.h"
#include "signal/processing/generators/random_states.h"
#include <cstddef>

namespace sig5d::SIG5D_VARIANT {
namespace {

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
// draw. The difference of the next step but one waits for the 18 that this step takes off, or not, beside them; for
// that it must not be made of the step's result, which is the sum of the same parts in another order.
struct BorrowChain {
    u32 newest, difference, following; // the differences of the next two steps
    i32 borrow;

    u32 step(u32& own) // becomes the difference of the next step but one
    {
        const u32 t = own + static_cast<u32>(borrow);
        borrow = static_cast<i32>(t) >> 31;
        const u32 reduction = static_cast<u32>(borrow & -18);
        u32 unreduced = t - newest;
        asm("" : "+r"(unreduced)); // compilers find other orders of these sums
        own = unreduced + reduction;
        asm("" : "+r"(own));
        return newest = t + reduction;
    }
};

// The state between two draws.
class Drawing
{
public:
    explicit Drawing(RandomCore& core)
        : core_(core), chain_{core.s1, core.s2 - core.s3, core.s1 - core.s2, core.borrow}, lcg_(core.lcg)
    {
    }
    ~Drawing()
    {
        const u32 s2 = chain_.newest - chain_.following;
        core_ = {lcg_, chain_.newest, s2, s2 - chain_.difference, chain_.borrow};
    }

    // One draw.
    u32 next()
    {
        const u32 s = chain_.step(chain_.difference), later = chain_.following;
        chain_.following = chain_.difference;
        chain_.difference = later;
        return s + (lcg_ = lcg_ * lcgFactor + lcgIncrement);
    }

    // use(i, v) for each of so many vectors v, in order. The chain waits for itself most of the time: beside it a
    // processor has time for what is made of earlier draws. It goes two vectors behind, since a load that covers
    // several stores waits until all of them have reached the cache (2.2 instead of 2.4 cycles a draw in h9, 2.9
    // instead of 3.9 in w7).
    template <class V = Vec<u32>, class Use> [[gnu::always_inline]] void vectors(size_t n, Use use)
    {
        if constexpr (L == 1) {
            for (size_t i = 0; i < n; ++i) use(i, next());
        } else {
            if (n == 0) return;
            constexpr size_t behind = 2;
            alignas(64) u32 waiting[2 * behind][L];
            V lcg = load(lcgSteps.factor) * splat(lcg_) + load(lcgSteps.increment), last = lcg;
            for (size_t i = 0; i < n + behind; ++i) {
                if (i < n) add(waiting[i % (2 * behind)]);
                if (i < behind) continue;
                use(i - behind, load(waiting[(i - behind) % (2 * behind)]) + lcg);
                last = lcg;
                lcg = lcg * splat(lcgSteps.factor[L - 1]) + splat(lcgSteps.increment[L - 1]);
            }
            lcg_ = last[L - 1];
        }
    }

private:
    static constexpr int L = lanes<u32>;

    [[gnu::always_inline]] void add(u32 (&d)[L])
    {
#pragma GCC unroll 16
        for (int i = 0; i < L; i += 2) {
            d[i] = chain_.step(chain_.difference);
            d[i + 1] = chain_.step(chain_.following);
        }
    }

    RandomCore& core_;
    BorrowChain chain_;
    u32 lcg_;
};

// Draws as numbers with a sign.
struct SignedNumber {
    f64 one(u32 x) const { return static_cast<i32>(x); }
    template <int n> auto to(const u32* p) const { return doubles<n>(load_as_32<n>(reinterpret_cast<const i32*>(p))); }
};
struct Linear {
    f64 factor, offset;
    template <class V> V operator()(V x) const { return x * constant<V>(factor) + constant<V>(offset); }
};

// d[i] = r * factor + offset for the next n draws r.
[[gnu::noinline]] void draw_numbers(RandomCore& core, f64* d, size_t n, Linear linear)
{
    constexpr size_t L = static_cast<size_t>(lanes<u32>);
    Drawing drawing(core);
    drawing.vectors(n / L, [=](size_t i, auto draws) {
        if constexpr (L == 1) {
            d[i] = linear(SignedNumber{}.one(draws));
        } else {
            const auto integers = as<Vec<i32>>(draws);
            store(d + i * L, linear(lower_doubles(integers)));
            store(d + i * L + L / 2, linear(upper_doubles(integers)));
        }
    });
    if constexpr (L > 1) {
        u32 last[L];
        for (size_t i = 0; i < n % L; ++i) last[i] = drawing.next();
        map<Heavy<2>>(n % L, d + n / L * L, linear, converted(last, SignedNumber{}));
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
