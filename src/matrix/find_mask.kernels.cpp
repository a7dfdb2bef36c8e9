// Masks of comparisons, and the count of what is greater.
#include "matrix/comparison.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T, class Y> void find_mask(u32 code, const T* x, Y y, i32* mask, size_t n)
{
    with_comparison(code, y, [&](auto test) {
#pragma GCC ivdep
        for (size_t k = 0; k < n; ++k) {
            const bool holds = test(x[k], y[k]);
            if constexpr (findsInfinities<decltype(test)>)
                mask[k] = holds ? (x[k] == -infinity ? -1 : 1) : 0;
            else
                mask[k] = holds;
        }
    });
}
template <class T> void find_mask(u32 code, const T* x, T y, i32* mask, u32 n)
{
    find_mask(code, x, Repeated<T>{y}, mask, size_t(n));
}
template <class T> void find_mask(u32 code, const T* x, const T* y, i32* mask, u32 n)
{
    find_mask(code, x, y, mask, size_t(n));
}

void count_greater(const f64* x, f64 value, u32* count, u32 n)
{
    u64 greater = 0;
    for (size_t k = 0; k < n; ++k) greater += x[k] > value;
    *count = static_cast<u32>(greater);
}

} // namespace
#include "entries/matrix/find_mask.inc"
} // namespace sig5d::SIG5D_VARIANT
