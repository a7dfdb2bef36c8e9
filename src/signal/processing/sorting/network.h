// Short arrays of keys by networks of comparisons, which are the same whatever the keys are. The array lies in rows of
// vectors: the columns, a lane of each row, are sorted, and then merged two by two (Batcher, Sorting networks and their
// applications, 1968), as vqsort does (Blacher, Giesen and Kuehne, Vectorized and performance-portable quicksort,
// 2021).
#pragma once
#include "signal/processing/sorting/partition.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class K> using Row = Vec<K, lanesParted<sizeof(K)>>;
constexpr size_t fewestRows = 8;
// 8, 16 or 32, in a kilobyte.
template <class K> constexpr size_t mostRows = sizeof(Row<K>) == 64 ? 16 : 32;
template <class K> constexpr size_t mostInNetwork = mostRows<K>* laneCount<Row<K>>;

template <class V> inline void order(V& x, V& y)
{
    const V low = x < y ? x : y;
    y = x < y ? y : x;
    x = low;
}

// Eight rows: 19 comparisons, which is the fewest.
template <class V> [[gnu::always_inline]] inline void sort_eight(V* row)
{
    V a = row[0], b = row[1], c = row[2], d = row[3], e = row[4], f = row[5], g = row[6], h = row[7];
    order(a, c), order(b, d), order(e, g), order(f, h);
    order(a, e), order(b, f), order(c, g), order(d, h);
    order(a, b), order(c, d), order(e, f), order(g, h);
    order(c, e), order(d, f);
    order(b, e), order(d, g);
    order(b, c), order(d, e), order(f, g);
    row[0] = a, row[1] = b, row[2] = c, row[3] = d, row[4] = e, row[5] = f, row[6] = g, row[7] = h;
}
// Eight rows of columns that rise and fall.
template <class V> [[gnu::always_inline]] inline void settle_eight(V* row)
{
    V a = row[0], b = row[1], c = row[2], d = row[3], e = row[4], f = row[5], g = row[6], h = row[7];
    order(a, e), order(b, f), order(c, g), order(d, h);
    order(a, c), order(b, d), order(e, g), order(f, h);
    order(a, b), order(c, d), order(e, f), order(g, h);
    row[0] = a, row[1] = b, row[2] = c, row[3] = d, row[4] = e, row[5] = f, row[6] = g, row[7] = h;
}
template <class V> [[gnu::noinline]] void settle(V* row, size_t rows)
{
    for (size_t half = rows / 2; half >= 8; half /= 2)
        for (size_t group = 0; group < rows; group += 2 * half)
            for (size_t i = 0; i < half; ++i) order(row[group + i], row[group + i + half]);
    for (size_t i = 0; i < rows; i += 8) settle_eight(row + i);
}
template <class V> [[gnu::noinline]] void sort_columns(V* row, size_t rows)
{
    for (size_t i = 0; i < rows; i += 8) sort_eight(row + i);
    for (size_t size = 16; size <= rows; size *= 2)
        for (size_t group = 0; group < rows; group += size) {
            for (size_t i = 0; i < size / 2; ++i) order(row[group + i], row[group + size - 1 - i]);
            settle(row + group, size / 2);
            settle(row + group + size / 2, size / 2);
        }
}

// Each key with that of another lane: the lower one where the lane's number has not this bit, else the higher one.
template <int bit, class V> inline V chosen(V x, V other)
{
    return lanes_by_bit<bit>(x < other ? x : other, x < other ? other : x);
}
// What rises and falls over so many columns on end.
template <int columns, class V> inline V settle_lanes(V x)
{
    if constexpr (columns > 1) {
        x = chosen<columns / 2>(x, crossed<columns / 2>(x));
        return settle_lanes<columns / 2>(x);
    }
    return x;
}
template <int columns, class V> inline void merge_columns(V* row, size_t rows)
{
    if constexpr (columns <= laneCount<V>) {
        for (size_t i = 0, j = rows - 1; i < j; ++i, --j) {
            const V x = row[i], y = row[j];
            row[i] = settle_lanes<columns / 2>(chosen<columns / 2>(x, crossed<columns - 1>(y)));
            row[j] = settle_lanes<columns / 2>(chosen<columns / 2>(y, crossed<columns - 1>(x)));
        }
        settle(row, rows);
        merge_columns<2 * columns>(row, rows);
    }
}

template <int half, class V> inline void transpose_step(V* row)
{
    if constexpr (half < laneCount<V>) {
#pragma GCC unroll 8
        for (int i = 0; i < laneCount<V>; ++i) {
            if (i & half) continue;
            const V x = row[i], y = row[i + half];
            row[i] = lower_halves<half>(x, y);
            row[i + half] = upper_halves<half>(x, y);
        }
        transpose_step<2 * half>(row);
    }
}

template <class K> [[gnu::noinline]] void sort_by_network(K* a, size_t n)
{
    using V = Row<K>;
    constexpr size_t L = laneCount<V>;
    V row[mostRows<K>];
    size_t rows = fewestRows;
    while (rows * L < n) rows *= 2;
    size_t whole = n / L;
    for (size_t i = 0; i < whole; ++i) row[i] = loadn<L>(a + i * L);
    for (size_t i = whole; i < rows; ++i) row[i] = splatn<L>(highestKey<K>);
    for (size_t i = whole * L; i < n; ++i) row[whole][i % L] = a[i];
    sort_columns(row, rows);
    merge_columns<2>(row, rows);
    for (size_t i = 0; i < rows; i += L) {
        V block[L];
        for (size_t j = 0; j < L; ++j) block[j] = row[i + j];
        transpose_step<1>(block);
        for (size_t j = 0; j < L; ++j) {
            const size_t at = j * rows + i;
            if (at + L <= n)
                storen<L>(a + at, block[j]);
            else
                for (size_t k = at; k < n; ++k) a[k] = block[j][k - at];
        }
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
