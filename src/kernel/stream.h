// Stores past the caches, for results that no cache would keep: they save reading the destination before it is
// overwritten. Every sequence of them ends with stream_end(), so that other cores see it before what is stored later.
#pragma once
#include "frame/cache.h"
#include "kernel/simd.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// p: aligned to the size of the vector.
template <class V> inline void stream(void* p, V v)
{
    if constexpr (sizeof(V) == 16)
        _mm_stream_si128(static_cast<__m128i*>(p), reinterpret_cast<__m128i>(v));
#if SIG5D_LEVEL >= 4
    else if constexpr (sizeof(V) == 32)
        _mm256_stream_si256(static_cast<__m256i*>(p), reinterpret_cast<__m256i>(v));
#endif
#if SIG5D_LEVEL >= 6
    else
        _mm512_stream_si512(static_cast<__m512i*>(p), reinterpret_cast<__m512i>(v));
#endif
}
inline void stream_end() { _mm_sfence(); }

inline bool aligned(const void* p, uintptr_t bytes) { return reinterpret_cast<uintptr_t>(p) % bytes == 0; }

// An array that no cache holds is walked in three sections side by side, this many bytes of each in turn: memory
// delivers several streams faster than one.
constexpr size_t sections = 3, bytesInTurn = 512;

// The runs of elements in which an array of n is walked, one after the other. As it stands: in one. In sections: "lead"
// elements up to the beginning of a cache line, then `turn` of each section in turn, then what is left. The lead is
// rounded up to whole groups, so that some elements belong to two runs.
class Runs
{
public:
    size_t begin = 0, length; // of the first run, and after next() of the next one

    explicit Runs(size_t n) : length(n), end_(n) {}
    Runs(size_t n, size_t lead, size_t group, size_t turn) : length(n), end_(n), lead_(lead), turn_(turn)
    {
        if (n < lead + sections * turn) return;
        section_ = (n - lead) / sections / turn * turn;
        length = (lead + group - 1) / group * group;
        if (lead == 0) next();
    }
    bool next()
    {
        if (begin + length == end_) return false;
        begin = lead_ + done_ + section_ * which_;
        length = turn_;
        if (done_ == section_) {
            begin = lead_ + sections * section_;
            length = end_ - begin;
        } else if (++which_ == sections) {
            which_ = 0;
            done_ += turn_;
        }
        return true;
    }

private:
    size_t end_, lead_ = 0, turn_ = 0, section_ = 0, done_ = 0, which_ = 0;
};

} // namespace
} // namespace sig5d::SIG5D_VARIANT
