// Pack and unpack by mask.
#include "kernel/compact.h"
#include "matrix/holding.h"
#include "matrix/overlap.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// One element after the other, where arrays share memory: the definition.
template <class T> u32 pack_in_order(size_t n, const T* a, T* d, const i32* mask)
{
    u32 j = 0;
    for (size_t k = 0; k < n; ++k)
        if (mask[k] > 0) d[j++] = a[k];
    return j;
}
template <class T> void unpack_in_order(size_t n, const T* a, T* d, const i32* mask)
{
    for (size_t k = 0; k < n; ++k)
        if (mask[k] > 0) d[k] = *a++;
}

// From how many of 1024 on elements move by eights: sooner where one shuffle moves all of them.
template <class T> constexpr size_t many = lanesMoved<sizeof(T)> == 8 && sizeof(T) <= 2 ? 8 : 32;

inline auto positive(const i32* mask) { return Holding<i32, OneValue<i32>, Greater>{mask, {0}, {}}; }

template <class T> u32 pack_mask_counted(u32 n, const T* a, T* d, const i32* mask)
{
    const size_t bytes = n * sizeof(T);
    const bool behind = reinterpret_cast<uintptr_t>(d) <= reinterpret_cast<uintptr_t>(a);
    if (lanes<u8> == 1 || !disjoint(d, bytes, mask, n * sizeof *mask) || !(behind || disjoint(d, bytes, a, bytes)))
        return pack_in_order(n, a, d, mask);
    return static_cast<u32>(compact<many<T>>(positive(mask), n, Elements<T>{a}, d));
}

template <class T> void unpack_mask(u32 n, const T* a, T* d, const i32* mask)
{
    const size_t bytes = n * sizeof(T);
    if (lanes<u8> == 1 || !disjoint(d, bytes, mask, n * sizeof *mask) || !disjoint(d, bytes, a, bytes))
        return unpack_in_order(n, a, d, mask);
    spread<many<T>>(positive(mask), n, a, d);
}

template <class T> void pack_mask(u32 n, const T* a, const i32* mask, T* d) { pack_mask_counted(n, a, d, mask); }

} // namespace
#include "entries/matrix/pack_mask.inc"
} // namespace sig5d::SIG5D_VARIANT
