#include "frame/frequency.h"

namespace sig5d {
namespace {

// The ticks until the calendar second changes. A clock that is set back ends the round, too, instead of spinning until
// it has caught up.
u64 ticksOfRound(const Clock& clock)
{
    const u64 start = clock.ticks();
    const i64 second = clock.seconds();
    while (clock.seconds() == second) {
    }
    return clock.ticks() - start;
}

// The nearest single-precision number, for less than 2^53 ticks; by double because 32-bit code has 64-bit integer
// conversions on the x87 stack only.
f32 single(u64 ticks)
{
    const f64 high = static_cast<f64>(static_cast<u32>(ticks >> 32)), low = static_cast<f64>(static_cast<u32>(ticks));
    return static_cast<f32>(high * 4294967296.0 + low);
}

} // namespace

int averageMhz(const Clock& clock)
{
    ticksOfRound(clock); // the rest of the second that runs
    const f32 first = single(ticksOfRound(clock));
    const f32 second = single(ticksOfRound(clock));
    const f32 sum = first + second; // in single precision on purpose: callers know the rounded value
    return static_cast<int>(static_cast<f64>(sum) / 1000000.0 * 0.5);
}

} // namespace sig5d
