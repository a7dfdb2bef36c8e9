// The library that the registry describes: its exports by name, and a forced processor variant.
#pragma once
#include "registry.h"
#include "sig5d.h"
#include <ostream>
#include <string>
#include <vector>

namespace registry {

Entry exported(const char* name);      // null: no such export
std::string nameOf(const Function& f); // of the plain form, or of the _Idx form where there is no other
inline Entry entryOf(const Function& f) { return exported(nameOf(f).c_str()); }

struct Variant {
    const char* code;
    int index;
    Ipp64u features;     // what selects it
    const char* answers; // the code of the variant that ippsGetLibVersion tells of then
};
extern const Variant variants[7]; // the last is the body beyond the variants
inline void PrintTo(const Variant& v, std::ostream* out) { *out << v.code; }

void force(const Variant& v);                     // whatever the processor has
const Variant& current();                         // the body that answers
std::vector<Variant> supported();                 // those that this processor can run
std::vector<Variant> bodiesOf(const Function& f); // those that have bodies of their own for the function; px first

} // namespace registry
