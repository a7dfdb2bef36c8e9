// Sorting in one order for all values, ascending and descending, with and without the places where elements were.
#include "frame/entry.h"
#include "signal/processing/sorting/counting.h"
#include "signal/processing/sorting/few.h"
#include "signal/processing/sorting/quick.h"
#include "signal/processing/sorting/words.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr size_t fewBytes = 128; // so few are sorted faster than counted

template <class T> [[gnu::noinline]] void reverse(T* p, size_t n)
{
    for (size_t i = 0, j = n - 1; i < j; ++i, --j) exchange(p[i], p[j]);
}

// Arrays that are sorted, or the other way round, are found so in one pass. Equal keys keep their order. Key makes keys
// of elements, which are not changed before that.
template <class Key, class K> [[gnu::noinline]] bool sorted_already(Array<K> a, size_t n, i64 flip)
{
    if (rising(a.key, n, Key{flip})) return true;
    if (!rising(a.key, n, Key{~flip})) return false;
    reverse(a.key, n);
    if (a.place) {
        reverse(a.place, n);
        for (size_t i = 0, end; i < n; i = end) {
            for (end = i + 1; end < n && a.key[end] == a.key[i];) ++end;
            reverse(a.place + i, end - i);
        }
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
template <class T> inline void flip_all(T* p, size_t n, i64 flip)
{
    if (flip) change(p, n, Flipped{flip});
}

// In ascending order, or in descending order where all bits of flip are set. Without places where there are none.
[[gnu::noinline]] void sort_in_order(i64 flip, f64* p, i32* place, size_t n)
{
    const Array<i64> a = {reinterpret_cast<i64*>(p), place};
    if (place) number(place, n);
    if (sorted_already<KeysOfDoubles>(a, n, flip)) return;
    if (sort_few<KeysOfDoubles, DoublesOfKeys>(a, n, flip)) return;
    change(a.key, n, KeysOfDoubles{flip});
    quicksort(a, n);
    change(a.key, n, DoublesOfKeys{flip});
}
template <class T> [[gnu::noinline]] void sort_integers(i64 flip, Array<T> a, size_t n)
{
    if (a.place) number(a.place, n);
    if (sorted_already<Flipped>(a, n, flip)) return;
    if constexpr (sizeof(T) > 2) // shorter ones are counted soon
        if (sort_few<Flipped, Flipped>(a, n, flip)) return;
    flip_all(a.key, n, flip);
    quicksort(a, n);
    flip_all(a.key, n, flip);
}
inline void sort_in_order(i64 flip, i32* p, i32* place, size_t n) { sort_integers(flip, Array<i32>{p, place}, n); }
inline void sort_in_order(i64 flip, i16* p, i32* place, size_t n)
{
    if (!place) return sort_integers(flip, Array<i16>{p, nullptr}, n);
    if (n <= mostInWords) return sort_as_words(p, place, n, static_cast<u16>(flip));
    number(place, n);
    flip_all(p, n, flip);
    sort_from_middle({p, place}, n, lowestKey<i16>, highestKey<i16>);
    flip_all(p, n, flip);
}
[[gnu::noinline]] void sort_in_order(i64 flip, u8* p, i32* place, size_t n)
{
    if (!place) return sort_by_counting(p, n, 0, static_cast<u8>(flip));
    if (n > fewBytes) return sort_places_by_counting(p, place, n, static_cast<u8>(flip));
    i16 wide[fewBytes];
    for (size_t i = 0; i < n; ++i) wide[i] = p[i];
    sort_as_words(wide, place, n, static_cast<u16>(flip));
    for (size_t i = 0; i < n; ++i) p[i] = static_cast<u8>(wide[i]);
}

template <class T> void sort_ascending(T* p, int n) { sort_in_order(0, p, nullptr, static_cast<size_t>(n)); }
template <class T> void sort_descending(T* p, int n) { sort_in_order(-1, p, nullptr, static_cast<size_t>(n)); }
template <class T> void sort_index_ascending(T* p, i32* place, int n)
{
    sort_in_order(0, p, place, static_cast<size_t>(n));
}
template <class T> void sort_index_descending(T* p, i32* place, int n)
{
    sort_in_order(-1, p, place, static_cast<size_t>(n));
}

} // namespace
#include "entries/signal/processing/sorting/sort.inc"
} // namespace sig5d::SIG5D_VARIANT
