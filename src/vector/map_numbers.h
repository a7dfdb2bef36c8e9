// Loops over complex numbers for functions that check nothing: there may be none.
#pragma once
#include "kernel/parts.h"
#include "kernel/select.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class D, class Op, class... A> [[gnu::always_inline]] inline void map_numbers(size_t n, D d, Op op, A... a)
{
    if (n > 0) map_parts(n, d, op, a...);
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
