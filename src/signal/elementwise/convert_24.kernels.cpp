// Integers of 24 bits, packed in three bytes each, least significant first: to 32 bits and single precision, and from
// them with scaling, rounding and saturation.
#include "frame/entry.h"
#include "kernel/map.h"
#include "kernel/rescale.h"
#include "kernel/rounding.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> using LimitsOf = Limits<24, std::is_same_v<T, i24>>;

inline u32 value(u24 x) { return x.b[0] | x.b[1] << 8 | x.b[2] << 16; }
inline i32 value(i24 x) { return static_cast<i32>(x.b[0] << 8 | x.b[1] << 16 | static_cast<u32>(x.b[2]) << 24) >> 8; }
template <class D> inline D packed24(u32 x)
{
    return {{static_cast<u8>(x), static_cast<u8>(x >> 8), static_cast<u8>(x >> 16)}};
}

#if SIG5D_LEVEL > 0

// The upper three bytes of each 32 are an element, then they move down.
template <class V> inline V moved_down(V x, u24) { return x >> 8; }
template <class V> inline V moved_down(V x, i24) { return as<V>(as<Vec<i32, sizeof(V) / 4>>(x) >> 8); }

template <int n, class T> inline auto load_values(const T* p)
{
    const u8* const bytes = reinterpret_cast<const u8*>(p);
#if SIG5D_LEVEL >= 5
    if constexpr (n == 8) { // the second half at the upper end of what is loaded, so that nothing behind it is
        const __m256i both = _mm256_set_m128i(_mm_loadu_si128(reinterpret_cast<const __m128i_u*>(bytes + 8)),
                                              _mm_loadu_si128(reinterpret_cast<const __m128i_u*>(bytes)));
        const __m256i spread = _mm256_setr_epi8(-1, 0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1, 4, 5, 6, -1,
                                                7, 8, 9, -1, 10, 11, 12, -1, 13, 14, 15);
        return moved_down(reinterpret_cast<Vec<u32, 8>>(_mm256_shuffle_epi8(both, spread)), T{});
    } else
#endif
        if constexpr (n == 4) {
        const __m128i all = _mm_unpacklo_epi64(bits(load_part<8>(bytes)), bits(load_part<4>(bytes + 8)));
        const __m128i spread = _mm_setr_epi8(-1, 0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11);
        return moved_down(reinterpret_cast<Vec<u32, 4>>(_mm_shuffle_epi8(all, spread)), T{});
    } else {
        return Vec<u32, 4>{static_cast<u32>(value(p[0])), n > 1 ? static_cast<u32>(value(p[n - 1])) : 0, 0, 0};
    }
}

#endif

struct ToInteger {
    template <class S> auto one(S x) const { return value(x); }
#if SIG5D_LEVEL > 0
    template <int n> auto to(const u24* p) const { return load_values<n>(p); }
    template <int n> auto to(const i24* p) const
    {
        const auto x = load_values<n>(p);
        return reinterpret_cast<Vec<i32, sizeof(x) / 4>>(x);
    }
#endif
};

struct ToSingle {
    template <class S> f32 one(S x) const { return static_cast<f32>(value(x)); }
#if SIG5D_LEVEL > 0
    template <int n, class S> auto to(const S* p) const
    {
        const auto x = load_values<n>(p);
        return singles(reinterpret_cast<Vec<i32, sizeof(x) / 4>>(x));
    }
#endif
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

// Into 24 bits: to<n>(p) gives 32-bit integers within the limits, "one" a single one.
#if SIG5D_LEVEL == 0

template <class D, class S, class Op> void convert_packing(size_t n, const S* a, D* d, Op op)
{
    for (size_t i = 0; i < n; ++i) d[i] = packed24<D>(static_cast<u32>(op.one(a[i])));
}

#else

constexpr int W = lanes<i32>;

// The low three bytes of each 32, at the low end of each 16 bytes.
inline __m128i squeezed(Vec<i32, 4> x)
{
    return _mm_shuffle_epi8(bits(x), _mm_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1));
}
inline void store_four(u8* d, Vec<i32, 4> x)
{
    const __m128i v = squeezed(x);
    _mm_storel_epi64(reinterpret_cast<__m128i_u*>(d), v);
    store_at(d + 8, reinterpret_cast<Vec<i32, 4>>(v)[2]);
}

#if SIG5D_LEVEL >= 5

inline __m256i squeezed(Vec<i32, 8> x)
{
    return _mm256_shuffle_epi8(bits(x), _mm256_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1, 0, 1,
                                                         2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1));
}
template <int... i> inline __m256i moved(__m256i x) { return _mm256_permutevar8x32_epi32(x, _mm256_setr_epi32(i...)); }

inline void store_vector(u8* d, Vec<i32> x)
{
    const __m256i v = moved<0, 1, 2, 4, 5, 6, 3, 3>(squeezed(x));
    store_at(d, _mm256_castsi256_si128(v));
    _mm_storel_epi64(reinterpret_cast<__m128i_u*>(d + 16), _mm256_extracti128_si256(v, 1));
}

// Four vectors become three: 3 + 1, 2 + 2 and 1 + 3 quarters of them.
template <class Store> inline void store_vectors(u8* d, Vec<i32> x0, Vec<i32> x1, Vec<i32> x2, Vec<i32> x3, Store write)
{
    const __m256i v0 = moved<0, 1, 2, 4, 5, 6, 3, 3>(squeezed(x0)), v1 = moved<2, 4, 5, 6, 3, 3, 0, 1>(squeezed(x1)),
                  v2 = moved<5, 6, 3, 3, 0, 1, 2, 4>(squeezed(x2)), v3 = moved<3, 3, 0, 1, 2, 4, 5, 6>(squeezed(x3));
    write(d, _mm256_blend_epi32(v0, v1, 0xC0));
    write(d + 32, _mm256_blend_epi32(v1, v2, 0xF0));
    write(d + 64, _mm256_blend_epi32(v2, v3, 0xFC));
}

#else

inline void store_vector(u8* d, Vec<i32> x) { store_four(d, x); }

template <class Store> inline void store_vectors(u8* d, Vec<i32> x0, Vec<i32> x1, Vec<i32> x2, Vec<i32> x3, Store write)
{
    const __m128i v0 = squeezed(x0), v1 = squeezed(x1), v2 = squeezed(x2), v3 = squeezed(x3);
    write(d, _mm_or_si128(v0, _mm_slli_si128(v1, 12)));
    write(d + 16, _mm_or_si128(_mm_srli_si128(v1, 4), _mm_slli_si128(v2, 8)));
    write(d + 32, _mm_or_si128(_mm_srli_si128(v2, 8), _mm_slli_si128(v3, 4)));
}

#endif

template <class S, class Op, class Store>
[[gnu::always_inline]] inline size_t pack_vectors(size_t n, const S*& a, u8*& d, Op op, Store write)
{
    for (; n >= 4 * W; n -= 4 * W) {
        store_vectors(d, op.template to<W>(a), op.template to<W>(a + W), op.template to<W>(a + 2 * W),
                      op.template to<W>(a + 3 * W), write);
        a += 4 * W;
        d += 12 * W;
    }
    return n;
}

template <class D, class S, class Op>
[[gnu::always_inline]] inline void convert_packing(size_t n, const S* a, D* destination, Op op)
{
    u8* d = reinterpret_cast<u8*>(destination);
    if (n < W) {
        if (n >= 4) {
            store_four(d, op.template to<4>(a));
            store_four(d + 3 * (n - 4), op.template to<4>(a + (n - 4)));
        } else {
            for (size_t i = 0; i < n; ++i) destination[i] = packed24<D>(static_cast<u32>(op.template to<1>(a + i)[0]));
        }
        return;
    }
    store_vector(d + 3 * (n - W), op.template to<W>(a + (n - W)));
    // So many elements reach an aligned address: 3 * 11 is 1 modulo the vector's size.
    const size_t skip = -reinterpret_cast<uintptr_t>(d) * 11 % vectorBytes;
    if (n >= skip + 4 * W) {
        for (size_t i = 0; i < skip; i += W) store_vector(d + 3 * i, op.template to<W>(a + i));
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
        store_vector(d, op.template to<W>(a));
        a += W;
        d += 3 * W;
    }
}

#endif

// Integers of 32 bits.
template <class D, class Rescale> struct Narrow {
    Rescale rescale;
    static constexpr i32 low = static_cast<i32>(LimitsOf<D>::low), high = static_cast<i32>(LimitsOf<D>::high);
#if SIG5D_LEVEL == 0
    template <class S> i32 one(S x) const
    {
        const i32 y = rescale(x);
        return y < low ? low : y > high ? high : y;
    }
#else
    template <int n, class S> auto to(const S* p) const
    {
        using V = Vec<S, (n < 4 ? 4 : n)>;
        V y = rescale(load_lanes<n>(p));
        y = smaller(y, all_lanes<V>(static_cast<S>(high)));
        if constexpr (isSigned<S>) y = larger(y, all_lanes<V>(low));
        return reinterpret_cast<Vec<i32, sizeof(V) / 4>>(y);
    }
#endif
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
#if SIG5D_LEVEL > 0
    const Scale scale(s, mostScaled<f32>);
    if (scale.simple() && rounds_to_nearest()) {
        const f32 factor = static_cast<f32>(scale.first);
        const size_t count = static_cast<size_t>(n);
        if (mode == NearestEven) return convert_packing(count, a, d, Rounded<f32, LimitsOf<D>, NearestEven>(factor));
        const f32 half = mode == TowardZero ? 0.0f : belowHalf<f32>; // truncation is the same with nothing added
        return convert_packing(count, a, d, Rounded<f32, LimitsOf<D>, NearestAway>(factor, half));
    }
#endif
    convert_plain(a, d, n, mode, Scale(s));
}

} // namespace
#include "entries/signal/elementwise/convert_24.inc"
} // namespace sig5d::SIG5D_VARIANT
