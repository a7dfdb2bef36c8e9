// Short arrays of keys.
#pragma once
#include "signal/processing/sorting/keys.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class A> constexpr size_t mostSmall = 24;
template <class K> constexpr size_t manyKeys = 4096;
template <class K> constexpr size_t keysOfSample = 32;

// By insertion; places stand behind equal keys as they increase.
template <class A> [[gnu::noinline]] void sort_small(A a, size_t n)
{
    for (size_t i = 1; i < n; ++i) {
        const auto key = a.key[i];
        i32 place = 0;
        if constexpr (A::paired) place = a.place[i];
        size_t j = i;
        for (; j > 0; --j) {
            bool before = key < a.key[j - 1];
            if constexpr (A::paired) before = before || (key == a.key[j - 1] && place < a.place[j - 1]);
            if (!before) break;
            a.key[j] = a.key[j - 1];
            if constexpr (A::paired) a.place[j] = a.place[j - 1];
        }
        a.key[j] = key;
        if constexpr (A::paired) a.place[j] = place;
    }
}

} // namespace
} // namespace sig5d::SIG5D_VARIANT
