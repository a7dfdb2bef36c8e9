// Which method a length has, and the sizes that follow.
#include "signal/processing/dct/spec.h"
#include "kernel/layout.h"
#include "signal/processing/fft/mixed.h"
#include "signal/processing/fft/plan.h"

namespace sig5d {
namespace {

constexpr int shortestFast = 86;      // of lengths that are no powers of two
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
        case DctMethod::small:
            break;
        case DctMethod::direct:
            turns = take(32 * len);
            break;
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

} // namespace

DctSizes dctSizes(int len)
{
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
    void* const plan = const_cast<void*>(dctPart<void>(spec, spec->plan));
    switch (spec->method) {
    case DctMethod::small:
        spec->first = spec->other = 0;
        break; // the formulas have scales of their own
    case DctMethod::direct:
        break;
    case DctMethod::power:
        fftInit(plan, FftKind::real, FftSpectrum::ordered, orderOf(len));
        break;
    case DctMethod::mixed:
        mixedInit(plan, len);
        break;
    case DctMethod::prime:
        if (spec->byMixed)
            mixedInit(plan, spec->padded);
        else
            fftInit(plan, FftKind::real, FftSpectrum::unordered, orderOf(spec->padded));
        break;
    case DctMethod::chirp:
        fftInit(plan, FftKind::complex, FftSpectrum::unordered, orderOf(spec->padded));
        break;
    }
    dctSetTables(spec);
}

} // namespace sig5d
