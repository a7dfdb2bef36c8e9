#include "matrix/comparison.h"

namespace sig5d::SIG5D_VARIANT {
namespace {
template <class T, class Y> void find_indexes(u32 code, const T* x, Y y, u32* indexes, size_t n, u32* count)
{
    u32 j = 0;
    with_comparison(code, y, [&](auto test) {
        for (size_t k = 0; k < n; ++k)
            if (test(x[k], y[k])) indexes[j++] = static_cast<u32>(k);
    });
    *count = j;
}
template <class T> void find_indexes(u32 code, const T* x, T y, u32* indexes, u32 n, u32* count)
{
    find_indexes(code, x, Repeated<T>{y}, indexes, size_t(n), count);
}
template <class T> void find_indexes(u32 code, const T* x, const T* y, u32* indexes, u32 n, u32* count)
{
    find_indexes(code, x, y, indexes, size_t(n), count);
}
} // namespace
#include "entries/matrix/find_indexes.inc"
} // namespace sig5d::SIG5D_VARIANT
