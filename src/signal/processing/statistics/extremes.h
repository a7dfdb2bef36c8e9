// The best elements of arrays, with the places where they come first. As in a walk from element 0 on, in which a
// greater one, or a smaller one, takes the place of the best: so a NaN is chosen only if it is element 0, and stays.
#pragma once
#include "kernel/reduce.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct Largest {
    template <class V> static V best(V x, V y) { return larger(x, y); } // y where they are equal or one is NaN
    template <class V> static auto better(V x, V y) { return x > y; }
};
struct Smallest {
    template <class V> static V best(V x, V y) { return smaller(x, y); }
    template <class V> static auto better(V x, V y) { return x < y; }
};

template <class A> using Element = Lane<decltype(load_lanes<1>(A{}))>;
template <class A> inline Element<A> element(A a)
{
    const auto v = load_lanes<1>(a);
    if constexpr (lanes<u8> == 1)
        return v;
    else
        return v[0];
}

// By halves.
template <class Kind, class V> inline Lane<V> best_lane(V v)
{
    if constexpr (sizeof(V) == sizeof(Lane<V>)) {
        return v;
    } else if constexpr (sizeof(V) > 16) {
        constexpr int half = sizeof(V) / sizeof(Lane<V>) / 2;
        const auto upper = upper_lanes<half>(v);
        return best_lane<Kind>(Kind::best(low_end<std::remove_const_t<decltype(upper)>>(v), upper));
    } else {
        Lane<V> x = v[0];
#pragma GCC unroll 8
        for (size_t k = 1; k < sizeof(V) / sizeof x; ++k) x = Kind::best(static_cast<Lane<V>>(v[k]), x);
        return x;
    }
}

// Two vectors for one state, where they are taken better together.
template <class State, class V> [[gnu::always_inline]] inline void add_two(State& s, V x, V y)
{
    if constexpr (requires { s.add(x, y); }) {
        s.add(x, y);
    } else {
        s.add(x);
        s.add(y);
    }
}
// What the elements come to in any order, where it does not matter that some are looked at twice. A State of vectors
// begins as "start" and has add(x), for what op gives of elements, and join(another).
template <class State, class Op, class... A>
[[gnu::always_inline]] inline State folded_vectors(size_t n, State start, Op op, A... a)
{
    constexpr size_t L = static_cast<size_t>(State::lanesOfEach), states = L == 1 ? 1 : 4;
    State s[states];
    for (State& one : s) one = start;
    if constexpr (L > 1)
        if (n < L) {
            s[0].add(op(load_ends<L>(a, n)...));
            return s[0];
        }
    size_t i = 0;
    for (; n - i >= 2 * states * L; i += 2 * states * L)
#pragma GCC unroll 4
        for (size_t k = 0; k < states; ++k)
            add_two(s[k], op(load_lanes<L>(a + (i + k * L))...), op(load_lanes<L>(a + (i + (states + k) * L))...));
    for (; n - i >= L; i += L) s[0].add(op(load_lanes<L>(a + i)...));
    if constexpr (L > 1) {
        if (i < n) s[0].add(op(load_lanes<L>(a + (n - L))...));
        s[0].join(s[1]);
        s[2].join(s[3]);
        s[0].join(s[2]);
    }
    return s[0];
}

struct AsItIs {
    template <class V> V operator()(V x) const { return x; }
};
template <class Kind, class V> struct BestOf {
    static constexpr int lanesOfEach = sizeof(V) / sizeof(Lane<V>);
    V best;
    void add(V x) { best = Kind::best(x, best); }
    void join(BestOf o) { add(o.best); }
};
template <class V> struct BothOf {
    static constexpr int lanesOfEach = sizeof(V) / sizeof(Lane<V>);
    V smallest, largest;
    void add(V x)
    {
        smallest = smaller(x, smallest);
        largest = larger(x, largest);
    }
    void join(BothOf o)
    {
        smallest = smaller(o.smallest, smallest);
        largest = larger(o.largest, largest);
    }
};

// The largest of numbers >= 0, or a NaN if one is among them.
template <class V> struct LargestOrNaN {
    static constexpr int lanesOfEach = sizeof(V) / sizeof(f64);
    V largest{};
    decltype(unordered(V{}, V{})) none{};

    void add(V x)
    {
        largest = larger(x, largest);
        none = either(none, unordered(x, x));
    }
    void add(V x, V y) // one question for both
    {
        largest = larger(y, larger(x, largest));
        none = either(none, unordered(x, y));
    }
    void join(LargestOrNaN o)
    {
        largest = larger(o.largest, largest);
        none = either(none, o.none);
    }
};
template <class Op, class... A> [[gnu::always_inline]] inline f64 largest_of(size_t n, Op op, A... a)
{
    const auto s = folded_vectors<LargestOrNaN<Vec<f64>>>(n, {}, op, a...);
    return any(s.none) ? __builtin_nan("") : best_lane<Largest>(s.largest);
}

// Where x comes first, from "begin" on; it does come.
template <class A> [[gnu::noinline]] size_t place_of(Element<A> x, size_t begin, size_t n, A a)
{
    constexpr size_t L = lanes<Element<A>>;
    size_t i = begin;
    if constexpr (L > 1) {
        const auto is = [=](size_t k) { return load_lanes<L>(a + k) == splat(x); };
        while (n - i >= 4 * L && !any(is(i) | is(i + L) | is(i + 2 * L) | is(i + 3 * L))) i += 4 * L;
        while (n - i >= L && !any(is(i))) i += L;
    }
    while (element(a + i) != x) ++i;
    return i;
}

template <class T> struct Found {
    T value;
    size_t index;
};

// The best of all blocks that were looked at, and the first block that contains it; element 0 before there is one.
template <class Kind, class A> struct Search {
    using T = Element<A>;
    T value;
    Vec<T> all; // the value in all lanes
    size_t begin = 0;
    bool isFirst = true; // it is element 0

    explicit Search(A a) : value(element(a)), all(splat(value)) {}
    void add(Vec<T> best, size_t block)
    {
        if (!any(Kind::better(best, all))) return;
        value = best_lane<Kind>(best);
        all = splat(value);
        begin = block;
        isFirst = false;
    }
    Found<T> found(size_t n, A a) const
    {
        const size_t place = isFirst ? 0 : place_of(value, begin, n, a);
        return {element(a + place), place}; // of zeros that one
    }
};

// A place is looked for in blocks; without one all is a block.
template <class T> inline size_t block_of_search(size_t n, bool placed)
{
    constexpr size_t most = 4096 / sizeof(T);
    return placed && n > most ? most : n;
}
// Of zeros that are the best the first one counts, whose sign vectors do not tell: then its place is looked for, too.
template <class Kind, class A> inline Found<Element<A>> found(const Search<Kind, A>& s, size_t n, A a, bool placed)
{
    if (placed || (std::is_floating_point_v<Element<A>> && s.value == 0)) return s.found(n, a);
    return {s.value, 0};
}

template <class Kind, class A> [[gnu::noinline]] Found<Element<A>> extreme(size_t n, A a, bool placed)
{
    using T = Element<A>;
    using State = BestOf<Kind, Vec<T>>;
    Search<Kind, A> s(a);
    const size_t block = block_of_search<T>(n, placed);
    for (size_t i = 0; i < n; i += block) {
        const size_t m = n - i < block ? n - i : block;
        s.add(folded_vectors<State>(m, {s.all}, AsItIs{}, a + i).best, i);
    }
    return found(s, n, a, placed);
}
template <class T> struct FoundBoth {
    Found<T> smallest, largest;
};
template <class A> [[gnu::noinline]] FoundBoth<Element<A>> extremes(size_t n, A a, bool placed)
{
    using T = Element<A>;
    using State = BothOf<Vec<T>>;
    Search<Smallest, A> low(a);
    Search<Largest, A> high(a);
    const size_t block = block_of_search<T>(n, placed);
    for (size_t i = 0; i < n; i += block) {
        const size_t m = n - i < block ? n - i : block;
        const State s = folded_vectors<State>(m, {low.all, high.all}, AsItIs{}, a + i);
        low.add(s.smallest, i);
        high.add(s.largest, i);
    }
    return {found(low, n, a, placed), found(high, n, a, placed)};
}

// What is stored of a magnitude: the largest of all is no number of its type.
template <class T> inline T stored(T x) { return x; }
inline i32 stored(u32 x) { return static_cast<i32>(x > 0x7FFFFFFFu ? 0x7FFFFFFFu : x); }

// A single place need not be asked for.
template <class Kind, class A, class D> inline void tell_extreme(A a, int n, D* value, i32* index)
{
    const auto found = extreme<Kind>(static_cast<size_t>(n), a, index);
    *value = stored(found.value);
    if (index) *index = static_cast<i32>(found.index);
}
template <class T> inline void tell_extremes(const T* a, int n, T* min, T* max)
{
    const FoundBoth<T> found = extremes(static_cast<size_t>(n), a, false);
    *min = found.smallest.value;
    *max = found.largest.value;
}
template <class T> inline void tell_extremes(const T* a, int n, T* min, i32* minIndex, T* max, i32* maxIndex)
{
    const FoundBoth<T> found = extremes(static_cast<size_t>(n), a, true);
    *min = found.smallest.value;
    *minIndex = static_cast<i32>(found.smallest.index);
    *max = found.largest.value;
    *maxIndex = static_cast<i32>(found.largest.index);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
