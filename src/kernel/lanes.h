// Vectors of one element type made of vectors of another.
#pragma once
#include "kernel/partial.h"
#include <type_traits>

namespace sig5d::SIG5D_VARIANT {
namespace {

// n elements as 16-bit or 32-bit integers.
template <int n, class S> inline auto load_as_16(const S* p) { return widened_to_16<n>(load_lanes<n>(p)); }
template <int n, class S> inline auto load_as_32(const S* p) { return widened_to_32<n>(load_lanes<n>(p)); }

// n elements of type D, made of integers that are as long or longer: part<k>(p) gives k of those from the source p on.
template <class D, int n, class A, class Part> inline auto gather(A p, Part part)
{
    using X = Lane<decltype(part.template operator()<1>(p))>;
    constexpr int bytes = n * sizeof(D), whole = bytes > 32 ? 64 : bytes > 16 ? 32 : 16;
    if constexpr (sizeof(X) == sizeof(D)) {
        return part.template operator()<n>(p);
    } else if constexpr (sizeof(X) == 4 * sizeof(D) && bytes > 16) {
        constexpr int quarter = n / 4;
        return narrowed<D>(part.template operator()<quarter>(p), part.template operator()<quarter>(p + quarter),
                           part.template operator()<quarter>(p + 2 * quarter),
                           part.template operator()<quarter>(p + 3 * quarter));
    } else {
        using Twice = std::conditional_t<sizeof(X) == 2 * sizeof(D), X, i16>;
        constexpr int half = whole / sizeof(Twice);
        if constexpr (n > half) {
            return narrowed<D>(gather<Twice, half>(p, part), gather<Twice, half>(p + half, part));
        } else {
            const auto low = gather<Twice, n>(p, part);
            return narrowed<D>(low, low);
        }
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
