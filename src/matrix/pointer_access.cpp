// Single values through pointers. They are moved as bits.
#include "frame/types.h"

namespace sig5d {
namespace {

template <class T> void copy_value(const T* p, T* out) { *out = *p; }
f64 load_value(const f64* p) { return *p; }
template <class T> void store_value(T* p, T value) { *p = value; }
void store_from(c64f* p, const c64f* value) { *p = *value; }

} // namespace

#include "entries/matrix/pointer_access.inc"
} // namespace sig5d
