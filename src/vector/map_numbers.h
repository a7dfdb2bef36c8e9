// Loops over complex numbers for functions that check nothing: there may be none.
#pragma once
#include "kernel/parts.h"
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Real numbers in the order of lanes that "folded" gives complex ones.
struct FoldedReals {
    const f64* p;
    FoldedReals operator+(size_t n) const { return {p + n}; }
    void operator+=(size_t n) { p += n; }
};
template <int L> inline Vec<f64, L> loadn(FoldedReals a)
{
    const auto v = loadn<L>(a.p);
    if constexpr (L == 4)
        return __builtin_shufflevector(v, v, 0, 2, 1, 3);
    else
        return v;
}
#if SIG5D_LEVEL > 0
inline Span span(FoldedReals a, size_t n) { return {a.p, n * sizeof(f64)}; }
#endif

template <class D, class Op, class... A> [[gnu::always_inline]] inline void map_numbers(size_t n, D d, Op op, A... a)
{
    if (n > 0) map_parts(n, d, op, a...);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
