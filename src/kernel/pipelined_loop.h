// A loop for operations of dozens of steps, each of which waits for the one before. An operation comes in two halves,
// and the first half for the next vector is computed between the halves for this one: so the processor, whose view
// ahead ends within one vector's steps, always finds some that wait for nothing.
#pragma once
#include "kernel/parts.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// d[i] = op.second(op.first(a[i], ...)) for 0 <= i < n. A source may be d itself. The last vector overlaps the one
// before it, whose elements are stored after the last vector is loaded. Stands in one place only, or operations so long
// would fill the instruction cache.
template <class D, class Op, class... A> [[gnu::always_inline]] inline void map_pipelined(size_t n, D d, Op op, A... a)
{
    constexpr size_t L = lanes<f64>;
    if (n < L) {
        for (size_t i = 0; i < n; ++i) store_numbers(Ordinary{}, d + i, op.second(op.first(loadn<1>(a + i)...)));
        return;
    }
    const size_t last = n - L;
    auto half_done = op.first(loadn<L>(a)...);
    for (size_t i = 0;;) {
        const size_t next = i + L < last ? i + L : last;
        const auto following = op.first(loadn<L>(a + next)...);
        store_numbers(Ordinary{}, d + i, op.second(half_done));
        if (i == last) return;
        half_done = following;
        i = next;
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
