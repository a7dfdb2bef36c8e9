// Which method a length has, the sizes, and the tables.
#include "signal/processing/dct/spec.h"
#include "kernel/libm.h"
#include "signal/processing/fft/mixed.h"
#include "signal/processing/fft/plan.h"

namespace sig5d {
namespace {

constexpr int shortestFast = 86;  // of lengths that are no powers of two
constexpr i64 largestRaderPrime = 13; // factors of N - 1 for which its own transform is faster than a padded one

constexpr bool isPower(i64 n) { return (n & (n - 1)) == 0; }

int orderOf(i64 points) // the smallest power of two that is no less
{
    int order = 0;
    while ((i64(1) << order) < points) ++order;
    return order;
}

bool isPrime(i64 n)
{
    for (i64 p = 2; p * p <= n; ++p)
        if (n % p == 0) return false;
    return true;
}

i64 withoutFactors(i64 n, i64 largest)
{
    for (i64 p = 2; p <= largest; ++p)
        while (n % p == 0) n /= p;
    return n;
}

DctMethod methodOf(i64 len)
{
    if (isPower(len)) return len <= 8 ? DctMethod::small : DctMethod::power;
    if (len < shortestFast) return DctMethod::direct;
    if (mixedHas(len)) return DctMethod::mixed;
    return isPrime(len) ? DctMethod::prime : DctMethod::chirp;
}

// A specification from its head on, and the buffers from their first multiple of 64 on.
struct Layout {
    DctMethod method;
    i64 padded = 0;
    bool byMixed = false;
    i64 plan = 0, turns = 0, places = 0, kernel = 0, end = sizeof(DctSpec);
    i64 init = 0, work = 0;

    explicit Layout(i64 len) : method(methodOf(len))
    {
        switch (method) {
        case DctMethod::small: break;
        case DctMethod::direct: turns = take(32 * len); break;
        case DctMethod::power:
            plan = take(fftPlanBytes(FftKind::real, FftSpectrum::ordered, orderOf(len)));
            turns = take(8 * len);
            work = 8 * len + fftWorkBytes(FftKind::real, orderOf(len));
            break;
        case DctMethod::mixed:
            plan = take(mixedPlanBytes(len));
            turns = take(mixedSpectrumBytes(len));
            work = dctRounded(8 * len) + mixedWorkBytes(len);
            break;
        case DctMethod::prime: {
            byMixed = withoutFactors(len - 1, largestRaderPrime) == 1 && mixedHas(len - 1);
            const int order = orderOf(2 * len - 3);
            padded = byMixed ? len - 1 : i64(1) << order;
            plan = take(byMixed ? mixedPlanBytes(padded) : fftPlanBytes(FftKind::real, FftSpectrum::unordered, order));
            kernel = take(byMixed ? mixedSpectrumBytes(padded) : 8 * padded);
            turns = take(8 * len);
            places = take(4 * (len - 1) + 2 * len);
            work = dctRounded(8 * padded) + (byMixed ? mixedWorkBytes(padded) : fftWorkBytes(FftKind::real, order));
            init = work;
            break;
        }
        case DctMethod::chirp: {
            const int order = orderOf(len % 2 ? len + len / 2 : len - 1);
            padded = i64(1) << order;
            plan = take(fftPlanBytes(FftKind::complex, FftSpectrum::unordered, order));
            kernel = take(16 * padded);
            turns = take(16 * (len % 2 ? len + len / 2 + 1 : len / 2 + 2 * (len / 4 + 1)));
            work = 16 * padded + fftWorkBytes(FftKind::complex, order);
            init = work;
            break;
        }
        }
    }

private:
    i64 take(i64 bytes)
    {
        const i64 place = end;
        end += dctRounded(bytes);
        return place;
    }
};

// c(k), rounded once less than the quotients in the head.
f64 scaleOf(i64 k, i64 len) { return __builtin_sqrt((k ? 2.0 : 1.0) / static_cast<f64>(static_cast<i32>(len))); }
// c(k) (cos, sin) of pi k / 2N
libm::CosSin turnOf(const DctSpec* spec, i64 k, f64 scale = 1.0)
{
    const libm::CosSin t = libm::cosSinTurn(k, 4 * i64(spec->len));
    const f64 c = scale * scaleOf(k, spec->len);
    return {c * t.cos, c * t.sin};
}
// exp(-i pi n^2 / P)
libm::CosSin chirpOf(i64 n, i64 points)
{
    const u64 square = static_cast<u64>(n) * static_cast<u64>(n);
    return libm::cosSinTurn(-static_cast<i64>(square % static_cast<u64>(2 * points)), 2 * points);
}

template <class T> T* at(DctSpec* spec, u32 offset) { return const_cast<T*>(dctPart<T>(spec, offset)); }

// A generator of the numbers 1 ... p - 1 modulo the prime p.
i64 power(i64 base, i64 exponent, i64 p)
{
    i64 result = 1;
    for (; exponent; exponent /= 2, base = base * base % p)
        if (exponent % 2) result = result * base % p;
    return result;
}
i64 generatorOf(i64 p)
{
    for (i64 g = 2;; ++g) {
        bool all = true;
        i64 rest = p - 1;
        for (i64 q = 2; rest > 1; ++q) {
            if (q * q > rest) q = rest;
            if (rest % q) continue;
            all = all && power(g, (p - 1) / q, p) != 1;
            while (rest % q == 0) rest /= q;
        }
        if (all) return g;
    }
}

// (cos, sin) of pi j / N for the whole circle if N is odd, otherwise of pi j / 2N for half of it.
void setDirect(DctSpec* spec)
{
    c64f* const turns = at<c64f>(spec, spec->turns);
    for (i64 j = 0; j < 2 * spec->len; ++j) {
        const libm::CosSin t = libm::cosSinTurn(j, (spec->len % 2 ? 2 : 4) * i64(spec->len));
        turns[j] = {t.cos, t.sin};
    }
}
// Groups of four cosines and four sines.
void setGroups(DctSpec* spec, i64 count)
{
    f64* const turns = at<f64>(spec, spec->turns);
    for (i64 k = 0; k < count; ++k) {
        const libm::CosSin t = turnOf(spec, k);
        f64* const place = turns + k / 4 * 8 + k % 4;
        place[0] = t.cos;
        place[4] = t.sin;
    }
}
void setMixed(DctSpec* spec)
{
    const void* const plan = dctPart<void>(spec, spec->plan);
    f64* const turns = at<f64>(spec, spec->turns);
    for (i64 i = 0; i < mixedSpectrumBytes(spec->len) / i64(sizeof(f64)); ++i) turns[i] = 0;
    for (i64 f = 0; f < spec->len; ++f) {
        const i64 place = mixedPlace(plan, f);
        if (place < 0) continue;
        const libm::CosSin t = turnOf(spec, f);
        turns[place] = t.cos;
        turns[place + 4] = t.sin;
    }
}
// With a generator g: the elements of x that g^p names, p = 0 ... N - 2, and for half as many outputs k = g^-q halved
// cosines, halved sines, and k itself.
void setPrime(DctSpec* spec)
{
    const i64 len = spec->len, half = (len - 1) / 2, g = generatorOf(len);
    i32 *const sources = at<i32>(spec, spec->places), *const outputs = sources + len - 1;
    f64* const turns = at<f64>(spec, spec->turns);
    i64 k = 1;
    for (i64 p = 0; p < len - 1; ++p, k = k * g % len) {
        sources[p] = static_cast<i32>(dctSource(k, len));
        const i64 q = (len - 1 - p) % (len - 1);
        if (q >= half) continue;
        const libm::CosSin t = turnOf(spec, k, 0.5);
        turns[q] = t.cos;
        turns[q + half] = t.sin;
        outputs[q] = static_cast<i32>(k);
    }
}
// exp(-i pi n^2 / P) for all n below P, which is N if that is odd and half of N otherwise. Then c(k) times the same for
// 2 k^2 + k steps of a 4N-th of the circle, 2k < N; or c(k) / 2 times those for k steps and for 5 k.
void setChirp(DctSpec* spec)
{
    const i64 len = spec->len, points = len % 2 ? len : len / 2;
    c64f *const chirp = at<c64f>(spec, spec->turns), *const turns = chirp + points;
    auto turned = [&](i64 k, u64 steps, f64 scale) -> c64f {
        const libm::CosSin t = libm::cosSinTurn(-static_cast<i64>(steps % static_cast<u64>(4 * len)), 4 * len);
        const f64 c = scale * scaleOf(k, len);
        return {c * t.cos, c * t.sin};
    };
    for (i64 n = 0; n < points; ++n) {
        const libm::CosSin t = chirpOf(n, points);
        chirp[n] = {t.cos, t.sin};
    }
    for (i64 k = 0; len % 2 && 2 * k < len; ++k)
        turns[k] = turned(k, static_cast<u64>(k) * static_cast<u64>(2 * k + 1), 1.0);
    for (i64 k = 0; len % 2 == 0 && 4 * k <= len; ++k) {
        turns[2 * k] = turned(k, static_cast<u64>(k), 0.5);
        turns[2 * k + 1] = turned(k, static_cast<u64>(5 * k), 0.5);
    }
}

} // namespace

DctSizes dctSizes(int len)
{
    constexpr i64 maxInt = 0x7fffffff;
    const Layout layout(len);
    const i64 own = layout.end - i64(sizeof(DctSpec));
    DctSizes sizes = {own + 192, layout.init ? layout.init + 64 : 0, layout.work + 64, false};
    if (layout.method == DctMethod::small) sizes = {144, 0, 0, false};
    if (layout.method == DctMethod::direct) sizes = {32 * i64(len) + 192, 0, 8 * i64(len) + 64, false};
    sizes.fit = sizes.spec <= maxInt && sizes.init <= maxInt && sizes.work <= maxInt;
    return sizes;
}

void dctBuild(DctSpec* spec, int len, int hint)
{
    const Layout layout(len);
    const f64 root = __builtin_sqrt(len);
    *spec = {dctTag,
             len,
             hint,
             static_cast<i32>(dctSizes(len).work),
             0,
             layout.method,
             1.0 / root,
             __builtin_sqrt(2.0) / root,
             static_cast<i32>(layout.padded),
             layout.byMixed,
             static_cast<u32>(layout.plan),
             static_cast<u32>(layout.turns),
             static_cast<u32>(layout.places),
             static_cast<u32>(layout.kernel)};
    void* const plan = at<void>(spec, spec->plan);
    switch (spec->method) {
    case DctMethod::small: spec->first = spec->other = 0; break; // the formulas have scales of their own
    case DctMethod::direct: setDirect(spec); break;
    case DctMethod::power:
        fftInit(plan, FftKind::real, FftSpectrum::ordered, orderOf(len));
        setGroups(spec, len / 2);
        break;
    case DctMethod::mixed:
        mixedInit(plan, len);
        setMixed(spec);
        break;
    case DctMethod::prime:
        if (spec->byMixed)
            mixedInit(plan, spec->padded);
        else
            fftInit(plan, FftKind::real, FftSpectrum::unordered, orderOf(spec->padded));
        setPrime(spec);
        break;
    case DctMethod::chirp:
        fftInit(plan, FftKind::complex, FftSpectrum::unordered, orderOf(spec->padded));
        setChirp(spec);
        break;
    }
}

// cos - sin of 2 pi g^-d / N for distances d of N - 1 values, around a circle that may be longer.
void dctSignal(const DctSpec* spec, f64* signal)
{
    const i64 len = spec->len, period = len - 1, points = spec->padded, g = generatorOf(len);
    const f64 scale = spec->byMixed ? 2.0 / spec->padded : 1.0; // mixedConvolve gives N / 2 times
    for (i64 i = period; i < points; ++i) signal[i] = 0;
    i64 k = 1; // g^p
    for (i64 p = 0; p < period; ++p, k = k * g % len) {
        const libm::CosSin t = libm::cosSinTurn(k, len);
        const i64 d = p ? period - p : 0;
        const f64 value = scale * (t.cos - t.sin);
        signal[d] = value;
        if (points > period && d) signal[points - period + d] = value;
    }
}
// exp(i pi m^2 / P) for the distances m of inputs and outputs, P - 1 at most in one direction and N / 2 in the other.
void dctSignal(const DctSpec* spec, c64f* signal)
{
    const i64 len = spec->len, points = spec->padded, count = len % 2 ? len : len / 2;
    const c64f* const chirp = dctPart<c64f>(spec, spec->turns);
    for (i64 i = 0; i < points; ++i) signal[i] = {};
    for (i64 m = 0; m < count; ++m) {
        const c64f value = {chirp[m].re, -chirp[m].im};
        if (m <= len / 2) signal[m] = value;
        if (m) signal[points - m] = value;
    }
}

} // namespace sig5d
