// The sum as it stands, for short transforms, over the sums and differences of elements and their mirror images. The
// outputs k and N - k go together: cos(pi (2n + 1) (N - k) / 2N) = (-1)^n sin(pi (2n + 1) k / 2N).
#pragma once
#include "signal/processing/dct/spec.h"
#include "signal/processing/fft/lanes.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// What meets a cosine and what meets the sine of the same angle; the two belong to different outputs.
using Pair = Vec<f64, 2>;

constexpr int longestDirect = 86, sumsAtOnce = 4;

// The angles of a sum: start, start + step, ... round the circle, which has 2N steps if N is odd, since even k suffice
// then, and otherwise 4N.
struct Angles {
    int start, step;
};
// (cos, sin) of all angles of the circle: the table of the specification has all 2N, or the first half of 4N; then
// `opposite` has the other one.
struct Circle {
    const f64 *table, *opposite;
    Count doubles; // in each
};

template <bool odd>
void sumsOfTerms(const Circle& circle, const Pair* terms, int count, const Angles* angles, Pair* sums)
{
    const f64 *const table = circle.table, *const opposite = circle.opposite;
    const Count half = circle.doubles, around = odd ? half : 2 * half;
    Pair sum[sumsAtOnce] = {};
    Count at[sumsAtOnce];
    for (int i = 0; i < sumsAtOnce; ++i) at[i] = Count(2) * angles[i].start;
    for (int n = 0; n < count; ++n)
#pragma GCC unroll 4
        for (int i = 0; i < sumsAtOnce; ++i) {
            sum[i] += terms[n] * loadn<2>(odd || at[i] < half ? table + at[i] : opposite + (at[i] - half));
            const Count next = at[i] + Count(2) * angles[i].step, less = next - around;
            at[i] = less < 0 ? next : less;
        }
    for (int i = 0; i < sumsAtOnce; ++i) sums[i] = sum[i];
}

template <bool odd>
[[gnu::noinline]] void forwardDirectly(const DctSpec* spec, const Circle& circle, const f64* x, f64* y)
{
    const int len = spec->len, some = (len + 1) / 2;
    Pair terms[2][longestDirect / 2]; // for even and for odd k
    for (int n = 0; n < some; ++n) {
        const bool middle = 2 * n + 1 == len;
        const f64 a = x[n], b = x[len - 1 - n], sum = middle ? a : a + b, difference = middle ? 0.0 : a - b;
        const f64 partner = odd ? difference : sum;
        terms[0][n] = Pair{sum, n % 2 ? -partner : partner};
        terms[1][n] = Pair{difference, n % 2 ? -difference : difference};
    }
    const int last = odd ? len - 1 : len / 2;
    for (int parity = 0; parity < (odd ? 1 : 2); ++parity)
        for (int first = parity; first <= last; first += 2 * sumsAtOnce) {
            Angles angles[sumsAtOnce];
            Pair sums[sumsAtOnce];
            for (int i = 0; i < sumsAtOnce; ++i) {
                const int k = first + 2 * i <= last ? first + 2 * i : first;
                angles[i] = odd ? Angles{k / 2, k} : Angles{k, 2 * k};
            }
            sumsOfTerms<odd>(circle, terms[parity], some, angles, sums);
            for (int i = 0; i < sumsAtOnce && first + 2 * i <= last; ++i) {
                const int k = first + 2 * i;
                const f64 scale = k ? spec->other : spec->first;
                if (k) y[len - k] = sums[i][1] * scale;
                y[k] = sums[i][0] * scale;
            }
        }
}

template <bool odd>
[[gnu::noinline]] void inverseDirectly(const DctSpec* spec, const Circle& circle, const f64* y, f64* x)
{
    const int len = spec->len, last = odd ? len - 1 : len / 2;
    Pair terms[2][longestDirect / 2]; // of even and of odd k
    for (int k = 0; k <= last; k += odd ? 2 : 1) {
        const f64 scale = k ? spec->other : spec->first;
        terms[k & 1][k / 2] = Pair{y[k] * scale, k && 2 * k != len ? y[len - k] * scale : 0.0};
    }
    for (int first = 0; 2 * first < len; first += sumsAtOnce) {
        Angles angles[2][sumsAtOnce];
        Pair even[sumsAtOnce], uneven[sumsAtOnce] = {};
        for (int i = 0; i < sumsAtOnce; ++i) {
            const int n = 2 * (first + i) < len ? first + i : first;
            angles[0][i] = {0, odd ? 2 * n + 1 : 4 * n + 2};
            angles[1][i] = {2 * n + 1, 4 * n + 2};
        }
        sumsOfTerms<odd>(circle, terms[0], last / 2 + 1, angles[0], even);
        if (!odd) sumsOfTerms<odd>(circle, terms[1], (last + 1) / 2, angles[1], uneven);
        for (int i = 0; i < sumsAtOnce && 2 * (first + i) < len; ++i) {
            const int n = first + i;
            const f64 sign = n % 2 ? -1.0 : 1.0;
            const f64 a = odd ? even[i][0] : even[i][0] + sign * even[i][1];
            const f64 b = odd ? sign * even[i][1] : uneven[i][0] + sign * uneven[i][1];
            x[len - 1 - n] = a - b;
            x[n] = a + b;
        }
    }
}

// act(circle), where what act takes of the stack is in a frame of its own: one of a page or more would have to touch
// its pages on Windows.
template <class Act> void withOpposite(const DctSpec* spec, Act act)
{
    const f64* const table = dctPart<f64>(spec, spec->turns);
    const Count doubles = Count(4) * spec->len;
    f64 opposite[4 * longestDirect];
    for (Count i = 0; i < doubles; i += 4)
        for (Count j = i; j < i + 4; j += width) store(opposite + j, -load(table + j));
    act(Circle{table, opposite, doubles});
}
inline Circle wholeCircle(const DctSpec* spec)
{
    return {dctPart<f64>(spec, spec->turns), nullptr, Count(4) * spec->len};
}

[[gnu::noinline]] void forwardDirect(const DctSpec* spec, const f64* x, f64* y)
{
    if (spec->len % 2) return forwardDirectly<true>(spec, wholeCircle(spec), x, y);
    withOpposite(spec, [=](const Circle& circle) { forwardDirectly<false>(spec, circle, x, y); });
}
[[gnu::noinline]] void inverseDirect(const DctSpec* spec, const f64* y, f64* x)
{
    if (spec->len % 2) return inverseDirectly<true>(spec, wholeCircle(spec), y, x);
    withOpposite(spec, [=](const Circle& circle) { inverseDirectly<false>(spec, circle, y, x); });
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
