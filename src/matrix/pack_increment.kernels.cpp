// Gather and scatter by a constant increment.
#include "frame/entry.h"
#include <cstddef>

namespace sig5d::SIG5D_VARIANT {
namespace {

// Known increments become vector shuffles.
template <size_t step, class T> void pack_every(u32 n, const T* a, T* d)
{
    for (size_t k = 0; k < n; ++k) d[k] = a[k * step];
}

template <class T> void pack_increment(u32 n, const T* a, u32 step, T* d)
{
    switch (step) {
    case 1:
        return pack_every<1>(n, a, d);
    case 2:
        return pack_every<2>(n, a, d);
    case 3:
        return pack_every<3>(n, a, d);
    case 4:
        return pack_every<4>(n, a, d);
    }
#pragma GCC unroll 4
    for (size_t k = 0; k < n; ++k) d[k] = a[k * step];
}

template <class T> void unpack_increment(u32 n, const T* a, T* d, u32 step)
{
    if (step == 1) return pack_every<1>(n, a, d);
#pragma GCC unroll 4
    for (size_t k = 0; k < n; ++k) d[k * step] = a[k];
}

} // namespace
#include "entries/matrix/pack_increment.inc"
} // namespace sig5d::SIG5D_VARIANT
