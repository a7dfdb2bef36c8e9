// Polynomials in order of rising powers, for numbers and vectors.
#pragma once
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Horner's scheme in z^2, with pairs of terms for coefficients: half as long a chain of operations as in z, for one
// multiplication more.
template <int n, class V> inline V polynomial_part(const f64* c, V z, V z2)
{
    if constexpr (n == 1)
        return constant<V>(c[0]);
    else if constexpr (n == 2)
        return constant<V>(c[0]) + z * constant<V>(c[1]);
    else
        return polynomial_part<2>(c, z, z2) + z2 * polynomial_part<n - 2>(c + 2, z, z2);
}
template <int n, class V> inline V polynomial(const f64 (&c)[n], V z) { return polynomial_part<n>(c, z, z * z); }

} // namespace
} // namespace sig5d::SIG5D_VARIANT
