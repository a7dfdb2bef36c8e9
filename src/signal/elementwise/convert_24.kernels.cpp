// Integers of 24 bits, packed in three bytes each, least significant first: to 32 bits and single precision, and from
// them with scaling, rounding and saturation.
#include "frame/entry.h"
#include "kernel/map.h"
#include "kernel/rescale.h"
#include "kernel/rounding.h"
#include "kernel/simd/triples.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> using LimitsOf = Limits<24, std::is_same_v<T, i24>>;

inline u32 value(u24 x) { return x.b[0] | x.b[1] << 8 | x.b[2] << 16; }
inline i32 value(i24 x) { return static_cast<i32>(x.b[0] << 8 | x.b[1] << 16 | static_cast<u32>(x.b[2]) << 24) >> 8; }
template <class D> inline D packed24(u32 x)
{
    return {{static_cast<u8>(x), static_cast<u8>(x >> 8), static_cast<u8>(x >> 16)}};
}

// The upper three bytes of each 32 are an element, then they move down.
template <class V> inline V moved_down(V x, u24) { return x >> 8; }
template <class V> inline V moved_down(V x, i24) { return as<V>(as<Vec<i32, sizeof(V) / 4>>(x) >> 8); }

template <int n, class T> inline auto load_values(const T* p)
{
    if constexpr (n >= 4)
        return moved_down(spread_triples<n>(reinterpret_cast<const u8*>(p)), T{});
    else
        return Vec<u32, 4>{static_cast<u32>(value(p[0])), n > 1 ? static_cast<u32>(value(p[n - 1])) : 0, 0, 0};
}

struct ToInteger {
    template <class S> auto one(S x) const { return value(x); }
    template <int n> auto to(const u24* p) const { return load_values<n>(p); }
    template <int n> auto to(const i24* p) const
    {
        const auto x = load_values<n>(p);
        return as<Vec<i32, sizeof(x) / 4>>(x);
    }
};

struct ToSingle {
    template <class S> f32 one(S x) const { return static_cast<f32>(value(x)); }
    template <int n, class S> auto to(const S* p) const
    {
        const auto x = load_values<n>(p);
        return singles(as<Vec<i32, sizeof(x) / 4>>(x));
    }
};

template <class S> void convert(const S* a, u32* d, int n)
{
    map(static_cast<size_t>(n), d, Same{}, converted(a, ToInteger{}));
}
template <class S> void convert(const S* a, i32* d, int n)
{
    map(static_cast<size_t>(n), d, Same{}, converted(a, ToInteger{}));
}
template <class S> void convert(const S* a, f32* d, int n)
{
    map(static_cast<size_t>(n), d, Same{}, converted(a, ToSingle{}));
}

// Into 24 bits: to<n>(p) gives 32-bit integers within the limits, "one" a single one, in px.
template <class D, class S, class Op> inline void convert_singly(size_t n, const S* a, D* d, Op op)
{
    for (size_t i = 0; i < n; ++i) d[i] = packed24<D>(static_cast<u32>(op.one(a[i])));
}

constexpr size_t W = lanes<i32>;

template <class S, class Op, class Store>
[[gnu::always_inline]] inline size_t pack_vectors(size_t n, const S*& a, u8*& d, Op op, Store write)
{
    for (; n >= 4 * W; n -= 4 * W) {
        const Triples group = joined_triples(op.template to<W>(a), op.template to<W>(a + W),
                                             op.template to<W>(a + 2 * W), op.template to<W>(a + 3 * W));
        for (size_t k = 0; k < 3; ++k) write(d + k * vectorBytes, group.v[k]);
        a += 4 * W;
        d += 12 * W;
    }
    return n;
}

template <class D, class S, class Op>
[[gnu::always_inline]] inline void convert_vectors(size_t n, const S* a, D* destination, Op op)
{
    u8* d = reinterpret_cast<u8*>(destination);
    if (n < W) {
        if (n >= 4) {
            store_triples(d, op.template to<4>(a));
            store_triples(d + 3 * (n - 4), op.template to<4>(a + (n - 4)));
        } else {
            for (size_t i = 0; i < n; ++i) destination[i] = packed24<D>(static_cast<u32>(op.template to<1>(a + i)[0]));
        }
        return;
    }
    store_triples(d + 3 * (n - W), op.template to<W>(a + (n - W)));
    // So many elements reach an aligned address: 3 * 11 is 1 modulo the vector's size.
    const size_t skip = -reinterpret_cast<uintptr_t>(d) * 11 % (W * sizeof(i32));
    if (n >= skip + 4 * W) {
        for (size_t i = 0; i < skip; i += W) store_triples(d + 3 * i, op.template to<W>(a + i));
        const bool streaming = streamingPays(3 * n);
        a += skip;
        d += 3 * skip;
        n -= skip;
        if (streaming) {
            n = pack_vectors(n, a, d, op, [](u8* p, auto v) { stream(p, v); });
            stream_end();
        } else {
            n = pack_vectors(n, a, d, op, [](u8* p, auto v) { store_at(p, v); });
        }
    }
    for (; n >= W; n -= W) {
        store_triples(d, op.template to<W>(a));
        a += W;
        d += 3 * W;
    }
}

template <class D, class S, class Op>
[[gnu::always_inline]] inline void convert_packing(size_t n, const S* a, D* d, Op op)
{
    if constexpr (vectorBytes == 0)
        convert_singly(n, a, d, op);
    else
        convert_vectors(n, a, d, op);
}

// Integers of 32 bits.
template <class D, class Rescale> struct Narrow {
    Rescale rescale;
    static constexpr i32 low = static_cast<i32>(LimitsOf<D>::low), high = static_cast<i32>(LimitsOf<D>::high);
    template <class S> i32 one(S x) const
    {
        const i32 y = rescale(x);
        return y < low ? low : y > high ? high : y;
    }
    template <int n, class S> auto to(const S* p) const
    {
        using V = Vec<S, (n < 4 ? 4 : n)>;
        V y = rescale(load_lanes<n>(p));
        y = smaller(y, all_lanes<V>(static_cast<S>(high)));
        if constexpr (isSigned<S>) y = larger(y, all_lanes<V>(low));
        return as<Vec<i32, sizeof(V) / 4>>(y);
    }
};

template <class S, class D> [[gnu::noinline]] void convert_integers(const S* a, D* d, int n, int s)
{
    with_scale<S>(s, [=](auto op) { convert_packing(static_cast<size_t>(n), a, d, Narrow<D, decltype(op)>{op}); });
}
void convert(const i32* a, i24* d, int n, int s) { convert_integers(a, d, n, s); }
void convert(const u32* a, u24* d, int n, int s) { convert_integers(a, d, n, s); }

// Single precision.
template <class D> void convert_plain(const f32* a, D* d, int n, int mode, Scale scale)
{
    for (int i = 0; i < n; ++i) d[i] = packed24<D>(static_cast<u32>(rounded<LimitsOf<D>>(a[i], scale, mode)));
}

template <class D> [[gnu::noinline]] void convert(const f32* a, D* d, int n, int mode, int s)
{
    if constexpr (vectorBytes > 0) {
        const Scale scale(s, mostScaled<f32>);
        if (scale.simple() && rounds_to_nearest()) {
            const f32 factor = static_cast<f32>(scale.first);
            const size_t count = static_cast<size_t>(n);
            if (mode == NearestEven)
                return convert_vectors(count, a, d, Rounded<f32, LimitsOf<D>, NearestEven>(factor));
            const f32 half = mode == TowardZero ? 0.0f : belowHalf<f32>; // truncation is the same with nothing added
            return convert_vectors(count, a, d, Rounded<f32, LimitsOf<D>, NearestAway>(factor, half));
        }
    }
    convert_plain(a, d, n, mode, Scale(s));
}

} // namespace
#include "entries/signal/elementwise/convert_24.inc"
} // namespace sig5d::SIG5D_VARIANT
