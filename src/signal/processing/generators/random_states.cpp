// Sizes and seeds of the random generators' states.
#include "frame/entry.h"
#include "signal/processing/generators/random_states.h"

namespace sig5d {
namespace {

template <class State> void size_of(int* pSize) { *pSize = sizeof(State); }

template <class State, class Record, class T> void fill_state(Record* pState, T first, T second, u32 value)
{
    State state;
    seed(state, first, second, value);
    __builtin_memcpy(pState, &state, sizeof state);
}
template <class T, class Record> void seed_uniform(Record* pState, T low, T high, u32 value)
{
    fill_state<UniformState<T>>(pState, low, high, value);
}
template <class T, class Record> void seed_normal(Record* pState, T mean, T stdDev, u32 value)
{
    fill_state<NormalState<T>>(pState, mean, stdDev, value);
}

} // namespace
#include "entries/signal/processing/generators/random_states.inc"
} // namespace sig5d
