// A case for every function of the interface whose arguments follow from its description.
#pragma once
#include "run.h"

namespace bench {

struct Skipped {
    std::string name, reason;
};
// Adds the cases; returns the functions that need one of their own.
std::vector<Skipped> addRegistryCases(const Selection& selection,
                                      const std::function<bool(const std::string&)>& wanted);

} // namespace bench
