// What the tests of matrices share: the element types, and memory with matrices in it. An oracle does its work on a
// copy of all the memory, so that comparing the two shows what was written and what was not.
#pragma once
#include "support/bytes.h"
#include <cstring>

namespace matrices {

using support::Bytes;

struct Type {
    const char* suffix;
    size_t bytes;
};
inline const Type types[] = {{"", 8}, {"_32s", 4}, {"_16s", 2}, {"_8u", 1}, {"c", 16}};

// Memory full of noise, the same each time: made once, since the tests need it by the gigabyte.
inline Bytes filled(size_t n)
{
    static Bytes all;
    if (all.size() < n) all = support::noise(2 * n);
    return Bytes(all.begin(), all.begin() + static_cast<long>(n));
}

inline void copyElement(Bytes& memory, size_t from, size_t to, size_t bytes)
{
    unsigned char x[16];
    std::memcpy(x, &memory[from], bytes);
    std::memcpy(&memory[to], x, bytes);
}

inline void swapElements(Bytes& memory, size_t p, size_t q, size_t bytes)
{
    unsigned char x[16];
    std::memcpy(x, &memory[p], bytes);
    copyElement(memory, q, p, bytes);
    std::memcpy(&memory[q], x, bytes);
}

// Addresses that suit an element of any type under the sanitizers, and odd ones elsewhere.
inline size_t place(size_t wanted, size_t bytes)
{
    return support::mayStandAt(wanted, static_cast<int>(bytes)) ? wanted : wanted / 16 * 16;
}

struct Random {
    std::mt19937 bits{12345};
    unsigned below(unsigned n) { return static_cast<unsigned>(bits() % n); }
    unsigned from(unsigned low, unsigned high) { return low + below(high - low + 1); }
};

} // namespace matrices
