// Running medians: each result is the middle one of the last samples in order. The order has no equals but the same
// bits, so that every method gives the same.
#include "frame/entry.h"
#include "signal/processing/median/histogram.h"
#include "signal/processing/median/mask.h"
#include "signal/processing/median/networks.h"
#include "signal/processing/median/tiers.h"
#include "signal/processing/median/windows.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// The first address from p on that a double may have.
inline u8* aligned_to_doubles(u8* p) { return p + (-reinterpret_cast<uintptr_t>(p) & 7); }

// With a work buffer of 16 bytes for each element of the mask: the next history, and then the window's keys.
template <class T> [[gnu::noinline]] void long_median(const Stream<T>& x, T* d, T* next, u8* buffer)
{
    u8* const from = aligned_to_doubles(buffer);
    T* const tail = reinterpret_cast<T*>(from);
    if (next) copy_tail(x, tail);
    if (fitsLanes<T>(x.delay + 1))
        windows(x, d);
    else if constexpr (std::is_same_v<T, u8>)
        counted(x, d);
    else
        tiered(x, d, reinterpret_cast<i64*>(from + 8 * x.delay));
    if (next) copy_few(tail, next, x.delay);
}

template <class T> Status median(const T* src, T* d, int n, int maskSize, const T* history, T* next, u8* buffer)
{
    if (maskSize > longestMask) return StsMaskSizeErr;
    const int mask = oddMask(maskSize);
    const Stream<T> x{src, history, mask - 1, n, *src};
    if (mask == 1) {
        if (src != d) copy_few(src, d, n);
    } else if (mask <= 5) {
        small_median(x, d, next, mask == 3 ? networks<3, T> : networks<5, T>);
    } else {
        long_median(x, d, next, buffer);
    }
    return statusOf(maskSize);
}

} // namespace
#include "entries/signal/processing/median/median.inc"
} // namespace sig5d::SIG5D_VARIANT
