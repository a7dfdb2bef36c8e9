// Signals whose elements are functions of their index.
#pragma once
#include "kernel/complex.h"
#include "kernel/indexes.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

inline void put(f64* d, Vec<f64> v) { store(d, v); }
inline void put(c64f* d, const Complex<Vec<f64>>& v) { store_lanes<lanes<f64>>(Ordinary{}, complex(d), v); }

// d[i] = op(i) for 0 <= i < n, for operations of so many steps that the loop around them costs nothing. It stands in
// one place; lanes that are left over repeat the last element.
template <class T, class Op> inline void generate(T* d, size_t n, Op op)
{
    constexpr size_t L = lanes<f64>;
    const Vec<f64> last = indexes_from(n - 1);
    Indexes<1> at = indexes<1>();
    for (size_t i = 0; i < n; i += L, at = at + L) {
        const auto v = op(smaller(load_lanes<L>(at), last));
        if (i + L <= n) {
            put(d + i, v);
        } else {
            T rest[L];
            put(rest, v);
            for (size_t k = 0; i + k < n; ++k) d[i + k] = rest[k];
        }
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
