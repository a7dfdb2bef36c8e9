// The tables of a specification, and the signals that two methods convolve with.
#include "signal/processing/dct/spec.h"
#include "kernel/libm.h"
#include "signal/processing/fft/mixed.h"

namespace sig5d {
namespace {

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

void dctSetTables(DctSpec* spec)
{
    switch (spec->method) {
    case DctMethod::small:
        break;
    case DctMethod::direct:
        setDirect(spec);
        break;
    case DctMethod::power:
        setGroups(spec, spec->len / 2);
        break;
    case DctMethod::mixed:
        setMixed(spec);
        break;
    case DctMethod::prime:
        setPrime(spec);
        break;
    case DctMethod::chirp:
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
