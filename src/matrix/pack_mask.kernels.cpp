#include "frame/entry.h"
#include <cstddef>

namespace sig5d::SIG5D_VARIANT {
namespace {
template <class T> u32 pack_mask_counted(u32 n, const T* a, T* d, const i32* mask)
{
    u32 j = 0;
    for (size_t k = 0; k < n; ++k)
        if (mask[k] > 0) d[j++] = a[k];
    return j;
}
template <class T> void pack_mask(u32 n, const T* a, const i32* mask, T* d) { pack_mask_counted(n, a, d, mask); }
template <class T> void unpack_mask(u32 n, const T* a, T* d, const i32* mask)
{
    for (size_t k = 0; k < n; ++k)
        if (mask[k] > 0) d[k] = *a++;
}
} // namespace
#include "entries/matrix/pack_mask.inc"
} // namespace sig5d::SIG5D_VARIANT
