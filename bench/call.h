// Calls a function of the registry many times with the same argument words, at the cost of an ordinary call.
#pragma once
#include "invoke.h"
#include "timing.h"

namespace bench {

// Empty where the function takes more words than are foreseen.
Batch repeatedCall(registry::Entry entry, const registry::CallWords& words, bool popsArguments, bool returnsDouble);

} // namespace bench
