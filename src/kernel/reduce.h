// The loops of reductions, from arrays to few numbers. What is exact in any order (extremes, counts, sums of integers)
// takes each_vector; a sum of doubles, whose order is part of its result, sum_of. What the arrays are, kernel/sources.h
// tells.
#pragma once
#include "kernel/sources.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// add(state, x...) for each whole vector x of the arrays, with as many states in turn as are given: so many additions,
// or whatever it is, can be under way. Returns the elements that are left at the end.
template <int L, int states, class State, class Add, class... A>
[[gnu::always_inline]] inline size_t each_vector(size_t n, State (&state)[states], Add add, A... a)
{
    constexpr size_t step = L == 1 ? 1 : 2 * states;
    size_t i = 0;
    for (; n - i >= step * L; i += step * L)
#pragma GCC unroll 16
        for (size_t k = 0; k < step; ++k) add(state[k % states], load_lanes<L>(a + (i + k * L))...);
    for (; n - i >= L; i += L) add(state[0], load_lanes<L>(a + i)...);
    return n - i;
}

// Sums of doubles. An array is summed in blocks. Element i of a block belongs to partial sum i % lanes, which takes its
// elements in their order; partial sums that have an element are joined by halves, k with k + lanes / 2, then with k +
// lanes / 4, and so on; the sums of the blocks are joined in a balanced tree. So no element goes through more than
// block / lanes + log2(n) additions, and all bodies have the same ones.
//
// What is added, an operation tells, a record with
//     lanes    partial sums;
//     members  1, or 2 where elements are pairs: their firsts and their seconds are summed each for themselves;
//     sums     how many sums are made at a time;
//     block    elements of a block, a multiple of the lanes;
//     operator()(x...)  the terms of a vector of elements: a vector, or Terms where there are several sums.
template <class V, int n> struct Terms {
    V of[n];
};
template <class V> inline Terms<V, 1> as_terms(V v) { return {{v}}; }
template <class V, int n> inline Terms<V, n> as_terms(Terms<V, n> t) { return t; }

// The sums of an array or of a block: of each kind, of each member.
template <class Op> struct Totals {
    f64 of[Op::sums][Op::members];
};
template <class Op> inline Totals<Op> joined(Totals<Op> x, const Totals<Op>& y)
{
    for (int k = 0; k < Op::sums; ++k)
        for (int m = 0; m < Op::members; ++m) x.of[k][m] += y.of[k][m];
    return x;
}

// A balanced tree of what blocks give, from the first block on: always two that stand for as many blocks are joined.
template <class Node> class Tree
{
public:
    void add(Node x)
    {
        int k = 0;
        for (u32 b = blocks_++; b & 1; b >>= 1) x = joined(waiting_[k++], x);
        waiting_[k] = x;
    }
    Node total() const // the last ones are joined first
    {
        int k = 0;
        u32 b = blocks_;
        for (; !(b & 1); b >>= 1) ++k;
        Node x = waiting_[k];
        while (b >>= 1)
            if (++k; b & 1) x = joined(waiting_[k], x);
        return x;
    }

private:
    Node waiting_[25]; // 2^32 doubles in blocks of 256
    u32 blocks_ = 0;
};

// Vectors under way at a time: with few registers a block is summed in rounds of fewer lanes.
constexpr size_t vectorsUnderWay = sizeof(void*) == 4 && SIG5D_LEVEL < 6 ? 4 : 8;

// Adds so many terms, fewer than there are partial sums, to the first partial sums, or makes these of them.
template <size_t w, class Op, class... A>
[[gnu::always_inline]] inline size_t add_some(size_t k, size_t n, bool fresh, f64* partial, const Op& op, A... a)
{
#pragma GCC unroll 1
    for (; n - k >= w; k += w) {
        const auto t = as_terms(op(load_lanes<w>(a + k)...));
        for (int s = 0; s < Op::sums; ++s) {
            f64* const p = partial + s * Op::lanes + k;
            store_lanes<w>(Ordinary{}, p, fresh ? t.of[s] : load_lanes<w>(p) + t.of[s]);
        }
    }
    return k;
}

// The partial sums of whole rows, each of which has an element for each partial sum.
template <class Op, class... A>
[[gnu::always_inline]] inline void add_rows(size_t rows, f64* partial, const Op& op, A... a)
{
    constexpr size_t L = lanes<f64>, all = Op::lanes, most = vectorsUnderWay / Op::sums, vectors = all / L,
                     group = vectors < most ? vectors : most;
    for (size_t first = 0; first < all; first += group * L) {
        decltype(as_terms(op(load_lanes<L>(a)...))) t[group];
#pragma GCC unroll 8
        for (size_t j = 0; j < group; ++j) t[j] = as_terms(op(load_lanes<L>(a + (first + j * L))...));
        for (size_t i = first + all; i < rows * all; i += all)
#pragma GCC unroll 8
            for (size_t j = 0; j < group; ++j) {
                const auto x = as_terms(op(load_lanes<L>(a + (i + j * L))...));
#pragma GCC unroll 2
                for (int s = 0; s < Op::sums; ++s) t[j].of[s] += x.of[s];
            }
#pragma GCC unroll 8
        for (size_t j = 0; j < group; ++j)
#pragma GCC unroll 2
            for (int s = 0; s < Op::sums; ++s) storen<L>(partial + s * all + first + j * L, t[j].of[s]);
    }
}

// The partial sums of a block, one after the other: a function for each operation, and the rest for all of them.
template <class Op, class... A> [[gnu::noinline]] void add_block(size_t n, f64* partial, Op op, A... a)
{
    constexpr size_t L = lanes<f64>, least = L == 1 ? 1 : Op::members;
    const size_t whole = n - n % Op::lanes;
    if (whole) add_rows(whole / Op::lanes, partial, op, a...);
    size_t k = 0;
    if constexpr (L > least) k = add_some<L>(0, n - whole, !whole, partial, op, (a + whole)...);
    add_some<least>(k, n - whole, !whole, partial, op, (a + whole)...);
}

// Joins the partial sums, those of n elements if there are fewer.
template <size_t half, size_t members> [[gnu::always_inline]] inline void join_all(f64* p)
{
    if constexpr (half >= members) {
        constexpr size_t w = half < lanes<f64> ? half : lanes<f64>;
#pragma GCC unroll 32
        for (size_t k = 0; k < half; k += w) storen<w>(p + k, loadn<w>(p + k) + loadn<w>(p + k + half));
        join_all<half / 2, members>(p);
    }
}
template <size_t all, size_t members> [[gnu::noinline]] void join(size_t n, f64* p)
{
    if (n >= all) return join_all<all / 2, members>(p);
    for (size_t half = all / 2; half >= members; half /= 2)
        for (size_t k = 0; k < half && k + half < n; ++k) p[k] += p[k + half];
}

// The sums of a block, 0 < n <= Op::block; of pairs n is even.
template <class Op, class... A> inline Totals<Op> block_sums(size_t n, const Op& op, A... a)
{
    f64 partial[Op::sums * Op::lanes];
    add_block(n, partial, op, a...);
    Totals<Op> totals;
    for (int s = 0; s < Op::sums; ++s) {
        f64* const p = partial + s * Op::lanes;
        join<Op::lanes, Op::members>(n, p);
        for (int m = 0; m < Op::members; ++m) totals.of[s][m] = p[m];
    }
    return totals;
}

// The sums of an array of n > 0 elements, members of pairs counted each.
template <class Op, class... A> inline Totals<Op> sum_of(size_t n, Op op, A... a)
{
    Tree<Totals<Op>> tree;
    for (size_t i = 0;; i += Op::block) {
        const bool last = n - i <= Op::block;
        const Totals<Op> block = block_sums(last ? n - i : Op::block, op, (a + i)...);
        if (last && i == 0) return block;
        tree.add(block);
        if (last) return tree.total();
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
