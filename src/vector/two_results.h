// Quotients and remainders in one pass.
#pragma once
#include "kernel/map.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

// Below this the loop of single divisions is as fast as any preparation.
constexpr u32 fewElements = 8;

// The sources may overlap the destinations as long as a vector at a time gives the same as an element at a time: the
// remainders may take the place of a source, exactly.
template <class T> inline bool independent(size_t n, const T* q, const T* r, const T* a)
{
    const Span quotients = span(q, n), remainders = span(r, n), source = span(a, n);
    return apart(quotients, remainders) && apart(quotients, source) && (r == a || apart(remainders, source));
}

#if SIG5D_LEVEL > 0

// Lanes in which products and differences wrap around.
template <class T> struct UnsignedLane {
    using type = u32;
};
template <> struct UnsignedLane<i16> {
    using type = u16;
};

template <class V> struct Division {
    V quotient, remainder;
};

#endif

} // namespace
} // namespace sig5d::SIG5D_VARIANT
