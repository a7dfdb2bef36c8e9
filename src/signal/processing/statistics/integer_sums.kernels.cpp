// Sums, means and dot products of integers, exact before they are scaled and rounded once; elements within a range.
#include "frame/entry.h"
#include "kernel/reduce.h"
#include "kernel/scale.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The sum of what vectors of integers hold in each lane.
template <class T, class V> inline T lane_sum(V v)
{
    T sum = 0;
    for (size_t i = 0; i < sizeof(V) / sizeof(Lane<V>); ++i) sum += v[i];
    return sum;
}

#if SIG5D_LEVEL > 0

// So many vectors at most that the sums below have room in 32 bits.
constexpr size_t vectorsOfBlock = 4096;

// Each 32-bit lane sums its elements modulo 2^32, and what they are above 16 bits; the difference, which is what they
// are within 16 bits, has room.
struct LaneSums {
    Vec<u32> all{};
    Vec<i32> high{};
};
inline i64 block_sum(size_t vectors, const i32* a)
{
    LaneSums s[4];
    each_vector<lanes<i32>>(
        vectors * lanes<i32>, s,
        [](LaneSums& to, Vec<i32> x) {
            to.all += as<Vec<u32>>(x);
            to.high += x >> 16;
        },
        a);
    const Vec<i32> high = s[0].high + s[1].high + (s[2].high + s[3].high);
    const Vec<u32> low = s[0].all + s[1].all + (s[2].all + s[3].all) - (as<Vec<u32>>(high) << 16);
    return lane_sum<i64>(high) * 65536 + lane_sum<i64>(low);
}
inline i64 block_sum(size_t vectors, const i16* a)
{
    Vec<i32> s[4] = {};
    each_vector<lanes<i16>>(
        vectors * lanes<i16>, s, [](Vec<i32>& to, Vec<i16> x) { to += sums_of_two(x); }, a);
    return lane_sum<i64>(s[0] + s[1] + (s[2] + s[3]));
}

#endif

template <class T> [[gnu::noinline]] i64 exact_sum(size_t n, const T* a)
{
    i64 sum = 0;
    size_t i = 0;
#if SIG5D_LEVEL > 0
    constexpr size_t L = lanes<T>;
    for (size_t vectors; (vectors = (n - i) / L) > 0; i += vectors * L) {
        if (vectors > vectorsOfBlock) vectors = vectorsOfBlock;
        sum += block_sum(vectors, a + i);
    }
#endif
    for (; i < n; ++i) sum += a[i];
    return sum;
}

// A number of up to 94 bits: high * 2^32 + low.
struct Long {
    i64 high;
    u64 low;
};
// Its 2^-s, as "scaled" gives that of numbers of 64 bits. So large a scale factor looks at what is above 30 bits, and
// whether there is something below; so small a one sees no number but those of 64 bits within the limits.
inline i32 scaled(Long x, int s)
{
    const i64 high = x.high + static_cast<i64>(x.low >> 32);
    const u32 low = static_cast<u32>(x.low);
    if (s >= 32) {
        const u64 upper = static_cast<u64>(high) << 2 | low >> 30, isMore = (low & 0x3FFFFFFFu) != 0;
        return scaled<i32>(static_cast<i64>(upper | isMore), s - 30);
    }
    if (high != static_cast<i32>(high))
        return high < 0 ? static_cast<i32>(lowest_of<i32>) : static_cast<i32>(highest<i32>);
    return scaled<i32>(static_cast<i64>(static_cast<u64>(high) << 32 | low), s);
}

// sum * 2^-s / n, rounded once.
[[gnu::noinline]] i32 scaled_mean(i64 sum, int n, int s)
{
    const u64 size = static_cast<u64>(sum < 0 ? -sum : sum); // below 2^62
    const u32 divisor = static_cast<u32>(n);
    // Of doubles, since 32-bit code has no division of such numbers: half the quotient, nearly.
    const f64 upper = static_cast<i32>(size >> 32),
              lower = static_cast<i32>(static_cast<u32>(size) ^ 0x80000000u) + 0x1p31;
    u64 q = u64{2} * static_cast<u32>(static_cast<i32>((upper * 0x1p32 + lower) / n * 0.5));
    i64 r = static_cast<i64>(size - q * divisor);
    while (r < 0) r += divisor, --q;
    while (r >= static_cast<i64>(divisor)) r -= divisor, ++q;

    u32 rest = static_cast<u32>(r);
    bool up, tie;
    if (s > 0) {
        if (s > 32) return 0;
        const u64 half = u64{1} << (s - 1), cut = q & (2 * half - 1);
        up = cut > half || (cut == half && rest != 0);
        tie = cut == half && rest == 0;
        q >>= s;
    } else {
        for (; s < 0 && q <= 0x80000000u && (q | rest); ++s) {
            const u64 twice = u64{2} * rest;
            const bool carry = twice >= divisor;
            q = 2 * q + carry;
            rest = static_cast<u32>(twice - (carry ? divisor : 0));
        }
        up = u64{2} * rest > divisor;
        tie = u64{2} * rest == divisor;
    }
    q += up || (tie && q % 2 != 0);
    return saturated<i32>(sum < 0 ? -static_cast<i64>(q) : static_cast<i64>(q));
}

#if SIG5D_LEVEL > 0

// Products of 64 bits as two sums: of all modulo 2^64, and of what is above 32 bits, of each more by 2^31 so that it is
// no negative number. What is below 32 bits is the difference.
struct ProductSums {
    Vec<u64> all{}, high{};
    void add(Vec<u64> product)
    {
        all += product;
        high += (product ^ splat(signBit)) >> 32;
    }
};
inline size_t add_products(size_t n, const i32* a, const i32* b, Long& sum)
{
    ProductSums s[2];
    const size_t done = n - each_vector<lanes<i32>>(
                                n, s,
                                [](ProductSums& to, Vec<i32> x, Vec<i32> y) {
                                    to.add(as<Vec<u64>>(even_products(x, y)));
                                    to.add(as<Vec<u64>>(even_products(odd_lanes(x), odd_lanes(y))));
                                },
                                a, b);
    const u64 high = lane_sum<u64>(s[0].high + s[1].high);
    sum.low = lane_sum<u64>(s[0].all + s[1].all) - (high << 32) + (u64{done} << 63);
    sum.high = static_cast<i64>(high - (u64{done} << 31));
    return done;
}

#endif

void sum(const i32* a, int n, i32* result, int s) { *result = scaled<i32>(exact_sum(static_cast<size_t>(n), a), s); }
void sum(const i16* a, int n, i32* result, int s) { *result = scaled<i32>(exact_sum(static_cast<size_t>(n), a), s); }
void mean(const i32* a, int n, i32* result, int s)
{
    *result = scaled_mean(exact_sum(static_cast<size_t>(n), a), n, s);
}

[[gnu::noinline]] void dot(const i32* a, const i32* b, int n, i32* result, int s)
{
    Long sum{0, 0};
    size_t i = 0;
#if SIG5D_LEVEL > 0
    i = add_products(static_cast<size_t>(n), a, b, sum);
#endif
    for (; i < static_cast<size_t>(n); ++i) {
        const i64 product = static_cast<i64>(a[i]) * b[i];
        sum.high += product >> 32;
        sum.low += static_cast<u32>(product);
    }
    *result = scaled(sum, s);
}

[[gnu::noinline]] void count_within(const i32* a, int n, int* result, i32 lower, i32 upper)
{
    const size_t all = static_cast<size_t>(n);
    size_t i = 0;
    u32 outside = 0;
#if SIG5D_LEVEL > 0
    if (lower <= upper) { // x - lower, in the order of unsigned numbers, is compared with upper - lower
        const u32 first = static_cast<u32>(lower) + 0x80000000u;
        const i32 last = static_cast<i32>(static_cast<u32>(upper) - first);
        Vec<i32> s[4] = {};
        i = all - each_vector<lanes<i32>>(
                      all, s, [=](Vec<i32>& to, Vec<i32> x) { to -= as<Vec<i32>>(as<Vec<u32>>(x) - first) > last; }, a);
        outside = lane_sum<u32>(s[0] + s[1] + (s[2] + s[3]));
    }
#endif
    for (; i < all; ++i) outside += a[i] < lower || a[i] > upper;
    *result = static_cast<int>(all - outside);
}

} // namespace
#include "entries/signal/processing/statistics/integer_sums.inc"
} // namespace sig5d::SIG5D_VARIANT
