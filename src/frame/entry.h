// How a body of one processor variant is named. A kernel file is compiled once per body, with SIG5D_VARIANT (px, w7,
// s8, p8, g9 or h9) and SIG5D_LEVEL (0 to 5) defined by the build.
#pragma once
#include "frame/types.h"
#include "opaque_types.inc" // struct IppsFIRSpec_64f; ... generated from api/types.api

#define SIG5D_JOIN_(variant, name) sig5d_##variant##_##name
#define SIG5D_JOIN(variant, name) SIG5D_JOIN_(variant, name)
#define SIG5D_ENTRY(name) SIG5D_JOIN(SIG5D_VARIANT, name)
