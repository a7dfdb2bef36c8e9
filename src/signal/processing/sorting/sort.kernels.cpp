// Sorting in one order for all values, ascending and descending, with and without the places where elements were.
#include "frame/entry.h"
#include "signal/processing/sorting/counting.h"
#include "signal/processing/sorting/few.h"
#include "signal/processing/sorting/quick.h"
#include "signal/processing/sorting/words.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr size_t fewBytes = 128; // so few are sorted faster than counted

template <class A> inline void reverse(A a, size_t n)
{
    for (size_t i = 0, j = n - 1; i < j; ++i, --j) exchange(a, i, j);
}

// Arrays that are sorted, or the other way round, are found so in one pass. Equal keys keep their order. "key" makes
// keys of elements, which are not changed before that.
template <class A, class Op> [[gnu::noinline]] bool sorted_already(A a, size_t n, Op key)
{
    if (rising(a.key, n, key)) return true;
    if (!falling(a.key, n, key)) return false;
    reverse(a, n);
    if constexpr (A::paired)
        for (size_t i = 0, end; i < n; i = end) {
            for (end = i + 1; end < n && a.key[end] == a.key[i];) ++end;
            reverse(Keys<i32>{a.place + i}, end - i);
        }
    return true;
}

[[gnu::noinline]] void number(i32* place, size_t n)
{
    constexpr int L = integerLanes<i32>;
    Vec<i32, L> next = first_numbers<i32, L>();
    size_t i = 0;
    for (; n - i >= L; i += L, next += L) storen<L>(place + i, next);
    for (; i < n; ++i) place[i] = static_cast<i32>(i);
}
[[gnu::noinline]] void turn_into_keys(i64* p, size_t n, i64 flip) { change(p, n, KeysOfDoubles{flip}); }
[[gnu::noinline]] void turn_into_doubles(i64* p, size_t n, i64 flip) { change(p, n, DoublesOfKeys{flip}); }
[[gnu::noinline]] void flip_all(u8* p, size_t bytes, i64 flip)
{
    if (flip) change(p, bytes, Flipped{flip});
}

template <class A> inline void sort_keys(A a, size_t n)
{
    if constexpr (sizeof(typename A::Key) > 2) // which are counted soon
        if (sort_few(a, n)) return;
    quicksort(a, n);
}
template <class A> inline void sort_flipped(i64 flip, A a, size_t n)
{
    if (sorted_already(a, n, Flipped{flip})) return;
    u8* const bytes = reinterpret_cast<u8*>(a.key);
    flip_all(bytes, n * sizeof(typename A::Key), flip);
    sort_keys(a, n);
    flip_all(bytes, n * sizeof(typename A::Key), flip);
}
template <class A> inline void sort_doubles(i64 flip, A a, size_t n)
{
    if (sorted_already(a, n, KeysOfDoubles{flip})) return;
    turn_into_keys(a.key, n, flip);
    sort_keys(a, n);
    turn_into_doubles(a.key, n, flip);
}

// In ascending order, or in descending order where all bits of flip are set.
template <class T> [[gnu::noinline]] void sort_in_order(i64 flip, T* p, size_t n)
{
    if constexpr (std::is_floating_point_v<T>)
        sort_doubles(flip, Keys<i64>{reinterpret_cast<i64*>(p)}, n);
    else if constexpr (sizeof(T) == 1)
        sort_by_counting(p, n, 0, static_cast<u8>(flip));
    else
        sort_flipped(flip, Keys<T>{p}, n);
}
template <class T> [[gnu::noinline]] void sort_in_order(i64 flip, T* p, size_t n, i32* place)
{
    if constexpr (sizeof(T) == 1) {
        if (n > fewBytes) return sort_places_by_counting(p, place, n, static_cast<u8>(flip));
        i16 wide[fewBytes];
        for (size_t i = 0; i < n; ++i) wide[i] = p[i];
        sort_as_words(wide, place, n, static_cast<u16>(flip));
        for (size_t i = 0; i < n; ++i) p[i] = static_cast<u8>(wide[i]);
    } else if constexpr (sizeof(T) == 2) {
        if (n <= mostInWords) return sort_as_words(p, place, n, static_cast<u16>(flip));
        number(place, n);
        flip_all(reinterpret_cast<u8*>(p), n * sizeof(T), flip);
        sort_from_middle({p, place}, n, lowestKey<i16>, highestKey<i16>);
        flip_all(reinterpret_cast<u8*>(p), n * sizeof(T), flip);
    } else {
        number(place, n);
        if constexpr (std::is_floating_point_v<T>)
            sort_doubles(flip, Pairs<i64>{reinterpret_cast<i64*>(p), place}, n);
        else
            sort_flipped(flip, Pairs<T>{p, place}, n);
    }
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
