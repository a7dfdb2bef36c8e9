// Discrete cosine transforms, orthonormal: forward (DCT-II) and its inverse (DCT-III).
#include "frame/entry.h"
#include "signal/processing/dct/chirp.h"
#include "signal/processing/dct/direct.h"
#include "signal/processing/dct/order.h"
#include "signal/processing/dct/prime.h"
#include "signal/processing/dct/small.h"
#include "signal/processing/dct/spec.h"
#include "signal/processing/fft/transforms.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

constexpr int longestPower = 0x7FFFFFF;

bool tooLong(int len, int longest) { return len > ((len & (len - 1)) ? longest : longestPower); }

Status dctSize(int len, int, int* pSpecSize, int* pSpecBufSize, int* pBufSize)
{
    if (tooLong(len, dctLongest)) return StsSizeErr;
    const DctSizes sizes = dctSizes(len);
    if (!sizes.fit) return StsSizeErr;
    *pSpecSize = static_cast<int>(sizes.spec);
    *pSpecBufSize = static_cast<int>(sizes.init);
    *pBufSize = static_cast<int>(sizes.work);
    return StsNoErr;
}

// The spectrum of what a method convolves with.
void setKernel(DctSpec* spec, void* buffer)
{
    const void* const plan = dctPart<void>(spec, spec->plan);
    f64* const signal = static_cast<f64*>(buffer);
    if (spec->method == DctMethod::chirp) {
        c64f* const both = reinterpret_cast<c64f*>(signal);
        dctSignal(spec, both);
        fftForward(plan, both, const_cast<c64f*>(dctPart<c64f>(spec, spec->kernel)), both + spec->padded);
        return;
    }
    f64* const kernel = const_cast<f64*>(dctPart<f64>(spec, spec->kernel));
    void* const work = signal + dctRounded(i64(8) * spec->padded) / i64(sizeof(f64));
    dctSignal(spec, signal);
    if (spec->byMixed)
        mixedForward(plan, signal, kernel, work);
    else
        fftForward(plan, signal, kernel, work);
}

template <class Spec> Status dctInit(Spec** ppDCTSpec, int len, int hint, u8* pSpec, u8* pSpecBuffer)
{
    if (tooLong(len, dctLongestToInit)) return StsSizeErr;
    const DctSizes sizes = dctSizes(len);
    if (!sizes.fit) return StsSizeErr;
    if (sizes.init && !pSpecBuffer) return StsNullPtrErr;
    DctSpec* const spec = reinterpret_cast<DctSpec*>(dctAligned(pSpec));
    dctBuild(spec, len, hint);
    if (sizes.init) setKernel(spec, dctAligned(pSpecBuffer));
    *ppDCTSpec = reinterpret_cast<Spec*>(spec);
    return StsNoErr;
}

void forwardFast(const DctSpec* spec, const f64* x, f64* y, f64* work)
{
    const void* const plan = dctPart<void>(spec, spec->plan);
    f64* const behind = work + dctRounded(i64(8) * spec->len) / i64(sizeof(f64));
    evenOdd(x, work, spec->len);
    if (spec->method == DctMethod::mixed) {
        mixedTurned(plan, work, dctPart<f64>(spec, spec->turns), y, behind);
    } else {
        fftForward(plan, work, work, behind);
        turnForward(spec, work, y);
    }
}
void inverseFast(const DctSpec* spec, const f64* y, f64* x, f64* work)
{
    const void* const plan = dctPart<void>(spec, spec->plan);
    f64* const behind = work + dctRounded(i64(8) * spec->len) / i64(sizeof(f64));
    if (spec->method == DctMethod::mixed) {
        mixedFromTurned(plan, y, dctPart<f64>(spec, spec->turns), work, behind);
    } else {
        turnBackward(spec, y, work);
        fftInverse(plan, work, work, behind);
    }
    naturalOrder(work, x, spec->len);
}

// By methods that need a buffer.
[[gnu::noinline]] Status forwardBuffered(const DctSpec* spec, const f64* x, f64* y, u8* buffer)
{
    if (!buffer) return StsNullPtrErr;
    f64* const work = reinterpret_cast<f64*>(dctAligned(buffer));
    switch (spec->method) {
    case DctMethod::direct:
        forwardDirect(spec, x, y);
        break;
    case DctMethod::prime:
        forwardPrime(spec, x, y, work);
        break;
    case DctMethod::chirp:
        forwardChirp(spec, x, y, reinterpret_cast<c64f*>(work));
        break;
    default:
        forwardFast(spec, x, y, work);
    }
    return StsNoErr;
}
[[gnu::noinline]] Status inverseBuffered(const DctSpec* spec, const f64* y, f64* x, u8* buffer)
{
    if (!buffer) return StsNullPtrErr;
    f64* const work = reinterpret_cast<f64*>(dctAligned(buffer));
    switch (spec->method) {
    case DctMethod::direct:
        inverseDirect(spec, y, x);
        break;
    case DctMethod::prime:
        inversePrime(spec, y, x, work);
        break;
    case DctMethod::chirp:
        inverseChirp(spec, y, x, reinterpret_cast<c64f*>(work));
        break;
    default:
        inverseFast(spec, y, x, work);
    }
    return StsNoErr;
}

Status dctForward(const f64* pSrc, f64* pDst, const void* pDCTSpec, u8* pBuffer)
{
    const DctSpec* const spec = static_cast<const DctSpec*>(pDCTSpec);
    if (spec->tag != dctTag) return StsContextMatchErr;
    if (spec->method != DctMethod::small) return forwardBuffered(spec, pSrc, pDst, pBuffer);
    return forwardSmall(spec->len, pSrc, pDst);
}
Status dctInverse(const f64* pSrc, f64* pDst, const void* pDCTSpec, u8* pBuffer)
{
    const DctSpec* const spec = static_cast<const DctSpec*>(pDCTSpec);
    if (spec->tag != dctTag) return StsContextMatchErr;
    if (spec->method != DctMethod::small) return inverseBuffered(spec, pSrc, pDst, pBuffer);
    return inverseSmall(spec->len, pSrc, pDst);
}

} // namespace
#include "entries/signal/processing/dct/dct.inc"
} // namespace sig5d::SIG5D_VARIANT
