// Cosine transforms of 1, 2, 4 and 8 points. Even outputs depend on the sums of an element and its mirror image only,
// odd ones on the differences: two products of half the length with a matrix.
#pragma once
#include "signal/processing/fft/lanes.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// c(k) cos(pi (2n + 1) k / 2N) for n < N/2: a row for each n with the even k; the same with the odd k, which is
// symmetric; a row for each even k.
template <int len> struct SmallCosines;
template <> struct SmallCosines<2> {
    static constexpr f64 a = 0x1.6a09e667f3bcdp-1, value[] = {a, a, a};
};
template <> struct SmallCosines<4> {
    static constexpr f64 a = 0.5, b = 0x1.4e7ae9144f0fcp-1, c = 0x1.1517a7bdb3895p-2;
    static constexpr f64 value[] = {a, a, a, -a, b, c, c, -b, a, a, a, -a};
};
template <> struct SmallCosines<8> {
    static constexpr f64 a = 0x1.6a09e667f3bcdp-2, b = 0x1.d906bcf328d46p-2, c = 0x1.87de2a6aea963p-3;
    static constexpr f64 d = 0x1.f6297cff75cb0p-2, e = 0x1.a9b66290ea1a3p-2;
    static constexpr f64 f = 0x1.1c73b39ae68c8p-2, g = 0x1.8f8b83c69a60bp-4;
    static constexpr f64 value[] = {
        a, b, a, c, a, c,  -a, -b, a, -c, -a, b, a, -b, a, -c, // n by even k
        d, e, f, g, e, -g, -d, -f, f, -d, g,  e, g, -f, e, -d, // n by odd k
        a, a, a, a, b, c,  -c, -b, a, -a, -a, a, c, -b, b, -c, // even k by n
    };
};

// Pairwise, so that no sum waits for many.
template <int n, class V> SIG5D_INLINE V sumOf(const V* v)
{
    if constexpr (n == 1)
        return v[0];
    else
        return sumOf<n / 2>(v) + sumOf<n / 2>(v + n / 2);
}

// Shorter transforms than that of 8 points go number by number.
template <int len> using SmallVector = Vec<f64, len == 8 ? width : 1>;

template <int len> SIG5D_INLINE void forwardSmallCosine(const f64* x, f64* y)
{
    using V = SmallVector<len>;
    constexpr int half = len / 2, n = sizeof(V) / sizeof(f64);
    // Known factors could have their signs moved, which shows where results are not rounded to nearest.
    const f64* const rows = opaque(SmallCosines<len>::value);
    V sums[half], differences[half];
    for (int i = 0; i < half; ++i) {
        const V a = broadcast<n>(x + i), b = broadcast<n>(x + len - 1 - i);
        sums[i] = a + b;
        differences[i] = a - b;
    }
    V even[half / n], odd[half / n];
    for (int p = 0; p < half; p += n) {
        V s[half], d[half];
        for (int i = 0; i < half; ++i) {
            s[i] = sums[i] * loadn<n>(rows + i * half + p);
            d[i] = differences[i] * loadn<n>(rows + (half + i) * half + p);
        }
        even[p / n] = sumOf<half>(s);
        odd[p / n] = sumOf<half>(d);
    }
    for (int p = 0; p < half; p += n) putInterleaved<1, V>(y + 2 * p, {even[p / n], odd[p / n]});
}

template <int len> SIG5D_INLINE void inverseSmallCosine(const f64* y, f64* x)
{
    using V = SmallVector<len>;
    constexpr int half = len / 2, n = sizeof(V) / sizeof(f64);
    const f64* const rows = opaque(SmallCosines<len>::value) + half * half;
    V values[len];
    for (int k = 0; k < len; ++k) values[k] = broadcast<n>(y + k);
    V first[half / n], last[half / n];
    for (int p = 0; p < half; p += n) {
        V s[half], d[half];
        for (int k = 0; k < half; ++k) {
            s[k] = values[2 * k] * loadn<n>(rows + (half + k) * half + p);
            d[k] = values[2 * k + 1] * loadn<n>(rows + k * half + p);
        }
        const V even = sumOf<half>(s), odd = sumOf<half>(d);
        first[p / n] = even + odd;
        last[p / n] = even - odd;
    }
    for (int p = 0; p < half; p += n) {
        storen<n>(x + p, first[p / n]);
        putBackwards<V>(x + len - n - p, last[p / n]);
    }
}

Status forwardSmall(int len, const f64* x, f64* y)
{
    if (len == 8)
        forwardSmallCosine<8>(x, y);
    else if (len == 4)
        forwardSmallCosine<4>(x, y);
    else if (len == 2)
        forwardSmallCosine<2>(x, y);
    else
        *y = *x;
    return StsNoErr;
}
Status inverseSmall(int len, const f64* y, f64* x)
{
    if (len == 8)
        inverseSmallCosine<8>(y, x);
    else if (len == 4)
        inverseSmallCosine<4>(y, x);
    else if (len == 2)
        inverseSmallCosine<2>(y, x);
    else
        *x = *y;
    return StsNoErr;
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
