// The processor variant in use, chosen once per process, or by ippSetCpuFeatures.
#pragma once
#include "frame/types.h"

extern "C" {
extern SIG5D_HIDDEN int sig5d_variant; // -1 until the first call of a primitive; the stubs read it
SIG5D_HIDDEN void sig5d_initialise();  // what the first call of a primitive runs
}
