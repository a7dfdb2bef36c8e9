// What a median filter needs to work.
#include "frame/entry.h"
#include "signal/processing/median/mask.h"

namespace sig5d {
namespace {

Status bufferSize(int maskSize, int, int* pBufferSize)
{
    if (maskSize > longestMask) return StsMaskSizeErr;
    *pBufferSize = oddMask(maskSize) * bytesOfBuffer;
    return statusOf(maskSize);
}

} // namespace
#include "entries/signal/processing/median/sizes.inc"
} // namespace sig5d
