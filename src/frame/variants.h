// The processor variants of src/variants.txt, lowest first. A variant's number is its place here.
#pragma once
#include "frame/types.h"

namespace sig5d {

struct Variant {
    char code[4];
    u32 features; // the feature word that selects it, with all that it needs
    char title[20];
};

constexpr Variant variants[] = {
#include "variant_table.inc" // generated
};

} // namespace sig5d
