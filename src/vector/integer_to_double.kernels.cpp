// Integers of up to 16 bits as doubles.
#include "frame/entry.h"
#include "kernel/lanes.h"
#include "kernel/map.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct ToDouble {
    f64 one(i32 x) const { return x; }
    template <int n, class T> auto to(const T* p) const { return doubles<n>(load_as_32<n>(p)); }
};

template <class T> [[gnu::noinline]] void convert(const T* a, f64* d, u32 n)
{
    map(n, d, Same{}, converted(a, ToDouble{}));
}

} // namespace
#include "entries/vector/integer_to_double.inc"
} // namespace sig5d::SIG5D_VARIANT
