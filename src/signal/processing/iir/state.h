// The state of an IIR filter: a head, the taps and the delay line, all in the caller's buffer. The head tells where the
// others are, so that they can move towards it where the buffer is tight.
#pragma once
#include "frame/types.h"

namespace sig5d {

struct IirState {
    u32 tag;
    f64* taps;
    f64* delays;
    i32 count; // of delays: the order, or two for each section
    i32 reserved[2];
    i32 sections; // of a cascade
    i32 reservedToo;
};

enum IirTag : u32 { direct64f = 0x49493133, cascade64f, direct64fc, cascade64fc };

// Taps are divided by a0: b0 to bN and then a1 to aN of a filter of order N, b0 b1 b2 a1 a2 of each section. Behind the
// delays of a filter that is no cascade stands a zero. Arrays of complex numbers have all their real parts first, then
// all their imaginary parts.
constexpr i64 tapsOfOrder(i64 order) { return 2 * order + 1; }
constexpr i64 delaysOfOrder(i64 order) { return order + 1; }
constexpr i64 tapsOfSection = 5, delaysOfSection = 2;

} // namespace sig5d
