// Polynomials in order of rising powers, for numbers and vectors.
#pragma once
#include "kernel/select.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Estrin's scheme: halves of the polynomial are independent of each other, so that vectors wait for few of the
// operations. "powers" are z, z^2, z^4, ... as far as they are needed.
template <int n, class V> inline V polynomial_part(const f64* c, const V* powers)
{
    if constexpr (n == 1) {
        return constant<V>(c[0]);
    } else {
        constexpr int low = 1 << (31 - __builtin_clz(n - 1)), level = 31 - __builtin_clz(low);
        return polynomial_part<low>(c, powers) + powers[level] * polynomial_part<n - low>(c + low, powers);
    }
}
template <int n, class V> inline V polynomial(const f64 (&c)[n], V z)
{
    V powers[5] = {z};
    for (int i = 1; 1 << i < n; ++i) powers[i] = powers[i - 1] * powers[i - 1];
    return polynomial_part<n>(c, powers);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
