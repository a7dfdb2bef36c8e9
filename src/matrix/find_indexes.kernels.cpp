// The positions of elements for which a comparison holds.
#include "kernel/compact.h"
#include "matrix/holding.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T, class Y> void find_indexes_by_code(u32 code, const T* x, Y y, u32* indexes, size_t n, u32* count)
{
    size_t found = 0;
    constexpr size_t many = sizeof(T) <= 2 ? 8 : 32;
    with_comparison(code, x, y, n, [&](auto test, const T* a, auto b, bool inverted) {
        const Holding<T, Y, decltype(test)> selection{a, b, test};
        found = compact<many>(MaybeInverted<decltype(selection)>{selection, inverted}, n, Positions<u32>{}, indexes);
    });
    *count = static_cast<u32>(found);
}
template <class T> void find_indexes(u32 code, const T* x, T y, u32* indexes, u32 n, u32* count)
{
    find_indexes_by_code(code, x, OneValue<T>{y}, indexes, n, count);
}
template <class T> void find_indexes(u32 code, const T* x, const T* y, u32* indexes, u32 n, u32* count)
{
    find_indexes_by_code(code, x, y, indexes, n, count);
}

} // namespace
#include "entries/matrix/find_indexes.inc"
} // namespace sig5d::SIG5D_VARIANT
