#include "models.h"
#include "sig5d.h"
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

Fault fault = Fault::none;
int openHandles = 0;

namespace {

struct State {
    int tag, order;
    const double* taps;
    double* delay;
};
struct Handle {
    int count;
};

State* alignedIn(uint8_t* memory)
{
    return reinterpret_cast<State*>((reinterpret_cast<uintptr_t>(memory) + 31) / 32 * 32);
}

IppStatus init(State** state, const double* taps, int order, const double* delay, uint8_t* memory, uint8_t* setUp)
{
    if (order > 2 && !setUp) return ippStsNullPtrErr;
    if (order > 2) std::memset(setUp, 1, static_cast<size_t>(8 * order));
    State* s = alignedIn(memory);
    auto* own = reinterpret_cast<double*>(s + 1);
    *s = {7, order, fault == Fault::keepsTaps && taps ? taps : own, own + order};
    for (int i = 0; i < order; ++i) {
        own[i] = taps ? taps[i] : 1;
        s->delay[i] = delay ? delay[i] : 0;
    }
    *state = s;
    return own[order - 1] == 0 ? ippStsDivByZeroErr : ippStsNoErr;
}

} // namespace

extern "C" {

IppStatus modelGetSize(int order, int, int* pStateSize, int* pSetUpSize)
{
    *pStateSize = 31 + static_cast<int>(sizeof(State)) + 16 * order;
    *pSetUpSize = order > 2 ? 8 * order : 0;
    return ippStsNoErr;
}

IppStatus modelInit(State** ppState, const double* pTaps, int order, const double* pDelay, uint8_t* pState,
                    uint8_t* pSetUp)
{
    if (!ppState || !pTaps || !pState) return ippStsNullPtrErr;
    return order < 1 ? ippStsSizeErr : init(ppState, pTaps, order, pDelay, pState, pSetUp);
}

IppStatus modelInitOnes(State** ppState, int order, uint8_t* pState, uint8_t* pSetUp)
{
    if (!ppState || !pState) return ippStsNullPtrErr;
    return order < 1 ? ippStsSizeErr : init(ppState, nullptr, order, nullptr, pState, pSetUp);
}

IppStatus modelFilter(const double* pSrc, double* pDst, int len, State* s, uint8_t* pBuf)
{
    if (!pSrc || !pDst || !s || !pBuf) return ippStsNullPtrErr;
    if (len < 1 && fault == Fault::writesRefused) s->delay[0] += 1;
    if (len < 1) return ippStsSizeErr;
    const int n = s->order;
    std::memset(pBuf, 0, static_cast<size_t>(16 * n));
    for (int k = 0; k < len; ++k) {
        double y = pSrc[k];
        for (int i = 0; i < n; ++i) y += s->delay[i] / s->taps[n - 1];
        std::memmove(s->delay + 1, s->delay, sizeof(double) * static_cast<size_t>(n - 1));
        s->delay[0] = pSrc[k];
        pDst[k] = y;
    }
    const bool other = std::strncmp(ippsGetLibVersion()->targetCpu, "px", 4) != 0;
    if (fault == Fault::stateDiffers && other) s->delay[0] = s->delay[0] + 1;
    if (fault == Fault::writesBehind) s->delay[n + 31 / 8 + 1] = 0;
    return ippStsNoErr;
}

IppStatus modelTaps(double* pDst, const State* s)
{
    if (!pDst || !s) return ippStsNullPtrErr;
    std::memcpy(pDst, s->taps, sizeof(double) * static_cast<size_t>(s->order));
    if (fault == Fault::writesConst) const_cast<State*>(s)->tag = 8;
    return ippStsNoErr;
}

IppStatus modelOpen(int start, Handle** ppHandle)
{
    if (!ppHandle) return ippStsNullPtrErr;
    *ppHandle = static_cast<Handle*>(std::malloc(sizeof(Handle)));
    **ppHandle = {start};
    ++openHandles;
    return ippStsNoErr;
}

void modelClose(Handle* pHandle)
{
    if (!pHandle) return;
    --openHandles;
    std::free(pHandle);
}

IppStatus modelCount(int* pNow, Handle* pHandle)
{
    if (!pNow || !pHandle) return ippStsNullPtrErr;
    *pNow = ++pHandle->count;
    return ippStsNoErr;
}

IppStatus modelImage(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, IppiSize roi)
{
    if (!pSrc || !pDst) return ippStsNullPtrErr;
    if (roi.width < 1 || roi.height < 1) return ippStsSizeErr;
    const auto* from = reinterpret_cast<const uint8_t*>(pSrc);
    auto* to = reinterpret_cast<uint8_t*>(pDst);
    for (int r = 0; r < roi.height; ++r)
        for (int x = 0; x < roi.width; ++x) {
            int16_t left, below;
            std::memcpy(&left, from + (r - 2) * srcStep + 2 * (x - 1), sizeof left);
            std::memcpy(&below, from + (r + 1) * srcStep + 2 * x, sizeof below);
            const auto sum = static_cast<int16_t>(left + below);
            std::memcpy(to + r * dstStep + 2 * x, &sum, sizeof sum);
        }
    const int bytes = 2 * roi.width;
    if (fault == Fault::writesGap && roi.height > 1 && std::abs(dstStep) > bytes)
        (dstStep < 0 ? to + dstStep : to)[bytes] = 0;
    if (fault == Fault::readsGap && std::abs(srcStep) > bytes + 2) to[0] = (srcStep < 0 ? from + srcStep : from)[bytes];
    return ippStsNoErr;
}

IppStatus modelUp(const double* pSrc, int srcLen, double* pDst, int factor, int* pPhase)
{
    if (!pSrc || !pDst || !pPhase) return ippStsNullPtrErr;
    if (srcLen < 1) return ippStsSizeErr;
    if (*pPhase < 0 || *pPhase >= factor) return ippStsSamplePhaseErr;
    for (int k = 0; k < srcLen * factor; ++k) pDst[k] = k % factor == *pPhase ? pSrc[k / factor] : 0;
    *pPhase = (*pPhase + 1) % factor;
    return ippStsNoErr;
}

IppStatus modelPositive(const double* pSrc, unsigned* pDst, int n, unsigned* pCount)
{
    *pCount = 0;
    for (int k = 0; k < n; ++k)
        if (pSrc[k] > 0) pDst[(*pCount)++] = static_cast<unsigned>(k);
    return ippStsNoErr;
}

} // extern "C"
