// The feature word and the rule that turns it into a processor variant.
#pragma once
#include "frame/cpuid.h"

namespace sig5d {

enum Feature : u64 {
    FeatureMmx = 0x1,
    FeatureSse = 0x2,
    FeatureSse2 = 0x4,
    FeatureSse3 = 0x8,
    FeatureSsse3 = 0x10,
    FeatureMovbe = 0x20,
    FeatureSse41 = 0x40,
    FeatureSse42 = 0x80,
    FeatureAvx = 0x100,
    FeatureAvxOs = 0x200, // the operating system saves the AVX registers
    FeatureAes = 0x400,
    FeaturePclmulqdq = 0x800,
    FeatureRdrand = 0x2000,
    FeatureF16c = 0x4000,
    FeatureAvx2 = 0x8000,
    FeatureAdx = 0x10000,
    FeatureRdseed = 0x20000,
    FeaturePrefetchw = 0x40000,
    FeatureSha = 0x80000,
    FeatureAvx512f = 0x100000,
    FeatureAvx512cd = 0x200000,
    FeatureAvx512er = 0x400000,
    FeatureAvx512pf = 0x800000,
    FeatureAvx512bw = 0x1000000,
    FeatureAvx512dq = 0x2000000,
    FeatureAvx512vl = 0x4000000,
    DoNotCompare = u64(1) << 63 // not a feature: select without asking the processor
};

// What the rule decides for a requested feature word.
struct Selection {
    int variant; // its number in frame/variants.h
    u64 enabled; // what was requested and what the variant needs; bit 63 is clear
    Status status;
};

u64 readFeatures(const Identity& id);                  // 0: the processor cannot be identified
Selection select(u64 requested);                       // bit 63 clear; whatever the processor has
Selection selectAgainst(u64 requested, u64 processor); // bit 63 clear

// Whether the processor and the operating system can run the body beyond the variants. word: what readFeatures gave.
bool runsBeyondVariants(const Identity& id, u64 word);
// The body that serves an enabled word: the variant's, or the one beyond.
int bodyFor(u64 enabled, bool runsBeyond);

bool hasDenormalsAreZeros(const Processor& p); // the bit of MXCSR that reads denormal numbers as zeros

} // namespace sig5d
