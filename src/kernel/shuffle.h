// Shuffles of doubles within each 16 bytes of vectors. All by one instruction, which newer processors execute at two
// places: the compiler takes others where it sees a choice, and half of them run at one (0.5 against 1 cycle measured
// on Sapphire Rapids; complex products at 0.9 against 1.6 cycles).
#pragma once
#include "kernel/select.h"
#if SIG5D_LEVEL > 0

namespace sig5d::SIG5D_VARIANT {
namespace {

// Even lanes from a, odd lanes from b; bit i of "seconds" set: lane i is the second of its pair, else the first.
template <int seconds, class V> inline V shuffled(V a, V b)
{
#if SIG5D_LEVEL >= 4
    V v;
    asm("vshufpd %3, %2, %1, %0" : "=x"(v) : "x"(a), "x"(b), "i"(seconds));
    return v;
#else
    asm("shufpd %2, %1, %0" : "+x"(a) : "x"(b), "i"(seconds));
    return a;
#endif
}

// The parts of each pair exchanged; the imaginary part twice; the real part twice.
template <class V> inline V swapped(V v) { return shuffled<allLanes<V> & 5>(v, v); }
template <class V> inline V imaginary_lanes(V v) { return shuffled<allLanes<V>>(v, v); }
template <class V> inline V real_lanes(V v)
{
    // Costs nothing but the load where v is in memory.
#if SIG5D_LEVEL >= 4
    if constexpr (sizeof(V) == 32) return _mm256_movedup_pd(v);
#endif
#if SIG5D_LEVEL >= 2
    if constexpr (sizeof(V) == 16) return _mm_movedup_pd(v);
#endif
    return shuffled<0>(v, v);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
#endif
