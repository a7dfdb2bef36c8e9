// Thresholds of arrays of doubles.
#include "frame/entry.h"
#include "signal/elementwise/threshold_rules.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// relOp: 0 is "less than", 4 is "greater than".
void limit(const f64* a, f64* d, int n, f64 level, int relOp)
{
    relOp == 0 ? limit_below(a, d, n, level) : limit_above(a, d, n, level);
}

} // namespace
#include "entries/signal/elementwise/threshold.inc"
} // namespace sig5d::SIG5D_VARIANT
