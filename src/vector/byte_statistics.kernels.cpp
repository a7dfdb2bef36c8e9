// Extremes of bytes, with the places where they come first, and sums.
#include "frame/entry.h"
#include "kernel/map.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

struct Found {
    u8 value;
    size_t index;
};
struct Both {
    Found smallest, largest;
};

#if SIG5D_LEVEL > 0

// A bit for each place where two vectors agree.
template <class V> inline u32 equal(V x, V y) { return byte_signs(bits(x == y)); }

template <int bytes> using Register = Vec<u8, bytes>;
template <int bytes> inline Register<bytes> at(const u8* p) { return loadn<bytes>(p); }

// The lines of four vectors, a few steps before they are wanted: where there is more to compute than to load, the
// processor itself begins too late.
template <int bytes> inline void fetch_ahead(const u8* p)
{
    for (int i = 0; i < 4 * bytes; i += 64) _mm_prefetch(p + 1024 + i, _MM_HINT_T0);
}

#endif

struct Largest {
    static constexpr u8 start = 0, last = 255; // what an element must surpass, and what none surpasses
    static bool better(u8 x, u8 y) { return x > y; }
#if SIG5D_LEVEL > 0
    template <class V> static V best(V x, V y) { return larger(x, y); }
#endif
};
struct Smallest {
    static constexpr u8 start = 255, last = 0;
    static bool better(u8 x, u8 y) { return x < y; }
#if SIG5D_LEVEL > 0
    template <class V> static V best(V x, V y) { return smaller(x, y); }
#endif
};

// The first of the best elements.
template <class Kind> inline Found plain_extreme(const u8* p, size_t n)
{
    Found found{Kind::start, 0};
    for (size_t i = 0; i < n; ++i)
        if (Kind::better(p[i], found.value)) found = {p[i], i};
    return found;
}
inline u32 plain_sum(const u8* p, size_t n)
{
    u32 total = 0;
    for (size_t i = 0; i < n; ++i) total += p[i];
    return total;
}

#if SIG5D_LEVEL == 0

template <class Kind, bool indexed> Found extreme(const u8* p, u32 n) { return plain_extreme<Kind>(p, n); }
template <bool> Both extremes(const u8* p, u32 n)
{
    return {plain_extreme<Smallest>(p, n), plain_extreme<Largest>(p, n)};
}
u32 sum_of(const u8* p, u32 n) { return plain_sum(p, n); }

#else

// Elements that are searched for the place once their values are known to contain it.
constexpr size_t blockVectors = 64;

// n >= bytes; the last vector may overlap others.
template <class Kind, int bytes> inline Register<bytes> best_of(const u8* p, size_t n)
{
    using V = Register<bytes>;
    const V tail = at<bytes>(p + (n - bytes));
    V b0 = at<bytes>(p), b1 = tail, b2 = tail, b3 = tail;
    for (; n >= 8 * bytes; n -= 8 * bytes, p += 8 * bytes) {
        b0 = Kind::best(Kind::best(b0, at<bytes>(p)), at<bytes>(p + 4 * bytes));
        b1 = Kind::best(Kind::best(b1, at<bytes>(p + bytes)), at<bytes>(p + 5 * bytes));
        b2 = Kind::best(Kind::best(b2, at<bytes>(p + 2 * bytes)), at<bytes>(p + 6 * bytes));
        b3 = Kind::best(Kind::best(b3, at<bytes>(p + 3 * bytes)), at<bytes>(p + 7 * bytes));
    }
    for (; n >= bytes; n -= bytes, p += bytes) b0 = Kind::best(b0, at<bytes>(p));
    return Kind::best(Kind::best(b0, b1), Kind::best(b2, b3));
}

// By halves.
template <class Kind, class V> inline u8 best_lane(V x)
{
    constexpr int half = sizeof(V) / 2;
    if constexpr (half >= 16) {
        return best_lane<Kind>(Kind::best(low_end<Vec<u8, half>>(x), upper_lanes<half>(x)));
    } else {
        x = Kind::best(x, upper_lanes<8>(x));
        x = Kind::best(x, upper_lanes<4>(x));
        x = Kind::best(x, upper_lanes<2>(x));
        x = Kind::best(x, upper_lanes<1>(x));
        return x[0];
    }
}

template <int bytes> inline Register<bytes> repeated(u8 x) { return splatn<bytes>(x); }

// The lowest bit that is set; one is. The compiler itself would write tzcnt, which is above every variant's level.
inline u32 first_bit(u32 x)
{
    u32 number;
    asm("bsf %1, %0" : "=r"(number) : "r"(x) : "cc");
    return number;
}

// Where x comes first among n >= bytes elements that contain it.
template <int bytes> inline size_t place_of(u8 x, const u8* p, size_t n)
{
    const auto wanted = repeated<bytes>(x);
    for (size_t i = 0;; i += bytes) {
        if (i + bytes > n) i = n - bytes; // what it has in common with the vector before does not contain x
        if (const u32 places = equal(at<bytes>(p + i), wanted)) return i + first_bit(places);
    }
}

// The best of all blocks that were looked at, and the block that contains it first.
template <class Kind, int bytes> struct Search {
    Found found{Kind::start, 0}; // the block's index
    size_t size = 0;
    Register<bytes> best = repeated<bytes>(Kind::start);

    bool over() const { return found.value == Kind::last; }
    void add(Register<bytes> here, size_t begin, size_t end)
    {
        if (equal(Kind::best(here, best), best) == static_cast<u32>((u64{1} << bytes) - 1)) return;
        found = {best_lane<Kind>(here), begin};
        size = end - begin;
        best = repeated<bytes>(found.value);
    }
    Found place(const u8* p) const
    {
        const size_t inside = size ? place_of<bytes>(found.value, p + found.index, size) : 0;
        return {found.value, found.index + inside};
    }
};

// Where the block from begin on ends; blocks begin at multiples of a vector, the last one is up to twice as long.
template <int bytes> inline size_t block_end(const u8* p, size_t begin, size_t n)
{
    constexpr size_t block = blockVectors * bytes;
    return n - begin < 2 * block ? n : begin + block - (begin ? 0 : reinterpret_cast<uintptr_t>(p) % bytes);
}

// As long as there may be something better; n >= bytes.
template <class Kind, int bytes> inline void search(Search<Kind, bytes>& s, const u8* p, size_t begin, size_t n)
{
    for (size_t end; begin < n && !s.over(); begin = end) {
        end = block_end<bytes>(p, begin, n);
        s.add(best_of<Kind, bytes>(p + begin, end - begin), begin, end);
    }
}
template <class Kind, int bytes, bool indexed> inline Found extreme_of(const u8* p, size_t n)
{
    Search<Kind, bytes> s;
    search(s, p, 0, n);
    return indexed ? s.place(p) : s.found;
}

template <class Kind, bool indexed> [[gnu::noinline]] Found extreme(const u8* p, u32 n)
{
    if (n >= vectorBytes) return extreme_of<Kind, vectorBytes, indexed>(p, n);
    if (n >= 16) return extreme_of<Kind, 16, indexed>(p, n);
    return plain_extreme<Kind>(p, n);
}

// Both in one pass, until one of them is certain. n >= bytes.
template <int bytes, bool indexed> inline Both extremes_of(const u8* p, size_t n)
{
    Search<Smallest, bytes> low;
    Search<Largest, bytes> high;
    size_t begin = 0;
    for (size_t end; begin < n && !low.over() && !high.over(); begin = end) {
        end = block_end<bytes>(p, begin, n);
        const auto last = at<bytes>(p + (end - bytes));
        auto low0 = last, low1 = last, high0 = last, high1 = last;
        size_t i = begin;
        for (; end - i >= 4 * bytes; i += 4 * bytes) {
            fetch_ahead<bytes>(p + i);
            const auto a = at<bytes>(p + i), b = at<bytes>(p + i + bytes);
            const auto c = at<bytes>(p + i + 2 * bytes), d = at<bytes>(p + i + 3 * bytes);
            low0 = smaller(smaller(low0, a), c);
            low1 = smaller(smaller(low1, b), d);
            high0 = larger(larger(high0, a), c);
            high1 = larger(larger(high1, b), d);
        }
        for (; end - i >= bytes; i += bytes) {
            low0 = smaller(low0, at<bytes>(p + i));
            high0 = larger(high0, at<bytes>(p + i));
        }
        low.add(smaller(low0, low1), begin, end);
        high.add(larger(high0, high1), begin, end);
    }
    search(low, p, begin, n);
    search(high, p, begin, n);
    return indexed ? Both{low.place(p), high.place(p)} : Both{low.found, high.found};
}
template <bool indexed> [[gnu::noinline]] Both extremes(const u8* p, u32 n)
{
    if (n >= vectorBytes) return extremes_of<vectorBytes, indexed>(p, n);
    return {extreme<Smallest, indexed>(p, n), extreme<Largest, indexed>(p, n)};
}

// Of numbers of 16 bits without a sign bit: their sums in lanes of 64.
template <class V> inline auto sums_of_four(V x)
{
    const auto pairs = as<Vec<u64, sizeof(V) / 8>>(sums_of_two(as<Vec<i16, sizeof(V) / 2>>(x)));
    return (pairs & 0xFFFFFFFF) + (pairs >> 32);
}

// Sums of eight bytes in lanes of 64 bits; every second vector's, where there is an instruction for it, of neighbours
// first: the one for eight runs at one place of the processor only. What is left over goes in eights and one by one.
template <int bytes> [[gnu::noinline]] u32 sum_in_vectors(const u8* p, u32 len)
{
    using Sums = Vec<u64>;
    size_t n = len;
    u32 total = 0;
    if (n >= 16 * bytes) {
        const size_t skip = to_alignment<bytes>(p) % bytes;
        total = plain_sum(p, skip);
        p += skip;
        n -= skip;
    }
    Sums s0{}, s1{};
    if constexpr (bytes > 16) {
        while (n >= 4 * bytes) {
            Vec<u16, bytes / 2> pairs0{}, pairs1{};
            const size_t steps = n < 256 * bytes ? n / (4 * bytes) : 64; // 64*(255 + 255) < 32768
            n -= steps * 4 * bytes;
            for (const u8* const end = p + steps * 4 * bytes; p < end; p += 4 * bytes) {
                fetch_ahead<bytes>(p);
                s0 += sums_of_eight(at<bytes>(p));
                s1 += sums_of_eight(at<bytes>(p + bytes));
                pairs0 += sums_of_two(at<bytes>(p + 2 * bytes));
                pairs1 += sums_of_two(at<bytes>(p + 3 * bytes));
            }
            s0 += sums_of_four(pairs0);
            s1 += sums_of_four(pairs1);
        }
    } else {
        Sums s2{}, s3{};
        for (; n >= 4 * bytes; n -= 4 * bytes, p += 4 * bytes) {
            s0 += sums_of_eight(at<bytes>(p));
            s1 += sums_of_eight(at<bytes>(p + bytes));
            s2 += sums_of_eight(at<bytes>(p + 2 * bytes));
            s3 += sums_of_eight(at<bytes>(p + 3 * bytes));
        }
        s0 += s2;
        s1 += s3;
    }
    for (; n >= bytes; n -= bytes, p += bytes) s0 += sums_of_eight(at<bytes>(p));
    for (; n >= 8; n -= 8, p += 8) {
        total += static_cast<u32>(sums_of_eight(load_part<8>(p))[0]);
    }
    const auto lanes = reinterpret_cast<Vec<u32, bytes / 4>>(s0 + s1);
    for (int i = 0; i < bytes / 4; i += 2) total += lanes[i];
    return total + plain_sum(p, n);
}
u32 sum_of(const u8* p, u32 n) { return sum_in_vectors<vectorBytes>(p, n); }

#endif

void maximum(const u8* a, u32 n, u8* max) { *max = extreme<Largest, false>(a, n).value; }
void minimum(const u8* a, u32 n, u8* min) { *min = extreme<Smallest, false>(a, n).value; }
void extremes(const u8* a, u32 n, u8* min, u8* max)
{
    const Both found = extremes<false>(a, n);
    *min = found.smallest.value;
    *max = found.largest.value;
}
void maximum(const u8* a, u32 n, u8* max, i32* index)
{
    const Found found = extreme<Largest, true>(a, n);
    *max = found.value;
    *index = static_cast<i32>(found.index);
}
void minimum(const u8* a, u32 n, u8* min, i32* index)
{
    const Found found = extreme<Smallest, true>(a, n);
    *min = found.value;
    *index = static_cast<i32>(found.index);
}
void extremes(const u8* a, u32 n, u8* min, i32* minIndex, u8* max, i32* maxIndex)
{
    const Both found = extremes<true>(a, n);
    *min = found.smallest.value;
    *minIndex = static_cast<i32>(found.smallest.index);
    *max = found.largest.value;
    *maxIndex = static_cast<i32>(found.largest.index);
}
void total(const u8* a, u32 n, i32* sum) { *sum = static_cast<i32>(sum_of(a, n)); }

} // namespace
#include "entries/vector/byte_statistics.inc"
} // namespace sig5d::SIG5D_VARIANT
