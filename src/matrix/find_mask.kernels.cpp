// Masks of comparisons, and the count of what is greater.
#include "kernel/reduce.h"
#include "matrix/holding.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// What elements become when they are read: 1 where the test holds and 0 elsewhere, or the opposite, or 1, -1 for a
// negative infinity that is found as one by its kind, and 0.
enum class Kind { where, whereNot, infinities };
template <class T, class Y, class Test, Kind kind> struct MaskValues {
    const T* x;
    Y y;
    Test test;

    i32 operator[](size_t k) const
    {
        const bool holds = test(x[k], y[k]);
        if constexpr (kind == Kind::infinities)
            return holds ? (x[k] == -infinity ? -1 : 1) : 0;
        else
            return holds != (kind == Kind::whereNot);
    }
    MaskValues operator+(size_t k) const { return {x + k, y + k, test}; }
};

template <class T, class Y, class Test, Kind kind> inline Span span(const MaskValues<T, Y, Test, kind>& m, size_t n)
{
    return span(m.x, n);
}

// All bits of a lane set where the test holds.
template <int L, class Test, class T, class Y> inline Vec<i32, L> lanes_of(Test test, const T* x, Y y)
{
    if constexpr (sizeof(T) == 8) {
        return narrowed_masks(test(load_lanes<L / 2>(x), load_lanes<L / 2>(y)),
                              test(load_lanes<L / 2>(x + L / 2), load_lanes<L / 2>(y + L / 2)));
    } else {
        const auto mask = test(load_lanes<L>(x), load_lanes<L>(y));
        // Compilers differ in the type of a comparison's lanes.
        return widened_to_32<L>(as<Vec<std::make_signed_t<T>, sizeof mask / sizeof(T)>>(mask));
    }
}
template <int n, class T, class Y, class Test, Kind kind> inline auto load_lanes(const MaskValues<T, Y, Test, kind>& m)
{
    if constexpr (lanes<i32> == 1) {
        return m[0];
    } else if constexpr (n < 4) {
        Vec<i32, 4> v = {};
        for (int i = 0; i < n; ++i) v[i] = m[static_cast<size_t>(i)];
        return v;
    } else {
        const Vec<i32, n> holds = lanes_of<n>(m.test, m.x, m.y);
        if constexpr (kind == Kind::infinities)
            return holds & (lanes_of<n>(Equal{}, m.x, OneValue<T>{-infinity}) | 1);
        else
            return kind == Kind::where ? holds & 1 : ~holds & 1;
    }
}

template <class T, class Y> void find_mask_by_code(u32 code, const T* x, Y y, i32* mask, size_t n)
{
    // Calls from the loop would load the value and the pointers anew each time.
    const auto write = [=](const auto& values) __attribute__((flatten))
    {
        if constexpr (sizeof(T) < sizeof *mask && integerBytes < 32) { // the compiler takes a whole vector of T at once
#pragma GCC ivdep
            for (size_t k = 0; k < n; ++k) mask[k] = values[k];
        } else {
            map<Medium>(n, mask, Same{}, values);
        }
    };
    with_comparison(code, x, y, n, [=](auto test, const T* a, auto b, bool inverted) {
        using Test = decltype(test);
        if (inverted)
            write(MaskValues<T, Y, Test, Kind::whereNot>{a, b, test});
        else
            write(MaskValues < T, Y, Test, findsInfinities<Test> ? Kind::infinities : Kind::where > {a, b, test});
    });
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
