// The element types as the kernels write them, and the status codes: u8 i16 f64 c64f, StsNoErr.
#pragma once
#include "sig5d_types.h"

// Symbols are hidden unless they say otherwise; the DLL's export table is a list of its own.
#ifdef __ELF__
#define SIG5D_EXPORT __attribute__((visibility("default")))
#define SIG5D_HIDDEN __attribute__((visibility("hidden")))
#else
#define SIG5D_EXPORT
#define SIG5D_HIDDEN
#endif

namespace sig5d {
using u8 = Ipp8u;
using i8 = Ipp8s;
using u16 = Ipp16u;
using i16 = Ipp16s;
using u32 = Ipp32u;
using i32 = Ipp32s;
using u64 = Ipp64u;
using i64 = Ipp64s;
using f32 = Ipp32f;
using f64 = Ipp64f;
using c16s = Ipp16sc;
using c32s = Ipp32sc;
using c32f = Ipp32fc;
using c64s = Ipp64sc;
using c64f = Ipp64fc;

// Types of their own, so that a kernel can be overloaded on them: 24-bit integers in three bytes (least significant
// first) and half-precision numbers.
struct u24 {
    u8 b[3];
};
struct i24 {
    u8 b[3];
};
struct f16 {
    u16 bits;
};

using Status = IppStatus;
enum : Status {
#include "statuses.inc" // StsNoErr = 0, ... generated from api/status.api
};
} // namespace sig5d
