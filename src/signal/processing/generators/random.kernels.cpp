// Random numbers, uniform and normal.
#include "frame/entry.h"
#include "signal/processing/generators/random_normal.h"
#include "signal/processing/generators/round_to.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> struct Uniform {
    UniformState<T>& state;
    size_t operator()(f64* d, size_t n) const
    {
        draw_numbers(state.core, d, n, {state.scale, state.mid});
        return n;
    }
};

// next(d, n) gives some of the next n numbers at a time. (As a copy it would be moved in vectors, for which GCC does
// not align the stack.)
template <class Next> [[gnu::noinline]] void fill(f64* d, size_t n, Next&& next)
{
    while (n > 0) {
        const size_t some = next(d, n);
        d += some;
        n -= some;
    }
}
template <class T, class Next> [[gnu::noinline]] void fill(T* d, size_t n, Next&& next)
{
    constexpr size_t most = 128;
    f64 numbers[most];
    while (n > 0) {
        const size_t some = next(numbers, n < most ? n : most);
        round_to(d, numbers, some);
        d += some;
        n -= some;
    }
}

// From a state in the caller's memory. Of one of another kind nothing but the tag is read.
template <class State, class Next, class T> Status generate(T* d, int n, void* pState)
{
    u32 tag;
    __builtin_memcpy(&tag, pState, sizeof tag);
    if (tag != State::ownTag) return StsContextMatchErr;
    State state;
    __builtin_memcpy(&state, pState, sizeof state);
    Next next{state};
    fill(d, static_cast<size_t>(n), next);
    __builtin_memcpy(pState, &state, sizeof state);
    return StsNoErr;
}
template <class T, class Record> Status uniform(T* d, int n, Record* pState)
{
    return generate<UniformState<T>, Uniform<T>>(d, n, pState);
}
template <class T, class Record> Status normal(T* d, int n, Record* pState)
{
    return generate<NormalState<T>, Normal<T>>(d, n, pState);
}

void uniform_once(f64* d, int n, f64 low, f64 high, const u32* pSeed)
{
    UniformState<f64> state;
    seed(state, low, high, *pSeed);
    fill(d, static_cast<size_t>(n), Uniform<f64>{state});
}
void normal_once(f64* d, int n, f64 mean, f64 stdDev, const u32* pSeed)
{
    NormalState<f64> state;
    seed(state, mean, stdDev, *pSeed);
    fill(d, static_cast<size_t>(n), Normal<f64>{state});
}

} // namespace
#include "entries/signal/processing/generators/random.inc"
} // namespace sig5d::SIG5D_VARIANT
