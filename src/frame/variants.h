// The processor variants of src/variants.txt, lowest first, and the body beyond them. The number of each is its place
// here.
#pragma once
#include "frame/types.h"

namespace sig5d {

struct Variant {
    char code[4]; // what the library answers with
    u32 features; // the feature word that selects it, with all that it needs
    char title[20];
};

constexpr Variant variants[] = {
#include "variant_table.inc" // generated
};

constexpr int beyondVariants = sizeof variants / sizeof *variants - 1;

} // namespace sig5d
