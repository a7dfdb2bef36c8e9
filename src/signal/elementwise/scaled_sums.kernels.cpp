// Sums and differences of integers, of two arrays or of an array and a value, scaled.
#include "frame/entry.h"
#include "kernel/repeated.h"
#include "kernel/scale.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct Sum {
    template <class T> static constexpr int bits = isSigned<T> ? width<T> : width<T> + 1;
#if SIG5D_LEVEL == 0
    i64 exact(i64 x, i64 y) const { return x + y; }
#else
    template <class V> V saturated(V x, V y) const { return add_saturated(x, y); }
    template <class V> auto exact(V x, V y) const
    {
        if constexpr (sizeof(Lane<V>) == 1)
            return ByteAndBit<V>{average(x, y), x ^ y};
        else
            return Halves<V>{(x & y) + ((x ^ y) >> 1), sum_modulo(x, y)};
    }
    // x + y = 2 (x | y) - (x ^ y): halves rounded up, and ties where the last bits differ.
    template <class T, int s> static constexpr bool quick = s == 1;
    template <int s, class V> V quickly(V x, V y) const
    {
        if constexpr (sizeof(Lane<V>) == 1)
            return ties_to_even(average(x, y), x ^ y);
        else
            return ties_to_even((x | y) - ((x ^ y) >> 1), x ^ y);
    }
#endif
};

struct Difference {
    template <class T> static constexpr int bits = width<T>;
#if SIG5D_LEVEL == 0
    i64 exact(i64 x, i64 y) const { return x - y; }
#else
    template <class V> V saturated(V x, V y) const { return subtract_saturated(x, y); }
    template <class V> auto exact(V x, V y) const
    {
        if constexpr (sizeof(Lane<V>) == 1)
            return Byte<V>{subtract_saturated(x, y)}; // nothing below zero comes back
        else
            return Halves<V>{((x ^ y) >> 1) - (~x & y), difference_modulo(x, y)};
    }
    // x - y = 2 (x & ~y) - (x ^ y) = (x ^ y) - 2 (~x & y). Half of the largest difference is beyond the limit by a
    // half.
    template <class T, int s> static constexpr bool quick = s == 1;
    template <int s, class V> V quickly(V x, V y) const
    {
        if constexpr (sizeof(Lane<V>) == 1) {
            return ties_to_even(average(subtract_saturated(x, y), V{}), x ^ y);
        } else if constexpr (sizeof(Lane<V>) == 2) {
            const V down = ((x ^ y) >> 1) - (~x & y);
            return add_saturated(down, down & (x ^ y) & 1);
        } else {
            const V up = difference_modulo(x & ~y, (x ^ y) >> 1), wrapped = as<V>(up == all_lanes<V>(lowest_of<i32>));
            return sum_modulo(ties_to_even(up, x ^ y), wrapped);
        }
    }
#endif
};

// For a value minus an array, within the limits.
struct DifferenceFrom : Difference {
    template <class V> V saturated(V x, V y) const { return subtract_saturated_from(x, y); }
};

template <class T> void add(const T* a, const T* b, T* d, int n, int s)
{
    run_scaled<Sum>(part_count(d, n), parts_of(d), s, parts_of(a), parts_of(b));
}
template <class T> void add(const T* a, T v, T* d, int n, int s)
{
    run_scaled<Sum>(part_count(d, n), parts_of(d), s, parts_of(a), repeated(v));
}

// b - a: the subtrahend comes first.
template <class T> void subtract(const T* a, const T* b, T* d, int n, int s)
{
    run_scaled<Difference>(part_count(d, n), parts_of(d), s, parts_of(b), parts_of(a));
}
template <class T> void subtract(const T* a, T v, T* d, int n, int s)
{
    run_scaled<Difference>(part_count(d, n), parts_of(d), s, parts_of(a), repeated(v));
}
template <class T> void subtract_reversed(const T* a, T v, T* d, int n, int s)
{
    run_scaled<Difference, DifferenceFrom>(part_count(d, n), parts_of(d), s, repeated(v), parts_of(a));
}

} // namespace
#include "entries/signal/elementwise/scaled_sums.inc"
} // namespace sig5d::SIG5D_VARIANT
