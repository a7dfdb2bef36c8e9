// The vocabulary of vectors: one set of functions for each width of register that the body may use, each width with
// those below it. Kernels above it are written once.
#pragma once
#include "kernel/simd/scalar.h"
#if SIG5D_LEVEL == 0
#elif SIG5D_LEVEL < 4
#include "kernel/simd/integers_128.h"
#include "kernel/simd/numbers_128.h"
#elif SIG5D_LEVEL < 5 // AVX: numbers in 32 bytes, integers in 16
#include "kernel/simd/integers_128.h"
#include "kernel/simd/numbers_256.h"
#elif SIG5D_LEVEL < 6
#include "kernel/simd/integers_256.h"
#include "kernel/simd/numbers_256.h"
#else
#include "kernel/simd/integers_512.h"
#include "kernel/simd/numbers_512.h"
#endif
#if SIG5D_LEVEL > 0
#include "kernel/simd/masks.h"
#include "kernel/simd/pairs.h"
#endif
