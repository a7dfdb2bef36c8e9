// What formulas need besides operators, for single numbers: the plain form of functions that the other files of this
// folder have for vectors. All that px has; elsewhere for single elements.
#pragma once
#include "kernel/simd/sign_bits.h"
#include <emmintrin.h>

namespace sig5d::SIG5D_VARIANT {
namespace {

inline f64 square_root(f64 x) { return __builtin_sqrt(x); }

// A bit for each lane whose condition holds.
inline int lanes_set(bool condition) { return condition; }
inline bool any(bool condition) { return condition; }
inline bool either(bool x, bool y) { return x || y; }
inline bool unordered(f64 x, f64 y) { return __builtin_isunordered(x, y); }

// Truncated to a signed 32-bit integer, -2^31 where it does not fit, as the processor's conversion does.
inline i32 truncated(f64 x) { return _mm_cvttsd_si32(_mm_set_sd(x)); }
inline f64 truncated_to_32(f64 x) { return truncated(x); }

// The number at an address, in one lane.
template <int n>
requires(n == 1) inline f64 broadcast(const f64* p) { return *p; }

} // namespace
} // namespace sig5d::SIG5D_VARIANT
