// The library under test, in the tests' own words.
#pragma once
#include "variants.h"

namespace support {

using registry::bodiesOf;
using registry::current;
using registry::Entry;
using registry::entryOf;
using registry::force;
using registry::nameOf;
using registry::supported;
using registry::Variant;
using registry::variants;
inline registry::Entry find(const char* name) { return registry::exported(name); }

} // namespace support
