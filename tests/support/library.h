// The library under test: its exports by name, and a forced processor variant.
#pragma once
#include "sig5d.h"
#include <cstdint>
#include <ostream>
#include <vector>

namespace support {

using Entry = void (*)();

Entry find(const char* name); // null: not exported

struct Variant {
    const char* code;
    int index;
    Ipp64u features; // what selects it
};
extern const Variant variants[6];
inline void PrintTo(const Variant& v, std::ostream* out) { *out << v.code; }

void force(const Variant& v); // whatever the processor has
const Variant& current(); // the variant that answers
std::vector<Variant> supported(); // those that this processor can run

} // namespace support
