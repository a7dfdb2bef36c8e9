// Masks of comparisons, and the count of what is greater.
#include "kernel/reduce.h"
#include "matrix/holding.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Elements that become mask values, 1 or 0, when they are read; -1 for a negative infinity that is found by kind.
template <class T, class Y, class Test> struct MaskValues {
    const T* x;
    Y y;
    Test test;

    i32 operator[](size_t k) const
    {
        const bool holds = test(x[k], y[k]);
        if constexpr (findsInfinities<Test>)
            return holds ? (x[k] == -infinity ? -1 : 1) : 0;
        else
            return holds;
    }
    MaskValues operator+(size_t k) const { return {x + k, y + k, test}; }
};

template <class T, class Y, class Test> inline Span span(const MaskValues<T, Y, Test>& m, size_t n)
{
    return span(m.x, n);
}

// All bits of a lane set where the test holds.
template <int L, class T, class Y, class Test> inline Vec<i32, L> lanes_of(const MaskValues<T, Y, Test>& m)
{
    if constexpr (sizeof(T) == 8) {
        const MaskValues<T, Y, Test> upper = m + L / 2;
        return narrowed_masks(m.test(load_lanes<L / 2>(m.x), load_lanes<L / 2>(m.y)),
                              m.test(load_lanes<L / 2>(upper.x), load_lanes<L / 2>(upper.y)));
    } else {
        const auto mask = m.test(load_lanes<L>(m.x), load_lanes<L>(m.y));
        // Compilers differ in the type of a comparison's lanes.
        return widened_to_32<L>(as<Vec<std::make_signed_t<T>, sizeof mask / sizeof(T)>>(mask));
    }
}
struct IsNegativeInfinity {
    auto operator()(auto x, auto) const { return x == -infinity; }
};
template <int n, class T, class Y, class Test> inline auto load_lanes(const MaskValues<T, Y, Test>& m)
{
    if constexpr (lanes<i32> == 1) {
        return m[0];
    } else if constexpr (n < 4) {
        Vec<i32, 4> v = {};
        for (int i = 0; i < n; ++i) v[i] = m[static_cast<size_t>(i)];
        return v;
    } else if constexpr (findsInfinities<Test>) {
        return lanes_of<n>(m) & (lanes_of<n>(MaskValues<T, Y, IsNegativeInfinity>{m.x, m.y, {}}) | 1);
    } else {
        return lanes_of<n>(m) & 1;
    }
}

template <class T, class Y> void find_mask_by_code(u32 code, const T* x, Y y, i32* mask, size_t n)
{
    // Calls from the loop would load the value and the pointers anew each time.
    const auto write = [=](auto test) __attribute__((flatten))
    {
        const MaskValues<T, Y, decltype(test)> values{x, y, test};
        if constexpr (sizeof(T) < sizeof *mask && integerBytes < 32) { // the compiler takes a whole vector of T at once
#pragma GCC ivdep
            for (size_t k = 0; k < n; ++k) mask[k] = values[k];
        } else {
            map<Medium>(n, mask, Same{}, values);
        }
    };
    with_comparison(code, y, n, write);
}
template <class T> void find_mask(u32 code, const T* x, T y, i32* mask, u32 n)
{
    find_mask_by_code(code, x, OneValue<T>{y}, mask, n);
}
template <class T> void find_mask(u32 code, const T* x, const T* y, i32* mask, u32 n)
{
    find_mask_by_code(code, x, y, mask, n);
}

void count_greater(const f64* x, f64 value, u32* count, u32 n)
{
    size_t left = n;
    u32 found = 0;
    if constexpr (lanes < f64 >> 1) {
        Vec<i64> s[4] = {};
        left = each_vector<lanes<f64>>(
            left, s, [=](Vec<i64>& to, Vec<f64> v) { to -= splat(value) < v; }, x);
        const auto all = as<Vec<i32, 2 * lanes<f64>>>(s[0] + s[1] + (s[2] + s[3]));
        for (size_t i = 0; i < lanes<f64>; ++i) found += static_cast<u32>(all[2 * i]);
    }
    for (; left; --left) found += x[n - left] > value;
    *count = found;
}

} // namespace
#include "entries/matrix/find_mask.inc"
} // namespace sig5d::SIG5D_VARIANT
