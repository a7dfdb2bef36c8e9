// The pointer arithmetic of the _Idx forms.
#pragma once
#include <cstdint>

namespace sig5d {

// Plain address arithmetic, so that a null pointer with index 0 stays null and nothing overflows undefined.
template <int unit, class T> inline T* element(T* p, int index)
{
    return reinterpret_cast<T*>(reinterpret_cast<uintptr_t>(p) +
                                static_cast<uintptr_t>(static_cast<intptr_t>(index)) * unit);
}

// Work buffers: none is none, whatever the index.
template <int unit, class T> inline T* element_or_null(T* p, int index) { return p ? element<unit>(p, index) : p; }

} // namespace sig5d
