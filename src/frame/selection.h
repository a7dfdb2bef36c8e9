// The processor variant in use, chosen once per process, or by ippSetCpuFeatures.
#pragma once
#include "frame/shared_word.h"

extern "C" {
// Its index is the lower half, which the stubs read: -1 until the first call of a primitive. The upper half counts how
// often it was set.
extern SIG5D_HIDDEN sig5d::SharedWord sig5d_variant;

SIG5D_HIDDEN void sig5d_initialise(); // what the first call of a primitive runs
}
