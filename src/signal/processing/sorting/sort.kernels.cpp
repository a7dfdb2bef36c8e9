// Sorting in one order for all values, ascending and descending, with and without the places where elements were.
#include "frame/entry.h"
#include "signal/processing/sorting/counting.h"
#include "signal/processing/sorting/quick.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Arrays that are sorted, or the other way round, are found so in one pass. Returns whether all is done. Equal keys
// keep their order, which a reversal would change.
template <class A> bool sorted_already(A a, size_t n)
{
    const auto* const k = a.key;
    size_t i = 1;
    while (i < n && k[i - 1] <= k[i]) ++i;
    if (i == n) return true;
    for (i = 1; i < n; ++i)
        if (A::paired ? k[i - 1] <= k[i] : k[i - 1] < k[i]) return false;
    for (i = 0; i < n / 2; ++i) exchange(a, i, n - 1 - i);
    return true;
}
template <class A> void sort(A a, size_t n)
{
    if (!sorted_already(a, n)) quicksort(a, n);
}

template <class T> Keys<T> keys_at(T* p) { return {p}; }
template <class T> Pairs<T> keys_at(T* p, i32* place) { return {p, place}; }
inline void number(i32* place, size_t n)
{
    for (size_t i = 0; i < n; ++i) place[i] = static_cast<i32>(i);
}

template <class T, class... Places> void sort_in_order(i64 flip, T* p, size_t n, Places... place)
{
    (number(place, n), ...);
    if constexpr (std::is_floating_point_v<T>) {
        i64* const keys = reinterpret_cast<i64*>(p);
        map(n, keys, KeysOfDoubles{flip}, static_cast<const i64*>(keys));
        sort(keys_at(keys, place...), n);
        map(n, keys, DoublesOfKeys{flip}, static_cast<const i64*>(keys));
    } else {
        const auto a = keys_at(p, place...);
        if (flip) flip_keys(a, n);
        sort(a, n);
        if (flip) flip_keys(a, n);
    }
}
void sort_in_order(i64 flip, u8* p, size_t n) { sort_by_counting(p, n, 0, static_cast<u8>(flip)); }
void sort_in_order(i64 flip, u8* p, size_t n, i32* place)
{
    sort_places_by_counting(p, place, n, static_cast<u8>(flip));
}

template <class T> void sort_ascending(T* p, int n) { sort_in_order(0, p, static_cast<size_t>(n)); }
template <class T> void sort_descending(T* p, int n) { sort_in_order(-1, p, static_cast<size_t>(n)); }
template <class T> void sort_index_ascending(T* p, i32* place, int n)
{
    sort_in_order(0, p, static_cast<size_t>(n), place);
}
template <class T> void sort_index_descending(T* p, i32* place, int n)
{
    sort_in_order(-1, p, static_cast<size_t>(n), place);
}

} // namespace
#include "entries/signal/processing/sorting/sort.inc"
} // namespace sig5d::SIG5D_VARIANT
