// Thresholds of arrays of integers. There is no body for AVX alone, which compares integers in short vectors only.
#include "frame/entry.h"
#include "signal/elementwise/threshold_rules.h"

namespace sig5d::SIG5D_VARIANT {
#include "entries/signal/elementwise/threshold_integer.inc"
} // namespace sig5d::SIG5D_VARIANT
