// Values that keep to the rules of the description: divisors, indexes, masks, numbers that are compared.
#pragma once
#include "arguments.h"

namespace registry {

void keepToRules(Arguments& a, Random& random);

} // namespace registry
