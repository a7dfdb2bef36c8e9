// How a body of one processor variant is named. A kernel file is compiled once per body, with SIG5D_VARIANT (its
// code: px, ...) and SIG5D_LEVEL (its number) defined by the build; src/variants.txt lists the variants.
#pragma once
#include "frame/types.h"
#include "opaque_types.inc" // struct IppsFIRSpec_64f; ... generated from api/types.api

#define SIG5D_JOIN_(variant, name) sig5d_##variant##_##name
#define SIG5D_JOIN(variant, name) SIG5D_JOIN_(variant, name)
#define SIG5D_ENTRY(name) SIG5D_JOIN(SIG5D_VARIANT, name)
