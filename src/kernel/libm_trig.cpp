// Sine and cosine. An argument is reduced to a multiple of pi/2 and a rest in [-pi/4, pi/4] that is known to about
// twice the precision; then the polynomials' first terms, whose rounding would show, are computed exactly in two parts.
#include "kernel/libm.h"
#include "kernel/doubled.h"

namespace sig5d::libm {
namespace {

constexpr Doubled quarterPi = {0x1.921fb54442d18p-1, 0x1.1a62633145c07p-55};
constexpr f64 twoOverPi = 0x1.45f306dc9c883p-1;

// (sin(x) - x + x^3/6) / x^5 and (cos(x) - 1 + x^2/2) / x^4 as polynomials in z = x^2: minimax on [0, (pi/4)^2],
// relative errors 2^-56 and 2^-54.
template <class V> inline V sinTail(V z)
{
    return 0x1.1111111111111p-7 +
           z * (-0x1.a01a01a019ed4p-13 +
                z * (0x1.71de3a550c616p-19 +
                     z * (-0x1.ae6455335eed1p-26 + z * (0x1.61225a81ddb6fp-33 + z * -0x1.ab93816e6462ap-41))));
}
template <class V> inline V cosTail(V z)
{
    return 0x1.5555555555555p-5 +
           z * (-0x1.6c16c16c16962p-10 +
                z * (0x1.a01a019f4db5dp-16 +
                     z * (-0x1.27e4fa16ba9e2p-22 + z * (0x1.1eeb67dbeadecp-29 + z * -0x1.907cf2cf0ef08p-37))));
}

// Cosine and sine of a.hi + a.lo in [-pi/4, pi/4], not too small for squares.
template <class V> struct Sides {
    V cos, sin;
};
template <class V> inline Sides<V> onFirstOctants(V x, V xLow)
{
    const V head = upperHalf(x), tail = x - head;
    const V zHead = head * head, zTail = tail * (x + head), z = zHead + zTail;

    const V half = 0.5 * zHead, c = 1.0 - half;
    const V cosLow = ((1.0 - c) - half) - 0.5 * zTail + z * z * cosTail(z) - x * xLow;

    // z/6 as sixth + sixthTail, the first of 26 bits, so that the cube's leading part head * sixth is exact.
    const V sixth = upperHalf(z * (1.0 / 6.0)), sixthTail = ((zHead - 6.0 * sixth) + zTail) * (1.0 / 6.0);
    const V cube = head * sixth, s = x - cube;
    const V sinLow =
        ((x - s) - cube) - (tail * sixth + x * sixthTail) + x * (z * z) * sinTail(z) + xLow * (1.0 - 0.5 * z);
    return {c + cosLow, s + sinLow};
}
inline CosSin onFirstOctants(Doubled a)
{
    if (__builtin_fabs(a.hi) < 0x1p-27) return {1.0, a.hi};
    const Sides<f64> w = onFirstOctants(a.hi, a.lo);
    return {w.cos, w.sin};
}

// Turned by quadrant * pi/2.
inline CosSin turned(CosSin a, u32 quadrant)
{
    const f64 c = quadrant & 1 ? -a.sin : a.cos, s = quadrant & 1 ? a.cos : a.sin;
    return quadrant & 2 ? CosSin{-c, -s} : CosSin{c, s};
}

struct Reduced {
    Doubled rest;
    u32 quadrant;
};

// For |x| < 2^20 (Cody and Waite): pi/2 in three parts of 33 bits, whose products with the quadrant are exact, and a
// rest.
inline Reduced reduceNear(f64 x)
{
    const f64 shifted = x * twoOverPi + 0x1.8p52, n = shifted - 0x1.8p52;
    const f64 first = x - n * 0x1.921fb544p+0; // exact: both are near
    const Doubled second = twoSum(first, n * -0x1.0b4611a6p-34);
    const Doubled third = twoSum(second.hi, n * -0x1.3198a2ep-69);
    return {fastTwoSum(third.hi, (second.lo + third.lo) - n * 0x1.b839a252049c1p-104),
            static_cast<u32>(bitsOf(shifted))};
}

// The bits of 2/pi behind two words of zeros.
constexpr u32 twoOverPiBits[] = {0x00000000, 0x00000000, 0xa2f9836e, 0x4e441529, 0xfc2757d1, 0xf534ddc0, 0xdb629599,
                                 0x3c439041, 0xfe5163ab, 0xdebbc561, 0xb7246e3a, 0x424dd2e0, 0x06492eea, 0x09d1921c,
                                 0xfe1deb1c, 0xb129a73e, 0xe88235f5, 0x2ebb4484, 0xe99c7026, 0xb45f7e41, 0x3991d639,
                                 0x835339f4, 0x9c845f8b, 0xbdf9283b, 0x1ff897ff, 0xde05980f, 0xef2f118b, 0x5a0a6d1f,
                                 0x6d367ecf, 0x27cb09b7, 0x4f463f66, 0x9e5fea2d, 0x7527bac7, 0xebe5f17b, 0x3d0739f7,
                                 0x8a5292ea, 0x6bfb5fb1, 0x1f8d5d08, 0x56033046, 0xfc7b6bab};

// For finite |x| >= 1 (Payne and Hanek): x = m * 2^e times those 192 bits of 2/pi that matter modulo 4 and leave 137
// bits behind the point; no double is nearer to a multiple of pi/2 than 2^-62 of it, so that the leading word is never
// 0.
Reduced reduceFar(f64 x)
{
    const u64 bits = bitsOf(x);
    const int e = static_cast<int>(bits >> 52 & 0x7ff) - 1075;
    const u64 m = (bits & 0xfffffffffffff) | u64(1) << 52;
    const u32 mLow = static_cast<u32>(m), mHigh = static_cast<u32>(m >> 32);

    // product = m * window modulo 2^192, lowest word first; its two top bits are the quadrant.
    const int start = e - 2 + 64, shift = start & 31;
    u32 product[6];
    u64 carry = 0;
    u32 previous = 0;
    for (int i = 0; i < 6; ++i) {
        const u32* word = &twoOverPiBits[(start >> 5) + 5 - i];
        const u32 window = static_cast<u32>((u64(word[0]) << 32 | word[1]) << shift >> 32);
        const u64 low = u64(mLow) * window;
        const u64 sum = carry + static_cast<u32>(low);
        const u64 cross = u64(mHigh) * previous;
        const u64 all = sum + static_cast<u32>(cross);
        product[i] = static_cast<u32>(all);
        carry = (all >> 32) + (low >> 32) + (cross >> 32);
        previous = window;
    }
    u32 quadrant = product[5] >> 30;
    const bool nearerAbove = product[5] >> 29 & 1;
    if (nearerAbove) {
        ++quadrant;
        for (u32& word : product)
            word = ~word; // the distance to the next quadrant, short by one unit of the last place
    }
    // The fraction, normalized: leading 53 bits as a double, the next 52 as another.
    u64 high = (u64(product[5]) << 32 | product[4]) << 2 | product[3] >> 30;
    u64 next = (u64(product[3]) << 32 | product[2]) << 2 | product[1] >> 30;
    const u64 last = (u64(product[1]) << 32 | product[0]) << 2;
    const int zeros = __builtin_clzll(high);
    if (zeros) {
        high = high << zeros | next >> (64 - zeros);
        next = next << zeros | last >> (64 - zeros);
    }
    const u64 exponent = static_cast<u64>(1022 - zeros);
    const f64 sign = ((bits >> 63) != 0) != nearerAbove ? -1.0 : 1.0;
    const f64 head = fromBits(exponent << 52 | (high >> 11 & 0xfffffffffffff));
    const u64 below = (high << 53 | next >> 11) >> 12; // 52 bits
    const f64 tail = (fromBits(0x4330000000000000 | below) - 0x1p52) * fromBits((exponent - 104) << 52);

    // Times pi/2.
    const Doubled top = twoProduct(head, 2.0 * quarterPi.hi);
    const Doubled rest = fastTwoSum(top.hi, top.lo + (head * (2.0 * quarterPi.lo) + tail * (2.0 * quarterPi.hi)));
    return {{sign * rest.hi, sign * rest.lo}, bits >> 63 ? 0 - quadrant : quadrant};
}

} // namespace

CosSin cosSin(f64 x)
{
    const f64 size = __builtin_fabs(x);
    if (size <= quarterPi.hi) return onFirstOctants({x, 0.0});
    if (!(size <= 0x1.fffffffffffffp1023)) return {x - x, x - x};
    const Reduced r = size < 0x1p20 ? reduceNear(x) : reduceFar(x);
    return turned(onFirstOctants(r.rest), r.quadrant);
}
f64 sin(f64 x) { return cosSin(x).sin; }
f64 cos(f64 x) { return cosSin(x).cos; }

CosSin cosSinTurn(i64 k, i64 n)
{
    k %= n;
    if (k < 0) k += n;
    // 8k/n = octant + part/n; an odd octant is measured from its far end, so that mirror points share one evaluation.
    const i64 octant = 8 * k / n, rest = 8 * k % n;
    const i64 part = octant & 1 ? n - rest : rest;
    CosSin a = {0x1.6a09e667f3bcdp-1, 0x1.6a09e667f3bcdp-1};
    if (part < n) {
        const f64 p = toDouble(part), q = toDouble(n), turn = p / q;
        const Doubled back = twoProduct(turn, q);
        const f64 turnLow = ((p - back.hi) - back.lo) / q;
        const Doubled angle = twoProduct(turn, quarterPi.hi);
        a = onFirstOctants(fastTwoSum(angle.hi, angle.lo + (turn * quarterPi.lo + turnLow * quarterPi.hi)));
    }
    if (octant & 1) a.sin = -a.sin;
    a = turned(a, static_cast<u32>((octant + 1) >> 1));
    return {a.cos + 0.0, a.sin + 0.0}; // no negative zeros
}

CosSinPair cosSinTurns(NumberPair turns)
{
    const NumberPair eighths = turns * 8.0;
    const auto beyond = eighths > 1.0; // measured from the far end
    const NumberPair part = beyond ? 2.0 - eighths : eighths;
    const InTwo<NumberPair> angle = twoProduct(part, NumberPair{quarterPi.hi, quarterPi.hi});
    const InTwo<NumberPair> x = fastTwoSum(angle.hi, angle.lo + part * quarterPi.lo);
    const Sides<NumberPair> w = onFirstOctants(x.hi, x.lo);
    return {beyond ? w.sin : w.cos, beyond ? w.cos : w.sin};
}

} // namespace sig5d::libm
