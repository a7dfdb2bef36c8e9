// Plays against one body (McIlroy, A killer adversary for quicksort, 1999): whatever it samples gets the lowest values
// that are left. All others stay above them, and get theirs when its trust in samples is gone.
#include "signal/processing/sorting/misleading.h"
#include "signal/processing/sorting/quick.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

std::vector<int32_t> misleading(size_t length)
{
    constexpr int32_t above = 1 << 30;
    std::vector<int32_t> input(length), keys(length), owner;
    for (size_t i = 0; i < length; ++i) keys[i] = above + static_cast<int32_t>(i);
    int32_t* key = keys.data();
    for (size_t n = length; n > 2 * mostSmall<Keys<i32>>;) {
        const size_t number = n < manyKeys<i32> ? 9 : keysOfSample<i32>, step = n / number;
        for (size_t i = 0; i < number; ++i) {
            int32_t& sample = key[i * step + step / 2];
            if (sample < above) continue;
            owner.push_back(sample - above);
            sample = static_cast<int32_t>(owner.size());
        }
        const size_t split = partition<mostSmall<Keys<i32>> + 1>(Keys<i32>{key}, n, sampled(key, n));
        key += split;
        n -= split;
    }
    for (size_t i = 0; i < length; ++i) input[i] = above + static_cast<int32_t>(i * 2654435761u % length);
    for (size_t i = 0; i < owner.size(); ++i) input[static_cast<size_t>(owner[i])] = static_cast<int32_t>(i);
    return input;
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT

namespace sorting {

#define SIG5D_NAME_(variant) #variant
#define SIG5D_NAME(variant) SIG5D_NAME_(variant)
Body SIG5D_VARIANT() { return {SIG5D_NAME(SIG5D_VARIANT), sig5d::SIG5D_VARIANT::misleading}; }

} // namespace sorting
