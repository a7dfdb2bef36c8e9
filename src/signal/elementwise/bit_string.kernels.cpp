// Copies of bit strings that begin and end anywhere in a byte.
#include "frame/entry.h"
#include "kernel/lane_shifts.h"
#include "kernel/map.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The two orders of bits in a byte. Joined drops the first count bits of x and fills up with those of y (0 < count <
// 8); "from" is a byte without its first count bits, "place" moves the bits of a byte towards its end.

// Bit 0 is the most significant.
struct MostFirst {
    static u8 from(int count) { return static_cast<u8>(0xFF >> count); }
    static u8 place(u8 x, int count) { return static_cast<u8>(x >> count); }

    struct Joined {
        int count;
        u8 operator()(u8 x, u8 y) const { return static_cast<u8>(x << count | y >> (8 - count)); }
#if SIG5D_LEVEL > 0
        template <class V> V operator()(V x, V y) const
        {
            const V high = splatn<sizeof(V)>(static_cast<u8>(0xFF << count)); // the rest came over from neighbours
            return (shift_left_16(x, count) & high) | (shift_right_16<u16>(y, 8 - count) & ~high);
        }
#endif
    };
};

// Bit 0 is the least significant.
struct LeastFirst {
    static u8 from(int count) { return static_cast<u8>(0xFF << count); }
    static u8 place(u8 x, int count) { return static_cast<u8>(x << count); }

    struct Joined {
        static constexpr bool needsNeighbours = true; // in the same lanes of 16 bits
        int count;
        u8 operator()(u8 x, u8 y) const { return static_cast<u8>(x >> count | y << (8 - count)); }
#if SIG5D_LEVEL > 0
        template <class V> V operator()(V x, V y) const
        {
            // This order goes on from byte to byte as in an integer: what crosses the byte inside a lane is right, and
            // what is missing at one end of a lane is there in the other operand.
            return shift_right_16<u16>(x, count) | shift_left_16(y, 8 - count);
        }
#endif
    };
};

// Writes "count" bits, the first at bit "to" of d, that begin at bit "at" of a; all of them lie in the byte d.
template <class Order> void copy_within_byte(const u8* a, size_t at, u8* d, int to, int count)
{
    a += at / 8;
    const int skip = static_cast<int>(at % 8);
    u8 bits = a[0];
    if (skip) bits = typename Order::Joined{skip}(bits, skip + count > 8 ? a[1] : u8{});
    const u8 mask = Order::from(to) & ~(to + count < 8 ? Order::from(to + count) : u8{});
    *d = static_cast<u8>((*d & ~mask) | (Order::place(bits, to) & mask));
}

// Whole bytes of d are made from two neighbours of a each; partial ones at the ends keep their other bits. No byte
// is touched that has no bit of the string.
template <class Order> void copy_bits(const u8* a, int srcBitOffset, u8* d, int dstBitOffset, int len)
{
    size_t at = static_cast<size_t>(srcBitOffset & 7), n = static_cast<size_t>(len);
    if (const int to = dstBitOffset & 7; to) {
        const int count = n < static_cast<size_t>(8 - to) ? len : 8 - to;
        copy_within_byte<Order>(a, at, d++, to, count);
        at += static_cast<size_t>(count);
        n -= static_cast<size_t>(count);
    }
    const size_t whole = n / 8;
    const u8* const first = a + at / 8;
    if (whole) {
        if (at % 8)
            map_bytes(whole, d, typename Order::Joined{static_cast<int>(at % 8)}, first, first + 1);
        else
            map_bytes(whole, d, Same{}, first);
    }
    if (n % 8) copy_within_byte<Order>(first, at % 8 + 8 * whole, d + whole, 0, static_cast<int>(n % 8));
}

} // namespace
#include "entries/signal/elementwise/bit_string.inc"
} // namespace sig5d::SIG5D_VARIANT
