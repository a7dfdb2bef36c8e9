// Elements to bits (is it non-zero?) and back.
#include "frame/entry.h"
#include "matrix/bit_words.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Words of 32 elements first. Of what is left the first word is shorter; the rule for further words (callers need none)
// makes m elements of each step the run of all words after it, at m times the word's number.
template <class T> void bit_pack(const T* src, unsigned offset, unsigned end, u32* words, unsigned nWords)
{
    const u32 n = offset < end ? end - offset : 0;
    const T* a = src + offset;
    u32 w = 0;
    for (const u32 whole = n / 32 < nWords ? n / 32 : nWords; w < whole; ++w) words[w] = pack_word(a + size_t(w) * 32);
    for (u32 m = 32; w < nWords; ++w) {
        const u64 start = u64(m) * w;
        if (start + m > n) m = start < n ? static_cast<u32>(n - start) : 0;
        words[w] = pack_word(a + start, m);
    }
}

template <class T> void bit_unpack(const u32* words, unsigned, T* dst, unsigned offset, unsigned n)
{
    T* d = dst + offset;
    for (; n >= 32; n -= 32, d += 32) unpack_word(*words++, d);
    if (n) unpack_word(*words, d, n);
}

} // namespace
#include "entries/matrix/bit_pack.inc"
} // namespace sig5d::SIG5D_VARIANT
