// Gather and scatter by an index vector.
#include "frame/entry.h"
#include <cstddef>

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> void pack_index(u32 n, const T* a, const u32* index, T* d)
{
#pragma GCC unroll 4
    for (size_t k = 0; k < n; ++k) d[k] = a[index[k]];
}

template <class T> void unpack_index(u32 n, const T* a, T* d, const u32* index)
{
#pragma GCC unroll 4
    for (size_t k = 0; k < n; ++k) d[index[k]] = a[k];
}

} // namespace
#include "entries/matrix/pack_index.inc"
} // namespace sig5d::SIG5D_VARIANT
