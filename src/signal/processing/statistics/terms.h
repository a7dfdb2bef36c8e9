// What the sums of this room add up, and arrays that are scaled on the way.
#pragma once
#include "kernel/complex.h"
#include "kernel/reduce.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// What sum_of asks of its operations: 32 partial sums of one kind.
template <int pairMembers> struct SumTerms {
    static constexpr size_t lanes = 32, block = 1024;
    static constexpr int sums = 1, members = pairMembers;
};
template <int members> struct Elements : SumTerms<members> {
    template <class V> V operator()(V x) const { return x; }
};

// Where sums or squares leave the range of doubles, all is computed once more with numbers so much smaller or larger.
// What they lose then is nothing beside the numbers that left it.
constexpr f64 farDown = 0x1p-600, farUp = 0x1p600;

struct ScaledReals {
    const f64* p;
    f64 by;
    ScaledReals operator+(size_t n) const { return {p + n, by}; }
};
template <int n> inline auto load_lanes(ScaledReals a)
{
    const auto x = load_lanes<n>(a.p);
    return x * splatn<sizeof x / sizeof(f64)>(a.by);
}

// The parts of complex numbers as an array.
inline const f64* parts(const f64* a) { return a; }
inline const f64* parts(const c64f* a) { return reinterpret_cast<const f64*>(a); }
inline size_t count(const f64*, int n) { return static_cast<size_t>(n); }
inline size_t count(const c64f*, int n) { return 2 * static_cast<size_t>(n); }

inline bool is_finite(f64 x) { return absolute_value(x) < __builtin_inf(); }

} // namespace
} // namespace sig5d::SIG5D_VARIANT
