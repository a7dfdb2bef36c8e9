// The states of the random generators, which callers own: what lies in their memory, and how they are seeded. They hold
// no addresses and may lie anywhere. Callers rely on the sizes, which are the same on all platforms, and on the fields
// of the 64f states.
#pragma once
#include "frame/types.h"

namespace sig5d {
namespace {

// The generator that all of them share: the sum of a linear congruence and of a subtraction with borrow. Draw by draw,
// in 32 bits,
//     lcg = 69069 lcg + 1013904243
//     t = s2 - s3 + borrow;  borrow = t < 0 ? -1 : 0;  if (t < 0) t -= 18
//     s3 = s2;  s2 = s1;  s1 = t
// and the draw is t + lcg, a number with a sign.
struct RandomCore {
    u32 lcg, s1, s2, s3;
    i32 borrow;
};

constexpr u32 lcgFactor = 69069, lcgIncrement = 1013904243, lcgStart = 0x436CBAE9;

inline RandomCore seeded(u32 seed)
{
    const u32 s2 = lcgFactor * seed + lcgIncrement;
    return {lcgStart, seed, s2, lcgFactor * s2 + lcgIncrement, -1};
}

// Numbers r * scale + mid of draws r. A state is told from others by its tag.
template <class T> constexpr u32 uniformTag = 0;
template <> constexpr u32 uniformTag<f64> = 0x26;
template <> constexpr u32 uniformTag<i16> = 0x24;
template <> constexpr u32 uniformTag<u8> = 0x23;

template <class T> struct UniformState {
    static constexpr u32 ownTag = uniformTag<T>;
    u32 tag, seed;
    T low, high;
    alignas(8) f64 mid, scale;
    RandomCore core;
};
static_assert(sizeof(UniformState<f64>) == 64 && sizeof(UniformState<i16>) == 56 && sizeof(UniformState<u8>) == 56);

template <class T> inline void seed(UniformState<T>& s, T low, T high, u32 value)
{
    const f64 a = low, b = high;
    __builtin_memset(&s, 0, sizeof s); // what lies between the fields, too
    s.tag = uniformTag<T>;
    s.seed = value;
    s.low = low;
    s.high = high;
    s.mid = (a + b) * 0.5;
    s.scale = (b - a) * 0x1p-32;
    s.core = seeded(value);
}

// Normal numbers, two from each accepted pair of draws. When the last call took one of them, the other is made of u1
// and factor.
template <class T> constexpr u32 normalTag = 0;
template <> constexpr u32 normalTag<f64> = 0x2A;
template <> constexpr u32 normalTag<f32> = 0x29;
template <> constexpr u32 normalTag<i16> = 0x28;
template <> constexpr u32 normalTag<u8> = 0x27;

template <class T> struct NormalState {
    static constexpr u32 ownTag = normalTag<T>;
    u32 tag, seed;
    T mean, stdDev;
    RandomCore core;
    u32 nothingPending; // 1, or 0
    alignas(8) f64 u1, factor, u2, unused;
};
static_assert(sizeof(NormalState<f64>) == 80 && sizeof(NormalState<f32>) == 72 && sizeof(NormalState<i16>) == 72 &&
              sizeof(NormalState<u8>) == 72);

template <class T> inline void seed(NormalState<T>& s, T mean, T stdDev, u32 value)
{
    __builtin_memset(&s, 0, sizeof s);
    s.tag = normalTag<T>;
    s.seed = value;
    s.mean = mean;
    s.stdDev = stdDev;
    s.core = seeded(value);
    s.nothingPending = 1;
}

} // namespace
} // namespace sig5d
