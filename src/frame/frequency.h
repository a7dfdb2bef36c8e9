// The processor's clock rate, by its time-stamp counter.
#pragma once
#include "frame/types.h"

namespace sig5d {

struct Clock {
    u64 (*ticks)();
    i64 (*seconds)(); // calendar time, whole seconds
};

int averageMhz(const Clock& clock); // takes between two and three seconds

} // namespace sig5d
