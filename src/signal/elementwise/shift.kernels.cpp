// Shifts by a count that is the same for all elements.
#include "frame/entry.h"
#include "kernel/lane_shifts.h"
#include "kernel/map.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The operations, for counts of 1 to one less than the width.
#if SIG5D_LEVEL == 0

template <class T> struct Left {
    int count;
    T operator()(T x) const { return static_cast<T>(x << count); }
};
template <class T> struct Right {
    int count;
    T operator()(T x) const { return static_cast<T>(x >> count); }
};

#else

template <class T> struct Left {
    int count;
    template <class V> V operator()(V x) const
    {
        if constexpr (sizeof(T) == 4)
            return shift_left<u32>(x, count);
        else if constexpr (sizeof(T) == 2)
            return shift_left_16(x, count);
        else // in lanes of two bytes, without what came over from the neighbour
            return shift_left_16(x, count) & splatn<sizeof(V)>(static_cast<u8>(0xFF << count));
    }
};
template <class T> struct Right {
    int count;
    template <class V> V operator()(V x) const
    {
        if constexpr (sizeof(T) == 4)
            return shift_right<i32>(x, count);
        else if constexpr (sizeof(T) == 2)
            return shift_right_16<i16>(x, count);
        else
            return shift_right_16<u16>(x, count) & splatn<sizeof(V)>(static_cast<u8>(0xFF >> count));
    }
};

#endif

// By one to the right, which no product does for signed lanes of two bytes.
struct Halved {
    template <class V> V operator()(V x) const { return x >> 1; }
};
struct Cleared {
    template <class V> V operator()(V) const { return V{}; }
};

template <class T> constexpr int width = 8 * sizeof(T);

// Bits that leave an element are lost; a count of its width or more leaves none.
template <class T> void shift_left(const T* a, int count, T* d, int n)
{
    if (count == 0)
        map_as_bytes(n, d, Same{}, a);
    else if (count < width<T>)
        map(static_cast<size_t>(n), d, Left<T>{count}, a);
    else
        map_as_bytes(n, d, Cleared{}, a);
}

// Logical for unsigned types, arithmetic for the others: there a count of the width or more leaves the sign.
template <class T> void shift_right(const T* a, int count, T* d, int n)
{
    constexpr bool isSigned = T(-1) < T(0);
    if (isSigned && count >= width<T>) count = width<T> - 1;
    if constexpr (isSigned && sizeof(T) == 2)
        if (count == 1) return map(static_cast<size_t>(n), d, Halved{}, a);
    if (count == 0)
        map_as_bytes(n, d, Same{}, a);
    else if (count < width<T>)
        map(static_cast<size_t>(n), d, Right<T>{count}, a);
    else
        map_as_bytes(n, d, Cleared{}, a);
}

} // namespace
#include "entries/signal/elementwise/shift.inc"
} // namespace sig5d::SIG5D_VARIANT
