// A word that all threads share: loaded and stored whole, without a lock.
#pragma once
#include "frame/types.h"
#include <atomic>

namespace sig5d {

class SharedWord
{
public:
    constexpr SharedWord(u64 first) : word_(first) {}
    u64 load() const { return word_.load(); }
    void store(u64 word) { word_.store(word); }
    // If what stands is as expected; otherwise expected becomes what stands.
    bool replace(u64& expected, u64 word) { return word_.compare_exchange_strong(expected, word); }

private:
    std::atomic<u64> word_;
};
static_assert(sizeof(SharedWord) == sizeof(u64) && std::atomic<u64>::is_always_lock_free);

} // namespace sig5d
